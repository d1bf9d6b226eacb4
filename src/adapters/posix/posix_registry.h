// The registry where there is none: both hives in one text file of the registry's export format.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "adapters/posix/file_calls.h"
#include "adapters/posix/registry_file.h"
#include "platform/registry.h"

namespace lorimet {

// The file is read at every call, so what another program writes takes effect at once, and replaced
// as a whole when written: a crash leaves the old one or the new one. A file that is missing has no
// keys, and so has one that cannot be read or is none of the registry's; but that one is not
// overwritten either (kRegAccessDenied). Keys and names are in code page 1252 like the texts.
class PosixRegistry : public Registry {
 public:
  explicit PosixRegistry(std::string file = DefaultFile(), FileCalls calls = {});
  // registry.reg in this program's folder in the user's configuration.
  static std::string DefaultFile();

  std::int32_t OpenKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                       RegistryKey& key) override;
  std::int32_t QueryValue(RegistryKey key, const std::string& name, std::uint32_t& type,
                          std::vector<std::uint8_t>& data) override;
  std::int32_t SetDword(RegistryKey key, const std::string& name, std::uint32_t value) override;
  std::int32_t CreateKey(RegistryHive hive, const std::string& path, std::uint32_t access,
                         RegistryKey& key) override;
  void CloseKey(RegistryKey key) override;

 private:
  struct OpenedKey {
    std::string path;  // with its hive
    std::uint32_t access;
  };
  // What the disk has; `file` is none when there is nothing to read keys from.
  struct Loaded {
    std::optional<RegistryFile> file;
    bool missing;
  };

  Loaded Load() const;
  bool Store(const RegistryFile& file) const;
  RegistryKey Remember(const std::string& path, std::uint32_t access);

  std::string file_;
  FileCalls calls_;
  std::map<RegistryKey, OpenedKey> opened_;
  RegistryKey last_key_ = 0;
};

}  // namespace lorimet
