#include "support/file_names.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

// The device names that Windows reserves in every folder, with any extension (Microsoft, "Naming
// Files, Paths, and Namespaces").
constexpr std::array<std::string_view, 22> kDevices = {
    "CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
    "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9",
};

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool IsDevice(const std::string& name) {
  std::string stem = name.substr(0, name.find('.'));
  stem.erase(stem.find_last_not_of(' ') + 1);
  std::ranges::transform(stem, stem.begin(), Upper);
  return std::ranges::find(kDevices, stem) != kDevices.end();
}

}  // namespace

bool IsFileName(const std::string& name) {
  const bool bad_character = std::ranges::any_of(name, [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 0x20 || code == 0x7F || c == '/' || c == '\\' || c == ':';
  });
  const bool nothing = name.find_first_not_of(". ") == std::string::npos;
  return !bad_character && !nothing && !IsDevice(name);
}

void CheckFileName(const std::string& name) {
  if (!IsFileName(name)) throw RuntimeError(ErrorNumber::kBadFileNameOrNumber);
}

}  // namespace lorimet
