// The redundancy test on trailers with every defect, failure and mistake that it can meet: where it
// waits, or how it judges each modulator.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "autotests/signoff/defects.h"
#include "autotests/signoff/screen_notes.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

constexpr const char* kSupply = "Waiting for SUPPLY PRESSURE to reach 80 psi...";
constexpr const char* kControl = "Waiting for CONTROL PRESSURE to reach 80 psi...";
constexpr const char* kSupplyAgain = "Waiting for supply pressure to reach 79.75 psi...";
constexpr const char* kControlAgain = "Waiting for control pressure to reach 75.4 psi...";
constexpr const char* kCompared = "Comparing Target Pressures with Actual Pressures...";

struct Row {
  const char* scenario;  // of a 4S/2M trailer
  const char* status;    // the last line
  const char* h1 = "";
  const char* h2 = "";
};

constexpr Row kRows[] = {
    // State 1
    {"supply 70\ncompressor off", kSupply},
    {"field dSupplyPress 80", kSupply},
    {"field dSupplyPress 80.1", kCompared, "Fail"},
    {"defect supply_sensor none", kSupply},
    {"defect supply_sensor offset=-45", kSupply},
    {"defect lines_swapped", kSupply},  // the pedal's pressure is told as the supply's
    // State 2
    {"defect control_sensor none", kControl},
    {"field dServiceBrake 80", kControl},
    {"field dServiceBrake 80.1", kCompared, "Fail"},
    {"at 1.5 cable out", kControl},
    // State 3
    {"compressor off\nsupply 100\ndefect supply_leak 2.0", kSupplyAgain},
    {"compressor off\nsupply 100\ndefect supply_leak 1.5", kCompared, "Pass", "Pass"},
    {"when request routine=0x37 mode=1 field dSupplyPress 79.75", kSupplyAgain},
    {"when request routine=0x37 mode=1 field dSupplyPress 79.8", kCompared, "Fail"},
    // State 4
    {"defect control_leak 3", kControlAgain},
    {"defect control_leak 2.5", kCompared, "Pass", "Fail"},  // it sinks while they settle
    {"defect control_leak 2.0", kCompared, "Pass", "Pass"},
    {"when request routine=0x37 mode=1 field dServiceBrake 75.4", kControlAgain},
    {"when request routine=0x37 mode=1 field dServiceBrake 75.5", kCompared, "Fail"},
    // State 5
    {"defect redundancy H1 blocked", kCompared, "Fail"},
    {"defect redundancy H2 blocked", kCompared, "Pass", "Fail"},
    {"defect redundancy H1 kinked=4", kCompared, "Fail"},
    {"defect redundancy H2 kinked=4", kCompared, "Pass", "Fail"},
    {"defect redundancy H1 kinked=3", kCompared, "Pass", "Pass"},
    {"defect redundancy H2 kinked=3", kCompared, "Pass", "Pass"},
    {"defect redundancy H1 offset=7", kCompared, "Fail"},
    {"defect redundancy H2 offset=7", kCompared, "Pass", "Fail"},
    {"defect pressure_sensor H1 offset=-8", kCompared, "Fail"},
    {"defect pressure_sensor H2 offset=-8", kCompared, "Pass", "Fail"},
    {"defect pressure_sensor H1 none", kCompared, "Fail"},
    {"defect pressure_sensor H2 none", kCompared, "Pass", "Fail"},
    {"defect pressure_sensor H1 high", kCompared, "Fail"},
    {"defect pressure_sensor H2 high", kCompared, "Pass", "Fail"},
    {"defect modulator H1 leak=60", kCompared, "Fail"},
    {"defect modulator H2 leak=60", kCompared, "Pass", "Fail"},
    {"defect control_sensor high", kCompared, "Fail"},  // it satisfies every wait
    {"defect mode_ignored 1", kCompared, "Fail"},
    {"failure refuse routine=0x37 mode=1 times=1", kCompared, "Fail"},
    {"failure refuse operation=Trailer_ABS_KWP_StartSession", kCompared, "Fail"},
    {"failure refuse operation=Trailer_ABS_KWP_Password", kCompared, "Fail"},
    {"when access = on session lapse", kCompared, "Fail"},
    {"when pedal > 50 session lapse", kCompared, "Fail"},
    {"field dSupplyPress 100\nfield dServiceBrake 90\nfield dBrake1Press 84.2\n"
     "field dBrake2Press 95.8",
     kCompared, "Pass", "Pass"},
    {"field dSupplyPress 100\nfield dServiceBrake 90\nfield dBrake1Press 84.1\n"
     "field dBrake2Press 95.8",
     kCompared, "Fail"},
    {"field dSupplyPress 100\nfield dServiceBrake 90\nfield dBrake1Press 84.2\n"
     "field dBrake2Press 95.9",
     kCompared, "Pass", "Fail"},
    // What passes by its own rule
    {"load laden\nnoise off\ndefect mode_ignored 1", kCompared, "Pass", "Pass"},
    {"when request routine=0x37 mode=1 session lapse", kCompared, "Pass", "Pass"},
    {"failure refuse routine=0x42", kCompared, "Pass", "Pass"},
    {"compressor off\nsupply 86.4", kCompared, "Pass", "Pass"},  // the reservoir is the lower one
    {"suspension mechanical", kCompared, "Pass", "Pass"},
    {"mounting rear", kCompared, "Pass", "Pass"},
};

void ExpectStored(OperatedProgram& stand, const ScreenNotes& notes, const Row& row) {
  const TestResults& results = stand.Results();
  EXPECT_EQ(results.nH1Pressure != 0, std::string(row.h1) == "Pass") << row.scenario;
  EXPECT_EQ(results.nH2Pressure != 0, std::string(row.h2) == "Pass") << row.scenario;
  if (results.nH1Pressure != 0) {
    EXPECT_NEAR(results.nH1Pressure, std::stod(notes.target), 6.3) << row.scenario;
  }
  if (results.nH2Pressure != 0) {
    EXPECT_NEAR(results.nH2Pressure, std::stod(notes.target), 6.3) << row.scenario;
  }
}

void Check(const Row& row) {
  OperatedProgram stand(row.scenario);
  const ScreenNotes notes(stand);
  stand.RunTest(1);
  const bool passes = std::string(row.h2) == "Pass";
  EXPECT_EQ(notes.status, row.status) << row.scenario;
  EXPECT_EQ(notes.h1, row.h1) << row.scenario;
  EXPECT_EQ(notes.h2, row.h2) << row.scenario;
  EXPECT_EQ(stand.Results().nRedundancyTest, passes ? 1 : 0) << row.scenario;
  ExpectStored(stand, notes, row);
  EXPECT_EQ(stand.hand.GivenUp(), row.status == kCompared ? 0 : 1) << row.scenario;
  for (const MessageBox& box : stand.desktop.TakeBoxes())
    EXPECT_EQ(box.text, passes
                            ? "Redundancy Test Passed."
                            : "Redundancy Test Failed.  Please resolve issues and run test again.")
        << row.scenario;
  EXPECT_EQ(stand.Trailer().Get("pedal"), "0")
      << row.scenario << ": let go of when the screen has closed";
}

TEST(RedundancyRows, WaitOrFailAsTheirDefectSays) {
  for (const Row& row : kRows) Check(row);
}

TEST(RedundancyRows, OtherDefectsChangeNothing) {
  for (const char* defect : kDefects)
    if (!HasRow(kRows, defect)) Check({defect, kCompared, "Pass", "Pass"});
}

TEST(RedundancyRows, HealthyItFindsTheLowerPressureLessThePredominances) {
  OperatedProgram stand("noise off");
  const ScreenNotes notes(stand);
  stand.RunTest(1);
  EXPECT_EQ(notes.target, "90.0");
  EXPECT_NEAR(std::stod(notes.actual_h1), 89.0, 0.2);
  EXPECT_NEAR(std::stod(notes.actual_h2), 88.6, 0.2);
  EXPECT_EQ(stand.Results().nH1Pressure, 89);
  EXPECT_EQ(stand.Results().nH2Pressure, 89);
  EXPECT_NEAR(notes.seconds, 10.7, 0.5);
  EXPECT_EQ(stand.Trailer().Get("mode"), "redundancy") << "nobody hands the brake back";
  OperatedProgram low("noise off\ncompressor off\nsupply 86.4");
  const ScreenNotes low_notes(low);
  low.RunTest(1);
  EXPECT_NEAR(std::stod(low_notes.target), 81.5, 1) << "the reservoir is the lower one";
}

TEST(RedundancyRows, AWrongPressureComesFromTheModeThatIsLeft) {
  OperatedProgram unladen("noise off\ndefect mode_ignored 1");
  const ScreenNotes notes(unladen);
  unladen.RunTest(1);
  EXPECT_NEAR(std::stod(notes.actual_h1), 31, 1);
  // After a pressure test its channels still stand.
  OperatedProgram tested("noise off\nfailure refuse routine=0x37 mode=1 times=1");
  const ScreenNotes tested_notes(tested);
  tested.RunTest(0);
  ASSERT_EQ(tested.Results().nPressureTest, 1);
  tested.RunTest(1);
  EXPECT_EQ(tested.Results().nRedundancyTest, 0);
  EXPECT_NEAR(std::stod(tested_notes.actual_h1), 11.6, 0.8);
}

TEST(RedundancyRows, APedalTooWeakIsWaitedFor) {
  OperatedProgram stand("", {.pedal = 78});
  const ScreenNotes notes(stand);
  stand.RunTest(1);
  EXPECT_EQ(notes.status, kControl);
  EXPECT_EQ(stand.Results().nRedundancyTest, 0);
}

TEST(RedundancyRows, ClosedInAnyStateItHasFailedAndTheModeStays) {
  for (const char* button : {"cmdStop", "cmdClose"})
    for (const std::uint32_t at : {100u, 700u, 2000u, 7000u}) {
      OperatedProgram stand("");
      stand.desktop.After(at, [&] { stand.screen.Press(button); });
      stand.RunTest(1);
      EXPECT_EQ(stand.Results().nRedundancyTest, 0) << button << " " << at;
      EXPECT_EQ(stand.Trailer().Get("mode"), at < 1500 ? "normal" : "redundancy") << at;
    }
}

}  // namespace
}  // namespace lorimet::testing_support
