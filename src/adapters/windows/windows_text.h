// Texts for Windows calls: UTF-8 as the program has them, to and from the system's wide characters.
#pragma once

#include <string>

namespace lorimet {

// Bytes that are no UTF-8 become the replacement character.
std::wstring WideFromUtf8(const std::string& text);
std::string Utf8FromWide(const std::wstring& text);
// For calls that know the system's own code page only; "?" for what it does not have.
std::string AnsiFromUtf8(const std::string& text);

// The system's words for an error of GetLastError, with no line end.
std::string SystemErrorText(unsigned long error);
// The folder of the executable, with no separator at its end.
std::string ExecutableFolder();

}  // namespace lorimet
