// The identity on the main form, the clearing of the panel, its languages and its mirroring.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/session/panel_fixture.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

class IdentityTest : public PanelTest {
 protected:
  void SetUp() override { Start(); }
  void Systems(int sensors, int modulators) {
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Main().DisplayCompId();
  }
};

TEST_F(IdentityTest, ShowsEachTextOnWhite) {
  Ecu().SysName.Store("OVG SYSTEM 18 BYTE");
  Ecu().MfgDate.Store("12/05/2003");
  Ecu().SerialNum.Store("SN\xE9", ' ');
  Ecu().SWRev.Store("123456789012");
  Ecu().PartNum.Store("400 500 081 0");
  Ecu().DiagId.Store(" D");
  Main().nECUType = 0;
  Main().DisplayCompId();
  EXPECT_EQ(Main().nECUType, 2);
  EXPECT_EQ(Main().txtECUType.Text(), "OVG SYSTEM 18 BYTE");
  EXPECT_EQ(ShownIn(Main().txtMfgDate), (Shown{"12/05/2003", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(Main().txtSerialNum), (Shown{"SNé             ", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(Main().txtSWRev), (Shown{"123456789012", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(Main().txtPartNum), (Shown{"400 500 081 0", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(Main().txtDiagId), (Shown{" D", 0xFFFFFF}));
}

TEST_F(IdentityTest, ATextWhoseFirstByteIsZeroIsMissingWhateverFollows) {
  const Color name_colour = Main().txtECUType.BackColor();
  for (std::size_t i = 1; i < 12; ++i) {
    Ecu().SysName.SetByteAt(i, 'x');
    Ecu().MfgDate.SetByteAt(i, 'x');
  }
  Main().DisplayCompId();
  EXPECT_EQ(Main().txtECUType.Text(), "N/A");
  EXPECT_EQ(Main().txtECUType.BackColor(), name_colour);  // left alone
  for (TextBox* box : {&Main().txtMfgDate, &Main().txtSerialNum, &Main().txtSWRev,
                       &Main().txtPartNum, &Main().txtDiagId})
    EXPECT_EQ(ShownIn(*box), (Shown{"N/A", 0x0080FF})) << box->Name();
}

struct Configuration {
  int sensors;
  int modulators;
  const char* text;
};

class ConfigurationTest : public IdentityTest, public testing::WithParamInterface<Configuration> {};

TEST_P(ConfigurationTest, IsNamedBySensorsAndModulators) {
  Systems(GetParam().sensors, GetParam().modulators);
  EXPECT_EQ(Main().txtConfig.Text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Systems, ConfigurationTest,
                         testing::Values(Configuration{4, 2, "4S/2M"}, Configuration{2, 1, "2S/1M"},
                                         Configuration{4, 3, "4S/3M"}, Configuration{0, 2, "S/2M"},
                                         Configuration{4, 21, "4S/2M + 1M"},
                                         Configuration{6, 0, "?S/?M"}, Configuration{1, 4, "?S/?M"},
                                         Configuration{3, 20, "?S/?M"},
                                         Configuration{255, 255, "?S/?M"},
                                         Configuration{2, 22, "2S/?M"}));

TEST_F(IdentityTest, OneModulatorClosesTwoTestsAndTwoOrThreeOpenThem) {
  const auto expect_tests = [&](bool open) {
    EXPECT_EQ(Main().mnuTests[0].Enabled(), open);
    EXPECT_EQ(Main().mnuTests[1].Enabled(), open);
    for (int i = 2; i <= 5; ++i) EXPECT_TRUE(Main().mnuTests[i].Enabled());
  };
  expect_tests(true);
  Systems(4, 1);
  expect_tests(false);
  for (const int other : {21, 0, 4, 255}) {  // leave the menus as they are
    Systems(4, other);
    expect_tests(false);
  }
  Systems(4, 2);
  expect_tests(true);
  Systems(4, 21);
  expect_tests(true);
  Systems(4, 1);
  Systems(4, 3);
  expect_tests(true);
}

TEST_F(IdentityTest, DistancesAreShownInMiles) {
  EXPECT_EQ(ShownIn(Main().txtTripOdom), (Shown{"1,000.0", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(Main().txtNextService), (Shown{"10,000", 0xFFFFFF}));
  Ecu().dTripReading.Store(1.609 * 1234567.89);
  Ecu().dNextService.Store(-1609.0);
  Main().DisplayCompId();
  EXPECT_EQ(Main().txtTripOdom.Text(), "1,234,567.9");
  EXPECT_EQ(Main().txtNextService.Text(), "-1,000");
  Ecu().dTripReading.Store(-1.0);
  Ecu().dNextService.Store(-1.0);
  Main().DisplayCompId();
  EXPECT_EQ(ShownIn(Main().txtTripOdom), (Shown{"N/A", 0x0080FF}));
  EXPECT_EQ(ShownIn(Main().txtNextService), (Shown{"N/A", 0x0080FF}));
  Ecu().dTripReading.Store(-1.609);  // -1 mile is a value
  Main().DisplayCompId();
  EXPECT_EQ(ShownIn(Main().txtTripOdom), (Shown{"-1.0", 0xFFFFFF}));
}

TEST_F(IdentityTest, ClearingBlanksTheLiveValuesAndKeepsTheIdentity) {
  Ecu().bNumFaults.Store(2);
  Ecu().nWarningLamp.Store(1);
  Ecu().SerialNum.Store("S-1");
  Pass();
  Pass();
  Main().ClearStatusPanel();
  const frmZeltMain& main = Main();
  EXPECT_EQ(ShownIn(main.txtWarningLamp), (Shown{"N/A", 0xFFFFFF}));
  EXPECT_EQ(ShownIn(main.txtPrimaryVolts), (Shown{"N/A", 0x0080FF}));
  EXPECT_EQ(ShownIn(main.txtExistingFaults), (Shown{"None", 0xFFFFFF}));
  for (const TextBox* box : {&main.txtSupply, &main.txtServiceBrake, &main.txtBrake1Press,
                             &main.txtBrake2Press, &main.txtMainBellows, &main.txtSteerBellows})
    EXPECT_EQ(ShownIn(*box), (Shown{"N/A", 0xFFFFFF})) << box->Name();
  for (int i = 2; i <= 5; ++i) EXPECT_EQ(ShownIn(main.txtSpeed[i]), (Shown{"N/A", 0xFFFFFF}));
  EXPECT_EQ(main.txtSpeed[0].Text(), "");
  EXPECT_EQ(main.txtSerialNum.Text(), "S-1");
  EXPECT_EQ(main.txtConfig.Text(), "4S/2M");
  EXPECT_EQ(main.txtOdom.Text(), "1,234,567.9");
  EXPECT_EQ(main.txtTripOdom.Text(), "1,000.0");
}

TEST_F(IdentityTest, ClearingLetsEventsRunFirst) {
  desktop.After(0, [&] { Main().txtServiceBrake.SetText("painted meanwhile"); });
  Main().ClearStatusPanel();
  EXPECT_EQ(Main().txtServiceBrake.Text(), "N/A");
}

struct Words {
  int language;
  const char* no_data;
  const char* on;
  const char* off;
  const char* yes;
  const char* none;
};

class PanelLanguageTest : public PanelTest, public testing::WithParamInterface<Words> {};

TEST_P(PanelLanguageTest, TranslatesTheMissingValuesButForTheLiteralOnes) {
  SetLanguage(GetParam().language);
  ECUData& ecu = Ecu();
  for (EcuDouble* value :
       {&ecu.dPrimaryVolts, &ecu.dOdometer, &ecu.dNextService, &ecu.dTripReading,
        &ecu.dSteerBellows, &ecu.dBrake1Press, &ecu.dBrake2Press, &ecu.dMainBellows})
    value->Store(-1.0);
  Start();
  Pass();
  for (auto& speed : ecu.dWheelSpeed) speed.Store(-1.0);
  Pass();
  const std::string no_data = GetParam().no_data;
  for (const TextBox* box :
       {&Main().txtECUType, &Main().txtMfgDate, &Main().txtSerialNum, &Main().txtSWRev,
        &Main().txtPartNum, &Main().txtDiagId, &Main().txtTripOdom, &Main().txtNextService,
        &Main().txtPrimaryVolts, &Main().txtOdom, &Main().txtBrake1Press, &Main().txtBrake2Press,
        &Main().txtMainBellows, &Main().txtSpeed[2], &Main().txtSpeed[5]})
    EXPECT_EQ(box->Text(), no_data) << box->Name();
  EXPECT_EQ(Main().txtSteerBellows.Text(), "N/A");
  EXPECT_EQ(Main().txtWarningLamp.Text(), GetParam().off);
  EXPECT_EQ(Main().txtExistingFaults.Text(), GetParam().none);
  ecu.bNumModulators.Store(1);
  ecu.nWarningLamp.Store(1);
  ecu.bNumFaults.Store(1);
  Pass();
  EXPECT_EQ(Main().txtSupply.Text(), "N/A");
  EXPECT_EQ(Main().txtBrake2Press.Text(), "N/A");
  EXPECT_EQ(Main().txtWarningLamp.Text(), GetParam().on);
  EXPECT_EQ(Main().txtExistingFaults.Text(), GetParam().yes);
  Main().ClearStatusPanel();
  for (const TextBox* box : {&Main().txtWarningLamp, &Main().txtPrimaryVolts, &Main().txtSupply,
                             &Main().txtSteerBellows, &Main().txtBrake2Press, &Main().txtSpeed[3]})
    EXPECT_EQ(box->Text(), no_data) << box->Name();
  EXPECT_EQ(Main().txtExistingFaults.Text(), GetParam().none);
}

INSTANTIATE_TEST_SUITE_P(Languages, PanelLanguageTest,
                         testing::Values(Words{kNative, "N/A", "On", "Off", "Yes", "None"},
                                         Words{kFrench, "N/D", "Allumé", "Éteint", "Oui", "Aucun"},
                                         Words{kEnglish, "N/A", "On", "Off", "Yes", "None"},
                                         Words{kSpanish, "N/D", "Encendida", "Apagada", "Sí",
                                               "Ninguno"}));

TEST_F(IdentityTest, APassMirrorsEachControlThatChangedOnceAndNoOther) {
  Pass();
  int before = desktop.Touches();
  Pass();
  EXPECT_EQ(desktop.Touches(), before);  // nothing is new
  Ecu().dServiceBrake.Store(1.0);
  Ecu().nWarningLamp.Store(1);     // text and colour
  Ecu().dWheelSpeed[4].Store(-1);  // text and colour
  before = desktop.Touches();
  Pass();
  EXPECT_EQ(desktop.Touches() - before, 4);  // the plan of the trailer, which shows them too
  Ecu().dWheelSpeed[2].Store(2.0);
  Ecu().dWheelSpeed[3].Store(2.0);
  Ecu().bNumFaults.Store(1);  // its own field; the identity is written anew with the same texts
  Ecu().SerialNum.Store("S");
  before = desktop.Touches();
  Pass();
  EXPECT_EQ(desktop.Touches() - before, 2);
}

TEST_F(IdentityTest, EveryFieldHasItsFrameAndItsLabel) {
  const frmZeltMain& main = Main();
  EXPECT_EQ(main.fraECUInfo.Caption(), "ECU Information");
  EXPECT_EQ(main.lblECUType.Caption(), "System Name");
  EXPECT_EQ(main.lblConfig.Caption(), "Configuration");
  EXPECT_EQ(main.lblPartNum.Caption(), "Part Number");
  EXPECT_EQ(main.lblSerialNum.Caption(), "Serial Number");
  EXPECT_EQ(main.lblSWRev.Caption(), "Software Version");
  EXPECT_EQ(main.lblMfgDate.Caption(), "Production Date");
  EXPECT_EQ(main.lblDiagId.Caption(), "Diagnostic ID");
  EXPECT_EQ(main.lblOdom.Caption(), "Odometer");
  EXPECT_EQ(main.lblTripOdom.Caption(), "Trip Reading");
  EXPECT_EQ(main.lblNextService.Caption(), "Next Service");
  EXPECT_EQ(main.fraWheelSpeed.Caption(), "Wheel Speed (mph)");
  EXPECT_EQ(main.fraWarningLamp.Caption(), "Warning Lamp");
  EXPECT_EQ(main.fraAirPress.Caption(), "Air Pressures (psi)");
  EXPECT_EQ(main.lblServiceBrake.Caption(), "Service Brake Demand");
  EXPECT_EQ(main.lblSupply.Caption(), "Supply");
  EXPECT_EQ(main.lblBrake1Press.Caption(), "Brake Side 1");
  EXPECT_EQ(main.lblBrake2Press.Caption(), "Brake Side 2");
  EXPECT_EQ(main.lblMainBellows.Caption(), "Bellows - Main Axle");
  EXPECT_EQ(main.lblSteerBellows.Caption(), "Bellows - Steering Axle");
  EXPECT_EQ(main.lblPrimaryVolts.Caption(), "Voltage");
  EXPECT_EQ(main.lblVoltageSource.Caption(), "Source");
  EXPECT_EQ(main.optVoltageSource[0].Caption(), "Stop Light");
  EXPECT_EQ(main.optVoltageSource[1].Caption(), "Permanent");
  EXPECT_EQ(main.fraFaults.Caption(), "Faults");
  EXPECT_EQ(main.lblExistingFaults.Caption(), "Existing");
  EXPECT_EQ(main.lblError.Caption(), "Message Center:");
}

}  // namespace
}  // namespace lorimet::testing_support
