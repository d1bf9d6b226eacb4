// One modulator: its electric valves with dead time, lag, hold and tolerance, and its pneumatic
// path.
#pragma once

#include "simulator/trailer/defects.h"

namespace lorimet::simulator {

class Modulator {
 public:
  static constexpr double kDeadTimeSeconds = 0.04;  // from command to valve
  static constexpr double kDeadTimeChange = 0.3;    // psi: a smaller move of the target needs none
  static constexpr double kSupplySeconds = 0.30;    // filling from the reservoir
  static constexpr double kExhaustSeconds = 0.20;   // emptying into the open air
  static constexpr double kApproachSeconds = 0.06;  // towards the target, either way
  static constexpr double kBeginBand = 0.7;         // psi off the target until a valve works
  static constexpr double kEndBand = 0.1;           // psi off the target when it ends
  static constexpr double kEmpty = 0.05;            // psi that an exhaust counts as nothing
  static constexpr double kHoldLossRate = 0.02;     // psi a second between two valves
  static constexpr double kPneumaticSeconds = 0.25;
  static constexpr double kPneumaticOpening = 4;  // psi below which the path stays closed

  // tolerance: what the valves make of a target. predominance: psi that the pneumatic path keeps
  // back.
  Modulator(double tolerance, double predominance)
      : tolerance_(tolerance), predominance_(predominance) {}

  // One step by the electric valves. Pressures in psi.
  void StepElectric(double target, double supply, const ModulatorDefect& defect);
  // One step by the pneumatic path. source: the lower of supply and control line.
  void StepPneumatic(double source, const ModulatorDefect& defect, const RedundancyDefect& path);

  double Pressure() const { return pressure_; }
  // psi that the last step has taken out of the reservoir's air.
  double Drawn() const { return drawn_; }
  bool Working() const { return valve_ != Valve::kHold; }

 private:
  enum class Valve { kHold, kApply, kExhaust };

  void Command(double target, double slow);
  void ChooseValve();
  void Apply(double supply, double slow);
  void Exhaust(double slow);
  void Lose(const ModulatorDefect& defect);

  double tolerance_;
  double predominance_;
  double pressure_ = 0;
  double commanded_ = 0;  // what the valves work towards
  double drawn_ = 0;
  int waited_ = 0;  // steps of the dead time
  Valve valve_ = Valve::kHold;
};

}  // namespace lorimet::simulator
