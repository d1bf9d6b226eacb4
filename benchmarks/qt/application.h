// The toolkit's application, for all measurements of one run.
#pragma once

#include <QApplication>

#include "adapters/qt/qt_style.h"

namespace lorimet::benchmarks {

// Lives to the end: nothing of the toolkit is torn down behind the measurements.
inline QApplication& Application() {
  static int argc = 1;
  static char name[] = "lorimet_qt_bench";
  static char* argv[] = {name, nullptr};
  static QApplication* const application = [] {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    auto* made = new QApplication(argc, argv);
    ApplyStyle(*made);
    return made;
  }();
  return *application;
}

}  // namespace lorimet::benchmarks
