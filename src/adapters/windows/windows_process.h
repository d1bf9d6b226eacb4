// Other programs, the program's folder and the single instance by the system's own calls.
#pragma once

#include <cstdint>
#include <string>

#include "platform/process.h"

namespace lorimet {

// Paths and arguments are UTF-8.
class WindowsProcess : public Process {
 public:
  WindowsProcess() = default;
  ~WindowsProcess() override;
  WindowsProcess(const WindowsProcess&) = delete;
  WindowsProcess& operator=(const WindowsProcess&) = delete;

  // The claim is a named mutex of the user's session; the system drops it when the process ends.
  bool ClaimSingleInstance() override;
  // A folder is no file.
  bool FileExists(const std::string& path) override;
  bool Start(const std::string& path, const std::string& arguments) override;
  std::string ProgramFolder() override;

 private:
  std::uintptr_t instance_mutex_ = 0;
};

}  // namespace lorimet
