#include "simulator/trailer/command.h"

#include <charconv>
#include <cstddef>

namespace lorimet::simulator {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Reads what stands behind a backslash at `at`, and moves `at` to its last character.
std::optional<char> Escaped(std::string_view line, std::size_t& at) {
  if (at + 1 >= line.size()) return std::nullopt;
  const char kind = line[++at];
  if (kind != 'x') return kind;
  if (at + 2 >= line.size()) return std::nullopt;
  unsigned value = 0;
  const char* digits = line.data() + at + 1;
  const auto [end, error] = std::from_chars(digits, digits + 2, value, 16);
  if (error != std::errc() || end != digits + 2) return std::nullopt;
  at += 2;
  return static_cast<char>(value);
}

// Reads a quoted word that opens at `at`, and moves `at` behind it.
std::optional<std::string> QuotedWord(std::string_view line, std::size_t& at) {
  std::string word;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      return word;
    }
    if (line[at] != '\\') {
      word += line[at];
      continue;
    }
    const auto character = Escaped(line, at);
    if (!character) return std::nullopt;
    word += *character;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<std::string>> SplitWords(std::string_view line) {
  const std::string text = ToCodePage(line);
  std::vector<std::string> words;
  std::size_t at = 0;
  while (at < text.size()) {
    if (IsBlank(text[at])) {
      ++at;
    } else if (text[at] == '#') {
      break;
    } else if (text[at] == '"') {
      const auto word = QuotedWord(text, at);
      if (!word) return std::nullopt;
      words.push_back(*word);
    } else {
      const std::size_t begin = at;
      while (at < text.size() && !IsBlank(text[at])) ++at;
      words.push_back(text.substr(begin, at - begin));
    }
  }
  return words;
}

std::optional<double> ParseNumber(std::string_view text) {
  if (text.starts_with("0x")) {
    const auto integer = ParseInteger(text, 0, INT32_MAX);
    if (!integer) return std::nullopt;
    return static_cast<double>(*integer);
  }
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<std::int64_t> ParseInteger(std::string_view text, std::int64_t low,
                                         std::int64_t high) {
  int base = 10;
  if (text.starts_with("0x")) {
    base = 16;
    text.remove_prefix(2);
    if (text.starts_with('-')) return std::nullopt;
  }
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (value < low || value > high) return std::nullopt;
  return value;
}

std::string ToCodePage(std::string_view utf8) {
  std::string text;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (byte < 0x80) {
      text += utf8[i];
      continue;
    }
    const bool latin = (byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size();
    const unsigned code =
        latin ? (byte & 3u) << 6 | (static_cast<unsigned char>(utf8[i + 1]) & 0x3F) : 0;
    text += code >= 0xA0 ? static_cast<char>(code) : '?';
    while (i + 1 < utf8.size() && (static_cast<unsigned char>(utf8[i + 1]) & 0xC0) == 0x80) ++i;
  }
  return text;
}

}  // namespace lorimet::simulator
