// The text-file port: files that are read and written as a whole.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace lorimet {

// A file that is being written. Nothing of it stands under its name before Close; a crash, or the
// end of this object without Close, leaves the file that was there before.
class TextFile {
 public:
  virtual ~TextFile() = default;
  // Adds bytes as they are given: the caller sees to code page and line ends.
  virtual void Write(std::string_view bytes) = 0;
  // Puts what was written in the file's place. A writing that stops half-way by design ends with
  // this too. Error 61 when the disk is full, 57 when the device fails, and those of
  // OpenForOutput; the old file is kept then.
  virtual void Close() = 0;
};

class TextFiles {
 public:
  virtual ~TextFiles() = default;
  // `path` is a whole path in UTF-8; no folder is made. Error 52 for a name that cannot be one, 61
  // when the disk is full, 70 for a file that another program holds or a disk that takes no
  // writing, 75 for a folder or for what the user may not write, 76 when the folder is missing.
  virtual std::unique_ptr<TextFile> OpenForOutput(const std::string& path) = 0;
  // All bytes of a file. Error 53 when it is missing, 57 when the device fails or the file is
  // beyond all reason, and those of OpenForOutput.
  virtual std::string ReadWhole(const std::string& path) = 0;
};

}  // namespace lorimet
