#include "simulator/library/recorder_export.h"

#include "simulator/trailer/memory_image.h"

namespace lorimet::simulator {
namespace {

const RecorderSection& SectionOf(int step) {
  return RecorderSections()[static_cast<std::size_t>(step - 1)];
}

const int kSteps = static_cast<int>(RecorderSections().size());

}  // namespace

Status RecorderExport::Begin(std::string_view path) {
  if (Runs()) return kBusy;
  if (!file_.Open(path)) return kOutOfRange;
  state_ = State::kWaiting;
  outage_.Forget();
  sections_.clear();
  step_ = 1;
  return kDone;
}

Status RecorderExport::Fetch(std::uint8_t step, std::uint8_t code) {
  if (code != kBlockCode) return kSubfunctionNotSupported;
  if (state_ != State::kWaiting || step != step_) return kOutOfRange;
  state_ = State::kFetching;
  fetched_for_ = 0;
  return kDone;
}

void RecorderExport::Abort() {
  state_ = State::kNone;
  file_.Drop();
}

RecorderExport::Sign RecorderExport::Step(const Simulation& simulation, bool reachable) {
  if (!Runs()) return Sign::kNone;
  const LinkOutage::Turn turn = outage_.Step(reachable);
  if (turn == LinkOutage::Turn::kLost) {
    Abort();
    return Sign::kNone;
  }
  if (!reachable || state_ != State::kFetching) return Sign::kNone;
  // What the outage has cut off begins anew.
  if (turn == LinkOutage::Turn::kBack) fetched_for_ = 0;
  const double seconds = SectionOf(step_).seconds / simulation.exporting.speed;
  if (++fetched_for_ < StepsIn(seconds)) return Sign::kNone;
  return FinishBlock(simulation);
}

RecorderExport::Sign RecorderExport::FinishBlock(const Simulation& simulation) {
  const ExportPlan& plan = simulation.exporting;
  if (plan.stall_step == step_) {
    state_ = State::kStuck;
    return Sign::kNone;
  }
  sections_.push_back({SectionOf(step_).name, SectionOf(step_).bytes(simulation.trailer)});
  if (plan.end_at == step_) {
    Abort();
    return Sign::kEnded;
  }
  if (step_ == kSteps) return Finish(simulation);
  ++step_;
  state_ = State::kWaiting;
  return Sign::kStep;
}

RecorderExport::Sign RecorderExport::Finish(const Simulation& simulation) {
  const bool told = !simulation.exporting.no_end && file_.Finish(MemoryFileText("odr", sections_));
  state_ = told ? State::kNone : State::kStuck;
  return told ? Sign::kEnded : Sign::kNone;
}

}  // namespace lorimet::simulator
