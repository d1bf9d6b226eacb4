// What the bench sees of the simulated trailer, as it was told last.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::bench {

constexpr int kWheels = 6;  // positions, 1 to 6

struct WheelSight {
  bool present = false;
  double speed = 0;  // mph
  double brake = 0;  // psi
  bool turnable = false;
  char sensor = 0;  // its letter; 0 for none

  bool operator==(const WheelSight&) const = default;
};

struct Sight {
  double time = 0;  // seconds of the trailer
  std::string scenario;
  std::string configuration;
  bool air = true;
  bool rear_mounted = false;
  bool connection = false;
  bool adapter = true;
  bool cable = true;
  bool power = true;
  bool compressor = true;
  bool parking_brake = false;
  std::string ecu;  // "on", "off" or "restarting"
  double volts = 0;
  double supply = 0;  // psi, as the others
  double pedal = 0;
  double control_line = 0;
  double bellows = 0;
  std::array<double, 3> modulators = {};
  double load = 0;  // 0 to 1
  double speed = 0;
  std::string mode;  // "normal", "redundancy" or "test"
  bool lamp = false;
  bool stop_lights = false;
  std::optional<int> height;  // counts
  bool calibrated = false;
  int flag = 0;
  int faults = 0;
  std::string defects;   // names, or "none"
  std::string failures;  // the same
  int told = 0;          // requests
  std::array<WheelSight, kWheels> wheels = {};

  bool operator==(const Sight&) const = default;
  const WheelSight& Wheel(int position) const {
    return wheels[static_cast<std::size_t>(position - 1)];
  }
  // Modulators that brake wheels, 1 to 3.
  int Modulators() const;
};

// The names that are asked for in a round, for `get`.
const std::vector<std::string>& SightNames();
// Takes what was told for the name of an index; a name that is not known there leaves its field
// empty, such as a wheel that the trailer does not have.
void TakeSight(Sight& sight, std::size_t index, bool ok, const std::string& value);

}  // namespace lorimet::bench
