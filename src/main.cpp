// Composition root: starts the program on this desktop.
#include <QApplication>

#include "adapters/qt/qt_style.h"
#include "desktop_program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Norvick Lorimet");
  QApplication::setQuitOnLastWindowClosed(false);
  lorimet::ApplyStyle(application);
  lorimet::DesktopProgram desktop_program;
  auto started = lorimet::EntryResult::kEnded;
  desktop_program.desktop.RunEvent([&] { started = desktop_program.program.Start(); });
  if (started == lorimet::EntryResult::kRunning) desktop_program.desktop.Run();
  return desktop_program.program.ExitStatus();
}
