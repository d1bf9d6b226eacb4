// The screens by keyboard: Enter, Escape, F1, Tab into options, and fields that refuse to be left.
#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <string>

#include "autotests/desktop/screens_fixture.h"
#include "autotests/places.h"
#include "monitor/monitor_part.h"
#include "reports/reports_part.h"

namespace lorimet {
namespace {

class ScreenKeysTest : public ScreensTest {
 protected:
  void SetUp() override {
    Start();
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
    Ecu().nNumAxles.Store(2);
  }
  // Shows a page as the program does, and ends it when `action` is done.
  void OnPage(Form& page, const std::function<void()>& action) {
    DesktopTest::WhenModal([&](QWidget* window) {
      ASSERT_EQ(window, desktop.Window(page));
      Activate(page);
      action();
      page.Unload();
    });
    page.Show(Modality::kModal, &program.session->main_form);
  }
  void OnLoadSensing(const std::function<void()>& action) {
    program.parameters->system_page.Load();
    program.parameters->system_page.optSuspensionType[1].SetValue(true);
    OnPage(program.parameters->load_sensing_page, action);
  }
  void OnLastPage(const std::function<void()>& action) {
    program.parameters->system_page.Load();
    OnPage(program.parameters->overturn_guard_page, action);
  }
  std::string Focus(const Form& form) {
    return form.FocusedControl() == nullptr ? "" : form.FocusedControl()->Name();
  }
  std::vector<Form*> Screens() {
    return {&program.session->main_form,
            &program.support->err,
            &program.support->rp1210_error,
            &program.faults->fault_list,
            &program.parameters->system_page,
            &program.parameters->gio_page,
            &program.parameters->special_gio,
            &program.parameters->lift_axle,
            &program.parameters->speed_switch,
            &program.support->about,
            &program.parameters->load_sensing_page,
            &program.parameters->overturn_guard_page,
            &program.monitor->screen,
            &program.monitor->options,
            &program.reports->odr_view,
            &program.reports->odr_delete};
  }
};

TEST_F(ScreenKeysTest, TwoInvalidPathsLetTheUserGo) {
  AnswerBoxes();
  OnLoadSensing([this] {
    const auto field = [this](int row) {
      return Find<QLineEdit>(program.parameters->load_sensing_page,
                             ("txtSuspensionPressLaden_" + std::to_string(row)).c_str());
    };
    road::Click(field(0));
    EXPECT_EQ(Focus(program.parameters->load_sensing_page), "txtSuspensionPressLaden_0");
    road::Click(field(1));
    // Behind a box the window system makes the page active again, in its own time.
    Activate(program.parameters->load_sensing_page);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Focus(program.parameters->load_sensing_page), "txtSuspensionPressLaden_0");
    EXPECT_TRUE(field(0)->hasFocus());
    // Close asks nothing.
    road::Click(Find<QPushButton>(program.parameters->load_sensing_page, "cmdClose"));
    Pump();
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(program.parameters->load_sensing_page.Loaded());
  });
}

TEST_F(ScreenKeysTest, EmptyLastPageLetsTheUserGo) {
  AnswerBoxes();
  OnLastPage([this] {
    Form& page = program.parameters->overturn_guard_page;
    Key(page, Qt::Key_Tab, Qt::NoModifier, "\t");
    EXPECT_EQ(Focus(page), "txtTireSize_0");
    Key(page, Qt::Key_Tab, Qt::NoModifier, "\t");
    Activate(page);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Focus(page), "txtTireSize_0");
    EXPECT_TRUE(Find<QLineEdit>(page, "txtTireSize_0")->hasFocus());
    road::Click(Find<QPushButton>(page, "cmdClose"));
    Pump();
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(page.Loaded());
  });
}

TEST_F(ScreenKeysTest, NextAsksTheFieldHoweverItIsPressed) {
  AnswerBoxes();
  OnLoadSensing([this] {
    Form& page = program.parameters->load_sensing_page;
    auto* next = Find<QPushButton>(page, "cmdNext");
    ASSERT_TRUE(next->isDefault());
    const std::function<void()> presses[] = {
        [&] { road::Click(next); },
        [&] { Key(page, Qt::Key_Return, Qt::NoModifier, "\r"); },
        [&] { Key(page, Qt::Key_N, Qt::AltModifier); },
    };
    for (const auto& press : presses) {
      program.parameters->load_sensing_page.txtLeverLength[0].SetFocus();
      boxes = 0;
      press();
      Activate(page);
      EXPECT_EQ(boxes, 1);
      EXPECT_TRUE(page.Visible());
      EXPECT_EQ(Focus(page), "txtLeverLength_0");
    }
  });
}

TEST_F(ScreenKeysTest, SavesAskTheField) {
  AnswerBoxes();
  OnLastPage([this] {
    for (const char* save : {"cmdSaveToECU", "cmdSaveToFile"}) {
      program.parameters->overturn_guard_page.txtNumTeeth[0].SetFocus();
      boxes = 0;
      road::Click(Find<QPushButton>(program.parameters->overturn_guard_page, save));
      Activate(program.parameters->overturn_guard_page);
      EXPECT_EQ(boxes, 1);
      EXPECT_TRUE(link.calls.empty());
    }
  });
}

TEST_F(ScreenKeysTest, EnterInAFieldOfTheLastPageDoesNothing) {
  AnswerBoxes();
  OnLastPage([this] {
    for (TextBox* field : {&program.parameters->overturn_guard_page.txtTireSize[0],
                           &program.parameters->overturn_guard_page.txtTireSize[1]})
      field->SetText("3000");
    for (const char* name : {"txtTireSize_0", "txtTireSize_1"}) {
      Find<QLineEdit>(program.parameters->overturn_guard_page, name)->setFocus();
      Key(program.parameters->overturn_guard_page, Qt::Key_Return, Qt::NoModifier, "\r");
      Key(program.parameters->overturn_guard_page, Qt::Key_Enter, Qt::KeypadModifier, "\r");
      Pump();
    }
    EXPECT_TRUE(program.parameters->overturn_guard_page.Visible());
  });
  EXPECT_EQ(boxes, 0);
  EXPECT_TRUE(link.calls.empty());
}

TEST_F(ScreenKeysTest, NoDefaultButtonCommandsTheEcu) {
  for (Form* form : Screens()) {
    form->Load();
    for (const QPushButton* button : desktop.Window(*form)->findChildren<QPushButton*>()) {
      if (!button->isDefault()) continue;
      const QString name = button->objectName();
      EXPECT_TRUE(name == "cmdNext" || name == "cmdOK" || name == "cmdClose" || name == "Command1")
          << form->Name() << "." << qPrintable(name);
    }
  }
}

TEST_F(ScreenKeysTest, FieldsThatOnlyShowTakeNoTyping) {
  int fields = 0;
  for (Form* form : {static_cast<Form*>(&program.session->main_form),
                     static_cast<Form*>(&program.faults->fault_list)}) {
    form->Load();
    const QWidget* window = desktop.Window(*form);
    for (const auto* line : window->findChildren<QLineEdit*>()) {
      EXPECT_TRUE(line->isReadOnly()) << qPrintable(line->objectName());
      ++fields;
    }
    for (const auto* lines : window->findChildren<QPlainTextEdit*>()) {
      EXPECT_TRUE(lines->isReadOnly()) << qPrintable(lines->objectName());
      ++fields;
    }
  }
  EXPECT_GT(fields, 20);
}

TEST_F(ScreenKeysTest, EscapeClosesWhatOnlyShowsAndNothingElse) {
  const std::vector<std::string> closing = {"frmErr", "frmRP1210Err", "frmFaults", "frmAbout",
                                            "frmODRView"};
  program.parameters->system_page.Load();
  for (Form* form : Screens()) {
    form->Show();
    Activate(*form);
    Key(*form, Qt::Key_Escape);
    Pump();
    const bool closes = std::ranges::find(closing, form->Name()) != closing.end();
    EXPECT_EQ(form->Visible(), !closes) << form->Name();
    EXPECT_EQ(form->escape_closes, closes) << form->Name();
  }
  EXPECT_TRUE(program.support->err.Loaded());
  EXPECT_FALSE(program.support->rp1210_error.Loaded());
}

TEST_F(ScreenKeysTest, F1OpensTheScreensPage) {
  program.parameters->system_page.Load();
  for (Form* form : Screens()) {
    form->Show();
    Activate(*form);
    help_viewer.calls.clear();
    Key(*form, Qt::Key_F1);
    ASSERT_EQ(help_viewer.calls.size(), 1U) << form->Name();
    const auto& call = help_viewer.calls.front();
    EXPECT_EQ(call.key, form->help_page) << form->Name();
    EXPECT_EQ(call.command, form->help_page.empty() ? HelpCommand::kContents : HelpCommand::kPage);
    for (const char* language : {"en", "fr", "es"})
      EXPECT_TRUE(form->help_page.empty() || QFile::exists(QString::fromStdString(
                                                 InSource("help/") + language + "/" + call.key)))
          << language << "/" << call.key;
  }
  EXPECT_EQ(program.faults->fault_list.help_page, "faults.html");
  EXPECT_EQ(program.session->main_form.help_page, "");
}

TEST_F(ScreenKeysTest, F1OpensTheHelpFromAFieldThatSwallowsItsKeys) {
  program.faults->fault_list.Show();
  Activate(program.faults->fault_list);
  program.faults->fault_list.txtRepair.SetFocus();
  Key(program.faults->fault_list, Qt::Key_F1);
  EXPECT_EQ(help_viewer.calls.size(), 1U);
}

TEST_F(ScreenKeysTest, LastPageOpensWithTheFocusOnTheSelectedOption) {
  program.parameters->image.EOL2(5) = 0x80;
  program.parameters->image.EOL1(62) = 0x01;
  OnLastPage(
      [this] { EXPECT_EQ(Focus(program.parameters->overturn_guard_page), "optOVGStatus_3"); });
}

TEST_F(ScreenKeysTest, TabEntersAGroupOfOptionsAtTheSelectedOne) {
  program.parameters->system_page.Show();
  Activate(program.parameters->system_page);
  for (const int selected : {2, 0}) {
    program.parameters->system_page.optVehicleType[selected].SetValue(true);
    desktop.Flush();
    QStringList entries;
    for (int i = 0; i < 3; ++i) {
      auto* option = Find<QRadioButton>(program.parameters->system_page,
                                        ("optVehicleType_" + std::to_string(i)).c_str());
      if (option->isEnabled() && (option->focusPolicy() & Qt::TabFocus))
        entries << option->objectName();
    }
    EXPECT_EQ(entries, QStringList{QStringLiteral("optVehicleType_%1").arg(selected)});
  }
}

TEST_F(ScreenKeysTest, VoltageSourceShowsAStateAndTakesNoInput) {
  frmZeltMain& main = program.session->main_form;
  const auto button = [&](int index) {
    return Find<QRadioButton>(main, ("optVoltageSource_" + std::to_string(index)).c_str());
  };
  const auto shown_is = [&](int index) {
    return main.optVoltageSource[index].Value() && !main.optVoltageSource[1 - index].Value() &&
           button(index)->isChecked() && !button(1 - index)->isChecked();
  };
  for (const int selected : {0, 1}) {
    desktop.RunEvent([&] { main.optVoltageSource[selected].SetValue(true); });
    ASSERT_TRUE(shown_is(selected));
    QRadioButton* other = button(1 - selected);
    road::Click(other);
    EXPECT_TRUE(shown_is(selected));
    // As a robot does that hands the events to the widget itself.
    DesktopTest::Click(other);
    DesktopTest::Press(other, Qt::Key_Space, Qt::NoModifier, " ");
    DesktopTest::Press(button(selected), Qt::Key_Right);
    EXPECT_TRUE(shown_is(selected));
    EXPECT_FALSE(button(0)->hasFocus() || button(1)->hasFocus());
    // Nor does the tabulator enter them.
    for (const int index : {0, 1}) EXPECT_EQ(button(index)->focusPolicy(), Qt::NoFocus) << index;
  }
}

TEST_F(ScreenKeysTest, OptionsAreRadioButtonsToAScreenReader) {
  int options = 0;
  for (Form* form : Screens()) {
    form->Load();
    for (QRadioButton* button : desktop.Window(*form)->findChildren<QRadioButton*>()) {
      QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(button);
      ASSERT_NE(reader, nullptr);
      EXPECT_EQ(reader->role(), QAccessible::RadioButton) << qPrintable(button->objectName());
      ++options;
    }
  }
  EXPECT_GE(options, 34);
}

}  // namespace
}  // namespace lorimet
