// The calibration of the height sensor.
#include "autotests/tests/test_screen_fixture.h"
#include "tests/frmSuspensionCal.h"
#include "tests/test_routines.h"

namespace lorimet::testing_support {
namespace {

const Calls kCalibration = {"repaint", "StartSession 83",  "Password",      "StartRoutine 3C:01",
                            "repaint", "StartRoutine 05:", "ClearAllFaults"};

// Answers the polling of the sensor.
class HeightLink : public FakeLink {
 public:
  std::int32_t Trailer_ABS_KWP_IOControlByLocId(std::uint8_t id, std::uint8_t count,
                                                std::uint8_t* data) override {
    requests.push_back({id, count, data[0], data[2], data[3]});
    if (answers_counts) {
      data[2] = static_cast<std::uint8_t>(counts >> 8);
      data[3] = static_cast<std::uint8_t>(counts & 0xFF);
    }
    return result;
  }
  std::vector<std::vector<int>> requests;
  int counts = 1310;
  bool answers_counts = true;
  std::int32_t result = 0;
};

class HeightScreenTest : public TestScreenTest {
 protected:
  HeightScreenTest() { sequence.Watch(height, desktop); }
  void Tick() { screen.Timer1.Tick(); }
  void Show(int counts) {
    height.counts = counts;
    Tick();
  }
  Button& Calibrate() { return screen.cmdCalHgtSensor[0]; }
  MessageBox Told(const std::string& text) { return PlainBox(text, "Height Sensor Calibration"); }

  HeightLink height;
  Faults height_faults{height, desktop, dictionary, table};
  frmSuspensionCal screen{{desktop, clock, dictionary, height, ecu, results}, height_faults};
};

TEST_F(HeightScreenTest, LoadsWithBothResultsAtFailedAndTheButtonsOff) {
  results.nHeightCalCD = 1;
  results.nHeightCalEF = 1;
  screen.Load();
  EXPECT_EQ(screen.Caption(), "Mechanical Suspension Height Sensor Calibration");
  EXPECT_EQ(screen.Label1.Caption(),
            "Attention !!  Calibration must be performed when the vehicle is UNLADEN !!");
  EXPECT_EQ(screen.Label2.Caption(),
            "Position the lever of the distance sensor horizontally and secure it against the "
            "distance sensor linkage.  Then start calibration !");
  EXPECT_EQ(screen.Label3.Caption(), "Permissible range for calibration : 1141 - 1486  counts");
  EXPECT_EQ(screen.lblHeightCD.Caption(), "Height sensor c-d :");
  EXPECT_EQ(screen.lblHeightEF.Caption(), "Height sensor e-f :");
  EXPECT_EQ(screen.cmdCalHgtSensor[0].Caption(), "Calibrate height sensor c-d");
  EXPECT_EQ(screen.cmdCalHgtSensor[1].Caption(), "Calibrate height sensor e-f");
  EXPECT_FALSE(screen.cmdCalHgtSensor[0].Enabled());
  EXPECT_FALSE(screen.cmdCalHgtSensor[1].Enabled());
  EXPECT_EQ(results.nHeightCalCD, 0);
  EXPECT_EQ(results.nHeightCalEF, 0);
  EXPECT_TRUE(height.requests.empty());
}

TEST_F(HeightScreenTest, PollsSensorCDEvery500Milliseconds) {
  screen.Load();
  desktop.Run(499);
  EXPECT_TRUE(height.requests.empty());
  desktop.Run(1);
  desktop.Run(500);
  EXPECT_EQ(height.requests,
            (std::vector<std::vector<int>>{{5, 1, 1, 0xFF, 0xFF}, {5, 1, 1, 0xFF, 0xFF}}));
  EXPECT_EQ(screen.txtHeightCD.Text(), "1310");
  EXPECT_EQ(screen.txtHeightEF.Text(), "");
}

TEST_F(HeightScreenTest, AllowsTheCalibrationWithinItsRangeOnly) {
  screen.Load();
  struct Row {
    int counts;
    bool enabled;
  };
  for (const Row& row : {Row{1141, true}, Row{1140, false}, Row{1486, true}, Row{1487, false},
                         Row{0, false}, Row{0x00FF, false}, Row{1300, true}, Row{0x7FFF, false},
                         Row{1485, true}, Row{0x7F00, false}}) {
    Show(row.counts);
    EXPECT_EQ(screen.txtHeightCD.Text(), std::to_string(row.counts));
    EXPECT_EQ(Calibrate().Enabled(), row.enabled) << row.counts;
    EXPECT_FALSE(screen.cmdCalHgtSensor[1].Enabled());
  }
}

TEST_F(HeightScreenTest, WithoutAReadingThereIsNoCalibration) {
  screen.Load();
  Show(1300);
  Show(0xFFFF);
  EXPECT_EQ(screen.txtHeightCD.Text(), "n/a");
  EXPECT_FALSE(Calibrate().Enabled());
  Show(1300);
  EXPECT_TRUE(Calibrate().Enabled());
  // A refusal leaves the request's bytes, which say the same; its status is not looked at.
  height.answers_counts = false;
  height.result = 1;
  Tick();
  EXPECT_EQ(screen.txtHeightCD.Text(), "n/a");
  EXPECT_FALSE(Calibrate().Enabled());
  height.answers_counts = true;
  Tick();
  EXPECT_EQ(screen.txtHeightCD.Text(), "1300");
}

TEST_F(HeightScreenTest, AnOverflowIsToldOnceAVisitAndChangesNothing) {
  screen.Load();
  Show(1300);
  for (const int counts : {0x8000, 0x9C40, 0xFFFE, 0xFEFF, 0xFF00}) {
    Show(counts);
    EXPECT_EQ(screen.txtHeightCD.Text(), "1300");
    EXPECT_TRUE(Calibrate().Enabled());
    if (counts == 0x8000) {
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox("6:  Overflow", "Error")});
    }
  }
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{});
  Show(1487);
  EXPECT_EQ(screen.txtHeightCD.Text(), "1487");
  screen.cmdClose.UserClick();
  screen.Load();
  Show(0x8000);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox("6:  Overflow", "Error")});
}

TEST_F(HeightScreenTest, CalibratesAndClosesItself) {
  height.always["FaultGetCount"] = 2;
  height_faults.GetFaultCount();
  ASSERT_EQ(height_faults.FaultData().size(), 3u);
  sequence.Take();
  screen.Load();
  Show(1300);
  bool waiting = false;
  height.on_call = [&](const std::string& call) {
    if (call == "StartRoutine 3C:01") waiting = screen.Pointer() == MousePointer::kHourglass;
  };
  desktop.OnBox([&](const MessageBox&) {
    EXPECT_EQ(screen.Pointer(), MousePointer::kArrow);
    EXPECT_EQ(height_faults.FaultData().size(), 1u);
  });
  Calibrate().UserClick();
  EXPECT_TRUE(waiting);
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(results.nHeightCalCD, 1);
  EXPECT_EQ(results.nHeightCalEF, 0);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{Told("Height Sensor Calibration Successful.")});
  ExpectCalls(kCalibration);
  desktop.Run(2000);
  EXPECT_EQ(height.requests.size(), 1u);
}

TEST_F(HeightScreenTest, ThreeRefusalsOfTheCalibrationAreNoFailure) {
  screen.Load();
  Show(1300);
  height.answers["StartRoutine"] = {0x22, 0x22, 0x22, 0, 0x22};
  Calibrate().UserClick();
  EXPECT_EQ(results.nHeightCalCD, 1);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{Told("Height Sensor Calibration Successful.")});
  Calls expected = kCalibration;
  expected.insert(expected.begin() + 3, 3, "StartRoutine 3C:01");
  ExpectCalls(expected);
}

TEST_F(HeightScreenTest, ACalibrationThatIsRefusedFourTimesHasFailed) {
  height.always["FaultGetCount"] = 2;
  height_faults.GetFaultCount();
  sequence.Take();
  screen.Load();
  Show(1300);
  height.answers["StartRoutine"] = {0x22, 0x22, 0x22, 65536};
  height.always["ClearAllFaults"] = 1;
  Calibrate().UserClick();
  EXPECT_EQ(results.nHeightCalCD, 0);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{Told("Height Sensor Calibration Failed!!")});
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(height_faults.FaultData().size(), 1u) << "emptied whatever the clearing came to";
  Calls expected = kCalibration;
  expected.insert(expected.begin() + 3, 3, "StartRoutine 3C:01");
  expected.insert(expected.end(), 3, "ClearAllFaults");
  ExpectCalls(expected);
}

TEST_F(HeightScreenTest, TheOtherPairHasARoutineOfItsOwn) {
  EXPECT_EQ(RunHeightCalibration(height, desktop, 2), 0);
  EXPECT_EQ(RunHeightCalibration(height, desktop, 1), 0);
  EXPECT_EQ(RunHeightCalibration(height, desktop, 3), 0);
  EXPECT_EQ(RunHeightCalibration(height, desktop, 0), 0);
  Calls routines = sequence.Take();
  std::erase(routines, "repaint");
  EXPECT_EQ(routines, (Calls{"StartRoutine 3C:02", "StartRoutine 05:", "StartRoutine 3C:01",
                             "StartRoutine 05:", "StartRoutine 3C:01",
                             "StartRoutine 05:", "StartRoutine 3C:01", "StartRoutine 05:"}));
  // And its own result, though no code enables its button.
  screen.Load();
  screen.cmdCalHgtSensor[1].UserClick();
  EXPECT_EQ(results.nHeightCalEF, 1);
  EXPECT_EQ(results.nHeightCalCD, 0);
  desktop.TakeBoxes();
}

TEST_F(HeightScreenTest, ClosedWithoutCalibratingItHasFailed) {
  for (const bool by_button : {true, false}) {
    screen.Load();
    Show(1300);
    by_button ? screen.cmdClose.UserClick() : screen.UserClose();
    EXPECT_FALSE(screen.Loaded());
    EXPECT_EQ(results.nHeightCalCD, 0);
    ExpectCalls({});
  }
}

TEST_F(HeightScreenTest, AProgramThatEndsUnderTheMessageLeavesTheScreenClosed) {
  screen.Load();
  Show(1300);
  desktop.OnBox([&](const MessageBox&) { screen.Unload(); });
  Calibrate().UserClick();
  EXPECT_FALSE(screen.Loaded());
  desktop.TakeBoxes();
}

TEST_F(HeightScreenTest, SpeaksTheUsersLanguage) {
  dictionary.SetLanguage(kFrench);
  screen.Load();
  Show(0xFFFF);
  EXPECT_EQ(screen.txtHeightCD.Text(), "n/d");
  Show(1300);
  Calibrate().UserClick();
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{PlainBox(Row(kFrench, "Height Sensor Calibration Successful."),
                           Row(kFrench, "Height Sensor Calibration"))});
}

}  // namespace
}  // namespace lorimet::testing_support
