#include "adapters/posix/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "adapters/posix/user_folders.h"

namespace lorimet {
namespace {

constexpr std::size_t kBlock = 65536;
constexpr int kTemporaryNames = 100;

int WriteAll(int descriptor, std::string_view bytes, const FileCalls& calls) {
  while (!bytes.empty()) {
    const ssize_t count = calls.write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count < 0 ? errno : EIO;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

// Some file systems have no such call; what they are given is as safe as it gets.
int Sync(int descriptor, const FileCalls& calls) {
  while (calls.fsync(descriptor) != 0) {
    if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP) return 0;
    if (errno != EINTR) return errno;
  }
  return 0;
}

void SyncFolder(const std::string& folder, const FileCalls& calls) {
  const FileDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) Sync(opened.Get(), calls);
}

}  // namespace

std::string TargetOf(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                             &std::free);
  return resolved ? std::string(resolved.get()) : path;
}

ErrorNumber ErrorOfCall(int error) {
  switch (error) {
    case EINVAL:
    case EILSEQ:
    case ENAMETOOLONG:
      return ErrorNumber::kBadFileNameOrNumber;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::kDiskFull;
    case EROFS:
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
      return ErrorNumber::kPermissionDenied;
    case EACCES:
    case EPERM:
    case EISDIR:
    case ELOOP:
      return ErrorNumber::kPathFileAccessError;
    case ENOENT:
    case ENOTDIR:
      return ErrorNumber::kPathNotFound;
    default:
      return ErrorNumber::kDeviceIoError;
  }
}

int ReadRest(int descriptor, std::string& bytes, const FileCalls& calls) {
  bytes.clear();
  std::string block(kBlock, '\0');
  for (;;) {
    const ssize_t count = calls.read(descriptor, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return 0;
    bytes.append(block, 0, static_cast<std::size_t>(count));
    if (bytes.size() > kLargestFile) return EFBIG;
  }
}

WholeFile::~WholeFile() {
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

int WholeFile::Create(const std::string& path, mode_t mode) {
  static std::atomic<unsigned> counter{0};
  target_ = TargetOf(path);
  struct stat old = {};
  const bool replaces = stat(target_.c_str(), &old) == 0;
  // The old rights from the start: a file system that refuses to set them must not widen them.
  if (replaces) mode = old.st_mode & 0777;
  const std::string stem = FolderOf(target_) + "/.lorimet-" + std::to_string(getpid()) + "-";
  for (int i = 0; i < kTemporaryNames && !file_.IsOpen(); ++i) {
    const std::string name = stem + std::to_string(counter++) + ".tmp";
    file_ = FileDescriptor(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (file_.IsOpen()) temporary_ = name;
    if (!file_.IsOpen() && errno != EEXIST) return errno;
  }
  if (!file_.IsOpen()) return EEXIST;
  if (replaces) {
    // A share refuses either; that is no reason to lose the text.
    const int owned = calls_.fchown(file_.Get(), old.st_uid, old.st_gid);
    const int changed = calls_.fchmod(file_.Get(), old.st_mode & 07777);
    static_cast<void>(owned);
    static_cast<void>(changed);
  }
  return 0;
}

int WholeFile::Replace(std::string_view bytes) {
  int error = WriteAll(file_.Get(), bytes, calls_);
  if (error == 0) error = Sync(file_.Get(), calls_);
  if (error == 0 && calls_.rename(temporary_.c_str(), target_.c_str()) != 0) error = errno;
  if (error != 0) return error;
  temporary_.clear();
  SyncFolder(FolderOf(target_), calls_);
  return 0;
}

int ReplaceFile(const std::string& path, std::string_view bytes, mode_t mode,
                const FileCalls& calls) {
  WholeFile file(calls);
  const int error = file.Create(path, mode);
  return error != 0 ? error : file.Replace(bytes);
}

}  // namespace lorimet
