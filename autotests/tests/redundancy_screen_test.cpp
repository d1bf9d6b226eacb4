// The redundancy test, state by state.
#include "tests/frmRedundancyTest.h"

#include "autotests/tests/test_screen_fixture.h"
#include "platform/runtime_error.h"

namespace lorimet::testing_support {
namespace {

const std::string kIntroduction =
    "This test checks that the brake system pneumatic piping is correct. \r\n\r\n"
    "It also checks that, during a brake application, the pressures in the control line, reservoir "
    "and modulator maintain the correct relationship.\r\n\r\n"
    "Press Start to begin test.";
const std::string kMode = "StartRoutine 37:000001";
const std::string kWaitSupply = "Waiting for SUPPLY PRESSURE to reach 80 psi...";
const std::string kWaitControl = "Waiting for CONTROL PRESSURE to reach 80 psi...";
const std::string kSwitching = "Waiting for ECU to switch into redundancy mode (5 seconds)...";
const std::string kSupplyAgain = "Waiting for supply pressure to reach 79.75 psi...";
const std::string kControlAgain = "Waiting for control pressure to reach 75.4 psi...";
const std::string kComparing = "Comparing Target Pressures with Actual Pressures...";

class RedundancyScreenTest : public TestScreenTest {
 protected:
  void SetUp() override {
    ecu.dSupplyPress.Store(110.0);
    ecu.dServiceBrake.Store(90.0);
    ecu.dBrake1Press.Store(89.0);
    ecu.dBrake2Press.Store(88.6);
  }
  void Open() { screen.Load(); }
  void Tick() { screen.Timer1.Tick(); }
  // Into a state, 1 to 6, with all before it passed.
  void GoTo(int state) {
    SetUp();
    Open();
    for (int i = 1; i < state; ++i) Tick();
    sequence.Take();
  }
  std::string Status() { return screen.txtStatus.Text(); }
  // Whether a tick leaves its state is seen by the text of the next.
  std::string TextAfter(EcuDouble& field, double value) {
    field.Store(value);
    Tick();
    const std::string own = Status();
    Tick();
    return Status() == own ? "stays" : Status();
  }

  frmRedundancyTest screen{Parts()};
};

TEST_F(RedundancyScreenTest, LoadsWithItsInstructionsAndBeginsAtOnce) {
  results.nRedundancyTest = 1;
  results.nH1Pressure = 11;
  results.nH2Pressure = 12;
  Open();
  EXPECT_EQ(screen.Caption(), "Redundancy Test");
  EXPECT_EQ(Status(), kIntroduction);
  EXPECT_EQ(results.nRedundancyTest, 0);
  EXPECT_EQ(results.nH1Pressure, 0);
  EXPECT_EQ(results.nH2Pressure, 0);
  EXPECT_FALSE(screen.cmdStart.Enabled());
  EXPECT_TRUE(screen.cmdStop.Enabled());
  EXPECT_TRUE(screen.Timer1.Running());
  EXPECT_EQ(screen.Timer1.Interval(), 450);
  EXPECT_EQ(screen.cmdStart.ToolTipText(), "Start the Redundancy Test");
  EXPECT_EQ(screen.cmdStop.ToolTipText(), "Stop the Redundancy Test");
  EXPECT_EQ(screen.cmdClose.ToolTipText(), "Close the form");
  for (const TextBox* box : {&screen.txtH1TargetPressure, &screen.txtH2TargetPressure,
                             &screen.txtH1ActualPressure, &screen.txtH2ActualPressure})
    EXPECT_EQ(box->Text(), "");
  ExpectCalls({});
}

TEST_F(RedundancyScreenTest, PassesAHealthyTrailer) {
  screen.Show(Modality::kModal);
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(results.nRedundancyTest, 1);
  EXPECT_EQ(results.nH1Pressure, 89);
  EXPECT_EQ(results.nH2Pressure, 89);
  ExpectCalls({kMode, "repaint", "sleep 10 x 500", "repaint", "sleep 1000", "repaint", "sleep 1000",
               "repaint", "sleep 1000"});
}

TEST_F(RedundancyScreenTest, ShowsSupplyAndDemandOnEveryTick) {
  Open();
  ecu.dSupplyPress.Store(79.96);
  Tick();
  EXPECT_EQ(screen.txtSupplyPressure.Text(), "80.0");
  EXPECT_EQ(screen.txtControlPressure.Text(), "90.0");
  ecu.dSupplyPress.Store(-1.0);
  ecu.dServiceBrake.Store(-1.0);
  Tick();
  EXPECT_EQ(screen.txtSupplyPressure.Text(), "N/A");
  EXPECT_EQ(screen.txtControlPressure.Text(), "N/A");
}

// The lines about a missing pressure are written over within the tick.
TEST_F(RedundancyScreenTest, AMissingPressureDoesNotStopTheTick) {
  Open();
  std::vector<std::string> texts;
  screen.txtStatus.on_change = [&] { texts.push_back(Status()); };
  ecu.dSupplyPress.Store(-1.0);
  ecu.dServiceBrake.Store(182.0);
  Tick();
  ecu.dSupplyPress.Store(181.9);
  ecu.dServiceBrake.Store(181.9);
  Tick();
  screen.txtStatus.on_change = nullptr;
  EXPECT_EQ(texts,
            (Calls{"Supply Pressure unavailable.", "Demand Pressure unavailable.", kWaitSupply}));
}

TEST_F(RedundancyScreenTest, WaitsForTheReservoir) {
  for (const double supply : {80.0, 79.9, 0.0, -1.0, kNaN}) {
    GoTo(1);
    EXPECT_EQ(TextAfter(ecu.dSupplyPress, supply), "stays") << supply;
    EXPECT_EQ(Status(), kWaitSupply);
    ExpectCalls({});
    screen.Unload();
  }
  // What is called unavailable is above the bound all the same.
  for (const double supply : {80.1, 182.0, kInfinity}) {
    GoTo(1);
    ecu.dServiceBrake.Store(0.0);
    EXPECT_EQ(TextAfter(ecu.dSupplyPress, supply), kWaitControl) << supply;
    screen.Unload();
  }
}

TEST_F(RedundancyScreenTest, WaitsForTheControlLineAndSwitchesOnce) {
  for (const double demand : {80.0, 79.9, 0.0, -1.0, kNaN}) {
    GoTo(2);
    EXPECT_EQ(TextAfter(ecu.dServiceBrake, demand), "stays") << demand;
    EXPECT_EQ(Status(), kWaitControl);
    ExpectCalls({});
    screen.Unload();
  }
  GoTo(2);
  link.always["StartRoutine"] = 1;
  ecu.dServiceBrake.Store(80.1);
  std::string repainted;
  desktop.on_repaint = [&] {
    sequence.Add("repaint");
    repainted = Status();
  };
  Tick();
  EXPECT_EQ(repainted, kSwitching);
  ExpectCalls({kMode, "repaint", "sleep 10 x 500"});
  Tick();
  EXPECT_EQ(Status(), kSupplyAgain);
}

TEST_F(RedundancyScreenTest, WaitsForBothPressuresAgainAfterTheSwitch) {
  for (const double supply : {79.75, 79.7, -1.0, kNaN}) {
    GoTo(3);
    EXPECT_EQ(TextAfter(ecu.dSupplyPress, supply), "stays") << supply;
    EXPECT_EQ(Status(), kSupplyAgain);
    screen.Unload();
  }
  GoTo(3);
  ecu.dServiceBrake.Store(0.0);
  EXPECT_EQ(TextAfter(ecu.dSupplyPress, 79.76), kControlAgain);
  screen.Unload();
  for (const double demand : {75.4, 75.3, -1.0, kNaN}) {
    GoTo(4);
    EXPECT_EQ(TextAfter(ecu.dServiceBrake, demand), "stays") << demand;
    EXPECT_EQ(Status(), kControlAgain);
    screen.Unload();
  }
  GoTo(4);
  EXPECT_EQ(TextAfter(ecu.dServiceBrake, 75.5), kComparing);
}

TEST_F(RedundancyScreenTest, TheTargetIsTheLowerPressureOrTheDemand) {
  struct Row {
    double supply, demand;
    std::string target;
  };
  const Row rows[] = {
      {100.0, 85.0, "85.0"}, {81.5, 90.0, "81.5"}, {90.0, 90.0, "90.0"}, {kNaN, 85.0, "85.0"}};
  for (const Row& row : rows) {
    GoTo(5);
    ecu.dSupplyPress.Store(row.supply);
    ecu.dServiceBrake.Store(row.demand);
    Tick();
    EXPECT_EQ(screen.txtH1TargetPressure.Text(), row.target);
    EXPECT_EQ(screen.txtH2TargetPressure.Text(), row.target);
    screen.Unload();
  }
}

TEST_F(RedundancyScreenTest, JudgesWhatTheModulatorsDeliverAfterTheTwoSeconds) {
  GoTo(5);
  ecu.dBrake1Press.Store(50.0);
  ecu.dBrake2Press.Store(51.0);
  clock.on_advance = [&, passed = 0](std::uint32_t milliseconds) mutable {
    passed += static_cast<int>(milliseconds);
    if (passed < 2000) return;
    ecu.dBrake1Press.Store(88.5);
    ecu.dBrake2Press.Store(89.5);
    // The target stands from before.
    ecu.dServiceBrake.Store(10.0);
  };
  Tick();
  clock.on_advance = nullptr;
  EXPECT_EQ(screen.txtH1ActualPressure.Text(), "50.0");
  EXPECT_EQ(screen.txtH2ActualPressure.Text(), "51.0");
  EXPECT_EQ(screen.txtH1TargetPressure.Text(), "90.0");
  EXPECT_EQ(screen.lblStatusH1.Caption(), "Pass");
  EXPECT_EQ(screen.lblStatusH2.Caption(), "Pass");
  EXPECT_EQ(results.nH1Pressure, 88);  // a half goes to the even neighbour
  EXPECT_EQ(results.nH2Pressure, 90);
  EXPECT_EQ(results.nRedundancyTest, 1);
}

TEST_F(RedundancyScreenTest, ToleratesExactlyFivePointEight) {
  struct Row {
    double h1, h2;
    std::string first, second;
    std::int16_t stored_1, stored_2, result;
  };
  const Row rows[] = {
      {84.2, 95.8, "Pass", "Pass", 84, 96, 1}, {84.19, 90.0, "Fail", "", 0, 0, 0},
      {95.81, 90.0, "Fail", "", 0, 0, 0},      {90.0, 84.19, "Pass", "Fail", 90, 0, 0},
      {90.0, 95.81, "Pass", "Fail", 90, 0, 0}, {-1.0, 90.0, "Fail", "", 0, 0, 0},
      {kNaN, 90.0, "Fail", "", 0, 0, 0},       {90.0, kNaN, "Pass", "Fail", 90, 0, 0},
      {1e308, 90.0, "Fail", "", 0, 0, 0},      {90.0, kInfinity, "Pass", "Fail", 90, 0, 0},
  };
  for (const Row& row : rows) {
    GoTo(5);
    ecu.dBrake1Press.Store(row.h1);
    ecu.dBrake2Press.Store(row.h2);
    Tick();
    EXPECT_EQ(screen.lblStatusH1.Caption(), row.first) << row.h1;
    EXPECT_EQ(screen.lblStatusH2.Caption(), row.second) << row.h2;
    EXPECT_EQ(results.nH1Pressure, row.stored_1);
    EXPECT_EQ(results.nH2Pressure, row.stored_2);
    EXPECT_EQ(results.nRedundancyTest, row.result);
    // It closes itself on the next tick, passed or not.
    ExpectCalls({"repaint", "sleep 1000", "repaint", "sleep 1000", "repaint", "sleep 1000"});
    EXPECT_EQ(Status(), kComparing);
    Tick();
    EXPECT_FALSE(screen.Loaded());
    EXPECT_EQ(results.nRedundancyTest, row.result);
    ExpectCalls({});
  }
}

TEST_F(RedundancyScreenTest, ARoundedPressureThatNoIntegerHoldsIsAnOverflow) {
  GoTo(5);
  for (EcuDouble* field : {&ecu.dSupplyPress, &ecu.dServiceBrake, &ecu.dBrake1Press})
    field->Store(1e308);
  try {
    Tick();
    ADD_FAILURE();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(results.nRedundancyTest, 0);
}

TEST_F(RedundancyScreenTest, ClosesInEveryStateAndSendsNothing) {
  for (int state = 1; state <= 6; ++state) {
    for (Button* button : {&screen.cmdStop, &screen.cmdClose, static_cast<Button*>(nullptr)}) {
      GoTo(state);
      if (state == 6) ecu.dBrake1Press.Store(0);
      const std::int16_t result = results.nRedundancyTest;
      if (button != nullptr)
        button->UserClick();
      else
        screen.UserClose();
      EXPECT_FALSE(screen.Loaded());
      EXPECT_EQ(results.nRedundancyTest, result);
      desktop.Run(2000);
      ExpectCalls({});
    }
  }
}

TEST_F(RedundancyScreenTest, StartBeginsAnew) {
  GoTo(3);
  results.nH1Pressure = 5;
  screen.cmdStart.UserClick();
  EXPECT_EQ(results.nH1Pressure, 0);
  ecu.dSupplyPress.Store(0);
  Tick();
  EXPECT_EQ(Status(), kWaitSupply);
}

TEST_F(RedundancyScreenTest, KeepsItsStatusLinesInEnglishAndTranslatesItsCaptions) {
  dictionary.SetLanguage(kSpanish);
  Open();
  EXPECT_EQ(screen.Caption(), Row(kSpanish, "Redundancy Test"));
  EXPECT_EQ(screen.cmdStop.ToolTipText(), Row(kSpanish, "Stop the Redundancy Test"));
  EXPECT_EQ(screen.lblH2.Caption(), Row(kSpanish, "Modulator H2"));
  EXPECT_EQ(Status(), kIntroduction);
  Tick();
  EXPECT_EQ(Status(), kWaitSupply);
}

}  // namespace
}  // namespace lorimet::testing_support
