// The settings of the program, in the registry; read anew at every call.
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

namespace lorimet {

class Process;

inline constexpr const char* kProductKey = R"(SOFTWARE\Norvick\Norvick Lorimet)";
inline constexpr const char* kAppPathsKey =
    R"(SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\)";

class Settings {
 public:
  explicit Settings(Registry& registry) : registry_(registry) {}

  // Reads a value as text: a string as it is, a DWORD as decimal text, any other type leaves
  // `value` unchanged. A DWORD is decoded byte by byte, each byte without its leading zero, behind
  // whatever `value` held; so a number above 255 whose lower byte is below 16 reads wrong, which
  // the stored settings never reach. False, with an empty value, when the key or the value is
  // missing or larger than 1,024 bytes. Error 6 when the digits exceed 32 bits, 13 when they are
  // no number.
  bool ReadRegString(RegistryHive hive, const std::string& key, const std::string& name,
                     std::string& value);
  // Creates the key when it is missing. True when the value was written.
  bool WriteRegDword(const std::string& key, const std::string& name, std::int16_t value,
                     RegistryHive hive = RegistryHive::kCurrentUser);
  // Under the current user.
  bool CreateRegKey(const std::string& key);

  std::string GetVendor();     // empty by default
  std::int16_t GetDeviceID();  // -1 by default; error 13 for a text that is no number
  std::string GetProtocol();   // "-1" by default
  std::int16_t GetLanguage();  // -1 by default and for what is no number
  std::string GetHelpDir();    // empty by default
  void SaveLanguage(std::int16_t language);

 private:
  // Raises for a number of an odd size, which ReadTextOrDefault takes for none.
  std::string ReadText(RegistryHive hive, const std::string& name, const std::string& fallback);
  std::string ReadTextOrDefault(RegistryHive hive, const std::string& name,
                                const std::string& fallback);

  Registry& registry_;
};

// Starts an installed program by its file name. 0 when it was started, 1 when its path does not
// exist or cannot be started, 2 when it is not installed.
std::int16_t RunApp(Settings& settings, Process& process, const std::string& file_name,
                    const std::string& arguments);

}  // namespace lorimet
