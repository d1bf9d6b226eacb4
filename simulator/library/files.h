// The files of the library: the scenario, the state between two runs, and the control file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace lorimet::simulator {

// The whole file; nothing when it cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);
// Replaces the file as a whole, its folders made when missing. A failure is false and leaves the
// old one.
bool ReplaceFile(const std::filesystem::path& path, const std::string& text);

// A path that the program has given in code page 1252.
std::filesystem::path PathOf(std::string_view code_page);

// LORIMET32_SCENARIO; empty for the default trailer.
std::filesystem::path ScenarioPath();
// LORIMET32_STATE, or simulator.state in norvick-lorimet of the user's state folder; empty for no
// state ("none", or no such folder).
std::filesystem::path StatePath();
// LORIMET32_CONTROL; empty for none.
std::filesystem::path ControlPath();
// The socket beside it; empty for none.
std::filesystem::path ControlSocketPath();

// The answer to one command.
struct CommandAnswer {
  std::string value;  // what it tells
  std::string error;  // empty, or what is wrong
};
// "3 ok", "3 ok 112.4" or "3 unknown command 'fly'".
std::string AnswerLine(int number, const CommandAnswer& answer);

// Follows a file to which commands are appended, and hands out each whole line once.
class ControlFile {
 public:
  explicit ControlFile(std::filesystem::path path) : path_(std::move(path)) {}

  // run: carries out a line. Each is answered by a line in PATH.answers, complaints go to
  // PATH.errors too, and the number of lines done to PATH.done.
  void Poll(const std::function<CommandAnswer(const std::string&)>& run);
  // A complaint that no line of the file has just brought.
  void Complain(const std::string& complaint);

 private:
  void Append(const char* ending, const std::string& lines);

  std::filesystem::path path_;
  std::size_t offset_ = 0;
  int lines_ = 0;
};

}  // namespace lorimet::simulator
