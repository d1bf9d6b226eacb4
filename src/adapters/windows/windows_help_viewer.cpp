#include "adapters/windows/windows_help_viewer.h"

#include <windows.h>

#include <utility>

#include "adapters/windows/windows_text.h"

namespace lorimet {

static_assert(static_cast<UINT>(HelpCommand::kContents) == HELP_CONTENTS);
static_assert(static_cast<UINT>(HelpCommand::kPartialKey) == HELP_PARTIALKEY);

WindowsHelpViewer::WindowsHelpViewer(std::function<std::uintptr_t()> main_window)
    : main_window_(std::move(main_window)) {}

void WindowsHelpViewer::Show(const std::string& help_file, HelpCommand command,
                             const std::string& key) {
  const std::string ansi_key = AnsiFromUtf8(key);
  const bool by_key = command == HelpCommand::kPartialKey;
  // A help file of the system's own kind does not know our pages.
  const UINT asked = command == HelpCommand::kPage ? HELP_CONTENTS : static_cast<UINT>(command);
  WinHelpA(reinterpret_cast<HWND>(main_window_()), AnsiFromUtf8(help_file).c_str(), asked,
           by_key ? reinterpret_cast<ULONG_PTR>(ansi_key.c_str()) : 0);
}

}  // namespace lorimet
