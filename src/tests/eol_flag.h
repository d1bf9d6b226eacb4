// The end-of-line flag: the ECU's byte that says whether the vehicle has passed its end-of-line
// test.
#pragma once

#include <cstdint>

namespace lorimet {

class Clock;
class Faults;
class LinkLibrary;

// Local identifier of the flag; byte 1 of what is read is its value.
constexpr std::uint8_t kEolFlagId = 0x2A;
constexpr std::uint8_t kEolPassed = 1;
constexpr std::uint8_t kEolNotPassed = 2;

struct EolFlagParts {
  LinkLibrary& link;
  Clock& clock;
  Faults& faults;
};

// Writes the flag, clears the faults and resets the ECU, which takes at least 10 s and blocks the
// user interface. Faults and reset follow a write that failed, too. Gives what the write returned;
// 0 is success. The caller has opened a session.
std::int32_t SetEOLFlag(const EolFlagParts& parts, std::int16_t bPass);

struct EolFlagReading {
  std::int32_t result = 0;  // of the last of up to four tries
  std::uint8_t value = 0;   // as the buffer has it, whatever the result
};
EolFlagReading ReadEOLFlag(LinkLibrary& link);

}  // namespace lorimet
