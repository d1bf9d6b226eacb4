// A text file as it is written item by item: columns, runs of blanks and numbers, lines that end in
// CR LF.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lorimet {

// Code page 1252 inside, so a byte is a column. Columns count from 1.
class TextForm {
 public:
  // UTF-8; what has no place in the code page becomes "?".
  void Text(std::string_view utf8);
  // Bytes unchanged, NULs included.
  void Bytes(std::string_view bytes);
  // A leading blank where a minus sign would go, and one trailing blank.
  void Number(std::int32_t value);
  void Spc(int blanks);
  // Moves to a column by blanks, on the next line when this one has passed it already. A line that
  // has just reached the column stays as it is.
  void Tab(int column);
  void EndLine();
  void EmptyLines(int count);
  void Line(std::string_view utf8);

  const std::string& Contents() const { return contents_; }

 private:
  std::string contents_;
  int column_ = 1;  // of the next byte
};

}  // namespace lorimet
