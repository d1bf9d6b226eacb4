// Texts at the edges of the program: UTF-8 inside, code page 1252 outside.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lorimet {

// The character of a byte. Each byte has one: the five codes that the page leaves undefined stand
// for the control characters of the same number.
char32_t CharacterOf(char byte);
// "?" for a character that has no code.
char ByteOf(char32_t character);
// The small letter of a letter that the page has; any other character is its own.
char32_t SmallLetterOf(char32_t character);

// For a character of the first plane, up to 0xFFFF.
void AppendUtf8(std::string& text, char32_t character);

// A character that has no code becomes "?"; so does each byte of malformed UTF-8.
std::string ToCp1252(std::string_view utf8);
std::string FromCp1252(std::string_view bytes);
// Bytes of the page in small letters.
std::string ToLowerCp1252(std::string_view bytes);

// What comes before the first NUL.
std::string_view UntilNul(std::string_view text);
// Blanks (space only) cut at both ends.
std::string Trim(std::string_view text);
std::string TrimRight(std::string_view text);
// Filled up with blanks to `length` characters; a longer text is left as it is. UTF-8.
std::string PadRight(std::string text, std::size_t length);

constexpr const char* kCrLf = "\r\n";

// "\" on Windows and "/" elsewhere.
#if defined(_WIN32)
constexpr char kPathSeparator = '\\';
#else
constexpr char kPathSeparator = '/';
#endif

}  // namespace lorimet
