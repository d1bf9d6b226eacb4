// The profile file where the platform has none: our own reading and writing of its text.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "adapters/posix/file_calls.h"
#include "adapters/posix/whole_file.h"
#include "platform/profile_file.h"
#include "support/profile_text.h"

namespace lorimet {

// Keeps the file of the last call in memory for as long as its time stamp and size stay, and
// collects writes until Flush, another file or the end. A file is replaced as a whole under a
// temporary name in its own folder, with its permissions kept; a symbolic link stays one. When the
// file is changed from outside while writes are pending, they are made again on the new text.
// Anything but a regular file of at most kMaxBytes reads as missing and cannot be written.
class PosixProfileFile : public ProfileFile {
 public:
  static constexpr std::size_t kMaxBytes = kLargestFile;

  explicit PosixProfileFile(FileCalls calls = {});
  PosixProfileFile(const PosixProfileFile&) = delete;
  PosixProfileFile& operator=(const PosixProfileFile&) = delete;
  ~PosixProfileFile() override;

  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& fallback, std::size_t size,
                        const std::string& path) override;
  bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& path) override;
  bool Flush() override;
  ErrorNumber LastError() const override;

 private:
  struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0;  // nanoseconds, as is the next
    std::int64_t changed = 0;
    bool operator==(const Stamp&) const = default;
  };
  struct Write {
    std::string section;
    std::string key;
    std::string value;
  };
  enum class State { kUnread, kMissing, kPresent, kUnusable };

  static Stamp StampOf(const struct ::stat& status);
  void Use(const std::string& path);
  void Refresh();
  State ReadFile(std::string& bytes);
  State Unusable(int error);
  void Rebuild();
  int CheckWritable() const;
  bool WriteOut();

  FileCalls calls_;
  std::string path_;
  State state_ = State::kUnread;
  Stamp stamp_;
  bool settled_ = false;  // a change from now on must move the stamp
  std::string bytes_;     // on disk
  ProfileText text_;      // with the pending writes
  std::vector<Write> pending_;
  bool failed_ = false;   // writing out an earlier file
  int unusable_for_ = 0;  // the system's error
  int last_error_ = 0;    // the same of the last call that answered false
};

}  // namespace lorimet
