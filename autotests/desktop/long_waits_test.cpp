// The waits that block the program: what is going on stands in words on a screen before they begin.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <string>
#include <vector>

#include "autotests/desktop/screens_fixture.h"
#include "tests/tests_part.h"

namespace lorimet {
namespace {

class LongWaitsTest : public ScreensTest {
 protected:
  void SetUp() override {
    Start();
    Ecu().bNumModulators.Store(2);
    clock.on_advance = [this](std::uint32_t milliseconds) {
      if (milliseconds >= shortest_) told_.push_back(WordsOnScreen());
    };
  }
  void TearDown() override { clock.on_advance = nullptr; }

  // What the windows show, which is what they have been given before the wait.
  static std::string WordsOnScreen() {
    QStringList words;
    for (const QWidget* widget : QApplication::allWidgets()) {
      if (!widget->isVisible()) continue;
      if (const auto* label = qobject_cast<const QLabel*>(widget)) words << label->text();
      if (const auto* line = qobject_cast<const QLineEdit*>(widget)) words << line->text();
      if (const auto* page = qobject_cast<const QPlainTextEdit*>(widget))
        words << page->toPlainText();
    }
    return words.join('|').toStdString();
  }
  // The waits so far have each shown their words, in order.
  void ExpectTold(const std::vector<std::string>& expected) {
    ASSERT_EQ(told_.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
      EXPECT_NE(told_[i].find(expected[i]), std::string::npos) << told_[i];
    told_.clear();
  }
  std::string Messages() { return program.session->main_form.txtError.Text(); }

  std::uint32_t shortest_ = 1000;  // ms
  std::vector<std::string> told_;
};

TEST_F(LongWaitsTest, TheMainWindowTellsThatTheFaultsAreRead) {
  program.session->main_form.txtError.SetText("before");
  DesktopTest::WhenModal([this](QWidget*) {
    ExpectTold({"Reading the faults from the ECU..."});
    EXPECT_EQ(Messages(), "before");
    program.faults->fault_list.cmdClearAll.UserClick();
    EXPECT_EQ(program.faults->fault_list.lblWait.Caption(), "");
    program.faults->fault_list.Unload();
  });
  program.session->main_form.mnuDiagnostics[0].UserClick();
  ExpectTold({"Clearing the faults. The ECU restarts, which takes some seconds."});
}

TEST_F(LongWaitsTest, TheScreenOfTheFlagTellsHowLongItTakes) {
  program.tests->eol_bit.Show();
  Pump();
  program.tests->eol_bit.cmdSetStatusFlag.UserClick();
  ExpectTold(std::vector<std::string>(3, "Setting the flag takes about ten seconds."));
}

TEST_F(LongWaitsTest, TheSignOffTellsThatTheFlagIsSetAndTheDataSaved) {
  AnswerBoxes();
  QTimer tests;
  QObject::connect(&tests, &QTimer::timeout, &tests, [this] {
    TestsPart& part = *program.tests;
    part.test_results.nPressureTest = kTestPassed;
    part.test_results.nRedundancyTest = kTestPassed;
    part.test_results.nSensorTest = kTestPassed;
    part.test_results.nLampTest = kTestPassed;
    for (Form* test : std::initializer_list<Form*>{&part.pressure_test, &part.redundancy_test,
                                                   &part.sensor_test, &part.lamp_test})
      if (test->Visible()) test->Unload();
  });
  tests.start(1);
  program.session->main_form.mnuSignOff[0].UserClick();
  ExpectTold({"Setting End-of-line Bit", "Setting End-of-line Bit", "Setting End-of-line Bit",
              "Saving the data..."});
  EXPECT_EQ(Messages(), "  ");
}

TEST_F(LongWaitsTest, EachStepOfWritingIsTold) {
  AnswerBoxes();
  program.parameters->system_page.Load();
  program.parameters->overturn_guard_page.Show();
  Pump();
  program.parameters->overturn_guard_page.cmdSaveToECU.UserClick();
  ExpectTold({"Updating Checksums", "Clearing Faults", "Performing Reset of ECU"});
}

TEST_F(LongWaitsTest, TheRedundancyTestTellsOfItsFiveSeconds) {
  shortest_ = 10;
  frmRedundancyTest& test = program.tests->redundancy_test;
  test.Show();
  Pump();
  Ecu().dSupplyPress.Store(112.4);
  Ecu().dServiceBrake.Store(95.0);
  for (int tick = 0; tick < 2; ++tick) desktop.RunEvent([&] { test.Timer1.Tick(); });
  ExpectTold(std::vector<std::string>(500, "switch into redundancy mode (5 seconds)"));
}

}  // namespace
}  // namespace lorimet
