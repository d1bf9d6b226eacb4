// What the ECU measures at one moment, in the units of the library's record.
#pragma once

#include <array>

namespace lorimet::simulator {

// The ECU's code for a pressure that it has no sensor for, in psi.
constexpr double kNoSensorPressure = 184.875;

struct LiveValues {
  double primary_volts = 0;  // hundredths of a volt
  double voltage_source = 0;
  std::array<double, 6> wheel_speed = {};  // mph; -1.0 where there is no sensor
  double odometer = 0;
  double next_service = 0;
  double trip = 0;
  double supply = 0;  // psi, as all that follow
  double steer_bellows = 0;
  double brake1 = 0;
  double brake2 = 0;
  double main_bellows = 0;
  double service_brake = 0;
  bool warning_lamp = false;
  int faults = 0;
};

}  // namespace lorimet::simulator
