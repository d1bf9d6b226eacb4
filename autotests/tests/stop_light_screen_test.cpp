// The stop light activation.
#include "autotests/tests/test_screen_fixture.h"
#include "tests/frmStopLight.h"

namespace lorimet::testing_support {
namespace {

const std::string kOn = "StopLightActivation 137 1";
const std::string kOff = "StopLightActivation 137 0";

class StopLightScreenTest : public TestScreenTest {
 protected:
  void SetUp() override { screen.Load(); }
  frmStopLight screen{desktop, dictionary, link};
};

TEST_F(StopLightScreenTest, SendsNothingUntilAButtonIsPressed) {
  EXPECT_EQ(screen.Caption(), "Stop Light Activation");
  EXPECT_EQ(screen.cmdTrl1On.Caption(), "Trailer 1 On");
  EXPECT_EQ(screen.cmdTrl1Off.Caption(), "Trailer 1 Off");
  EXPECT_EQ(screen.Command1.Caption(), "&Close");
  EXPECT_EQ(screen.FocusedControl(), &screen.Command1) << "a key pressed by habit lights nothing";
  desktop.Run(5000);
  ExpectCalls({});
}

TEST_F(StopLightScreenTest, RepeatsWhatWasPressedLastOnEveryTick) {
  link.always["StopLightActivation"] = 1;  // not looked at
  screen.cmdTrl1On.UserClick();
  ExpectCalls({});
  desktop.Run(499);
  ExpectCalls({});
  desktop.Run(1001);
  ExpectCalls({kOn, kOn, kOn});
  screen.cmdTrl1Off.UserClick();
  ExpectCalls({});
  desktop.Run(1000);
  ExpectCalls({kOff, kOff});
}

TEST_F(StopLightScreenTest, OffPressedFirstStartsTheRepetitionToo) {
  screen.cmdTrl1Off.UserClick();
  desktop.Run(1000);
  ExpectCalls({kOff, kOff});
}

TEST_F(StopLightScreenTest, ClosingSwitchesTheLightsOffOnceWhateverTheyWere) {
  for (const bool by_button : {true, false}) {
    for (int pressed = 0; pressed <= 2; ++pressed) {
      screen.Load();
      if (pressed == 1) screen.cmdTrl1On.UserClick();
      if (pressed == 2) screen.cmdTrl1Off.UserClick();
      by_button ? screen.Command1.UserClick() : screen.UserClose();
      EXPECT_FALSE(screen.Loaded());
      ExpectCalls({kOff});
      desktop.Run(5000);
      ExpectCalls({});
    }
  }
}

TEST_F(StopLightScreenTest, EveryVisitBeginsWithTheLightsOff) {
  screen.cmdTrl1On.UserClick();
  desktop.Run(500);
  screen.Command1.UserClick();
  sequence.Take();
  screen.Load();
  desktop.Run(2000);
  ExpectCalls({});
}

}  // namespace
}  // namespace lorimet::testing_support
