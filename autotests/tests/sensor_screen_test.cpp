// The sensor test, step by step.
#include "tests/frmSensorOrientation.h"

#include <functional>
#include <map>

#include "autotests/tests/test_screen_fixture.h"

namespace lorimet::testing_support {
namespace {

const std::string kMode = "StartRoutine 37:000002";
const std::string kTitleLines = "        \r\r -Sensor Test-\r\r";
const std::string kErrorLines = "        \r\r Sensor Test Error!!!\r\r";
const std::string kNotAtRest = "The vehicle is not at a standstill! Click STOP to end testing.";
const std::string kWrong = "Sensor Order does NOT match configuration! Click STOP to end testing.";

std::string Brake(int channel) {
  return "StartRoutine 06:0" + std::to_string(channel) + "00440044E803";
}
std::string Free(int channel) {
  return "StartRoutine 06:0" + std::to_string(channel) + "00000000E803";
}
const Calls kRelease = {Free(1),
                        Free(2),
                        Free(0),
                        "StartRoutine 41:0601",
                        "StartRoutine 41:0602",
                        "StartRoutine 41:0600",
                        "StartRoutine 37:000001"};
Calls Plus(Calls first, const Calls& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

class SensorScreenTest : public TestScreenTest {
 protected:
  // 4S/2M on two axles, mounted forward: spun are f, d, c, e at 2, 3, 6, 5.
  void SetUp() override { Configure(2, {2, 1, 0}, 4, 2, 0); }
  void Configure(int axles, std::array<int, 3> sensors, int count, int modulators, int mounting) {
    ecu.nNumAxles.Store(static_cast<std::int16_t>(axles));
    for (std::size_t i = 0; i < 3; ++i)
      ecu.nAxleSensors[i].Store(static_cast<std::int16_t>(sensors[i]));
    ecu.bNumSensors.Store(static_cast<std::uint8_t>(count));
    ecu.bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    ecu.nMounting.Store(static_cast<std::int16_t>(mounting));
    for (EcuDouble& speed : ecu.dWheelSpeed) speed.Store(0.0);
  }
  void Open() {
    screen.Load();
    EXPECT_EQ(desktop.TakeBoxes(), Boxes{Warning()});
    sequence.Take();
  }
  static MessageBox Warning() {
    return PlainBox("Secure the vehicle to prevent it from running off and release the hand brake.",
                    "Sensor Test Warning");
  }
  void Tick() {
    // As long as the timer takes.
    clock.Advance(800);
    screen.Timer1.Tick();
  }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) Tick();
  }
  EcuDouble& Speed(char letter) {
    static const std::map<char, std::size_t> kIndex = {{'c', 3}, {'d', 2}, {'e', 5}, {'f', 4}};
    return ecu.dWheelSpeed[kIndex.at(letter)];
  }
  // One wheel as a healthy trailer and its operator spin it, from step 2 on.
  void Spin(char letter) {
    Ticks(2);
    Speed(letter).Store(7.0);
    Tick();
    Speed(letter).Store(0.0);
    Tick();
  }
  std::string Status() { return screen.txtStatus.Text(); }
  // The letters of the plan, positions 1 to 6; "." for one that is off, "-" for one that is
  // hidden, "*" for no letter.
  std::string Plan() {
    std::string plan;
    for (int i = 1; i <= 6; ++i) {
      const TextBox& box = screen.TireTxt[i];
      plan += !box.Visible() ? "-" : !box.Enabled() ? "." : box.Text().empty() ? "*" : box.Text();
    }
    return plan;
  }
  std::string Expected() {
    std::string all;
    for (int row = 1; row <= 4; ++row) {
      const std::string& text = screen.lblExpected[row].Caption();
      all += text.empty() ? "*" : text;
    }
    return all;
  }
  std::vector<int> Painted(Color color) {
    std::vector<int> positions;
    for (int i = 1; i <= 6; ++i)
      if (screen.TireTxt[i].BackColor() == color) positions.push_back(i);
    return positions;
  }

  frmSensorOrientation screen{Parts()};
};

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kYellow = 0x00FFFF;
constexpr Color kRed = 0x0000FF;
constexpr Color kGreen = 0x00FF00;

// --- Load --------------------------------------------------------------------------------------

TEST_F(SensorScreenTest, LoadsWithItsWarningItsInstructionsAndBegins) {
  results.nSensorTest = 1;
  bool warned = false;
  desktop.OnBox([&](const MessageBox&) {
    warned = true;
    EXPECT_EQ(Status(), "");
    EXPECT_EQ(screen.Caption(), "QOR Plus Sensor Test");
  });
  screen.Load();
  EXPECT_TRUE(warned);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{Warning()});
  EXPECT_EQ(Status(),
            "This test checks the correct assignment of the ABS sensors to the modulators. \r\n\r\n"
            "It requires that the wheels be spun in a predetermined order.  \r\n\r\n"
            "It is applicable to QOR Plus ECU's only.\r\n\r\n"
            "Click START to begin test or CLOSE to exit.");
  EXPECT_EQ(results.nSensorTest, 0);
  EXPECT_FALSE(screen.StartButton.Enabled());
  EXPECT_TRUE(screen.StopButton.Enabled());
  EXPECT_TRUE(screen.Timer1.Running());
  EXPECT_EQ(screen.Timer1.Interval(), 800);
  EXPECT_EQ(screen.StartButton.ToolTipText(), "Start Sensor Test");
  EXPECT_EQ(screen.StopButton.ToolTipText(), "Stop Sensor Test");
  EXPECT_EQ(screen.CloseButton.ToolTipText(), "Close this form");
  EXPECT_EQ(screen.lblMaxSpeed.Caption(), "  Max Speed (mph)");
  ExpectCalls({"repaint", "repaint"});
}

struct PlanRow {
  int axles;
  std::array<int, 3> sensors;
  int mounting;
  std::string plan, expected;
};

TEST_F(SensorScreenTest, DrawsThePlanOfEachTrailer) {
  const PlanRow rows[] = {
      {1, {1, 0, 0}, 0, "-d--c-", "dc--"},
      {1, {1, 0, 0}, 1, "-c--d-", "cd--"},
      {1, {2, 0, 0}, 0, "-f--e-", "fe--"},
      {1, {2, 0, 0}, 1, "-e--f-", "ef--"},
      {2, {2, 1, 0}, 0, "-fd-ec", "fdce"},
      {2, {2, 1, 0}, 1, "-ec-fd", "ecdf"},
      {2, {0, 1, 0}, 0, "-.d-.c", "dc**"},
      {2, {1, 2, 0}, 0, "-df-ce", "dfec"},
      {3, {2, 1, 0}, 0, "fd.ec.", "fdce"},
      {3, {2, 1, 0}, 1, "ec.fd.", "ecdf"},
      {3, {0, 2, 1}, 0, ".fd.ec", "fdce"},
      {3, {2, 0, 1}, 0, "f.de.c", "fdce"},
      // Both pairs or a number of no meaning leave the axle as drawn, with no letters.
      {2, {3, 1, 0}, 0, "-*d-*c", "*dc*"},
      {2, {-1, 1, 0}, 0, "-*d-*c", "*dc*"},
      // A mounting that is not known has no letters.
      {2, {2, 1, 0}, 2, "-**-**", "****"},
      // Numbers of axles that no plan has.
      {0, {2, 1, 0}, 0, "******", "****"},
      {4, {2, 1, 0}, 0, "******", "****"},
      {-1, {2, 1, 0}, 0, "******", "****"},
  };
  for (const PlanRow& row : rows) {
    Configure(row.axles, row.sensors, 4, 2, row.mounting);
    Open();
    EXPECT_EQ(Plan(), row.plan) << row.axles << row.sensors[0] << row.sensors[1] << row.mounting;
    EXPECT_EQ(Expected(), row.expected) << row.axles << row.sensors[0] << row.mounting;
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, NumbersTheTiresOfOneAndTwoAxles) {
  const auto images = [this] {
    std::vector<std::string> all;
    for (int i = 1; i <= 6; ++i)
      all.push_back(screen.TirePic[i].Visible() ? screen.TirePic[i].Image() : "hidden");
    return all;
  };
  Open();
  EXPECT_EQ(images(), (Calls{"hidden", "TirePic1", "TirePic2", "hidden", "TirePic4", "TirePic3"}));
  screen.Unload();
  Configure(1, {1, 0, 0}, 2, 1, 0);
  Open();
  EXPECT_EQ(images(), (Calls{"hidden", "TirePic1", "hidden", "hidden", "TirePic2", "hidden"}));
  screen.Unload();
  // Three axles stand as designed, an axle without sensors has no picture.
  Configure(3, {2, 0, 1}, 4, 2, 0);
  Open();
  EXPECT_EQ(images(), (Calls{"", "TireNone", "", "", "TireNone", ""}));
  EXPECT_EQ(screen.TireTxt[2].Text(), " ");
}

TEST_F(SensorScreenTest, OneAxleLeavesTheLastRowsOut) {
  Configure(1, {1, 0, 0}, 2, 1, 0);
  Open();
  for (const int row : {3, 4}) {
    EXPECT_EQ(screen.lblExpected[row].Caption(), "-");
    EXPECT_EQ(screen.textRPM[row].Text(), "N/A");
    EXPECT_FALSE(screen.textRPM[row].Enabled());
    EXPECT_FALSE(screen.textOrder[row].Enabled());
  }
  for (const int row : {1, 2}) {
    EXPECT_EQ(screen.textRPM[row].Text(), "0");
    EXPECT_TRUE(screen.textOrder[row].Enabled());
  }
}

TEST_F(SensorScreenTest, ShowsTheMountingInWordsAndInAPicture) {
  struct Row {
    int mounting;
    std::string words, picture;
  };
  for (const Row& row : {Row{0, "Forward", "bmpFwd"}, Row{1, "Rear", "bmpRear"},
                         Row{2, "Unknown", ""}, Row{-1, "Unknown", ""}}) {
    Configure(2, {2, 1, 0}, 4, 2, row.mounting);
    Open();
    EXPECT_EQ(screen.txtMounting.Text(), row.words);
    EXPECT_EQ(screen.bmpABS.Image(), row.picture);
    // The start that ends the load enables Stop whatever the mounting is.
    EXPECT_FALSE(screen.StartButton.Enabled());
    EXPECT_TRUE(screen.StopButton.Enabled());
    EXPECT_TRUE(screen.Timer1.Running());
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, AProgramThatEndsUnderTheWarningLeavesTheScreenClosed) {
  desktop.OnBox([&](const MessageBox&) { screen.Unload(); });
  screen.Load();
  EXPECT_FALSE(screen.Loaded());
  desktop.TakeBoxes();
}

// --- The whole test ----------------------------------------------------------------------------

TEST_F(SensorScreenTest, PassesAHealthyTrailerOnTwoAxles) {
  Open();
  Tick();
  for (const char letter : {'f', 'd', 'c', 'e'}) Spin(letter);
  EXPECT_EQ(results.nSensorTest, 1);
  EXPECT_EQ(Status(), kTitleLines + "All Sensors tested, Click STOP to end testing.");
  EXPECT_TRUE(screen.Loaded());
  const auto spin = [](int own, int other) {
    return Calls{Brake(0), Brake(other), Free(own), Brake(own), "sleep 500", "repaint"};
  };
  ExpectCalls(Plus(Plus(Plus(Plus(Plus({kMode}, spin(1, 2)), spin(1, 2)), spin(2, 1)), spin(2, 1)),
                   kRelease));
  for (int row = 1; row <= 4; ++row) {
    EXPECT_EQ(screen.textOrder[row].Text(), " " + std::to_string(row));
    EXPECT_EQ(screen.textOrder[row].BackColor(), kGreen);
    EXPECT_EQ(screen.textRPM[row].Text(), "7.0");
  }
  EXPECT_EQ(results.dMaxSpeed, (std::array<double, 6>{0, 0, 7.0, 7.0, 7.0, 7.0}));
  // The step is noted at the index one above the number of sensors.
  EXPECT_EQ(results.bSensorOrder, (std::array<std::uint8_t, 6>{0, 0, 0, 0, 0, 4}));
  Tick();
  EXPECT_FALSE(screen.Loaded());
  ExpectCalls({});
}

TEST_F(SensorScreenTest, OneModulatorHasItsOwnCommands) {
  Configure(1, {1, 0, 0}, 2, 1, 0);
  Open();
  Tick();
  Spin('d');
  Spin('c');
  EXPECT_EQ(results.nSensorTest, 1);
  EXPECT_EQ(screen.txtSupplyPressure.Text(), "n/a");
  const Calls spin = {Brake(0), Free(1), Brake(1), "sleep 500", "repaint"};
  ExpectCalls(Plus(Plus(Plus({kMode}, spin), spin), kRelease));
  EXPECT_EQ(results.bSensorOrder[3], 2);
  Tick();
  EXPECT_FALSE(screen.Loaded());
}

TEST_F(SensorScreenTest, ARearMountedEcuSwapsTheModulators) {
  Configure(2, {2, 1, 0}, 4, 2, 1);
  Open();
  Ticks(3);
  ExpectCalls({kMode, Brake(0), Brake(1), Free(2)});
  screen.Unload();
  // Any mounting but the forward one counts as this.
  Configure(2, {2, 1, 0}, 4, 2, 5);
  Open();
  Ticks(3);
  ExpectCalls({kMode, Brake(0), Brake(1), Free(2)});
}

TEST_F(SensorScreenTest, SpinsInItsOrderAndPaintsTheTire) {
  Open();
  EXPECT_EQ(Painted(kWhite), (std::vector<int>{1, 2, 3, 4, 5, 6}));
  Tick();
  const std::map<char, int> kTires = {{'f', 2}, {'d', 3}, {'c', 6}, {'e', 5}};
  const char* texts[] = {
      "Spin Tire 1 as shown on the diagram...", "Now Spin Tire 2 as shown on the diagram...",
      "Now Spin Tire 3 as shown on the diagram...", "Now Spin Tire 4 as shown on the diagram..."};
  int step = 0;
  for (const char letter : {'f', 'd', 'c', 'e'}) {
    Tick();
    EXPECT_EQ(Status(), kTitleLines + texts[step++]);
    EXPECT_EQ(Painted(kYellow), std::vector<int>{kTires.at(letter)});
    Tick();
    Speed(letter).Store(5.0);
    Tick();
    Speed(letter).Store(0.0);
    Tick();
  }
  EXPECT_EQ(Painted(kYellow), std::vector<int>{5}) << "the last one stays";
}

// --- Step 1 ------------------------------------------------------------------------------------

TEST_F(SensorScreenTest, WaitsForTheReservoir) {
  for (const double supply : {72.49, 0.0, -1.0, -kInfinity}) {
    Open();
    ecu.dSupplyPress.Store(supply);
    Ticks(2);
    EXPECT_EQ(Status(), "Reservoir pressure must be > 72.5 psi.  Increase pressure.") << supply;
    ExpectCalls({});
    screen.Unload();
  }
  for (const double supply : {72.5, 112.0, kNaN, kInfinity}) {
    Open();
    ecu.dSupplyPress.Store(supply);
    Tick();
    ExpectCalls({kMode});
    screen.Unload();
  }
  EXPECT_EQ(results.nSensorTest, 0);
}

TEST_F(SensorScreenTest, OneModulatorHasNoPressureToWaitFor) {
  ecu.dSupplyPress.Store(0.0);
  for (const int modulators : {1, 0}) {
    ecu.bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Open();
    Tick();
    ExpectCalls({kMode});
    EXPECT_EQ(screen.txtSupplyPressure.Text(), modulators == 1 ? "n/a" : "0.0");
    screen.Unload();
  }
  ecu.bNumModulators.Store(21);
  Open();
  Tick();
  ExpectCalls({});
}

TEST_F(SensorScreenTest, AMovingVehicleIsWarnedOfAndTestedAllTheSame) {
  Open();
  Speed('c').Store(4.1);
  Tick();
  EXPECT_EQ(Status(), kNotAtRest);
  ExpectCalls({kMode});
  Tick();
  EXPECT_EQ(Status(), kTitleLines + "Spin Tire 1 as shown on the diagram...");
  screen.Unload();
  Open();
  for (const double speed : {4.0, -1.0, kNaN}) Speed('c').Store(speed);
  const std::string before = Status();
  Tick();
  EXPECT_EQ(Status(), before);
}

TEST_F(SensorScreenTest, ARefusedModeIsTriedOnce) {
  link.always["StartRoutine"] = 0x80;
  Open();
  Ticks(2);
  ExpectCalls({kMode});
}

// --- Step 3 ------------------------------------------------------------------------------------

TEST_F(SensorScreenTest, SendsTheBrakeCommandsAtOnceAndEveryFiveSeconds) {
  Open();
  Ticks(2);
  sequence.Take();
  const Calls commands = {Brake(0), Brake(2), Free(1)};
  Tick();
  ExpectCalls(commands);
  // 800, 1600 ... 4800 later: not yet; 5600 is past the five seconds.
  for (int i = 1; i <= 6; ++i) {
    Tick();
    ExpectCalls({});
  }
  Tick();
  ExpectCalls(commands);
  EXPECT_TRUE(screen.Loaded());
}

TEST_F(SensorScreenTest, TheFiveSecondsAreNotDueUntilTheyArePast) {
  Open();
  Ticks(3);
  sequence.Take();
  clock.Advance(5000);
  screen.Timer1.Tick();
  ExpectCalls({});
  clock.Advance(1);
  screen.Timer1.Tick();
  ExpectCalls({Brake(0), Brake(2), Free(1)});
}

TEST_F(SensorScreenTest, TheWrappingTickCountDisturbsNothing) {
  for (const std::uint64_t wrap : {std::uint64_t{1} << 31, std::uint64_t{1} << 32}) {
    Open();
    Tick();
    clock.Advance(static_cast<std::uint32_t>(wrap - clock.Milliseconds() - 1000));
    Ticks(2);
    sequence.Take();
    Ticks(6);
    ExpectCalls({});
    Tick();
    ExpectCalls({Brake(0), Brake(2), Free(1)});
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, ExactlyFourDoesNotCount) {
  Open();
  Ticks(3);
  sequence.Take();
  for (const double speed : {4.0, 3.9, -1.0, kNaN, -kInfinity}) {
    Speed('f').Store(speed);
    screen.Timer1.Tick();
    ExpectCalls({});
  }
  EXPECT_EQ(screen.textRPM[1].Text(), "0");
  Speed('f').Store(4.1);
  screen.Timer1.Tick();
  ExpectCalls({Brake(1), "sleep 500", "repaint"});
  EXPECT_EQ(screen.textRPM[1].Text(), "4.1");
  EXPECT_EQ(Speed('f').Load(), 0.0) << "the one place where a test writes into the record";
}

TEST_F(SensorScreenTest, KeepsTheHighestSpeedWithThousands) {
  Open();
  Ticks(3);
  Speed('e').Store(9.26);
  Tick();
  EXPECT_EQ(screen.textRPM[4].Text(), "9.3");
  Speed('e').Store(8.0);
  Tick();
  EXPECT_EQ(screen.textRPM[4].Text(), "9.3");
  Speed('e').Store(1234.5);
  Tick();
  EXPECT_EQ(screen.textRPM[4].Text(), "1,234.5");
  EXPECT_EQ(results.dMaxSpeed[5], 1234.5);
}

// The library writes on while the brake commands go out.
TEST_F(SensorScreenTest, ASpeedThatRisesWithinTheTickIsKeptToo) {
  Open();
  Ticks(2);
  Speed('f').Store(6.0);
  link.on_call = [this](const std::string& call) {
    if (call == Brake(0)) Speed('f').Store(7.5);
  };
  Tick();
  EXPECT_EQ(results.dMaxSpeed[4], 7.5);
  EXPECT_EQ(screen.textRPM[1].Text(), "7.5");
}

TEST_F(SensorScreenTest, AWrongSensorIsShownAndTheStepStays) {
  Open();
  Ticks(3);
  sequence.Take();
  Speed('c').Store(6.0);
  Tick();
  EXPECT_EQ(Status(), kErrorLines + kWrong);
  EXPECT_EQ(screen.textOrder[3].BackColor(), kRed);
  EXPECT_EQ(screen.textOrder[3].Text(), " 1");
  EXPECT_EQ(results.bSensorOrder[3], 1);
  ExpectCalls({"repaint"});
  EXPECT_EQ(Speed('c').Load(), 6.0);
  // The right one may still answer; the test then goes on to its end, with the field red.
  Speed('c').Store(0.0);
  Speed('f').Store(6.0);
  Tick();
  ExpectCalls({Brake(1), "sleep 500", "repaint"});
  Tick();
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen);
  Spin('d');
  EXPECT_EQ(screen.textOrder[3].BackColor(), kRed);
}

TEST_F(SensorScreenTest, AllSensorsOfATickAreLookedAt) {
  Open();
  Ticks(3);
  sequence.Take();
  Speed('f').Store(6.0);
  Speed('e').Store(6.5);
  Tick();
  ExpectCalls({Brake(1), "sleep 500", "repaint", "repaint"});
  EXPECT_EQ(screen.textOrder[4].BackColor(), kRed);
  EXPECT_EQ(screen.textOrder[4].Text(), " 1");
  EXPECT_EQ(Status(), kErrorLines + kWrong);
  // On to the wait for rest all the same: the other wheel turns at one constant speed.
  Tick();
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen);
}

// --- Step 4 ------------------------------------------------------------------------------------

class SensorRestTest : public SensorScreenTest {
 protected:
  // Into the wait for rest after the first wheel.
  void OpenAtRest() {
    Open();
    Ticks(3);
    Speed('f').Store(7.0);
    Tick();
    sequence.Take();
  }
  // The record changes between the two readings of one tick.
  void TickWithChange(char letter, double first, double second) {
    Speed(letter).Store(first);
    screen.txtSupplyPressure.on_change = nullptr;
    screen.textRPM[1].on_change = nullptr;
    // The last thing at the start of a tick that a test can hook into is the highest speed of the
    // last row.
    screen.textRPM[4].on_change = [this, letter, second] { Speed(letter).Store(second); };
    Speed('e').Store(results.dMaxSpeed[5] + 4.5);
    Tick();
    screen.textRPM[4].on_change = nullptr;
    Speed('e').Store(0.0);
  }
};

TEST_F(SensorRestTest, AConstantSpeedCountsAsRest) {
  OpenAtRest();
  Speed('f').Store(50.0);
  Tick();
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen);
  EXPECT_EQ(screen.textOrder[1].Text(), " 1");
  EXPECT_EQ(results.bSensorOrder[5], 1);
}

TEST_F(SensorRestTest, AChangingSpeedAboveFiveCountsAsMoving) {
  OpenAtRest();
  TickWithChange('f', 7.0, 6.9);
  EXPECT_EQ(Status(), kTitleLines + kNotAtRest);
  EXPECT_NE(screen.textOrder[1].BackColor(), kGreen);
  TickWithChange('f', 6.0, 5.1);
  EXPECT_EQ(Status(), kTitleLines + kNotAtRest);
  EXPECT_NE(screen.textOrder[1].BackColor(), kGreen);
  TickWithChange('f', 5.1, 5.0);
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen) << "exactly 5.0 is at rest";
}

TEST_F(SensorRestTest, AnyOtherWheelThatChangesHoldsTheStep) {
  OpenAtRest();
  Speed('f').Store(0.0);
  TickWithChange('c', 9.0, 8.5);
  EXPECT_EQ(Status(), kTitleLines + kNotAtRest);
  // From nothing to a speed is a change, too.
  TickWithChange('d', 0.0, 5.5);
  EXPECT_EQ(Status(), kTitleLines + kNotAtRest);
  Speed('c').Store(0.0);
  Speed('d').Store(0.0);
  Tick();
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen);
}

TEST_F(SensorRestTest, NoNumberIsNoSpeed) {
  OpenAtRest();
  for (const char letter : {'f', 'd', 'c', 'e'}) Speed(letter).Store(kNaN);
  Tick();
  EXPECT_EQ(screen.textOrder[1].BackColor(), kGreen);
}

// --- Buttons -----------------------------------------------------------------------------------

TEST_F(SensorScreenTest, StopReleasesTheBrakesAndLeavesTheScreen) {
  for (int ticks = 0; ticks <= 4; ++ticks) {
    Open();
    Ticks(ticks);
    sequence.Take();
    link.always["StartRoutine"] = 1;  // nothing is tried twice
    screen.StopButton.UserClick();
    ExpectCalls(kRelease);
    EXPECT_TRUE(screen.Loaded());
    EXPECT_FALSE(screen.Timer1.Running());
    EXPECT_FALSE(screen.StopButton.Enabled());
    EXPECT_TRUE(screen.StartButton.Enabled());
    EXPECT_EQ(results.nSensorTest, 0);
    desktop.Run(5000);
    ExpectCalls({});
    link.always.clear();
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, StartClearsTheRunBefore) {
  Open();
  Tick();
  Spin('f');
  Ticks(2);
  Speed('e').Store(6.0);
  Tick();
  screen.StopButton.UserClick();
  results.dMaxSpeed[0] = 3.0;
  results.bSensorOrder[0] = 3;
  results.nSensorTest = 9;
  Speed('e').Store(0.0);
  sequence.Take();
  screen.StartButton.UserClick();
  ExpectCalls({"repaint"});
  EXPECT_EQ(results.dMaxSpeed, (std::array<double, 6>{3.0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(results.bSensorOrder, (std::array<std::uint8_t, 6>{3, 0, 0, 0, 0, 0}));
  EXPECT_EQ(results.nSensorTest, 0);
  for (int row = 1; row <= 4; ++row) {
    EXPECT_EQ(screen.textRPM[row].Text(), "0");
    EXPECT_EQ(screen.textOrder[row].Text(), "");
    EXPECT_EQ(screen.textOrder[row].BackColor(), kWhite);
  }
  EXPECT_EQ(Painted(kWhite), (std::vector<int>{1, 2, 3, 4, 5, 6}));
  EXPECT_TRUE(screen.StopButton.Enabled());
  EXPECT_FALSE(screen.StartButton.Enabled());
  Tick();
  ExpectCalls({kMode});
  Tick();
  EXPECT_EQ(Status(), kTitleLines + "Spin Tire 1 as shown on the diagram...");
}

TEST_F(SensorScreenTest, RowsThatDoNotApplyStayThroughAStart) {
  for (const int language : {int{kEnglish}, int{kFrench}}) {
    dictionary.SetLanguage(language);
    Configure(1, {1, 0, 0}, 2, 1, 0);
    screen.Load();
    desktop.TakeBoxes();
    screen.StopButton.UserClick();
    screen.StartButton.UserClick();
    EXPECT_EQ(screen.textRPM[3].Text(), dictionary.Translate("N/A"));
    EXPECT_EQ(screen.textRPM[1].Text(), "0");
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, ClosesInEveryStepAndSendsNothing) {
  for (int ticks = 0; ticks <= 4; ++ticks) {
    for (const bool by_button : {true, false}) {
      Open();
      Ticks(std::min(ticks, 3));
      if (ticks == 4) {
        Speed('f').Store(7.0);
        Tick();
      }
      sequence.Take();
      by_button ? screen.CloseButton.UserClick() : screen.UserClose();
      EXPECT_FALSE(screen.Loaded());
      EXPECT_EQ(results.nSensorTest, 0);
      desktop.Run(10'000);
      ExpectCalls({});
      Speed('f').Store(0.0);
    }
  }
}

TEST_F(SensorScreenTest, ReadsSupplyPressureOnEveryTick) {
  Open();
  ecu.dSupplyPress.Store(98.76);
  Tick();
  EXPECT_EQ(screen.txtSupplyPressure.Text(), "98.8");
  ecu.dSupplyPress.Store(-1.0);
  Tick();
  EXPECT_EQ(screen.txtSupplyPressure.Text(), "-1.0");
}

// --- Configurations that do not fit ------------------------------------------------------------

TEST_F(SensorScreenTest, ATrailerWithFewerLettersThanSensorsWaitsForWhatNeverAnswers) {
  Configure(2, {0, 1, 0}, 4, 2, 0);
  Open();
  Tick();
  Spin('d');
  Spin('c');
  // The third step has no tire and no sensor.
  ecu.dWheelSpeed[0].Store(50.0);
  ecu.dWheelSpeed[1].Store(50.0);
  Ticks(3);
  EXPECT_EQ(Status(), kTitleLines + "Now Spin Tire 3 as shown on the diagram...");
  Ticks(50);
  EXPECT_EQ(results.nSensorTest, 0);
  EXPECT_TRUE(screen.Loaded());
  EXPECT_EQ(Painted(kYellow), std::vector<int>{});
  screen.StopButton.UserClick();
  EXPECT_TRUE(screen.StartButton.Enabled());
}

TEST_F(SensorScreenTest, CountsThatNoTrailerHasNeverEndInAPass) {
  for (const int sensors : {0, 5, 6, 7, 100, 255}) {
    Configure(2, {2, 1, 0}, sensors, 2, 0);
    Open();
    Tick();
    for (int wheel = 0; wheel < 12; ++wheel) {
      for (const char letter : {'f', 'd', 'c', 'e'}) Spin(letter);
      if (!screen.Loaded()) break;
    }
    EXPECT_EQ(results.nSensorTest, 0) << sensors;
    EXPECT_TRUE(screen.Loaded());
    screen.Unload();
  }
}

TEST_F(SensorScreenTest, SixSensorsOnThreeAxlesHaveRowsForFour) {
  Configure(3, {2, 1, 2}, 6, 2, 0);
  Open();
  EXPECT_EQ(Plan(), "fdfece");
  EXPECT_EQ(Expected(), "fdfe");
  Tick();
  for (const char letter : {'f', 'd', 'f', 'e', 'c', 'e'}) Spin(letter);
  EXPECT_EQ(results.nSensorTest, 1);
  Tick();
  EXPECT_FALSE(screen.Loaded());
}

TEST_F(SensorScreenTest, SpeaksTheUsersLanguage) {
  dictionary.SetLanguage(kFrench);
  screen.Load();
  MessageBox warning = Warning();
  warning.title = Row(kFrench, warning.title);
  warning.text = Row(kFrench, warning.text);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{warning});
  EXPECT_EQ(screen.txtMounting.Text(), "Vers l'avant");
  EXPECT_TRUE(Status().starts_with(
      Row(kFrench,
          "This test checks the correct assignment of the ABS sensors to the modulators. ") +
      "\r\n\r\n"));
  Ticks(2);
  EXPECT_EQ(Status(), "        \r\r -Test des capteurs-\r\r" +
                          Row(kFrench, "Spin Tire 1 as shown on the diagram..."));
}

}  // namespace
}  // namespace lorimet::testing_support
