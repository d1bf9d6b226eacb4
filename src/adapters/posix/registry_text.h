// Code page 1252 for the registry's files: to and from their encodings, and without regard to case.
#pragma once

#include <string>
#include <string_view>

namespace lorimet {

// A character that the code page does not have, or bytes that are none, become "?".
std::string CodePageFromUtf16(std::string_view bytes);  // little-endian; an odd last byte is left
std::string CodePageFromUtf8(std::string_view bytes);
std::string Utf16FromCodePage(std::string_view text);  // little-endian
std::string Utf8FromCodePage(std::string_view text);

// The text in small letters.
std::string FoldCase(std::string_view text);
// The text without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text);

}  // namespace lorimet
