#include "simulator/library/link.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/library/error_texts.h"
#include "simulator/library/files.h"
#include "simulator/trailer/persistence.h"
#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {
namespace {

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

Seen Link::Ask(std::string_view line) {
  Seen seen = AskCommand(*simulation_, line);
  if (seen.error.empty() && simulation_->next_scenario) {
    const auto text = ReadWholeFile(*simulation_->next_scenario);
    if (!text) seen.error = "the file '" + *simulation_->next_scenario + "' cannot be read";
    if (text) seen.error = BuildScenario(*text).error;
    if (seen.error.empty())
      TakeNextScenario();
    else
      simulation_->next_scenario.reset();
  }
  return seen;
}

std::vector<std::string> Link::TakeComplaints() {
  return std::exchange(simulation_->complaints, {});
}

// Pulls the plug and plugs into another trailer, whose file stands in this one's orders.
void Link::TakeNextScenario() {
  if (!simulation_->next_scenario) return;
  const std::string file = *std::exchange(simulation_->next_scenario, std::nullopt);
  const auto text = ReadWholeFile(file);
  ScenarioResult built = BuildScenario(text.value_or(""));
  if (!text || !built.error.empty()) {
    simulation_->complaints.push_back("scenario: " +
                                      (text ? built.error : "'" + file + "' cannot be read"));
    return;
  }
  built.simulation->log = simulation_->log;
  built.simulation->time = simulation_->time;
  built.simulation->scenario = file;
  built.simulation->connected = simulation_->connected;
  built.simulation->bus = simulation_->bus;
  built.simulation->recording = simulation_->recording;
  scenario_ = *text;
  EndTransfers();
  simulation_ = std::move(built.simulation);
  writer_.Follow(*simulation_);
  fault_locked_ = false;
  vehicle_due_ = false;
}

bool Link::Reachable() const {
  return simulation_->adapter.present && !simulation_->failures.Armed(FailureMode::kCableOut) &&
         simulation_->trailer.Answering();
}

void Link::Post(std::int32_t status) {
  if (sink_) sink_(status);
}

void Link::Advance(double seconds) {
  carried_ += Microseconds(seconds);
  while (carried_ >= kStepMicroseconds) {
    carried_ -= kStepMicroseconds;
    Step();
  }
}

void Link::Step() {
  simulation_->time += kStepMicroseconds;
  simulation_->failures.Step();
  simulation_->trailer.Step();
  StepBus();
  if (Connected()) {
    connected_for_ += kStepMicroseconds;
    StepReading();
    StepVehicle();
    StepStaticRead();
    StepTransfers();
    StepStatuses();
  }
  RunDueCommands(*simulation_, Connected() ? std::optional(connected_for_) : std::nullopt);
  TakeNextScenario();
}

// The bus runs whether or not anybody listens; the library hears what the adapter does.
void Link::StepBus() {
  Bus& bus = simulation_->bus;
  const Trailer& trailer = simulation_->trailer;
  const std::int64_t step = simulation_->time / kStepMicroseconds;
  simulation_->senders.Step(step, trailer, bus);
  bus.Step(step * kBitsPerStep, trailer.Measuring());
  const bool hears = Connected() && simulation_->adapter.present &&
                     !simulation_->failures.Armed(FailureMode::kCableOut);
  if (!hears) return;
  for (const BusMessage& message : bus.Heard()) {
    if (!monitor_.Add(message)) LoseMessage();
    log_.Add(message);
  }
  log_.Write();
  simulation_->monitored = monitor_.Size();
}

// One lost message is told a second, and stands for a while.
void Link::LoseMessage() {
  if (until_lost_ <= 0) {
    Post(kStatusLostMessage);
    until_lost_ = Microseconds(kSilenceSeconds);
  }
  until_healthy_ = Microseconds(kHealthySeconds);
}

void Link::StepReading() {
  silence_ += kStepMicroseconds;
  until_reading_ -= kStepMicroseconds;
  if (until_reading_ > 0) return;
  const bool transfers = upload_.Runs() || export_.Runs();
  until_reading_ += Microseconds(transfers ? kTransferReadingSeconds : kReadingSeconds);
  if (simulation_->failures.Strike(FailureMode::kCableOut)) return;
  if (Reachable()) Read();
}

void Link::Read() {
  silence_ = 0;
  simulation_->trailer.Diagnosis().NoteReading();
  const bool hit = ExchangeReading();
  if (simulation_->failures.Strike(FailureMode::kLostMessage) || hit) return LoseMessage();
  writer_.WriteLive(simulation_->trailer.Read());
  if (upload_.Runs()) writer_.WriteBytesRemaining(upload_.Remaining());
  if (attained_ || simulation_->failures.Strike(FailureMode::kLinkNotAttained)) return;
  attained_ = true;
  if (link_status_ != nullptr) link_status_->bLinkAttained.Store(1);
}

// The library's own reading on the bus; true when the noise hits it.
bool Link::ExchangeReading() {
  Bus& bus = simulation_->bus;
  const Trailer& trailer = simulation_->trailer;
  const auto psi = [](double pressure) {
    return static_cast<std::uint8_t>(std::clamp(pressure, 0.0, 255.0));
  };
  const bool asked_well =
      !bus.Send(MakeMessage(8, {kDiagnosticTool, kDataLinkEscape, kTrailerBrakes, 0x21, 0x01}),
                trailer.Measuring());
  const bool told_well =
      !bus.Send(MakeMessage(8, {kTrailerBrakes, kDataLinkEscape, kDiagnosticTool, 0x61, 0x01,
                                psi(trailer.Supply().Pressure()), psi(trailer.Line().Pressure())}),
                trailer.Measuring());
  return !asked_well || !told_well;
}

// The library tells the vehicle anew when the ECU has been back for a while.
void Link::StepVehicle() {
  if (simulation_->trailer.Restarting()) {
    vehicle_due_ = true;
    until_vehicle_ = Microseconds(kRepublishSeconds);
    return;
  }
  if (!vehicle_due_ || !static_known_) return;
  until_vehicle_ -= kStepMicroseconds;
  if (until_vehicle_ > 0 || !Reachable()) return;
  vehicle_due_ = false;
  writer_.WriteVehicle();
}

void Link::StepStatuses() {
  for (const std::int32_t status : std::exchange(simulation_->statuses, {})) Post(status);
  until_lost_ -= kStepMicroseconds;
  forgiven_ -= kStepMicroseconds;
  if (silence_ >= Microseconds(kSilenceSeconds)) {
    until_healthy_ = 0;
    until_link_error_ -= kStepMicroseconds;
    if (until_link_error_ > 0 || forgiven_ > 0) return;
    until_link_error_ = Microseconds(kSilenceSeconds);
    Post(kStatusLinkError);
    return;
  }
  until_healthy_ -= kStepMicroseconds;
  if (silence_ > 0) return;
  until_link_error_ = 0;
  if (until_healthy_ > 0) return;
  until_healthy_ = Microseconds(kHealthySeconds);
  Post(kStatusHealthy);
}

void Link::StepStaticRead() {
  if (!reading_job_) return;
  if (Reachable()) {
    job_left_ -= kStepMicroseconds;
    job_gives_up_in_ = Microseconds(kStaticGiveUpSeconds);
  } else {
    job_gives_up_in_ -= kStepMicroseconds;
  }
  if (simulation_->failures.Armed(FailureMode::kStaticReadNeverEnds)) return;
  if (job_left_ > 0 && job_gives_up_in_ > 0) return;
  reading_job_ = false;
  if (job_left_ <= 0) {
    writer_.WriteStatic();
    static_known_ = true;
  }
  writer_.WriteJobDone(1);
}

// A static read that the failure has held for ever counts as one strike when it is given up.
void Link::EndStuckRead() {
  if (reading_job_ && job_left_ <= 0)
    simulation_->failures.Strike(FailureMode::kStaticReadNeverEnds);
  reading_job_ = false;
}

}  // namespace lorimet::simulator
