// The repair instructions that the fault screen shows for a selected fault.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lorimet {

class TextBox;

// The English text for the repair index of a fault. Index 100 is known and has an empty text; an
// index that is not known at all has a sentence that says so.
const char* RepairInstruction(std::int16_t index);

// Empties `Target`, then sets it to the text of RepairInstruction as `translate` gives it.
void ShowRepairInstruction(std::int16_t RepairIndex, TextBox& Target,
                           const std::function<std::string(const std::string&)>& translate);

}  // namespace lorimet
