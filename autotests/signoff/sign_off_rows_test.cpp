// The sign-off of trailers that something is the matter with: it stops at the test that finds it,
// and names it.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "autotests/places.h"
#include "autotests/signoff/screen_notes.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

using Codes = std::vector<std::int16_t>;

constexpr const char* kPressure =
    "Pressure Test Failed.  Please resolve issues and run test again.";
constexpr const char* kRedundancy =
    "Redundancy Test Failed.  Please resolve issues and run test again.";
constexpr const char* kSensor = "Sensor Test Failed.  Please resolve issues and run test again.";
constexpr const char* kLamp = "Lamp Test Failed.  Please resolve issues and run test again.";
constexpr const char* kCalibration =
    "Height Sensor Calibration Failed.  Please resolve issues and run test again.";
constexpr const char* kFlag = "Unable to clear the End of Line bit.";

// Pressure, redundancy, sensor, lamp and calibration.
Codes CodesOf(OperatedProgram& stand) {
  const TestResults& results = stand.Results();
  return {results.nPressureTest, results.nRedundancyTest, results.nSensorTest, results.nLampTest,
          results.nHeightCalCD};
}

// What is true wherever a sign-off has stopped at a test.
void ExpectStopped(OperatedProgram& stand, const char* text, const std::string& what) {
  const auto boxes = stand.desktop.TakeBoxes();
  ASSERT_FALSE(boxes.empty()) << what;
  EXPECT_EQ(boxes.back().text, text) << what;
  EXPECT_EQ(boxes.back().icon, BoxIcon::kCritical) << what;
  EXPECT_EQ(boxes.back().title, text == kFlag          ? "Sign-off Failure"
                                : text == kCalibration ? "Calibration Failed!"
                                                       : "Test Failed!")
      << what;
  EXPECT_TRUE(stand.text_files.files.empty()) << what;
  EXPECT_TRUE(stand.printer.Documents().empty()) << what;
  EXPECT_NE(stand.Trailer().Get("flag"), "1") << what;
  EXPECT_EQ(stand.Main().Pointer(), MousePointer::kArrow) << what;
}

struct FileRow {
  const char* name;
  const char* text;
  Codes codes;
};

TEST(FaultyTrailers, EachEndsWithTheMessageThatNamesItsTest) {
  const FileRow rows[] = {
      {"weak_modulator", kPressure, {0, -1, -1, -1, -1}},
      {"leaking_supply", kPressure, {0, -1, -1, -1, -1}},
      {"crossed_redundancy", kRedundancy, {1, 0, -1, -1, -1}},
      {"swapped_sensors", kSensor, {1, 1, 0, -1, -1}},
      {"crossed_brake_lines", kSensor, {1, 1, 0, -1, -1}},
      {"dead_lamp", kLamp, {1, 1, 1, 0, -1}},
      {"height_out_of_range", kCalibration, {1, 1, 1, 1, 0}},
      {"calibration_refused", kCalibration, {1, 1, 1, 1, 0}},
      {"flag_refused", kFlag, {1, 1, 1, 1, -1}},
  };
  for (const FileRow& row : rows) {
    std::ifstream file(InSource("simulator/scenarios/") + row.name + ".scenario");
    ASSERT_TRUE(file) << row.name;
    const std::string scenario((std::istreambuf_iterator<char>(file)),
                               std::istreambuf_iterator<char>());
    OperatedProgram stand("flag 2\n" + scenario);
    stand.SignOff();
    EXPECT_EQ(CodesOf(stand), row.codes) << row.name;
    ExpectStopped(stand, row.text, row.name);
  }
}

struct Row {
  const char* scenario;
  const char* text;
  Codes codes;
};

TEST(FaultySignOff, StopsAtTheTestThatFindsTheDefect) {
  const Row rows[] = {
      {"defect lines_swapped", kPressure, {0, -1, -1, -1, -1}},
      {"defect control_sensor none", kPressure, {0, -1, -1, -1, -1}},
      {"defect pressure_sensor H1 none", kPressure, {0, -1, -1, -1, -1}},
      {"defect bellows burst", kPressure, {0, -1, -1, -1, -1}},
      {"defect modulator H1 dead", kPressure, {0, -1, -1, -1, -1}},
      {"defect mode_ignored 2", kPressure, {0, -1, -1, -1, -1}},
      {"defect load_ignored", kPressure, {0, -1, -1, -1, -1}},
      {"configuration 4S/3M\ndefect modulator H2 residual=9", kPressure, {0, -1, -1, -1, -1}},
      {"failure refuse operation=Trailer_ABS_KWP_Password", kPressure, {0, -1, -1, -1, -1}},
      {"defect control_leak 3", kRedundancy, {1, 0, -1, -1, -1}},
      {"defect redundancy H1 kinked=4", kRedundancy, {1, 0, -1, -1, -1}},
      {"defect mode_ignored 1", kRedundancy, {1, 0, -1, -1, -1}},
      {"configuration 2M+1M\ndefect redundancy H1 blocked", kRedundancy, {1, 0, -1, -1, -1}},
      {"defect sensor f open", kSensor, {1, 1, 0, -1, -1}},
      {"defect wire c e", kSensor, {1, 1, 0, -1, -1}},
      {"configuration 2S/1M\naxles 1\ndefect sensor c dead", kSensor, {2, 2, 0, -1, -1}},
      {"configuration 2S/1M\naxles 1\ndefect lamp shorted", kLamp, {2, 2, 1, 0, -1}},
      {"when request routine=0x07 cable out", kLamp, {1, 1, 1, 0, -1}},
      {"suspension mechanical\ndefect height_sensor open", kCalibration, {1, 1, 1, 1, 0}},
      {"configuration 2S/1M\naxles 1\nsuspension mechanical\nfailure refuse routine=0x3C",
       kCalibration,
       {2, 2, 1, 1, 0}},
  };
  for (const Row& row : rows) {
    OperatedProgram stand(std::string("flag 2\n") + row.scenario);
    stand.SignOff();
    EXPECT_EQ(CodesOf(stand), row.codes) << row.scenario;
    ExpectStopped(stand, row.text, row.scenario);
  }
}

TEST(FaultySignOff, ASessionThatLapsesUnderTheNoticeOfTheStopLightsRefusesTheFlag) {
  OperatedProgram stand("flag 2");
  stand.program.parameters->image.bStopLightCable = true;
  stand.on_look = [&] {
    if (stand.screen.Name() == "msgBox" && stand.Results().nLampTest == 1)
      stand.Trailer().Command("session lapse");
  };
  stand.SignOff();
  EXPECT_EQ(CodesOf(stand), (Codes{1, 1, 1, 1, -1}));
  ExpectStopped(stand, kFlag, "lapsed");
}

// Nobody reads the flag back, and the screen that does tells the truth.
TEST(FaultySignOff, AFlagThatTheEcuDropsIsSignedOffAllTheSame) {
  OperatedProgram stand("flag 2\nfailure write_dropped block=0x2A");
  stand.SignOff();
  EXPECT_EQ(CodesOf(stand), (Codes{1, 1, 1, 1, -1}));
  EXPECT_EQ(stand.printer.Documents().size(), 1u);
  EXPECT_EQ(stand.Trailer().Get("flag"), "2");
}

TEST(FaultySignOff, ThreeRefusalsOfTheResetAreNoFailureAndFourLeaveTheEcuAsItWas) {
  for (const int times : {3, 4}) {
    OperatedProgram stand("failure reset_refused times=" + std::to_string(times));
    stand.SignOff();
    EXPECT_EQ(stand.Trailer().Get("flag"), "1");
    EXPECT_EQ(stand.Trailer().Get("mode"), times == 3 ? "normal" : "redundancy");
    EXPECT_EQ(stand.Trailer().Get("broadcast"), times == 3 ? "on" : "off");
  }
}

// A sign-off that stops gives the access back on no path.
TEST(FaultySignOff, LeavesTheAccessAndTheBroadcastAsTheyAre) {
  OperatedProgram stand("defect lamp dead");
  stand.SignOff();
  EXPECT_EQ(stand.Trailer().Get("access"), "on");
  EXPECT_EQ(stand.Trailer().Get("broadcast"), "off");
}

TEST(FaultySignOff, ASilentAirTrailerGivesUpTestByTest) {
  OperatedProgram stand("at 1.2 cable out");
  stand.desktop.Run(500);
  stand.SignOff();
  EXPECT_EQ(CodesOf(stand), (Codes{0, -1, -1, -1, -1}));
  EXPECT_EQ(stand.hand.GivenUp(), 1);
}

TEST(FaultySignOff, WhoClosesEarlyHasFailedAtOnce) {
  OperatedProgram stand("flag 2", {.closes_early = true});
  stand.SignOff();
  EXPECT_EQ(CodesOf(stand), (Codes{0, -1, -1, -1, -1}));
  ExpectStopped(stand, kPressure, "closed early");
}

// A cause that stands is a fault again, and the reset of the flag finds it at once.
TEST(FaultySignOff, WhatTheTestsCannotSeeStandsInTheReport) {
  OperatedProgram stand("fault 144 2 active 3\nidentity vehicle_id SEEN");
  stand.SignOff();
  ASSERT_EQ(stand.text_files.files.size(), 1u);
  EXPECT_NE(stand.text_files.files.begin()->second.find("Active    144  2 "), std::string::npos)
      << stand.text_files.files.begin()->second;
}

}  // namespace
}  // namespace lorimet::testing_support
