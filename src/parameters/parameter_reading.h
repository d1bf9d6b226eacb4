// Reading the parameter image from the ECU.
#pragma once

#include <cstdint>

#include "parameters/parm_block.h"

namespace lorimet {

class Desktop;
class Dictionary;
class Form;
class FoundConfiguration;
class LinkLibrary;
class TextBox;
struct ECUData;

// Reads one block by its local identifier, up to four tries in all without a pause. A block that
// fails keeps its bytes and its count; of an answer longer than the block the first 201 bytes
// count. `forget_count` empties the count before each try. Gives the last status.
std::int32_t ReadBlock(LinkLibrary& link, std::uint8_t local_id, ParmBlock& block,
                       bool forget_count = false);

// What reading needs of the main form: its pointer and its message center.
struct ReadingParts {
  LinkLibrary& link;
  Desktop& desktop;
  const Dictionary& dictionary;
  ECUData& ecu_data;
  ParameterImage& image;
  FoundConfiguration& found;
  Form& main_form;
  TextBox& error_text;
};

// Fills the image from the ECU; gives the status of the last block. No failure is reported: a block
// that cannot be read stays as it is.
std::int32_t ReadParmsFromECU(const ReadingParts& parts);

}  // namespace lorimet
