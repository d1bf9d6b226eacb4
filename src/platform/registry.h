// The registry port: keys, values and the error codes of the platform's registry calls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lorimet {

enum class RegistryHive { kCurrentUser, kLocalMachine };

// Types of a value, by the platform's numbers.
constexpr std::uint32_t kRegString = 1;
constexpr std::uint32_t kRegExpandString = 2;
constexpr std::uint32_t kRegBinary = 3;
constexpr std::uint32_t kRegDword = 4;

// Error codes, by the platform's numbers.
constexpr std::int32_t kRegSuccess = 0;
constexpr std::int32_t kRegFileNotFound = 2;
constexpr std::int32_t kRegAccessDenied = 5;
constexpr std::int32_t kRegMoreData = 234;
constexpr std::int32_t kRegBadKey = 1010;

// Access rights, by the platform's numbers.
constexpr std::uint32_t kRegKeyRead = 0x20019;
constexpr std::uint32_t kRegKeyWrite = 0x20006;
constexpr std::uint32_t kRegKeySetValue = 2;

using RegistryKey = std::uintptr_t;

class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::int32_t OpenKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                               RegistryKey& key) = 0;
  // `data` comes in with the size of the caller's buffer and goes out with the bytes of the value,
  // a text with its NUL, code page 1252. kRegMoreData when the value is larger than the buffer.
  // The empty name is the key's default value.
  virtual std::int32_t QueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                                  std::vector<std::uint8_t>& data) = 0;
  virtual std::int32_t SetDword(RegistryKey key, const std::string& name, std::uint32_t value) = 0;
  virtual std::int32_t CreateKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                                 RegistryKey& key) = 0;
  virtual void CloseKey(RegistryKey key) = 0;
};

}  // namespace lorimet
