// The program on a real desktop: Qt and the platform's own calls under the program's ports.
#pragma once

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <type_traits>

#include "adapters/qt/qt_clock.h"
#include "adapters/qt/qt_desktop.h"
#include "adapters/qt/qt_help_viewer.h"
#include "adapters/qt/qt_page_printer.h"
#include "adapters/qt/qt_toolkit_texts.h"
#include "adapters/qt/qt_translations.h"
#include "program.h"
#include "session/loaded_link_library.h"
#include "support/support_part.h"

#if defined(_WIN32)
#include "adapters/windows/windows_help_viewer.h"
#include "adapters/windows/windows_message_hook.h"
#include "adapters/windows/windows_process.h"
#include "adapters/windows/windows_profile_file.h"
#include "adapters/windows/windows_registry.h"
#include "adapters/windows/windows_shared_library.h"
#include "adapters/windows/windows_text_file.h"
#else
#include "adapters/posix/posix_message_hook.h"
#include "adapters/posix/posix_process.h"
#include "adapters/posix/posix_profile_file.h"
#include "adapters/posix/posix_registry.h"
#include "adapters/posix/posix_shared_library.h"
#include "adapters/posix/posix_termination.h"
#include "adapters/posix/posix_text_file.h"
#endif

namespace lorimet {

// What somebody brings in place of the machine's own; null for none.
struct BroughtPorts {
  Clock* clock = nullptr;
  Process* process = nullptr;
  PagePrinter* printer = nullptr;
};

// Needs a QApplication.
class DesktopProgram {
 public:
  // What is brought outlives the program.
  explicit DesktopProgram(const BroughtPorts& brought = {}) : brought_(brought) {
    desktop.on_unhandled_error = [this](const RuntimeError& error) {
      program.OnUnhandledError(error);
      EndAtOnce();
    };
    program.support->dictionary.on_language_changed.push_back([this] {
      help_viewer.SetLanguage(program.support->dictionary.Language());
      toolkit_texts.SetLanguage(program.support->dictionary.Language());
    });
    // The desktop's session ends, maybe in the midst of a screen.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [this] { program.End(); });
#if !defined(_WIN32)
    termination_notifier_ =
        std::make_unique<QSocketNotifier>(termination.ReadDescriptor(), QSocketNotifier::Read);
    QObject::connect(termination_notifier_.get(), &QSocketNotifier::activated, qApp, [this] {
      program.End();
      EndAtOnce();
    });
    notifier_ = std::make_unique<QSocketNotifier>(hook.ReadDescriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
      // Statuses of a program that has failed stay in the pipe.
      notifier_->setEnabled(!desktop.life.Failed());
      desktop.RunEvent([this] { hook.Drain(); });
    });
#endif
  }

  // The whole life of the program; gives the process's exit status. A library that did not
  // disconnect goes on writing into the records and posting from its own thread, so nothing of ours
  // ends before the process does.
  int Run() {
    auto started = EntryResult::kEnded;
    desktop.RunEvent([&] { started = program.Start(); });
    if (started == EntryResult::kRunning) desktop.Run();
    if (link.MayStillRun()) EndAtOnce();
    return program.ExitStatus();
  }

 private:
  template <typename Port>
  static Port& OrBrought(Port* brought, std::type_identity_t<Port>& own) {
    return brought == nullptr ? own : *brought;
  }

  BroughtPorts brought_;

 public:
  QtDesktop desktop;
  QtClock clock{[this](std::uint32_t milliseconds) {
#if defined(_WIN32)
    // Window messages come through the same events as the repainting.
    const WindowsMessageHook::Held held(hook);
#endif
    desktop.Wait(milliseconds);
  }};
  QtTranslations translations;
  QtToolkitTexts toolkit_texts;
  QtPagePrinter printer;
#if defined(_WIN32)
  WindowsRegistry registry;
  WindowsMessageHook hook;
  WindowsProcess process;
  WindowsProfileFile profile_file;
  WindowsTextFiles text_files;
  WindowsLibraryLoader loader;
#else
  PosixRegistry registry;
  PosixMessageHook hook;
  PosixProcess process;
  PosixProfileFile profile_file;
  PosixTextFiles text_files;
  PosixLibraryLoader loader;
  PosixTermination termination;
#endif
  LoadedLinkLibrary link{loader};
  QtHelpViewer help_viewer{process.ProgramFolder(), [this](const std::string& text) {
                             return program.support->dictionary.Translate(text);
                           }};
  Program program{{desktop, OrBrought(brought_.clock, clock), registry, hook,
                   OrBrought(brought_.process, process), link, help_viewer, translations,
                   profile_file, text_files, OrBrought(brought_.printer, printer)}};

 private:
  // Nothing of what is on the stack may run again.
  [[noreturn]] void EndAtOnce() const {
    std::fflush(nullptr);
    std::_Exit(program.ExitStatus());
  }

  std::unique_ptr<QSocketNotifier> notifier_;
  std::unique_ptr<QSocketNotifier> termination_notifier_;
};

}  // namespace lorimet
