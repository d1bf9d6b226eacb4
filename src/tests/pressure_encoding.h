// How a pressure travels to the ECU: in counts of 1/5120 bar, as two bytes.
#pragma once

#include <cstdint>

namespace lorimet {

// What psi are divided by to make bar. The laden bellows pressure alone is divided by another
// number, and that is to stay.
constexpr double kPsiPerBar = 14.5;
constexpr double kPsiPerBarLadenBellows = 14.4;

struct PressureWord {
  std::uint8_t low = 0;
  std::uint8_t high = 0;

  bool operator==(const PressureWord&) const = default;
};

// The high byte is the rounded counts divided by 256, the low byte what the unrounded counts have
// beyond it, rounded; a half goes to the even neighbour. Error 6 where a byte cannot hold it: below
// 0, from 16 bar on, and for what is no number.
PressureWord EncodePressure(double psi, double psi_per_bar = kPsiPerBar);

}  // namespace lorimet
