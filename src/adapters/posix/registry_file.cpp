#include "adapters/posix/registry_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <string_view>
#include <utility>

#include "adapters/posix/registry_text.h"
#include "platform/registry.h"
#include "support/text.h"

namespace lorimet {

namespace {

constexpr std::string_view kHeader4 = "REGEDIT4";
constexpr std::string_view kHeader5 = "Windows Registry Editor Version 5.00";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";

constexpr std::uint32_t kRegMultiString = 7;

bool IsText(std::uint32_t type) {
  return type == kRegString || type == kRegExpandString || type == kRegMultiString;
}

// The key as it is looked up: small letters, no separator at its end, and the branch that a 64-bit
// Windows keeps for 32-bit programs in the place where such a program sees it.
std::string KeyOf(std::string_view key) {
  constexpr std::string_view kBranch = "hkey_local_machine\\software\\wow6432node\\";
  constexpr std::string_view kSeenAs = "hkey_local_machine\\software\\";
  std::string folded = ToLowerCp1252(key);
  while (!folded.empty() && folded.back() == '\\') {
    folded.pop_back();
  }
  if (folded.starts_with(kBranch)) {
    folded.replace(0, kBranch.size(), kSeenAs);
  }
  return folded;
}

std::string Quoted(const std::string& name) {
  std::string text = "\"";
  for (const char character : name) {
    if (character == '"' || character == '\\') {
      text += '\\';
    }
    text += character;
  }
  return text + '"';
}

// Takes the quoted text off the front; none when its end is missing. A backslash before anything
// but a quote or a backslash is itself, so a path typed with single ones is understood.
std::optional<std::string> TakeQuoted(std::string_view& text) {
  std::string content;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '"') {
      text.remove_prefix(i + 1);
      return content;
    }
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (escape && (text[i + 1] == '"' || text[i + 1] == '\\')) {
      ++i;
    }
    content += text[i];
  }
  return std::nullopt;
}

// The whole of the text as a hexadecimal number.
std::optional<std::uint32_t> HexNumber(std::string_view digits) {
  std::uint32_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number, 16);
  if (error != std::errc() || stop != end) {
    return std::nullopt;
  }
  return number;
}

bool IsCommentOrNothing(std::string_view text) {
  const std::string_view rest = Trimmed(text);
  return rest.empty() || rest.front() == ';';
}

std::string_view WithoutComment(std::string_view text) {
  return Trimmed(text.substr(0, text.find(';')));
}

}  // namespace

RegistryFile::RegistryFile() { lines_.push_back(MakeLine(std::string(kHeader4))); }

std::optional<RegistryFile> RegistryFile::Parse(const std::string& bytes) {
  RegistryFile file;
  file.Split(bytes);
  if (!file.Index()) {
    return std::nullopt;
  }
  return file;
}

bool RegistryFile::HasKey(const std::string& key) const {
  const std::string wanted = KeyOf(key);
  return std::any_of(sections_.begin(), sections_.end(), [&](const Section& section) {
    return section.key == wanted || section.key.starts_with(wanted + '\\');
  });
}

std::optional<RegistryValue> RegistryFile::Find(const std::string& key,
                                                const std::string& name) const {
  const Entry* entry = FindEntry(key, name);
  return entry != nullptr ? std::optional(entry->value) : std::nullopt;
}

void RegistryFile::AddKey(const std::string& key) {
  EndLastLine();
  if (!lines_.back().text.empty()) {
    lines_.push_back(MakeLine(""));
  }
  lines_.push_back(MakeLine('[' + key + ']'));
  Index();
}

void RegistryFile::SetDword(const std::string& key, const std::string& name, std::uint32_t value) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "=dword:%08x", static_cast<unsigned int>(value));
  if (const Entry* entry = FindEntry(key, name); entry != nullptr) {
    const auto place = lines_.begin() + static_cast<std::ptrdiff_t>(entry->first);
    *place = MakeLine(entry->left + digits.data());
    lines_.erase(place + 1, place + static_cast<std::ptrdiff_t>(entry->count));
    Index();
    return;
  }
  const auto has_key = [wanted = KeyOf(key)](const Section& section) {
    return section.key == wanted;
  };
  if (std::none_of(sections_.begin(), sections_.end(), has_key)) {
    AddKey(key);
  }
  EndLastLine();
  const auto section = std::find_if(sections_.rbegin(), sections_.rend(), has_key);
  const std::string left = name.empty() ? "@" : Quoted(name);
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(section->last) + 1,
                MakeLine(left + digits.data()));
  Index();
}

std::string RegistryFile::Bytes() const {
  std::string bytes = mark_;
  for (const Line& line : lines_) {
    bytes += line.raw;
  }
  return bytes;
}

// Tells the encoding by the mark and takes the lines apart.
void RegistryFile::Split(const std::string& bytes) {
  std::string_view rest = bytes;
  for (const auto& [mark, encoding] :
       {std::pair(kUtf8Mark, Encoding::kUtf8), std::pair(kUtf16Mark, Encoding::kUtf16)}) {
    if (rest.starts_with(mark)) {
      encoding_ = encoding;
      mark_ = mark;
      rest.remove_prefix(mark.size());
    }
  }
  const std::size_t width = encoding_ == Encoding::kUtf16 ? 2 : 1;
  const std::string_view newline("\n\0", width);
  lines_.clear();
  while (!rest.empty()) {
    std::size_t end = rest.find(newline);
    while (end != std::string_view::npos && end % width != 0) {
      end = rest.find(newline, end + 1);
    }
    const std::string_view raw = rest.substr(0, end == std::string_view::npos ? end : end + width);
    rest.remove_prefix(raw.size());
    std::string text = encoding_ == Encoding::kUtf16  ? CodePageFromUtf16(raw)
                       : encoding_ == Encoding::kUtf8 ? ToCp1252(raw)
                                                      : std::string(raw);
    if (lines_.empty() && text.ends_with('\n') && !text.ends_with("\r\n")) {
      line_end_ = "\n";
    }
    text.erase(text.find_last_not_of("\r\n") + 1);
    lines_.push_back({std::string(raw), std::string(Trimmed(text))});
  }
}

// Finds the keys and values in the lines; false when they do not begin with a header.
bool RegistryFile::Index() {
  sections_.clear();
  entries_.clear();
  std::size_t i = 0;
  while (i < lines_.size() && IsCommentOrNothing(lines_[i].text)) {
    ++i;
  }
  if (i == lines_.size() || (lines_[i].text != kHeader4 && lines_[i].text != kHeader5)) {
    return false;
  }
  wide_texts_ = lines_[i].text == kHeader5;
  bool in_key = false;
  for (++i; i < lines_.size(); ++i) {
    const std::string& text = lines_[i].text;
    if (text.starts_with('[')) {
      const std::size_t end = text.rfind(']');
      in_key = end != std::string::npos && !text.starts_with("[-");
      if (in_key) {
        sections_.push_back({KeyOf(text.substr(1, end - 1)), i});
      }
    } else if (in_key && (text.starts_with('"') || text.starts_with('@'))) {
      IndexValue(i);
    }
  }
  return true;
}

// Takes in the value that begins in the line, and moves on to its last one.
void RegistryFile::IndexValue(std::size_t& line) {
  const std::size_t first = line;
  const std::string joined = Joined(line);
  sections_.back().last = line;
  std::string_view text = joined;
  std::optional<std::string> name = "";
  if (text.front() == '@') {
    text.remove_prefix(1);
  } else {
    name = TakeQuoted(text);
  }
  const std::string left = joined.substr(0, joined.size() - text.size());
  text = Trimmed(text);
  if (!name || !text.starts_with('=')) {
    return;
  }
  std::optional<RegistryValue> value = ParseValue(std::string(Trimmed(text.substr(1))));
  if (value) {
    entries_.push_back({sections_.back().key, ToLowerCp1252(*name), left, first, line - first + 1,
                        std::move(*value)});
  }
}

// The line with those that continue it. Bytes go on in the next line when one ends in a backslash;
// what does not look like bytes there is a line of its own.
std::string RegistryFile::Joined(std::size_t& line) const {
  std::string text = lines_[line].text;
  while (text.ends_with('\\') && line + 1 < lines_.size() && !lines_[line + 1].text.empty() &&
         std::isxdigit(static_cast<unsigned char>(lines_[line + 1].text.front())) != 0) {
    text.pop_back();
    text += lines_[++line].text;
  }
  return text;
}

// The right side of a value; none when it makes no sense or is a deletion.
std::optional<RegistryValue> RegistryFile::ParseValue(const std::string& text) const {
  constexpr std::string_view kDword = "dword:";
  if (text.starts_with('"')) {
    std::string_view rest = text;
    std::optional<std::string> content = TakeQuoted(rest);
    if (!content || !IsCommentOrNothing(rest)) {
      return std::nullopt;
    }
    content->push_back('\0');
    return RegistryValue{kRegString, {content->begin(), content->end()}};
  }
  const std::string folded = ToLowerCp1252(text);
  if (folded.starts_with(kDword)) {
    const std::optional<std::uint32_t> number =
        HexNumber(WithoutComment(std::string_view{folded}.substr(kDword.size())));
    if (!number) {
      return std::nullopt;
    }
    RegistryValue value{kRegDword, {}};
    for (int shift = 0; shift < 32; shift += 8) {
      value.data.push_back(static_cast<std::uint8_t>(*number >> shift));
    }
    return value;
  }
  return folded.starts_with("hex") ? ParseHex(folded.substr(3)) : std::nullopt;
}

// What follows "hex": the type in parentheses, if it is not binary, and the bytes.
std::optional<RegistryValue> RegistryFile::ParseHex(const std::string& text) const {
  std::optional<std::uint32_t> type = kRegBinary;
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos) {
    return std::nullopt;
  }
  if (colon != 0) {
    const bool parentheses = text.front() == '(' && text[colon - 1] == ')' && colon > 2;
    type = parentheses ? HexNumber(std::string_view{text}.substr(1, colon - 2)) : std::nullopt;
  }
  if (!type) {
    return std::nullopt;
  }
  std::string bytes;
  std::string_view rest = WithoutComment(std::string_view{text}.substr(colon + 1));
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    const std::optional<std::uint32_t> byte = HexNumber(Trimmed(rest.substr(0, comma)));
    if (!byte || *byte > 0xFF) {
      return std::nullopt;
    }
    bytes += static_cast<char>(*byte);
    rest.remove_prefix(std::min(comma + 1, rest.size()));
    rest = Trimmed(rest);
  }
  if (wide_texts_ && IsText(*type)) {
    bytes = CodePageFromUtf16(bytes);
  }
  return RegistryValue{*type, {bytes.begin(), bytes.end()}};
}

const RegistryFile::Entry* RegistryFile::FindEntry(const std::string& key,
                                                   const std::string& name) const {
  const std::string wanted_key = KeyOf(key);
  const std::string wanted_name = ToLowerCp1252(name);
  const auto found = std::find_if(entries_.rbegin(), entries_.rend(), [&](const Entry& entry) {
    return entry.key == wanted_key && entry.name == wanted_name;
  });
  return found != entries_.rend() ? &*found : nullptr;
}

RegistryFile::Line RegistryFile::MakeLine(const std::string& text) const {
  const std::string ended = text + line_end_;
  return {encoding_ == Encoding::kUtf16  ? Utf16FromCodePage(ended)
          : encoding_ == Encoding::kUtf8 ? FromCp1252(ended)
                                         : ended,
          text};
}

// Gives the last line its end, so that another can follow.
void RegistryFile::EndLastLine() {
  const std::string end = MakeLine("").raw;
  const std::string newline = encoding_ == Encoding::kUtf16 ? std::string("\n\0", 2) : "\n";
  if (!lines_.empty() && !lines_.back().raw.ends_with(newline)) {
    lines_.back().raw += end;
  }
}

}  // namespace lorimet
