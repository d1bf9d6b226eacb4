#include "simulator/trailer/load_sensing.h"

#include <algorithm>
#include <cstddef>

namespace lorimet::simulator {
namespace {

double Between(double x, double x0, double y0, double x1, double y1) {
  if (x1 <= x0) return y1;
  return y0 + (y1 - y0) * std::clamp((x - x0) / (x1 - x0), 0.0, 1.0);
}

}  // namespace

LoadSensing LoadSensing::From(const VehicleParameters& vehicle) {
  LoadSensing sensing;
  for (int point = 0; point < 3; ++point) {
    const auto i = static_cast<std::size_t>(point);
    sensing.control[i] = vehicle.Control(point) * kPsiPerCount;
    sensing.laden_braking[i] = vehicle.LadenBraking(point) * kPsiPerCount;
  }
  sensing.unladen_braking = vehicle.UnladenBraking() * kPsiPerCount;
  sensing.unladen_bellows = vehicle.UnladenSuspension() * kPsiPerCount;
  sensing.laden_bellows = vehicle.LadenSuspension() * kPsiPerCount;
  sensing.laden_path = vehicle.LadenPath() * 0.1;
  sensing.mechanical = vehicle.Mechanical();
  return sensing;
}

double BrakeCharacteristic(const LoadSensing& s, double control, double load) {
  if (control <= s.control[0]) return Between(control, 0, 0, s.control[0], s.laden_braking[0]);
  const double laden =
      control <= s.control[1]
          ? Between(control, s.control[0], s.laden_braking[0], s.control[1], s.laden_braking[1])
          : Between(control, s.control[1], s.laden_braking[1], s.control[2], s.laden_braking[2]);
  const double unladen =
      Between(control, s.control[0], s.laden_braking[0], s.control[2], s.unladen_braking);
  return unladen + (laden - unladen) * std::clamp(load, 0.0, 1.0);
}

double LoadOfBellows(const LoadSensing& s, double psi) {
  return Between(psi, s.unladen_bellows, 0, s.laden_bellows, 1);
}

double LoadOfPath(const LoadSensing& s, double mm) { return Between(mm, 0, 0, s.laden_path, 1); }

}  // namespace lorimet::simulator
