#include "adapters/windows/windows_process.h"

#include <windows.h>

#include <sddl.h>
#include <shellapi.h>

#include <array>

#include "adapters/windows/windows_text.h"

namespace lorimet {

namespace {

// ERROR_ELEVATION_REQUIRED, which not every set of headers has.
constexpr DWORD kElevationRequired = 740;

HANDLE Mutex(std::uintptr_t mutex) { return reinterpret_cast<HANDLE>(mutex); }

// The security identifier of the user whom this process belongs to, as text; empty when the system
// does not tell.
std::string UserSid() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
    return {};
  }
  alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer{};
  DWORD size = 0;
  char* text = nullptr;
  std::string sid;
  if (GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()),
                          &size) &&
      ConvertSidToStringSidA(reinterpret_cast<const TOKEN_USER*>(buffer.data())->User.Sid, &text)) {
    sid = text;
    LocalFree(text);
  }
  CloseHandle(token);
  return sid;
}

// One instance a user on this machine, whatever session the user has logged on to: the adapter is
// the machine's.
std::string InstanceName() { return "Global\\NorvickLorimet-" + UserSid(); }

// A program that asks for more rights is started by the shell, which asks the user for them.
bool StartElevated(const std::wstring& program, const std::string& arguments) {
  constexpr INT_PTR kLastError = 32;
  auto* const result = ShellExecuteW(nullptr, nullptr, program.c_str(),
                                     WideFromUtf8(arguments).c_str(), nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > kLastError;
}

}  // namespace

WindowsProcess::~WindowsProcess() {
  if (instance_mutex_ != 0) {
    CloseHandle(Mutex(instance_mutex_));
  }
}

bool WindowsProcess::ClaimSingleInstance() {
  if (instance_mutex_ != 0) {
    return true;
  }
  SetLastError(ERROR_SUCCESS);
  auto* const mutex = CreateMutexA(nullptr, FALSE, InstanceName().c_str());
  const DWORD error = GetLastError();
  // A mutex of that name that may not be opened is held by somebody too.
  if (mutex == nullptr) {
    return error != ERROR_ACCESS_DENIED;
  }
  if (error == ERROR_ALREADY_EXISTS) {
    CloseHandle(mutex);
    return false;
  }
  instance_mutex_ = reinterpret_cast<std::uintptr_t>(mutex);
  return true;
}

bool WindowsProcess::FileExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(WideFromUtf8(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool WindowsProcess::Start(const std::string& path, const std::string& arguments) {
  // The program is named by itself, so that a blank in its path ends nothing; in the command line
  // that it gets, quotes hold the path together.
  const std::wstring program = WideFromUtf8(path);
  std::wstring command_line = L'"' + program + L'"';
  if (!arguments.empty()) {
    command_line += L' ' + WideFromUtf8(arguments);
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &started)) {
    return GetLastError() == kElevationRequired && StartElevated(program, arguments);
  }
  AllowSetForegroundWindow(started.dwProcessId);
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return true;
}

std::string WindowsProcess::ProgramFolder() { return ExecutableFolder(); }

}  // namespace lorimet
