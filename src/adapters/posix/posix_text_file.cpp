#include "adapters/posix/posix_text_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

#include "adapters/posix/file_descriptor.h"
#include "adapters/posix/user_folders.h"
#include "adapters/posix/whole_file.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr mode_t kNewFileMode = 0666;

void Require(int error) {
  if (error != 0) throw RuntimeError(ErrorOfCall(error));
}

void CheckPath(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos)
    throw RuntimeError(ErrorNumber::kBadFileNameOrNumber);
}

bool IsFolder(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// A rename would replace what may not be written.
int CheckReplaceable(const std::string& path) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0) return errno == ENOENT ? 0 : errno;
  if (!S_ISREG(status.st_mode)) return EISDIR;
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

class Output : public TextFile {
 public:
  Output(const std::string& path, const FileCalls& calls) : calls_(calls), file_(calls_) {
    Require(CheckReplaceable(path));
    Require(file_.Create(path, kNewFileMode));
  }
  void Write(std::string_view bytes) override { bytes_ += bytes; }
  void Close() override { Require(file_.Replace(bytes_)); }

 private:
  FileCalls calls_;
  WholeFile file_;
  std::string bytes_;
};

}  // namespace

PosixTextFiles::PosixTextFiles(FileCalls calls) : calls_(std::move(calls)) {}

std::unique_ptr<TextFile> PosixTextFiles::OpenForOutput(const std::string& path) {
  CheckPath(path);
  return std::make_unique<Output>(path, calls_);
}

std::string PosixTextFiles::ReadWhole(const std::string& path) {
  CheckPath(path);
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  if (!file.IsOpen() && errno == ENOENT && IsFolder(FolderOf(path) + '/'))
    throw RuntimeError(ErrorNumber::kFileNotFound);
  if (!file.IsOpen()) throw RuntimeError(ErrorOfCall(errno));
  struct stat status = {};
  if (fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode))
    throw RuntimeError(ErrorNumber::kPathFileAccessError);
  std::string bytes;
  const int error = ReadRest(file.Get(), bytes, calls_);
  Require(error == EFBIG ? EIO : error);
  return bytes;
}

}  // namespace lorimet
