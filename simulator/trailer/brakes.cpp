#include "simulator/trailer/brakes.h"

#include <algorithm>

namespace lorimet::simulator {

void Brakes::SelectMode(BrakeMode mode) {
  mode_ = mode;
  channels_.fill(std::nullopt);
}

bool Brakes::SetTestChannel(int channel, double value) {
  if (channel != 0 && channel != 1 && channel != 2 && channel != 4 && channel != 6) return false;
  channels_[static_cast<std::size_t>(channel)] = value;
  return true;
}

std::optional<double> Brakes::TestChannel(int channel) const {
  if (channel < 0 || channel >= static_cast<int>(channels_.size())) return std::nullopt;
  return channels_[static_cast<std::size_t>(channel)];
}

double Brakes::TestLoad(const LoadSensing& sensing, double load) const {
  if (sensing.mechanical) return channels_[6] ? LoadOfPath(sensing, *channels_[6]) : load;
  return channels_[4] ? LoadOfBellows(sensing, *channels_[4]) : load;
}

double Brakes::TestTarget(int modulator, const BrakeInputs& inputs,
                          const LoadSensing& sensing) const {
  // The third modulator has no channel: it follows the lower of the other two once both are set.
  if (modulator == 3 && channels_[1] && channels_[2]) return std::min(*channels_[1], *channels_[2]);
  if (modulator < 3 && channels_[static_cast<std::size_t>(modulator)])
    return *channels_[static_cast<std::size_t>(modulator)];
  return BrakeCharacteristic(sensing, channels_[0].value_or(inputs.demand),
                             TestLoad(sensing, inputs.load));
}

void Brakes::Step(const BrakeInputs& inputs, const LoadSensing& sensing, const Defects& defects) {
  const bool pneumatic =
      mode_ == BrakeMode::kRedundancy || (mode_ == BrakeMode::kNormal && !inputs.electric);
  for (int modulator = 1; modulator <= count_; ++modulator) {
    const auto i = static_cast<std::size_t>(modulator - 1);
    if (pneumatic) {
      targets_[i] = 0;
      modulators_[i].StepPneumatic(std::min(inputs.supply_port, inputs.control_port),
                                   defects.modulators[i], defects.redundancies[i]);
      continue;
    }
    targets_[i] = mode_ == BrakeMode::kTest
                      ? TestTarget(modulator, inputs, sensing)
                      : BrakeCharacteristic(sensing, inputs.demand, inputs.load);
    if (released_[i]) targets_[i] = 0;
    modulators_[i].StepElectric(targets_[i], inputs.supply_port, defects.modulators[i]);
  }
}

bool Brakes::ValvesWork() const {
  return std::any_of(modulators_.begin(), modulators_.end(),
                     [](const Modulator& modulator) { return modulator.Working(); });
}

double Brakes::Drawn() const {
  double drawn = 0;
  for (const Modulator& modulator : modulators_) drawn += modulator.Drawn();
  return drawn;
}

}  // namespace lorimet::simulator
