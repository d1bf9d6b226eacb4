#include "adapters/headless/headless_files.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

// The error that the trouble makes when a file is opened or, at the latest, when it is closed.
std::optional<ErrorNumber> ErrorOf(FileTrouble trouble, bool closing) {
  switch (trouble) {
    case FileTrouble::kNone:
      return {};
    case FileTrouble::kFull:
      return closing ? std::optional(ErrorNumber::kDiskFull) : std::nullopt;
    case FileTrouble::kDeviceFails:
      return closing ? std::optional(ErrorNumber::kDeviceIoError) : std::nullopt;
    case FileTrouble::kLocked:
      return ErrorNumber::kPermissionDenied;
    case FileTrouble::kNoPermission:
      return ErrorNumber::kPathFileAccessError;
    case FileTrouble::kNoFolder:
      return ErrorNumber::kPathNotFound;
  }
  return {};
}

void MayFail(FileTrouble trouble, bool closing) {
  if (const auto error = ErrorOf(trouble, closing)) throw RuntimeError(*error);
}

}  // namespace

class MemoryTextFiles::Output : public TextFile {
 public:
  Output(MemoryTextFiles& files, std::string path) : files_(files), path_(std::move(path)) {
    ++files_.open_files;
  }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() override { --files_.open_files; }

  void Write(std::string_view bytes) override { bytes_ += bytes; }
  void Close() override {
    MayFail(files_.trouble, true);
    files_.files[path_] = bytes_;
  }

 private:
  MemoryTextFiles& files_;
  std::string path_;
  std::string bytes_;
};

std::unique_ptr<TextFile> MemoryTextFiles::OpenForOutput(const std::string& path) {
  if (path.empty()) throw RuntimeError(ErrorNumber::kBadFileNameOrNumber);
  MayFail(trouble, false);
  return std::make_unique<Output>(*this, path);
}

std::string MemoryTextFiles::ReadWhole(const std::string& path) {
  if (path.empty()) throw RuntimeError(ErrorNumber::kBadFileNameOrNumber);
  if (trouble != FileTrouble::kFull) MayFail(trouble, true);
  const auto found = files.find(path);
  if (found == files.end()) throw RuntimeError(ErrorNumber::kFileNotFound);
  return found->second;
}

ProfileText MemoryProfileFile::TextOf(const std::string& path) const {
  const auto written = pending_.find(path);
  if (written != pending_.end()) return ProfileText(written->second);
  const auto found = files.find(path);
  return ProfileText(found == files.end() ? std::string_view() : found->second);
}

bool MemoryProfileFile::Fails(bool flushing) {
  const auto error = ErrorOf(trouble, flushing);
  if (error) last_error_ = *error;
  return error.has_value();
}

std::string MemoryProfileFile::GetString(const std::string& section, const std::string& key,
                                         const std::string& fallback, std::size_t size,
                                         const std::string& path) {
  const bool readable = trouble == FileTrouble::kNone || trouble == FileTrouble::kFull;
  std::optional<std::string> value;
  if (readable) value = TextOf(path).Find(section, key);
  std::string answer = value ? std::move(*value) : fallback.substr(0, fallback.find('\0'));
  if (!value) answer.erase(answer.find_last_not_of(' ') + 1);
  answer.resize(std::min(answer.size(), size == 0 ? 0 : size - 1));
  return answer;
}

bool MemoryProfileFile::WriteString(const std::string& section, const std::string& key,
                                    const std::string& value, const std::string& path) {
  if (Fails(false)) return false;
  ProfileText text = TextOf(path);
  if (text.Set(section, key, value)) pending_[path] = text.Bytes();
  return true;
}

bool MemoryProfileFile::Flush() {
  auto written = std::exchange(pending_, {});
  if (written.empty()) return true;
  if (Fails(true)) return false;
  for (auto& [path, bytes] : written) files[path] = std::move(bytes);
  return true;
}

}  // namespace lorimet
