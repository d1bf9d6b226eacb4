// The command language of scenario files and of the control file, and a trailer made from it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/trailer/observation.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

// A command's word, how it is used, how many arguments it takes, and whether it builds the trailer
// and so can stand only in a scenario file.
struct CommandFacts {
  std::string_view word;
  std::string_view usage;
  std::size_t least;
  std::size_t most;
  bool builds;
};
std::vector<CommandFacts> Commands();

// Carries out one line on a living trailer: what it tells, or what is wrong with it.
Seen AskCommand(Simulation& simulation, std::string_view line);
// The result is empty, or says what is wrong.
std::string RunCommand(Simulation& simulation, std::string_view line);
std::string RunCommand(Simulation& simulation, const CommandWords& words);

// One step of the commands that wait. connected: microseconds since the connection, nothing
// without one. What is wrong with one goes to the simulation's complaints.
void RunDueCommands(Simulation& simulation, std::optional<std::int64_t> connected);

// A healthy 4S/2M trailer with air suspension and no faults.
std::unique_ptr<Simulation> DefaultSimulation();

struct ScenarioResult {
  std::unique_ptr<Simulation> simulation;  // the default one when there is an error
  std::string error;                       // empty, or "line 3: ..."
};
// Builds the trailer of a scenario file's text: its building commands first, then the others in
// their order.
ScenarioResult BuildScenario(std::string_view text);

}  // namespace lorimet::simulator
