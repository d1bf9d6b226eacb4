// The dialog of the lift axle's lowering and lifting pressures.
#include "autotests/parameters/wizard_fixture.h"
#include "parameters/parameters_part.h"

namespace lorimet::testing_support {
namespace {

constexpr const char* kLiftingRange = "Lifting Pressure out of range.  Valid range : 0 - 100 psi";
constexpr const char* kLoweringRange = "Lowering Pressure out of range.  Valid range : 0 - 100 psi";
constexpr const char* kDiffer =
    "Lifting Pressure and Lowering Pressure must differ by more than 5 psi.";

class LiftAxleTest : public WizardFormTest {
 protected:
  frmLiftAxlePressures& Dialog() { return program.parameters->lift_axle; }
  void Enter(const std::string& lowering, const std::string& lifting) {
    Dialog().txtLoweringPress.UserType(lowering);
    Dialog().txtLiftingPress.UserType(lifting);
  }
  ParmBlock& Fcf1() { return Image().FCF1; }
};

TEST_F(LiftAxleTest, WithoutAConnectionTheDefaultsAreShown) {
  link.always["ReadMemory"] = -5;
  Dialog().Load();
  EXPECT_EQ(Dialog().Caption(), "Lift Axle Lowering/Lifting Pressures");
  EXPECT_EQ(Dialog().txtLoweringPress.Text(), "43");
  EXPECT_EQ(Dialog().txtLiftingPress.Text(), "29");
}

TEST_F(LiftAxleTest, LoweringIsReadTwiceAndLiftingOnce) {
  Dialog().Load();
  EXPECT_EQ(link.TakeCalls(),
            (Lines{"ReadMemory 02070E", "ReadMemory 02070E", "ReadMemory 020710"}));
}

TEST_F(LiftAxleTest, SecondAnswerOfTheLoweringPressureCounts) {
  int reads = 0;
  link.read_word = [&](int address, std::uint8_t* high, std::uint8_t* low) {
    if (address != 0x02070E) return 0;
    *high = ++reads == 1 ? 0x10 : 0x3D;
    *low = reads == 1 ? 0x00 : 0x6E;
    return 0;
  };
  Dialog().Load();
  EXPECT_EQ(Dialog().txtLoweringPress.Text(), "43");
  EXPECT_EQ(Dialog().txtLiftingPress.Text(), "29");
}

TEST_F(LiftAxleTest, WordsShowAsWholePsi) {
  const struct {
    std::uint8_t high, low;
    const char* shown;
  } kRows[] = {
      {0x14, 0x00, "14"},   // 5120 counts
      {0x00, 0x01, "0"},    // not both bytes 0
      {0x01, 0x00, "1"},    // 0.7 psi
      {0x3D, 0x6E, "43"},   // what 43 psi is stored as
      {0x80, 0x92, "90"},   // above 32767
      {0xFF, 0xFF, "179"},  // 179.2
  };
  for (const auto& row : kRows) {
    const Memory memory = {{0x02070E, {row.high, row.low}}, {0x020710, {row.high, row.low}}};
    link.read_word = AnswerFrom(memory);
    Dialog().Load();
    EXPECT_EQ(Dialog().txtLoweringPress.Text(), row.shown);
    EXPECT_EQ(Dialog().txtLiftingPress.Text(), row.shown);
    Dialog().Unload();
  }
}

TEST_F(LiftAxleTest, FieldsAreNotLeftOutOfRange) {
  Dialog().Load();
  const struct {
    TextBox& field;
    TextBox& other;
    const char* complaint;
  } kFields[] = {
      {Dialog().txtLiftingPress, Dialog().txtLoweringPress, kLiftingRange},
      {Dialog().txtLoweringPress, Dialog().txtLiftingPress, kLoweringRange},
  };
  for (const auto& row : kFields) {
    for (const char* bad : {"0", "0.9", "100.5", "101", "-3", "", "x"}) {
      row.field.UserType("50");
      Dialog().UserFocus(&row.field);
      row.field.UserType(bad);
      Dialog().UserFocus(&row.other);
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(row.complaint)}) << bad;
      EXPECT_EQ(Dialog().FocusedControl(), &row.field) << bad;
      EXPECT_TRUE(row.field.AllSelected());
    }
    for (const char* good : {"1", "100", "55 psi"}) {
      Dialog().UserFocus(&row.field);
      row.field.UserType(good);
      Dialog().UserFocus(&row.other);
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << good;
      EXPECT_EQ(Dialog().FocusedControl(), &row.other) << good;
    }
  }
}

TEST_F(LiftAxleTest, ButtonDoesNothingWhileAFieldIsOutOfRange) {
  Dialog().Load();
  Enter("43", "0");
  Dialog().UserFocus(&Dialog().txtLiftingPress);
  EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }), Lines{});
  // The field that refused to lose the focus has told why already.
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kLiftingRange)});
  EXPECT_TRUE(Dialog().Loaded());
  EXPECT_EQ(Dialog().FocusedControl(), &Dialog().txtLiftingPress);
  Dialog().Command1.UserClick();
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kLiftingRange)}) << "a press of its own";
}

TEST_F(LiftAxleTest, DefaultButtonChecksTheFieldThatKeepsTheFocus) {
  Dialog().Load();
  Enter("43", "0");
  Dialog().UserFocus(&Dialog().txtLiftingPress);
  EXPECT_EQ(ChangesOf([&] { Dialog().Command1.UserClick(); }), Lines{});
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kLiftingRange)});
  EXPECT_EQ(ChangesOf([&] { Dialog().Command1.UserClick(); }), Lines{});
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kLiftingRange)}) << "a press of its own";
  Dialog().txtLiftingPress.UserType("29");
  Dialog().Command1.UserClick();
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(LiftAxleTest, RefusalIsToldAgainAfterAKeyInTheField) {
  Dialog().Load();
  Enter("43", "0");
  Dialog().UserFocus(&Dialog().txtLiftingPress);
  Dialog().UserFocus(&Dialog().Command1);  // the mouse's press, whose click the toolkit drops
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  Dialog().UserKeyDown(&Dialog().txtLiftingPress, {13, 0});
  Dialog().Command1.UserClick();
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kLiftingRange)});
  EXPECT_TRUE(Dialog().Loaded());
}

TEST_F(LiftAxleTest, RefusalIsToldAgainForAnotherText) {
  Dialog().Load();
  Enter("43", "0");
  Dialog().UserFocus(&Dialog().txtLiftingPress);
  Dialog().UserFocus(&Dialog().Command1);
  Dialog().txtLiftingPress.UserType("200");
  Dialog().Command1.UserClick();
  EXPECT_EQ(desktop.TakeBoxes(), (Boxes{RangeBox(kLiftingRange), RangeBox(kLiftingRange)}));
}

TEST_F(LiftAxleTest, LiftingAboveLoweringIsRefused) {
  Dialog().Load();
  Enter("30", "31");
  EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }), Lines{});
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{ValuesBox("Lifting Pressure must be less than Lowering Pressure.")});
  EXPECT_EQ(Dialog().FocusedControl(), &Dialog().txtLiftingPress);
  EXPECT_TRUE(Dialog().Loaded());
}

TEST_F(LiftAxleTest, DifferenceOfFivePasses) {
  for (const auto& [lowering, lifting] :
       {std::pair("34", "30"), std::pair("30", "30"), std::pair("34.5", "30")}) {
    Dialog().Load();
    Enter(lowering, lifting);
    EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }), Lines{});
    EXPECT_EQ(desktop.TakeBoxes(), Boxes{ValuesBox(kDiffer)}) << lowering;
    EXPECT_TRUE(Dialog().Loaded());
  }
  // 35.5 rounds to 36, 30.5 to 30.
  for (const auto& [lowering, lifting] : {std::pair("35", "30"), std::pair("35.5", "30.5")}) {
    Dialog().Load();
    Enter(lowering, lifting);
    Press(Dialog().Command1);
    EXPECT_FALSE(Dialog().Loaded()) << lowering;
  }
}

TEST_F(LiftAxleTest, PressuresAreStoredInCounts) {
  FillImage();
  Dialog().Load();
  Enter("43", "29");
  const ParameterImage before = Image();
  Press(Dialog().Command1);
  EXPECT_EQ(Fcf1()(16), 0x3D);
  EXPECT_EQ(Fcf1()(17), 0x6E);
  EXPECT_EQ(Fcf1()(18), 0x29);  // 10606 counts
  EXPECT_EQ(Fcf1()(19), 0x6E);
  EXPECT_LE(Differences(before, Image()).size(), 4u);
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(LiftAxleTest, EightyNinePsiAreTheMostThatFit) {
  Dialog().Load();
  Enter("89", "1");
  Press(Dialog().Command1);
  EXPECT_EQ(Fcf1()(16) * 256 + Fcf1()(17), 32549);
  EXPECT_EQ(Fcf1()(18) * 256 + Fcf1()(19), 366);
  Dialog().Load();
  Enter("90", "29");
  const ParameterImage before = Image();
  EXPECT_EQ(ErrorOf([&] { Press(Dialog().Command1); }), 6);
  EXPECT_EQ(Differences(before, Image()), Lines{});
}

TEST_F(LiftAxleTest, TextsCountByTheirLeadingNumber) {
  Dialog().Load();
  Enter("43 psi", "29,5");
  EXPECT_EQ(ErrorOf([&] { Press(Dialog().Command1); }), 0);
  EXPECT_EQ(Fcf1()(16) * 256 + Fcf1()(17), 15726);
  EXPECT_EQ(Fcf1()(18) * 256 + Fcf1()(19), 10606);
}

TEST_F(LiftAxleTest, CloseBoxStoresNothing) {
  Dialog().Load();
  Enter("50", "20");
  EXPECT_EQ(ChangesOf([&] { Dialog().UserClose(); }), Lines{});
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(LiftAxleTest, SpeaksTheUsersLanguage) {
  Speak(kFrench);
  Dialog().Load();
  EXPECT_EQ(Dialog().lblLiftingPress.Caption(), "Pression de relevage (psi)");
  Enter("30", "31");
  Press(Dialog().Command1);
  EXPECT_EQ(
      desktop.TakeBoxes(),
      Boxes{PlainBox("La pression de relevage doit être inférieure à la pression d'abaissement.",
                     "Valeurs non valides")});
  Dialog().txtLiftingPress.UserType("0");
  Dialog().UserFocus(&Dialog().txtLoweringPress);
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{PlainBox("Pression de relevage hors limites. Plage valide : 0 - 100 psi",
                           "Valeur hors limites")});
}

}  // namespace
}  // namespace lorimet::testing_support
