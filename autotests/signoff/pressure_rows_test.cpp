// The pressure test on trailers with every defect, failure and mistake that it can meet: where it
// stands, what its screen says there, and what comes out of it.
#include <gtest/gtest.h>

#include <string>

#include "autotests/signoff/defects.h"
#include "autotests/signoff/screen_notes.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

constexpr const char* kNotValid = "Control Pressure not valid.";
constexpr const char* kBrakes = "Waiting for no control pressure (< 2.9 psi) ...";
constexpr const char* kSupply = "Waiting for supply pressure greater than 72.5 psi...";
constexpr const char* kBellows = "Bellows pressure is too low (less than 2.17 psi).";
constexpr const char* kLaden = "Testing Laden...";
constexpr const char* kPassed = "Testing Unladen...";  // the last line before the screen closes

struct Row {
  const char* scenario;  // of a 4S/2M trailer
  const char* status;
  int row = -1;  // that still says "Testing..."; those before it are "OK", those behind it empty
};

constexpr Row kRows[] = {
    // State 1
    {"defect control_sensor none", kNotValid},
    {"defect control_sensor high", kNotValid},
    {"field dServiceBrake 182", kNotValid},
    {"field dServiceBrake 181.9", kBrakes},
    {"field dServiceBrake 2.9", kBrakes},
    {"field dServiceBrake 2.8", kPassed},
    {"defect control_sensor offset=4", kBrakes},
    {"defect control_residual 4", kBrakes},
    {"defect control_residual 2.5", kPassed},
    {"defect lines_swapped", kBrakes},
    {"press demand 20", kPassed},  // the operator lets go
    {"suspension mechanical\ndefect control_residual 4", kPassed},
    {"suspension mechanical\ndefect control_sensor none", kPassed},
    // State 2
    {"supply 60\ncompressor off", kSupply},
    {"field dSupplyPress 72.5", kSupply},
    {"field dSupplyPress 72.6", kPassed},
    {"defect supply_sensor none", kSupply},
    {"defect supply_sensor offset=-45", kSupply},
    // State 3
    {"defect bellows burst", kBellows},
    {"defect bellows_sensor none", kBellows},
    {"defect bellows_sensor offset=-9", kBellows},
    {"field dMainBellows 2.17", kBellows},
    {"field dMainBellows 2.18", kPassed},
    {"suspension mechanical\nfield dMainBellows 0", kPassed},
    // State 4: no pressure
    {"defect modulator H1 residual=5", kLaden, 0},
    {"defect modulator H1 residual=9", kLaden, 0},
    {"defect modulator H1 residual=3.2", kLaden, 0},
    {"defect modulator H1 residual=2.5", kPassed},
    {"defect modulator H2 residual=5", kLaden, 1},
    {"defect modulator H2 residual=9", kLaden, 1},
    {"defect modulator H2 residual=3.2", kLaden, 1},
    {"defect modulator H2 residual=2.5", kPassed},
    {"defect pressure_sensor H1 offset=4", kLaden, 0},
    {"defect pressure_sensor H2 offset=4", kLaden, 1},
    {"defect pressure_sensor H1 high", kLaden, 0},
    {"defect pressure_sensor H2 high", kLaden, 1},
    {"field dBrake1Press 2.91", kLaden, 0},
    {"field dBrake2Press 2.91", kLaden, 1},
    // State 5: the first point
    {"field dBrake1Press 2.9", kLaden, 2},
    {"field dBrake2Press 2.9", kLaden, 3},
    {"defect modulator H1 dead", kLaden, 2},
    {"defect modulator H2 dead", kLaden, 3},
    {"defect modulator H1 leak=60", kLaden, 2},
    {"defect modulator H2 leak=60", kLaden, 3},
    {"defect modulator H1 leak=40", kPassed},  // with a saw-tooth
    {"defect modulator H2 leak=40", kPassed},
    {"defect pressure_sensor H1 none", kLaden, 2},  // -1.0 is nearly nothing
    {"defect pressure_sensor H2 none", kLaden, 3},
    {"defect pressure_sensor H1 offset=-8", kLaden, 2},
    {"defect pressure_sensor H2 offset=-8", kLaden, 3},
    {"defect mode_ignored 2", kLaden, 2},
    {"failure refuse routine=0x37 mode=2 times=1", kLaden, 2},
    {"failure refuse routine=0x06 channel=0", kLaden, 2},
    {"failure refuse routine=0x06", kLaden, 2},
    {"failure refuse operation=Trailer_ABS_KWP_StartSession", kLaden, 2},
    {"failure refuse operation=Trailer_ABS_KWP_Password", kLaden, 2},
    {"at 3 cable out", kLaden, 2},
    {"at 3 power off", kLaden, 2},
    // State 6: the second point
    {"defect modulator H1 weak=0.9", kLaden, 4},
    {"defect modulator H2 weak=0.9", kLaden, 5},
    {"defect modulator H1 weak=0.94", kLaden, 4},
    {"defect modulator H2 weak=0.94", kLaden, 5},
    {"defect modulator H1 weak=0.96", kPassed},
    {"defect modulator H2 weak=0.96", kPassed},
    {"defect load_ignored", kLaden, 4},
    {"when load = 0 load laden\ndefect load_ignored", kLaden, 4},  // the bellows follow slowly
    {"load laden\nwhen load = 0 load laden\ndefect load_ignored", kPassed},
    {"failure refuse routine=0x06 channel=4", kLaden, 4},
    {"suspension mechanical\nfailure refuse routine=0x06 channel=6", kLaden, 4},
    // What passes by its own rule
    {"failure refuse routine=0x06 times=3", kPassed},
    {"failure refuse routine=0x06 times=4", kPassed},  // the next tick sends it again
    {"failure refuse routine=0x42", kPassed},
    {"failure refuse operation=Trailer_ABS_KWP_StartSession times=3", kPassed},
    {"failure refuse operation=Trailer_ABS_KWP_Password times=3", kPassed},
    {"suspension mechanical", kPassed},
};

// The title and the text of the message that follows.
void ExpectMessage(OperatedProgram& stand, bool passes, const char* scenario) {
  for (const MessageBox& box : stand.desktop.TakeBoxes()) {
    EXPECT_EQ(box.title, passes ? "Test Passed" : "Test Failed!") << scenario;
    EXPECT_EQ(box.text, passes ? "Pressure Test Passed."
                               : "Pressure Test Failed.  Please resolve issues and run test again.")
        << scenario;
  }
}

void ExpectRows(const ScreenNotes& notes, const Row& row) {
  for (int i = 0; i < 10; ++i) {
    const bool ok = row.status == kPassed || i < row.row;
    EXPECT_EQ(notes.rows[static_cast<std::size_t>(i)], ok             ? "OK"
                                                       : i == row.row ? "Testing..."
                                                                      : "")
        << row.scenario << ", row " << i;
  }
}

void Check(const Row& row) {
  OperatedProgram stand(row.scenario);
  const ScreenNotes notes(stand);
  stand.RunTest(0);
  const bool passes = row.status == kPassed;
  EXPECT_EQ(notes.status, row.status) << row.scenario;
  EXPECT_EQ(stand.Results().nPressureTest, passes ? 1 : 0) << row.scenario;
  EXPECT_EQ(stand.hand.GivenUp(), passes ? 0 : 1) << row.scenario;
  ExpectRows(notes, row);
  ExpectMessage(stand, passes, row.scenario);
}

TEST(PressureRows, StandWhereTheirDefectHoldsThem) {
  for (const Row& row : kRows) Check(row);
}

TEST(PressureRows, OtherDefectsChangeNothing) {
  for (const char* defect : kDefects)
    if (!HasRow(kRows, defect)) Check({defect, kPassed});
}

TEST(PressureRows, ALeakingSupplyStandsAfterAMinuteAndNotBefore) {
  OperatedProgram stand("defect supply_leak 2.5");
  const ScreenNotes notes(stand);
  stand.RunTest(0);
  EXPECT_EQ(stand.Results().nPressureTest, 1);
  stand.desktop.Run(60'000);
  stand.RunTest(0);
  EXPECT_EQ(stand.Results().nPressureTest, 0);
  EXPECT_EQ(notes.status, kSupply);
}

TEST(PressureRows, ASlowModulatorPassesLate) {
  OperatedProgram stand("defect modulator H1 slow=8");
  const ScreenNotes notes(stand);
  stand.RunTest(0);
  EXPECT_EQ(stand.Results().nPressureTest, 1);
  EXPECT_NEAR(notes.seconds, 12, 1.5);
}

TEST(PressureRows, APedalThatIsHeldKeepsItWaiting) {
  OperatedProgram stand("press demand 20", {.holds_pedal = true});
  const ScreenNotes notes(stand);
  stand.RunTest(0);
  EXPECT_EQ(stand.Results().nPressureTest, 0);
  EXPECT_EQ(notes.status, kBrakes);
}

TEST(PressureRows, HealthyItTakesTenTicksAndOneOfThemWaitsForTheExhaust) {
  for (int seed = 1; seed <= 5; ++seed) {
    OperatedProgram stand("noise seed=" + std::to_string(seed));
    const ScreenNotes notes(stand);
    stand.TakeSequence();
    stand.RunTest(0);
    EXPECT_NEAR(notes.seconds, 4.5, 0.02) << seed;
    int measured = 0;
    for (const std::string& entry : stand.TakeSequence())
      if (entry == "sleep 10 x 40") ++measured;
    EXPECT_EQ(measured, 6) << seed << ": five points, and the exhaust once more";
    EXPECT_EQ(stand.Trailer().Get("mode"), "test") << "nobody hands the brake back";
  }
}

// The bytes that the ECU gets for 80 mm, for the laden and the unladen bellows.
TEST(PressureRows, MechanicalSuspensionSimulatesTheHeightInPlaceOfTheBellows) {
  OperatedProgram stand("suspension mechanical");
  stand.TakeSequence();
  stand.RunTest(0);
  std::vector<std::string> loads;
  for (const std::string& call : stand.TakeSequence())
    if (call.starts_with("StartRoutine(0x06, 7, [0") && call[24] != '0' &&
        (loads.empty() || loads.back() != call))
      loads.push_back(call);
  EXPECT_EQ(loads, (std::vector<std::string>{"StartRoutine(0x06, 7, [06 58 6E 58 6E E8 03])",
                                             "StartRoutine(0x06, 7, [06 00 00 00 00 E8 03])"}));
}

// Error 6 ends the program: 400 mm of path are a valid parameter and no pressure.
TEST(PressureRows, APathThatNoPressureHoldsEndsTheProgramInOrder) {
  OperatedProgram stand("suspension mechanical\nparameter EOL1 68 15 160");
  const ScreenNotes notes(stand);
  stand.RunTest(0);
  EXPECT_TRUE(stand.desktop.life.Failed());
  EXPECT_EQ(stand.program.ExitStatus(), 1);
  const auto boxes = stand.desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_FALSE(stand.Trailer().Connected());
  EXPECT_EQ(stand.Results().nPressureTest, 0);
}

TEST(PressureRows, ClosedEarlyInAnyStateItHasFailed) {
  for (std::uint32_t at = 50; at < 4500; at += 430) {
    OperatedProgram stand("");
    stand.desktop.After(at, [&] { stand.screen.Press("cmdCancel"); });
    stand.RunTest(0);
    EXPECT_EQ(stand.Results().nPressureTest, 0) << at;
  }
  OperatedProgram stand("", {.closes_early = true});
  stand.RunTest(0);
  EXPECT_EQ(stand.Results().nPressureTest, 0);
}

}  // namespace
}  // namespace lorimet::testing_support
