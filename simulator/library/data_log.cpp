#include "simulator/library/data_log.h"

#include <algorithm>
#include <system_error>

#include "simulator/library/bus_monitor.h"
#include "simulator/library/files.h"

namespace lorimet::simulator {
namespace {

std::string Right(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::FILE* OpenToAppend(const std::filesystem::path& path) {
#if defined(_WIN32)
  return _wfopen(path.c_str(), L"ab");
#else
  return std::fopen(path.c_str(), "ab");
#endif
}

}  // namespace

bool DataLog::Start(const std::filesystem::path& path, std::string_view head, std::int64_t now) {
  std::error_code error;
  if (!std::filesystem::is_directory(std::filesystem::absolute(path, error).parent_path(), error) ||
      std::filesystem::is_directory(path, error))
    return false;
  if (!ReplaceFile(path, std::string(head))) return false;
  file_.reset(OpenToAppend(path));
  if (file_ == nullptr) return false;
  // A line is on the disk, or it is not.
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
  path_ = path;
  size_ = head.size();
  unwritten_.clear();
  started_ = now;
  return true;
}

void DataLog::Add(const BusMessage& message) {
  if (file_ == nullptr || message.start < started_ || unwritten_.size() > kMostUnwritten) return;
  unwritten_ += Right(SecondsOf(message.start - started_), 11) + Right(SecondsOf(message.idle), 9) +
                "  " + TextOf(message) + "\r\n";
}

bool DataLog::Write() {
  if (file_ == nullptr || unwritten_.empty()) return true;
  const std::size_t written = std::fwrite(unwritten_.data(), 1, unwritten_.size(), file_.get());
  if (written == unwritten_.size()) {
    size_ += written;
    unwritten_.clear();
    return true;
  }
  // Half a line would stand at the end until there is room for the rest.
  std::clearerr(file_.get());
  std::error_code error;
  if (written > 0) std::filesystem::resize_file(path_, size_, error);
  return false;
}

void DataLog::Stop() {
  Write();
  file_.reset();
  unwritten_.clear();
}

}  // namespace lorimet::simulator
