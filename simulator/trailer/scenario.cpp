#include "simulator/trailer/scenario.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "simulator/trailer/command.h"
#include "simulator/trailer/commands.h"

namespace lorimet::simulator {
namespace {

std::array<std::span<const CommandRow>, 5> Tables() {
  return {BuildingCommands(), LinkCommands(), EcuCommands(), YardCommands(), TimeCommands()};
}

const CommandRow* FindCommand(std::string_view word) {
  for (const auto& table : Tables())
    for (const CommandRow& row : table)
      if (row.word == word) return &row;
  return nullptr;
}

ParsedCommand ParseLine(std::string_view line) {
  const auto words = SplitWords(line);
  if (words) return ParseCommand(*words);
  ParsedCommand parsed;
  parsed.error = "quotes that do not end";
  return parsed;
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string AtLine(std::size_t index, const std::string& error) {
  return "line " + std::to_string(index + 1) + ": " + error;
}

Seen Run(Simulation& simulation, const ParsedCommand& parsed) {
  if (!parsed.error.empty() || parsed.row == nullptr) return {{}, parsed.error};
  if (parsed.row->look != nullptr) return parsed.row->look(simulation, parsed.words);
  if (parsed.row->run != nullptr) return {{}, parsed.row->run(simulation, parsed.words)};
  return {{}, "'" + std::string(parsed.row->word) + "' can stand only in a scenario file"};
}

// Carries out a command of a scenario file that does not build.
std::string RunInScenario(Simulation& simulation, const ParsedCommand& command) {
  if (!command.error.empty() || command.row == nullptr || command.row->build != nullptr)
    return command.error;
  std::string error = Run(simulation, command).error;
  if (error.empty() && simulation.next_scenario)
    error = "'scenario' cannot stand in a scenario file";
  return error;
}

}  // namespace

ParsedCommand ParseCommand(const CommandWords& words) {
  ParsedCommand parsed;
  if (words.empty()) return parsed;
  const CommandRow* row = FindCommand(words.front());
  if (row == nullptr) {
    parsed.error = "unknown command '" + words.front() + "'";
    return parsed;
  }
  parsed.words.assign(words.begin() + 1, words.end());
  if (parsed.words.size() < row->least || parsed.words.size() > row->most)
    parsed.error = "use: " + std::string(row->word) + " " + std::string(row->usage);
  parsed.row = row;
  return parsed;
}

std::vector<CommandFacts> Commands() {
  std::vector<CommandFacts> facts;
  for (const auto& table : Tables())
    for (const CommandRow& row : table)
      facts.push_back({row.word, row.usage, row.least, row.most, row.build != nullptr});
  return facts;
}

Seen AskCommand(Simulation& simulation, std::string_view line) {
  return Run(simulation, ParseLine(line));
}

std::string RunCommand(Simulation& simulation, std::string_view line) {
  return AskCommand(simulation, line).error;
}

std::string RunCommand(Simulation& simulation, const CommandWords& words) {
  return Run(simulation, ParseCommand(words)).error;
}

void RunDueCommands(Simulation& simulation, std::optional<std::int64_t> connected) {
  if (simulation.schedule.Empty()) return;
  const auto look = [&](const std::string& name) {
    return Look(simulation, SplitWords(name).value_or(Words())).value;
  };
  for (const CommandWords& words : simulation.schedule.Due(connected, look)) {
    const std::string error = RunCommand(simulation, words);
    if (!error.empty()) simulation.complaints.push_back(words.front() + ": " + error);
  }
}

std::unique_ptr<Simulation> DefaultSimulation() {
  auto simulation = std::make_unique<Simulation>(TrailerSetup{});
  simulation->trailer.Begin();
  return simulation;
}

ScenarioResult BuildScenario(std::string_view text) {
  std::vector<ParsedCommand> commands;
  TrailerSetup setup;
  std::size_t decided = 0;  // the line that has told the axles or the sensors last
  for (const std::string_view line : Lines(text)) {
    commands.push_back(ParseLine(line));
    ParsedCommand& command = commands.back();
    if (command.error.empty() && command.row != nullptr && command.row->build != nullptr)
      command.error = command.row->build(setup, command.words);
    if (!command.error.empty()) break;
    if (command.row != nullptr &&
        (command.row->word == "axles" || command.row->word == "configuration"))
      decided = commands.size() - 1;
  }
  if (setup.axles == 1 && FactsOf(setup.system).sensors == 4)
    commands[decided].error = "four sensors need two axles";
  auto simulation = std::make_unique<Simulation>(setup);
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const std::string error = RunInScenario(*simulation, commands[i]);
    if (!error.empty()) return {DefaultSimulation(), AtLine(i, error)};
  }
  simulation->trailer.Begin();
  return {std::move(simulation), {}};
}

}  // namespace lorimet::simulator
