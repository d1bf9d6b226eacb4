// The dialog of the speed switch's thresholds.
#include "autotests/parameters/wizard_fixture.h"
#include "parameters/parameters_part.h"

namespace lorimet::testing_support {
namespace {

constexpr const char* kTurnOnRange = "Turn On Thresh out of range.  Valid range : 2 - 100 kph";
constexpr const char* kTurnOffRange = "Turn Off Thresh out of range.  Valid range : 0 - 100 kph";
constexpr int kThresholds = 0x020B59;

class SpeedSwitchTest : public WizardFormTest {
 protected:
  frmSpeedSwitchThresh& Dialog() { return program.parameters->speed_switch; }
  void Enter(const std::string& turn_on, const std::string& turn_off) {
    Dialog().txtTurnOnThresh.UserType(turn_on);
    Dialog().txtTurnOffThresh.UserType(turn_off);
  }
};

TEST_F(SpeedSwitchTest, ThresholdsAreReadTwiceAndTheSecondAnswerCounts) {
  int reads = 0;
  link.read_word = [&](int address, std::uint8_t* high, std::uint8_t* low) {
    EXPECT_EQ(address, kThresholds);
    *high = ++reads == 1 ? 77 : 18;
    *low = reads == 1 ? 88 : 25;
    return 0;
  };
  link.always["ReadMemory"] = -1;  // no result is checked
  Dialog().Load();
  EXPECT_EQ(link.TakeCalls(), (Lines{"ReadMemory 020B59", "ReadMemory 020B59"}));
  EXPECT_EQ(Dialog().txtTurnOffThresh.Text(), "18");
  EXPECT_EQ(Dialog().txtTurnOnThresh.Text(), "25");
}

TEST_F(SpeedSwitchTest, EachByteHasItsOwnDefault) {
  const struct {
    std::uint8_t first, second;
    const char* turn_off;
    const char* turn_on;
  } kRows[] = {
      {0, 0, "21", "0"},
      {0, 30, "21", "30"},
      {5, 0, "5", "0"},
      {255, 254, "255", "254"},
  };
  for (const auto& row : kRows) {
    link.read_word = AnswerFrom({{kThresholds, {row.first, row.second}}});
    Dialog().Load();
    EXPECT_EQ(Dialog().txtTurnOffThresh.Text(), row.turn_off);
    EXPECT_EQ(Dialog().txtTurnOnThresh.Text(), row.turn_on);
    Dialog().Unload();
  }
}

TEST_F(SpeedSwitchTest, DefaultOfTheTurnOnFieldMustBeReplacedBeforeTheFocusLeaves) {
  Dialog().Load();
  ASSERT_EQ(Dialog().txtTurnOnThresh.Text(), "0");
  Dialog().UserFocus(&Dialog().txtTurnOnThresh);
  Dialog().UserFocus(&Dialog().txtTurnOffThresh);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kTurnOnRange)});
  EXPECT_EQ(Dialog().FocusedControl(), &Dialog().txtTurnOnThresh);
  Press(Dialog().Command1);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(kTurnOnRange)});
  EXPECT_TRUE(Dialog().Loaded());
  Dialog().txtTurnOnThresh.UserType("23");
  Dialog().UserFocus(&Dialog().txtTurnOffThresh);
  EXPECT_EQ(Dialog().FocusedControl(), &Dialog().txtTurnOffThresh);
}

TEST_F(SpeedSwitchTest, FieldsAreNotLeftOutOfRange) {
  Dialog().Load();
  const struct {
    TextBox& field;
    TextBox& other;
    const char* complaint;
    std::vector<const char*> bad;
    std::vector<const char*> good;
  } kFields[] = {
      {Dialog().txtTurnOnThresh,
       Dialog().txtTurnOffThresh,
       kTurnOnRange,
       {"1", "1.9", "101", "", "-5"},
       {"2", "100"}},
      {Dialog().txtTurnOffThresh,
       Dialog().txtTurnOnThresh,
       kTurnOffRange,
       {"-1", "100.1", "101"},
       {"0", "100", ""}},
  };
  for (const auto& row : kFields) {
    row.other.UserType("50");
    for (const char* bad : row.bad) {
      Dialog().UserFocus(&row.field);
      row.field.UserType(bad);
      Dialog().UserFocus(&row.other);
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{RangeBox(row.complaint)}) << bad;
      EXPECT_EQ(Dialog().FocusedControl(), &row.field) << bad;
    }
    for (const char* good : row.good) {
      Dialog().UserFocus(&row.field);
      row.field.UserType(good);
      Dialog().UserFocus(&row.other);
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << good;
      EXPECT_EQ(Dialog().FocusedControl(), &row.other) << good;
    }
  }
}

TEST_F(SpeedSwitchTest, TurnOffAboveTurnOnIsRefused) {
  Dialog().Load();
  Enter("20", "21");
  EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }), Lines{});
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{ValuesBox("Turn OFF Threshold must be less than Turn ON Threshold.")});
  EXPECT_EQ(Dialog().FocusedControl(), &Dialog().txtTurnOnThresh);
  EXPECT_TRUE(Dialog().Loaded());
}

TEST_F(SpeedSwitchTest, DifferenceOfTwoPassesAndLessIsRefusedInTheWordsOfThePressures) {
  for (const char* turn_on : {"20", "21"}) {
    Dialog().Load();
    Enter(turn_on, "20");
    EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }), Lines{});
    EXPECT_EQ(
        desktop.TakeBoxes(),
        Boxes{ValuesBox("Lifting Pressure and Lowering Pressure must differ by more than 2 kph.")});
    EXPECT_TRUE(Dialog().Loaded());
  }
  Image().EOL3(1) = Image().EOL3(2) = 99;
  Enter("22", "20");
  EXPECT_EQ(ChangesOf([&] { Press(Dialog().Command1); }),
            (Lines{"EOL3(1): 99 -> 22", "EOL3(2): 99 -> 20"}));
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(SpeedSwitchTest, SpeedsAreRoundedToTheEvenNeighbour) {
  Dialog().Load();
  Enter("22.5", "19.5");
  Press(Dialog().Command1);
  EXPECT_EQ(Image().EOL3(1), 22);
  EXPECT_EQ(Image().EOL3(2), 20);
}

TEST_F(SpeedSwitchTest, TextsCountByTheirLeadingNumber) {
  Dialog().Load();
  Enter("40 kph", "");
  EXPECT_EQ(ErrorOf([&] { Dialog().Command1.UserClick(); }), 0);
  EXPECT_EQ(Image().EOL3(1), 40);
  EXPECT_EQ(Image().EOL3(2), 0);
}

TEST_F(SpeedSwitchTest, ValueBeyondAByteIsAnOverflow) {
  Dialog().Load();
  Enter("300", "20");  // never had the focus, so nothing has checked it
  EXPECT_EQ(ErrorOf([&] { Dialog().Command1.UserClick(); }), 6);
  Enter("40000", "20");
  EXPECT_EQ(ErrorOf([&] { Dialog().Command1.UserClick(); }), 6);
}

TEST_F(SpeedSwitchTest, CloseBoxStoresNothing) {
  Dialog().Load();
  Enter("50", "20");
  EXPECT_EQ(ChangesOf([&] { Dialog().UserClose(); }), Lines{});
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(SpeedSwitchTest, ShowsItsLabelsInTheUsersLanguage) {
  Dialog().Load();
  EXPECT_EQ(Dialog().Caption(), "Speed Switch Vehicle Speed Thresholds");
  EXPECT_EQ(Dialog().lblTurnOnThresh.Caption(), "\"Turn On\" Vehicle Speed");
  EXPECT_EQ(Dialog().lblTurnOffThresh.Caption(), "\"Turn Off\" Vehicle Speed");
  EXPECT_EQ(Dialog().lblNote.Caption(),
            "12V is supplied from 0 kph until the turn-off speed is reached.");
  Dialog().Unload();
  Speak(kFrench);
  Dialog().Load();
  EXPECT_EQ(Dialog().Caption(), "Seuils du contacteur de vitesse");
  Enter("20", "21");
  Press(Dialog().Command1);
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{PlainBox("Le seuil de DÉSACTIVATION doit être inférieur au seuil d'ACTIVATION.",
                           "Valeurs non valides")});
}

}  // namespace
}  // namespace lorimet::testing_support
