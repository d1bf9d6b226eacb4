#include "simulator/library/link.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/library/error_texts.h"
#include "simulator/trailer/persistence.h"

namespace lorimet::simulator {
namespace {

constexpr std::int64_t kStep = 10000;  // microseconds

std::int64_t Microseconds(double seconds) { return std::llround(seconds * 1e6); }

}  // namespace

Link::Link(std::string_view scenario, StatusSink sink)
    : Link(scenario, BuildScenario(scenario), std::move(sink)) {}

Link::Link(std::string_view scenario, ScenarioResult built, StatusSink sink)
    : scenario_(scenario),
      scenario_error_(std::move(built.error)),
      simulation_(std::move(built.simulation)),
      sink_(std::move(sink)),
      writer_(*simulation_) {}

bool Link::Restore(std::string_view state) {
  return RestoreState(simulation_->trailer, scenario_, state);
}

std::string Link::State() const { return SaveState(simulation_->trailer, scenario_); }

bool Link::Reachable() const {
  return !simulation_->failures.Armed(FailureMode::kCableOut) && simulation_->trailer.Answering();
}

void Link::Post(std::int32_t status) {
  if (sink_) sink_(status);
}

void Link::Advance(double seconds) {
  std::int64_t left = Microseconds(seconds);
  while (left > 0) {
    const std::int64_t step = std::min(left, kStep);
    Step(step);
    left -= step;
  }
}

void Link::Step(std::int64_t microseconds) {
  const double seconds = static_cast<double>(microseconds) / 1e6;
  Trailer& trailer = simulation_->trailer;
  trailer.Advance(seconds);
  if (!connected_) return;
  bus_.Advance(seconds, Reachable(), trailer.Brake().Demand(), trailer.Supply().Pressure());
  silence_ += microseconds;
  until_reading_ -= microseconds;
  if (until_reading_ <= 0) {
    until_reading_ += Microseconds(kReadingSeconds);
    if (Reachable()) Read();
  }
  StepStaticRead(microseconds);
  StepStatuses(microseconds);
}

void Link::Read() {
  silence_ = 0;
  if (simulation_->failures.Strike(FailureMode::kLostMessage)) {
    Post(kStatusLostMessage);
    until_healthy_ = Microseconds(kHealthySeconds);
    return;
  }
  writer_.WriteLive();
  if (attained_ || simulation_->failures.Armed(FailureMode::kLinkNotAttained)) return;
  attained_ = true;
  if (link_status_ != nullptr) link_status_->bLinkAttained.Store(1);
}

void Link::StepStatuses(std::int64_t microseconds) {
  for (const std::int32_t status : std::exchange(simulation_->statuses, {})) Post(status);
  if (silence_ >= Microseconds(kSilenceSeconds)) {
    until_healthy_ = 0;
    until_link_error_ -= microseconds;
    if (until_link_error_ > 0) return;
    until_link_error_ = Microseconds(kSilenceSeconds);
    Post(kStatusLinkError);
    return;
  }
  if (silence_ > 0) {
    until_healthy_ -= microseconds;
    return;
  }
  until_link_error_ = 0;
  until_healthy_ -= microseconds;
  if (until_healthy_ > 0) return;
  until_healthy_ = Microseconds(kHealthySeconds);
  Post(kStatusHealthy);
}

void Link::StepStaticRead(std::int64_t microseconds) {
  if (!reading_job_) return;
  if (Reachable()) {
    job_left_ -= microseconds;
    job_gives_up_in_ = Microseconds(kStaticGiveUpSeconds);
  } else {
    job_gives_up_in_ -= microseconds;
  }
  if (simulation_->failures.Armed(FailureMode::kStaticReadNeverEnds)) return;
  if (job_left_ > 0 && job_gives_up_in_ > 0) return;
  reading_job_ = false;
  if (job_left_ <= 0) writer_.WriteStatic();
  writer_.WriteJobDone(-1);
}

}  // namespace lorimet::simulator
