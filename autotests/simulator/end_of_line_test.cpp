// The end-of-line tests in miniature on healthy and on broken trailers, with the scripted operator.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "autotests/simulator/stand.h"

namespace lorimet::simulator {
namespace {

std::unique_ptr<Stand> Begun(const std::string& scenario, const OperatorHabits& habits = {}) {
  auto stand = std::make_unique<Stand>(scenario, habits);
  EXPECT_EQ(stand->link.ScenarioError(), "") << scenario;
  stand->Begin();
  return stand;
}

// --- Healthy trailers ---------------------------------------------------------------------------

class HealthyTest : public testing::TestWithParam<const char*> {};

TEST_P(HealthyTest, IsSignedOffByTheOperatorWithEverySeedSuspensionAndMounting) {
  for (const char* suspension : {"air", "mechanical"})
    for (const char* mounting : {"forward", "rear"})
      for (int seed = 1; seed <= 5; ++seed) {
        const std::string scenario = std::string("configuration ") + GetParam() + "\nsuspension " +
                                     suspension + "\nmounting " + mounting +
                                     "\nnoise seed=" + std::to_string(seed);
        const auto stand = Begun(scenario);
        EXPECT_EQ(stand->SignOff(), "") << scenario;
        EXPECT_EQ(stand->hand.GivenUp(), 0) << scenario;
        EXPECT_FALSE(stand->red) << scenario;
        EXPECT_EQ(stand->faults_cleared, "0") << scenario;
        const std::pair<const char*, const char*> ends[] = {{"faults", "0"},    {"flag", "1"},
                                                            {"mode", "normal"}, {"broadcast", "on"},
                                                            {"access", "off"},  {"pedal", "0"}};
        for (const auto& [name, value] : ends)
          EXPECT_EQ(stand->link.Get(name), value) << scenario << " " << name;
      }
}

INSTANTIATE_TEST_SUITE_P(Systems, HealthyTest,
                         testing::Values("2S/1M\naxles 1", "2S/2M\naxles 2", "4S/2M\naxles 3",
                                         "4S/2M\naxles 2", "4S/3M\naxles 3", "2M+1M\naxles 3"));

TEST(HealthyNumbersTest, ThePressureTestTakesTenTicksAndWaitsOnceForTheExhaust) {
  for (int seed = 1; seed <= 5; ++seed) {
    const auto stand = Begun("noise seed=" + std::to_string(seed));
    EXPECT_EQ(stand->Pressure(), 1);
    EXPECT_EQ(stand->ticks, 10) << seed;
    EXPECT_NEAR(stand->seconds, 4.5, 0.1) << seed;
    for (const std::string& row : stand->rows) EXPECT_EQ(row, "OK");
  }
}

TEST(HealthyNumbersTest, TheRedundancyTestFindsTheLowerPressureLessThePredominances) {
  const auto stand = Begun("noise off");
  EXPECT_EQ(stand->Redundancy(), 1);
  EXPECT_NEAR(stand->target, 90, 0.01);
  EXPECT_EQ(stand->stored_h1, 89);
  EXPECT_EQ(stand->stored_h2, 89);
  EXPECT_NEAR(stand->seconds, 11, 2);
  const auto low = Begun("noise off\ncompressor off\nsupply 86.4");
  EXPECT_EQ(low->Redundancy(), 1);
  EXPECT_NEAR(low->target, 81.5, 1) << "the reservoir is the lower one";
}

TEST(HealthyNumbersTest, TheSensorTestSeesSevenMphAtEveryWheel) {
  struct Row {
    const char* scenario;
    double seconds;
    std::size_t sensors;
  };
  const Row rows[] = {{"configuration 2S/1M\naxles 1", 11, 2},
                      {"configuration 2S/2M\naxles 2", 11, 2},
                      {"configuration 4S/2M\naxles 2", 21, 4},
                      {"configuration 4S/2M", 21, 4},
                      {"configuration 4S/3M", 21, 4}};
  for (const Row& row : rows) {
    const auto stand = Begun(row.scenario);
    EXPECT_EQ(stand->Sensors(), 1) << row.scenario;
    EXPECT_NEAR(stand->seconds, row.seconds, 1.5) << row.scenario;
    for (std::size_t i = 2; i < 2 + row.sensors; ++i)
      EXPECT_NEAR(stand->highest[i], 7, 0.11) << row.scenario << " " << i;
    EXPECT_EQ(stand->link.Get("mode"), "redundancy") << "the brake is handed back";
    EXPECT_EQ(stand->link.Get("channel 0"), "none");
  }
}

// --- Pressure test ------------------------------------------------------------------------------

struct PressureRow {
  const char* scenario;  // on a 4S/2M trailer
  int state;             // in which the test stands; 9 for one that passes
  const char* status;    // how its line begins
  int row = -1;          // the row that still says "Testing..."
};

const PressureRow kPressureRows[] = {
    {"defect control_sensor none", 1, "Control Pressure not valid."},
    {"defect control_sensor high", 1, "Control Pressure not valid."},
    {"defect control_residual 4", 1, "Waiting for no control pressure"},
    {"defect control_residual 2.5", 9, "Testing Unladen"},
    {"defect lines_swapped", 1, "Waiting for no control pressure"},
    {"suspension mechanical\ndefect control_residual 4", 9, "Testing Unladen"},
    {"supply 60\ncompressor off", 2, "Waiting for supply pressure"},
    {"defect supply_sensor none", 2, "Waiting for supply pressure"},
    {"defect bellows burst", 3, "Bellows pressure is too low"},
    {"defect bellows_sensor none", 3, "Bellows pressure is too low"},
    {"defect modulator H1 residual=5", 4, "Testing Laden", 0},
    {"defect modulator H2 residual=5", 4, "Testing Laden", 1},
    {"defect modulator H1 residual=2.5", 9, "Testing Unladen"},
    {"defect modulator H1 residual=3.2", 4, "Testing Laden", 0},
    {"defect pressure_sensor H1 offset=4", 4, "Testing Laden", 0},
    {"defect pressure_sensor H2 offset=4", 4, "Testing Laden", 1},
    {"defect modulator H1 dead", 5, "Testing Laden", 2},
    {"defect modulator H2 dead", 5, "Testing Laden", 3},
    {"defect modulator H1 leak=60", 5, "Testing Laden", 2},
    {"defect modulator H2 leak=60", 5, "Testing Laden", 3},
    {"failure refuse routine=0x37 mode=2 times=1", 5, "Testing Laden", 2},
    {"defect mode_ignored 2", 5, "Testing Laden", 2},
    {"failure refuse routine=0x06 channel=0", 5, "Testing Laden", 2},
    {"defect pressure_sensor H1 none", 5, "Testing Laden", 2},
    {"defect pressure_sensor H2 none", 5, "Testing Laden", 3},
    {"defect modulator H1 weak=0.9", 6, "Testing Laden", 4},
    {"defect modulator H2 weak=0.9", 6, "Testing Laden", 5},
    {"defect modulator H1 weak=0.94", 6, "Testing Laden", 4},
    {"defect modulator H2 weak=0.94", 6, "Testing Laden", 5},
    {"defect modulator H1 weak=0.96", 9, "Testing Unladen"},
    {"defect modulator H2 weak=0.96", 9, "Testing Unladen"},
    {"failure refuse routine=0x06 channel=4", 6, "Testing Laden", 4},
    {"suspension mechanical\nfailure refuse routine=0x06 channel=6", 6, "Testing Laden", 4},
    {"defect load_ignored", 6, "Testing Laden", 4},
    {"load laden\ndefect load_ignored\nwhen load = 0 load laden", 9, "Testing Unladen"},
    {"failure refuse routine=0x06 times=3", 9, "Testing Unladen"},
    {"failure refuse routine=0x06 times=4", 9, "Testing Unladen"},
    {"defect modulator H1 slow=8", 9, "Testing Unladen"},
    // what this test cannot see
    {"defect redundancy H1 blocked", 9, "Testing Unladen"},
    {"defect brake_lines crossed", 9, "Testing Unladen"},
    {"defect wire c d", 9, "Testing Unladen"},
    {"defect sensor c open", 9, "Testing Unladen"},
    {"defect wheel 1 no_brake", 9, "Testing Unladen"},
    {"defect lamp dead", 9, "Testing Unladen"},
    {"defect stop_lights dead", 9, "Testing Unladen"},
    {"defect control_leak 3", 9, "Testing Unladen"},
    {"defect mode_ignored 1", 9, "Testing Unladen"},
};

TEST(BrokenTrailerTest, ThePressureTestStandsWhereItsDefectHoldsIt) {
  for (const PressureRow& row : kPressureRows) {
    const auto stand = Begun(row.scenario);
    const bool passes = row.state == 9;
    EXPECT_EQ(stand->Pressure(), passes ? 1 : 0) << row.scenario;
    EXPECT_EQ(stand->state, row.state) << row.scenario;
    EXPECT_EQ(stand->status.rfind(row.status, 0), 0u) << row.scenario << ": " << stand->status;
    for (int i = 0; i < 10; ++i) {
      const std::string& told = stand->rows[static_cast<std::size_t>(i)];
      const int begun = (row.state - 4) * 2;
      if (i == row.row)
        EXPECT_EQ(told, "Testing...") << row.scenario << " " << i;
      else if (passes || i < begun || (row.row >= 0 && i < row.row))
        EXPECT_EQ(told, "OK") << row.scenario << " " << i;
      else
        EXPECT_NE(told, "Testing...") << row.scenario << " " << i;
    }
  }
}

TEST(BrokenTrailerTest, ALeakingSupplyStandsAfterAMinuteAndNotBefore) {
  const auto stand = Begun("defect supply_leak 2.5");
  EXPECT_EQ(stand->Pressure(), 1);
  stand->Pass(60);
  EXPECT_EQ(stand->Pressure(), 0);
  EXPECT_EQ(stand->state, 2);
}

TEST(BrokenTrailerTest, ASlowModulatorPassesLate) {
  const auto stand = Begun("defect modulator H1 slow=8");
  EXPECT_EQ(stand->Pressure(), 1);
  EXPECT_GT(stand->seconds, 8);
  EXPECT_LT(stand->seconds, 16);
}

// --- Redundancy test ----------------------------------------------------------------------------

struct RedundancyRow {
  const char* scenario;
  int state;  // in which the test stands; 6 when it has compared
  const char* h1;
  const char* h2;
};

const RedundancyRow kRedundancyRows[] = {
    {"supply 70\ncompressor off", 1, "", ""},
    {"defect supply_sensor none", 1, "", ""},
    {"defect lines_swapped", 1, "", ""},
    {"defect control_sensor none", 2, "", ""},
    {"compressor off\nsupply 100\ndefect supply_leak 2.0", 3, "", ""},
    {"compressor off\nsupply 100\ndefect supply_leak 1.0", 6, "Pass", "Pass"},
    {"defect control_leak 3.0", 4, "", ""},
    {"defect control_leak 2.0", 6, "Pass", "Pass"},
    {"defect redundancy H1 blocked", 6, "Fail", ""},
    {"defect redundancy H2 blocked", 6, "Pass", "Fail"},
    {"defect redundancy H1 kinked=4", 6, "Fail", ""},
    {"defect redundancy H1 kinked=3", 6, "Pass", "Pass"},
    {"defect redundancy H2 kinked=4", 6, "Pass", "Fail"},
    {"defect redundancy H1 offset=7", 6, "Fail", ""},
    {"defect redundancy H2 offset=7", 6, "Pass", "Fail"},
    {"defect pressure_sensor H1 offset=-8", 6, "Fail", ""},
    {"defect pressure_sensor H2 offset=-8", 6, "Pass", "Fail"},
    {"failure refuse routine=0x37 mode=1 times=1", 6, "Fail", ""},
    {"defect mode_ignored 1", 6, "Fail", ""},
    {"load laden\ndefect mode_ignored 1", 6, "Pass", "Pass"},
    {"defect control_sensor high", 6, "Fail", ""},
    {"when request routine=0x37 mode=1 session lapse", 6, "Pass", "Pass"},
    {"when pedal > 50 session lapse", 6, "Fail", ""},
    // what passes by its own rule
    {"defect modulator H1 dead", 6, "Pass", "Pass"},
    {"defect modulator H2 weak=0.5", 6, "Pass", "Pass"},
    {"defect supply_sensor high", 6, "Pass", "Pass"},
    {"defect brake_lines crossed", 6, "Pass", "Pass"},
    {"defect wire c d", 6, "Pass", "Pass"},
    {"defect load_ignored", 6, "Pass", "Pass"},
    {"defect bellows burst", 6, "Pass", "Pass"},
};

TEST(BrokenTrailerTest, TheRedundancyTestStandsOrFailsAsItsDefectSays) {
  for (const RedundancyRow& row : kRedundancyRows) {
    const auto stand = Begun(row.scenario);
    const bool passes = std::string(row.h2) == "Pass";
    EXPECT_EQ(stand->Redundancy(), passes ? 1 : 0) << row.scenario;
    EXPECT_EQ(stand->state, row.state) << row.scenario;
    EXPECT_EQ(stand->h1, row.h1) << row.scenario;
    EXPECT_EQ(stand->h2, row.h2) << row.scenario;
    EXPECT_EQ(stand->stored_h1 != 0, std::string(row.h1) == "Pass") << row.scenario;
    EXPECT_EQ(stand->stored_h2 != 0, passes) << row.scenario;
    EXPECT_EQ(stand->link.Get("pedal"), "0") << "let go of when the screen has closed";
  }
}

TEST(BrokenTrailerTest, AWrongPressureComesFromTheModeThatIsLeft) {
  const auto unladen = Begun("defect mode_ignored 1\nnoise off");
  EXPECT_EQ(unladen->Redundancy(), 0);
  EXPECT_NEAR(unladen->compared_h1, 31, 1);
  const auto after_pressure = Begun("failure refuse routine=0x37 mode=1 times=1\nnoise off");
  ASSERT_EQ(after_pressure->Pressure(), 1);
  EXPECT_EQ(after_pressure->link.Get("mode"), "test") << "nobody hands the brake back";
  EXPECT_EQ(after_pressure->Redundancy(), 0);
  EXPECT_NEAR(after_pressure->compared_h1, 11.6, 0.8)
      << "the channels of the pressure test still stand";
}

// --- Sensor test --------------------------------------------------------------------------------

struct SensorRow {
  const char* scenario;
  bool passes;
  int red;  // 1 a wrong sensor answers, 0 none does, -1 either
};

const SensorRow kSensorRows[] = {
    {"supply 60\ncompressor off", false, 0},
    {"configuration 2S/1M\naxles 1\nsupply 60\ncompressor off", true, 0},
    {"defect wire c d", false, 1},
    {"defect wire e f", false, 1},
    {"defect wire d f", false, 1},
    {"defect wire c e", false, 1},
    {"defect wire c d\ndefect wire e f", false, 1},
    {"defect wire c d\ndefect wire e f\ndefect brake_lines crossed", false, 0},
    {"defect brake_lines crossed", false, 0},
    {"mounting rear\nparameter EOL1 1 4", false, -1},
    {"defect modulator H1 residual=9", false, 0},
    {"defect modulator H1 residual=7", true, 0},
    {"failure refuse routine=0x06 channel=1", false, -1},
    {"when access = on parking_brake on", true, 0},  // the operator takes it off
    {"when request routine=0x37 mode=2 parking_brake on", false, 0},
    {"defect sensor c open", false, 0},
    {"defect sensor c dead", false, 0},
    {"defect sensor c gap=0.57", false, 0},
    {"defect sensor c gap=0.6", true, 0},
    // what passes by its own rule
    {"defect redundancy H1 blocked", true, 0},
    {"defect lamp dead", true, 0},
    {"defect load_ignored", true, 0},
    {"defect bellows burst", true, 0},
    {"defect supply_leak 1", true, 0},
};

TEST(BrokenTrailerTest, TheSensorTestEndsAsItsDefectSays) {
  for (const SensorRow& row : kSensorRows) {
    const auto stand = Begun(row.scenario);
    EXPECT_EQ(stand->Sensors(), row.passes ? 1 : 0) << row.scenario;
    if (row.red >= 0) {
      EXPECT_EQ(stand->red, row.red == 1) << row.scenario;
    }
    EXPECT_EQ(stand->hand.GivenUp(), row.passes ? 0 : 1) << row.scenario;
  }
}

TEST(BrokenTrailerTest, WhereNothingBrakesTheWheelsBehindTheSensorTestPassesInRed) {
  for (const char* scenario :
       {"defect modulator H1 dead", "defect modulator H2 dead", "defect wheel 1 no_brake",
        "failure refuse routine=0x37 mode=2", "failure refuse routine=0x06"}) {
    const auto stand = Begun(scenario);
    EXPECT_EQ(stand->Sensors(), 1) << scenario;
    EXPECT_TRUE(stand->red) << scenario;
  }
}

// --- Lamp and height ----------------------------------------------------------------------------

TEST(BrokenTrailerTest, TheLampTestIsTheOperatorsEye) {
  const std::pair<const char*, bool> rows[] = {
      {"", true},
      {"fault 3 5 active", true},  // the command wins
      {"defect lamp dead", false},
      {"defect lamp shorted", false},
      {"failure refuse routine=0x07", false},
      {"when access = on session lapse", false},
      {"when access = on cable out", false},
  };
  for (const auto& [scenario, passes] : rows) {
    const auto stand = Begun(scenario);
    EXPECT_EQ(stand->Lamp(), passes ? 1 : 0) << scenario;
    EXPECT_LT(stand->seconds, 7) << scenario;
  }
}

TEST(BrokenTrailerTest, TheHeightSensorIsCalibratedInsideItsRangeOnly) {
  const std::pair<const char*, bool> rows[] = {
      {"suspension mechanical", true},
      {"suspension mechanical\nlever 60", true},  // the operator brings it to the horizontal
      {"", false},
      {"suspension mechanical\nwhen access = on defect height_sensor open", false},
      {"suspension mechanical\nload laden", false},
      {"suspension mechanical\nfailure refuse routine=0x3C", false},
      {"suspension mechanical\nfailure refuse routine=0x3C times=3", true},
      {"suspension mechanical\nfailure refuse routine=0x3C times=4", false},
  };
  for (const auto& [scenario, passes] : rows) {
    const auto stand = Begun(scenario);
    EXPECT_EQ(stand->Height(), passes ? 1 : 0) << scenario;
  }
}

// --- The sign-off names the test ----------------------------------------------------------------

TEST(BrokenTrailerTest, TheSignOffStopsAtTheTestThatFindsTheDefect) {
  const std::pair<const char*, const char*> rows[] = {
      {"defect modulator H2 weak=0.8", "Pressure"},
      {"defect redundancy H2 blocked", "Redundancy"},
      {"defect wire c d", "Sensor"},
      {"defect brake_lines crossed", "Sensor"},
      {"defect lamp dead", "Lamp"},
      {"suspension mechanical\nfailure refuse routine=0x3C", "Calibration"},
      {"failure write_refused block=0x2A", "Flag"},
      {"configuration 2S/1M\naxles 1\ndefect lamp dead", "Lamp"},
  };
  for (const auto& [scenario, test] : rows) {
    const auto stand = Begun(scenario);
    EXPECT_EQ(stand->SignOff(), test) << scenario;
  }
}

TEST(OperatorTest, MistakesOfHisHaveTheirConsequences) {
  EXPECT_EQ(Begun("", {.closes_early = true})->Pressure(), 0);
  const auto weak = Begun("", {.pedal = 78});
  EXPECT_EQ(weak->Redundancy(), 0);
  EXPECT_EQ(weak->state, 2);
  EXPECT_EQ(weak->hand.GivenUp(), 1);
  const auto slow = Begun("", {.spin_mph = 3.5});
  EXPECT_EQ(slow->Sensors(), 0);
  EXPECT_FALSE(slow->red);
  const auto other = Begun("configuration 4S/2M\naxles 2", {.spins_another = true});
  EXPECT_EQ(other->Sensors(), 1) << "the right one answers in the end";
  EXPECT_TRUE(other->red);
  EXPECT_EQ(Begun("defect lamp dead", {.sees_every_lamp = true})->Lamp(), 1);
  const auto holds = Begun("", {.holds_pedal = true});
  EXPECT_EQ(holds->Redundancy(), 1);
  EXPECT_EQ(holds->link.Get("pedal"), "90");
  EXPECT_EQ(holds->Sensors(), 1) << "a pedal still held does not disturb the sensors";
  EXPECT_EQ(holds->Pressure(), 0);
  EXPECT_EQ(holds->state, 1);
}

TEST(OperatorTest, AWholeSignOffRepeatsToTheByte) {
  const auto run = [] {
    const auto stand = Begun("configuration 4S/3M");
    stand->link.Command("log on");
    EXPECT_EQ(stand->SignOff(), "");
    std::string lines;
    for (const std::string& line : stand->link.Log().Lines()) lines += line + "\n";
    return lines + stand->link.State() + stand->link.Get("time") + stand->link.Get("supply");
  };
  EXPECT_EQ(run(), run());
}

}  // namespace
}  // namespace lorimet::simulator
