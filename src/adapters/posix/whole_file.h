// Reading and replacing files as a whole: what profile files, the registry and text files share.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "adapters/posix/file_calls.h"
#include "adapters/posix/file_descriptor.h"
#include "platform/runtime_error.h"

namespace lorimet {

// Files beyond this are beyond all reason.
constexpr std::size_t kLargestFile = std::size_t{64} << 20;

// Where the bytes of a file go: the file that a symbolic link stands for.
std::string TargetOf(const std::string& path);
// The customary error of a failed call on a file that is to be written.
ErrorNumber ErrorOfCall(int error);

// What is left to read of the file. Zero, or the number of the system's error: EFBIG for more than
// kLargestFile.
int ReadRest(int descriptor, std::string& bytes, const FileCalls& calls);

// A file under a temporary name in its own folder until it is whole. It takes the rights of the
// file whose place it takes, and its owner, as far as the file system lets it; a symbolic link to
// that file stays one. Each call answers zero or the number of the system's error.
class WholeFile {
 public:
  explicit WholeFile(const FileCalls& calls) : calls_(calls) {}
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  // Removes what did not come to Replace.
  ~WholeFile();

  // `mode` is that of a file which is not there yet, less the user's mask.
  int Create(const std::string& path, mode_t mode);
  // Writes the bytes and puts the file in its place, where it outlives a power cut.
  int Replace(std::string_view bytes);

 private:
  const FileCalls& calls_;
  std::string target_;
  std::string temporary_;  // empty when there is none
  FileDescriptor file_;
};

// Both in one.
int ReplaceFile(const std::string& path, std::string_view bytes, mode_t mode,
                const FileCalls& calls);

}  // namespace lorimet
