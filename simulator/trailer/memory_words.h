// The ECU's memory as words by a three-byte address; what nobody has set reads as 0.
#pragma once

#include <cstdint>
#include <map>
#include <optional>

namespace lorimet::simulator {

constexpr std::uint32_t kLoweringPressure = 0x02070E;  // 5120 counts are 14 psi
constexpr std::uint32_t kLiftingPressure = 0x020710;
constexpr std::uint32_t kSpeedThresholds = 0x020B59;  // turn-off, then turn-on, km/h a byte

constexpr std::uint32_t Address(std::uint8_t high, std::uint8_t middle, std::uint8_t low) {
  return std::uint32_t{high} << 16 | std::uint32_t{middle} << 8 | low;
}

class MemoryWords {
 public:
  void Set(std::uint32_t address, std::uint16_t word) { words_[address] = word; }
  // What stood there by itself stands there again.
  void Forget(std::uint32_t address) { words_.erase(address); }
  const std::map<std::uint32_t, std::uint16_t>& Words() const { return words_; }
  // Nothing where nobody has set a word.
  std::optional<std::uint16_t> Get(std::uint32_t address) const {
    const auto at = words_.find(address);
    if (at == words_.end()) return std::nullopt;
    return at->second;
  }

 private:
  std::map<std::uint32_t, std::uint16_t> words_;
};

}  // namespace lorimet::simulator
