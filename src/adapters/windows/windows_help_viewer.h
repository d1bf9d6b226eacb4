// The help viewer by the system's own help program.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/process.h"

namespace lorimet {

class WindowsHelpViewer : public HelpViewer {
 public:
  // `main_window` gives the window (an HWND) that the help belongs to, at each call; help files and
  // keys are UTF-8.
  explicit WindowsHelpViewer(std::function<std::uintptr_t()> main_window);
  void Show(const std::string& help_file, HelpCommand command, const std::string& key) override;

 private:
  std::function<std::uintptr_t()> main_window_;
};

}  // namespace lorimet
