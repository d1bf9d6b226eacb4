// The dialog of the special GIO functions.
#include "autotests/parameters/wizard_fixture.h"
#include "parameters/parameters_part.h"

namespace lorimet::testing_support {
namespace {

class GioSpecialTest : public WizardFormTest {
 protected:
  frmGIOSpecial& Dialog() { return program.parameters->special_gio; }
  // Puts the bytes into the image by which all boxes show as checked.
  void MarkAll() {
    Image().EOL1(33) = 10;
    Image().EOL1(34) = 54;
    Image().EOL5(30) = 147;
    Image().EOL5(31) = 145;
    Image().EOL5(21) = 161;
    Image().EOL5(20) = 65;
    Image().EOL3(1) = 21;
    Image().EOL2(1) = 1;
    Image().EOL3(2) = 0;
    Image().EOL3(3) = 1;
    Image().EOL3(5) = 7;
  }
  void ConfirmSpeeds() {
    SpeedSwitch().txtTurnOnThresh.UserType("40");
    SpeedSwitch().txtTurnOffThresh.UserType("30");
    Press(SpeedSwitch().Command1);
  }
  std::vector<bool> Boxes3() {
    return {Dialog().chkPerkins[0].Value(), Dialog().chkPerkins[1].Value(),
            Dialog().chkPerkins[2].Value()};
  }
};

TEST_F(GioSpecialTest, MarkedFunctionsShowAsCheckedAndOpenNoDialog) {
  MarkAll();
  Dialog().Load();
  EXPECT_EQ(Dialog().Caption(), "Special GIO Functions");
  EXPECT_EQ(Boxes3(), (std::vector{true, true, true}));
  EXPECT_EQ(desktop.ModalForms(), Lines{});
  EXPECT_EQ(link.TakeCalls(), Lines{});
}

TEST_F(GioSpecialTest, EmptyImageShowsNoBoxChecked) {
  Dialog().Load();
  EXPECT_EQ(Boxes3(), (std::vector{false, false, false}));
}

TEST_F(GioSpecialTest, EachMarkIsNeeded) {
  const struct {
    ParmBlock ParameterImage::*block;
    int index;
    std::size_t box;
  } kMarks[] = {
      {&ParameterImage::EOL1, 33, 0}, {&ParameterImage::EOL1, 34, 0},
      {&ParameterImage::EOL5, 30, 0}, {&ParameterImage::EOL5, 31, 0},
      {&ParameterImage::EOL5, 20, 1}, {&ParameterImage::EOL5, 21, 1},
      {&ParameterImage::EOL3, 1, 2},  {&ParameterImage::EOL3, 2, 2},
      {&ParameterImage::EOL3, 3, 2},  {&ParameterImage::EOL3, 5, 2},
      {&ParameterImage::EOL2, 1, 2},
  };
  for (const auto& mark : kMarks) {
    MarkAll();
    ++(Image().*mark.block)(mark.index);
    Dialog().Load();
    std::vector<bool> expected(3, true);
    expected[mark.box] = false;
    EXPECT_EQ(Boxes3(), expected) << mark.index;
    Dialog().Unload();
  }
}

TEST_F(GioSpecialTest, CheckingTheSpeedSwitchOpensItsDialog) {
  Dialog().Load();
  desktop.OnModal("frmSpeedSwitchThresh", [&](Form&) { ConfirmSpeeds(); });
  Dialog().chkPerkins[2].UserClick();
  EXPECT_EQ(desktop.ModalForms(), Lines{"frmSpeedSwitchThresh"});
  EXPECT_TRUE(Dialog().chkPerkins[2].Value());
  Dialog().chkPerkins[2].UserClick();
  Dialog().chkPerkins[0].UserClick();
  Dialog().chkPerkins[1].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 1u);
  // Not only the first time.
  desktop.OnModal("frmSpeedSwitchThresh", [](Form& form) { form.UserClose(); });
  Dialog().chkPerkins[2].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 2u);
  // The close box asks for no speed switch, so no thresholds of 0 go out.
  EXPECT_FALSE(Dialog().chkPerkins[2].Value());
  Press(Dialog().cmdClose);
  EXPECT_EQ(Image().EOL3(1), 15);
  EXPECT_EQ(Image().EOL3(2), 10);
  EXPECT_EQ(Image().EOL5(1), 0);
}

// The bytes that the closed dialog leaves, by the boxes that are checked, from a filled image.
TEST_F(GioSpecialTest, CloseWritesByTheBoxes) {
  for (unsigned checked = 0; checked < 8; ++checked) {
    FillImage();
    Dialog().Load();
    for (int box = 0; box < 3; ++box) {
      if ((checked >> box & 1u) == 0) continue;
      if (box == 2) desktop.OnModal("frmSpeedSwitchThresh", [&](Form&) { ConfirmSpeeds(); });
      Dialog().chkPerkins[box].UserClick();
    }
    ParameterImage expected = Image();
    ParmBlock& e2 = expected.EOL2;
    ParmBlock& e3 = expected.EOL3;
    ParmBlock& e5 = expected.EOL5;
    expected.EOL1(33) = 10;
    expected.EOL1(34) = 54;
    const bool hydraulic = (checked & 1u) != 0;
    const bool power = (checked & 2u) != 0;
    const bool speed = (checked & 4u) != 0;
    e2(3) = static_cast<std::uint8_t>((e2(3) & ~0x41) | (hydraulic ? 0x40 : 0) | (power ? 1 : 0));
    e2(5) = hydraulic ? 160 : 176;
    e5(30) = hydraulic ? 147 : 0;
    e5(31) = hydraulic ? 145 : 0;
    if (power) e5(20) = 65;
    e5(21) = power ? 161 : 0;
    e2(1) = speed ? 1 : 0;
    e3(3) = speed ? 1 : 2;
    e5(1) = speed ? 177 : 0;
    if (speed) {
      e3(5) = 7;
    } else {
      e3(1) = 15;
      e3(2) = 10;
    }
    e5(39) = 209;
    e5(40) = 211;
    e5(41) = 212;
    e3(35) = 3;
    e3(36) = 3;
    Press(Dialog().cmdClose);
    EXPECT_EQ(Differences(expected, Image()), Lines{}) << checked;
    EXPECT_FALSE(Dialog().Loaded());
  }
}

TEST_F(GioSpecialTest, ThresholdsOfTheSpeedSwitchDialogStand) {
  Dialog().Load();
  desktop.OnModal("frmSpeedSwitchThresh", [&](Form&) { ConfirmSpeeds(); });
  Dialog().chkPerkins[2].UserClick();
  Press(Dialog().cmdClose);
  EXPECT_EQ(Image().EOL3(1), 40);
  EXPECT_EQ(Image().EOL3(2), 30);
}

TEST_F(GioSpecialTest, CloseBoxWritesNothing) {
  FillImage();
  Dialog().Load();
  Dialog().chkPerkins[0].UserClick();
  EXPECT_EQ(ChangesOf([&] { Dialog().UserClose(); }), Lines{});
  EXPECT_FALSE(Dialog().Loaded());
}

TEST_F(GioSpecialTest, SpeaksTheUsersLanguage) {
  Speak(kFrench);
  Dialog().Load();
  EXPECT_EQ(Dialog().fraPerkins.Caption(), "Application Perkins");
  EXPECT_EQ(Dialog().chkPerkins[1].Caption(), "Alimentation électrique permanente (GIO 2)");
}

}  // namespace
}  // namespace lorimet::testing_support
