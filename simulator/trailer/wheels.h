// The wheels that carry a sensor: they stand still, can be spun, and coast or are braked down.
#pragma once

#include <array>
#include <optional>

namespace lorimet::simulator {

// The sensor letters, in the order of the record's wheel speeds.
constexpr std::array<char, 6> kSensorLetters = {'a', 'b', 'd', 'c', 'f', 'e'};

// Index of a sensor letter in the record ("c" 3, "d" 2, "e" 5, "f" 4); nothing for others.
std::optional<int> SensorIndex(char letter);

class Wheels {
 public:
  static constexpr double kCoastRate = 1.5;       // mph a second
  static constexpr double kBrakeRate = 0.5;       // mph a second for a psi of brake pressure
  static constexpr double kHoldingPressure = 20;  // psi: such a brake cannot be turned by hand

  // The wheels of modulator 1 carry the sensors d and f, those of modulator 2 c and e.
  static int ModulatorOf(int index) { return index == 2 || index == 4 ? 1 : 2; }

  // Gives the wheel a speed in mph; a wheel whose brake holds does not turn.
  void Spin(int index, double mph) { speeds_[static_cast<std::size_t>(index)] = mph; }
  double Speed(int index) const { return speeds_[static_cast<std::size_t>(index)]; }
  double MeanSpeed() const { return (speeds_[2] + speeds_[3]) / 2; }

  void Advance(double seconds, double brake1_psi, double brake2_psi);

 private:
  std::array<double, 6> speeds_ = {};
};

}  // namespace lorimet::simulator
