// The bus monitor in its real window: one painting a tick, selection and place kept while messages
// come in, resizing, minimising, and the keys of its options.
#include <QtCore/qtestsupport_core.h>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBlock>

#include <algorithm>
#include <cstring>
#include <deque>
#include <string>

#include "autotests/desktop/screens_fixture.h"
#include "monitor/monitor_part.h"

namespace lorimet {
namespace {

// The fixture's library is the program's; its messages are these.
class MonitorWindowTest : public ScreensTest {
 protected:
  void SetUp() override {
    Start();
    screen().Show();
    Activate(screen());
    screen().tmrUpdateMonitor.SetInterval(1'000'000);  // ticks come by hand
    desktop.Flush();
  }
  frmBusMonitor& screen() { return program.monitor->screen; }
  QPlainTextEdit& Box() { return *Find<QPlainTextEdit>(screen(), "txtMonitor"); }

  // One tick in which n messages come.
  void Tick(int n) {
    for (int i = 0; i < n; ++i) {
      char text[32];
      std::snprintf(text, sizeof text, "m%06d 128 190 040 010", ++sent_);
      link.bus_messages.push_back(text);
    }
    screen().tmrUpdateMonitor.Tick();
    Pump();
  }
  // As many as fill the box.
  void Fill() {
    for (int i = 0; i < 3; ++i) Tick(60);
  }
  QString Wanted() {
    return QString::fromStdString(screen().txtMonitor.Text()).replace("\r\n", "\n");
  }
  bool AtEnd() {
    return Box().verticalScrollBar()->value() == Box().verticalScrollBar()->maximum();
  }
  void SelectLine(int line) {
    QTextCursor cursor(Box().document()->findBlockByNumber(line));
    cursor.select(QTextCursor::LineUnderCursor);
    Box().setTextCursor(cursor);
  }
  // Waits until the box has caught up.
  bool CatchesUp() {
    return QTest::qWaitFor([this] { return Box().toPlainText() == Wanted(); }, 2000);
  }

 private:
  int sent_ = 0;
};

class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
  ~PaintCount() override { widget_.removeEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
  int paints = 0;

 private:
  QWidget& widget_;
};

TEST_F(MonitorWindowTest, AHundredMessagesAreWrittenOnceAndPaintedOnce) {
  Tick(5);
  int writes = 0;
  const auto counting = QObject::connect(&Box(), &QPlainTextEdit::textChanged, [&] { ++writes; });
  PaintCount count(*Box().viewport());
  Tick(101);
  QObject::disconnect(counting);
  EXPECT_EQ(writes, 1);
  EXPECT_EQ(count.paints, 1);
  EXPECT_EQ(Box().toPlainText(), Wanted());
  EXPECT_NE(Wanted().indexOf("m000106"), -1);
}

TEST_F(MonitorWindowTest, TheViewFollowsTheEnd) {
  Fill();
  ASSERT_GT(Box().verticalScrollBar()->maximum(), 0);
  EXPECT_TRUE(AtEnd());
  Tick(7);
  EXPECT_TRUE(AtEnd());
}

TEST_F(MonitorWindowTest, TheViewStaysAtTheEndWhenTheWindowChangesItsSize) {
  Fill();
  const QSize size = desktop.Window(screen())->size();
  for (const double factor : {1.3, 0.8, 1.0}) {
    desktop.Window(screen())->resize(size * factor);
    Pump();
    EXPECT_TRUE(AtEnd()) << factor;
    Tick(1);
    EXPECT_TRUE(AtEnd()) << factor;
  }
}

TEST_F(MonitorWindowTest, TheViewStaysWhereTheUserHasScrolledTo) {
  Fill();
  QScrollBar& down = *Box().verticalScrollBar();
  ASSERT_GT(down.maximum(), 0);
  down.setValue(0);
  Tick(20);
  EXPECT_EQ(down.value(), 0);
  EXPECT_EQ(Box().toPlainText(), Wanted());
  down.setValue(down.maximum());
  Tick(1);
  EXPECT_TRUE(AtEnd()) << "back at the end it follows again";
}

TEST_F(MonitorWindowTest, TheViewKeepsItsPlaceAcrossToo) {
  link.bus_messages.push_back(std::string(150, '8'));
  Tick(1);
  QScrollBar& right = *Box().horizontalScrollBar();
  ASSERT_GT(right.maximum(), 10);
  right.setValue(10);
  Tick(3);
  EXPECT_EQ(right.value(), 10);
}

TEST_F(MonitorWindowTest, SelectedTextStandsAndCanBeCopiedAtFullLoad) {
  Fill();
  SelectLine(4);
  const QString selected = Box().textCursor().selectedText();
  ASSERT_FALSE(selected.isEmpty());
  const QString before = Box().toPlainText();
  for (int i = 0; i < 5; ++i) Tick(101);
  EXPECT_EQ(Box().textCursor().selectedText(), selected);
  EXPECT_EQ(Box().toPlainText(), before);
  EXPECT_NE(Wanted(), before) << "the control goes on";
  Box().setFocus();
  QApplication::clipboard()->clear();
  Key(screen(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), selected);
  EXPECT_EQ(Box().textCursor().selectedText(), selected) << "copying keeps it";
  // A click ends the selection, and the box catches up though no further message comes.
  road::Click(Box().viewport());
  EXPECT_TRUE(CatchesUp());
}

TEST_F(MonitorWindowTest, AMouseThatIsStillSelectingIsNotDisturbed) {
  Fill();
  QWidget& viewport = *Box().viewport();
  const QPoint place = viewport.rect().center();
  road::Button(&viewport, place, QEvent::MouseButtonPress);
  const QString before = Box().toPlainText();
  const int position = Box().textCursor().position();
  Tick(50);
  EXPECT_EQ(Box().toPlainText(), before);
  EXPECT_EQ(Box().textCursor().position(), position);
  road::Button(&viewport, place, QEvent::MouseButtonRelease);
  EXPECT_TRUE(CatchesUp());
}

TEST_F(MonitorWindowTest, NothingCanBeTypedIntoTheBox) {
  Tick(3);
  Box().setFocus();
  Key(screen(), Qt::Key_X, Qt::NoModifier, "x");
  EXPECT_EQ(Box().toPlainText(), Wanted());
}

TEST_F(MonitorWindowTest, TheBoxShowsAboutAsManyLinesAsTheBufferHas) {
  Fill();
  const auto lines = Box().document()->blockCount();
  const int shown = Box().viewport()->height() / Box().fontMetrics().lineSpacing();
  EXPECT_NEAR(lines, shown, 4);
}

TEST_F(MonitorWindowTest, AWindowThatGrowsTakesItsControlsAndTheirFontsAlong) {
  Tick(3);
  QWidget& window = *desktop.Window(screen());
  auto& exit = *Find<QPushButton>(screen(), "cmdExit");
  const QRect before = exit.geometry();
  const QRect box = Box().geometry();
  const double font = exit.fontInfo().pointSizeF();
  const QSize size = window.size();
  link.calls.clear();
  window.resize(size.width() * 3 / 2, size.height() * 2);
  Pump();
  EXPECT_NEAR(exit.x(), before.x() * 1.5, 1.5);
  EXPECT_NEAR(exit.y(), before.y() * 2, 1.5);
  EXPECT_NEAR(exit.width(), before.width() * 1.5, 1.5);
  EXPECT_NEAR(exit.height(), before.height() * 2, 1.5);
  EXPECT_NEAR(exit.fontInfo().pointSizeF(), 2 * font, 0.8);
  EXPECT_NEAR(Box().height(), box.height() * 2, 2);
  EXPECT_TRUE(screen().tmrUpdateMonitor.Enabled());
  EXPECT_EQ(Box().toPlainText(), Wanted());
  window.resize(size);
  Pump();
  EXPECT_NEAR(exit.x(), before.x(), 1);
  EXPECT_NEAR(exit.height(), before.height(), 1);
  EXPECT_NEAR(exit.fontInfo().pointSizeF(), font, 0.8);
  EXPECT_TRUE(link.calls.empty());
}

TEST_F(MonitorWindowTest, AMinimizedWindowReadsNothingAndGoesOnWhenItIsBack) {
  desktop.Window(screen())->showMinimized();
  Pump();
  EXPECT_TRUE(screen().Minimized());
  EXPECT_FALSE(screen().tmrUpdateMonitor.Enabled());
  desktop.Window(screen())->showNormal();
  Pump();
  EXPECT_FALSE(screen().Minimized());
  EXPECT_TRUE(screen().tmrUpdateMonitor.Enabled());
  Tick(2);
  EXPECT_EQ(Box().toPlainText(), Wanted());
}

TEST_F(MonitorWindowTest, TheWindowCanBeMinimizedAndMaximizedByItsTitle) {
  const Qt::WindowFlags flags = desktop.Window(screen())->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::Window));
  EXPECT_FALSE(desktop.Window(screen())->inherits("QDialog"));
}

TEST_F(MonitorWindowTest, WordsOfAnotherLanguageFitBeforeAndBehindAResize) {
  for (const int language : {kFrench, kSpanish}) {
    screen().Unload();
    program.support->dictionary.SetLanguage(language);
    screen().Show();
    Activate(screen());
    for (int resize = 0; resize < 3; ++resize) {
      for (QPushButton* button : desktop.Window(screen())->findChildren<QPushButton*>())
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(button->text()) + 24)
            << language << " " << qPrintable(button->text());
      // The words of the record button change with its state.
      screen().cmdDatalog.UserClick();
      desktop.Window(screen())->resize(desktop.Window(screen())->size() + QSize(1, 1));
      Pump();
    }
  }
}

TEST_F(MonitorWindowTest, CtrlTabTurnsTheOptionsPages) {
  frmMonitorOptions& options = program.monitor->options;
  options.Show();
  Activate(options);
  auto& tabs = *Find<QTabBar>(options, "tbsOptions");
  auto& first = *Find<QWidget>(options, "picOptions_0");
  auto& second = *Find<QWidget>(options, "picOptions_1");
  ASSERT_EQ(tabs.count(), 2);
  auto& comments = *Find<QPlainTextEdit>(options, "txtDatalogComments");
  // From wherever the focus is: from the text, too, where a tab could be typed.
  comments.setFocus();
  for (const int tab : {1, 0, 1, 0}) {
    Key(options, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), tab);
    EXPECT_EQ(first.isVisible(), tab == 0);
    EXPECT_EQ(second.isVisible(), tab == 1);
  }
  EXPECT_EQ(comments.toPlainText(), "");
  road::Click(&tabs, tabs.tabRect(1).center());
  EXPECT_TRUE(second.isVisible());
  EXPECT_EQ(options.tbsOptions.Selected(), 1);
}

TEST_F(MonitorWindowTest, ALongFileNameLeavesTheOptionsTheirSize) {
  frmMonitorOptions& options = program.monitor->options;
  program.monitor->bus_monitor.SetDatalogInfo({std::string(200, 'x') + "/log.txt", ""});
  options.Show();
  Activate(options);
  EXPECT_LT(desktop.Window(options)->width(), 700);
}

}  // namespace
}  // namespace lorimet
