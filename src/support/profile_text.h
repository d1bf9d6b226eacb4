// The text of one profile file in memory: a key's value is found and replaced in its place.
#pragma once

#include <cstddef>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lorimet {

// Follows what Windows does with its profile files:
// - A line ends with CRLF, LF or CR. It is a comment when it begins with ";", a section's header
//   when it begins with "[", and a key when it has a "="; anything else is kept and has no meaning.
//   Blanks (space, tab, vertical tab) at the ends of lines, names and values do not count.
// - A header's name ends at the first "]" or else with the line, whatever follows.
// - Names match without regard to case. The first of several keys or sections of one name counts;
//   a key above the first header is never reached.
// - One outer pair of equal quotes round a value is no part of it.
// - A line that is written ends with CRLF and has no blank round its "=". No other byte changes.
// - Code page 1252 unless the text begins with the byte order mark of UTF-16LE.
// Reading and each change take time in proportion to what they touch, however long the text is.
class ProfileText {
 public:
  // A longer value is cut to this many characters when it is found.
  static constexpr std::size_t kMaxValue = 65535;

  explicit ProfileText(std::string_view bytes = {});
  ProfileText(ProfileText&&) = default;
  ProfileText& operator=(ProfileText&&) = default;

  // Names and values are code page 1252 and end before their first NUL; spaces at the ends of a
  // name that is asked for do not count. A character that the page lacks comes back as "?".
  std::optional<std::string> Find(std::string_view section, std::string_view key) const;
  // A new key comes behind the last line of its section that is not blank, a new section behind all
  // others. False when the value is there already and nothing changed.
  bool Set(std::string_view section, std::string_view key, std::string_view value);
  std::string Bytes() const;

 private:
  // A run of whole lines. A key that can be found is a piece of its own; pieces meet also where the
  // next new key of a section belongs.
  struct Piece {
    explicit Piece(std::u16string_view original) : text(original) {}
    explicit Piece(std::u16string written) { Write(std::move(written)); }
    Piece(const Piece&) = delete;
    Piece& operator=(const Piece&) = delete;
    void Write(std::u16string written) {
      own = std::move(written);
      text = own;
    }

    std::u16string own;
    std::u16string_view text;
  };
  using Pieces = std::list<Piece>;
  struct Section {
    Pieces::iterator tail;
    std::unordered_map<std::u16string, Pieces::iterator> keys;
  };

  void Parse();
  static bool Replace(Piece& piece, std::u16string_view value);
  void AddKey(Section& section, std::u16string line);
  void AddSection(std::u16string_view name, std::u16string line);
  static void EndLine(Piece& piece);
  std::u16string Joined() const;

  bool unicode_ = false;
  std::vector<char16_t> original_;
  Pieces pieces_;
  std::unordered_map<std::u16string, Section> sections_;
};

}  // namespace lorimet
