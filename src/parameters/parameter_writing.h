// Writing the parameter image to the ECU, and the ECU's verdict on it.
#pragma once

#include "parameters/parm_block.h"

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class Faults;
class Form;
class FoundConfiguration;
class LinkLibrary;
class TextBox;

struct WritingParts {
  LinkLibrary& link;
  Desktop& desktop;
  const Dictionary& dictionary;
  Clock& clock;
  Faults& faults;
  ParameterImage& image;
  FoundConfiguration& found;
  Form& page;       // whose pointer shows the work
  TextBox& status;  // takes the progress texts
};

// Sends every block that is present, lets the ECU rebuild its checksums, clears the faults, resets
// the ECU and shows its complaints one by one, then says that the data has been saved, whatever
// came of it. Blocks for 7.1 seconds and more.
void WriteParmsToECU(const WritingParts& parts);

// Shows the ECU's complaint of byte `n` and a single bit.
void ShowParmError(Desktop& desktop, std::int16_t n, std::uint8_t bMask);

}  // namespace lorimet
