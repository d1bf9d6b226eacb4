#include "adapters/posix/registry_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace lorimet {

namespace {

// The characters of the codes from 0x80 to 0x9F; the five free ones stand for themselves.
constexpr std::array<char16_t, 32> kUpperRow = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

char32_t Character(char code) {
  const auto byte = static_cast<std::uint8_t>(code);
  return byte >= 0x80 && byte < 0xA0 ? kUpperRow[byte - 0x80U] : byte;
}

char Code(char32_t character) {
  const auto* const found = std::find(kUpperRow.begin(), kUpperRow.end(), character);
  if (found != kUpperRow.end()) {
    return static_cast<char>(0x80 + (found - kUpperRow.begin()));
  }
  const bool has_own_code = character < 0x80 || (character >= 0xA0 && character < 0x100);
  return has_own_code ? static_cast<char>(character) : '?';
}

// Takes one character off the front of the bytes; none (0xFFFFFFFF) when they are not UTF-8.
char32_t TakeUtf8(std::string_view& bytes) {
  constexpr char32_t kNone = 0xFFFFFFFF;
  const auto first = static_cast<std::uint8_t>(bytes.front());
  bytes.remove_prefix(1);
  if (first < 0x80) {
    return first;
  }
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
  char32_t character = first & (0x3FU >> more);
  for (int i = 0; i < more; ++i) {
    if (bytes.empty() || (static_cast<std::uint8_t>(bytes.front()) & 0xC0) != 0x80) {
      return kNone;
    }
    character = character << 6 | (static_cast<std::uint8_t>(bytes.front()) & 0x3FU);
    bytes.remove_prefix(1);
  }
  return more > 0 ? character : kNone;
}

}  // namespace

std::string CodePageFromUtf16(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<std::uint8_t>(bytes[i]);
    const auto high = static_cast<std::uint8_t>(bytes[i + 1]);
    const auto unit = static_cast<char32_t>(high << 8 | low);
    // A pair of surrogates is one character; its second half adds nothing.
    if (unit < 0xDC00 || unit > 0xDFFF) {
      text += Code(unit);
    }
  }
  return text;
}

std::string CodePageFromUtf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    text += Code(TakeUtf8(bytes));
  }
  return text;
}

std::string Utf16FromCodePage(std::string_view text) {
  std::string bytes;
  for (const char code : text) {
    const char32_t character = Character(code);
    bytes += static_cast<char>(character & 0xFF);
    bytes += static_cast<char>(character >> 8);
  }
  return bytes;
}

std::string Utf8FromCodePage(std::string_view text) {
  std::string bytes;
  for (const char code : text) {
    const char32_t character = Character(code);
    if (character < 0x80) {
      bytes += code;
    } else if (character < 0x800) {
      bytes += static_cast<char>(0xC0 | character >> 6);
      bytes += static_cast<char>(0x80 | (character & 0x3F));
    } else {
      bytes += static_cast<char>(0xE0 | character >> 12);
      bytes += static_cast<char>(0x80 | (character >> 6 & 0x3F));
      bytes += static_cast<char>(0x80 | (character & 0x3F));
    }
  }
  return bytes;
}

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (char& code : folded) {
    const auto byte = static_cast<std::uint8_t>(code);
    const bool latin = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    if ((byte >= 'A' && byte <= 'Z') || latin) {
      code = static_cast<char>(byte + 0x20);
    } else if (byte == 0x8A || byte == 0x8C || byte == 0x8E) {
      code = static_cast<char>(byte + 0x10);
    } else if (byte == 0x9F) {
      code = static_cast<char>(0xFF);
    }
  }
  return folded;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace lorimet
