// Looking at the simulation, and commands that wait.
#include <algorithm>
#include <cmath>

#include "simulator/trailer/commands.h"

namespace lorimet::simulator {
namespace {

// The command behind the first `used` words; the error when it is none that can wait.
std::string TakeCommand(const Words& words, std::size_t used, CommandWords& command) {
  command.assign(words.begin() + static_cast<std::ptrdiff_t>(used), words.end());
  const ParsedCommand parsed = ParseCommand(command);
  if (!parsed.error.empty()) return parsed.error;
  if (parsed.row == nullptr) return "no command to wait";
  if (parsed.row->run == nullptr) return "'" + command.front() + "' cannot wait";
  return {};
}

std::string RunAt(Simulation& s, const Words& words) {
  double seconds = 0;
  CommandWords command;
  std::string error = ReadNumber(words[0], 0, 1e6, seconds);
  if (error.empty()) error = TakeCommand(words, 1, command);
  if (error.empty()) s.schedule.At(std::llround(seconds * 1e6), command);
  return error;
}

std::string RunAfter(Simulation& s, const Words& words) {
  double seconds = 0;
  CommandWords command;
  std::string error = ReadNumber(words[0], 0, 1e6, seconds);
  if (error.empty()) error = TakeCommand(words, 1, command);
  if (error.empty()) s.schedule.After(StepsIn(seconds), command);
  return error;
}

std::string RunWhenRequested(Simulation& s, const Words& words) {
  RequestFilter filter;
  std::size_t used = 1;
  for (; used < words.size(); ++used) {
    const std::size_t equals = words[used].find('=');
    if (equals == std::string::npos) break;
    const auto error =
        ReadFilter(words[used].substr(0, equals), words[used].substr(equals + 1), filter);
    if (!error) return BadValue(words[used]);
    if (!error->empty()) return *error;
  }
  CommandWords command;
  std::string error = TakeCommand(words, used, command);
  if (error.empty()) s.schedule.WhenRequested(filter, command);
  return error;
}

std::string RunWhen(Simulation& s, const Words& words) {
  if (words[0] == "request") return RunWhenRequested(s, words);
  const auto is_compare = [](const std::string& word) {
    return Choose(word, {{"=", 0}, {"!=", 0}, {"<", 0}, {"<=", 0}, {">", 0}, {">=", 0}})
        .has_value();
  };
  const auto compare = std::find_if(words.begin(), words.end(), is_compare);
  if (words.end() - compare < 3 || compare == words.begin())
    return "'when' needs a name, a comparison, a value and a command";
  const Words looked(words.begin(), compare);
  Condition condition{{}, *compare, *(compare + 1)};
  for (const std::string& word : looked)
    condition.name += (condition.name.empty() ? "" : " ") + word;
  const Seen seen = Look(s, looked);
  if (!seen.error.empty()) return seen.error;
  CommandWords command;
  const auto used = static_cast<std::size_t>(compare - words.begin()) + 2;
  std::string error = TakeCommand(words, used, command);
  if (error.empty()) s.schedule.When(condition, command);
  return error;
}

std::string RunCancel(Simulation& s, const Words& words) {
  if (words[0] != "all") return BadValue(words[0]);
  s.schedule.Clear();
  return {};
}

std::string RunLog(Simulation& s, const Words& words) {
  const auto choice = Choose(words[0], {{"off", 0}, {"on", 1}, {"clear", 2}});
  if (!choice) return BadValue(words[0]);
  if (*choice == 2)
    s.log.Clear();
  else
    s.log.Keep(*choice == 1);
  return {};
}

std::string RunScenario(Simulation& s, const Words& words) {
  s.next_scenario = words[0];
  return {};
}

constexpr CommandRow kRows[] = {
    {"get", 1, 4, "NAME", nullptr, nullptr, Look},
    {"at", 2, kManyWords, "SECONDS COMMAND", nullptr, RunAt},
    {"after", 2, kManyWords, "SECONDS COMMAND", nullptr, RunAfter},
    {"when", 2, kManyWords,
     "NAME =|!=|<|<=|>|>= VALUE COMMAND, or request [operation=NAME] [routine=ID] ... COMMAND",
     nullptr, RunWhen},
    {"cancel", 1, 1, "all", nullptr, RunCancel},
    {"log", 1, 1, "on|off|clear", nullptr, RunLog},
    {"scenario", 1, 1, "FILE", nullptr, RunScenario},
};

}  // namespace

std::span<const CommandRow> TimeCommands() { return kRows; }

}  // namespace lorimet::simulator
