// The link, its failures, and the record.
#include "simulator/trailer/commands.h"

#include <algorithm>
#include <limits>

namespace lorimet::simulator {
namespace {

std::string RunClientId(Simulation& s, const Words& words) {
  return ReadNumber(words[0], 0, 127, s.client_id);
}

std::string RunAdapter(Simulation& s, const Words& words) {
  if (words.size() == 1) {
    const auto on = ChooseSwitch(words[0]);
    if (!on) return BadValue(words[0]);
    s.adapter.present = *on != 0;
    return {};
  }
  if (words[0] == "vendor")
    s.adapter.vendor = words[1];
  else if (words[0] == "protocol")
    s.adapter.protocol = words[1];
  else if (words[0] == "device")
    return ReadNumber(words[1], -32768, 32767, s.adapter.device.emplace());
  else
    return BadValue(words[0]);
  return {};
}

std::string RunAnswer(Simulation& s, const Words& words) {
  if (words[0] == "vendor")
    s.answered_vendor = words[1];
  else if (words[0] == "protocol")
    s.answered_protocol = words[1];
  else
    return BadValue(words[0]);
  return {};
}

std::string RunCable(Simulation& s, const Words& words) {
  const auto out = Choose(words[0], {{"in", 0}, {"out", 1}});
  if (!out) return BadValue(words[0]);
  s.failures.Heal(FailureMode::kCableOut);
  if (*out != 0) s.failures.Arm({.mode = FailureMode::kCableOut});
  return {};
}

std::string RunPost(Simulation& s, const Words& words) {
  std::int32_t status = 0;
  std::string error = ReadNumber(words[0], std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max(), status);
  if (error.empty()) s.statuses.push_back(status);
  return error;
}

std::string ReadTimes(const std::string& value, int& times) {
  if (value == "always") {
    times = kAlways;
    return {};
  }
  return value == "once" ? ReadNumber("1", 1, 1, times) : ReadNumber(value, 1, 1e6, times);
}

std::string ReadFor(const std::string& value, int& steps) {
  double seconds = 0;
  std::string error = ReadNumber(value, 0.01, 1e6, seconds);
  if (error.empty()) steps = StepsIn(seconds);
  return error;
}

// One "key=value" of a failure.
std::string ReadFailureOption(const std::string& word, Failure& failure) {
  const std::size_t equals = word.find('=');
  if (equals == std::string::npos) return BadValue(word);
  const std::string key = word.substr(0, equals);
  const std::string value = word.substr(equals + 1);
  if (const auto filtered = ReadFilter(key, value, failure.only)) return *filtered;
  if (key == "value") return ReadNumber(value, -1e12, 1e12, failure.value);
  if (key == "times") return ReadTimes(value, failure.times);
  if (key == "skip") return ReadNumber(value, 0, 1e6, failure.skip);
  if (key == "for") return ReadFor(value, failure.steps);
  return BadValue(word);
}

std::string RunFailure(Simulation& s, const Words& words) {
  const FailureFacts* facts = FindFailure(words[0]);
  if (facts == nullptr) return "no failure '" + words[0] + "'";
  Failure failure{.mode = facts->mode};
  for (std::size_t i = 1; i < words.size(); ++i) {
    std::string error = ReadFailureOption(words[i], failure);
    if (!error.empty()) return error;
  }
  s.failures.Arm(failure);
  return {};
}

std::string RunHeal(Simulation& s, const Words& words) {
  if (words[0] == "all") {
    s.failures.HealAll();
    return {};
  }
  const FailureFacts* facts = FindFailure(words[0]);
  if (facts == nullptr) return "no failure '" + words[0] + "'";
  s.failures.Heal(facts->mode);
  return {};
}

std::string RunField(Simulation& s, const Words& words) { return s.fields.Set(words[0], words[1]); }

std::string RunRelease(Simulation& s, const Words& words) {
  if (words[0] != "all") return s.fields.Release(words[0]);
  s.fields.ReleaseAll();
  return {};
}

std::string RunBus(Simulation& s, const Words& words) {
  if (words[0] == "flood") {
    const auto on = words.size() == 1 ? 1 : ChooseSwitch(words[1]);
    if (!on) return BadValue(words[1]);
    s.bus.SetFlood(*on != 0);
    return {};
  }
  if (words[0] != "noise" || words.size() != 2) return BadValue(words.back());
  double share = 0;
  std::string error = ReadNumber(words[1], 0, 1, share);
  if (!error.empty()) return error;
  s.bus.SetNoise(share);
  s.trailer.SetBusNoise(share);
  return {};
}

std::string RunBusLoad(Simulation& s, const Words& words) {
  const auto full = Choose(words[0], {{"normal", 0}, {"full", 1}});
  if (!full) return BadValue(words[0]);
  s.bus.SetFull(*full != 0);
  return {};
}

std::string RunRecord(Simulation& s, const Words& words) {
  if (words[0] != "renames" || words.size() == 2) return BadValue(words.back());
  s.recording_renamed.reset();
  if (words.size() == 3) s.recording_renamed.emplace(words[1], words[2]);
  return {};
}

// Restarts are asked for from the highest number of bytes on; "none" never asks.
std::string ReadRestarts(const Words& words, std::vector<int>& restarts) {
  std::vector<int> numbers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (words[i] == "none" && words.size() == 2) break;
    std::string error = ReadNumber(words[i], 1, 1e6, numbers.emplace_back());
    if (!error.empty()) return error;
  }
  std::sort(numbers.rbegin(), numbers.rend());
  restarts = numbers;
  return {};
}

std::string RunTransfer(Simulation& s, const Words& words) {
  UploadPlan plan = s.upload;
  std::string error;
  if (words[0] == "well" && words.size() == 1)
    plan = {};
  else if (words.size() == 1)
    return BadValue(words[0]);
  else if (words[0] == "restart_at")
    error = ReadRestarts(words, plan.restart_at);
  else if (words.size() > 2)
    return BadValue(words[2]);
  else if (words[0] == "size")
    error = ReadNumber(words[1], 1, 1e6, plan.size);
  else if (words[0] == "stall_at")
    error = ReadNumber(words[1], 1, 1e6, plan.stall_at.emplace());
  else if (words[0] == "backwards_at")
    error = ReadNumber(words[1], 1, 1e6, plan.backwards_at.emplace());
  else
    error = BadValue(words[0]);
  if (error.empty()) s.upload = plan;
  return error;
}

std::string RunExport(Simulation& s, const Words& words) {
  ExportPlan plan = s.exporting;
  std::string error;
  if (words.size() == 1 && words[0] == "well")
    plan = {};
  else if (words.size() == 1 && words[0] == "no_end")
    plan.no_end = true;
  else if (words.size() == 1)
    return BadValue(words[0]);
  else if (words[0] == "stall_step")
    error = ReadNumber(words[1], 1, 9, plan.stall_step.emplace());
  else if (words[0] == "end_at")
    error = ReadNumber(words[1], 1, 9, plan.end_at.emplace());
  else if (words[0] == "speed")
    error = ReadNumber(words[1], 0.01, 1000, plan.speed);
  else if (words[0] == "renames")
    plan.renames = words[1];
  else
    error = BadValue(words[0]);
  if (error.empty()) s.exporting = plan;
  return error;
}

constexpr CommandRow kRows[] = {
    {"client_id", 1, 1, "0..127", nullptr, RunClientId},
    {"adapter", 1, 2, "on|off|vendor VALUE|protocol VALUE|device VALUE", nullptr, RunAdapter},
    {"answer", 2, 2, "vendor|protocol TEXT", nullptr, RunAnswer},
    {"cable", 1, 1, "in|out", nullptr, RunCable},
    {"post", 1, 1, "STATUS", nullptr, RunPost},
    {"failure", 1, 12,
     "NAME [operation=NAME] [block=NAME|ID] [routine=ID] [channel=N] [mode=N] [address=ADDRESS] "
     "[value=NUMBER] [times=N|once|always] [skip=N] [for=SECONDS]",
     nullptr, RunFailure},
    {"heal", 1, 1, "NAME|all", nullptr, RunHeal},
    {"bus", 1, 2, "noise SHARE|flood [on|off]", nullptr, RunBus},
    {"bus_load", 1, 1, "normal|full", nullptr, RunBusLoad},
    {"record", 1, 3, "renames [FILE COMMENTS]", nullptr, RunRecord},
    {"field", 2, 2, "NAME[(INDEX)] VALUE|none", nullptr, RunField},
    {"transfer", 1, 20, "size|stall_at|backwards_at BYTES, restart_at BYTES...|none, well", nullptr,
     RunTransfer},
    {"export", 1, 2, "stall_step|end_at STEP, speed FACTOR, no_end, renames TEXT, well", nullptr,
     RunExport},
    {"release", 1, 1, "NAME[(INDEX)]|all", nullptr, RunRelease},
};

}  // namespace

std::span<const CommandRow> LinkCommands() { return kRows; }

}  // namespace lorimet::simulator
