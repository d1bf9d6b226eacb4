// The profile-file port: texts in sections and keys of an INI-style file.
#pragma once

#include <cstddef>
#include <string>

#include "platform/runtime_error.h"

namespace lorimet {

// Sections, keys and values are code page 1252; paths are full paths in UTF-8. Every answer is the
// one that reading the file afresh would give.
class ProfileFile {
 public:
  virtual ~ProfileFile() = default;
  // The value of a key, cut to `size` - 1 bytes; `fallback` less its trailing spaces when the file,
  // the section or the key is missing.
  virtual std::string GetString(const std::string& section, const std::string& key,
                                const std::string& fallback, std::size_t size,
                                const std::string& path) = 0;
  // Replaces an existing key in place; makes the file, the section and the key where need be, but
  // no folder. False when the file cannot be written. What a run of writes has reached is read back
  // at once and is on disk after Flush at the latest.
  virtual bool WriteString(const std::string& section, const std::string& key,
                           const std::string& value, const std::string& path) = 0;
  // Writes out what is pending; false when that failed, now or for an earlier file since the last
  // Flush. The old file is whole then, and what was pending is dropped.
  virtual bool Flush() = 0;
  // Why the last WriteString or Flush that answered false did so: 52, 57, 61, 70, 75 or 76, as the
  // text files have them.
  virtual ErrorNumber LastError() const = 0;
};

}  // namespace lorimet
