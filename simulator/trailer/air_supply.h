// The reservoir: a compressor that pumps between cut-in and cut-out, and a slow leak.
#pragma once

#include <algorithm>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class AirSupply {
 public:
  static constexpr double kStart = 112;           // psi
  static constexpr double kCutIn = 100;           // psi
  static constexpr double kCutOut = 120;          // psi
  static constexpr double kPumpRate = 2;          // psi a second
  static constexpr double kLeakRate = 0.02;       // psi a second
  static constexpr double kUsePerBrakePsi = .03;  // psi of the reservoir for one at a modulator

  double Pressure() const { return pressure_; }
  bool Pumping() const { return pumping_; }
  bool Compressor() const { return compressor_; }
  // Without its compressor the reservoir only leaks.
  void SetCompressor(bool present) { compressor_ = present; }
  void SetPressure(double psi) { pressure_ = std::max(0.0, psi); }

  // drawn: psi that the modulators have taken. leak: psi a second of a defect.
  void Step(double drawn, double leak) {
    if (!compressor_ || pressure_ >= kCutOut) pumping_ = false;
    if (compressor_ && pressure_ < kCutIn) pumping_ = true;
    SetPressure(pressure_ - drawn * kUsePerBrakePsi - (kLeakRate + leak) * kStepSeconds);
    if (pumping_) pressure_ = std::min(kCutOut, pressure_ + kPumpRate * kStepSeconds);
  }

 private:
  double pressure_ = kStart;
  bool compressor_ = true;
  bool pumping_ = false;
};

}  // namespace lorimet::simulator
