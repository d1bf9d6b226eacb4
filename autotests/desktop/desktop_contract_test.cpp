// The contract of all desktops, on Qt.
#include "autotests/common/desktop_contract.h"

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "adapters/qt/qt_clock.h"
#include "adapters/qt/qt_desktop.h"

namespace lorimet::testing_support {
namespace {

QWidget* BuildContractWindow(QWidget* parent) {
  auto* window = new QDialog(parent);
  auto* layout = new QVBoxLayout(window);
  const auto add = [&](QWidget* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    layout->addWidget(widget);
  };
  add(new QPushButton, "cmdGo");
  add(new QLineEdit, "txtOne");
  add(new QLineEdit, "txtTwo");
  return window;
}

struct QtStage {
  ~QtStage() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
  void Post(const std::function<void()>& event) {
    QTimer::singleShot(0, &lifetime, [this, event] { desktop.RunEvent(event); });
  }
  bool Until(const std::function<bool()>& done) {
    QElapsedTimer limit;
    limit.start();
    while (!done() && limit.elapsed() < 10'000) desktop.DoEvents();
    return done();
  }
  void Sleep(std::uint32_t milliseconds) { clock.Sleep(milliseconds); }

  QtDesktop desktop{{{"frmFirst", BuildContractWindow}, {"frmSecond", BuildContractWindow}}};
  QtClock clock{[this](std::uint32_t milliseconds) { desktop.Wait(milliseconds); }};
  QObject lifetime;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, DesktopContract, QtStage);

}  // namespace
}  // namespace lorimet::testing_support
