// The live values of the main form.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "autotests/session/panel_fixture.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

class LivePanelTest : public PanelTest {
 protected:
  void SetUp() override { Start(); }
};

TEST_F(LivePanelTest, IsPaintedEvery300Milliseconds) {
  desktop.Run(299);
  EXPECT_EQ(Main().txtServiceBrake.Text(), "");
  desktop.Run(1);
  EXPECT_EQ(Main().txtServiceBrake.Text(), "35.5");
  Ecu().dServiceBrake.Store(36.0);
  desktop.Run(299);
  EXPECT_EQ(Main().txtServiceBrake.Text(), "35.5");
  desktop.Run(1);
  EXPECT_EQ(Main().txtServiceBrake.Text(), "36.0");
}

TEST_F(LivePanelTest, ShowsAHealthyTrailer) {
  Pass();
  const frmZeltMain& main = Main();
  EXPECT_EQ(main.txtSupply.Text(), "118.3");
  EXPECT_EQ(main.txtServiceBrake.Text(), "35.5");
  EXPECT_EQ(main.txtBrake1Press.Text(), "30");
  EXPECT_EQ(main.txtBrake2Press.Text(), "31");
  EXPECT_EQ(main.txtMainBellows.Text(), "56");
  EXPECT_EQ(main.txtSteerBellows.Text(), "40");
  EXPECT_EQ(ShownIn(main.txtWarningLamp), (Shown{"Off", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(main.txtPrimaryVolts), (Shown{"12.3", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(main.txtExistingFaults), (Shown{"None", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(main.txtOdom), (Shown{"1,234,567.9", 0xFFFFFF}));
  for (int i = 2; i <= 5; ++i) EXPECT_EQ(ShownIn(main.txtSpeed[i]), (Shown{"30.0", 0xFFFFFF}));
  for (int i = 0; i <= 1; ++i) EXPECT_EQ(main.txtSpeed[i].Text(), "");
}

// A field of the record, its value, and what one pass makes of it.
struct Row {
  EcuDouble ECUData::*field;
  TextBox frmZeltMain::*box;
  double value;
  const char* text;
};

class PressureTest : public LivePanelTest, public testing::WithParamInterface<Row> {};

TEST_P(PressureTest, IsShownInItsMask) {
  (Ecu().*GetParam().field).Store(GetParam().value);
  Pass();
  EXPECT_EQ((Main().*GetParam().box).Text(), GetParam().text);
}

using E = ECUData;
using F = frmZeltMain;
INSTANTIATE_TEST_SUITE_P(
    Values, PressureTest,
    testing::Values(Row{&E::dSupplyPress, &F::txtSupply, -1.0, "-1.0"},
                    Row{&E::dSupplyPress, &F::txtSupply, -1.5, "-1.5"},
                    Row{&E::dSupplyPress, &F::txtSupply, 0.0, "0.0"},
                    Row{&E::dSupplyPress, &F::txtSupply, 1.25, "1.3"},
                    Row{&E::dSupplyPress, &F::txtSupply, 12345.0, "12345.0"},
                    Row{&E::dServiceBrake, &F::txtServiceBrake, -1.0, "-1.0"},
                    Row{&E::dServiceBrake, &F::txtServiceBrake, 99.96, "100.0"},
                    Row{&E::dServiceBrake, &F::txtServiceBrake, kNan, "NaN"},
                    Row{&E::dBrake1Press, &F::txtBrake1Press, -1.0, "N/A"},
                    Row{&E::dBrake1Press, &F::txtBrake1Press, -1.5, "-2"},
                    Row{&E::dBrake1Press, &F::txtBrake1Press, 0.5, "1"},
                    Row{&E::dBrake1Press, &F::txtBrake1Press, -0.4, "0"},
                    Row{&E::dBrake2Press, &F::txtBrake2Press, -1.0, "N/A"},
                    Row{&E::dBrake2Press, &F::txtBrake2Press, 120.49, "120"},
                    Row{&E::dMainBellows, &F::txtMainBellows, -1.0, "N/A"},
                    Row{&E::dMainBellows, &F::txtMainBellows, 72.0, "72"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, -1.0, "N/A"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, -1.5, "-2"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, 181.8, "182"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, 181.9, "N/A"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, kInfinity, "N/A"},
                    Row{&E::dSteerBellows, &F::txtSteerBellows, kNan, "N/A"}));

TEST_F(LivePanelTest, ASingleModulatorBlanksSupplyAndSide2AndGreysTheLabelOfSide1) {
  Ecu().bNumModulators.Store(1);
  Pass();
  EXPECT_EQ(Main().txtSupply.Text(), "N/A");
  EXPECT_EQ(Main().txtBrake2Press.Text(), "N/A");
  EXPECT_FALSE(Main().txtSupply.Enabled());
  EXPECT_FALSE(Main().lblSupply.Enabled());
  EXPECT_FALSE(Main().lblBrake1Press.Enabled());
  EXPECT_TRUE(Main().lblBrake2Press.Enabled());
  EXPECT_TRUE(Main().txtBrake2Press.Enabled());
  EXPECT_EQ(Main().txtBrake1Press.Text(), "30");
  for (const int modulators : {2, 3, 21, 0, 4, 255}) {
    Ecu().bNumModulators.Store(1);
    Pass();
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Pass();
    EXPECT_TRUE(Main().txtSupply.Enabled()) << modulators;
    EXPECT_TRUE(Main().lblSupply.Enabled()) << modulators;
    EXPECT_TRUE(Main().lblBrake1Press.Enabled()) << modulators;
    EXPECT_EQ(Main().txtSupply.Text(), "118.3") << modulators;
    EXPECT_EQ(Main().txtBrake2Press.Text(), "31") << modulators;
  }
}

TEST_F(LivePanelTest, TheLampIsOnForEveryCountAboveZero) {
  for (const std::int16_t lamp : {1, 2, 32767}) {
    Ecu().nWarningLamp.Store(lamp);
    Pass();
    EXPECT_EQ(ShownIn(Main().txtWarningLamp), (Shown{"On", 0x00FFFF})) << lamp;
  }
  for (const std::int16_t lamp : {0, -1, -99, -32768}) {
    Ecu().nWarningLamp.Store(lamp);
    Pass();
    EXPECT_EQ(ShownIn(Main().txtWarningLamp), (Shown{"Off", 0xFFFFFF})) << lamp;
  }
}

TEST_F(LivePanelTest, TheVoltageIsHundredthsAndOrangeWhenMissing) {
  Ecu().dPrimaryVolts.Store(-1.0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtPrimaryVolts), (Shown{"N/A", 0x0080FF}));
  Ecu().dPrimaryVolts.Store(2405.0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtPrimaryVolts), (Shown{"24.1", 0xFFFFFF}));
  Ecu().dPrimaryVolts.Store(-1.5);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtPrimaryVolts), (Shown{"0.0", 0xFFFFFF}));
}

struct Source {
  double value;
  int selected;  // of a start at `from`
  int from;
};

class VoltageSourceTest : public LivePanelTest, public testing::WithParamInterface<Source> {};

TEST_P(VoltageSourceTest, SelectsTheOptionThatItNamesOrNone) {
  Main().optVoltageSource[GetParam().from].SetValue(true);
  Ecu().dVoltageSource.Store(GetParam().value);
  Pass();
  EXPECT_EQ(Main().optVoltageSource[0].Value(), GetParam().selected == 0);
  EXPECT_EQ(Main().optVoltageSource[1].Value(), GetParam().selected == 1);
}

INSTANTIATE_TEST_SUITE_P(Values, VoltageSourceTest,
                         testing::Values(Source{0.0, 0, 1}, Source{1.0, 1, 0},    //
                                         Source{0.4, 0, 1}, Source{0.5, 0, 1},    //
                                         Source{0.6, 1, 0}, Source{1.4, 1, 0},    //
                                         Source{1.5, 0, 0}, Source{2.0, 1, 1},    //
                                         Source{-0.4, 0, 1}, Source{-1.0, 1, 1},  //
                                         Source{-1.0, 0, 0}, Source{-3.0, 0, 0},  //
                                         Source{1e300, 1, 1}, Source{kNan, 1, 1},
                                         Source{kInfinity, 0, 0}));

TEST_F(LivePanelTest, WithNoSourceYetNeitherOptionIsSelected) {
  Ecu().dVoltageSource.Store(-1.0);
  Pass();
  EXPECT_FALSE(Main().optVoltageSource[0].Value());
  EXPECT_FALSE(Main().optVoltageSource[1].Value());
}

struct Speed {
  double value;
  const char* text;
  Color color;
};

class SpeedTest : public LivePanelTest, public testing::WithParamInterface<Speed> {};

TEST_P(SpeedTest, IsShownAboveTheNoise) {
  Pass();
  for (int i = 0; i <= 5; ++i)
    Ecu().dWheelSpeed[static_cast<std::size_t>(i)].Store(GetParam().value);
  Pass();
  for (int i = 2; i <= 5; ++i)
    EXPECT_EQ(ShownIn(Main().txtSpeed[i]), (Shown{GetParam().text, GetParam().color})) << i;
  EXPECT_EQ(Main().txtSpeed[0].Text(), "");
  EXPECT_EQ(Main().txtSpeed[1].Text(), "");
}

INSTANTIATE_TEST_SUITE_P(Values, SpeedTest,
                         testing::Values(Speed{-1.0, "N/A", 0x0080FF}, Speed{-1.5, " 0", 0xFFFFFF},
                                         Speed{0.0, " 0", 0xFFFFFF}, Speed{1.11, " 0", 0xFFFFFF},
                                         Speed{1.12, "1.1", 0xFFFFFF},
                                         Speed{59.95, "60.0", 0xFFFFFF},
                                         Speed{kNan, "NaN", 0xFFFFFF}));

TEST_F(LivePanelTest, ASpeedIsWrittenOnlyWhenItDiffersFromTheLastShown) {
  Pass();
  Main().txtSpeed[3].SetText("mark");
  Pass();
  EXPECT_EQ(Main().txtSpeed[3].Text(), "mark");
  Ecu().dWheelSpeed[2].Store(31.0);
  Pass();
  EXPECT_EQ(Main().txtSpeed[2].Text(), "31.0");
  EXPECT_EQ(Main().txtSpeed[3].Text(), "mark");
  Ecu().dWheelSpeed[3].Store(30.000001);
  Pass();
  EXPECT_EQ(Main().txtSpeed[3].Text(), "30.0");
}

TEST_F(LivePanelTest, ASpeedThatIsMissingFromTheStartIsLeftAsItWasDrawn) {
  for (auto& speed : Ecu().dWheelSpeed) speed.Store(-1.0);
  Pass();
  for (int i = 2; i <= 5; ++i) {
    EXPECT_EQ(Main().txtSpeed[i].Text(), "N/A") << i;
    EXPECT_NE(Main().txtSpeed[i].BackColor(), kColorOrange) << i;
  }
}

TEST_F(LivePanelTest, SpeedsNeedSensorsAndModulators) {
  for (const auto& [sensors, modulators] : {std::pair{0, 2}, {4, 0}, {0, 0}}) {
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Pass();
    EXPECT_EQ(Main().txtSpeed[2].Text(), "N/A");
    EXPECT_EQ(Main().txtOdom.Text(), "1,234,567.9");  // the pass goes on behind them
  }
  Ecu().bNumSensors.Store(1);
  Ecu().bNumModulators.Store(1);
  Pass();
  EXPECT_EQ(Main().txtSpeed[2].Text(), "30.0");
}

TEST_F(LivePanelTest, AChangedFaultCountRepaintsTheIdentityAndTheSpeedsWaitAPass) {
  Pass();
  Ecu().bNumFaults.Store(1);
  Ecu().SerialNum.Store("S-1");
  Ecu().dWheelSpeed[2].Store(31.0);
  Ecu().dOdometer.Store(2.0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtExistingFaults), (Shown{"Yes", 0x0000FF}));
  EXPECT_EQ(Main().txtSerialNum.Text(), "S-1");
  EXPECT_EQ(Main().txtSpeed[2].Text(), "30.0");
  EXPECT_EQ(Main().txtOdom.Text(), "1,234,567.9");
  Ecu().SerialNum.Store("S-2");
  Pass();
  EXPECT_EQ(Main().txtSerialNum.Text(), "S-1");  // the count stands
  EXPECT_EQ(Main().txtSpeed[2].Text(), "31.0");
  EXPECT_EQ(Main().txtOdom.Text(), "2.0");
  Ecu().bNumFaults.Store(0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtExistingFaults), (Shown{"None", 0xFFFFFF}));
  EXPECT_EQ(Main().txtSerialNum.Text(), "S-2");
}

TEST_F(LivePanelTest, EveryPassEndsByLettingEventsRun) {
  int runs = 0;
  desktop.on_do_events = [&] { ++runs; };
  Pass();
  EXPECT_EQ(runs, 1);
  Ecu().bNumFaults.Store(255);
  Pass();
  EXPECT_EQ(runs, 2);
}

TEST_F(LivePanelTest, TheExportIsOpenedByAKnownOdometerForGood) {
  Ecu().dOdometer.Store(-1.0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtOdom), (Shown{"N/A", 0x0080FF}));
  EXPECT_FALSE(Main().mnuODR[1].Enabled());
  Ecu().dOdometer.Store(0.0);
  Pass();
  EXPECT_EQ(ShownIn(Main().txtOdom), (Shown{"0.0", 0xFFFFFF}));
  EXPECT_TRUE(Main().mnuODR[1].Enabled());
  Ecu().dOdometer.Store(-1.0);
  Pass();
  EXPECT_TRUE(Main().mnuODR[1].Enabled());
  Main().RestartECU();
  EXPECT_TRUE(Main().mnuODR[1].Enabled());
}

TEST_F(LivePanelTest, WordsOfAWaitGiveWayToTheLinksMessage) {
  Main().txtError.SetText("The link has an error");
  Main().TellWhile("Working", [this] { EXPECT_EQ(Main().txtError.Text(), "Working"); });
  EXPECT_EQ(Main().txtError.Text(), "The link has an error");
  Main().TellWhile("Working", [this] { Main().txtError.SetText(""); });
  EXPECT_EQ(Main().txtError.Text(), "") << "the link was healthy again meanwhile";
}

}  // namespace
}  // namespace lorimet::testing_support
