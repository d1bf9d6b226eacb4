// The system page of the parameter wizard.
#include "autotests/parameters/wizard_fixture.h"
#include "parameters/block_table.h"
#include "parameters/parameters_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

// The selected item of an option array; -1 for none.
int Selected(const ControlArray<OptionButton>& options) {
  for (int i = 0; i < options.Size(); ++i)
    if (options[i].Value()) return i;
  return -1;
}

// One character an item: "x" enabled, "." disabled.
template <typename T>
std::string Enabled(const ControlArray<T>& items) {
  std::string text;
  for (int i = 0; i < items.Size(); ++i) text += items[i].Enabled() ? 'x' : '.';
  return text;
}

class SystemPageTest : public WizardFormTest {
 protected:
  frmOVGParm1& Page() { return program.parameters->system_page; }

  void SetSystem(int sensors, int modulators, int axles) {
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Ecu().nNumAxles.Store(static_cast<std::int16_t>(axles));
  }
  void LoadSystem(int sensors, int modulators, int axles) {
    SetSystem(sensors, modulators, axles);
    Page().Unload();
    Page().Load();
  }
  // What stands over the picture, row by row, left and right: a letter, or "-" for a hidden box.
  std::string Diagram() {
    std::string text;
    for (int row = 0; row < 3; ++row) {
      for (const int box : {row, row + 3})
        text += Page().txtSensor[box].Visible() ? Page().txtSensor[box].Text() : "-";
      if (row < 2) text += ' ';
    }
    return text;
  }
  // The boxes of the diagram that page 2 will show, by row: "x" enabled.
  std::string DiagramRows() {
    std::string text;
    for (int row = 0; row < 3; ++row) {
      EXPECT_EQ(Page().txtSensor[row].Enabled(), Page().txtSensor[row + 3].Enabled());
      text += Page().txtSensor[row].Enabled() ? 'x' : '.';
    }
    return text;
  }
  void PressNext(const std::string& following) {
    desktop.OnModal("frmOVGParm1", [&](Form&) { Press(Page().cmdNext); });
    desktop.OnModal(following, [](Form& form) { form.UserClose(); });
    Page().Show(Modality::kModal);
  }
  // The stop light configuration of an ECU with a cable.
  void ConfigureCable() {
    Image().EOL9.bNumBytes = 20;
    Image().EOL9(2) = 0x04;
    Image().EOL9(15) = 73;
    Image().EOL3(33) = 3;
    Image().EOL5(18) = 65;
    Image().EOL2(2) = 0x20;
  }
};

// --- Loading -------------------------------------------------------------------------------------

TEST_F(SystemPageTest, DesignDisablesWhatTheSystemNeverOffers) {
  LoadSystem(4, 3, 5);
  EXPECT_EQ(Page().Caption(), "OVG System Parameters");
  EXPECT_EQ(Enabled(Page().optVehicleType), "x.x");
  EXPECT_EQ(Enabled(Page().optNumAxles), "xxx..");
  EXPECT_EQ(Enabled(Page().optABSSystem), "xx..x");
  EXPECT_EQ(Enabled(Page().optSuspensionType), "xx");
  EXPECT_EQ(Enabled(Page().chk3rdModulator), ".....");
  EXPECT_EQ(Enabled(Page().chkLiftAxle2), ".....");
  EXPECT_EQ(Enabled(Page().chkAsTagAxle), ".....");
  EXPECT_FALSE(Page().picOVGFwd.Visible());
  EXPECT_FALSE(Page().picOVGRear.Visible());
  EXPECT_EQ(Page().cmdClose.Caption(), "&Close");
}

TEST_F(SystemPageTest, VehicleTypeAndSuspensionComeFromTheRecord) {
  for (std::int16_t type = 0; type <= 2; ++type) {
    Ecu().nVehicleType.Store(type);
    Ecu().nMechanicalSuspension.Store(type == 1 ? 1 : 0);
    LoadSystem(4, 2, 3);
    EXPECT_EQ(Selected(Page().optVehicleType), type);
    EXPECT_EQ(Selected(Page().optSuspensionType), type == 1 ? 1 : 0);
  }
}

TEST_F(SystemPageTest, NumberWithoutAnItemLeavesTheArrayWithoutASelection) {
  Ecu().nVehicleType.Store(3);
  Ecu().nMechanicalSuspension.Store(-1);
  LoadSystem(4, 2, 3);
  EXPECT_EQ(Selected(Page().optVehicleType), -1);
  EXPECT_EQ(Selected(Page().optSuspensionType), -1);
}

TEST_F(SystemPageTest, MountingShowsItsPicture) {
  Ecu().nMounting.Store(0);
  LoadSystem(4, 2, 3);
  EXPECT_TRUE(Page().chkModularMounting.Value());
  EXPECT_EQ(Page().picOVG_ECU.Image(), "picOVGFwd");
  Ecu().nMounting.Store(1);
  LoadSystem(4, 2, 3);
  EXPECT_FALSE(Page().chkModularMounting.Value());
  EXPECT_EQ(Page().picOVG_ECU.Image(), "picOVGRear");
  Ecu().nMounting.Store(2);
  LoadSystem(4, 2, 3);
  EXPECT_FALSE(Page().chkModularMounting.Value());
  EXPECT_EQ(Page().picOVG_ECU.Image(), "");
}

TEST_F(SystemPageTest, LoadChangesNoByteButTheAbsSystem) {
  FillImage();
  Image().EOL1(1) = 0xFF;
  Ecu().nVehicleType.Store(2);
  Ecu().nMechanicalSuspension.Store(1);
  Ecu().nMounting.Store(0);
  Ecu().nAxleSensors[0].Store(1);
  Ecu().nAxleLift[1].Store(1);
  EXPECT_EQ(ChangesOf([&] { LoadSystem(4, 2, 3); }), (Lines{"EOL1(1): 255 -> 231"}));
  EXPECT_EQ(ChangesOf([&] { LoadSystem(4, 3, 3); }), Lines{});
}

TEST_F(SystemPageTest, NumberOfAxlesEnablesItsRows) {
  const struct {
    int axles, selected, stored;
    const char* sensor_cd;
    const char* sensor_ef;
    const char* lift_axle;
  } kRows[] = {
      {1, 0, 1, "x....", "x....", "x...."}, {2, 1, 2, "xx...", "xx...", "xx..."},
      {3, 2, 3, "xxx..", "xxx..", "xxx.."}, {4, 3, 4, "xxxx.", "xxxx.", "xxxx."},
      {5, 4, 5, "xxxxx", "xxxxx", "xxxxx"}, {0, 1, 2, "xx...", "xx...", "xx..."},
      {6, 1, 2, "xx...", "xx...", "xx..."}, {-1, 1, 2, "xx...", "xx...", "xx..."},
  };
  for (const auto& row : kRows) {
    LoadSystem(4, 3, row.axles);
    EXPECT_EQ(Selected(Page().optNumAxles), row.selected) << row.axles;
    EXPECT_EQ(Image().nNumAxlesSelected, row.stored) << row.axles;
    EXPECT_EQ(Enabled(Page().optSensorCD), row.sensor_cd) << row.axles;
    EXPECT_EQ(Enabled(Page().optSensorEF), row.sensor_ef) << row.axles;
    EXPECT_EQ(Enabled(Page().chkLiftAxle1), row.lift_axle) << row.axles;
    EXPECT_EQ(Page().optABSSystem[1].Enabled(), row.axles != 1) << row.axles;
  }
}

TEST_F(SystemPageTest, AbsSystemComesFromSensorsAndModulators) {
  const struct {
    int sensors, modulators, selected;
    const char* enabled;
    bool one_axle;
    const char* sensor_ef;
    int stored;
  } kRows[] = {
      {2, 1, 4, "....x", true, ".....", 4},   {2, 2, 0, "x....", true, ".....", 0},
      {2, 0, 0, "x....", true, ".....", 0},   {2, 21, 0, "x....", true, ".....", 0},
      {4, 2, 1, "xx...", false, "xx...", 1},  {0, 2, 1, "xx...", false, "xx...", 1},
      {4, 3, -1, "xx..x", true, "xx...", 7},  {4, 1, -1, "xx..x", true, "xx...", 7},
      {4, 21, -1, "xx..x", true, "xx...", 7}, {0, 0, -1, "xx..x", true, "xx...", 7},
  };
  for (const auto& row : kRows) {
    Image().EOL1(1) = 0xFF;
    LoadSystem(row.sensors, row.modulators, 2);
    const std::string what = std::to_string(row.sensors) + "S" + std::to_string(row.modulators);
    EXPECT_EQ(Selected(Page().optABSSystem), row.selected) << what;
    EXPECT_EQ(Enabled(Page().optABSSystem), row.enabled) << what;
    EXPECT_EQ(Page().optNumAxles[0].Enabled(), row.one_axle) << what;
    EXPECT_EQ(Enabled(Page().optSensorEF), row.sensor_ef) << what;
    EXPECT_EQ(Image().EOL1(1) >> 2 & 7, row.stored) << what;
  }
}

TEST_F(SystemPageTest, OneAxleSystemWithFourSensorsIsEnabledAgainByItsAbsSystem) {
  LoadSystem(4, 2, 1);
  EXPECT_TRUE(Page().optABSSystem[1].Enabled());
  EXPECT_TRUE(Page().optABSSystem[1].Value());
  EXPECT_FALSE(Page().optNumAxles[0].Enabled());
  EXPECT_TRUE(Page().optNumAxles[0].Value());
}

TEST_F(SystemPageTest, SensorsShowTheirLettersOnTheirRows) {
  const struct {
    int axles;
    std::vector<std::int16_t> sensors;
    std::int16_t mounting;
    const char* diagram;
  } kRows[] = {
      {1, {1, 0, 0}, 0, "-- dc --"},
      {1, {1, 0, 0}, 1, "-- cd --"},
      {1, {2, 0, 0}, 0, "-- fe --"},
      {2, {1, 2, 0}, 0, "-- dc fe"},
      {2, {1, 2, 0}, 1, "-- cd ef"},
      {3, {2, 1, 0}, 0, "fe dc N/AN/A"},
      {3, {0, 1, 2}, 1, "N/AN/A cd ef"},
      {3, {0, 0, 0}, 0, "N/AN/A N/AN/A N/AN/A"},
      {3, {3, 0, 0}, 0, "N/AN/A N/AN/A N/AN/A"},  // both sensors have no item
      {2, {0, 0, 0}, 0, "-- N/AN/A N/AN/A"},
      {1, {0, 0, 0}, 0, "-- N/AN/A --"},
  };
  for (const auto& row : kRows) {
    for (std::size_t i = 0; i < 3; ++i) Ecu().nAxleSensors[i].Store(row.sensors[i]);
    Ecu().nMounting.Store(row.mounting);
    LoadSystem(4, 2, row.axles);
    EXPECT_EQ(Diagram(), row.diagram);
  }
}

TEST_F(SystemPageTest, SensorsAndLiftAxlesComeFromTheTables) {
  Ecu().nAxleSensors[0].Store(2);
  Ecu().nAxleSensors[2].Store(1);
  Ecu().nAxleLift[0].Store(1);
  Ecu().nAxleLift[1].Store(3);
  Ecu().nAxleLift[2].Store(2);
  LoadSystem(4, 2, 3);
  EXPECT_EQ(Selected(Page().optSensorEF), 0);
  EXPECT_EQ(Selected(Page().optSensorCD), 2);
  EXPECT_TRUE(Page().chkLiftAxle1[0].Value());
  EXPECT_TRUE(Page().chkLiftAxle2[1].Value());
  EXPECT_FALSE(Page().chkLiftAxle1[1].Value());
  EXPECT_FALSE(Page().chkLiftAxle1[2].Value());
  EXPECT_FALSE(Page().chkLiftAxle2[2].Value());
}

TEST_F(SystemPageTest, BothAxlesOfOneColumnLeaveTheLast) {
  for (auto& sensors : Ecu().nAxleSensors) sensors.Store(1);
  LoadSystem(4, 2, 3);
  EXPECT_EQ(Selected(Page().optSensorCD), 2);
}

TEST_F(SystemPageTest, AbsentBlockDisablesTheStopLightFrame) {
  ConfigureCable();
  Image().EOL9.bNumBytes = 0;
  Image().bStopLightCable = true;
  LoadSystem(4, 2, 3);
  EXPECT_FALSE(Page().frameSLAC.Enabled());
  EXPECT_EQ(Selected(Page().optSLAC), 2);
  EXPECT_FALSE(Image().bStopLightCable);
}

TEST_F(SystemPageTest, ConfiguredCableIsShown) {
  ConfigureCable();
  LoadSystem(4, 2, 3);
  EXPECT_TRUE(Page().frameSLAC.Enabled());
  EXPECT_EQ(Selected(Page().optSLAC), 0);
  EXPECT_TRUE(Image().bStopLightCable);
  Image().EOL5(18) = 177;
  LoadSystem(4, 2, 3);
  EXPECT_EQ(Selected(Page().optSLAC), 1);
  EXPECT_TRUE(Image().bStopLightCable);
}

TEST_F(SystemPageTest, EachSignOfTheCableIsNeeded) {
  const std::function<void()> kSpoils[] = {
      [&] { Image().EOL9(2) = 0xFB; }, [&] { Image().EOL9(15) = 72; },
      [&] { Image().EOL3(33) = 7; },   [&] { Image().EOL5(18) = 0; },
      [&] { Image().EOL2(2) = 0xDF; },
  };
  for (const auto& spoil : kSpoils) {
    ConfigureCable();
    spoil();
    Image().bStopLightCable = true;
    LoadSystem(4, 2, 3);
    EXPECT_TRUE(Page().frameSLAC.Enabled());
    EXPECT_EQ(Selected(Page().optSLAC), 2);
    EXPECT_FALSE(Image().bStopLightCable);
  }
}

TEST_F(SystemPageTest, RefusesToUnloadWhileItLoads) {
  bool refused = false;
  program.support->dictionary.SetLanguage(kFrench);
  program.support->dictionary.on_language_changed.push_back([&] { refused = !Page().Unload(); });
  Page().Load();
  EXPECT_TRUE(refused);
  EXPECT_TRUE(Page().Loaded());
  EXPECT_TRUE(Page().Unload());
}

TEST_F(SystemPageTest, SpeaksTheUsersLanguage) {
  Speak(kFrench);
  LoadSystem(4, 2, 3);
  EXPECT_EQ(Page().Caption(), "Paramètres système OVG");
  EXPECT_EQ(Page().optSuspensionType[0].Caption(), "Suspension pneumatique");
  EXPECT_EQ(Page().lblLiftAxle1.Caption(), "Essieu relevable 1");
  EXPECT_EQ(Page().txtSensor[0].Text(), "N/D");
}

// --- Choices -------------------------------------------------------------------------------------

TEST_F(SystemPageTest, VehicleTypeGoesToItsBits) {
  LoadSystem(4, 3, 3);
  Image().EOL1(1) = 0xFC;
  EXPECT_EQ(ChangesOf([&] { Page().optVehicleType[2].UserClick(); }), Lines{"EOL1(1): 252 -> 254"});
  EXPECT_EQ(ChangesOf([&] { Page().optVehicleType[0].UserClick(); }), Lines{"EOL1(1): 254 -> 252"});
}

TEST_F(SystemPageTest, MountingClearsBitSixAndSetsBitSevenWhenUnchecked) {
  Ecu().nAxleSensors[0].Store(1);
  Ecu().nAxleSensors[1].Store(2);
  LoadSystem(4, 2, 2);
  Image().EOL1(1) = 0x7F;
  EXPECT_EQ(ChangesOf([&] { Page().chkModularMounting.UserClick(); }),
            Lines{"EOL1(1): 127 -> 191"});
  EXPECT_EQ(Page().picOVG_ECU.Image(), "picOVGRear");
  EXPECT_EQ(Diagram(), "-- cd ef");
  Image().EOL1(1) = 0xFF;
  EXPECT_EQ(ChangesOf([&] { Page().chkModularMounting.UserClick(); }), Lines{"EOL1(1): 255 -> 63"});
  EXPECT_EQ(Page().picOVG_ECU.Image(), "picOVGFwd");
  EXPECT_EQ(Diagram(), "-- dc fe");
}

TEST_F(SystemPageTest, AbsSystemShapesAxlesAndSensors) {
  Ecu().nAxleSensors[0].Store(1);
  Ecu().nAxleSensors[1].Store(2);
  LoadSystem(4, 2, 3);
  Image().EOL1(1) = 0xFF;
  EXPECT_EQ(ChangesOf([&] { Page().optABSSystem[0].UserClick(); }), Lines{"EOL1(1): 255 -> 227"});
  EXPECT_TRUE(Page().optNumAxles[0].Enabled());
  EXPECT_EQ(Enabled(Page().optSensorEF), ".....");
  EXPECT_EQ(Diagram(), "dc -- --") << "the letters e and f belong to 4S/2M alone";
  EXPECT_EQ(ChangesOf([&] { Page().optABSSystem[1].UserClick(); }), Lines{"EOL1(1): 227 -> 231"});
  EXPECT_FALSE(Page().optNumAxles[0].Enabled());
  EXPECT_EQ(Enabled(Page().optSensorEF), "xx...");
  EXPECT_EQ(Diagram(), "dc fe --");
  EXPECT_EQ(ChangesOf([&] { Page().optABSSystem[4].SetValue(true); }),
            Lines{"EOL1(1): 231 -> 243"});
  EXPECT_TRUE(Page().optNumAxles[0].Enabled());
}

TEST_F(SystemPageTest, SuspensionFollowsTheModulatorsOfTheRecord) {
  for (const int modulators : {1, 2, 3}) {
    LoadSystem(2, modulators, 2);
    FillImage();
    Image().EOL1(1) = 0x00;
    Image().EOL2(3) = 0xFF;
    Image().EOL2(4) = 0xFE;
    Image().EOL2(5) = 0xFF;
    Image().EOL5(34) = 99;
    const std::string sensor = modulators == 1 ? "20" : "148";
    EXPECT_EQ(ChangesOf([&] { Page().optSuspensionType[1].UserClick(); }),
              (Lines{"EOL1(1): 0 -> 32", "EOL2(3): 255 -> 63", "EOL2(4): 254 -> 253",
                     "EOL2(5): 255 -> 239", "EOL5(34): 99 -> " + sensor}))
        << modulators;
    EXPECT_EQ(ChangesOf([&] { Page().optSuspensionType[0].UserClick(); }),
              (Lines{"EOL1(1): 32 -> 0", "EOL2(4): 253 -> 252", "EOL2(5): 239 -> 255",
                     "EOL5(34): " + sensor + " -> 0"}))
        << modulators;
  }
}

TEST_F(SystemPageTest, StopLightChoiceTellsOfACable) {
  ConfigureCable();
  Image().EOL5(18) = 0;
  LoadSystem(4, 2, 3);
  for (const int item : {0, 2, 1, 2}) {
    EXPECT_EQ(ChangesOf([&] { Page().optSLAC[item].UserClick(); }), Lines{});
    EXPECT_EQ(Image().bStopLightCable, item != 2) << item;
  }
}

TEST_F(SystemPageTest, OneAxleTakesTheFourSensorsAway) {
  Ecu().nAxleSensors[0].Store(1);
  Ecu().nAxleSensors[1].Store(2);
  LoadSystem(4, 2, 2);
  Image().EOL1(1) = 0x04;
  EXPECT_EQ(ChangesOf([&] { Page().optNumAxles[0].UserClick(); }), Lines{"EOL1(1): 4 -> 0"});
  EXPECT_EQ(Image().nNumAxlesSelected, 1);
  EXPECT_FALSE(Page().optABSSystem[1].Enabled());
  EXPECT_EQ(Selected(Page().optABSSystem), 0);
  EXPECT_TRUE(Page().optNumAxles[0].Enabled());
  EXPECT_EQ(Enabled(Page().optSensorCD), "x....");
  EXPECT_EQ(Enabled(Page().optSensorEF), ".....");
  EXPECT_EQ(Enabled(Page().chkLiftAxle1), "x....");
  EXPECT_EQ(Diagram(), "-- dc --");
  EXPECT_EQ(DiagramRows(), ".x.");
}

TEST_F(SystemPageTest, OneAxleLeavesAnotherAbsSystemAlone) {
  LoadSystem(2, 2, 2);
  EXPECT_EQ(ChangesOf([&] { Page().optNumAxles[0].UserClick(); }), Lines{});
  EXPECT_EQ(Selected(Page().optABSSystem), 0);
  EXPECT_FALSE(Page().optABSSystem[1].Enabled()) << "as the load left it";
}

TEST_F(SystemPageTest, AxlesEnableTheirRowsByHand) {
  LoadSystem(4, 2, 1);
  const struct {
    int item;
    const char* rows;
    const char* diagram;
  } kRows[] = {{1, "xx...", ".xx"}, {2, "xxx..", "xxx"}, {3, "xxxx.", ".x."}, {4, "xxxxx", ".x."}};
  for (const auto& row : kRows) {
    Page().optNumAxles[row.item].UserClick();
    EXPECT_EQ(Image().nNumAxlesSelected, row.item + 1);
    EXPECT_TRUE(Page().optABSSystem[1].Enabled());
    EXPECT_EQ(Enabled(Page().optSensorCD), row.rows);
    EXPECT_EQ(Enabled(Page().optSensorEF), row.rows);
    EXPECT_EQ(Enabled(Page().chkLiftAxle1), row.rows);
    EXPECT_EQ(DiagramRows(), row.diagram);
  }
}

TEST_F(SystemPageTest, OneModulatorEnablesNoSensorEF) {
  LoadSystem(2, 1, 3);
  EXPECT_EQ(Enabled(Page().optSensorEF), ".....");
  Page().optNumAxles[1].UserClick();
  Page().optNumAxles[2].UserClick();
  EXPECT_EQ(Enabled(Page().optSensorCD), "xxx..");
  EXPECT_EQ(Enabled(Page().optSensorEF), ".....");
}

TEST_F(SystemPageTest, ThreeAxlesWithoutSensorsShowNoBoxes) {
  LoadSystem(4, 2, 2);
  Page().optNumAxles[2].UserClick();
  EXPECT_EQ(Diagram(), "-- -- --");
  EXPECT_EQ(DiagramRows(), "xxx");
  for (const auto& box : Page().txtSensor) EXPECT_EQ(box->Text(), " ");
}

TEST_F(SystemPageTest, RowOfAnAxleFollowsTheNumberOfAxles) {
  LoadSystem(4, 2, 3);
  const struct {
    int axles;
    int axle;
    const char* diagram;
  } kRows[] = {
      {1, 0, "-- dc --"}, {2, 0, "-- dc --"}, {2, 1, "-- -- dc"}, {3, 0, "dc -- --"},
      {3, 1, "-- dc --"}, {3, 2, "-- -- dc"}, {2, 2, "-- -- --"}, {1, 1, "-- -- --"},
  };
  for (const auto& row : kRows) {
    Page().optNumAxles[row.axles - 1].UserClick();
    Page().optSensorCD[row.axle].UserClick();
    EXPECT_EQ(Diagram(), row.diagram) << row.axles << ' ' << row.axle;
  }
}

TEST_F(SystemPageTest, SensorsSwitchTheLiftAxleOfTheirAxle) {
  LoadSystem(4, 2, 3);
  Page().optSensorCD[1].UserClick();
  EXPECT_EQ(Enabled(Page().chkLiftAxle1), "x.x..");
  Page().optSensorCD[2].UserClick();
  EXPECT_EQ(Enabled(Page().chkLiftAxle1), "x....") << "the one before stays disabled";
  Page().optSensorEF[1].UserClick();
  EXPECT_EQ(Enabled(Page().chkLiftAxle1), "xx...");
  EXPECT_EQ(Diagram(), "-- fe dc");
  Page().optSensorEF[2].UserClick();
  EXPECT_EQ(Enabled(Page().chkLiftAxle1), "xxx..") << "e-f comes behind c-d on the same axle";
  EXPECT_EQ(Diagram(), "-- -- fe");
}

TEST_F(SystemPageTest, AxleBelowTheDiagramIsNotDrawn) {
  LoadSystem(4, 2, 3);
  Page().DisplayAxle(-1, 1);
  EXPECT_EQ(Diagram(), "N/AN/A N/AN/A N/AN/A");
}

// --- Leaving -------------------------------------------------------------------------------------

TEST_F(SystemPageTest, NextStoresTheAxles) {
  Ecu().nAxleSensors[0].Store(2);
  Ecu().nAxleSensors[1].Store(1);
  SetSystem(4, 2, 3);
  Page().Load();
  Page().chkLiftAxle1[0].UserClick();
  Page().chkLiftAxle1[2].UserClick();
  Page().chkLiftAxle2[2].SetValue(true);
  FillImage();
  for (const int i : {7, 13, 19}) Image().EOL1(i) = 0xFF;
  Image().EOL2(4) = 0x03;
  Image().EOL2(5) = 0x00;
  Image().EOL5(34) = 20;
  const ParameterImage before = Image();
  desktop.OnModal("frmGIOSelection", [&](Form& form) {
    Lines changes = Differences(before, Image());
    changes.resize(5);  // behind them stands what the page that follows has loaded
    EXPECT_EQ(changes, (Lines{"EOL1(7): 255 -> 233", "EOL1(13): 255 -> 216",
                              "EOL1(19): 255 -> 204",  // both lift boxes checked give 4
                              "EOL2(4): 3 -> 0", "EOL2(5): 0 -> 16"}));
    form.UserClose();
  });
  desktop.OnModal("frmOVGParm1", [&](Form&) { Press(Page().cmdNext); });
  Page().Show(Modality::kModal);
  EXPECT_EQ(Image().EOL5(34), 0);
  EXPECT_EQ(Image().EOL1(25), before.EOL1(25)) << "a fourth axle has no record";
}

TEST_F(SystemPageTest, SelectedButDisabledSensorsCountAsNotSelected) {
  Ecu().nAxleSensors[1].Store(2);
  Ecu().nAxleSensors[2].Store(1);
  SetSystem(4, 2, 3);
  Page().Load();
  Page().optNumAxles[1].UserClick();  // row 2 has a sensor, and is not in use any more
  ASSERT_TRUE(Page().optSensorCD[2].Value());
  Page().optABSSystem[0].UserClick();  // takes the sensors e-f away
  for (const int i : {7, 13, 19}) Image().EOL1(i) = 0xFF;
  PressNext("frmGIOSelection");
  for (const int i : {7, 13, 19}) EXPECT_EQ(Image().EOL1(i), 0xC8) << i;
}

TEST_F(SystemPageTest, NextAppliesTheSuspension) {
  Ecu().nMechanicalSuspension.Store(1);
  SetSystem(2, 1, 2);
  Image().EOL2(4) = 0xFC;
  Image().EOL2(5) = 0xFF;
  PressNext("frmOVGParm2");
  EXPECT_EQ(Image().EOL2(4), 0xFD);
  EXPECT_EQ(Image().EOL2(5), 0xEF);
  EXPECT_EQ(Image().EOL5(34), 20);
}

TEST_F(SystemPageTest, ModulatorsOfTheRecordDecideThePageThatFollows) {
  SetSystem(2, 1, 2);
  PressNext("frmOVGParm2");
  SetSystem(2, 2, 2);
  PressNext("frmGIOSelection");
  SetSystem(0, 0, 0);
  PressNext("frmGIOSelection");
  EXPECT_EQ(desktop.ModalForms(), (Lines{"frmOVGParm1", "frmOVGParm2", "frmOVGParm1",
                                         "frmGIOSelection", "frmOVGParm1", "frmGIOSelection"}));
  EXPECT_EQ(desktop.DeepestModal(), 1);
}

TEST_F(SystemPageTest, ChosenSystemOfOneModulatorStillGoesThroughTheFunctions) {
  SetSystem(4, 2, 2);
  Page().Load();
  Page().optABSSystem[4].SetValue(true);
  Page().optSuspensionType[1].UserClick();
  EXPECT_EQ(Image().EOL5(34), 148);
  PressNext("frmGIOSelection");
  EXPECT_EQ(Image().EOL5(34), 148);
}

TEST_F(SystemPageTest, NextOnlyHidesThePage) {
  SetSystem(4, 2, 2);
  Page().Load();
  Page().optNumAxles[2].UserClick();
  PressNext("frmGIOSelection");
  EXPECT_TRUE(Page().Loaded());
  EXPECT_FALSE(Page().Visible());
  EXPECT_TRUE(Page().optNumAxles[2].Value());
}

TEST_F(SystemPageTest, SingleModulatorSystemLeavesTheFunctionBlocksAbsent) {
  SetSystem(2, 1, 2);
  PressNext("frmOVGParm2");
  for (const BlockName block : kFunctionBlocks) EXPECT_EQ(Image().*block, ParmBlock{});
}

TEST_F(SystemPageTest, CloseUnloadsThePage) {
  LoadSystem(4, 2, 2);
  EXPECT_EQ(ChangesOf([&] { Press(Page().cmdClose); }), Lines{});
  EXPECT_FALSE(Page().Loaded());
}

}  // namespace
}  // namespace lorimet::testing_support
