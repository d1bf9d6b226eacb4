// The supply voltage with its ripple, and where it comes from.
#pragma once

#include <cmath>

namespace lorimet::simulator {

enum class VoltageSource { kStopLight = 0, kPermanent = 1 };

class Electrics {
 public:
  static constexpr double kRippleVolts = 0.05;

  void SetVolts(double volts) { volts_ = volts; }
  void SetSource(VoltageSource source) { source_ = source; }
  void Advance(double seconds) { time_ += seconds; }

  VoltageSource Source() const { return source_; }
  // Volts, with a ripple of a period of 1.3 seconds.
  double Volts() const { return volts_ + kRippleVolts * std::sin(time_ * 2 * kPi / 1.3); }

 private:
  static constexpr double kPi = 3.14159265358979323846;
  double volts_ = 12.6;
  double time_ = 0;
  VoltageSource source_ = VoltageSource::kPermanent;
};

}  // namespace lorimet::simulator
