// The control line, whose pressure follows the driver's pedal.
#pragma once

#include <algorithm>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class ControlLine {
 public:
  static constexpr double kRiseRate = 120;  // psi a second
  static constexpr double kFallRate = 250;  // psi a second

  void SetPedal(double psi) {
    if (psi != pedal_) settled_ = false;
    pedal_ = psi;
  }
  double Pedal() const { return pedal_; }
  double Pressure() const { return pressure_; }

  // residual: psi below which the line never falls. leak: psi a second of a line under a held
  // pedal, which nothing fills up again.
  void Step(double residual, double leak) {
    const double rise = kRiseRate * kStepSeconds;
    const double fall = kFallRate * kStepSeconds;
    if (!settled_) {
      pressure_ = std::clamp(pedal_, pressure_ - fall, pressure_ + rise);
      settled_ = pressure_ == pedal_;
    } else if (leak > 0) {
      pressure_ = std::max(0.0, pressure_ - leak * kStepSeconds);
    } else {
      settled_ = pressure_ == pedal_;
    }
    pressure_ = std::max(pressure_, residual);
    if (residual > pedal_) settled_ = false;
  }

 private:
  double pedal_ = 0;
  double pressure_ = 0;
  bool settled_ = true;  // the pedal's pressure has been reached
};

}  // namespace lorimet::simulator
