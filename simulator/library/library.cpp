#include "simulator/library/library.h"

#include <algorithm>
#include <ctime>
#include <string>
#include <utility>

namespace lorimet::simulator {
namespace {

constexpr double kLongestCatchUp = 2;  // seconds of trailer time that one tick makes up for

std::string ScenarioText(const std::filesystem::path& path) {
  if (path.empty()) return {};
  return ReadWholeFile(path).value_or("");
}

std::string LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#if defined(_WIN32)
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  char text[32] = "";
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &local);
  return text;
}

}  // namespace

Library::Library() : link_(ScenarioText(scenario_path_)) {
  if (!scenario_path_.empty() && !ReadWholeFile(scenario_path_))
    link_.SetScenarioError("the file '" + scenario_path_.string() + "' cannot be read");
  link_.World().scenario = scenario_path_.string();
  if (!state_path_.empty())
    if (const auto state = ReadWholeFile(state_path_)) link_.Restore(*state);
  kept_revision_ = link_.StateRevision();
  link_.SetCalendar(LocalTime);
  link_.SetStatusSink([this](std::int32_t status) { posted_.push_back(status); });
  link_.SetWaiter([this](double seconds) { Wait(seconds); });
  last_tick_ = std::chrono::steady_clock::now();
  last_control_ = last_tick_;
  thread_ = std::thread([this] { Loop(); });
}

Library::~Library() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    channel_.Close();
  }
  wake_.notify_all();
  if (thread_.joinable()) thread_.join();
  const std::lock_guard lock(mutex_);
  KeepState();
}

void Library::SwitchChannel() {
  posted_.clear();
  if (link_.Connected())
    channel_.Open(link_.Handle());
  else
    channel_.Close();
}

void Library::Loop() {
  BlockSignalsOfThisThread();
  std::unique_lock lock(mutex_);
  while (!wake_.wait_for(lock, kTick, [this] { return ending_; }))
    if (!is_driven_) Tick(std::chrono::steady_clock::now());
}

void Library::Advance(double seconds) {
  const std::lock_guard lock(mutex_);
  is_driven_ = true;
  PollControl();
  Pass(seconds);
}

// The caller waits, the trailer does not.
void Library::Wait(double seconds) {
  if (is_driven_) return link_.Advance(seconds);
  if (calling_ == nullptr) return;
  calling_->unlock();
  std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
  calling_->lock();
}

void Library::Tick(TimePoint now) {
  const double seconds = std::chrono::duration<double>(now - last_tick_).count();
  last_tick_ = now;
  if (now - last_control_ >= kControlPeriod) {
    last_control_ = now;
    PollControl();
  }
  Pass(std::min(seconds, kLongestCatchUp));
}

void Library::Pass(double seconds) {
  link_.Advance(seconds);
  for (const std::int32_t status : std::exchange(posted_, {})) channel_.Post(status);
  KeepState();
}

void Library::PollControl() {
  const auto run = [this](const std::string& line) { return Run(line); };
  control_.Poll(run);
  socket_.Poll(run);
  for (const std::string& complaint : link_.TakeComplaints()) control_.Complain(complaint);
}

CommandAnswer Library::Run(const std::string& line) {
  if (line == "report" || line == "report\r") return Report();
  Seen seen = link_.Ask(line);
  return {std::move(seen.value), std::move(seen.error)};
}

CommandAnswer Library::Report() {
  std::string report;
  for (const std::string_view name : kOperationNames)
    report += std::string(name) + " " + std::to_string(link_.Requests(name)) + "\n";
  for (const std::string& request : link_.Log().Lines()) report += request + "\n";
  std::filesystem::path path = ControlPath();
  path += ".report";
  return {{}, ReplaceFile(path, report) ? "" : "the report cannot be written"};
}

void Library::KeepState() {
  const std::uint64_t revision = link_.StateRevision();
  if (state_path_.empty() || revision == kept_revision_) return;
  if (ReplaceFile(state_path_, link_.State())) kept_revision_ = revision;
}

}  // namespace lorimet::simulator
