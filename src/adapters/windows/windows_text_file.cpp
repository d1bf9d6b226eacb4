#include "adapters/windows/windows_text_file.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <string_view>
#include <utility>

#include "adapters/windows/file_errors.h"
#include "adapters/windows/windows_text.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr DWORD kBlock = 65536;
constexpr std::size_t kLargestFile = std::size_t{64} << 20;
constexpr int kTemporaryNames = 100;

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }
  HANDLE Get() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  void Reset(HANDLE handle) {
    Close();
    handle_ = handle;
  }
  void Close() {
    if (IsOpen()) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE handle_;
};

[[noreturn]] void Fail(DWORD error) { throw RuntimeError(ErrorOfCall(error)); }

std::wstring CheckedPath(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos)
    throw RuntimeError(ErrorNumber::kBadFileNameOrNumber);
  return WideFromUtf8(path);
}

std::wstring FolderOf(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L"\\/");
  return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator + 1);
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The old file as a writer would open it: nobody else may hold it, and it may be written.
void CheckReplaceable(const std::wstring& path) {
  const Handle old(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!old.IsOpen() && GetLastError() != ERROR_FILE_NOT_FOUND) Fail(GetLastError());
  if (old.IsOpen() && GetFileType(old.Get()) != FILE_TYPE_DISK) Fail(ERROR_ACCESS_DENIED);
}

class Output : public TextFile {
 public:
  explicit Output(std::wstring path) : target_(std::move(path)) {
    CheckReplaceable(target_);
    static std::atomic<unsigned> counter{0};
    const std::wstring stem =
        FolderOf(target_) + L"lorimet-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    DWORD error = ERROR_FILE_EXISTS;
    for (int i = 0; i < kTemporaryNames && error == ERROR_FILE_EXISTS; ++i) {
      temporary_ = stem + std::to_wstring(counter++) + L".tmp";
      file_.Reset(CreateFileW(temporary_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
      error = file_.IsOpen() ? ERROR_SUCCESS : GetLastError();
    }
    if (error != ERROR_SUCCESS) Fail(error);
  }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() override {
    file_.Close();
    if (!temporary_.empty()) DeleteFileW(temporary_.c_str());
  }

  void Write(std::string_view bytes) override { bytes_ += bytes; }

  void Close() override {
    std::string_view rest = bytes_;
    while (!rest.empty()) {
      DWORD count = 0;
      const auto size = static_cast<DWORD>(std::min<std::size_t>(rest.size(), kBlock));
      if (WriteFile(file_.Get(), rest.data(), size, &count, nullptr) == 0) Fail(GetLastError());
      if (count == 0) Fail(ERROR_DISK_FULL);
      rest.remove_prefix(count);
    }
    if (FlushFileBuffers(file_.Get()) == 0) Fail(GetLastError());
    file_.Close();
    constexpr DWORD kReplace = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(temporary_.c_str(), target_.c_str(), kReplace) == 0) Fail(GetLastError());
    temporary_.clear();
  }

 private:
  std::wstring target_;
  std::wstring temporary_;  // empty when there is none
  Handle file_{INVALID_HANDLE_VALUE};
  std::string bytes_;
};

}  // namespace

std::unique_ptr<TextFile> WindowsTextFiles::OpenForOutput(const std::string& path) {
  return std::make_unique<Output>(CheckedPath(path));
}

std::string WindowsTextFiles::ReadWhole(const std::string& path) {
  const std::wstring wide = CheckedPath(path);
  const Handle file(CreateFileW(wide.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.IsOpen() && GetLastError() == ERROR_FILE_NOT_FOUND)
    throw RuntimeError(ErrorNumber::kFileNotFound);
  if (!file.IsOpen()) Fail(GetLastError());
  if (IsFolder(wide) || GetFileType(file.Get()) != FILE_TYPE_DISK) Fail(ERROR_ACCESS_DENIED);
  std::string bytes;
  std::string block(kBlock, '\0');
  for (;;) {
    DWORD count = 0;
    if (ReadFile(file.Get(), block.data(), kBlock, &count, nullptr) == 0) Fail(GetLastError());
    if (count == 0) return bytes;
    bytes.append(block, 0, count);
    if (bytes.size() > kLargestFile) throw RuntimeError(ErrorNumber::kDeviceIoError);
  }
}

}  // namespace lorimet
