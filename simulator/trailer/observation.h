// What can be seen of the simulation, by name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

struct Seen {
  std::string value;
  std::string error;  // empty, or what is wrong with the name
};
// words: the name with its arguments, such as {"wheel", "3", "brake"}. Pressures in psi, speeds in
// mph, distances in km, times in seconds.
Seen Look(const Simulation& simulation, const std::vector<std::string>& words);

struct SeenFacts {
  std::string_view name;
  std::string_view usage;  // its arguments
};
std::vector<SeenFacts> SeenTable();

}  // namespace lorimet::simulator
