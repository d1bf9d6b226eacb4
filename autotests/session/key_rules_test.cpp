// The main form takes no typed input: its keys, its chord, and the focus that its fields pass on.
#include <gtest/gtest.h>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

class KeyRulesTest : public ProgramTest {
 protected:
  void SetUp() override { Start(); }
  void Chord() { Main().UserKeyDown(nullptr, {kKeyF9, kShiftMask | kCtrlMask | kAltMask}); }
  bool UtilityShown() { return Main().mnuABS[7].Visible(); }
};

TEST_F(KeyRulesTest, TheChordShowsTheUtilityMenuAndHidesItAgain) {
  Chord();
  EXPECT_TRUE(UtilityShown());
  Chord();
  EXPECT_FALSE(UtilityShown());
}

TEST_F(KeyRulesTest, TheChordNeedsAllThreeModifiers) {
  for (int shift = 0; shift < 7; ++shift) {
    EXPECT_FALSE(Main().UserKeyDown(nullptr, {kKeyF9, shift})) << shift;
    EXPECT_FALSE(UtilityShown()) << shift;
  }
}

TEST_F(KeyRulesTest, TheChordIsOfF9Alone) {
  for (int code = 1; code <= 255; ++code) {
    if (code == kKeyF9) continue;
    Main().UserKeyDown(nullptr, {code, 7});
    EXPECT_FALSE(UtilityShown()) << code;
  }
}

TEST_F(KeyRulesTest, EveryKeyButF1IsSwallowed) {
  int seen = 0;
  Main().txtHidden.on_key_down = [&](KeyEvent& key) { seen = key.code; };
  for (int shift = 0; shift <= 7; ++shift) {
    for (int code = 1; code <= 255; ++code) {
      if (code == kKeyF9 && shift == 7) continue;
      EXPECT_EQ(Main().UserKeyDown(&Main().txtHidden, {code, shift}), code == 112) << code;
    }
    EXPECT_EQ(seen, 112);
  }
}

TEST_F(KeyRulesTest, EveryCharacterIsSwallowed) {
  for (int character = 0; character <= 255; ++character)
    EXPECT_FALSE(Main().UserKeyPress(character)) << character;
}

TEST_F(KeyRulesTest, TheChordShowsAGreyMenuGrey) {
  Main().EnableMenuToolbarItems();
  Chord();
  EXPECT_TRUE(UtilityShown());
  EXPECT_FALSE(Main().mnuABS[7].Enabled());
}

TEST_F(KeyRulesTest, EveryTextFieldPassesTheFocusOnToTheHiddenOne) {
  int fields = 0;
  for (Control* control : Main().Controls()) {
    if (control->Kind() != ControlKind::kTextBox) continue;
    Main().UserFocus(nullptr);
    Main().UserFocus(control);
    EXPECT_EQ(Main().FocusedControl(), &Main().txtHidden) << control->Name();
    ++fields;
  }
  EXPECT_EQ(fields, 27);  // ten of the identity, six speeds, lamp, six pressures, volts, faults,
                          // the message center and the hidden one
}

}  // namespace
}  // namespace lorimet::testing_support
