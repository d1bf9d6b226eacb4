// The sign-off in its exact order, with every stop.
#include "tests/sign_off.h"

#include <map>

#include "autotests/common/program_fixture.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const Calls kOpening = {"StartSession 83", "Password", "StartRoutine 42:00000100"};
const Calls kFlag = {"repaint",        "WriteMemory 2A:2", "StartRoutine 05:", "sleep 2000",
                     "ClearAllFaults", "sleep 2000",       "FaultLock",        "FaultGetCount",
                     "FaultGetData",   "FaultUnlock",      "ResetECU",         "sleep 6000",
                     "FaultLock",      "FaultGetCount",    "FaultGetData",     "FaultUnlock"};
const Calls kSave = {"repaint", "sleep 2000", "save"};
const Calls kPrint = {"print"};

Calls Join(std::initializer_list<Calls> parts) {
  Calls all;
  for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

MessageBox Failed(const std::string& text, const std::string& title = "Test Failed!") {
  return PlainBox(text + " Failed.  Please resolve issues and run test again.", title,
                  BoxIcon::kCritical);
}

MessageBox Question(const std::string& text) {
  MessageBox box = PlainBox(text, "Sign-off Complete");
  box.buttons = kBoxYes | kBoxNo;
  box.yes = "Yes";
  box.no = "No";
  return box;
}

const MessageBox kAskSave =
    Question("All tests passed.  End-of-line bit set.\r\nDo you want to save the data?");
const MessageBox kAskPrint = Question("Do you want to print the data?");
const MessageBox kCable = PlainBox(
    "Corbel software has determined that the optional Stop Light Activation Cable should have been "
    "installed.  This feature can be tested from the Main screen using the TESTS pull-down.  You "
    "must have functional trailer stop lights attached in order to perform this test.",
    "Stop Light Activation Cable");

const std::map<std::string, std::int16_t TestResults::*> kResults = {
    {"frmPressureTest", &TestResults::nPressureTest},
    {"frmRedundancyTest", &TestResults::nRedundancyTest},
    {"frmSensorOrientation", &TestResults::nSensorTest},
    {"frmLampTest", &TestResults::nLampTest},
    {"frmSuspensionCal", &TestResults::nHeightCalCD},
};
const Calls kAirTests = {"frmPressureTest", "frmRedundancyTest", "frmSensorOrientation",
                         "frmLampTest"};
const Calls kMechanicalTests = Join({kAirTests, {"frmSuspensionCal"}});

// Each screen is opened truly and closed at once, with an outcome that the test chooses.
class SignOffTest : public ProgramTest {
 protected:
  void SetUp() override {
    Start();
    Ecu().bNumModulators.Store(2);
    Ecu().bNumSensors.Store(4);
    Ecu().nNumAxles.Store(2);
    desktop.on_repaint = [this] { link.sequence.push_back("repaint"); };
    program.tests->sign_off.save_report = [this] { link.sequence.push_back("save"); };
    program.tests->sign_off.print_report = [this] { link.sequence.push_back("print"); };
  }
  TestResults& Results() { return program.tests->test_results; }
  void Plan(const std::string& form, std::int16_t TestResults::*result) {
    desktop.OnModal(form, [this, form, result](Form& screen) {
      // What the load did is the screen's own business.
      link.sequence.push_back(form);
      Results().*result = outcome[form];
      if (form == closes_behind) desktop.life.Close();
      screen.Unload();
    });
  }
  // `shown` are the screens that are to come.
  void SignOff(const Calls& shown) {
    for (const std::string& form : shown) Plan(form, kResults.at(form));
    Main().mnuSignOff[0].UserClick();
    // The warning of the sensor test is not the sign-off's, nor what its load repaints.
    boxes = desktop.TakeBoxes();
    std::erase_if(boxes, [](const MessageBox& box) { return box.title == "Sensor Test Warning"; });
    calls = link.TakeSequence();
    for (auto at = calls.begin(); at != calls.end();) {
      const bool load = *at == "repaint" && at + 1 != calls.end() &&
                        (*(at + 1) == "repaint" || *(at + 1) == "frmSensorOrientation");
      at = load ? calls.erase(at) : at + 1;
    }
  }
  std::vector<std::int16_t> Codes() {
    const TestResults& results = Results();
    return {results.nPressureTest, results.nRedundancyTest, results.nSensorTest, results.nLampTest,
            results.nHeightCalCD};
  }

  std::map<std::string, std::int16_t> outcome = {{"frmPressureTest", 1},
                                                 {"frmRedundancyTest", 1},
                                                 {"frmSensorOrientation", 1},
                                                 {"frmLampTest", 1},
                                                 {"frmSuspensionCal", 1}};
  std::string closes_behind;  // the screen under which the program closes
  Boxes boxes;
  Calls calls;
};

TEST_F(SignOffTest, PassesAnAirSuspendedTrailerFromEndToEnd) {
  SignOff(kAirTests);
  EXPECT_EQ(calls, Join({kOpening, kAirTests, kFlag, kSave, kPrint}));
  EXPECT_EQ(boxes, (Boxes{kAskSave, kAskPrint}));
  EXPECT_EQ(link.written[0x2A], (std::vector<std::uint8_t>{1, 0}));
  EXPECT_EQ(Codes(), (std::vector<std::int16_t>{1, 1, 1, 1, -1}));
  EXPECT_EQ(Main().txtError.Text(), "  ");
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

TEST_F(SignOffTest, MechanicalSuspensionIsCalibratedAndNotResetApart) {
  Ecu().nMechanicalSuspension.Store(1);
  SignOff(kMechanicalTests);
  EXPECT_EQ(calls, Join({kOpening, kMechanicalTests, kFlag, kSave, kPrint}));
  EXPECT_EQ(boxes, (Boxes{kAskSave, kAskPrint}));
  EXPECT_EQ(Codes(), (std::vector<std::int16_t>{1, 1, 1, 1, 1}));
  for (const std::string& form : kAirTests) EXPECT_EQ(desktop.OwnerOf(form), "frmZeltMain") << form;
  EXPECT_EQ(desktop.OwnerOf("frmSuspensionCal"), "");
}

TEST_F(SignOffTest, OneModulatorNeedsNeitherPressureNorRedundancy) {
  Ecu().bNumModulators.Store(1);
  Ecu().bNumSensors.Store(2);
  SignOff({"frmSensorOrientation", "frmLampTest"});
  EXPECT_EQ(calls, Join({kOpening, {"frmSensorOrientation", "frmLampTest"}, kFlag, kSave, kPrint}));
  EXPECT_EQ(Codes(), (std::vector<std::int16_t>{2, 2, 1, 1, -1}));
  EXPECT_EQ(boxes, (Boxes{kAskSave, kAskPrint}));
}

struct StopRow {
  std::string form;
  Calls shown;
  MessageBox box;
  std::vector<std::int16_t> codes;
};

TEST_F(SignOffTest, StopsAtTheFirstTestThatDoesNotPassAndNamesIt) {
  Ecu().nMechanicalSuspension.Store(1);
  const StopRow rows[] = {
      {"frmPressureTest", {"frmPressureTest"}, Failed("Pressure Test"), {0, -1, -1, -1, -1}},
      {"frmRedundancyTest",
       {"frmPressureTest", "frmRedundancyTest"},
       Failed("Redundancy Test"),
       {1, 0, -1, -1, -1}},
      {"frmSensorOrientation",
       {"frmPressureTest", "frmRedundancyTest", "frmSensorOrientation"},
       Failed("Sensor Test"),
       {1, 1, 0, -1, -1}},
      {"frmLampTest", kAirTests, Failed("Lamp Test"), {1, 1, 1, 0, -1}},
      {"frmSuspensionCal",
       kMechanicalTests,
       Failed("Height Sensor Calibration", "Calibration Failed!"),
       {1, 1, 1, 1, 0}},
  };
  for (const StopRow& row : rows) {
    for (auto& [form, result] : outcome) result = form == row.form ? 0 : 1;
    SignOff(row.shown);
    EXPECT_EQ(calls, Join({kOpening, row.shown})) << row.form;
    EXPECT_EQ(boxes, Boxes{row.box});
    EXPECT_EQ(Codes(), row.codes);
    EXPECT_TRUE(link.written.empty());
  }
}

TEST_F(SignOffTest, AnyOutcomeButOneIsNoPass) {
  for (const std::int16_t other : {-1, 2, 257, -32768}) {
    outcome["frmPressureTest"] = other;
    SignOff({"frmPressureTest"});
    EXPECT_EQ(boxes, Boxes{Failed("Pressure Test")}) << other;
  }
  // The calibration alone asks whether it failed.
  outcome["frmPressureTest"] = 1;
  Ecu().nMechanicalSuspension.Store(1);
  outcome["frmSuspensionCal"] = 2;
  SignOff(kMechanicalTests);
  EXPECT_EQ(boxes, (Boxes{kAskSave, kAskPrint}));
}

// Really closed: what the load has set is the outcome.
TEST_F(SignOffTest, AScreenThatIsClosedEarlyHasFailed) {
  desktop.OnModal("frmPressureTest", [](Form& screen) { screen.UserClose(); });
  Main().mnuSignOff[0].UserClick();
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{Failed("Pressure Test")});
  EXPECT_EQ(Results().nPressureTest, 0);
}

TEST_F(SignOffTest, ClearsTheFiveCodesAndNothingElse) {
  TestResults& results = Results();
  results = {};
  results.dMaxSpeed.fill(3.0);
  results.bSensorOrder.fill(4);
  results.nLampTest = results.nPressureTest = results.nRedundancyTest = results.nSensorTest =
      results.nHeightCalCD = results.nHeightCalEF = 1;
  results.nH1Pressure = 80;
  results.nH2Pressure = 81;
  desktop.OnModal("frmPressureTest", [&](Form& screen) {
    EXPECT_EQ(Codes(), (std::vector<std::int16_t>{0, -1, -1, -1, -1}));  // 0 by its own load
    EXPECT_EQ(results.nHeightCalEF, 1);
    EXPECT_EQ(results.nH1Pressure, 80);
    EXPECT_EQ(results.nH2Pressure, 81);
    EXPECT_EQ(results.dMaxSpeed[3], 3.0);
    EXPECT_EQ(results.bSensorOrder[3], 4);
    screen.UserClose();
  });
  Main().mnuSignOff[0].UserClick();
  desktop.TakeBoxes();
}

TEST_F(SignOffTest, TellsOfTheStopLightCableAndGoesOn) {
  program.parameters->image.bStopLightCable = true;
  desktop.OnBox([](const MessageBox&) {});  // the sensor test's
  desktop.OnBox([this](const MessageBox& box) {
    EXPECT_EQ(box, kCable);
    EXPECT_EQ(Results().nLampTest, 1);
    EXPECT_TRUE(link.written.empty());
  });
  SignOff(kAirTests);
  EXPECT_EQ(boxes, (Boxes{kCable, kAskSave, kAskPrint}));
}

TEST_F(SignOffTest, ShowsItsWorkOnTheMainScreenWhileItSetsTheFlag) {
  link.on_call = [this](const std::string& call) {
    if (call != "WriteMemory 2A:2") return;
    EXPECT_EQ(Main().txtError.Text(), "Setting End-of-line Bit");
    EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
  };
  SignOff(kAirTests);
  EXPECT_EQ(link.written.size(), 1u);
}

TEST_F(SignOffTest, AFlagThatIsRefusedEndsItAfterTheWholeWait) {
  link.always["WriteMemory"] = 0x33;
  SignOff(kAirTests);
  EXPECT_EQ(calls, Join({kOpening, kAirTests, kFlag}));
  EXPECT_EQ(boxes, Boxes{PlainBox("Unable to clear the End of Line bit.", "Sign-off Failure",
                                  BoxIcon::kCritical)});
  EXPECT_EQ(Main().txtError.Text(), "  ");
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

TEST_F(SignOffTest, ANoToSavingStillLeadsToTheQuestionOfPrinting) {
  struct Row {
    BoxButton save, print;
    Calls done;
  };
  for (const Row& row :
       {Row{kBoxNo, kBoxYes, kPrint}, Row{kBoxNo, kBoxNo, {}}, Row{kBoxYes, kBoxNo, kSave}}) {
    desktop.AnswerBox(kBoxOk);  // the warning of the sensor test
    desktop.AnswerBox(row.save);
    desktop.AnswerBox(row.print);
    SignOff(kAirTests);
    EXPECT_EQ(calls, Join({kOpening, kAirTests, kFlag, row.done}));
    EXPECT_EQ(boxes, (Boxes{kAskSave, kAskPrint}));
  }
}

TEST_F(SignOffTest, SessionAndAccessThatAreRefusedStopNothing) {
  link.always = {{"StartSession", 1}, {"Password", 1}, {"StartRoutine", 1}};
  SignOff(kAirTests);
  Calls opening(4, "StartSession 83");
  opening.insert(opening.end(), 4, "Password");
  opening.insert(opening.end(), 4, "StartRoutine 42:00000100");
  EXPECT_EQ(calls, Join({opening, kAirTests, kFlag, kSave, kPrint}));
}

// A number of modulators that no trailer has.
TEST_F(SignOffTest, NoModulatorsAreShownTheTestsAndAskedNothing) {
  Ecu().bNumModulators.Store(0);
  outcome["frmPressureTest"] = 0;
  outcome["frmRedundancyTest"] = 0;
  SignOff(kAirTests);
  EXPECT_EQ(calls, Join({kOpening, kAirTests, kFlag, kSave, kPrint}));
  for (const int modulators : {3, 21, 255}) {
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    SignOff({"frmPressureTest"});
    EXPECT_EQ(boxes, Boxes{Failed("Pressure Test")}) << modulators;
  }
}

TEST_F(SignOffTest, AProgramThatClosesMeanwhileSaysAndSendsNothingMore) {
  Ecu().nMechanicalSuspension.Store(1);
  for (std::size_t last = 0; last < kMechanicalTests.size(); ++last) {
    desktop.life = {};
    desktop.life.Run();
    const Calls shown(kMechanicalTests.begin(),
                      kMechanicalTests.begin() + static_cast<std::ptrdiff_t>(last) + 1);
    closes_behind = shown.back();
    SignOff(shown);
    EXPECT_EQ(calls, Join({kOpening, shown})) << closes_behind;
    EXPECT_EQ(boxes, Boxes{}) << closes_behind;
  }
  closes_behind.clear();
  desktop.life = {};
  desktop.life.Run();
  program.parameters->image.bStopLightCable = true;
  desktop.OnBox([](const MessageBox&) {});  // the sensor test's
  desktop.OnBox([this](const MessageBox&) { desktop.life.Close(); });
  SignOff(kAirTests);
  EXPECT_EQ(boxes, Boxes{kCable});
  EXPECT_TRUE(link.written.empty());
}

TEST_F(SignOffTest, SpeaksTheUsersLanguage) {
  program.support->dictionary.SetLanguage(kFrench);
  const auto& rows = translations.Rows(kFrench);
  desktop.AnswerBox(kBoxOk);
  desktop.AnswerBox(kBoxNo);
  desktop.AnswerBox(kBoxNo);
  SignOff(kAirTests);
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[1].title, rows.at("Sign-off Complete"));
  EXPECT_EQ(boxes[1].text, rows.at("All tests passed.  End-of-line bit set.") + "\r\n" +
                               rows.at("Do you want to save the data?"));
  EXPECT_EQ(boxes[1].yes, "Oui");
  outcome["frmLampTest"] = 0;
  SignOff(kAirTests);
  EXPECT_EQ(boxes.back().text,
            rows.at("Lamp Test Failed.  Please resolve issues and run test again."));
  EXPECT_EQ(boxes.back().title, rows.at("Test Failed!"));
}

}  // namespace
}  // namespace lorimet::testing_support
