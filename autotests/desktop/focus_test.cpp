// The keyboard: focus events, key preview, and the keys that no form can keep.
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

using Log = std::vector<std::string>;

class FocusTest : public DesktopTest {
 protected:
  FocusTest() : dialog(desktop, "frmOne") {
    form.Show();
    Pump();
    form.cmdOK.SetFocus();
    Watch(form.txtName, "name");
    Watch(form.txtLast, "last");
    Watch(form.txtNotes, "notes");
  }
  ~FocusTest() override {
    dialog.query_unload = nullptr;
    dialog.Unload();
  }

  void Watch(TextBox& box, const std::string& name) {
    box.on_got_focus = [this, name] { form.log.push_back("+" + name); };
    box.on_lost_focus = [this, name] { form.log.push_back("-" + name); };
  }
  void SwallowAllKeys(SampleForm& which) {
    which.SetKeyPreview(true);
    which.key_down = [this](KeyEvent& key) {
      keys.push_back(key);
      key.code = 0;
    };
    which.key_press = [](int& character) { character = 0; };
  }

  SampleForm dialog;
  std::vector<KeyEvent> keys;
};

TEST_F(FocusTest, MovingTheFocusRaisesLostThenGot) {
  Find<QLineEdit>(form, "txtName")->setFocus();
  Find<QLineEdit>(form, "txtLast")->setFocus();
  EXPECT_EQ(form.log, (Log{"+name", "-name", "+last"}));
  EXPECT_EQ(form.FocusedControl(), &form.txtLast);
}

TEST_F(FocusTest, SetFocusFromCodeMovesTheKeyboard) {
  form.txtName.SetFocus();
  EXPECT_TRUE(Find<QLineEdit>(form, "txtName")->hasFocus());
  EXPECT_EQ(form.log, (Log{"+name"}));
}

TEST_F(FocusTest, TabulatorSkipsAFieldThatIsNoTabStopAndTheMouseDoesNot) {
  for (const bool stop : {true, false}) {
    desktop.RunEvent([&] { form.txtLast.SetTabStop(stop); });
    form.optChoice[0].SetFocus();
    road::Key(desktop.Window(form), Qt::Key_Backtab, Qt::ShiftModifier);
    const Control* before = stop ? &form.txtLast : &form.txtNotes;
    EXPECT_EQ(form.FocusedControl(), before);
    road::Click(Find<QLineEdit>(form, "txtLast"));
    EXPECT_EQ(form.FocusedControl(), &form.txtLast);
  }
}

TEST_F(FocusTest, FieldThatWasJustEnabledTakesTheFocus) {
  desktop.RunEvent([this] { form.txtName.SetEnabled(false); });
  desktop.RunEvent([this] {
    form.txtName.SetEnabled(true);
    form.txtName.SetFocus();
  });
  EXPECT_TRUE(Find<QLineEdit>(form, "txtName")->hasFocus());
}

TEST_F(FocusTest, FieldMayRefuseToBeLeft) {
  form.txtName.on_lost_focus = [this] {
    form.log.push_back("-name");
    form.txtName.SetFocus();
  };
  form.txtName.SetFocus();
  Find<QLineEdit>(form, "txtLast")->setFocus();
  EXPECT_TRUE(Find<QLineEdit>(form, "txtName")->hasFocus());
  EXPECT_EQ(form.log, (Log{"+name", "-name", "+name"}));
}

TEST_F(FocusTest, TwoFieldsThatRefuseDoNotPassTheFocusForEver) {
  form.txtName.on_lost_focus = [this] {
    form.log.push_back("-name");
    form.txtName.SetFocus();
  };
  form.txtLast.on_lost_focus = [this] {
    form.log.push_back("-last");
    form.txtLast.SetFocus();
  };
  form.txtName.SetFocus();
  form.log.clear();
  Find<QLineEdit>(form, "txtLast")->setFocus();
  EXPECT_EQ(form.log, (Log{"-name", "+name"}));
}

TEST_F(FocusTest, ClickThatAFieldDoesNotLetGoPressesNoButton) {
  form.txtName.on_lost_focus = [this] { form.txtName.SetFocus(); };
  form.txtName.SetFocus();
  form.log.clear();
  auto* button = Find<QPushButton>(form, "cmdOK");
  Click(button);
  EXPECT_EQ(form.log, (Log{"+name"}));
  EXPECT_FALSE(button->isDown());
}

TEST_F(FocusTest, MessageBoxTakesNoFocusFromTheForm) {
  form.txtName.SetFocus();
  form.log.clear();
  WhenModal([](QWidget* box) { Press(box, Qt::Key_Escape); });
  desktop.ShowMessageBox({});
  Pump();
  EXPECT_TRUE(form.log.empty());
  EXPECT_EQ(form.FocusedControl(), &form.txtName);
}

TEST_F(FocusTest, DisablingTheFocusedFieldRaisesItsEventAfterTheMirroring) {
  form.txtName.SetFocus();
  form.log.clear();
  form.txtName.on_lost_focus = [this] {
    form.log.push_back("-name");
    form.Unload();
  };
  desktop.RunEvent([this] { form.txtName.SetEnabled(false); });
  EXPECT_TRUE(form.log.empty());
  Pump();
  EXPECT_EQ(form.log, (Log{"-name", "unload"}));
}

TEST_F(FocusTest, TextSelectedOnGettingTheFocusStaysSelectedUnderTheMouse) {
  form.txtLast.SetFocus();
  form.txtName.on_got_focus = [this] { form.txtName.SelectAll(); };
  Click(Find<QLineEdit>(form, "txtName"));
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->selectedText(), "nobody");
}

TEST_F(FocusTest, FormSeesTheKeyOnceWithItsShiftBits) {
  form.SetKeyPreview(true);
  form.key_down = [this](KeyEvent& key) { keys.push_back(key); };
  form.txtName.SetFocus();
  Press(Find<QLineEdit>(form, "txtName"), Qt::Key_F9,
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].code, kKeyF9);
  EXPECT_EQ(keys[0].shift, kShiftMask | kCtrlMask | kAltMask);
}

TEST_F(FocusTest, KeysWithoutAFocusedFieldReachTheForm) {
  form.SetKeyPreview(true);
  form.key_down = [this](KeyEvent& key) { keys.push_back(key); };
  if (QWidget* focus = desktop.Window(form)->focusWidget()) focus->clearFocus();
  Press(desktop.Window(form), Qt::Key_F1);
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].code, kKeyF1);
}

TEST_F(FocusTest, SwallowedKeysTypeNothing) {
  SwallowAllKeys(form);
  auto* field = Find<QLineEdit>(form, "txtName");
  form.txtName.SetFocus();
  field->selectAll();
  QApplication::clipboard()->setText("before");
  Type(field, "x");
  Press(field, Qt::Key_Backspace);
  Press(field, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "nobody");
  EXPECT_EQ(QApplication::clipboard()->text(), "before");
  EXPECT_EQ(keys.size(), 3U);
}

TEST_F(FocusTest, SwallowedCharacterTypesNothing) {
  form.SetKeyPreview(true);
  form.key_press = [this](int& character) {
    form.log.push_back(std::to_string(character));
    if (character == 'x') character = 0;
  };
  auto* field = Find<QLineEdit>(form, "txtName");
  form.txtName.SetFocus();
  field->clear();
  form.log.clear();
  Type(field, "xy");
  EXPECT_EQ(form.txtName.Text(), "y");
  EXPECT_EQ(form.log, (Log{"120", "121", "change y"}));
}

TEST_F(FocusTest, ControlMaySwallowItsOwnKeys) {
  form.txtName.on_key_down = [](KeyEvent& key) { key.code = 0; };
  Type(Find<QLineEdit>(form, "txtName"), "x");
  EXPECT_EQ(form.txtName.Text(), "nobody");
  Type(Find<QLineEdit>(form, "txtLast"), "x");
  EXPECT_EQ(form.txtLast.Text(), "x");
}

TEST_F(FocusTest, MenusOpenWhateverTheFormSwallows) {
  SwallowAllKeys(form);
  form.txtName.SetFocus();
  auto* field = Find<QLineEdit>(form, "txtName");
  auto* menu = Find<QMenu>(form, "mnuTop");
  Press(field, Qt::Key_T, Qt::AltModifier, "t");
  EXPECT_TRUE(menu->isVisible());
  menu->close();
  Press(field, Qt::Key_F10);
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(FocusTest, AltAloneGoesToTheMenuBarWhateverTheFormSwallows) {
  SwallowAllKeys(form);
  form.txtName.SetFocus();
  auto* field = Find<QLineEdit>(form, "txtName");
  // The window's menu bar waits for the question that goes before the key.
  QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(desktop.Window(form), &question);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(field, &press);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
  QCoreApplication::sendEvent(field, &release);
  EXPECT_TRUE(static_cast<QMainWindow*>(desktop.Window(form))->menuBar()->hasFocus());
}

TEST_F(FocusTest, TabMovesTheFocusWhateverTheFormSwallows) {
  SwallowAllKeys(form);
  form.txtName.SetFocus();
  Press(Find<QLineEdit>(form, "txtName"), Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_TRUE(Find<QPlainTextEdit>(form, "txtNotes")->hasFocus());
  EXPECT_TRUE(keys.empty());
}

TEST_F(FocusTest, CtrlTabIsAKeyOfTheForms) {
  SwallowAllKeys(form);
  Press(Find<QLineEdit>(form, "txtName"), Qt::Key_Tab, Qt::ControlModifier);
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].code, 9);
  EXPECT_EQ(keys[0].shift, kCtrlMask);
}

TEST_F(FocusTest, CloseBoxAsksTheFormAndClosesNothingItself) {
  std::vector<UnloadMode> asked;
  form.query_unload = [&](bool& cancel, UnloadMode mode) {
    asked.push_back(mode);
    cancel = true;
  };
  EXPECT_FALSE(desktop.Window(form)->close());
  EXPECT_EQ(asked, (std::vector{UnloadMode::kControlMenu}));
  EXPECT_TRUE(desktop.Window(form)->isVisible());
  form.query_unload = nullptr;
  desktop.Window(form)->close();
  EXPECT_FALSE(form.Loaded());
}

TEST_F(FocusTest, CloseBoxMayHideTheForm) {
  form.query_unload = [&](bool& cancel, UnloadMode) {
    form.Hide();
    cancel = true;
  };
  desktop.Window(form)->close();
  EXPECT_TRUE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_FALSE(desktop.Window(form)->isVisible());
}

TEST_F(FocusTest, EscapeIsTheCloseBoxOfADialogThatSaysSo) {
  for (const bool closes : {false, true}) {
    dialog.escape_closes = closes;
    dialog.Show();
    Pump();
    SwallowAllKeys(dialog);
    dialog.txtName.SetFocus();
    Press(Find<QLineEdit>(dialog, "txtName"), Qt::Key_Escape);
    EXPECT_EQ(dialog.Visible(), !closes);
    EXPECT_EQ(dialog.Loaded(), !closes);
  }
}

TEST_F(FocusTest, EscapeOnAMainWindowIsNothing) {
  Press(Find<QLineEdit>(form, "txtName"), Qt::Key_Escape);
  EXPECT_TRUE(form.Loaded());
}

TEST_F(FocusTest, EnterPressesTheFocusedButtonOfADialogAndNoOther) {
  dialog.Show();
  Pump();
  dialog.txtName.SetFocus();
  Press(Find<QLineEdit>(dialog, "txtName"), Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_TRUE(dialog.log.empty());
  dialog.cmdOK.SetFocus();
  Press(Find<QPushButton>(dialog, "cmdOK"), Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(dialog.log, (Log{"ok"}));
}

TEST_F(FocusTest, EnterInALineIsTheDefaultButtonAndInManyLinesANewOne) {
  dialog.Show();
  Pump();
  Find<QPushButton>(dialog, "cmdOK")->setDefault(true);
  dialog.txtNotes.SetFocus();
  Press(Find<QPlainTextEdit>(dialog, "txtNotes"), Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(dialog.txtNotes.Text(), "\r\n");
  EXPECT_TRUE(dialog.log.empty());
  dialog.txtName.SetFocus();
  Press(Find<QLineEdit>(dialog, "txtName"), Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(dialog.log, (Log{"ok"}));
}

}  // namespace
}  // namespace lorimet
