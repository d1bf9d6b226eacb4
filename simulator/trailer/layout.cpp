#include "simulator/trailer/layout.h"

#include <algorithm>

namespace lorimet::simulator {

std::optional<int> SensorIndex(char letter) {
  for (std::size_t i = 2; i < kSensorLetters.size(); ++i)
    if (kSensorLetters[i] == letter) return static_cast<int>(i);
  return std::nullopt;
}

Layout::Layout(const TrailerSetup& setup) {
  const SystemFacts& facts = FactsOf(setup.system);
  const bool third = setup.system == System::k4S3M || setup.system == System::k2M1M;
  modulators_ = facts.modulators == 1 ? 1 : third ? 3 : 2;
  const int cd_axle = std::min(1, setup.axles - 1);
  const int first_position = setup.axles == 3 ? 1 : 2;
  for (int axle = 0; axle < setup.axles; ++axle) {
    const bool cd = axle == cd_axle;
    const bool ef = axle == 0 && facts.sensors == 4;
    for (const bool other_side : {false, true}) {
      const int position = first_position + axle + (other_side ? 3 : 0);
      Wheel& wheel = wheels_[static_cast<std::size_t>(position - 1)];
      // A rear-mounted ECU sees the sides the other way round.
      const bool second = other_side != setup.rear_mounted;
      wheel.present = true;
      if (cd) wheel.sensor = second ? 3 : 2;
      if (ef) wheel.sensor = second ? 5 : 4;
      wheel.modulator = second ? 2 : 1;
      if (modulators_ == 1) wheel.modulator = 1;
      if (modulators_ == 3 && ef) wheel.modulator = 3;
    }
  }
}

std::optional<int> Layout::SensorAt(int position) const {
  if (!Valid(position) || At(position).sensor == 0) return std::nullopt;
  return At(position).sensor;
}

std::optional<int> Layout::PositionOf(int sensor_index) const {
  for (int position = 1; position <= kPositions; ++position)
    if (sensor_index > 0 && At(position).sensor == sensor_index) return position;
  return std::nullopt;
}

int Layout::ModulatorOf(int position, bool crossed) const {
  const int modulator = At(position).modulator;
  return crossed && modulators_ > 1 && modulator < 3 ? 3 - modulator : modulator;
}

}  // namespace lorimet::simulator
