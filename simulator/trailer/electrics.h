// The supplies of the ECU: permanent power and the stop light circuit, their voltage, and whether
// the ECU lives on them.
#pragma once

namespace lorimet::simulator {

enum class VoltageSource { kStopLight = 0, kPermanent = 1 };

class Electrics {
 public:
  static constexpr double kVolts = 12.6;
  static constexpr double kNoise = 0.03;      // volts either way
  static constexpr double kValveDrop = 0.15;  // volts while a valve works
  static constexpr double kLampDrop = 0.25;   // volts while the warning lamp is on
  static constexpr double kOffBelow = 8.0;    // volts at which the ECU goes out
  static constexpr double kOnAbove = 9.0;     // volts at which it comes back

  void SetVolts(double volts) { volts_ = volts; }
  void SwitchPermanent(bool on) { permanent_ = on; }
  // Whether the towing vehicle's stop light wire reaches the ECU.
  void SwitchStopLight(bool on) { stop_light_ = on; }
  // A workshop's supply on the stop light wire, brake or no brake, in place of permanent power.
  void SetSource(VoltageSource source) {
    permanent_ = source == VoltageSource::kPermanent;
    held_ = source == VoltageSource::kStopLight;
  }

  VoltageSource Source() const {
    return permanent_ ? VoltageSource::kPermanent : VoltageSource::kStopLight;
  }
  bool StopLightCircuit() const { return circuit_; }
  bool Powered() const { return powered_; }
  double Volts() const { return volts_; }

  // braking: the towing vehicle feeds the stop light circuit.
  void Step(bool braking) {
    circuit_ = held_ || (stop_light_ && braking);
    const double volts = permanent_ || circuit_ ? volts_ : 0;
    if (volts < kOffBelow) powered_ = false;
    if (volts > kOnAbove) powered_ = true;
  }

 private:
  double volts_ = kVolts;
  bool permanent_ = true;
  bool stop_light_ = true;
  bool held_ = false;
  bool circuit_ = false;
  bool powered_ = true;
};

}  // namespace lorimet::simulator
