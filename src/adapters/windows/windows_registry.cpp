#include "adapters/windows/windows_registry.h"

#include <windows.h>

#include <array>

namespace lorimet {

namespace {

static_assert(kRegString == REG_SZ && kRegExpandString == REG_EXPAND_SZ);
static_assert(kRegBinary == REG_BINARY && kRegDword == REG_DWORD);
static_assert(kRegFileNotFound == ERROR_FILE_NOT_FOUND && kRegMoreData == ERROR_MORE_DATA);
static_assert(kRegAccessDenied == ERROR_ACCESS_DENIED && kRegBadKey == ERROR_BADKEY);
static_assert(kRegKeyRead == KEY_READ && kRegKeyWrite == KEY_WRITE);
static_assert(kRegKeySetValue == KEY_SET_VALUE);

HKEY Root(RegistryHive hive) {
  return hive == RegistryHive::kCurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

HKEY Handle(RegistryKey key) { return reinterpret_cast<HKEY>(key); }

}  // namespace

std::int32_t WindowsRegistry::OpenKey(RegistryHive hive, const std::string& path,
                                      std::uint32_t access, RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS status = RegOpenKeyExA(Root(hive), path.c_str(), 0, access, &opened);
  if (status == ERROR_SUCCESS) {
    key = reinterpret_cast<RegistryKey>(opened);
  }
  return status;
}

std::int32_t WindowsRegistry::QueryValue(RegistryKey key, const std::string& name,
                                         std::uint32_t& type, std::vector<std::uint8_t>& data) {
  // A null buffer would ask for the size only, and that always succeeds.
  std::array<BYTE, 1> nothing{};
  DWORD stored_type = 0;
  DWORD size = static_cast<DWORD>(data.size());
  const LSTATUS status = RegQueryValueExA(Handle(key), name.c_str(), nullptr, &stored_type,
                                          data.empty() ? nothing.data() : data.data(), &size);
  if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
    type = stored_type;
  }
  if (status == ERROR_SUCCESS) {
    data.resize(size);
  }
  return status;
}

std::int32_t WindowsRegistry::SetDword(RegistryKey key, const std::string& name,
                                       std::uint32_t value) {
  const DWORD stored = value;
  return RegSetValueExA(Handle(key), name.c_str(), 0, REG_DWORD,
                        reinterpret_cast<const BYTE*>(&stored), sizeof stored);
}

std::int32_t WindowsRegistry::CreateKey(RegistryHive hive, const std::string& path,
                                        std::uint32_t access, RegistryKey& key) {
  HKEY created = nullptr;
  const LSTATUS status =
      RegCreateKeyExA(Root(hive), path.c_str(), 0, nullptr, 0, access, nullptr, &created, nullptr);
  if (status == ERROR_SUCCESS) {
    key = reinterpret_cast<RegistryKey>(created);
  }
  return status;
}

void WindowsRegistry::CloseKey(RegistryKey key) { RegCloseKey(Handle(key)); }

}  // namespace lorimet
