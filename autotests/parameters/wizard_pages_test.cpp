// The load-sensing page and the last page of the wizard, with the whole program around them.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "autotests/parameters/wizard_fixture.h"
#include "parameters/block_table.h"
#include "parameters/conversions.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

class WizardTest : public WizardFormTest {
 protected:
  WizardTest() {
    // Three axles with air suspension on a 4S/2M system.
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
    Ecu().nNumAxles.Store(3);
    Ecu().nAxleSensors[0].Store(2);
    Ecu().nAxleSensors[1].Store(1);
    Image().EOL1(1) = 0x04;
  }
  ParmBlock& Vehicle() { return program.parameters->image.EOL1; }
  frmOVGParm2& Page() { return LoadSensing(); }
  void OpenPage() {
    System().Load();
    Page().Load();
  }
  void MakeMechanical() {
    Ecu().nMechanicalSuspension.Store(1);
    Vehicle()(1) = 0x24;
  }
};

TEST_F(WizardTest, PageShowsTheVehicleOnEveryAxle) {
  Vehicle()(3) = 8;
  Vehicle()(4) = 52;
  Vehicle()(17) = 35;
  Vehicle()(18) = 40;
  Vehicle()(33) = 7;
  Vehicle()(34) = 48;
  Vehicle()(38) = 10;
  Vehicle()(39) = 45;
  Vehicle()(41) = 65;
  Vehicle()(42) = 8;
  Vehicle()(43) = 40;
  Vehicle()(45) = 62;
  Vehicle()(46) = 22;
  OpenPage();
  EXPECT_EQ(Page().txtAxleLoadUnladen[0].Text(), "2100");
  EXPECT_EQ(Page().txtAxleLoadLaden[2].Text(), "9000");
  EXPECT_EQ(Page().txtAxleLoadLaden[0].Text(), "0");
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Page().txtSuspensionPressUnladen[i].Text(), "10");
    EXPECT_EQ(Page().txtSuspensionPressLaden[i].Text(), "70");
    EXPECT_EQ(Page().txtBrakingPressLadenPm_AN[i].Text(), "12");
    EXPECT_EQ(Page().txtBrakingPressLadenPm_K1[i].Text(), "58");
    EXPECT_EQ(Page().txtBrakingPressLadenPm_Max[i].Text(), "90");
    EXPECT_EQ(Page().txtBrakingPressUnladen[i].Text(), "32");
    EXPECT_TRUE(Page().txtAxleLoadLaden[i].Enabled());
  }
  for (int i = 3; i < 5; ++i) {
    EXPECT_EQ(Page().txtBrakingPressUnladen[i].Text(), "");
    EXPECT_FALSE(Page().txtAxleLoadUnladen[i].Enabled());
    EXPECT_EQ(Page().txtAxleLoadLaden[i].BackColor(), kColorButtonFace);
    EXPECT_TRUE(Page().txtSuspensionPressLaden[i].Enabled());
  }
  EXPECT_EQ(Page().txtControlPressureUnladen[0].Text(), "94");
  EXPECT_EQ(Page().txtControlPressureLaden[0].Text(), "15");
  EXPECT_EQ(Page().txtControlPressureLaden[1].Text(), "65");
  EXPECT_EQ(Page().txtControlPressureLaden[2].Text(), "94");
  EXPECT_FALSE(Page().LeverLengthFrame.Visible());
  EXPECT_EQ(Page().txtColHdrLaden.Text(), "Suspension pressure (bar)\r\n");
}

TEST_F(WizardTest, PageShowsPathsForMechanicalSuspension) {
  MakeMechanical();
  Vehicle()(64) = 3;
  Vehicle()(65) = 242;
  Vehicle()(68) = 4;
  Vehicle()(69) = 210;
  OpenPage();
  EXPECT_TRUE(Page().LeverLengthFrame.Visible());
  EXPECT_EQ(Page().txtColHdrUnladen.Text(), "Suspension path (mm)");
  EXPECT_EQ(Page().txtColHdrLaden.Text(), "Suspension path (mm)");
  EXPECT_EQ(Page().txtSuspensionPressUnladen[1].Text(), "0");
  EXPECT_EQ(Page().txtSuspensionPressLaden[1].Text(), "123.4");
  EXPECT_EQ(Page().txtLeverLength[2].Text(), "101");
}

TEST_F(WizardTest, PageCopiesTheDiagram) {
  OpenPage();
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Page().txtSensor[i].Text(), System().txtSensor[i].Text());
    EXPECT_EQ(Page().txtSensor[i].Visible(), System().txtSensor[i].Enabled());
  }
  EXPECT_EQ(Page().picOVG_ECU.Image(), System().picOVG_ECU.Image());
}

TEST_F(WizardTest, PageShowsWhoTheTrailerIs) {
  ParmBlock& trailer = Image().EOL7;
  trailer(1) = 0x20;
  trailer(2) = 0x06;
  trailer(3) = 0x07;
  StoreBlockText(trailer, 4, 18, "VEHICLE");
  StoreBlockText(trailer, 22, 20, "MAKER");
  OpenPage();
  EXPECT_EQ(Page().txtProdYear.Text(), "2006");
  EXPECT_EQ(Page().txtProdWeek.Text(), "07");
  EXPECT_EQ(Page().txtTrailerVIN.Text(), "VEHICLE           ");
  EXPECT_EQ(Page().txtManufacturer.Text(), "MAKER               ");
  EXPECT_EQ(Page().txtTrailerType.Text(), "");  // zeros: ends at the first
}

struct RangeRow {
  const char* field;
  const char* passes;
  const char* refused;
  const char* message;
};

TEST_F(WizardTest, PageRefusesWhatIsOutOfRange) {
  const std::vector<RangeRow> rows = {
      {"txtAxleLoadLaden_0", "25000", "25001",
       "Axle Load Laden out of range.  Valid range : 0 - 25,000 kg"},
      {"txtAxleLoadUnladen_2", "25000", "25000.5",
       "Axle Load Unladen out of range.  Valid range : 0 - 25,000 kg"},
      {"txtBrakingPressLadenPm_AN_0", "145", "146",
       "Braking Pressure Laden out of range.  Valid range : 0 - 145 psi"},
      {"txtBrakingPressLadenPm_K1_1", "145", "146",
       "Braking Pressure Laden out of range.  Valid range : 0 - 145 psi"},
      {"txtBrakingPressLadenPm_Max_4", "145", "146",
       "Braking Pressure Laden out of range.  Valid range : 0 - 145 psi"},
      {"txtBrakingPressUnladen_0", "145", "146",
       "Braking Pressure Unladen out of range.  Valid range : 0 - 145 psi"},
      {"txtLeverLength_0", "50", "49", "Lever Length out of range.  Valid range : 50 - 200 mm"},
      {"txtLeverLength_0", "200", "201", "Lever Length out of range.  Valid range : 50 - 200 mm"},
      {"txtProdWeek", "53", "54", "Production Week out of range.  Valid range : 0 - 52"},
      {"txtSuspensionPressUnladen_0", "181", "182",
       "Suspension Pressure Unladen out of range.  Valid range : 0 - 181 psi"},
      {"txtSuspensionPressLaden_0", "181", "182",
       "Suspension Pressure Laden out of range.  Valid range : 0 - 181 psi"},
  };
  OpenPage();
  for (const RangeRow& row : rows) {
    auto& field = static_cast<TextBox&>(*Page().FindControl(row.field));
    for (const char* text : {row.passes, "abc", ""}) {
      if (std::string(row.field).starts_with("txtLever") && text != row.passes) continue;
      field.SetFocus();
      field.UserType(text);
      Page().txtManufacturer.SetFocus();
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << row.field << " " << text;
      EXPECT_EQ(Page().FocusedControl(), &Page().txtManufacturer) << row.field;
    }
    field.SetFocus();
    EXPECT_TRUE(field.AllSelected());
    field.UserType(row.refused);
    Page().txtManufacturer.SetFocus();
    EXPECT_EQ(desktop.TakeBoxes(), (Boxes{PlainBox(row.message, "Range Limit Exceeded")}))
        << row.field;
    EXPECT_EQ(Page().FocusedControl(), &field) << row.field;
    field.UserType(row.passes);
  }
}

TEST_F(WizardTest, EmptyCellsOfAxlesThatAreNotThereCanBeLeft) {
  MakeMechanical();
  Ecu().nNumAxles.Store(2);
  OpenPage();
  const auto leave = [&](TextBox& field, const char* text) {
    field.SetFocus();
    field.UserType(text);
    Page().txtManufacturer.SetFocus();
    const bool left = Page().FocusedControl() == &Page().txtManufacturer;
    EXPECT_EQ(desktop.TakeBoxes().size(), left ? 0u : 1u) << field.Name();
    field.UserType("100");
    return left;
  };
  for (const auto* column : {&Page().txtSuspensionPressLaden, &Page().txtLeverLength})
    for (int row = 0; row < 5; ++row) {
      EXPECT_EQ(leave((*column)[row], ""), row >= 2) << row;
      EXPECT_FALSE(leave((*column)[row], "9")) << row;
    }
}

TEST_F(WizardTest, TabulatorVisitsWhatIsReadBack) {
  System().Load();
  for (const int axles : {1, 2, 3}) {
    System().optNumAxles[axles - 1].UserClick();
    Page().Unload();
    Page().Load();
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(Page().txtAxleLoadUnladen[i].TabStop(), i < axles) << axles << " " << i;
      EXPECT_EQ(Page().txtAxleLoadLaden[i].TabStop(), i < axles) << axles << " " << i;
      for (const auto* column : {&Page().txtSuspensionPressUnladen, &Page().txtSuspensionPressLaden,
                                 &Page().txtBrakingPressUnladen, &Page().txtBrakingPressLadenPm_AN,
                                 &Page().txtBrakingPressLadenPm_K1,
                                 &Page().txtBrakingPressLadenPm_Max, &Page().txtLeverLength})
        EXPECT_EQ((*column)[i].TabStop(), i == 0) << (*column)[i].Name();
    }
  }
  EXPECT_TRUE(Page().txtTrailerVIN.TabStop());
}

TEST_F(WizardTest, FieldsInPsiSaySo) {
  Speak(kFrench);
  OpenPage();
  for (const auto* column : {&Page().txtBrakingPressUnladen, &Page().txtBrakingPressLadenPm_AN,
                             &Page().txtBrakingPressLadenPm_K1, &Page().txtBrakingPressLadenPm_Max,
                             &Page().txtSuspensionPressUnladen, &Page().txtSuspensionPressLaden,
                             &Page().txtControlPressureUnladen, &Page().txtControlPressureLaden})
    for (auto& field : *column) EXPECT_EQ(field->ToolTipText(), "psi") << field->Name();
  EXPECT_EQ(Page().txtAxleLoadLaden[0].ToolTipText(), "");
  MakeMechanical();
  System().Unload();
  Page().Unload();
  OpenPage();
  EXPECT_EQ(Page().txtSuspensionPressLaden[0].ToolTipText(), "");
  EXPECT_EQ(Page().txtBrakingPressUnladen[0].ToolTipText(), "psi");
}

TEST_F(WizardTest, PathOfMechanicalSuspensionHasItsOwnRange) {
  MakeMechanical();
  OpenPage();
  TextBox& field = Page().txtSuspensionPressLaden[0];
  for (const char* refused : {"9", "401"}) {
    field.SetFocus();
    field.UserType(refused);
    Page().txtManufacturer.SetFocus();
    EXPECT_EQ(desktop.TakeBoxes(),
              (Boxes{PlainBox("Suspension Path Laden out of range.  Valid range : 10 - 400 mm",
                              "Range Limit Exceeded")}));
  }
  for (const char* passes : {"10", "400"}) {
    field.UserType(passes);
    Page().txtManufacturer.SetFocus();
    EXPECT_EQ(Page().FocusedControl(), &Page().txtManufacturer);
    field.SetFocus();
  }
}

TEST_F(WizardTest, NextDoesNothingWhileAFieldIsOutOfRange) {
  OpenPage();
  TextBox& field = Page().txtAxleLoadLaden[0];
  field.SetFocus();
  field.UserType("25001");
  Press(Page().cmdNext);
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  EXPECT_EQ(Page().FocusedControl(), &field);
  EXPECT_TRUE(Page().Loaded());
  // The same without the focus.
  field.UserType("25002");
  Page().cmdNext.UserClick();
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  EXPECT_TRUE(Page().Loaded());
}

TEST_F(WizardTest, PreviousAndCloseDropAFieldThatIsOutOfRangeUnasked) {
  for (Button* button : {&Page().cmdPrev, &Page().cmdClose, &Last().cmdPrev, &Last().cmdClose}) {
    OpenPage();
    Last().Load();
    const bool on_last = &button->Owner() == &Last();
    Form& page = on_last ? static_cast<Form&>(Last()) : Page();
    TextBox& field = on_last ? Last().txtNumTeeth[0] : Page().txtAxleLoadLaden[0];
    field.SetFocus();
    field.UserType("25001");
    Press(*button);
    EXPECT_FALSE(page.Loaded()) << page.Name() << "." << button->Name();
    EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << page.Name() << "." << button->Name();
  }
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(WizardTest, NextEncodesTheScreen) {
  OpenPage();
  Page().txtAxleLoadUnladen[0].UserType("2100");
  Page().txtAxleLoadLaden[1].UserType("4096");
  Page().txtAxleLoadLaden[2].UserType("");
  Page().txtSuspensionPressUnladen[0].UserType("37");
  Page().txtSuspensionPressLaden[0].UserType("37");
  Page().txtBrakingPressLadenPm_AN[0].UserType("12");
  Page().txtBrakingPressLadenPm_K1[0].UserType("58");
  Page().txtBrakingPressLadenPm_Max[0].UserType("145");
  Page().txtBrakingPressUnladen[0].UserType("0");
  Page().txtBrakingPressUnladen[1].UserType("99");  // only row 0 is read back
  Page().txtProdYear.UserType("2026");
  Page().txtProdWeek.UserType("7");
  Page().txtTrailerVIN.UserType("  VIN é€ ");
  Page().txtManufacturer.UserType(" Maker ");
  Page().txtTrailerType.UserType("Type");
  Vehicle()(64) = 9;
  Vehicle()(69) = 9;
  Press(Page().cmdNext);
  EXPECT_EQ(Vehicle()(3), 8);
  EXPECT_EQ(Vehicle()(4), 52);
  EXPECT_EQ(Vehicle()(11), 16);
  EXPECT_EQ(Vehicle()(12), 0);
  EXPECT_EQ(Vehicle()(17), 0);
  EXPECT_EQ(Vehicle()(33), 26);
  EXPECT_EQ(Vehicle()(34), 25);
  EXPECT_EQ(Vehicle()(42), 8);
  EXPECT_EQ(Vehicle()(43), 40);
  EXPECT_EQ(Vehicle()(45), 100);
  EXPECT_EQ(Vehicle()(46), 0);
  EXPECT_EQ(Vehicle()(64), 9);  // the path and the lever stay with air suspension
  EXPECT_EQ(Vehicle()(69), 9);
  const ParmBlock& trailer = Image().EOL7;
  EXPECT_EQ(trailer(1), 0x20);
  EXPECT_EQ(trailer(2), 0x26);
  EXPECT_EQ(trailer(3), 0x77);  // a single digit is both
  EXPECT_EQ(Image().strTrailerVIN, "  VIN é€ ");
  EXPECT_EQ(Ecu().VehicleId.Load(), "VIN \xE9\x80            ");
  EXPECT_EQ(BlockText(trailer, 4, 18), "VIN é€            ");
  EXPECT_EQ(BlockText(trailer, 22, 20), " Maker              ");
  EXPECT_EQ(Ecu().Manufacturer.Load(), std::string(" Maker              \0\0", 22));
  EXPECT_EQ(BlockText(trailer, 42, 20), "Type                ");
  EXPECT_EQ(Ecu().TrailerType.Load(), std::string("Type                \0\0", 22));
  EXPECT_FALSE(Page().Visible());
  EXPECT_TRUE(Page().Loaded());
}

TEST_F(WizardTest, NextEncodesPathsForMechanicalSuspension) {
  MakeMechanical();
  OpenPage();
  Vehicle()(33) = 5;
  Vehicle()(34) = 6;
  Page().txtSuspensionPressLaden[0].UserType("123.4");
  Page().txtLeverLength[0].UserType("101");
  Press(Page().cmdNext);
  EXPECT_EQ(Vehicle()(68), 4);
  EXPECT_EQ(Vehicle()(69), 210);
  EXPECT_EQ(Vehicle()(64), 3);
  EXPECT_EQ(Vehicle()(65), 242);
  EXPECT_EQ(Vehicle()(33), 5);
  EXPECT_EQ(Vehicle()(34), 6);
}

TEST_F(WizardTest, EmptyDatesEncodeAsZero) {
  OpenPage();
  Page().txtProdYear.UserType("");
  Page().txtProdWeek.UserType("");
  Press(Page().cmdNext);
  EXPECT_EQ(Image().EOL7(1), 0);
  EXPECT_EQ(Image().EOL7(2), 0);
  EXPECT_EQ(Image().EOL7(3), 0);
}

TEST_F(WizardTest, DatesAreTakenByTheirFirstAndLastCharacters) {
  struct Row {
    const char* year;
    const char* week;
    int century, years, weeks;
  };
  for (const Row& row : std::vector<Row>{
           {"2026", "53", 0x20, 0x26, 0x53},
           {"7", "7", 0x77, 0x77, 0x77},
           {"26", "07", 0x26, 0x26, 0x07},
           {"206", "1", 0x20, 0x06, 0x11},
           {"abcd", "x", 0, 0, 0},
           {"2x-6", "4x", 0x20, 0x06, 0x40},
           {"é2", "é7", 0x02, 0x02, 0x07},  // a letter is one character, whatever its bytes
           {"2é6€", "€", 0x20, 0x60, 0},
       }) {
    Page().Unload();
    OpenPage();
    Page().txtProdYear.UserType(row.year);
    Page().txtProdWeek.UserType(row.week);
    Press(Page().cmdNext);
    EXPECT_EQ(Image().EOL7(1), row.century) << row.year;
    EXPECT_EQ(Image().EOL7(2), row.years) << row.year;
    EXPECT_EQ(Image().EOL7(3), row.weeks) << row.week;
  }
}

// The fields of row 0 that must hold a number; the others may hold anything.
std::vector<TextBox*> StrictFields(frmOVGParm2& page, bool air) {
  std::vector<TextBox*> fields = {
      &page.txtBrakingPressLadenPm_AN[0], &page.txtBrakingPressLadenPm_K1[0],
      &page.txtBrakingPressLadenPm_Max[0], &page.txtBrakingPressUnladen[0],
      &page.txtSuspensionPressLaden[0]};
  if (!air) fields.push_back(&page.txtLeverLength[0]);
  return fields;
}

TEST_F(WizardTest, WhatIsNoNumberEndsInAMismatchAndWhatDoesNotFitInAnOverflow) {
  const std::vector<std::pair<std::string, int>> rows = {
      {"", 13},     {" ", 13},   {"abc", 13},   {"12psi", 13},
      {"1,5", 13},  {"1e2", 13}, {"1.2.3", 13}, {std::string(400, '9'), 6},
      {"70000", 6}, {"-1", 6},   {" 60 ", 0}};
  for (const bool air : {true, false}) {
    if (!air) MakeMechanical();
    System().Unload();
    Page().Unload();
    OpenPage();
    for (TextBox* field : StrictFields(Page(), air)) {
      const std::string good = field->Text();
      for (const auto& [text, error] : rows) {
        field->UserType(text);
        EXPECT_EQ(ErrorOf([&] { Press(Page().cmdNext); }), error) << field->Name() << " " << text;
      }
      field->UserType(good);
    }
  }
}

TEST_F(WizardTest, UnladenSuspensionTakesAnyText) {
  OpenPage();
  for (const auto& [text, count] : std::vector<std::pair<std::string, int>>{
           {"", 0}, {"abc", 0}, {"37 psi", 26}, {"37,9", 26}}) {
    Page().txtSuspensionPressUnladen[0].UserType(text);
    Press(Page().cmdNext);
    EXPECT_EQ(Vehicle()(33), count) << text;
  }
}

TEST_F(WizardTest, AxleLoadsTakeAnyText) {
  OpenPage();
  for (const auto& [text, kg] : std::vector<std::pair<std::string, int>>{
           {"", 0}, {"abc", 0}, {"1,500", 1}, {"1500 kg", 1500}, {"12.5", 12}, {"13.5", 14}}) {
    Page().txtAxleLoadUnladen[1].UserType(text);
    Press(Page().cmdNext);
    EXPECT_EQ(Vehicle()(9) * 256 + Vehicle()(10), kg) << text;
  }
  for (const std::string& text : {std::string("-1"), std::string(400, '9')}) {
    Page().txtAxleLoadUnladen[1].UserType(text);
    EXPECT_EQ(ErrorOf([&] { Press(Page().cmdNext); }), 6) << text;
  }
}

TEST_F(WizardTest, LoadsOfAxlesThatAreNotThereAreCleared) {
  Ecu().nNumAxles.Store(2);
  for (int i = 3; i < 21; ++i) Vehicle()(i) = 0x11;
  OpenPage();
  Press(Page().cmdNext);
  for (int i = 9; i <= 12; ++i) EXPECT_EQ(Vehicle()(i), 0x11) << i;
  for (int i = 15; i <= 18; ++i) EXPECT_EQ(Vehicle()(i), 0) << i;
  EXPECT_EQ(Vehicle()(19), 0x11);
}

TEST_F(WizardTest, RowThatWasFilledBeforeItsAxleWentKeepsItsLoad) {
  Vehicle()(15) = 0x20;
  OpenPage();
  Press(Page().cmdNext);
  System().optNumAxles[1].UserClick();
  EXPECT_EQ(Page().txtAxleLoadUnladen[2].Text(), "8192");
  Press(Page().cmdNext);
  EXPECT_EQ(Vehicle()(15), 0x20);
}

TEST_F(WizardTest, NumberOfRowsIsTheChoiceOfTheSystemPage) {
  Vehicle()(9) = 0x20;
  System().Load();
  for (const int axles : {1, 2, 3}) {
    System().optNumAxles[axles - 1].UserClick();
    Page().Unload();
    Page().Load();
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(Page().txtAxleLoadLaden[i].Enabled(), i < axles) << axles << " " << i;
      EXPECT_EQ(Page().txtBrakingPressUnladen[i].Text(), i < axles ? "0" : "") << i;
    }
  }
}

TEST_F(WizardTest, SuspensionIsTheChoiceOfTheSystemPageAtTheLoad) {
  OpenPage();
  System().optSuspensionType[1].UserClick();
  EXPECT_FALSE(Page().LeverLengthFrame.Visible());
  Page().Unload();
  Page().Load();
  EXPECT_TRUE(Page().LeverLengthFrame.Visible());
}

TEST_F(WizardTest, PressureBeyondTheRangeIsRefusedAsSoonAsItsFieldIsVisited) {
  Vehicle()(42) = 255;
  OpenPage();
  EXPECT_EQ(Page().txtBrakingPressLadenPm_AN[0].Text(), "370");
  Page().txtBrakingPressLadenPm_AN[0].SetFocus();
  Page().txtProdYear.SetFocus();
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("Braking Pressure Laden out of range.  Valid range : 0 - 145 psi",
                            "Range Limit Exceeded")}));
  EXPECT_EQ(Page().FocusedControl(), &Page().txtBrakingPressLadenPm_AN[0]);
}

TEST_F(WizardTest, FieldsWithoutARangeSelectTheirTextAndTakeAnything) {
  OpenPage();
  for (TextBox* field : {&Page().txtProdYear, &Page().txtTrailerVIN, &Page().txtManufacturer,
                         &Page().txtTrailerType, &Page().txtControlPressureUnladen[0],
                         &Page().txtControlPressureLaden[0], &Page().txtControlPressureLaden[2]}) {
    field->SetFocus();
    EXPECT_TRUE(field->AllSelected()) << field->Name();
    field->UserType("99999");
  }
  Page().cmdNext.SetFocus();
  EXPECT_EQ(Page().FocusedControl(), &Page().cmdNext);
}

TEST_F(WizardTest, FieldsTakeAsManyCharactersAsTheBlockHolds) {
  OpenPage();
  EXPECT_EQ(Page().txtProdYear.MaxLength(), 4);
  EXPECT_EQ(Page().txtProdWeek.MaxLength(), 2);
  EXPECT_EQ(Page().txtTrailerVIN.MaxLength(), 18);
  EXPECT_EQ(Page().txtManufacturer.MaxLength(), 20);
  EXPECT_EQ(Page().txtTrailerType.MaxLength(), 20);
}

TEST_F(WizardTest, PagesBearTheirWords) {
  OpenPage();
  Last().Load();
  EXPECT_EQ(Page().Caption(), "OVG LSV  Parameters");
  EXPECT_EQ(Page().lblAxleLoadUnladen.Caption(), "Axle load \r\n(kg)\r\n");
  EXPECT_EQ(Page().lblAxleLoadLaden.Caption(), "Axle load \r\n(kg)\r\n");
  EXPECT_EQ(Page().txtColHdrUnladen.Text(), "Suspension pressure (bar)\r\n");
  EXPECT_EQ(Page().lblBrakingPressUnladen.Caption(), "Braking \r\npressure\r\n");
  EXPECT_EQ(Page().lblBrakingPressLaden.Caption(), "Braking \r\npressure\r\n");
  EXPECT_EQ(Page().lblControlPressure.Caption(), "Control pressure PM (psi)");
  EXPECT_EQ(Page().txtLeverLengthHdr.Text(), "Distance sensor lever length (mm)");
  EXPECT_EQ(Page().lblProdDate.Caption(), "Production Date (week/year)");
  EXPECT_EQ(Page().lblTrailerVIN.Caption(), "Vehicle ID");
  EXPECT_EQ(Page().lblManufacturer.Caption(), "Manufacturer");
  EXPECT_EQ(Page().lblTrailerType.Caption(), "Type");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Page().txtNumAxles[i].Text(), std::to_string(i + 1));
  EXPECT_EQ(Page().cmdPrev.Caption(), "&Previous");
  EXPECT_EQ(Page().cmdClose.Caption(), "&Close");
  EXPECT_EQ(Last().Caption(), "OVG/ABS Parameters");
  EXPECT_EQ(Last().fraOVG.Caption(), "Overturn Guard (OVG)");
  const char* const status[] = {"OVG Not Available", "OVG OFF", "OVG On - Single Tires",
                                "OVG On - Twin Tires"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Last().optOVGStatus[i].Caption(), status[i]);
  EXPECT_EQ(Last().lblTireSize.Caption(), "Tire Circumference (mm)");
  EXPECT_EQ(Last().lblNumTeeth.Caption(), "Number of Teeth");
  EXPECT_EQ(Last().lblAxleCD.Caption(), "Axle c-d");
  EXPECT_EQ(Last().lblAxleEF.Caption(), "Axle e-f");
  EXPECT_EQ(Last().cmdSaveToECU.Caption(), "&Save to ECU");
  EXPECT_EQ(Last().cmdSaveToFile.Caption(), "Save To &File");
  EXPECT_EQ(Last().cmdPrev.Caption(), "&Previous");
  EXPECT_EQ(Last().cmdClose.Caption(), "&Close");
}

TEST_F(WizardTest, LastTwoPagesSpeakTheUsersLanguage) {
  Speak(kFrench);
  MakeMechanical();
  OpenPage();
  Last().Load();
  EXPECT_EQ(Page().Caption(), "Paramètres LSV OVG");
  EXPECT_EQ(Page().lblControlPressure.Caption(), "Pression de commande PM (psi)");
  EXPECT_EQ(Page().lblTrailerVIN.Caption(), "ID véhicule");
  EXPECT_EQ(Page().txtColHdrUnladen.Text(), "Course suspension (mm)");
  EXPECT_EQ(Page().txtColHdrLaden.Text(), "Course suspension (mm)");
  EXPECT_EQ(Page().cmdPrev.Caption(), "&Précédent");
  EXPECT_EQ(Last().Caption(), "Paramètres OVG/ABS");
  EXPECT_EQ(Last().fraOVG.Caption(), "Antirenversement (OVG)");
  EXPECT_EQ(Last().optOVGStatus[1].Caption(), "OVG désactivé");
  EXPECT_EQ(Last().lblTireSize.Caption(), "Circonférence du pneu (mm)");
  EXPECT_EQ(Last().lblNumTeeth.Caption(), "Nombre de dents");
  EXPECT_EQ(Last().cmdSaveToECU.Caption(), "&Enregistrer dans l'ECU");
  EXPECT_EQ(Last().cmdSaveToFile.Caption(), "Enregistrer dans un f&ichier");
}

TEST_F(WizardTest, TextsLongerThanTheirFieldsAreCut) {
  OpenPage();
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  Page().txtTrailerVIN.UserType(letters);
  Page().txtManufacturer.UserType(letters);
  Page().txtTrailerType.UserType(letters);
  const std::uint8_t behind = Image().EOL7(62);
  Press(Page().cmdNext);
  EXPECT_EQ(BlockText(Image().EOL7, 4, 18), letters.substr(0, 18));
  EXPECT_EQ(BlockText(Image().EOL7, 22, 20), letters.substr(0, 20));
  EXPECT_EQ(BlockText(Image().EOL7, 42, 20), letters.substr(0, 20));
  EXPECT_EQ(Image().EOL7(62), behind);
  EXPECT_EQ(Ecu().VehicleId.Load(), letters.substr(0, 18));
  EXPECT_EQ(Ecu().Manufacturer.Load(), letters.substr(0, 20) + std::string(2, '\0'));
}

TEST_F(WizardTest, PreviousGoesToThePageThatFitsTheSystem) {
  Start();
  Ecu().bNumModulators.Store(2);
  desktop.OnModal("frmOVGParm1", [](Form& f) { Press(static_cast<frmOVGParm1&>(f).cmdNext); });
  desktop.OnModal("frmGIOSelection",
                  [](Form& f) { Press(static_cast<frmGIOSelection&>(f).cmdNext); });
  desktop.OnModal("frmOVGParm2", [](Form& f) {
    static_cast<frmOVGParm2&>(f).txtAxleLoadLaden[0].UserType("1234");
    Press(static_cast<frmOVGParm2&>(f).cmdPrev);
  });
  desktop.OnModal("frmGIOSelection",
                  [](Form& f) { Press(static_cast<frmGIOSelection&>(f).cmdClose); });
  Main().mnuSystem[0].UserClick();
  EXPECT_EQ(desktop.ModalForms(), (std::vector<std::string>{"frmOVGParm1", "frmGIOSelection",
                                                            "frmOVGParm2", "frmGIOSelection"}));
  EXPECT_EQ(Vehicle()(5), 0);  // what had not passed Next is lost
  EXPECT_FALSE(System().Loaded());
}

TEST_F(WizardTest, SingleModulatorSystemSkipsTheFunctions) {
  Start();
  Ecu().bNumModulators.Store(1);
  desktop.OnModal("frmOVGParm1", [](Form& f) { Press(static_cast<frmOVGParm1&>(f).cmdNext); });
  desktop.OnModal("frmOVGParm2", [](Form& f) { Press(static_cast<frmOVGParm2&>(f).cmdPrev); });
  desktop.OnModal("frmOVGParm1", [](Form& f) { Press(static_cast<frmOVGParm1&>(f).cmdClose); });
  Main().mnuSystem[0].UserClick();
  EXPECT_EQ(desktop.ModalForms(),
            (std::vector<std::string>{"frmOVGParm1", "frmOVGParm2", "frmOVGParm1"}));
  for (const BlockName block : kFunctionBlocks) EXPECT_EQ((Image().*block).bNumBytes, 0);
}

TEST_F(WizardTest, PreviousBringsTheFunctionsLoadedAnew) {
  OpenPage();
  program.parameters->gio_page.chkGIO[0].SetValue(true);
  Image().EOL5(83) = 7;
  Press(Page().cmdPrev);
  EXPECT_FALSE(Page().Loaded());
  EXPECT_FALSE(program.parameters->gio_page.Loaded());
  EXPECT_TRUE(System().Loaded());
  EXPECT_FALSE(program.parameters->gio_page.chkGIO[0].Value());
  EXPECT_EQ(Image().EOL5(83), 0);
}

TEST_F(WizardTest, PageLeftByItsCloseBoxHandsNothingToTheNextTrailer) {
  Start();
  Ecu().bNumModulators.Store(1);
  Ecu().nVehicleType.Store(0);
  link.always["ReadData"] = 1;
  desktop.OnModal("frmOVGParm1", [](Form& f) { Press(static_cast<frmOVGParm1&>(f).cmdNext); });
  desktop.OnModal("frmOVGParm2", [](Form& f) { f.UserClose(); });
  Main().mnuSystem[0].UserClick();
  EXPECT_TRUE(System().Loaded());
  Ecu().nVehicleType.Store(2);
  desktop.OnModal("frmOVGParm1", [](Form& f) {
    EXPECT_TRUE(static_cast<frmOVGParm1&>(f).optVehicleType[2].Value());
    Press(static_cast<frmOVGParm1&>(f).cmdClose);
  });
  Main().mnuSystem[0].UserClick();
}

TEST_F(WizardTest, CloseEndsTheWizard) {
  OpenPage();
  program.parameters->gio_page.Load();
  Press(Page().cmdClose);
  EXPECT_FALSE(System().Loaded());
  EXPECT_FALSE(program.parameters->gio_page.Loaded());
  EXPECT_FALSE(Page().Loaded());
}

// --- The last page.

TEST_F(WizardTest, LastPageShowsTheGuard) {
  struct Row {
    int guard;
    int tyres;
    int selected;
  };
  for (const Row& row : std::vector<Row>{{0x00, 0, 1}, {0x00, 1, 1}, {0x80, 0, 2}, {0x80, 1, 3}}) {
    Last().Unload();
    Image().EOL2(5) = static_cast<std::uint8_t>(row.guard);
    Vehicle()(62) = static_cast<std::uint8_t>(row.tyres);
    System().Load();
    Last().Load();
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Last().optOVGStatus[i].Value(), i == row.selected) << i;
    EXPECT_FALSE(Last().optOVGStatus[0].Enabled());
  }
}

TEST_F(WizardTest, LastPageShowsTyresAndTeeth) {
  Vehicle()(55) = 130;
  Vehicle()(56) = 131;
  Vehicle()(58) = 100;
  Vehicle()(59) = 90;
  System().Load();
  Last().Load();
  EXPECT_EQ(Last().txtTireSize[0].Text(), "3250");
  EXPECT_EQ(Last().txtTireSize[1].Text(), "3275");
  EXPECT_EQ(Last().txtNumTeeth[0].Text(), "100");
  EXPECT_EQ(Last().txtNumTeeth[1].Text(), "90");
  EXPECT_TRUE(Last().txtTireSize[1].Enabled());
}

TEST_F(WizardTest, TwoSensorSystemHasOneAxleOfTyres) {
  for (const int modulators : {1, 2}) {
    System().Unload();
    Last().Unload();
    Ecu().bNumSensors.Store(2);
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    System().Load();
    Last().Load();
    EXPECT_FALSE(Last().txtTireSize[1].Enabled()) << modulators;
    EXPECT_FALSE(Last().txtNumTeeth[1].Enabled()) << modulators;
    EXPECT_TRUE(Last().txtTireSize[0].Enabled()) << modulators;
  }
}

TEST_F(WizardTest, LastPageRefusesWhatIsOutOfRange) {
  System().Load();
  Last().Load();
  for (const char* refused : {"49", "131"}) {
    Last().txtNumTeeth[0].SetFocus();
    Last().txtNumTeeth[0].UserType(refused);
    Press(Last().cmdSaveToECU);
    EXPECT_EQ(desktop.TakeBoxes(),
              (Boxes{PlainBox("Number of Teeth out of range.  Valid range : 50 - 130",
                              "Range Limit Exceeded")}));
  }
  Last().txtNumTeeth[0].UserType("130");
  for (const char* refused : {"1199", "5201"}) {
    Last().txtTireSize[0].SetFocus();
    Last().txtTireSize[0].UserType(refused);
    Press(Last().cmdSaveToFile);
    EXPECT_EQ(desktop.TakeBoxes(),
              (Boxes{PlainBox("Tire Size out of range.  Valid range : 1200 - 5200 mm",
                              "Range Limit Exceeded")}));
  }
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(WizardTest, BothSavesOfTheLastPageAreHeldByAFieldOutOfRange) {
  OpenPage();
  Last().Load();
  Last().txtTireSize[0].UserType("3250");
  for (TextBox* field : {&Last().txtNumTeeth[0], &Last().txtNumTeeth[1], &Last().txtTireSize[0],
                         &Last().txtTireSize[1]})
    for (Button* button : {&Last().cmdSaveToECU, &Last().cmdSaveToFile}) {
      const ParmBlock before = Vehicle();
      field->SetFocus();
      EXPECT_EQ(field->AllSelected(), button == &Last().cmdSaveToECU);  // on the first visit
      field->UserType("5");
      Press(*button);
      EXPECT_EQ(desktop.TakeBoxes().size(), 1u) << field->Name() << " " << button->Name();
      EXPECT_EQ(Last().FocusedControl(), field);
      EXPECT_TRUE(Last().Loaded());
      EXPECT_EQ(Vehicle(), before);
      field->UserType(field->Name().starts_with("txtTire") ? "3250" : "100");
    }
  EXPECT_TRUE(link.TakeCalls().empty());
  EXPECT_TRUE(desktop.TakeFileDialogs().empty());
}

TEST_F(WizardTest, LimitsOfTheLastPagePass) {
  System().Load();
  Last().Load();
  for (const auto& [field, texts] : std::vector<std::pair<TextBox*, std::vector<const char*>>>{
           {&Last().txtNumTeeth[1], {"50", "130"}}, {&Last().txtTireSize[1], {"1200", "5200"}}})
    for (const char* text : texts) {
      field->SetFocus();
      field->UserType(text);
      Last().cmdSaveToFile.SetFocus();
      EXPECT_EQ(Last().FocusedControl(), &Last().cmdSaveToFile) << text;
    }
}

TEST_F(WizardTest, PreviousOfTheLastPageBringsTheHiddenPageBackAsItWas) {
  Start();
  OpenPage();
  Page().txtManufacturer.UserType("TYPED");
  Press(Page().cmdNext);
  Last().Load();
  StoreBlockText(Image().EOL7, 22, 20, "OTHER");
  Press(Last().cmdPrev);
  EXPECT_FALSE(Last().Loaded());
  EXPECT_TRUE(Page().Loaded());
  EXPECT_EQ(Page().txtManufacturer.Text(), "TYPED");
}

TEST_F(WizardTest, CloseOfTheLastPageUnloadsAllAndWritesNothing) {
  OpenPage();
  program.parameters->gio_page.Load();
  Last().Load();
  const ParameterImage before = Image();
  Last().optOVGStatus[3].UserClick();
  Last().txtNumTeeth[0].UserType("99");
  Press(Last().cmdClose);
  EXPECT_FALSE(System().Loaded());
  EXPECT_FALSE(program.parameters->gio_page.Loaded());
  EXPECT_FALSE(Page().Loaded());
  EXPECT_FALSE(Last().Loaded());
  EXPECT_EQ(Image().EOL1, before.EOL1);
  EXPECT_EQ(Image().EOL2, before.EOL2);
}

TEST_F(WizardTest, NumberBeyondAByteOnTheLastPageEndsTheSave) {
  System().Load();
  Last().Load();
  for (TextBox* field : {&Last().txtNumTeeth[0], &Last().txtNumTeeth[1], &Last().txtTireSize[0],
                         &Last().txtTireSize[1]}) {
    const std::string good = field->Text();
    for (const std::string& text : {std::string("-13"), std::string(400, '9')}) {
      field->UserType(text);
      EXPECT_EQ(ErrorOf([&] { Press(Last().cmdSaveToECU); }), 6) << field->Name() << " " << text;
    }
    field->UserType(good);
  }
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(WizardTest, TextsOfTheLastPageCountByTheirLeadingNumber) {
  System().Load();
  Last().Load();
  for (const auto& [tyre, teeth, tyre_byte, teeth_byte] :
       std::vector<std::tuple<const char*, const char*, int, int>>{
           {"3250 mm", "100x", 130, 100}, {"", "", 0, 0}, {"2500,5", "80,5", 100, 80}}) {
    for (int i = 0; i < 2; ++i) {
      Last().txtTireSize[i].UserType(tyre);
      Last().txtNumTeeth[i].UserType(teeth);
    }
    // A dialog that is cancelled: the screen has been taken over by then.
    EXPECT_EQ(ErrorOf([&] { Press(Last().cmdSaveToFile); }), 0) << tyre;
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(Vehicle()(55 + i), tyre_byte) << tyre;
      EXPECT_EQ(Vehicle()(58 + i), teeth_byte) << teeth;
    }
  }
}

class SavingTest : public WizardTest {
 protected:
  // Selects on the system page and the last page, and saves to the ECU.
  void Save(int cable, int guard) {
    System().Load();
    System().optSLAC[cable].SetValue(true);
    Last().Load();
    Last().optOVGStatus[guard].SetValue(true);
    SaveToEcu();
  }
};

TEST_F(SavingTest, CableIsConfiguredInFiveBytes) {
  Image().EOL9.bNumBytes = 20;
  Image().EOL9(2) = 0x81;
  Image().EOL2(2) = 0x81;
  Save(0, 1);
  EXPECT_EQ(Image().EOL9(2), 0x85);
  EXPECT_EQ(Image().EOL9(15), 73);
  EXPECT_EQ(Image().EOL3(33), 3);
  EXPECT_EQ(Image().EOL5(18), 65);
  EXPECT_EQ(Image().EOL2(2), 0x21);
  Save(1, 1);
  EXPECT_EQ(Image().EOL5(18), 177);
}

TEST_F(SavingTest, WithoutACableTheFunctionsBytesAreGivenUp) {
  for (const int modulators : {1, 2, 21}) {
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Image().EOL2(2) = 0x7F;
    Image().EOL5(20) = 9;
    Image().EOL5(18) = 9;
    Save(2, 1);
    EXPECT_EQ(Image().EOL2(2), modulators > 1 ? 0x80 : 0) << modulators;
    EXPECT_EQ(Image().EOL5(20), modulators > 1 ? 65 : 0) << modulators;
    EXPECT_EQ(Image().EOL5(18), 0) << modulators;
    EXPECT_EQ(Image().EOL3(33), 7) << modulators;
  }
}

TEST_F(SavingTest, GuardAndTyresAreStored) {
  Image().EOL2(5) = 0x10;
  Vehicle()(62) = 0x04;
  Save(2, 3);
  EXPECT_EQ(Image().EOL2(5), 0x90);
  EXPECT_EQ(Vehicle()(62), 0x05);
  EXPECT_EQ(Vehicle()(55), 130);
  EXPECT_EQ(Vehicle()(58), 100);
  Save(2, 1);
  EXPECT_EQ(Image().EOL2(5), 0x10);
  EXPECT_EQ(Vehicle()(62), 0x05);  // off keeps the kind of tyres
  Save(2, 2);
  EXPECT_EQ(Vehicle()(62), 0x04);
}

TEST_F(SavingTest, SavingEndsTheWizard) {
  Start();
  System().Load();
  Page().Load();
  Last().Load();
  for (int i = 0; i < 2; ++i) {
    Last().txtTireSize[i].UserType("3250");
    Last().txtNumTeeth[i].UserType("100");
  }
  Press(Last().cmdSaveToECU);
  desktop.TakeBoxes();
  EXPECT_FALSE(System().Loaded());
  EXPECT_FALSE(Page().Loaded());
  EXPECT_FALSE(Last().Loaded());
}

TEST_F(SavingTest, TestFieldsFollowTheImageBeforeTheFirstCall) {
  System().Load();
  Vehicle()(42) = 8;
  Vehicle()(43) = 40;
  Last().Load();
  std::vector<double> targets;
  link.on_call = [&](const std::string&) {
    targets.push_back(Ecu().dTargetPressure1.Load());
    targets.push_back(Ecu().dTargetPressure2.Load());
    link.on_call = nullptr;
  };
  Press(Last().cmdSaveToECU);
  desktop.TakeBoxes();
  EXPECT_EQ(targets, (std::vector<double>{8 * 1.451, 40 * 1.451}));
}

TEST_F(SavingTest, DisabledFieldsOfATwoSensorSystemAreWrittenAllTheSame) {
  Ecu().bNumSensors.Store(2);
  Vehicle()(56) = 131;
  Vehicle()(59) = 90;
  System().Load();
  Last().Load();
  Press(Last().cmdSaveToFile);
  EXPECT_FALSE(Last().txtTireSize[1].Enabled());
  EXPECT_EQ(Vehicle()(56), 131);
  EXPECT_EQ(Vehicle()(59), 90);
}

TEST_F(SavingTest, FailedSaveToFileSaysWhyAndKeepsThePage) {
  System().Load();
  Last().Load();
  for (ParmBlock* block : {&Image().EOL1, &Image().EOL2, &Image().EOL5}) block->bNumBytes = 5;
  desktop.AnswerFileDialog("/no/such/folder/x.ecu");
  Press(Last().cmdSaveToFile);
  EXPECT_TRUE(Last().Loaded());
  EXPECT_EQ(Last().txtStatus.Text(), "The file was not saved: it cannot be written.");
  Press(Last().cmdSaveToFile);  // cancelled
  EXPECT_EQ(Last().txtStatus.Text(), "");
  Speak(kFrench);
  Image().EOL2.bNumBytes = 0;
  desktop.AnswerFileDialog("/no/such/folder/x.ecu");
  Image().EOL1.bNumBytes = 0;
  Press(Last().cmdSaveToFile);
  EXPECT_TRUE(Last().txtStatus.Text().starts_with("Le fichier n'a pas été enregistré : "))
      << Last().txtStatus.Text();
}

TEST_F(SavingTest, CancelledSaveToFileKeepsThePage) {
  System().Load();
  Last().Load();
  for (int i = 0; i < 2; ++i) {
    Last().txtTireSize[i].UserType("3250");
    Last().txtNumTeeth[i].UserType("100");
  }
  Press(Last().cmdSaveToFile);
  EXPECT_TRUE(Last().Loaded());
  EXPECT_EQ(Vehicle()(55), 130);  // the screen has been taken over by then
}

TEST_F(WizardTest, WalkingAThousandTimesNeitherDeepensNorChangesAByte) {
  Start();
  for (int i = 4; i < 62; ++i) Image().EOL7(i) = 'X';
  Vehicle()(1) = 0x04;
  std::vector<ParmBlock> settled;
  const auto blocks = [&] {
    return std::vector<ParmBlock>{Image().EOL1, Image().EOL2, Image().EOL3, Image().EOL5,
                                  Image().EOL7, Image().EOL9, Image().FCF1, Image().FCF8};
  };
  desktop.OnModal("frmOVGParm1", [](Form& f) { Press(static_cast<frmOVGParm1&>(f).cmdNext); });
  for (int i = 0; i < 1000; ++i) {
    desktop.OnModal("frmGIOSelection",
                    [](Form& f) { Press(static_cast<frmGIOSelection&>(f).cmdNext); });
    desktop.OnModal("frmOVGParm2", [](Form& f) { Press(static_cast<frmOVGParm2&>(f).cmdNext); });
    desktop.OnModal("frmOVGParm3", [&](Form& f) {
      if (settled.empty()) settled = blocks();
      Press(static_cast<frmOVGParm3&>(f).cmdPrev);
    });
    desktop.OnModal("frmOVGParm2", [](Form& f) { Press(static_cast<frmOVGParm2&>(f).cmdPrev); });
  }
  desktop.OnModal("frmGIOSelection",
                  [](Form& f) { Press(static_cast<frmGIOSelection&>(f).cmdClose); });
  Main().mnuSystem[0].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 4002u);
  EXPECT_EQ(desktop.DeepestModal(), 1);
  EXPECT_EQ(blocks(), settled);
}

}  // namespace
}  // namespace lorimet::testing_support
