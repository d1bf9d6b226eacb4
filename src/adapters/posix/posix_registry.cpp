#include "adapters/posix/posix_registry.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "adapters/posix/file_descriptor.h"
#include "adapters/posix/user_folders.h"

namespace lorimet {

namespace {

constexpr std::int32_t kInvalidHandle = 6;
constexpr std::int32_t kInvalidParameter = 87;
constexpr std::uint32_t kRegKeyQueryValue = 1;
// More than any registry that a person would drop in.
constexpr off_t kLargestFile = 64 << 20;

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

bool WriteWhole(int descriptor, const std::string& bytes) {
  std::size_t written = 0;
  while (written < bytes.size()) {
    const ssize_t count = write(descriptor, bytes.data() + written, bytes.size() - written);
    if (count < 0 && errno != EINTR) {
      return false;
    }
    written += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  return fsync(descriptor) == 0;
}

// Makes sure that a rename in the folder outlives a power cut.
void SyncFolder(const std::string& folder) {
  const FileDescriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.IsOpen()) {
    fsync(opened.Get());
  }
}

}  // namespace

PosixRegistry::PosixRegistry(std::string file) : file_(std::move(file)) {}

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
      status.st_size > kLargestFile) {
    return {std::nullopt, false};
  }
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t size = 0;
  while (size < bytes.size()) {
    const ssize_t count = read(opened.Get(), bytes.data() + size, bytes.size() - size);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count < 0) {
      return {std::nullopt, false};
    }
    if (count == 0) {
      break;
    }
    size += static_cast<std::size_t>(count);
  }
  bytes.resize(size);
  const bool empty = bytes.find_first_not_of(" \t\r\n") == std::string::npos;
  return {RegistryFile::Parse(bytes), empty};
}

bool PosixRegistry::Store(const RegistryFile& file) const {
  // A link to the file stays one.
  std::error_code error;
  const std::filesystem::path linked = std::filesystem::canonical(file_, error);
  const std::string target = error ? file_ : linked.string();
  const std::string fresh = target + ".new";
  if (!MakeFolder(FolderOf(target))) {
    return false;
  }
  unlink(fresh.c_str());
  FileDescriptor opened(
      open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  struct stat status {};
  if (opened.IsOpen() && stat(target.c_str(), &status) == 0) {
    fchmod(opened.Get(), status.st_mode & 0777);
  }
  const bool written = opened.IsOpen() && WriteWhole(opened.Get(), file.Bytes());
  if (!written || std::rename(fresh.c_str(), target.c_str()) != 0) {
    unlink(fresh.c_str());
    return false;
  }
  SyncFolder(FolderOf(target));
  return true;
}

RegistryKey PosixRegistry::Remember(const std::string& path, std::uint32_t access) {
  opened_[++last_key_] = {path, access};
  return last_key_;
}

}  // namespace lorimet
