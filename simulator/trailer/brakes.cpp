#include "simulator/trailer/brakes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace lorimet::simulator {
namespace {

double Between(double x, double x0, double y0, double x1, double y1) {
  if (x1 <= x0) return y1;
  return y0 + (y1 - y0) * std::clamp((x - x0) / (x1 - x0), 0.0, 1.0);
}

}  // namespace

double BrakeCharacteristic(const VehicleParameters& vehicle, double control, double load) {
  const auto control_at = [&](int point) { return vehicle.Control(point) * kPsiPerCount; };
  const auto laden_at = [&](int point) { return vehicle.LadenBraking(point) * kPsiPerCount; };
  if (control <= control_at(0)) return Between(control, 0, 0, control_at(0), laden_at(0));
  const double laden =
      control <= control_at(1)
          ? Between(control, control_at(0), laden_at(0), control_at(1), laden_at(1))
          : Between(control, control_at(1), laden_at(1), control_at(2), laden_at(2));
  const double unladen = Between(control, control_at(0), laden_at(0), control_at(2),
                                 vehicle.UnladenBraking() * kPsiPerCount);
  return unladen + (laden - unladen) * std::clamp(load, 0.0, 1.0);
}

void Brakes::SelectMode(BrakeMode mode) {
  mode_ = mode;
  channels_.fill(std::nullopt);
}

bool Brakes::SetTestChannel(int channel, double value) {
  if (channel != 0 && channel != 1 && channel != 2 && channel != 4 && channel != 6) return false;
  channels_[static_cast<std::size_t>(channel)] = value;
  return true;
}

double Brakes::TestLoad(const VehicleParameters& vehicle, double load) const {
  if (vehicle.Mechanical()) {
    if (!channels_[6]) return load;
    return Between(*channels_[6], 0, 0, vehicle.LadenPath() * 0.1, 1);
  }
  if (!channels_[4]) return load;
  return Between(*channels_[4], vehicle.UnladenSuspension() * kPsiPerCount, 0,
                 vehicle.LadenSuspension() * kPsiPerCount, 1);
}

double Brakes::Target(int modulator, const VehicleParameters& vehicle, double load,
                      double supply) const {
  if (mode_ == BrakeMode::kRedundancy) return std::min(supply, demand_);
  if (mode_ == BrakeMode::kNormal)
    return std::min(supply, BrakeCharacteristic(vehicle, demand_, load));
  const auto& own = channels_[static_cast<std::size_t>(modulator)];
  const double target =
      own ? *own
          : BrakeCharacteristic(vehicle, channels_[0].value_or(demand_), TestLoad(vehicle, load));
  return std::min(supply, target);
}

double Brakes::Advance(double seconds, const VehicleParameters& vehicle, double load,
                       double supply) {
  double rise = 0;
  const double share = 1 - std::exp(-seconds / kLagSeconds);
  for (int modulator = 1; modulator <= 2; ++modulator) {
    double& delivered = delivered_[static_cast<std::size_t>(modulator - 1)];
    const double step = (Target(modulator, vehicle, load, supply) - delivered) * share;
    delivered += step;
    if (delivered < 0.001) delivered = 0;
    rise += std::max(0.0, step);
  }
  return rise;
}

}  // namespace lorimet::simulator
