// The words of the complaints that the ECU raises about the parameters written to it.
#pragma once

#include <cstdint>
#include <string_view>

namespace lorimet {

// The message for one bit of the ECU's parameter error bytes: byte `n`, 1 to 20, and the bit set in
// `mask`. Empty for any other byte and for a mask of no bit or of several. In English only.
std::string_view ParameterErrorText(int n, std::uint8_t mask);

}  // namespace lorimet
