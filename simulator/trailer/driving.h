// The vehicle on the road: its speed, the surface and the lateral acceleration.
#pragma once

#include <algorithm>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class Driving {
 public:
  static constexpr double kAcceleration = 4;  // mph a second
  static constexpr double kBraking = 8;       // mph a second, by the towing vehicle
  static constexpr double kDryGrip = 200;     // mph a second that the road gives a wheel
  static constexpr double kIceGrip = 10;      // mph a second

  // Holds a speed in mph from now on; 0 brakes to a stand.
  void SetTarget(double mph) { target_ = mph; }
  void SetIce(bool ice) { ice_ = ice; }
  void SetLateral(double g) { lateral_ = g; }

  double Speed() const { return speed_; }
  double Lateral() const { return lateral_; }
  // 0 while the vehicle stands, when a wheel is a hand's to turn.
  double Grip() const {
    if (speed_ <= 0 && target_ <= 0) return 0;
    return ice_ ? kIceGrip : kDryGrip;
  }
  void Step() {
    speed_ = std::clamp(target_, speed_ - kBraking * kStepSeconds,
                        speed_ + kAcceleration * kStepSeconds);
  }

 private:
  double target_ = 0;
  double speed_ = 0;
  double lateral_ = 0;
  bool ice_ = false;
};

}  // namespace lorimet::simulator
