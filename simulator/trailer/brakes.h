// The brake: load-sensing characteristic from the parameters, two modulators with lag, the
// pneumatic redundancy, and the test routines that take it over.
#pragma once

#include <array>
#include <optional>

#include "simulator/trailer/vehicle_parameters.h"

namespace lorimet::simulator {

// Brake pressure in psi that the parameters promise for a control pressure in psi and a load from
// 0 (unladen) to 1 (laden). Up to the first control point the load plays no part.
double BrakeCharacteristic(const VehicleParameters& vehicle, double control, double load);

enum class BrakeMode { kNormal = 0, kRedundancy = 1, kTest = 2 };

class Brakes {
 public:
  static constexpr double kLagSeconds = 0.08;  // time constant of a modulator

  // Service brake demand in the control line, psi.
  void SetDemand(double psi) { demand_ = psi; }
  double Demand() const { return demand_; }
  // Choosing a mode drops what the test routines have set.
  void SelectMode(BrakeMode mode);
  BrakeMode Mode() const { return mode_; }
  // A test routine's pressure in psi on a channel: 0 control, 1 and 2 the modulators, 4 bellows;
  // 6 is the suspension path in mm. False for another channel.
  bool SetTestChannel(int channel, double value);

  double Delivered(int modulator) const { return delivered_[modulator == 2 ? 1 : 0]; }
  // Returns the rise of the brake pressure in psi, which the reservoir pays for.
  double Advance(double seconds, const VehicleParameters& vehicle, double load, double supply);

 private:
  double Target(int modulator, const VehicleParameters& vehicle, double load, double supply) const;
  double TestLoad(const VehicleParameters& vehicle, double load) const;

  BrakeMode mode_ = BrakeMode::kNormal;
  double demand_ = 0;
  std::array<std::optional<double>, 7> channels_;
  std::array<double, 2> delivered_ = {};
};

}  // namespace lorimet::simulator
