// The lamp test and the calibration of the height sensor on trailers with every defect and failure
// that they can meet.
#include <gtest/gtest.h>

#include <string>

#include "autotests/signoff/defects.h"
#include "autotests/signoff/screen_notes.h"
#include "tests/test_results.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

struct LampRow {
  const char* scenario;
  int answer;
};

constexpr LampRow kLampRows[] = {
    {"", 1},
    {"fault 3 5 active", 1},  // the command wins
    {"defect lamp dead", 0},
    {"defect lamp shorted", 0},
    {"failure refuse routine=0x07", 0},
    {"failure refuse routine=0x07 times=1", 1},
    {"failure refuse operation=Trailer_ABS_KWP_StartSession", 0},
    {"failure refuse operation=Trailer_ABS_KWP_Password", 0},
    {"failure refuse routine=0x42", 1},
    {"when access = on session lapse", 0},
    {"when access = on cable out", 0},
    {"when access = on power off", 0},
};

void Check(const LampRow& row) {
  OperatedProgram stand(row.scenario);
  const ScreenNotes notes(stand);
  stand.RunTest(3);
  EXPECT_EQ(stand.Results().nLampTest, row.answer) << row.scenario;
  EXPECT_EQ(notes.status, "Do You See The Warning Lamp Blinking ON and OFF?") << row.scenario;
  EXPECT_EQ(stand.desktop.TakeBoxes().size(), 0u) << row.scenario << ": no message follows";
}

TEST(LampRows, TheAnswerIsTheOperatorsEye) {
  for (const LampRow& row : kLampRows) Check(row);
}

TEST(LampRows, OtherDefectsChangeNothing) {
  for (const char* defect : kDefects)
    if (!HasRow(kLampRows, defect)) Check({defect, 1});
}

TEST(LampRows, TheLampTellsTheTruthAgainASecondAfterTheAnswer) {
  OperatedProgram stand("fault 3 5 active");
  stand.desktop.Run(3000);
  EXPECT_EQ(stand.Trailer().Get("lamp lit"), "on") << "of the fault";
  stand.RunTest(3);
  stand.desktop.Run(1500);
  EXPECT_EQ(stand.Trailer().Get("lamp lit"), "on");
  OperatedProgram healthy("");
  healthy.RunTest(3);
  EXPECT_EQ(healthy.Trailer().Get("lamp lit"), "on") << "as it was commanded last";
  healthy.desktop.Run(1500);
  EXPECT_EQ(healthy.Trailer().Get("lamp lit"), "off");
}

TEST(LampRows, ADeadLampCanBeSaidToBlink) {
  OperatedProgram stand("defect lamp dead", {.sees_every_lamp = true});
  stand.RunTest(3);
  EXPECT_EQ(stand.Results().nLampTest, 1);
}

struct HeightRow {
  std::string scenario;  // of a mechanical trailer, where it says no other
  std::string counts;    // as the screen shows them last
  bool enabled;          // whether the button could be pressed
  int result;
};

const HeightRow kHeightRows[] = {
    {"", "1310", true, 1},
    {"lever 60", "1310", true, 1},  // the operator brings it to the horizontal
    {"at 1.0 height 1140", "1140", false, 0},
    {"at 1.0 height 1141", "1141", true, 1},
    {"at 1.0 height 1486", "1486", true, 1},
    {"at 1.0 height 1487", "1487", false, 0},
    {"at 1.0 height none", "n/a", false, 0},
    {"at 1.0 height 32767", "32767", false, 0},
    {"load laden", "1921", false, 0},
    {"suspension air", "n/a", false, 0},
    {"defect height_sensor open", "n/a", false, 0},
    {"when access = on cable out", "n/a", false, 0},
    {"failure io_control_short", "n/a", false, 0},
    {"failure io_control_status", "1310", true, 1},  // nobody looks at the status
    {"failure refuse operation=Trailer_ABS_KWP_IOControlByLocId", "n/a", false, 0},
    {"failure refuse operation=Trailer_ABS_KWP_StartSession", "n/a", false, 0},
    {"failure refuse routine=0x3C", "1310", true, 0},
    {"failure refuse routine=0x3C times=3", "1310", true, 1},
    {"failure refuse routine=0x3C times=4", "1310", true, 0},
    {"failure refuse routine=0x05", "1310", true, 1},
    {"failure clear_refused", "1310", true, 1},
};

void Check(const HeightRow& row) {
  OperatedProgram stand("suspension mechanical\ncalibration open\nnoise off\n" + row.scenario);
  const ScreenNotes notes(stand);
  bool enabled = false;
  const auto look = stand.on_look;
  stand.on_look = [&] {
    look();
    enabled = enabled || notes.could_calibrate;
  };
  stand.RunTest(4);
  EXPECT_EQ(notes.counts, row.counts) << row.scenario;
  EXPECT_EQ(enabled, row.enabled) << row.scenario;
  EXPECT_EQ(stand.Results().nHeightCalCD, row.result) << row.scenario;
  EXPECT_EQ(stand.Results().nHeightCalEF, 0) << row.scenario;
  EXPECT_EQ(stand.Trailer().Get("calibrated"), row.result == 1 ? "yes" : "no") << row.scenario;
  const auto boxes = stand.desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), row.enabled ? 1u : 0u) << row.scenario;
  if (row.enabled) {
    EXPECT_EQ(boxes[0].text, row.result == 1 ? "Height Sensor Calibration Successful."
                                             : "Height Sensor Calibration Failed!!")
        << row.scenario;
  }
}

TEST(HeightRows, TheSensorIsCalibratedWithinItsRangeAlone) {
  for (const HeightRow& row : kHeightRows) Check(row);
}

TEST(HeightRows, OtherDefectsChangeNothing) {
  for (const std::string defect : kDefects)
    if (!HasRow(kHeightRows, defect)) Check({defect, "1310", true, 1});
}

TEST(HeightRows, ALeverThatSlipsBeforeThePressHasTheEcuRefuse) {
  OperatedProgram stand("suspension mechanical");
  stand.on_look = [&] {
    if (stand.screen.CanPress("cmdCalHgtSensor_0")) stand.Trailer().Command("height 1600");
  };
  stand.RunTest(4);
  EXPECT_EQ(stand.Results().nHeightCalCD, 0);
  EXPECT_EQ(stand.desktop.TakeBoxes().at(0).text, "Height Sensor Calibration Failed!!");
}

TEST(HeightRows, CountsThatOverflowAreToldOnceAndTheTicksGoOn) {
  OperatedProgram stand("suspension mechanical\nnoise off\nat 1.0 height 40000\nat 9 height 1300");
  const ScreenNotes notes(stand);
  stand.RunTest(4);
  const auto boxes = stand.desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].title, "Error");
  EXPECT_EQ(boxes[0].text, "6:  Overflow");
  EXPECT_EQ(notes.counts, "1300");
  EXPECT_EQ(stand.Results().nHeightCalCD, 1);
}

}  // namespace
}  // namespace lorimet::testing_support
