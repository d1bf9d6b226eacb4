#include "support/profile_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::u16string_view kBlanks = u" \t\v";
// What a file may end with besides blanks; a new key goes before it.
constexpr std::u16string_view kFillers{u" \t\v\0\x1A", 5};
constexpr std::u16string_view kNewLine = u"\r\n";
constexpr std::string_view kByteOrderMark = "\xFF\xFE";

char16_t FromPage(char c) { return static_cast<char16_t>(CharacterOf(c)); }

std::u16string FromPage(std::string_view text) {
  std::u16string result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), [](char c) { return FromPage(c); });
  return result;
}

std::string ToPage(std::u16string_view text) {
  std::string result(text.size(), '\0');
  std::transform(text.begin(), text.end(), result.begin(), [](char16_t c) { return ByteOf(c); });
  return result;
}

// In small letters, as far as the page has them: names that are asked for hold no others.
std::u16string Folded(std::u16string_view name) {
  std::u16string result(name);
  for (char16_t& c : result) c = static_cast<char16_t>(SmallLetterOf(c));
  return result;
}

std::u16string_view Trimmed(std::u16string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// An argument of a call: up to its first NUL.
std::u16string Argument(std::string_view text) { return FromPage(text.substr(0, text.find('\0'))); }

// A name that is asked for loses spaces only.
std::u16string NameArgument(std::string_view text) {
  std::u16string name = Argument(text);
  name.erase(name.find_last_not_of(u' ') + 1);
  name.erase(0, std::min(name.find_first_not_of(u' '), name.size()));
  return name;
}

struct Line {
  std::size_t text_end;
  std::size_t end;
};

Line LineAt(std::u16string_view text, std::size_t begin) {
  const auto break_at = std::min(text.find_first_of(kNewLine, begin), text.size());
  auto end = std::min(break_at + 1, text.size());
  if (end < text.size() && text[break_at] == u'\r' && text[end] == u'\n') ++end;
  return {break_at, end};
}

std::optional<std::u16string_view> HeaderName(std::u16string_view line) {
  line = Trimmed(line);
  if (!line.starts_with(u'[')) return {};
  return Trimmed(line.substr(1, line.find(u']') - 1));
}

struct KeyLine {
  std::u16string_view name;
  std::u16string_view value;  // with its quotes
};

std::optional<KeyLine> ParseKey(std::u16string_view line) {
  const auto equals = line.find(u'=');
  if (equals == std::u16string_view::npos || Trimmed(line).starts_with(u';')) return {};
  std::u16string_view value = line.substr(equals + 1);
  value = value.substr(0, value.find_first_of(std::u16string_view(u"\0\r\n", 3)));
  return KeyLine{Trimmed(line.substr(0, equals)), Trimmed(value)};
}

std::u16string_view Unquoted(std::u16string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == u'"' || value.front() == u'\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::u16string KeyText(std::u16string_view name, std::u16string_view value) {
  std::u16string line(name);
  line += u'=';
  line += value;
  return line += kNewLine;
}

bool BreaksLines(std::u16string_view text) {
  return text.find_first_of(kNewLine) != std::u16string_view::npos;
}

}  // namespace

ProfileText::ProfileText(std::string_view bytes) : unicode_(bytes.starts_with(kByteOrderMark)) {
  if (unicode_) {
    bytes.remove_prefix(kByteOrderMark.size());
    original_.reserve((bytes.size() + 1) / 2);
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
      // A text that was cut within a character lacks the upper byte of the last.
      const unsigned high = i + 1 < bytes.size() ? static_cast<unsigned char>(bytes[i + 1]) : 0u;
      original_.push_back(
          static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) | (high << 8)));
    }
  } else {
    original_.reserve(bytes.size());
    for (const char c : bytes) original_.push_back(FromPage(c));
  }
  Parse();
}

void ProfileText::Parse() {
  pieces_.clear();
  sections_.clear();
  const std::u16string_view text(original_.data(), original_.size());
  Section* section = nullptr;  // none above the first header and below a repeated one
  std::size_t section_end = 0;
  std::size_t open = 0;  // where the piece begins that is not made yet
  const auto close_piece = [&](std::size_t end) {
    if (end > open) pieces_.emplace_back(text.substr(open, end - open));
    open = std::max(open, end);
  };
  const auto close_section = [&] {
    if (section == nullptr) return;
    close_piece(section_end);
    section->tail = std::prev(pieces_.end());
  };
  for (std::size_t begin = 0; begin < text.size();) {
    const auto [text_end, end] = LineAt(text, begin);
    const std::u16string_view line = text.substr(begin, text_end - begin);
    if (const auto name = HeaderName(line)) {
      close_section();
      const auto [found, fresh] = sections_.try_emplace(Folded(*name));
      section = fresh ? &found->second : nullptr;
    } else if (const auto key = section == nullptr ? std::nullopt : ParseKey(line)) {
      const auto [found, fresh] = section->keys.try_emplace(Folded(key->name));
      if (fresh) {
        close_piece(begin);
        close_piece(end);
        found->second = std::prev(pieces_.end());
      }
    }
    if (line.find_first_not_of(kFillers) != std::u16string_view::npos) section_end = end;
    begin = end;
  }
  close_section();
  close_piece(text.size());
}

std::optional<std::string> ProfileText::Find(std::string_view section, std::string_view key) const {
  const auto in = sections_.find(Folded(NameArgument(section)));
  if (in == sections_.end()) return {};
  const auto found = in->second.keys.find(Folded(NameArgument(key)));
  if (found == in->second.keys.end()) return {};
  return ToPage(Unquoted(ParseKey(found->second->text)->value).substr(0, kMaxValue));
}

bool ProfileText::Set(std::string_view section, std::string_view key, std::string_view value) {
  const std::u16string section_name = NameArgument(section);
  const std::u16string key_name = NameArgument(key);
  const std::u16string new_value = Argument(value);
  const auto in = sections_.find(Folded(section_name));
  if (in == sections_.end()) {
    AddSection(section_name, KeyText(key_name, new_value));
  } else {
    const auto found = in->second.keys.find(Folded(key_name));
    if (found == in->second.keys.end()) {
      AddKey(in->second, KeyText(key_name, new_value));
    } else if (!Replace(*found->second, new_value)) {
      return false;
    }
  }
  // What was written may read as other lines than it was meant for.
  if (BreaksLines(section_name) || BreaksLines(key_name) || BreaksLines(new_value) ||
      HeaderName(key_name)) {
    const std::u16string text = Joined();
    original_.assign(text.begin(), text.end());
    Parse();
  }
  return true;
}

bool ProfileText::Replace(Piece& piece, std::u16string_view value) {
  const KeyLine old = *ParseKey(piece.text);
  std::u16string line = KeyText(old.name, value);
  if (old.value == value || piece.text == line) return false;
  piece.Write(std::move(line));
  return true;
}

void ProfileText::AddKey(Section& section, std::u16string line) {
  EndLine(*section.tail);
  section.tail = pieces_.emplace(std::next(section.tail), std::move(line));
  if (const auto key = ParseKey(section.tail->text))
    section.keys.try_emplace(Folded(key->name), section.tail);
}

void ProfileText::AddSection(std::u16string_view name, std::u16string line) {
  if (!pieces_.empty()) EndLine(pieces_.back());
  std::u16string header(u"[");
  header += name;
  header += u"]\r\n";
  pieces_.emplace_back(std::move(header));
  const auto read_as = HeaderName(pieces_.back().text);
  Section added{pieces_.emplace(pieces_.end(), std::move(line)), {}};
  if (const auto key = ParseKey(added.tail->text))
    added.keys.try_emplace(Folded(key->name), added.tail);
  sections_.try_emplace(Folded(*read_as), std::move(added));
}

// Only the last line of a text can lack its end.
void ProfileText::EndLine(Piece& piece) {
  if (piece.text.ends_with(u'\n') || piece.text.ends_with(u'\r')) return;
  piece.Write(std::u16string(piece.text) += kNewLine);
}

std::u16string ProfileText::Joined() const {
  std::u16string text;
  for (const Piece& piece : pieces_) text += piece.text;
  return text;
}

std::string ProfileText::Bytes() const {
  const std::u16string text = Joined();
  if (!unicode_) return ToPage(text);
  std::string bytes(kByteOrderMark);
  bytes.reserve(bytes.size() + 2 * text.size());
  for (const char16_t c : text) {
    bytes += static_cast<char>(c & 0xFF);
    bytes += static_cast<char>(c >> 8);
  }
  return bytes;
}

}  // namespace lorimet
