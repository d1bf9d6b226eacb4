// The lamp test.
#include "tests/frmLampTest.h"

#include "autotests/tests/test_screen_fixture.h"

namespace lorimet::testing_support {
namespace {

const std::string kOn = "StartRoutine 07:01E803";
const std::string kOff = "StartRoutine 07:00E803";

class LampScreenTest : public TestScreenTest {
 protected:
  frmLampTest screen{Parts()};
};

TEST_F(LampScreenTest, AsksItsQuestionAndHasItsTips) {
  results.nLampTest = 1;
  screen.Load();
  EXPECT_EQ(screen.Caption(), "Warning Lamp");
  EXPECT_EQ(screen.txtStatus.Text(), "Do You See The Warning Lamp Blinking ON and OFF?");
  EXPECT_EQ(screen.txtStatus.ToolTipText(), "Status of the Valve Activation");
  EXPECT_EQ(screen.lblWarningLamp.Caption(), "Warning Lamp");
  EXPECT_EQ(screen.lblWarningLamp.ToolTipText(), "Warning Lamp ON/OFF Indicator");
  EXPECT_EQ(screen.lblWarningLamp.BackColor(), 0xFFFFFFu);
  EXPECT_EQ(screen.cmdYes.ToolTipText(), "Close the Form");
  EXPECT_EQ(screen.cmdNo.ToolTipText(), "Test the Warning Lamp");
  EXPECT_EQ(results.nLampTest, 0);
  ExpectCalls({});
}

TEST_F(LampScreenTest, BlinksEvery800MillisecondsOnceATickWhateverTheEcuAnswers) {
  link.always["StartRoutine"] = 1;
  screen.Load();
  desktop.Run(799);
  ExpectCalls({});
  desktop.Run(1);
  ExpectCalls({kOn});
  EXPECT_EQ(screen.lblWarningLamp.BackColor(), 0x0000FFu);
  desktop.Run(800);
  ExpectCalls({kOff});
  EXPECT_EQ(screen.lblWarningLamp.BackColor(), 0xFFFFFFu);
  desktop.Run(3 * 800);
  ExpectCalls({kOn, kOff, kOn});
}

TEST_F(LampScreenTest, TheAnswerIsTheResultAndNothingIsSentAfterIt) {
  for (int ticks = 0; ticks <= 3; ++ticks) {
    for (const std::int16_t expected : {1, 0}) {
      screen.Load();
      desktop.Run(static_cast<std::uint32_t>(ticks) * 800);
      sequence.Take();
      results.nLampTest = 9;
      (expected == 1 ? screen.cmdYes : screen.cmdNo).UserClick();
      EXPECT_FALSE(screen.Loaded());
      EXPECT_EQ(results.nLampTest, expected);
      desktop.Run(5000);
      ExpectCalls({});
    }
  }
}

TEST_F(LampScreenTest, ClosedWithoutAnAnswerItHasFailed) {
  screen.Load();
  desktop.Run(1000);
  screen.UserClose();
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(results.nLampTest, 0);
}

TEST_F(LampScreenTest, EveryVisitBeginsWithTheLampOn) {
  screen.Load();
  desktop.Run(800);
  screen.cmdNo.UserClick();
  screen.Load();
  sequence.Take();
  desktop.Run(800);
  ExpectCalls({kOn});
}

TEST_F(LampScreenTest, SpeaksTheUsersLanguage) {
  dictionary.SetLanguage(kFrench);
  screen.Load();
  EXPECT_EQ(screen.txtStatus.Text(),
            Row(kFrench, "Do You See The Warning Lamp Blinking ON and OFF?"));
  EXPECT_EQ(screen.cmdYes.Caption(), "&Oui");
  EXPECT_EQ(screen.lblWarningLamp.ToolTipText(), Row(kFrench, "Warning Lamp ON/OFF Indicator"));
}

}  // namespace
}  // namespace lorimet::testing_support
