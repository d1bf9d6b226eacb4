#include "simulator/library/files.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace lorimet::simulator {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::filesystem::path With(std::filesystem::path path, const char* ending) {
  path += ending;
  return path;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (file.bad()) return std::nullopt;
  return text;
}

std::filesystem::path PathOf(std::string_view code_page) {
  // The codes from 0x80 on that Latin-1 does not have; 0 is none.
  constexpr char16_t kOwn[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  std::u16string text;
  for (const char c : code_page) {
    const auto code = static_cast<unsigned char>(c);
    text +=
        code >= 0x80 && code < 0xA0 && kOwn[code - 0x80] != 0 ? kOwn[code - 0x80] : char16_t{code};
  }
  return text;
}

bool ReplaceFile(const std::filesystem::path& path, const std::string& text) {
  std::error_code error;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), error);
  const std::filesystem::path temporary = With(path, ".new");
  {
    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) return false;
  }
  std::filesystem::rename(temporary, path, error);
  return !error;
}

std::filesystem::path ScenarioPath() { return Variable("LORIMET32_SCENARIO"); }

std::filesystem::path ControlPath() { return Variable("LORIMET32_CONTROL"); }

std::filesystem::path ControlSocketPath() {
  const std::filesystem::path control = ControlPath();
  return control.empty() ? control : With(control, ".socket");
}

std::filesystem::path StatePath() {
  const std::string named = Variable("LORIMET32_STATE");
  if (named == "none") return {};
  if (!named.empty()) return named;
#if defined(_WIN32)
  const std::filesystem::path base = Variable("LOCALAPPDATA");
#else
  std::filesystem::path base = Variable("XDG_STATE_HOME");
  const std::string home = Variable("HOME");
  if (base.empty() && !home.empty()) base = std::filesystem::path(home) / ".local" / "state";
#endif
  if (base.empty()) return {};
  return base / "norvick-lorimet" / "simulator.state";
}

std::string AnswerLine(int number, const CommandAnswer& answer) {
  std::string line = std::to_string(number) + " ";
  if (!answer.error.empty()) return line + answer.error + "\n";
  return line + "ok" + (answer.value.empty() ? "" : " " + answer.value) + "\n";
}

void ControlFile::Append(const char* ending, const std::string& lines) {
  if (path_.empty() || lines.empty()) return;
  std::ofstream(With(path_, ending), std::ios::app | std::ios::binary) << lines;
}

void ControlFile::Complain(const std::string& complaint) { Append(".errors", complaint + "\n"); }

void ControlFile::Poll(const std::function<CommandAnswer(const std::string&)>& run) {
  if (path_.empty()) return;
  std::error_code error;
  const auto size = std::filesystem::file_size(path_, error);
  if (error || size == offset_) return;
  if (size < offset_) offset_ = 0;  // begun anew
  const auto text = ReadWholeFile(path_);
  if (!text) return;
  std::string answers;
  for (std::size_t end = 0; (end = text->find('\n', offset_)) != std::string::npos;) {
    const CommandAnswer answer = run(text->substr(offset_, end - offset_));
    offset_ = end + 1;
    ++lines_;
    answers += AnswerLine(lines_, answer);
    if (!answer.error.empty()) Complain("line " + std::to_string(lines_) + ": " + answer.error);
  }
  if (answers.empty()) return;
  Append(".answers", answers);
  ReplaceFile(With(path_, ".done"), std::to_string(lines_) + "\n");
}

}  // namespace lorimet::simulator
