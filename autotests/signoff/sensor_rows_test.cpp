// The sensor test on trailers with every defect, failure and mistake that it can meet: at which
// tyre it stands, what its screen says there, and which fields are red.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "autotests/signoff/defects.h"
#include "autotests/signoff/screen_notes.h"
#include "session/ecu_data.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

using Tires = std::vector<int>;

constexpr const char* kReservoir = "Reservoir pressure must be > 72.5 psi.  Increase pressure.";

std::string Line(const std::string& title, const std::string& text) {
  return "        \r\r" + title + "\r\r" + text;
}
std::string Spin(int step) {
  const std::string tire = "Spin Tire " + std::to_string(step) + " as shown on the diagram...";
  return Line(" -Sensor Test-", step == 1 ? tire : "Now " + tire);
}
const std::string kWrong =
    Line(" Sensor Test Error!!!",
         "Sensor Order does NOT match configuration! Click STOP to end testing.");
const std::string kPassed =
    Line(" -Sensor Test-", "All Sensors tested, Click STOP to end testing.");

struct Row {
  std::string scenario;  // of a 4S/2M trailer with three axles, where it says no other
  std::string status;    // the last line
  Tires tires;           // that were yellow, in order
  Tires red = {};        // at which a field turned red
};

const Row kRows[] = {
    {"supply 60\ncompressor off", kReservoir, {}},
    {"field dSupplyPress 72.4", kReservoir, {}},
    {"field dSupplyPress 72.5", kPassed, {1, 2, 5, 4}},
    {"defect supply_sensor none", kReservoir, {}},
    {"defect supply_sensor offset=-45", kReservoir, {}},
    {"defect lines_swapped", kReservoir, {}},
    {"configuration 2S/1M\naxles 1\nsupply 60\ncompressor off", kPassed, {2, 5}},
    // A wrong sensor answers.
    {"defect wire c d", kWrong, {1, 2}, {2}},
    {"configuration 4S/2M\naxles 2\ndefect wire c d", kWrong, {2, 3}, {3}},
    {"defect wire e f", kWrong, {1}, {1}},
    {"defect wire d f", kWrong, {1}, {1}},
    {"defect wire c e", kWrong, {1, 2, 5}, {5}},
    {"defect wire c d\ndefect wire e f", kWrong, {1}, {1}},
    // The tyre cannot be turned.
    {"defect brake_lines crossed", Spin(1), {1}},
    {"defect wire c d\ndefect wire e f\ndefect brake_lines crossed", Spin(1), {1}},
    {"mounting rear\nparameter EOL1 1 4", Spin(1), {1}},
    {"defect modulator H1 residual=9", Spin(1), {1}},
    {"defect modulator H2 residual=9", Spin(3), {1, 2, 5}},
    {"defect modulator H1 residual=7", kPassed, {1, 2, 5, 4}},
    {"defect modulator H2 residual=7", kPassed, {1, 2, 5, 4}},
    {"failure refuse routine=0x06 channel=1", Spin(1), {1}},
    {"failure refuse routine=0x06 channel=2", Spin(3), {1, 2, 5}},
    {"when request routine=0x37 mode=2 parking_brake on", Spin(1), {1}},
    {"parking_brake on", kPassed, {1, 2, 5, 4}},  // the operator takes it off
    // Nothing answers.
    {"defect sensor c open", Spin(3), {1, 2, 5}},
    {"defect sensor c short", Spin(3), {1, 2, 5}},
    {"defect sensor c short_12v", Spin(3), {1, 2, 5}},
    {"defect sensor c dead", Spin(3), {1, 2, 5}},
    {"defect sensor c erratic", Spin(3), {1, 2, 5}},
    {"defect sensor c gap=0.57", Spin(3), {1, 2, 5}},
    {"defect sensor c gap=0.6", kPassed, {1, 2, 5, 4}},
    {"field dWheelSpeed(4) 4.0", Spin(1), {1}},
    {"at 4 cable out", Spin(1), {1}},
    // Fewer letters than sensors: no tyre is left to be yellow.
    {"parameter EOL1 7 0", Spin(3), {2, 5}},
    {"configuration 4S/2M\naxles 2\nparameter EOL1 13 0", Spin(3), {2, 5}},
    // What passes by its own rule: nothing brakes the wheels behind, so the last one still coasts.
    {"defect modulator H1 dead", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"defect modulator H2 dead", kPassed, {1, 2, 5, 4}, {4}},
    {"defect wheel 1 no_brake", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"defect mode_ignored 2", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"failure refuse routine=0x37 mode=2", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"failure refuse routine=0x06", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"failure refuse operation=Trailer_ABS_KWP_Password", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"field dWheelSpeed(4) 4.1", kPassed, {1, 2, 5, 4}, {2, 5, 4}},
    {"failure refuse routine=0x42", kPassed, {1, 2, 5, 4}},
    // Each trailer its plan.
    {"mounting rear", kPassed, {1, 2, 5, 4}},
    {"suspension mechanical", kPassed, {1, 2, 5, 4}},
    {"configuration 2S/1M\naxles 1", kPassed, {2, 5}},
    {"configuration 2S/2M\naxles 2", kPassed, {3, 6}},
    {"configuration 4S/2M\naxles 2", kPassed, {2, 3, 6, 5}},
    {"configuration 4S/3M", kPassed, {1, 2, 5, 4}},
    {"configuration 2M+1M", kPassed, {1, 2, 5, 4}},
};

void Check(const Row& row) {
  OperatedProgram stand(row.scenario);
  const ScreenNotes notes(stand);
  stand.RunTest(2);
  const bool passes = row.status == kPassed;
  EXPECT_EQ(notes.status, row.status) << row.scenario;
  EXPECT_EQ(notes.tires, row.tires) << row.scenario;
  EXPECT_EQ(notes.red_from, row.red) << row.scenario;
  EXPECT_EQ(stand.Results().nSensorTest, passes ? 1 : 0) << row.scenario;
  EXPECT_EQ(stand.hand.GivenUp(), passes ? 0 : 1) << row.scenario;
  const auto boxes = stand.desktop.TakeBoxes();
  EXPECT_EQ(boxes.back().text,
            passes ? "Sensor Test Passed."
                   : "Sensor Test Failed.  Please resolve issues and run test again.")
      << row.scenario;
}

TEST(SensorRows, EndAsTheirDefectSays) {
  for (const Row& row : kRows) Check(row);
}

TEST(SensorRows, OtherDefectsChangeNothing) {
  for (const char* defect : kDefects)
    if (!HasRow(kRows, defect)) Check({defect, kPassed, {1, 2, 5, 4}});
}

TEST(SensorRows, HealthyEveryWheelIsSeenAtSevenAndItsFieldIsGreen) {
  struct Plan {
    const char* scenario;
    double seconds;
    std::size_t sensors;
  };
  for (const Plan& plan :
       {Plan{"configuration 2S/1M\naxles 1", 11, 2}, Plan{"configuration 2S/2M\naxles 2", 11, 2},
        Plan{"configuration 4S/2M\naxles 2", 21, 4}, Plan{"configuration 4S/3M", 21, 4}}) {
    OperatedProgram stand(plan.scenario);
    const ScreenNotes notes(stand);
    stand.RunTest(2);
    EXPECT_NEAR(notes.seconds, plan.seconds, 0.5) << plan.scenario;
    for (std::size_t i = 0; i < 4; ++i) {
      const bool row = i < plan.sensors;
      EXPECT_EQ(notes.green[i], row) << plan.scenario << " " << i;
      EXPECT_EQ(notes.seen[i], row ? " " + std::to_string(i + 1) : "") << plan.scenario;
      EXPECT_NEAR(stand.Results().dMaxSpeed[i + 2], row ? 7 : 0, 0.11) << plan.scenario;
    }
    EXPECT_EQ(stand.Trailer().Get("mode"), "redundancy") << "the brake is handed back";
    for (const char* channel : {"channel 0", "channel 1", "channel 2"})
      EXPECT_EQ(stand.Trailer().Get(channel), "none") << plan.scenario;
  }
}

TEST(SensorRows, AVehicleThatRollsIsWarnedOfOnceAndTheWheelAnswersWithoutAHand) {
  OperatedProgram stand("spin 1 20");
  const ScreenNotes notes(stand);
  stand.RunTest(2);
  ASSERT_GE(notes.statuses.size(), 3u);
  EXPECT_EQ(notes.statuses[1], "The vehicle is not at a standstill! Click STOP to end testing.");
  EXPECT_EQ(notes.statuses[2], Spin(1));
  EXPECT_EQ(stand.Results().nSensorTest, 1);
  EXPECT_GT(stand.Results().dMaxSpeed[4], 15);
}

TEST(SensorRows, AHandTooSlowIsNoAnswer) {
  OperatedProgram stand("", {.spin_mph = 3.5});
  const ScreenNotes notes(stand);
  stand.RunTest(2);
  EXPECT_EQ(notes.status, Spin(1));
  EXPECT_FALSE(notes.red);
}

TEST(SensorRows, AnotherWheelOfTheSameSideIsRedAndTheRightOneStillPasses) {
  OperatedProgram stand("configuration 4S/2M\naxles 2", {.spins_another = true});
  const ScreenNotes notes(stand);
  stand.RunTest(2);
  EXPECT_TRUE(notes.red);
  EXPECT_EQ(stand.Results().nSensorTest, 1);
}

TEST(SensorRows, APedalThatIsHeldDoesNotDisturbItAndBrakesOnceTheModeIsBack) {
  OperatedProgram stand("", {.holds_pedal = true});
  const ScreenNotes notes(stand);
  stand.RunTest(1);
  EXPECT_EQ(stand.Trailer().Get("pedal"), "90");
  stand.RunTest(2);
  EXPECT_EQ(stand.Results().nSensorTest, 1);
  stand.desktop.Run(2000);
  EXPECT_EQ(stand.Trailer().Get("wheel 1 turnable"), "no");
  stand.RunTest(0);
  EXPECT_EQ(notes.status, "Waiting for no control pressure (< 2.9 psi) ...");
}

TEST(SensorRows, ClosedItLeavesTheBrakesAsTheyWereSetAndStoppedItReleasesThem) {
  OperatedProgram closed("");
  closed.operator_works = false;
  closed.desktop.After(100, [&] { closed.screen.Press("ok"); });
  closed.desktop.After(4000, [&] { closed.screen.Press("CloseButton"); });
  closed.desktop.After(4200, [&] { closed.screen.Press("ok"); });
  closed.RunTest(2);
  EXPECT_EQ(closed.Results().nSensorTest, 0);
  EXPECT_EQ(closed.Trailer().Get("mode"), "test");
  EXPECT_EQ(closed.Trailer().Get("wheel 1 turnable"), "yes");
  EXPECT_EQ(closed.Trailer().Get("wheel 4 turnable"), "no");

  OperatedProgram stopped("");
  stopped.operator_works = false;
  stopped.desktop.After(100, [&] { stopped.screen.Press("ok"); });
  stopped.desktop.After(4000, [&] {
    stopped.screen.Press("StopButton");
    EXPECT_EQ(stopped.screen.Name(), "frmSensorOrientation") << "the screen stays";
    EXPECT_FALSE(stopped.screen.CanPress("StopButton"));
    EXPECT_TRUE(stopped.screen.CanPress("StartButton"));
  });
  stopped.desktop.After(5000, [&] { stopped.screen.Press("CloseButton"); });
  stopped.desktop.After(5200, [&] { stopped.screen.Press("ok"); });
  stopped.RunTest(2);
  EXPECT_EQ(stopped.Results().nSensorTest, 0);
  EXPECT_EQ(stopped.Trailer().Get("mode"), "redundancy");
  EXPECT_EQ(stopped.Trailer().Get("wheel 4 turnable"), "yes");
}

}  // namespace
}  // namespace lorimet::testing_support
