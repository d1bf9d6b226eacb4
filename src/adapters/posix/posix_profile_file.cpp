#include "adapters/posix/posix_profile_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <optional>
#include <utility>

#include "adapters/posix/file_descriptor.h"
#include "adapters/posix/user_folders.h"
#include "adapters/posix/whole_file.h"

namespace lorimet {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
// The steps in which file systems count time: a timer tick, or two seconds where only whole seconds
// are stored.
constexpr std::int64_t kFineStep = 20'000'000;
constexpr std::int64_t kCoarseStep = 2'100'000'000;
constexpr mode_t kNewFileMode = 0666;

std::int64_t Nanoseconds(const timespec& time) { return time.tv_sec * kSecond + time.tv_nsec; }

// The clock that file systems stamp with.
std::int64_t FileClock() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return Nanoseconds(now);
}

std::string WithoutTrailingSpaces(std::string text) {
  text.resize(std::min(text.find('\0'), text.size()));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace

PosixProfileFile::PosixProfileFile(FileCalls calls) : calls_(std::move(calls)) {}

PosixProfileFile::~PosixProfileFile() { PosixProfileFile::Flush(); }

std::string PosixProfileFile::GetString(const std::string& section, const std::string& key,
                                        const std::string& fallback, std::size_t size,
                                        const std::string& path) {
  Use(path);
  Refresh();
  std::optional<std::string> value = text_.Find(section, key);
  std::string answer = value ? std::move(*value) : WithoutTrailingSpaces(fallback);
  answer.resize(std::min(answer.size(), size == 0 ? 0 : size - 1));
  return answer;
}

bool PosixProfileFile::WriteString(const std::string& section, const std::string& key,
                                   const std::string& value, const std::string& path) {
  Use(path);
  Refresh();
  if (const int error = CheckWritable(); error != 0) {
    last_error_ = error;
    return false;
  }
  if (text_.Set(section, key, value)) pending_.push_back({section, key, value});
  return true;
}

bool PosixProfileFile::Flush() {
  const bool written = WriteOut();
  return !std::exchange(failed_, false) && written;
}

void PosixProfileFile::Use(const std::string& path) {
  if (path == path_) return;
  if (!WriteOut()) failed_ = true;
  path_ = path;
  state_ = State::kUnread;
}

PosixProfileFile::Stamp PosixProfileFile::StampOf(const struct ::stat& status) {
  return {status.st_dev, status.st_ino, status.st_size, Nanoseconds(status.st_mtim),
          Nanoseconds(status.st_ctim)};
}

void PosixProfileFile::Refresh() {
  struct stat status = {};
  if (state_ == State::kPresent && settled_ && stat(path_.c_str(), &status) == 0 &&
      StampOf(status) == stamp_)
    return;
  std::string bytes;
  const State state = ReadFile(bytes);
  if (state == std::exchange(state_, state) && bytes == bytes_) return;
  bytes_ = std::move(bytes);
  Rebuild();
}

PosixProfileFile::State PosixProfileFile::ReadFile(std::string& bytes) {
  settled_ = false;
  if (path_.empty() || path_.find('\0') != std::string::npos) return Unusable(EINVAL);
  struct stat status = {};
  if (stat(path_.c_str(), &status) != 0) return errno == ENOENT ? State::kMissing : Unusable(errno);
  if (!S_ISREG(status.st_mode)) return Unusable(EISDIR);
  const FileDescriptor file(open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const std::int64_t now = FileClock();
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0) return Unusable(errno);
  if (!S_ISREG(status.st_mode)) return Unusable(EISDIR);
  if (status.st_size > static_cast<off_t>(kMaxBytes)) return Unusable(EFBIG);
  std::string all;
  if (const int error = ReadRest(file.Get(), all, calls_); error != 0) return Unusable(error);
  bytes = std::move(all);
  stamp_ = StampOf(status);
  const std::int64_t step = stamp_.modified % kSecond == 0 ? kCoarseStep : kFineStep;
  settled_ = now - std::max(stamp_.modified, stamp_.changed) > step;
  return State::kPresent;
}

PosixProfileFile::State PosixProfileFile::Unusable(int error) {
  unusable_for_ = error;
  return State::kUnusable;
}

void PosixProfileFile::Rebuild() {
  text_ = ProfileText(bytes_);
  for (const Write& write : pending_) text_.Set(write.section, write.key, write.value);
}

// Zero, or the number of the system's error.
int PosixProfileFile::CheckWritable() const {
  if (state_ == State::kUnusable) return unusable_for_;
  if (state_ == State::kPresent && faccessat(AT_FDCWD, path_.c_str(), W_OK, AT_EACCESS) != 0)
    return errno;
  const std::string folder = FolderOf(TargetOf(path_)) + '/';
  return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
}

bool PosixProfileFile::WriteOut() {
  if (pending_.empty()) return true;
  Refresh();
  std::string bytes = text_.Bytes();
  pending_.clear();
  int error = CheckWritable();
  if (error == 0 && bytes != bytes_) error = ReplaceFile(path_, bytes, kNewFileMode, calls_);
  if (error == 0) {
    bytes_ = std::move(bytes);
    state_ = State::kPresent;
    settled_ = false;
    return true;
  }
  last_error_ = error;
  Rebuild();
  return false;
}

ErrorNumber PosixProfileFile::LastError() const { return ErrorOfCall(last_error_); }

}  // namespace lorimet
