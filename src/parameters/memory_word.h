// Words that lie in the ECU's memory, two bytes at an address.
#pragma once

#include <cstdint>
#include <optional>

namespace lorimet {

class LinkLibrary;

struct MemoryAddress {
  std::uint8_t high = 0;
  std::uint8_t middle = 0;
  std::uint8_t low = 0;
};

struct MemoryWord {
  std::uint8_t first = 0;   // the high byte of a number
  std::uint8_t second = 0;  // its low byte
};

// Reads so many times in a row; the last answer counts, and no result is checked. A word that the
// ECU does not give is 0.
MemoryWord ReadMemoryWord(LinkLibrary& link, const MemoryAddress& address, int times);

// Reads until the ECU gives the word, at most four times; nothing when it does not.
std::optional<MemoryWord> TryMemoryWord(LinkLibrary& link, const MemoryAddress& address);

}  // namespace lorimet
