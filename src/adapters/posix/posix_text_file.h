// Text files by the system's calls.
#pragma once

#include <memory>
#include <string>

#include "adapters/posix/file_calls.h"
#include "platform/text_file.h"

namespace lorimet {

// Only regular files are read and replaced.
class PosixTextFiles : public TextFiles {
 public:
  explicit PosixTextFiles(FileCalls calls = {});
  std::unique_ptr<TextFile> OpenForOutput(const std::string& path) override;
  std::string ReadWhole(const std::string& path) override;

 private:
  FileCalls calls_;
};

}  // namespace lorimet
