// Composition root: starts the program on this desktop.
#include <QApplication>

#include "adapters/qt/qt_style.h"
#include "desktop_program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Norvick Lorimet");
  QApplication::setDesktopFileName("norvick-lorimet");
  QApplication::setQuitOnLastWindowClosed(false);
  lorimet::ApplyStyle(application);
  // Never deleted: the link library's thread may use the records and the message hook as long as
  // the process lives.
  static auto* const desktop_program = new lorimet::DesktopProgram;
  return desktop_program->Run();
}
