#include "adapters/windows/windows_shared_library.h"

#include <windows.h>

#include "adapters/windows/windows_text.h"

namespace lorimet {

namespace {

class LoadedLibrary : public SharedLibrary {
 public:
  explicit LoadedLibrary(HMODULE handle) : handle_(handle) {}
  ~LoadedLibrary() override {
    if (!kept_) {
      FreeLibrary(handle_);
    }
  }
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  void Keep() override { kept_ = true; }
  void* Symbol(const std::string& name) override {
    return reinterpret_cast<void*>(GetProcAddress(handle_, name.c_str()));
  }

 private:
  HMODULE handle_;
  bool kept_ = false;
};

// The variable's value; empty when it is not set.
std::wstring EnvironmentVariable(const wchar_t* name) {
  std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
  return value;
}

}  // namespace

std::string WindowsLibraryLoader::LinkLibraryPath() {
  const std::wstring named = EnvironmentVariable(L"LORIMET32");
  return named.empty() ? ExecutableFolder() + "\\Lorimet32.dll" : Utf8FromWide(named);
}

std::unique_ptr<SharedLibrary> WindowsLibraryLoader::Load(const std::string& path,
                                                          std::string& error) {
  // A whole path lets the library find its own companions beside it, and a bare name is not looked
  // for in the system's folders. No box of the system's own on a file that is no library.
  std::wstring whole(32768, L'\0');
  whole.resize(GetFullPathNameW(WideFromUtf8(path).c_str(), static_cast<DWORD>(whole.size()),
                                whole.data(), nullptr));
  const UINT mode = SetErrorMode(SEM_FAILCRITICALERRORS);
  auto* const handle = LoadLibraryExW(whole.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  const DWORD reason = GetLastError();
  SetErrorMode(mode);
  if (handle == nullptr) {
    error = path + ": " + SystemErrorText(reason);
    return nullptr;
  }
  return std::make_unique<LoadedLibrary>(handle);
}

}  // namespace lorimet
