// What the user does changes the property and raises one event; what code does is mirrored once.
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

using Log = std::vector<std::string>;

class EventsTest : public DesktopTest {
 protected:
  EventsTest() {
    form.Show();
    Pump();
  }
};

TEST_F(EventsTest, TypingRaisesOneChangeForEachCharacter) {
  auto* field = Find<QLineEdit>(form, "txtName");
  field->clear();
  form.log.clear();
  Type(field, "ab");
  EXPECT_EQ(form.log, (Log{"change a", "change ab"}));
  EXPECT_EQ(field->text(), "ab");
}

TEST_F(EventsTest, TypedTextIsInTheControlBeforeItsEvent) {
  std::string seen;
  form.txtName.on_change = [&] { seen = form.txtName.Text(); };
  Find<QLineEdit>(form, "txtName")->setText("q");
  EXPECT_EQ(seen, "q");
}

TEST_F(EventsTest, TypingStopsAtTheLimitAndCodeDoesNot) {
  auto* field = Find<QLineEdit>(form, "txtName");
  field->clear();
  Type(field, "0123456789");
  EXPECT_EQ(form.txtName.Text(), "01234567");
  desktop.RunEvent([this] { form.txtName.SetText("0123456789"); });
  EXPECT_EQ(field->text(), "0123456789");
  field->setCursorPosition(10);
  Type(field, "x");
  EXPECT_EQ(form.txtName.Text(), "0123456789");
}

TEST_F(EventsTest, LinesTypedAreCarriageReturnLineFeed) {
  Find<QPlainTextEdit>(form, "txtNotes")->setPlainText("a\nb");
  EXPECT_EQ(form.txtNotes.Text(), "a\r\nb");
}

TEST_F(EventsTest, TextFromCodeRaisesChangeOnce) {
  desktop.RunEvent([this] { form.txtName.SetText("code"); });
  EXPECT_EQ(form.log, (Log{"change code"}));
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->text(), "code");
  desktop.RunEvent([this] { form.txtName.SetText("code"); });
  EXPECT_EQ(form.log.size(), 1U);
}

TEST_F(EventsTest, HandlerThatChangesItsOwnTextEndsThere) {
  form.txtName.on_change = [this] {
    form.log.push_back(form.txtName.Text());
    if (form.txtName.Text().size() < 3) form.txtName.SetText(form.txtName.Text() + "x");
  };
  auto* field = Find<QLineEdit>(form, "txtName");
  field->setText("a");
  EXPECT_EQ(form.log, (Log{"a", "ax", "axx"}));
  EXPECT_EQ(field->text(), "axx");
}

TEST_F(EventsTest, WidgetIsTouchedOnceHoweverOftenItsControlWasSet) {
  int touched = 0;
  auto* field = Find<QLineEdit>(form, "txtName");
  QObject::connect(field, &QLineEdit::textChanged, [&touched] { ++touched; });
  desktop.RunEvent([this] {
    for (int i = 0; i < 50; ++i) form.txtName.SetText(std::to_string(i));
  });
  EXPECT_EQ(touched, 1);
  EXPECT_EQ(field->text(), "49");
}

TEST_F(EventsTest, TextThatComesBackToWhatItWasLeavesTheFieldAlone) {
  auto* field = Find<QLineEdit>(form, "txtName");
  field->setSelection(1, 2);
  desktop.RunEvent([this] {
    form.txtName.SetText("other");
    form.txtName.SetText("nobody");
  });
  EXPECT_EQ(field->selectedText(), "ob");
}

TEST_F(EventsTest, NothingReachesTheScreenBeforeTheEventEnds) {
  auto* field = Find<QLineEdit>(form, "txtName");
  desktop.RunEvent([&] {
    form.txtName.SetText("late");
    EXPECT_EQ(field->text(), "nobody");
    desktop.Repaint();
    EXPECT_EQ(field->text(), "late");
    form.txtName.SetText("later");
    desktop.DoEvents();
    EXPECT_EQ(field->text(), "later");
  });
}

TEST_F(EventsTest, WholeTextIsSelectedFromCode) {
  desktop.RunEvent([this] { form.txtName.SelectAll(); });
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->selectedText(), "nobody");
}

TEST_F(EventsTest, ClickOnAButtonRaisesOneClick) {
  Click(Find<QPushButton>(form, "cmdOK"));
  EXPECT_EQ(form.log, (Log{"ok"}));
}

TEST_F(EventsTest, DisabledButtonRaisesNothing) {
  desktop.RunEvent([this] { form.cmdOK.SetEnabled(false); });
  Click(Find<QPushButton>(form, "cmdOK"));
  EXPECT_TRUE(form.log.empty());
}

TEST_F(EventsTest, ClickOnATextRaisesItsClick) {
  form.txtName.on_click = [this] { form.log.push_back("text"); };
  form.txtNotes.on_click = [this] { form.log.push_back("notes"); };
  Click(Find<QLineEdit>(form, "txtName"));
  Click(Find<QPlainTextEdit>(form, "txtNotes")->viewport());
  EXPECT_EQ(form.log, (Log{"text", "notes"}));
}

TEST_F(EventsTest, DoubleClickRaisesOneDoubleClick) {
  form.txtLast.on_double_click = [this] { form.log.push_back("double"); };
  form.lblName.on_double_click = [this] { form.log.push_back("label"); };
  DoubleClick(Find<QLineEdit>(form, "txtLast"));
  DoubleClick(Find<QWidget>(form, "lblName"));
  EXPECT_EQ(form.log, (Log{"double", "label"}));
}

TEST_F(EventsTest, TickingRaisesOneClickWhoeverDoesIt) {
  auto* box = Find<QCheckBox>(form, "chkFine");
  box->click();
  EXPECT_EQ(form.log, (Log{"ticked"}));
  desktop.RunEvent([this] { form.chkFine.SetValue(false); });
  EXPECT_EQ(form.log, (Log{"ticked", "unticked"}));
  EXPECT_FALSE(box->isChecked());
}

TEST_F(EventsTest, HandlerThatUndoesATickIsShown) {
  form.chkFine.on_click = [this] {
    if (form.chkFine.Value()) form.chkFine.SetValue(false);
  };
  auto* box = Find<QCheckBox>(form, "chkFine");
  box->click();
  EXPECT_FALSE(box->isChecked());
}

TEST_F(EventsTest, OptionsOfOneArrayExcludeEachOther) {
  auto* first = Find<QRadioButton>(form, "optChoice_0");
  auto* last = Find<QRadioButton>(form, "optChoice_2");
  Click(first);
  EXPECT_EQ(form.log, (Log{"option 0"}));
  last->click();
  EXPECT_EQ(form.log, (Log{"option 0", "option 2"}));
  EXPECT_FALSE(form.optChoice[0].Value());
  EXPECT_FALSE(first->isChecked());
  desktop.RunEvent([this] { form.optChoice[0].SetValue(true); });
  EXPECT_EQ(form.log, (Log{"option 0", "option 2", "option 0"}));
  EXPECT_TRUE(first->isChecked());
  EXPECT_FALSE(last->isChecked());
}

TEST_F(EventsTest, NoOptionNeedsToBeSelected) {
  auto* button = Find<QRadioButton>(form, "optChoice_1");
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(form.optChoice[i].Value());
  button->click();
  desktop.RunEvent([this] { form.optChoice[1].SetValue(false); });
  EXPECT_FALSE(button->isChecked());
  EXPECT_EQ(button->group()->checkedButton(), nullptr);
  button->click();
  EXPECT_TRUE(form.optChoice[1].Value());
  EXPECT_EQ(form.log, (Log{"option 1", "option 1"}));
}

TEST_F(EventsTest, SelectedOptionStaysOnASecondClick) {
  auto* button = Find<QRadioButton>(form, "optChoice_1");
  button->click();
  button->click();
  EXPECT_TRUE(button->isChecked());
  EXPECT_EQ(form.log, (Log{"option 1"}));
}

TEST_F(EventsTest, ArrowKeysWalkThroughTheOptions) {
  auto* first = Find<QRadioButton>(form, "optChoice_0");
  first->setFocus();
  first->click();
  Press(first, Qt::Key_Down);
  EXPECT_TRUE(form.optChoice[1].Value());
  EXPECT_TRUE(Find<QRadioButton>(form, "optChoice_1")->hasFocus());
}

TEST_F(EventsTest, MenuAndToolbarRaiseTheirClicks) {
  Find<QAction>(form, "mnuItem")->trigger();
  Find<QAction>(form, "tbrHelp_help")->trigger();
  EXPECT_EQ(form.log, (Log{"item", "help"}));
}

TEST_F(EventsTest, TabsFollowTheControlAndTheUser) {
  desktop.RunEvent([this] { form.tbsPages.SetTabs({"One", "Two", "Three"}); });
  auto* tabs = Find<QTabBar>(form, "tbsPages");
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(form.log.empty());
  tabs->setCurrentIndex(2);
  EXPECT_EQ(form.log, (Log{"tab 2"}));
  desktop.RunEvent([this] { form.tbsPages.SetSelected(1); });
  EXPECT_EQ(tabs->currentIndex(), 1);
  EXPECT_EQ(form.log, (Log{"tab 2", "tab 1"}));
  desktop.RunEvent([this] { form.tbsPages.SetTabs({"Uno", "Dos"}); });
  EXPECT_EQ(tabs->count(), 2);
  EXPECT_EQ(tabs->tabText(1), "Dos");
}

TEST_F(EventsTest, TimerTicksWhileItRunsAndIsEnabled) {
  int ticks = 0;
  form.tmrTick.on_tick = [&ticks] { ++ticks; };
  auto* timer = Find<QTimer>(form, "tmrTick");
  EXPECT_FALSE(timer->isActive());
  desktop.RunEvent([this] { form.tmrTick.SetInterval(1); });
  EXPECT_TRUE(timer->isActive());
  QElapsedTimer limit;
  limit.start();
  while (ticks < 3 && limit.elapsed() < 5000) desktop.DoEvents();
  EXPECT_GE(ticks, 3);
  desktop.RunEvent([this] { form.tmrTick.SetEnabled(false); });
  EXPECT_FALSE(timer->isActive());
  desktop.RunEvent([this] { form.tmrTick.SetEnabled(true); });
  EXPECT_TRUE(timer->isActive());
  desktop.RunEvent([this] { form.tmrTick.SetInterval(0); });
  EXPECT_FALSE(timer->isActive());
}

TEST_F(EventsTest, TimerTicksAsOthersPostItsTicksWhereTheyAreLeftToThem) {
  form.Unload();
  desktop.LeaveTicksToOthers();
  form.Load();
  int ticks = 0;
  form.tmrTick.on_tick = [&ticks] { ++ticks; };
  desktop.RunEvent([this] { form.tmrTick.SetInterval(1); });
  EXPECT_FALSE(Find<QTimer>(form, "tmrTick")->isActive());
  desktop.PostTick(form.tmrTick);
  desktop.DoEvents();
  EXPECT_EQ(ticks, 1);
}

TEST_F(EventsTest, UnloadedFormsTimerTicksNoMore) {
  int ticks = 0;
  form.tmrTick.on_tick = [&] {
    ++ticks;
    form.Unload();
  };
  desktop.RunEvent([this] { form.tmrTick.SetInterval(1); });
  QElapsedTimer limit;
  limit.start();
  while (ticks == 0 && limit.elapsed() < 5000) desktop.DoEvents();
  for (int i = 0; i < 20; ++i) desktop.DoEvents();
  EXPECT_EQ(ticks, 1);
}

TEST_F(EventsTest, FormMayUnloadInItsOwnHandlers) {
  for (const char* name : {"cmdOK", "chkFine", "optChoice_1"}) {
    form.cmdOK.on_click = form.chkFine.on_click = [this] { form.Unload(); };
    form.optChoice.OnClick([this](int) { form.Unload(); });
    form.Show();
    Pump();
    Find<QAbstractButton>(form, name)->click();
    EXPECT_FALSE(form.Loaded()) << name;
    Pump();
  }
}

TEST_F(EventsTest, FormMayUnloadWhileItIsTypedInto) {
  form.txtName.on_change = [this] { form.Unload(); };
  Type(Find<QLineEdit>(form, "txtName"), "x");
  EXPECT_FALSE(form.Loaded());
  EXPECT_TRUE(errors.empty());
}

TEST_F(EventsTest, FormMayUnloadOnAMenuItemAndOnAKey) {
  form.mnuItem.on_click = [this] { form.Unload(); };
  Find<QAction>(form, "mnuItem")->trigger();
  EXPECT_FALSE(form.Loaded());
  form.Show();
  Pump();
  form.SetKeyPreview(true);
  form.key_down = [this](KeyEvent&) { form.Unload(); };
  Press(Find<QLineEdit>(form, "txtName"), Qt::Key_A, Qt::NoModifier, "a");
  EXPECT_FALSE(form.Loaded());
}

TEST_F(EventsTest, ErrorOfAnEventReachesTheTop) {
  form.cmdOK.on_click = [] { throw RuntimeError(ErrorNumber::kOverflow); };
  Click(Find<QPushButton>(form, "cmdOK"));
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].Number(), 6);
  EXPECT_EQ(errors[0].Description(), "Overflow");
}

TEST_F(EventsTest, AfterAnErrorTheUsersEventsAreDropped) {
  form.chkFine.on_click = [this] {
    form.txtName.SetText("x");
    throw RuntimeError(ErrorNumber::kTypeMismatch);
  };
  Find<QCheckBox>(form, "chkFine")->click();
  Click(Find<QPushButton>(form, "cmdOK"));
  EXPECT_EQ(form.log, (Log{"change x"}));
  EXPECT_EQ(errors.size(), 1U);
}

TEST_F(EventsTest, ErrorsOfTimersKeysAndClosingReachTheTop) {
  const auto fail = [] { throw RuntimeError(ErrorNumber::kFileNotFound); };
  form.query_unload = [&](bool&, UnloadMode) { fail(); };
  desktop.Window(form)->close();
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].Number(), 53);
  form.query_unload = nullptr;
}

TEST_F(EventsTest, ErrorOfATimerReachesTheTop) {
  form.tmrTick.on_tick = [] { throw RuntimeError(ErrorNumber::kOverflow); };
  desktop.RunEvent([this] { form.tmrTick.SetInterval(1); });
  QElapsedTimer limit;
  limit.start();
  while (errors.empty() && limit.elapsed() < 5000) desktop.DoEvents();
  EXPECT_EQ(errors.size(), 1U);
}

TEST_F(EventsTest, UnexpectedExceptionsBecomeInternalErrors) {
  form.cmdOK.on_click = [] { throw std::out_of_range("stray"); };
  Click(Find<QPushButton>(form, "cmdOK"));
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(errors[0].Number(), 51);
}

TEST_F(EventsTest, ResizingTellsTheFormItsSizeAndRaisesOneResize) {
  QWidget* window = desktop.Window(form);
  window->resize(window->width() + 30, window->height() + 60);
  Pump();
  EXPECT_EQ(form.log, (Log{"resize"}));
  EXPECT_EQ(form.Width(), window->width() * kTwipsPerPixel);
  EXPECT_EQ(form.Height(), window->height() * kTwipsPerPixel);
  EXPECT_EQ(form.txtNotes.Place().height,
            Find<QPlainTextEdit>(form, "txtNotes")->height() * kTwipsPerPixel);
}

TEST_F(EventsTest, MinimizingIsAResizeAndIsKnown) {
  desktop.Window(form)->showMinimized();
  Pump();
  EXPECT_TRUE(form.Minimized());
  EXPECT_FALSE(form.log.empty());
  desktop.Window(form)->showNormal();
  Pump();
  EXPECT_FALSE(form.Minimized());
}

}  // namespace
}  // namespace lorimet
