// The registry by the system's own calls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace lorimet {

class WindowsRegistry : public Registry {
 public:
  std::int32_t OpenKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                       RegistryKey& key) override;
  std::int32_t QueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                          std::vector<std::uint8_t>& data) override;
  std::int32_t SetDword(RegistryKey key, const std::string& name, std::uint32_t value) override;
  std::int32_t CreateKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                         RegistryKey& key) override;
  void CloseKey(RegistryKey key) override;
};

}  // namespace lorimet
