// The program's own screens on the Qt desktop, with a library that answers 0 to everything.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/qt/qt_desktop.h"
#include "autotests/common/fake_link.h"
#include "autotests/common/stand_ins.h"
#include "autotests/desktop/desktop_fixture.h"
#include "faults/faults_part.h"
#include "parameters/parameters_part.h"
#include "platform/runtime_error.h"
#include "program.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {

class ScreensTest : public testing::Test, protected testing_support::StandIns {
 protected:
  ScreensTest() {
    desktop.on_unhandled_error = [](const RuntimeError& error) {
      ADD_FAILURE() << error.Number() << ": " << error.Description();
    };
    link.on_static_read = [this] { Ecu().nLinkJobDone.Store(-1); };
  }
  ~ScreensTest() override {
    boxes_.stop();
    for (int i = static_cast<int>(desktop.LoadedForms().size()) - 1; i >= 0; --i)
      if (i < static_cast<int>(desktop.LoadedForms().size()))
        desktop.LoadedForms()[static_cast<std::size_t>(i)]->Unload();
    Pump();
  }

  void Start() {
    ASSERT_EQ(program.Start(), EntryResult::kRunning);
    program.session->main_form.tmrABS.SetEnabled(false);
    link.calls.clear();
    Activate(program.session->main_form);
  }
  void Activate(Form& form) {
    Pump();
    desktop.Window(form)->activateWindow();
    Pump();
    ASSERT_TRUE(desktop.Window(form)->isActiveWindow()) << form.Name();
  }
  static void Pump() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::processEvents();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
  template <typename Widget>
  Widget* Find(const Form& form, const char* name) {
    auto* found = desktop.Window(form)->template findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  // Presses a key in the window of a form, on the window system's road.
  void Key(const Form& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           const QString& text = {}) {
    road::Key(desktop.Window(form), key, modifiers, text);
  }
  // Answers every message box from now on, as a user does who presses Enter at it; not more than a
  // dozen.
  void AnswerBoxes() {
    QObject::connect(&boxes_, &QTimer::timeout, &boxes_, [this] {
      QWidget* box = QApplication::activeModalWidget();
      if (box == nullptr || box->objectName() != "msgBox") return;
      if (++boxes > 12) qFatal("the boxes never end");
      road::Key(box, Qt::Key_Return, Qt::NoModifier, "\r");
    });
    boxes_.start(0);
  }
  ECUData& Ecu() { return program.session->records.ecu_data; }

  int boxes = 0;
  QtDesktop desktop;
  VirtualClock clock;
  testing_support::FakeLink link;
  Program program{With(desktop, clock, link)};

 private:
  QTimer boxes_;
};

}  // namespace lorimet
