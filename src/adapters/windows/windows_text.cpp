#include "adapters/windows/windows_text.h"

#include <windows.h>

namespace lorimet {

namespace {

std::string NarrowFromWide(UINT code_page, const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(code_page, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(code_page, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

}  // namespace

std::wstring WideFromUtf8(const std::string& text) {
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
  return wide;
}

std::string Utf8FromWide(const std::wstring& text) { return NarrowFromWide(CP_UTF8, text); }

std::string AnsiFromUtf8(const std::string& text) {
  return NarrowFromWide(CP_ACP, WideFromUtf8(text));
}

std::string SystemErrorText(unsigned long error) {
  std::wstring text(512, L'\0');
  const DWORD size =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                     text.data(), static_cast<DWORD>(text.size()), nullptr);
  text.resize(size);
  text.erase(text.find_last_not_of(L"\r\n ") + 1);
  return text.empty() ? "Error " + std::to_string(error) : Utf8FromWide(text);
}

std::string ExecutableFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  // A cut path fills the buffer.
  while (size == path.size()) {
    path.resize(path.size() * 2);
    size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(size);
  path.erase(path.find_last_of(L'\\') == std::wstring::npos ? 0 : path.find_last_of(L'\\'));
  return Utf8FromWide(path);
}

}  // namespace lorimet
