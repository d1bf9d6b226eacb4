#include "support/settings.h"

#include <charconv>

#include "platform/process.h"
#include "platform/runtime_error.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::size_t kBufferSize = 0x400;

std::string DecimalOfHex(const std::string& digits) {
  std::uint32_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto result = std::from_chars(digits.data(), end, number, 16);
  if (result.ec == std::errc::result_out_of_range) throw RuntimeError(ErrorNumber::kOverflow);
  if (result.ec != std::errc{} || result.ptr != end) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return std::to_string(static_cast<std::int32_t>(number));
}

}  // namespace

bool Settings::ReadRegString(RegistryHive hive, const std::string& key, const std::string& name,
                             std::string& value) {
  RegistryKey handle = 0;
  if (registry_.OpenKey(hive, key, kRegKeyRead, handle) != kRegSuccess) {
    value.clear();
    return false;
  }
  std::uint32_t type = 0;
  std::vector<std::uint8_t> data(kBufferSize);
  if (registry_.QueryValue(handle, name, type, data) != kRegSuccess) {
    value.clear();
    registry_.CloseKey(handle);
    return false;
  }
  registry_.CloseKey(handle);
  if (!data.empty() && data.back() == 0) data.pop_back();
  if (type == kRegString) {
    value = FromCp1252(std::string(data.begin(), data.end()));
  } else if (type == kRegDword) {
    for (auto byte = data.rbegin(); byte != data.rend(); ++byte) value += HexText(*byte);
    if (!value.empty()) value = DecimalOfHex(value);
  }
  return true;
}

bool Settings::WriteRegDword(const std::string& key, const std::string& name, std::int16_t value,
                             RegistryHive hive) {
  RegistryKey handle = 0;
  std::int32_t result = registry_.OpenKey(hive, key, kRegKeySetValue, handle);
  if ((result == kRegFileNotFound || result == kRegBadKey) && CreateRegKey(key))
    result = registry_.OpenKey(hive, key, kRegKeySetValue, handle);
  if (result != kRegSuccess) return false;
  result = registry_.SetDword(handle, name, static_cast<std::uint32_t>(std::int32_t{value}));
  registry_.CloseKey(handle);
  return result == kRegSuccess;
}

bool Settings::CreateRegKey(const std::string& key) {
  RegistryKey handle = 0;
  if (registry_.CreateKey(RegistryHive::kCurrentUser, key, kRegKeyWrite, handle) != kRegSuccess)
    return false;
  registry_.CloseKey(handle);
  return true;
}

std::string Settings::ReadText(RegistryHive hive, const std::string& name,
                               const std::string& fallback) {
  std::string value;
  if (!ReadRegString(hive, kProductKey, name, value) || value.empty()) return fallback;
  return value;
}

std::string Settings::ReadTextOrDefault(RegistryHive hive, const std::string& name,
                                        const std::string& fallback) {
  try {
    return ReadText(hive, name, fallback);
  } catch (const RuntimeError&) {
    return fallback;  // a number whose size is none of a number's
  }
}

std::string Settings::GetVendor() {
  return ReadTextOrDefault(RegistryHive::kCurrentUser, "Vendor", "");
}

std::int16_t Settings::GetDeviceID() {
  return ToInteger(StrictNumber(ReadText(RegistryHive::kCurrentUser, "DeviceID", "-1")));
}

std::string Settings::GetProtocol() {
  return ReadTextOrDefault(RegistryHive::kCurrentUser, "Protocol", "-1");
}

std::int16_t Settings::GetLanguage() {
  try {
    return ToInteger(StrictNumber(ReadText(RegistryHive::kCurrentUser, "Language", "-1")));
  } catch (const RuntimeError&) {
    return -1;  // what is no number selects no language
  }
}

std::string Settings::GetHelpDir() {
  return ReadTextOrDefault(RegistryHive::kLocalMachine, "HelpDir", "");
}

void Settings::SaveLanguage(std::int16_t language) {
  WriteRegDword(kProductKey, "Language", language);
}

std::int16_t RunApp(Settings& settings, Process& process, const std::string& file_name,
                    const std::string& arguments) {
  std::string path;
  try {
    if (!settings.ReadRegString(RegistryHive::kLocalMachine, kAppPathsKey + file_name, "", path))
      return 2;
  } catch (const RuntimeError&) {
    return 2;  // a number in the path's place, of a size that none has
  }
  if (!process.FileExists(path)) return 1;
  return process.Start(path, arguments) ? 0 : 1;
}

}  // namespace lorimet
