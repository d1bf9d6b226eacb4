// Files of the tests: they are in memory, can be looked at, and fail on order.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/profile_file.h"
#include "platform/text_file.h"
#include "support/profile_text.h"

namespace lorimet {

// What is the matter with the disk.
enum class FileTrouble { kNone, kFull, kDeviceFails, kLocked, kNoPermission, kNoFolder };

// A full disk and a failing device show when the file is closed, the others when it is opened.
class MemoryTextFiles : public TextFiles {
 public:
  std::unique_ptr<TextFile> OpenForOutput(const std::string& path) override;
  std::string ReadWhole(const std::string& path) override;

  FileTrouble trouble = FileTrouble::kNone;
  std::map<std::string, std::string> files;
  int open_files = 0;

 private:
  class Output;
};

// What is written is in `files` after Flush, byte for byte as on a disk. A full disk and a failing
// device show at Flush, the others at each write; a file that is locked or not permitted reads as
// missing.
class MemoryProfileFile : public ProfileFile {
 public:
  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& fallback, std::size_t size,
                        const std::string& path) override;
  bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& path) override;
  bool Flush() override;
  ErrorNumber LastError() const override { return last_error_; }

  FileTrouble trouble = FileTrouble::kNone;
  std::map<std::string, std::string> files;

 private:
  bool Fails(bool flushing);
  // The file's text with what is pending.
  ProfileText TextOf(const std::string& path) const;

  std::map<std::string, std::string> pending_;
  ErrorNumber last_error_ = ErrorNumber::kDeviceIoError;
};

}  // namespace lorimet
