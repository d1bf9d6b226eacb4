// The load-sensing characteristic: what brake pressure the parameters promise.
#pragma once

#include <array>

#include "simulator/trailer/vehicle_parameters.h"

namespace lorimet::simulator {

// The part of the parameters that the brake needs at every step, in psi and mm.
struct LoadSensing {
  std::array<double, 3> control = {};
  std::array<double, 3> laden_braking = {};
  double unladen_braking = 0;
  double unladen_bellows = 0;
  double laden_bellows = 0;
  double laden_path = 0;  // mm
  bool mechanical = false;

  static LoadSensing From(const VehicleParameters& vehicle);
};

// Brake pressure in psi for a control pressure in psi and a load from 0 (unladen) to 1 (laden). Up
// to the first control point the load plays no part.
double BrakeCharacteristic(const LoadSensing& sensing, double control, double load);

// The load, 0 to 1, that a bellows pressure (psi) or a suspension path (mm) tells.
double LoadOfBellows(const LoadSensing& sensing, double psi);
double LoadOfPath(const LoadSensing& sensing, double mm);

}  // namespace lorimet::simulator
