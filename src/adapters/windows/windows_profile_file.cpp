#include "adapters/windows/windows_profile_file.h"

#include <algorithm>
#include <limits>

#include "adapters/windows/file_errors.h"

#include <windows.h>

namespace lorimet {
namespace {

// The path in the code page that the calls expect, complete: a bare file name would mean the
// folder of Windows. Empty when there is none.
std::string FullPath(const std::string& path) {
  const auto length = static_cast<int>(path.size());
  std::wstring wide(path.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      std::max(0, MultiByteToWideChar(CP_UTF8, 0, path.data(), length, wide.data(), length))));
  std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  const auto count = static_cast<int>(full.size());
  const int needed =
      WideCharToMultiByte(CP_ACP, 0, full.data(), count, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(std::max(0, needed)), '\0');
  WideCharToMultiByte(CP_ACP, 0, full.data(), count, result.data(), needed, nullptr, nullptr);
  return result;
}

}  // namespace

std::string WindowsProfileFile::GetString(const std::string& section, const std::string& key,
                                          const std::string& fallback, std::size_t size,
                                          const std::string& path) {
  if (size == 0) return {};
  const std::size_t room = std::min<std::size_t>(size, std::numeric_limits<DWORD>::max());
  std::string buffer(room, ' ');
  const DWORD length =
      GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), buffer.data(),
                               static_cast<DWORD>(room), FullPath(path).c_str());
  buffer.resize(std::min<std::size_t>(length, room));
  buffer.resize(std::min(buffer.find('\0'), buffer.size()));
  return buffer;
}

bool WindowsProfileFile::WriteString(const std::string& section, const std::string& key,
                                     const std::string& value, const std::string& path) {
  const bool written = WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(),
                                                  FullPath(path).c_str()) != 0;
  if (!written) last_error_ = ErrorOfCall(GetLastError());
  return written;
}

}  // namespace lorimet
