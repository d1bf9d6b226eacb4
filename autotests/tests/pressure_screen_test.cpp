// The pressure test, state by state.
#include "tests/frmPressureTest.h"

#include "autotests/tests/test_screen_fixture.h"
#include "platform/runtime_error.h"

namespace lorimet::testing_support {
namespace {

const std::string kIntroduction =
    "This test checks for correct laden and unladen brake pressures. \r\n\r\n"
    "Chock wheels to prevent rolling!\r\n\r\n"
    "Press Start to begin test.";

// The requests of the healthy trailer's default parameters.
const std::string kMode = "StartRoutine 37:000002";
const std::string kLaden = "StartRoutine 06:04BC60BC60E803";
const std::string kUnladen = "StartRoutine 06:04020E020EE803";
const std::string kLadenHeight = "StartRoutine 06:06586E586EE803";
const std::string kUnladenHeight = "StartRoutine 06:0600000000E803";
const std::string kControl0 = "StartRoutine 06:0000000000E803";
const std::string kControl1 = "StartRoutine 06:0004140414E803";
const std::string kControl2 = "StartRoutine 06:00105A105AE803";
const std::string kWait = "sleep 10 x 40";

class PressureScreenTest : public TestScreenTest {
 protected:
  void Open() {
    screen.Load();
    ASSERT_TRUE(screen.Loaded());
  }
  void Tick() { screen.Timer1.Tick(); }
  void Deliver(double h1, double h2) {
    ecu.dBrake1Press.Store(h1);
    ecu.dBrake2Press.Store(h2);
  }
  // Into a measuring state, 4 to 8, with all before it passed.
  void GoTo(int state) {
    Open();
    for (int i = 1; i < 4; ++i) Tick();
    const double targets[] = {0, 11.608, 58.04, 0, 11.608};
    for (int i = 4; i < state; ++i) {
      Deliver(targets[i - 4], targets[i - 4]);
      Tick();
    }
    sequence.Take();
  }
  std::string Status() { return screen.txtStatus.Text(); }
  std::string Outcome(int row) { return screen.lblStatus[row].Caption(); }

  frmPressureTest screen{Parts()};
};

TEST_F(PressureScreenTest, LoadsWithItsInstructionsAndItsRowsAndBeginsAtOnce) {
  results.nPressureTest = 1;
  Open();
  EXPECT_EQ(screen.Caption(), "Zelt Pressure Test");
  EXPECT_EQ(Status(), kIntroduction);
  EXPECT_EQ(results.nPressureTest, 0);
  EXPECT_TRUE(screen.Timer1.Running());
  EXPECT_EQ(screen.Timer1.Interval(), 450);
  const char* controls[] = {"0.0 psi", "0.0 psi", "14.5", "14.5", "65.3",
                            "65.3",    "0.0",     "0.0",  "14.5", "14.5"};
  const char* targets[] = {"0.0 psi", "0.0 psi", "11.6", "11.6", "58.0",
                           "58.0",    "0.0",     "0.0",  "11.6", "11.6"};
  for (int row = 0; row < 10; ++row) {
    EXPECT_EQ(screen.lblControl[row].Caption(), controls[row]) << row;
    EXPECT_EQ(screen.lblTarget[row].Caption(), targets[row]) << row;
    EXPECT_EQ(screen.txtActual[row].Text(), "") << row;
    EXPECT_EQ(Outcome(row), "") << row;
    EXPECT_EQ(screen.lblRow[row].Caption(), std::string("Brake Pressure  ") +
                                                (row < 6 ? "Laden" : "Unladen") + "  Modulator H" +
                                                (row % 2 == 0 ? "1" : "2"));
  }
  EXPECT_EQ(screen.cmdStart.ToolTipText(), "Start the Pressure Test");
  EXPECT_EQ(screen.cmdCancel.ToolTipText(), "Close this form");
  EXPECT_EQ(screen.Left(), (desktop.ScreenWidth() - screen.Width()) / 2);
  ExpectCalls({});
}

TEST_F(PressureScreenTest, PassesAHealthyTrailerOnAirSuspension) {
  link.on_call = [&](const std::string& call) {
    // As the modulators of a healthy trailer follow the control pressure.
    if (call == kControl0) Deliver(0, 0);
    if (call == kControl1) Deliver(11.7, 11.5);
    if (call == kControl2) Deliver(58.4, 57.6);
  };
  desktop.OnModal("frmPressureTest", [](Form&) {});
  screen.Show(Modality::kModal);
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(results.nPressureTest, 1);
  ExpectCalls({kMode, kLaden, kControl0, kWait, kLaden, kControl1, kWait, kLaden, kControl2, kWait,
               kUnladen, kControl0, kWait, kUnladen, kControl1, kWait});
  EXPECT_EQ(clock.Milliseconds(), 9u * 450u);
}

TEST_F(PressureScreenTest, SimulatesTheHeightOnMechanicalSuspension) {
  ecu.nMechanicalSuspension.Store(1);
  // Neither is looked at.
  ecu.dServiceBrake.Store(-1.0);
  ecu.dMainBellows.Store(0.0);
  link.on_call = [&](const std::string& call) {
    if (call == kControl0) Deliver(0, 0);
    if (call == kControl1) Deliver(11.608, 11.608);
    if (call == kControl2) Deliver(58.04, 58.04);
  };
  screen.Show(Modality::kModal);
  EXPECT_EQ(results.nPressureTest, 1);
  ExpectCalls({kMode, kLadenHeight, kControl0, kWait, kLadenHeight, kControl1, kWait, kLadenHeight,
               kControl2, kWait, kUnladenHeight, kControl0, kWait, kUnladenHeight, kControl1,
               kWait});
  EXPECT_EQ(clock.Milliseconds(), 9u * 450u);
}

TEST_F(PressureScreenTest, ShowsSupplyAndDemandOnEveryTick) {
  Open();
  EXPECT_EQ(screen.txtSupply.Text(), "");
  ecu.dSupplyPress.Store(112.25);
  ecu.dServiceBrake.Store(182.0);
  Tick();
  EXPECT_EQ(screen.txtSupply.Text(), "112.3");
  EXPECT_EQ(screen.txtDemand.Text(), "182.0");
  ecu.dSupplyPress.Store(-1.0);
  ecu.dServiceBrake.Store(-1.0);
  Tick();
  EXPECT_EQ(screen.txtSupply.Text(), "N/A");
  EXPECT_EQ(screen.txtDemand.Text(), "N/A");
  ecu.dSupplyPress.Store(-1.5);
  Tick();
  EXPECT_EQ(screen.txtSupply.Text(), "-1.5");
}

TEST_F(PressureScreenTest, WaitsUntilNobodyBrakes) {
  const std::string kNotValid = "Control Pressure not valid.";
  const std::string kWaiting = "Waiting for no control pressure (< 2.9 psi) ...";
  struct Row {
    double demand;
    std::string text;
    bool goes_on;
  };
  const Row rows[] = {
      {-1.0, kNotValid, false},      {182.0, kNotValid, false}, {181.95, kNotValid, false},
      {kInfinity, kNotValid, false}, {1e308, kNotValid, false}, {181.9, kWaiting, false},
      {2.9, kWaiting, false},        {2.95, kWaiting, false},   {kNaN, kWaiting, false},
      {2.89, kWaiting, true},        {0.0, kWaiting, true},     {-1.5, kWaiting, true},
      {-kInfinity, kWaiting, true},
  };
  for (const Row& row : rows) {
    Open();
    ecu.dServiceBrake.Store(row.demand);
    Tick();
    EXPECT_EQ(Status(), row.text) << row.demand;
    // The next state has a text of its own.
    Tick();
    EXPECT_EQ(Status() == "Waiting for supply pressure greater than 72.5 psi...", row.goes_on)
        << row.demand;
    screen.Unload();
  }
}

TEST_F(PressureScreenTest, WaitsForTheReservoirAndTakesTheBrakesOnce) {
  Open();
  Tick();
  for (const double supply : {72.5, 72.4, 0.0, -1.0, kNaN, -kInfinity}) {
    ecu.dSupplyPress.Store(supply);
    Tick();
    EXPECT_EQ(Status(), "Waiting for supply pressure greater than 72.5 psi...") << supply;
    ExpectCalls({});
  }
  // One try, whatever comes of it.
  link.always["StartRoutine"] = 0x80;
  ecu.dSupplyPress.Store(72.51);
  Tick();
  ExpectCalls({kMode});
  EXPECT_EQ(Status(), "Waiting for supply pressure greater than 72.5 psi...");
  Tick();
  EXPECT_EQ(Status(), "Check if main axle bellows pressure > 2.17 psi...");
}

TEST_F(PressureScreenTest, WaitsForAirInTheBellows) {
  Open();
  Tick();
  Tick();
  sequence.Take();
  for (const double bellows : {2.17, 0.0, -1.0, kNaN}) {
    ecu.dMainBellows.Store(bellows);
    Tick();
    EXPECT_EQ(Status(), "Bellows pressure is too low (less than 2.17 psi).") << bellows;
    ExpectCalls({});
  }
  ecu.dMainBellows.Store(2.18);
  Tick();
  EXPECT_EQ(Status(), "Check if main axle bellows pressure > 2.17 psi...");
  Tick();
  EXPECT_EQ(Status(), "Testing Laden...");
}

struct MeasurementRow {
  int state;
  std::string load, control;
  double target;
  int row;
  std::string status;
};

TEST_F(PressureScreenTest, EachPointHasItsLoadItsControlPressureAndItsTarget) {
  const MeasurementRow rows[] = {
      {4, kLaden, kControl0, 0, 0, "Testing Laden..."},
      {5, kLaden, kControl1, 11.608, 2, "Testing Laden..."},
      {6, kLaden, kControl2, 58.04, 4, "Testing Laden..."},
      {7, kUnladen, kControl0, 0, 6, "Testing Unladen..."},
      {8, kUnladen, kControl1, 11.608, 8, "Testing Unladen..."},
  };
  for (const MeasurementRow& row : rows) {
    GoTo(row.state);
    Deliver(row.target + 3.0, row.target);
    Tick();
    ExpectCalls({row.load, row.control, kWait});
    EXPECT_EQ(Status(), row.status);
    EXPECT_EQ(Outcome(row.row), "Testing...") << row.state;
    EXPECT_EQ(Outcome(row.row + 1), "") << "H2 is looked at only once H1 is right";
    // Both readings are shown all the same.
    EXPECT_NE(screen.txtActual[row.row].Text(), "");
    EXPECT_NE(screen.txtActual[row.row + 1].Text(), "");
    Deliver(row.target, row.target - 3.0);
    Tick();
    EXPECT_EQ(Outcome(row.row), "OK") << row.state;
    EXPECT_EQ(Outcome(row.row + 1), "Testing...");
    ExpectCalls({row.load, row.control, kWait});
    // Both together, not one after the other.
    Deliver(row.target - 3.0, row.target);
    Tick();
    EXPECT_EQ(Outcome(row.row), "Testing...");
    EXPECT_EQ(Outcome(row.row + 1), "Testing...") << "keeps what it had";
    Deliver(row.target, row.target);
    Tick();
    EXPECT_EQ(Outcome(row.row), "OK");
    EXPECT_EQ(Outcome(row.row + 1), "OK");
    EXPECT_EQ(results.nPressureTest, 0);
    screen.Unload();
  }
}

TEST_F(PressureScreenTest, ToleratesExactlyTwoPointNine) {
  struct Row {
    double h1, h2;
    std::string first, second;
  };
  const Row rows[] = {
      {2.9, 2.9, "OK", "OK"},
      {-2.9, -2.9, "OK", "OK"},
      {2.91, 0.0, "Testing...", ""},
      {-2.91, 0.0, "Testing...", ""},
      {0.0, 2.91, "OK", "Testing..."},
      {0.0, -2.91, "OK", "Testing..."},
      {-1.0, -1.0, "OK", "OK"},
      {1e308, 0.0, "Testing...", ""},
      {kInfinity, 0.0, "Testing...", ""},
      {0.0, -kInfinity, "OK", "Testing..."},
      {kNaN, 0.0, "Testing...", ""},  // no number is within nothing
      {0.0, kNaN, "OK", "Testing..."},
  };
  for (const Row& row : rows) {
    GoTo(4);
    Deliver(row.h1, row.h2);
    Tick();
    EXPECT_EQ(Outcome(0), row.first) << row.h1;
    EXPECT_EQ(Outcome(1), row.second) << row.h2;
    screen.Unload();
  }
}

TEST_F(PressureScreenTest, ShowsReadingsWithOneOrTwoDecimals) {
  for (const auto& [psi, text] : {std::pair{58.0, "58.0"}, std::pair{57.456, "57.46"}}) {
    GoTo(6);
    Deliver(psi, psi);
    Tick();
    EXPECT_EQ(screen.txtActual[4].Text(), text);
    EXPECT_EQ(screen.txtActual[5].Text(), text);
    screen.Unload();
  }
}

TEST_F(PressureScreenTest, ReadsTheModulatorsAfterTheWait) {
  GoTo(4);
  Deliver(50, 50);
  clock.on_advance = [&, left = 400](std::uint32_t milliseconds) mutable {
    left -= static_cast<int>(milliseconds);
    if (left <= 0) Deliver(0.5, 0.25);
  };
  Tick();
  clock.on_advance = nullptr;
  EXPECT_EQ(screen.txtActual[0].Text(), "0.5");
  EXPECT_EQ(screen.txtActual[1].Text(), "0.25");
}

TEST_F(PressureScreenTest, TriesEachCommandFourTimesAndGoesOnWithoutAWord) {
  GoTo(5);
  Deliver(11.6, 11.6);
  link.answers["StartRoutine"] = {1, 1, 1, 0, 1, 1, 1, 1};
  Tick();
  ExpectCalls({kLaden, kLaden, kLaden, kLaden, kControl1, kControl1, kControl1, kControl1, kWait});
  EXPECT_EQ(Outcome(2), "OK");
}

TEST_F(PressureScreenTest, PassesOnTheTickAfterTheLastRow) {
  GoTo(8);
  Deliver(11.608, 11.608);
  Tick();
  EXPECT_TRUE(screen.Loaded());
  EXPECT_EQ(results.nPressureTest, 0);
  sequence.Take();
  Tick();
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(results.nPressureTest, 1);
  ExpectCalls({});  // nothing hands the brake back
}

TEST_F(PressureScreenTest, StartGoesBackToTheBeginningAndLeavesTheRows) {
  GoTo(6);
  Deliver(0, 0);
  Tick();
  EXPECT_EQ(Outcome(4), "Testing...");
  sequence.Take();
  results.nPressureTest = 7;
  screen.cmdStart.UserClick();
  EXPECT_EQ(results.nPressureTest, 0);
  EXPECT_EQ(Outcome(2), "OK");
  EXPECT_EQ(Outcome(4), "Testing...");
  ExpectCalls({});
  Tick();
  EXPECT_EQ(Status(), "Waiting for no control pressure (< 2.9 psi) ...");
  Tick();
  ExpectCalls({kMode});
}

TEST_F(PressureScreenTest, ClosesInEveryStateAndSendsNothing) {
  for (int state = 1; state <= 9; ++state) {
    for (Button* button : {&screen.cmdCancel, &screen.cmdOK, static_cast<Button*>(nullptr)}) {
      if (state < 4) {
        Open();
        for (int i = 1; i < state; ++i) Tick();
      } else {
        GoTo(state);
      }
      sequence.Take();
      if (button != nullptr)
        button->UserClick();
      else
        screen.UserClose();
      EXPECT_FALSE(screen.Loaded()) << state;
      EXPECT_EQ(results.nPressureTest, 0) << state;
      desktop.Run(2000);
      ExpectCalls({});
    }
  }
}

TEST_F(PressureScreenTest, APressureThatNoBytesHoldIsAnOverflow) {
  struct Row {
    EcuDouble* field;
    int state;
  };
  const Row rows[] = {{&ecu.dLadenBellows, 4},
                      {&ecu.dControlPressure1, 5},
                      {&ecu.dControlPressure2, 6},
                      {&ecu.dUnladenBellows, 7},
                      {&ecu.dControlPressure1, 8}};
  for (const Row& row : rows) {
    for (const double value : {-1.0, 185.6, 1e308, kNaN, kInfinity}) {
      GoTo(row.state);
      const double before = row.field->Load();
      row.field->Store(value);
      // The laden bellows overflow a little earlier, as they are divided by less.
      try {
        Tick();
        ADD_FAILURE() << row.state << " " << value;
      } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
      }
      row.field->Store(before);
      screen.Unload();
    }
  }
}

TEST_F(PressureScreenTest, KeepsItsStatusLinesInEnglishAndTranslatesItsCaptions) {
  dictionary.SetLanguage(kFrench);
  Open();
  EXPECT_EQ(screen.Caption(), Row(kFrench, "Zelt Pressure Test"));
  EXPECT_EQ(screen.cmdStart.Caption(), Row(kFrench, "&Start"));
  EXPECT_EQ(screen.cmdStart.ToolTipText(), Row(kFrench, "Start the Pressure Test"));
  EXPECT_EQ(screen.lblRow[7].Caption(), Row(kFrench, "Brake Pressure  Unladen  Modulator H2"));
  EXPECT_EQ(screen.lblColumn[2].Caption(), Row(kFrench, "Actual Pressure"));
  EXPECT_EQ(Status(), kIntroduction);
  ecu.dServiceBrake.Store(-1.0);
  Tick();
  EXPECT_EQ(screen.txtDemand.Text(), "N/D");
  EXPECT_EQ(Status(), "Control Pressure not valid.");
}

}  // namespace
}  // namespace lorimet::testing_support
