// The ECU's verdict on its parameters: twenty error bytes of eight complaints each.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>

#include "simulator/trailer/configuration.h"
#include "simulator/trailer/parameter_store.h"

namespace lorimet::simulator {

class ErrorBytes {
 public:
  static constexpr int kCount = 20;  // bytes 1 to 20

  void Set(int byte, int bit) {
    bytes_[static_cast<std::size_t>(byte)] |= static_cast<std::uint8_t>(1u << bit);
  }
  void Clear(int byte, int bit) {
    bytes_[static_cast<std::size_t>(byte)] &= static_cast<std::uint8_t>(~(1u << bit));
  }
  bool Has(int byte, int bit) const { return (At(byte) >> bit & 1) != 0; }
  std::uint8_t At(int byte) const { return bytes_[static_cast<std::size_t>(byte)]; }
  bool Any() const {
    for (const std::uint8_t byte : bytes_)
      if (byte != 0) return true;
    return false;
  }

 private:
  std::array<std::uint8_t, kCount + 1> bytes_ = {};
};

// Judges the stored blocks against each other and against the trailer as it is built.
ErrorBytes JudgeParameters(const ParameterStore& store, const TrailerSetup& hardware);

}  // namespace lorimet::simulator
