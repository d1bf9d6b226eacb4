#include "simulator/trailer/modulator.h"

#include <algorithm>
#include <cmath>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

void Modulator::Command(double target, double slow) {
  const bool at_once = std::abs(target - commanded_) <= kDeadTimeChange;
  if (!at_once && ++waited_ <= StepsIn(kDeadTimeSeconds * slow)) return;
  commanded_ = target;
  waited_ = 0;
}

void Modulator::ChooseValve() {
  if (commanded_ <= 0) {
    valve_ = pressure_ > 0 ? Valve::kExhaust : Valve::kHold;
    return;
  }
  const bool reached = (valve_ == Valve::kApply && pressure_ >= commanded_ - kEndBand) ||
                       (valve_ == Valve::kExhaust && pressure_ <= commanded_ + kEndBand);
  if (reached) valve_ = Valve::kHold;
  if (valve_ != Valve::kHold) return;
  if (pressure_ < commanded_ - kBeginBand) valve_ = Valve::kApply;
  if (pressure_ > commanded_ + kBeginBand) valve_ = Valve::kExhaust;
}

void Modulator::Apply(double supply, double slow) {
  const double rate =
      std::min((supply - pressure_) / kSupplySeconds, (commanded_ - pressure_) / kApproachSeconds);
  drawn_ = std::max(0.0, rate / slow * kStepSeconds);
  pressure_ += drawn_;
}

void Modulator::Exhaust(double slow) {
  const double open = pressure_ / kExhaustSeconds;
  const double rate =
      commanded_ <= 0 ? open : std::min(open, (pressure_ - commanded_) / kApproachSeconds);
  pressure_ -= std::max(0.0, rate / slow * kStepSeconds);
  if (commanded_ <= 0 && pressure_ <= kEmpty) pressure_ = 0;
}

void Modulator::Lose(const ModulatorDefect& defect) {
  if (commanded_ > 0) pressure_ -= defect.leak * kStepSeconds;
  pressure_ = std::max({pressure_, defect.residual, 0.0});
}

void Modulator::StepElectric(double target, double supply, const ModulatorDefect& defect) {
  drawn_ = 0;
  const double wanted = defect.dead ? 0 : std::min(target * tolerance_ * defect.weak, supply);
  Command(wanted, defect.slow);
  ChooseValve();
  if (valve_ == Valve::kApply) Apply(supply, defect.slow);
  if (valve_ == Valve::kExhaust) Exhaust(defect.slow);
  if (valve_ == Valve::kHold) pressure_ = std::max(0.0, pressure_ - kHoldLossRate * kStepSeconds);
  Lose(defect);
}

void Modulator::StepPneumatic(double source, const ModulatorDefect& defect,
                              const RedundancyDefect& path) {
  const bool closed = path.blocked || source < kPneumaticOpening;
  commanded_ = closed ? 0 : std::max(0.0, source - predominance_ - path.offset);
  waited_ = 0;
  valve_ = Valve::kHold;
  const double lag = (path.kinked > 0 ? path.kinked : kPneumaticSeconds) * defect.slow;
  const double change = (commanded_ - pressure_) * -std::expm1(-kStepSeconds / lag);
  drawn_ = std::max(0.0, change);
  pressure_ += change;
  if (commanded_ <= 0 && pressure_ <= kEmpty) pressure_ = 0;
  Lose(defect);
}

}  // namespace lorimet::simulator
