// A blocking wait: windows repaint, and what the user does meanwhile is gone.
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTimer>
#include <QWindow>

#include <unistd.h>

#include <array>

#include "adapters/qt/qt_clock.h"
#include "autotests/desktop/screens_fixture.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kWait = 150;  // ms; a real wait is the thing tested

class WaitingTest : public DesktopTest {
 protected:
  WaitingTest() {
    form.Show();
    Pump();
    desktop.Window(form)->activateWindow();
    Pump();
  }
  // Waits in a click's handler; `meanwhile` is what the window system tells during the wait.
  void WaitWhile(const std::function<void()>& meanwhile) {
    form.cmdOK.on_click = [&] {
      QTimer::singleShot(40, meanwhile);
      clock.Sleep(kWait);
      form.log.push_back("waited");
    };
    form.cmdOK.UserClick();
  }

  QtClock clock{[this](std::uint32_t milliseconds) { desktop.Wait(milliseconds); }};
};

class PaintCounter : public QObject {
 public:
  int paints = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST_F(WaitingTest, ClicksAndKeysDuringAWaitAreGone) {
  form.txtName.SetFocus();
  form.txtLast.on_got_focus = [this] { form.log.push_back("+last"); };
  bool told = false;
  WaitWhile([&] {
    told = true;
    road::Key(desktop.Window(form), Qt::Key_X, Qt::NoModifier, "x");
    road::Click(Find<QPushButton>(form, "cmdOther"));
    road::Click(Find<QLineEdit>(form, "txtLast"));
    road::Key(desktop.Window(form), Qt::Key_T, Qt::AltModifier);
  });
  Pump();
  EXPECT_TRUE(told);
  EXPECT_EQ(form.log, (std::vector<std::string>{"waited"}));
  EXPECT_EQ(form.txtName.Text(), "nobody");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  // And the next ones count.
  road::Key(desktop.Window(form), Qt::Key_X, Qt::NoModifier, "x");
  EXPECT_NE(form.txtName.Text(), "nobody");
}

TEST_F(WaitingTest, CloseBoxDuringAWaitIsGone) {
  WaitWhile([this] { desktop.Window(form)->windowHandle()->close(); });
  Pump();
  EXPECT_TRUE(form.Visible());
}

TEST_F(WaitingTest, WindowsRepaintDuringAWait) {
  PaintCounter counter;
  desktop.Window(form)->installEventFilter(&counter);
  int within = 0;
  form.cmdOK.on_click = [&] {
    QTimer::singleShot(20, [&] { desktop.Window(form)->update(); });
    counter.paints = 0;
    clock.Sleep(kWait);
    within = counter.paints;
  };
  form.cmdOK.UserClick();
  EXPECT_GE(within, 1);
}

TEST_F(WaitingTest, MessagesOfTheLinkWaitForItsEnd) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  QSocketNotifier notifier(ends[0], QSocketNotifier::Read);
  QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
    char byte = 0;
    ASSERT_EQ(read(ends[0], &byte, 1), 1);
    desktop.RunEvent([this] { form.log.push_back("status"); });
  });
  ASSERT_EQ(write(ends[1], "x", 1), 1);
  WaitWhile([] {});
  EXPECT_EQ(form.log, (std::vector<std::string>{"waited"}));
  Pump();
  EXPECT_EQ(form.log, (std::vector<std::string>{"waited", "status"}));
  close(ends[0]);
  close(ends[1]);
}

TEST_F(WaitingTest, SizeThatChangesDuringAWaitIsToldBehindIt) {
  WaitWhile([this] { desktop.Window(form)->resize(desktop.Window(form)->size() + QSize(20, 20)); });
  EXPECT_EQ(form.log, (std::vector<std::string>{"waited"}));
  Pump();
  EXPECT_EQ(form.log, (std::vector<std::string>{"waited", "resize"}));
}

using ClearingTest = ScreensTest;

TEST_F(ClearingTest, SecondClickOnClearDuringTheClearingClearsNothing) {
  Start();
  program.faults->fault_list.Show();
  Activate(program.faults->fault_list);
  link.calls.clear();
  auto* clear = Find<QPushButton>(program.faults->fault_list, "cmdClearAll");
  // The events that the clearing lets run find another click.
  link.on_call = [&](const std::string& call) {
    if (call == "ClearAllFaults") QTimer::singleShot(0, [clear] { road::Click(clear); });
  };
  road::Click(clear);
  Pump();
  link.on_call = nullptr;
  EXPECT_EQ(std::ranges::count(link.calls, "ClearAllFaults"), 1);
  EXPECT_TRUE(clear->isEnabled());
  EXPECT_TRUE(clear->hasFocus());
}

}  // namespace
}  // namespace lorimet
