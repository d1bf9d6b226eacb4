// What the bench offers ready-made: trailers, defects and failures in words, and every word of the
// command language for the rest.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::bench {

// A thing to choose, with the command that does it.
struct Ready {
  std::string label;  // an English text, the key of its translation
  std::string command;

  bool operator==(const Ready&) const = default;
};

// The scenario files of the first folder that has any, healthy ones first. A file that the bench
// knows has its label, another one its name.
std::vector<Ready> ReadyTrailers(const std::vector<std::filesystem::path>& folders);
const std::vector<Ready>& ReadyDefects();
// What a defect is, whatever its options say, in an English text that is the key of its
// translation; the name itself where it is not known.
std::string WordsOfDefect(std::string_view name);
// Those in words, then every failure mode of the link by its name.
const std::vector<Ready>& ReadyFailures();

// Everything that can begin a command line, in alphabetical order: commands, what `get` tells,
// defects, and failure modes.
std::vector<std::string> Completions();
// How a line that begins so goes on, such as "spin 1..6|c|d|e|f|all MPH"; empty when it is no
// command that the living trailer takes.
std::string UsageOf(std::string_view line);

}  // namespace lorimet::bench
