#include "adapters/posix/posix_profile_file.h"

#include "adapters/posix/file_descriptor.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace lorimet {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
// The steps in which file systems count time: a timer tick, or two seconds where only whole seconds
// are stored.
constexpr std::int64_t kFineStep = 20'000'000;
constexpr std::int64_t kCoarseStep = 2'100'000'000;
constexpr int kTemporaryNames = 100;

std::int64_t Nanoseconds(const timespec& time) { return time.tv_sec * kSecond + time.tv_nsec; }

// The clock that file systems stamp with.
std::int64_t FileClock() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return Nanoseconds(now);
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Where the bytes go: the file that a symbolic link stands for.
std::string TargetOf(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                             &std::free);
  return resolved ? std::string(resolved.get()) : path;
}

bool WriteAll(int fd, const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = write(fd, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    done += static_cast<std::size_t>(count);
  }
  return true;
}

std::optional<std::string> ReadAll(int fd, std::size_t limit) {
  std::string bytes;
  std::string block(65536, '\0');
  for (;;) {
    const ssize_t count = read(fd, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return {};
    if (count == 0) return bytes;
    bytes.append(block.data(), static_cast<std::size_t>(count));
    if (bytes.size() > limit) return {};
  }
}

// A new file in the folder of `target`; sets its name.
int CreateTemporary(const std::string& target, std::string& name) {
  static std::atomic<unsigned> counter{0};
  const std::string stem = FolderOf(target) + "/.profile-" + std::to_string(getpid()) + "-";
  for (int i = 0; i < kTemporaryNames; ++i) {
    name = stem + std::to_string(counter++) + ".tmp";
    const int fd = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

// The new file takes the old one's owner, as far as that is allowed, and its permissions.
bool CopyOwnership(const std::string& from, int fd) {
  struct stat status = {};
  if (stat(from.c_str(), &status) != 0) return errno == ENOENT;
  const int owned = fchown(fd, status.st_uid, status.st_gid);
  static_cast<void>(owned);
  return fchmod(fd, status.st_mode & 07777) == 0;
}

bool ReplaceFile(const std::string& path, const std::string& bytes) {
  const std::string target = TargetOf(path);
  std::string temporary;
  FileDescriptor file(CreateTemporary(target, temporary));
  if (!file.IsOpen()) return false;
  const bool written = CopyOwnership(target, file.Get()) && WriteAll(file.Get(), bytes) &&
                       fsync(file.Get()) == 0 &&
                       std::rename(temporary.c_str(), target.c_str()) == 0;
  if (!written) unlink(temporary.c_str());
  return written;
}

std::string WithoutTrailingSpaces(std::string text) {
  text.resize(std::min(text.find('\0'), text.size()));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace

PosixProfileFile::~PosixProfileFile() { Flush(); }

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
  if (!CanWrite()) return false;
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
  if (path_.empty() || path_.find('\0') != std::string::npos) return State::kUnusable;
  struct stat status = {};
  if (stat(path_.c_str(), &status) != 0)
    return errno == ENOENT ? State::kMissing : State::kUnusable;
  if (!S_ISREG(status.st_mode)) return State::kUnusable;
  const FileDescriptor file(open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const std::int64_t now = FileClock();
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    return State::kUnusable;
  if (status.st_size > static_cast<off_t>(kMaxBytes)) return State::kUnusable;
  std::optional<std::string> all = ReadAll(file.Get(), kMaxBytes);
  if (!all) return State::kUnusable;
  bytes = std::move(*all);
  stamp_ = StampOf(status);
  const std::int64_t step = stamp_.modified % kSecond == 0 ? kCoarseStep : kFineStep;
  settled_ = now - std::max(stamp_.modified, stamp_.changed) > step;
  return State::kPresent;
}

void PosixProfileFile::Rebuild() {
  text_ = ProfileText(bytes_);
  for (const Write& write : pending_) text_.Set(write.section, write.key, write.value);
}

bool PosixProfileFile::CanWrite() const {
  if (state_ == State::kUnusable) return false;
  if (state_ == State::kPresent && faccessat(AT_FDCWD, path_.c_str(), W_OK, AT_EACCESS) != 0)
    return false;
  const std::string folder = FolderOf(TargetOf(path_));
  return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool PosixProfileFile::WriteOut() {
  if (pending_.empty()) return true;
  Refresh();
  std::string bytes = text_.Bytes();
  pending_.clear();
  if (CanWrite() && (bytes == bytes_ || ReplaceFile(path_, bytes))) {
    bytes_ = std::move(bytes);
    state_ = State::kPresent;
    settled_ = false;
    return true;
  }
  Rebuild();
  return false;
}

}  // namespace lorimet
