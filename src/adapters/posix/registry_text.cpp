#include "adapters/posix/registry_text.h"

#include <cstddef>
#include <cstdint>

#include "support/text.h"

namespace lorimet {

std::string CodePageFromUtf16(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<std::uint8_t>(bytes[i]);
    const auto high = static_cast<std::uint8_t>(bytes[i + 1]);
    const auto unit = static_cast<char32_t>(high << 8 | low);
    // A pair of surrogates is one character; its second half adds nothing.
    if (unit < 0xDC00 || unit > 0xDFFF) {
      text += ByteOf(unit);
    }
  }
  return text;
}

std::string Utf16FromCodePage(std::string_view text) {
  std::string bytes;
  for (const char code : text) {
    const char32_t character = CharacterOf(code);
    bytes += static_cast<char>(character & 0xFF);
    bytes += static_cast<char>(character >> 8);
  }
  return bytes;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace lorimet
