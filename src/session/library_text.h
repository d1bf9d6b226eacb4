// A text on its way to the link library or back: a writable buffer of code page 1252.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lorimet {

class LibraryText {
 public:
  // Every buffer that the library is given has at least this size, whatever is in it.
  static constexpr std::size_t kSize = 1024;

  // The text and a NUL.
  explicit LibraryText(const std::string& text);
  // A field of `length` blanks for the library to write into, and a NUL behind it.
  static LibraryText Blanks(std::size_t length);

  char* Data() { return bytes_.data(); }
  // The buffer up to the first NUL, which is not trusted to be there.
  std::string Text() const { return Text(bytes_.size()); }
  // The same of the first `length` bytes.
  std::string Text(std::size_t length) const;

 private:
  std::vector<char> bytes_;
};

}  // namespace lorimet
