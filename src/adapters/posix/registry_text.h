// Texts of the registry's files: UTF-16, and the blanks round a line.
#pragma once

#include <string>
#include <string_view>

namespace lorimet {

// Between UTF-16LE and code page 1252. A character that the page does not have becomes "?"; an odd
// last byte is left out.
std::string CodePageFromUtf16(std::string_view bytes);
std::string Utf16FromCodePage(std::string_view text);

// The text without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text);

}  // namespace lorimet
