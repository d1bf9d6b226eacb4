#include "simulator/library/eeprom_upload.h"

#include <algorithm>
#include <cmath>

#include "simulator/trailer/memory_image.h"

namespace lorimet::simulator {

Status EepromUpload::Begin(const Simulation& simulation, std::string_view path) {
  if (Runs()) return kBusy;
  if (!file_.Open(path)) return kOutOfRange;
  state_ = State::kFetching;
  outage_.Forget();
  remaining_ = simulation.upload.size;
  position_ = remaining_;
  const auto& restarts = simulation.upload.restart_at;
  next_restart_ = static_cast<std::size_t>(
      std::ranges::count_if(restarts, [&](int bytes) { return bytes >= remaining_; }));
  climbing_ = has_climbed_ = false;
  return kDone;
}

Status EepromUpload::Resume() {
  if (state_ != State::kWaiting) return kConditionsNotCorrect;
  state_ = State::kFetching;
  return kDone;
}

void EepromUpload::Abort() {
  state_ = State::kNone;
  file_.Drop();
}

EepromUpload::Sign EepromUpload::Step(const Simulation& simulation, bool reachable) {
  if (!Runs()) return Sign::kNone;
  const LinkOutage::Turn turn = outage_.Step(reachable);
  if (turn == LinkOutage::Turn::kLost) {
    Abort();
    return Sign::kEnded;
  }
  if (turn == LinkOutage::Turn::kBack) {
    state_ = State::kWaiting;
    return Sign::kResumeWanted;
  }
  if (!reachable || state_ != State::kFetching) return Sign::kNone;
  return Fetch(simulation);
}

void EepromUpload::Move(const UploadPlan& plan) {
  const double step = kBytesPerSecond * kStepSeconds;
  if (climbing_) {
    position_ = std::min<double>(position_ + step, plan.size);
    climbing_ = position_ < plan.size;
  } else {
    position_ = std::max(0.0, position_ - step);
  }
}

EepromUpload::Sign EepromUpload::Fetch(const Simulation& simulation) {
  const UploadPlan& plan = simulation.upload;
  const bool stalls = plan.stall_at && remaining_ <= *plan.stall_at;
  if (stalls && !climbing_) return Sign::kNone;
  Move(plan);
  // A number that the plan names is told as it is.
  const auto stop_at = [&](int bytes) {
    position_ = std::max<double>(position_, std::min(bytes, plan.size));
  };
  if (plan.stall_at) stop_at(*plan.stall_at);
  if (plan.backwards_at && !has_climbed_ && position_ <= *plan.backwards_at) {
    stop_at(*plan.backwards_at);
    climbing_ = has_climbed_ = true;
  }
  const bool restarts = !climbing_ && next_restart_ < plan.restart_at.size() &&
                        position_ <= plan.restart_at[next_restart_];
  if (restarts) stop_at(plan.restart_at[next_restart_]);
  // Not 0 before the file is in its place.
  remaining_ = std::max(1, static_cast<int>(std::ceil(position_)));
  if (restarts) {
    ++next_restart_;
    state_ = State::kWaiting;
    return Sign::kResumeWanted;
  }
  return position_ > 0 ? Sign::kNone : Finish(simulation);
}

EepromUpload::Sign EepromUpload::Finish(const Simulation& simulation) {
  const auto size = static_cast<std::size_t>(simulation.upload.size);
  const bool done =
      file_.Finish(MemoryFileText("eeprom", {{"eeprom", EepromImage(simulation.trailer, size)}}));
  if (done) remaining_ = 0;
  state_ = State::kNone;
  return Sign::kEnded;
}

}  // namespace lorimet::simulator
