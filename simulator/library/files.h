// The files of the library: the scenario, the state between two runs, and the control file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace lorimet::simulator {

// The whole file; nothing when it cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);
// Replaces the file as a whole, its folders made when missing. A failure is false and leaves the
// old one.
bool ReplaceFile(const std::filesystem::path& path, const std::string& text);

// LORIMET32_SCENARIO; empty for the default trailer.
std::filesystem::path ScenarioPath();
// LORIMET32_STATE, or simulator.state in norvick-lorimet of the user's state folder; empty for no
// state ("none", or no such folder).
std::filesystem::path StatePath();
// LORIMET32_CONTROL; empty for none.
std::filesystem::path ControlPath();

// Follows a file to which commands are appended, and hands out each whole line once.
class ControlFile {
 public:
  explicit ControlFile(std::filesystem::path path) : path_(std::move(path)) {}

  // run: carries out a line and returns what is wrong with it, or an empty text. The number of
  // lines done goes to PATH.done, complaints are appended to PATH.errors.
  void Poll(const std::function<std::string(const std::string&)>& run);

 private:
  std::filesystem::path path_;
  std::size_t offset_ = 0;
  int lines_ = 0;
};

}  // namespace lorimet::simulator
