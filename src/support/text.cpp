#include "support/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace lorimet {
namespace {

// The characters of the codes 0x80 to 0x9F (Unicode's mapping table of code page 1252).
constexpr std::array<char32_t, 32> kUpper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// The length of the sequence that a lead byte opens; 0 for a byte that opens none.
std::size_t SequenceLength(std::uint8_t lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  if (lead >= 0xF0 && lead < 0xF5) return 4;
  return 0;
}

// A character in more bytes than it needs, half of a surrogate pair, or one beyond the last plane
// is as malformed as a broken sequence; else a separator could be smuggled in as an overlong "/".
bool IsWellFormed(char32_t c, std::size_t length) {
  constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
  return c >= kLeast[length] && c <= 0x10FFFF && !(c >= 0xD800 && c <= 0xDFFF);
}

}  // namespace

void AppendUtf8(std::string& text, char32_t c) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (c >> 12));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char32_t CharacterOf(char byte) {
  const auto code = static_cast<std::uint8_t>(byte);
  return code >= 0x80 && code < 0xA0 ? kUpper[code - 0x80] : char32_t{code};
}

char ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
    return static_cast<char>(character);
  const auto* const found = std::ranges::find(kUpper, character);
  return found == kUpper.end() ? '?' : static_cast<char>(0x80 + (found - kUpper.begin()));
}

char32_t SmallLetterOf(char32_t character) {
  const bool latin = character >= 0xC0 && character <= 0xDE && character != 0xD7;
  if ((character >= U'A' && character <= U'Z') || latin) return character + 0x20;
  if (character == U'Š' || character == U'Œ' || character == U'Ž') return character + 1;
  return character == U'Ÿ' ? U'ÿ' : character;
}

std::string ToCp1252(std::string_view utf8) {
  constexpr std::array<std::uint8_t, 5> kLeadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<std::uint8_t>(utf8[i]);
    const std::size_t length = SequenceLength(lead);
    bool whole = length != 0 && i + length <= utf8.size();
    char32_t c = whole ? lead & kLeadBits[length] : 0;
    for (std::size_t k = 1; whole && k < length; ++k) {
      const auto next = static_cast<std::uint8_t>(utf8[i + k]);
      whole = (next & 0xC0) == 0x80;
      c = c << 6 | (next & 0x3F);
    }
    whole = whole && IsWellFormed(c, length);
    bytes += whole ? ByteOf(c) : '?';
    i += whole ? length : 1;
  }
  return bytes;
}

std::string FromCp1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, CharacterOf(byte));
  return text;
}

std::string ToLowerCp1252(std::string_view bytes) {
  std::string lower(bytes);
  for (char& byte : lower) byte = ByteOf(SmallLetterOf(CharacterOf(byte)));
  return lower;
}

std::string_view UntilNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string TrimRight(std::string_view text) {
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string PadRight(std::string text, std::size_t length) {
  const auto continues = [](char c) { return (static_cast<std::uint8_t>(c) & 0xC0) == 0x80; };
  const std::size_t characters =
      text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues));
  if (characters < length) text.append(length - characters, ' ');
  return text;
}

}  // namespace lorimet
