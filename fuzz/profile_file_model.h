// What a profile file's calls should do, written as plainly as can be: every call takes the whole
// file apart anew. Slow, and the judge of the real one.
#pragma once

#include "support/text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lorimet::model {

using Units = std::u32string;

// The 256 characters of code page 1252.
inline const Units& Page() {
  static const Units page = [] {
    Units result;
    for (int byte = 0; byte < 256; ++byte) {
      const std::string utf8 = FromCp1252(std::string(1, static_cast<char>(byte)));
      const auto at = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
      char32_t c = at(0);
      if (utf8.size() == 2) c = ((at(0) & 0x1Fu) << 6) | (at(1) & 0x3Fu);
      if (utf8.size() == 3) c = ((at(0) & 0x0Fu) << 12) | ((at(1) & 0x3Fu) << 6) | (at(2) & 0x3Fu);
      result += c;
    }
    return result;
  }();
  return page;
}

inline Units FromBytes(const std::string& bytes) {
  Units result;
  for (const char c : bytes) result += Page()[static_cast<unsigned char>(c)];
  return result;
}

inline std::string ToBytes(const Units& units) {
  std::string result;
  for (const char32_t c : units) {
    const auto byte = Page().find(c);
    result += byte == Units::npos ? '?' : static_cast<char>(byte);
  }
  return result;
}

inline bool IsUnicode(const std::string& bytes) { return bytes.substr(0, 2) == "\xFF\xFE"; }

inline Units Decode(const std::string& bytes) {
  if (!IsUnicode(bytes)) return FromBytes(bytes);
  Units result;
  std::string rest = bytes.substr(2);
  if (rest.size() % 2 != 0) rest += '\0';
  for (std::size_t i = 0; i < rest.size(); i += 2)
    result += static_cast<char32_t>(static_cast<unsigned char>(rest[i]) +
                                    256 * static_cast<unsigned char>(rest[i + 1]));
  return result;
}

inline std::string Encode(const Units& units, bool unicode) {
  if (!unicode) return ToBytes(units);
  std::string result = "\xFF\xFE";
  for (const char32_t c : units) {
    result += static_cast<char>(c % 256);
    result += static_cast<char>(c / 256);
  }
  return result;
}

inline char32_t Folded(char32_t c) {
  static const Units upper = FromBytes(
      "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A\x8C\x8E\x9F\xC0\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9\xCA\xCB"
      "\xCC\xCD\xCE\xCF\xD0\xD1\xD2\xD3\xD4\xD5\xD6\xD8\xD9\xDA\xDB\xDC\xDD\xDE");
  static const Units lower = FromBytes(
      "abcdefghijklmnopqrstuvwxyz\x9A\x9C\x9E\xFF\xE0\xE1\xE2\xE3\xE4\xE5\xE6\xE7\xE8\xE9\xEA\xEB"
      "\xEC\xED\xEE\xEF\xF0\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC\xFD\xFE");
  if (c < U'A') return c;
  const auto i = upper.find(c);
  return i == Units::npos ? c : lower[i];
}

inline bool SameName(const Units& a, const Units& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (a[i] != b[i] && Folded(a[i]) != Folded(b[i])) return false;
  return true;
}

inline Units Strip(Units text, const Units& what) {
  while (!text.empty() && what.find(text.back()) != Units::npos) text.pop_back();
  while (!text.empty() && what.find(text.front()) != Units::npos) text.erase(0, 1);
  return text;
}
inline Units StripBlanks(const Units& text) { return Strip(text, U" \t\v"); }

struct Line {
  enum class Kind { kOther, kHeader, kKey } kind = Kind::kOther;
  Units text;  // without its end
  Units end;
  Units name;
  Units value;  // with its quotes
};

inline std::vector<Line> Lines(const Units& text) {
  std::vector<Line> lines;
  for (std::size_t i = 0; i < text.size();) {
    Line line;
    while (i < text.size() && text[i] != U'\r' && text[i] != U'\n') line.text += text[i++];
    if (i < text.size()) {
      line.end = text[i++];
      if (line.end == U"\r" && i < text.size() && text[i] == U'\n') line.end += text[i++];
    }
    const Units bare = StripBlanks(line.text);
    const auto equals = bare.find(U'=');
    if (!bare.empty() && bare[0] == U'[') {
      line.kind = Line::Kind::kHeader;
      for (std::size_t c = 1; c < bare.size() && bare[c] != U']'; ++c) line.name += bare[c];
      line.name = StripBlanks(line.name);
    } else if (equals != Units::npos && bare[0] != U';') {
      line.kind = Line::Kind::kKey;
      line.name = StripBlanks(bare.substr(0, equals));
      const Units value = bare.substr(equals + 1);
      line.value = StripBlanks(value.substr(0, value.find(U'\0')));
    }
    lines.push_back(line);
  }
  return lines;
}

// Where the first section of that name begins and ends; nothing when there is none.
struct Range {
  std::size_t header;
  std::size_t end;
};
inline std::optional<Range> FindSection(const std::vector<Line>& lines, const Units& name) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].kind != Line::Kind::kHeader || !SameName(lines[i].name, name)) continue;
    std::size_t end = i + 1;
    while (end < lines.size() && lines[end].kind != Line::Kind::kHeader) ++end;
    return Range{i, end};
  }
  return {};
}

inline std::optional<std::size_t> FindKey(const std::vector<Line>& lines, const Range& range,
                                          const Units& name) {
  for (std::size_t i = range.header + 1; i < range.end; ++i)
    if (lines[i].kind == Line::Kind::kKey && SameName(lines[i].name, name)) return i;
  return {};
}

inline Units Argument(const std::string& text) {
  return FromBytes(text.substr(0, text.find('\0')));
}
inline Units NameArgument(const std::string& text) { return Strip(Argument(text), U" "); }

inline std::string Read(const std::vector<Line>& lines, const std::string& section,
                        const std::string& key, const std::string& fallback, std::size_t size) {
  const auto range = FindSection(lines, NameArgument(section));
  const auto found = range ? FindKey(lines, *range, NameArgument(key)) : std::nullopt;
  std::string answer;
  if (found) {
    Units value = lines[*found].value;
    const bool quoted = value.size() > 1 && value.front() == value.back() &&
                        (value.front() == U'"' || value.front() == U'\'');
    if (quoted) value = value.substr(1, value.size() - 2);
    answer = ToBytes(value).substr(0, 65535);
  } else {
    answer = fallback.substr(0, fallback.find('\0'));
    while (!answer.empty() && answer.back() == ' ') answer.pop_back();
  }
  return size == 0 ? "" : answer.substr(0, size - 1);
}

// A line to be written; one that holds line breaks is not taken apart.
inline Line Written(const Units& text) {
  const std::vector<Line> taken = Lines(text + U"\r\n");
  Line line = taken.size() == 1 ? taken.front() : Line();
  line.text = text;
  line.end = U"\r\n";
  return line;
}

// False when nothing changed.
inline bool Write(std::vector<Line>& lines, const std::string& section, const std::string& key,
                  const std::string& value) {
  const auto insert = [&](std::size_t at, const Units& text) {
    if (at > 0 && lines[at - 1].end.empty()) lines[at - 1].end = U"\r\n";
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), Written(text));
  };
  const Units key_line = NameArgument(key) + U"=" + Argument(value);
  if (const auto range = FindSection(lines, NameArgument(section)); !range) {
    insert(lines.size(), U"[" + NameArgument(section) + U"]");
    insert(lines.size(), key_line);
  } else if (const auto found = FindKey(lines, *range, NameArgument(key))) {
    if (lines[*found].value == Argument(value)) return false;
    lines[*found] = Written(lines[*found].name + U"=" + Argument(value));
  } else {
    std::size_t at = range->end;
    const Units fillers = Units(U" \t\v\x1A") + U'\0';
    while (Strip(lines[at - 1].text, fillers).empty()) --at;
    insert(at, key_line);
  }
  return true;
}

inline Units Joined(const std::vector<Line>& lines) {
  Units text;
  for (const Line& line : lines) text += line.text + line.end;
  return text;
}

// `file` is nothing when it is missing.
inline std::string Read(const std::optional<std::string>& file, const std::string& section,
                        const std::string& key, const std::string& fallback, std::size_t size) {
  return Read(Lines(Decode(file.value_or(""))), section, key, fallback, size);
}

inline std::string Write(const std::optional<std::string>& file, const std::string& section,
                         const std::string& key, const std::string& value) {
  const std::string before = file.value_or("");
  std::vector<Line> lines = Lines(Decode(before));
  return Write(lines, section, key, value) ? Encode(Joined(lines), IsUnicode(before)) : before;
}

}  // namespace lorimet::model
