// The rows of the command language, by subject, and how their words are read.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/trailer/command.h"
#include "simulator/trailer/observation.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

using Words = std::vector<std::string>;  // a command's arguments

// One command. Just one of the three functions is there.
struct CommandRow {
  std::string_view word;
  std::size_t least;  // arguments
  std::size_t most;
  std::string_view usage;
  std::string (*build)(TrailerSetup&, const Words&) = nullptr;  // in scenario files only
  std::string (*run)(Simulation&, const Words&) = nullptr;
  Seen (*look)(const Simulation&, const Words&) = nullptr;
};

constexpr std::size_t kManyWords = 1000;

std::span<const CommandRow> BuildingCommands();
std::span<const CommandRow> LinkCommands();
std::span<const CommandRow> EcuCommands();
std::span<const CommandRow> YardCommands();
std::span<const CommandRow> TimeCommands();

// The row of a command and whether its words fit in number; an error otherwise.
struct ParsedCommand {
  const CommandRow* row = nullptr;  // null for an empty line
  Words words;
  std::string error;
};
ParsedCommand ParseCommand(const CommandWords& words);

inline std::string BadValue(const std::string& word) {
  return "'" + word + "' is not a valid value";
}

// Reads a number in a range into `target`; the error otherwise.
template <typename Number>
std::string ReadNumber(const std::string& word, double low, double high, Number& target) {
  const auto number = ParseNumber(word);
  if (!number || !(*number >= low && *number <= high)) return BadValue(word);
  const auto value = static_cast<Number>(*number);
  if (static_cast<double>(value) != *number) return BadValue(word);
  target = value;
  return {};
}

struct Choice {
  std::string_view word;
  int value;
};

inline std::optional<int> Choose(const std::string& word, std::initializer_list<Choice> choices) {
  for (const Choice& choice : choices)
    if (choice.word == word) return choice.value;
  return std::nullopt;
}

// "on" or "off".
inline std::optional<int> ChooseSwitch(const std::string& word) {
  return Choose(word, {{"off", 0}, {"on", 1}});
}

}  // namespace lorimet::simulator
