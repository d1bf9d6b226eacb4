#include "adapters/posix/posix_registry.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "adapters/posix/file_descriptor.h"
#include "adapters/posix/user_folders.h"
#include "adapters/posix/whole_file.h"

namespace lorimet {

namespace {

constexpr std::int32_t kInvalidHandle = 6;
constexpr std::int32_t kInvalidParameter = 87;
constexpr std::uint32_t kRegKeyQueryValue = 1;
constexpr mode_t kNewFileMode = 0600;

std::string WholePath(RegistryHive hive, const std::string& path) {
  const std::string root =
      hive == RegistryHive::kCurrentUser ? "HKEY_CURRENT_USER" : "HKEY_LOCAL_MACHINE";
  const std::size_t end = path.find_last_not_of('\\');
  return end == std::string::npos ? root : root + '\\' + path.substr(0, end + 1);
}

// True for what one line of the file can hold.
bool IsOneLine(const std::string& text) {
  return std::none_of(text.begin(), text.end(),
                      [](char code) { return static_cast<unsigned char>(code) < ' '; });
}

}  // namespace

PosixRegistry::PosixRegistry(std::string file, FileCalls calls)
    : file_(std::move(file)), calls_(std::move(calls)) {}

std::string PosixRegistry::DefaultFile() {
  return ConfigFolder() + "/norvick-lorimet/registry.reg";
}

std::int32_t PosixRegistry::OpenKey(RegistryHive hive, const std::string& path,
                                    std::uint32_t access, RegistryKey& key) {
  const Loaded loaded = Load();
  const std::string whole = WholePath(hive, path);
  if (!loaded.file || !loaded.file->HasKey(whole)) {
    return kRegFileNotFound;
  }
  key = Remember(whole, access);
  return kRegSuccess;
}

std::int32_t PosixRegistry::QueryValue(RegistryKey key, const std::string& name,
                                       std::uint32_t& type, std::vector<std::uint8_t>& data) {
  const auto opened = opened_.find(key);
  if (opened == opened_.end()) {
    return kInvalidHandle;
  }
  if ((opened->second.access & kRegKeyQueryValue) == 0) {
    return kRegAccessDenied;
  }
  const Loaded loaded = Load();
  std::optional<RegistryValue> value;
  if (loaded.file) {
    value = loaded.file->Find(opened->second.path, name);
  }
  if (!value) {
    return kRegFileNotFound;
  }
  type = value->type;
  if (value->data.size() > data.size()) {
    return kRegMoreData;
  }
  data = std::move(value->data);
  return kRegSuccess;
}

std::int32_t PosixRegistry::SetDword(RegistryKey key, const std::string& name,
                                     std::uint32_t value) {
  const auto opened = opened_.find(key);
  if (opened == opened_.end()) {
    return kInvalidHandle;
  }
  if ((opened->second.access & kRegKeySetValue) == 0) {
    return kRegAccessDenied;
  }
  if (!IsOneLine(name)) {
    return kInvalidParameter;
  }
  Loaded loaded = Load();
  if (!loaded.file) {
    return loaded.missing ? kRegFileNotFound : kRegAccessDenied;
  }
  loaded.file->SetDword(opened->second.path, name, value);
  return Store(*loaded.file) ? kRegSuccess : kRegAccessDenied;
}

std::int32_t PosixRegistry::CreateKey(RegistryHive hive, const std::string& path,
                                      std::uint32_t access, RegistryKey& key) {
  const std::string whole = WholePath(hive, path);
  if (!IsOneLine(whole)) {
    return kRegBadKey;
  }
  Loaded loaded = Load();
  if (loaded.missing) {
    loaded.file.emplace();
  }
  if (!loaded.file) {
    return kRegAccessDenied;
  }
  if (!loaded.file->HasKey(whole)) {
    loaded.file->AddKey(whole);
    if (!Store(*loaded.file)) {
      return kRegAccessDenied;
    }
  }
  key = Remember(whole, access);
  return kRegSuccess;
}

void PosixRegistry::CloseKey(RegistryKey key) { opened_.erase(key); }

PosixRegistry::Loaded PosixRegistry::Load() const {
  // Never waits, whatever the name stands for.
  const FileDescriptor opened(open(file_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!opened.IsOpen()) {
    return {std::nullopt, errno == ENOENT};
  }
  struct stat status {};
  if (fstat(opened.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
      status.st_size > static_cast<off_t>(kLargestFile)) {
    return {std::nullopt, false};
  }
  std::string bytes;
  if (ReadRest(opened.Get(), bytes, calls_) != 0) {
    return {std::nullopt, false};
  }
  const bool empty = bytes.find_first_not_of(" \t\r\n") == std::string::npos;
  return {RegistryFile::Parse(bytes), empty};
}

bool PosixRegistry::Store(const RegistryFile& file) const {
  return MakeFolder(FolderOf(TargetOf(file_))) &&
         ReplaceFile(file_, file.Bytes(), kNewFileMode, calls_) == 0;
}

RegistryKey PosixRegistry::Remember(const std::string& path, std::uint32_t access) {
  opened_[++last_key_] = {path, access};
  return last_key_;
}

}  // namespace lorimet
