// The brake control: normal braking by load, the pneumatic redundancy, and the test routines that
// take it over.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "simulator/trailer/defects.h"
#include "simulator/trailer/load_sensing.h"
#include "simulator/trailer/modulator.h"

namespace lorimet::simulator {

enum class BrakeMode { kNormal = 0, kRedundancy = 1, kTest = 2 };

// What the brake control sees and is fed with in one step; pressures in psi.
struct BrakeInputs {
  double demand = 0;        // as the ECU's sensor tells it
  double load = 0;          // as the ECU knows it, 0 to 1
  double supply_port = 0;   // at the modulators
  double control_port = 0;  // at the modulators
  bool electric = true;     // the ECU has power and knows the demand
};

class Brakes {
 public:
  static constexpr int kModulators = 3;

  // modulators: those that brake wheels, 1 to 3.
  explicit Brakes(int modulators) : count_(modulators) {}

  // Choosing a mode drops what the test routines have set.
  void SelectMode(BrakeMode mode);
  BrakeMode Mode() const { return mode_; }
  // A test routine's pressure in psi on a channel: 0 control, 1 and 2 the modulators, 4 bellows;
  // 6 is the suspension path in mm. It holds until it is replaced. False for another channel.
  bool SetTestChannel(int channel, double value);
  void EndTestChannel(int channel) { channels_[static_cast<std::size_t>(channel)].reset(); }
  // What stands on a channel; nothing for one that is free or unknown.
  std::optional<double> TestChannel(int channel) const;

  // Keeps a modulator (1 to 3) without pressure while a wheel of it slips.
  void Release(int modulator, bool released) {
    released_[static_cast<std::size_t>(modulator - 1)] = released;
  }

  void Step(const BrakeInputs& inputs, const LoadSensing& sensing, const Defects& defects);

  // Of modulator 1 to 3, psi; 0 for one that the trailer does not have.
  double Delivered(int modulator) const { return Of(modulator).Pressure(); }
  // What the electric valves of a modulator have been told to deliver in the last step.
  double Target(int modulator) const { return targets_[static_cast<std::size_t>(modulator - 1)]; }
  bool ValvesWork() const;
  // psi that the last step has taken out of the reservoir's air.
  double Drawn() const;

 private:
  const Modulator& Of(int modulator) const {
    return modulators_[static_cast<std::size_t>(modulator - 1)];
  }
  double TestTarget(int modulator, const BrakeInputs& inputs, const LoadSensing& sensing) const;
  double TestLoad(const LoadSensing& sensing, double load) const;

  int count_;
  BrakeMode mode_ = BrakeMode::kNormal;
  std::array<std::optional<double>, 7> channels_;
  std::array<bool, kModulators> released_ = {};
  std::array<double, kModulators> targets_ = {};
  // What the valves make of a target, and what the pneumatic path keeps back in psi.
  std::array<Modulator, kModulators> modulators_ = {Modulator(1.006, 1.0), Modulator(0.992, 1.4),
                                                    Modulator(1.0, 1.2)};
};

}  // namespace lorimet::simulator
