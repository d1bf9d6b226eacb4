#include "simulator/trailer/wheels.h"

#include <algorithm>
#include <cstddef>

namespace lorimet::simulator {

std::optional<int> SensorIndex(char letter) {
  for (std::size_t i = 2; i < kSensorLetters.size(); ++i)
    if (kSensorLetters[i] == letter) return static_cast<int>(i);
  return std::nullopt;
}

void Wheels::Advance(double seconds, double brake1_psi, double brake2_psi) {
  for (int i = 2; i < 6; ++i) {
    const double brake = ModulatorOf(i) == 1 ? brake1_psi : brake2_psi;
    const double rate = brake > kHoldingPressure ? 1000 : kCoastRate + kBrakeRate * brake;
    double& speed = speeds_[static_cast<std::size_t>(i)];
    speed = std::max(0.0, speed - rate * seconds);
  }
}

}  // namespace lorimet::simulator
