// What every desktop does alike, written once and run on each: events, timers, focus, modal
// screens, errors in nested events, hidden and unloaded forms.
//
// A stage has a member `desktop` and the functions
//   void Post(std::function<void()> event)   an event from outside, when events run
//   bool Until(std::function<bool()> done)   lets events run; false when that never comes
//   void Sleep(std::uint32_t milliseconds)   the program's blocking wait
// and its windows exist for forms named frmFirst and frmSecond.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

namespace lorimet::testing_support {

class ContractForm : public Form {
 public:
  using Form::Form;

  TextBox txtOne{*this, "txtOne"};
  TextBox txtTwo{*this, "txtTwo"};
  Button cmdGo{*this, "cmdGo"};
  Timer tmrTick{*this, "tmrTick"};

  std::function<void()> at_load;

 protected:
  void OnLoad() override {
    if (at_load) at_load();
  }
};

template <typename Stage>
class DesktopContract : public testing::Test {
 protected:
  using Log = std::vector<std::string>;

  void TakeErrors() {
    stage.desktop.on_unhandled_error = [this](const RuntimeError& error) {
      told.push_back(error.Number());
    };
  }
  // A click whose handler is `action`.
  void Click(std::function<void()> action) {
    form.cmdGo.on_click = std::move(action);
    form.cmdGo.UserClick();
  }
  // Lets pending events run, so many times.
  void DoEvents(int times) {
    for (int i = 0; i < times; ++i) stage.desktop.DoEvents();
  }
  [[noreturn]] static void Fail() { throw RuntimeError(ErrorNumber::kOverflow); }

  Stage stage;
  ContractForm form{stage.desktop, "frmFirst"};
  ContractForm other{stage.desktop, "frmSecond"};
  Log log;
  std::vector<int> told;
};

TYPED_TEST_SUITE_P(DesktopContract);

TYPED_TEST_P(DesktopContract, EventThatCodeRaisesIsPartOfTheOneThatRaisedIt) {
  this->TakeErrors();
  this->form.Show();
  this->form.txtOne.on_change = [this] { this->log.push_back(this->form.txtOne.Text()); };
  this->Click([this] {
    this->form.txtOne.SetText("a");
    this->log.push_back("behind");
  });
  EXPECT_EQ(this->log, (std::vector<std::string>{"a", "behind"}));
}

TYPED_TEST_P(DesktopContract, ErrorOfAnEventThatCodeRaisesCanBeTrappedThere) {
  this->TakeErrors();
  this->form.Show();
  this->form.txtOne.on_change = [] { TestFixture::Fail(); };
  this->Click([this] {
    try {
      this->form.txtOne.SetText("a");
      this->log.push_back("behind");
    } catch (const RuntimeError& error) {
      this->log.push_back("trapped " + std::to_string(error.Number()));
    }
  });
  EXPECT_EQ(this->log, (std::vector<std::string>{"trapped 6"}));
  EXPECT_TRUE(this->told.empty());
  EXPECT_FALSE(this->stage.desktop.life.Failed());
}

TYPED_TEST_P(DesktopContract, ErrorThatNobodyTrapsReachesTheTopAndNobodyGoesOn) {
  this->TakeErrors();
  this->form.Show();
  this->form.txtOne.on_change = [] { TestFixture::Fail(); };
  this->Click([this] {
    this->form.txtOne.SetText("a");
    this->log.push_back("behind");
  });
  EXPECT_TRUE(this->log.empty());
  EXPECT_EQ(this->told, std::vector<int>{6});
  EXPECT_TRUE(this->stage.desktop.life.Failed());
}

TYPED_TEST_P(DesktopContract, ErrorOfAFocusEventThatCodeRaisesPassesThroughThatCode) {
  this->TakeErrors();
  this->form.Show();
  this->form.txtTwo.SetFocus();
  this->form.txtOne.on_got_focus = [] { TestFixture::Fail(); };
  this->Click([this] {
    this->form.txtOne.SetFocus();
    this->log.push_back("behind");
  });
  EXPECT_TRUE(this->log.empty());
  EXPECT_EQ(this->told, std::vector<int>{6});
}

TYPED_TEST_P(DesktopContract, ErrorWithinDoEventsIsToldOnceAndNothingBelowTrapsItOrGoesOn) {
  this->TakeErrors();
  this->form.Show();
  this->stage.Post([] { TestFixture::Fail(); });
  this->Click([this] {
    try {
      this->DoEvents(100);
      this->log.push_back("behind");
    } catch (const RuntimeError&) {
      this->log.push_back("trapped");
    }
  });
  EXPECT_TRUE(this->log.empty());
  EXPECT_EQ(this->told, std::vector<int>{6});
}

TYPED_TEST_P(DesktopContract, ErrorOverAModalScreenEndsTheScreensWait) {
  this->TakeErrors();
  this->form.Show();
  this->other.at_load = [this] { this->stage.Post([] { TestFixture::Fail(); }); };
  this->Click([this] {
    try {
      this->other.Show(Modality::kModal, &this->form);
      this->log.push_back("behind");
    } catch (const RuntimeError&) {
      this->log.push_back("trapped");
    }
  });
  EXPECT_TRUE(this->log.empty());
  EXPECT_EQ(this->told, std::vector<int>{6});
}

TYPED_TEST_P(DesktopContract, FailedProgramDropsEventsAndTicks) {
  this->TakeErrors();
  this->form.Show();
  this->form.tmrTick.on_tick = [this] { this->log.push_back("tick"); };
  this->form.tmrTick.SetInterval(60'000);
  this->Click([this] {
    this->stage.desktop.PostTick(this->form.tmrTick);
    TestFixture::Fail();
  });
  this->stage.desktop.PostTick(this->form.tmrTick);
  this->Click([this] { this->log.push_back("click"); });
  this->DoEvents(20);
  EXPECT_TRUE(this->log.empty());
  EXPECT_EQ(this->told, std::vector<int>{6});
}

TYPED_TEST_P(DesktopContract, TheTopCanStillAskTheUser) {
  this->form.Show();
  this->stage.desktop.on_unhandled_error = [this](const RuntimeError&) {
    this->DoEvents(3);
    this->log.push_back("told");
  };
  this->stage.Post([] { TestFixture::Fail(); });
  this->Click([this] { this->DoEvents(100); });
  EXPECT_EQ(this->log, (std::vector<std::string>{"told"}));
}

TYPED_TEST_P(DesktopContract, TimerTicksWhileItsOwnHandlerRunsAModalScreenInsideDoEvents) {
  int ticks = 0;
  int ticks_at_show = 0;
  bool back = false;
  this->form.Show();
  this->form.tmrTick.on_tick = [&] {
    if (++ticks == 4) this->other.Hide();
    if (ticks != 1) return;
    this->stage.Post([&] {
      ticks_at_show = ticks;
      this->other.Show(Modality::kModal, &this->form);
      back = true;
    });
    while (!back) this->stage.desktop.DoEvents();
  };
  this->form.tmrTick.SetInterval(5);
  EXPECT_TRUE(this->stage.Until([&] { return back; }));
  EXPECT_EQ(ticks_at_show, 1);
  EXPECT_GE(ticks, 4);
}

TYPED_TEST_P(DesktopContract, TimerDoesNotTickWithinADoEventsOfItsOwnHandler) {
  int depth = 0;
  int deepest = 0;
  int ticks = 0;
  this->form.Show();
  this->form.tmrTick.SetInterval(60'000);
  this->form.tmrTick.on_tick = [&] {
    deepest = std::max(deepest, ++depth);
    if (++ticks < 4) this->stage.desktop.PostTick(this->form.tmrTick);
    this->DoEvents(3);
    --depth;
  };
  this->stage.desktop.PostTick(this->form.tmrTick);
  // What was posted meanwhile comes behind it.
  EXPECT_TRUE(this->stage.Until([&] { return ticks == 4; }));
  EXPECT_EQ(deepest, 1);
}

TYPED_TEST_P(DesktopContract, OneTickIsPendingAtTheMost) {
  int ticks = 0;
  this->form.Show();
  this->form.tmrTick.SetInterval(60'000);
  this->form.tmrTick.on_tick = [&] { ++ticks; };
  this->Click([this] {
    for (int i = 0; i < 3; ++i) this->stage.desktop.PostTick(this->form.tmrTick);
  });
  EXPECT_EQ(ticks, 0);
  this->DoEvents(20);
  EXPECT_EQ(ticks, 1);
}

TYPED_TEST_P(DesktopContract, TickOfAStoppedTimerOrAnUnloadedFormIsGone) {
  int ticks = 0;
  this->form.tmrTick.on_tick = [&] { ++ticks; };
  const std::function<void()> stops[] = {
      [this] { this->form.tmrTick.SetEnabled(false); },
      [this] { this->form.tmrTick.SetInterval(0); },
      [this] { this->form.Unload(); },
  };
  for (const auto& stop : stops) {
    this->form.Show();
    this->form.tmrTick.SetEnabled(true);
    this->form.tmrTick.SetInterval(60'000);
    this->Click([&] {
      this->stage.desktop.PostTick(this->form.tmrTick);
      stop();
    });
    this->DoEvents(10);
    EXPECT_EQ(ticks, 0);
  }
  EXPECT_FALSE(this->form.Loaded());
}

TYPED_TEST_P(DesktopContract, TimersDoNotTickDuringABlockingWaitAndOnceBehindIt) {
  int ticks = 0;
  this->form.Show();
  this->form.tmrTick.on_tick = [&] {
    ++ticks;
    this->form.tmrTick.SetEnabled(false);
  };
  this->Click([&] {
    this->form.tmrTick.SetInterval(20);
    this->stage.desktop.Repaint();
    this->stage.Sleep(150);
    EXPECT_EQ(ticks, 0);
  });
  EXPECT_TRUE(this->stage.Until([&] { return ticks == 1; }));
}

TYPED_TEST_P(DesktopContract, FocusRaisesLostThenGot) {
  this->form.Show();
  this->form.txtOne.SetFocus();
  this->form.txtOne.on_lost_focus = [this] { this->log.push_back("-one"); };
  this->form.txtTwo.on_got_focus = [this] { this->log.push_back("+two"); };
  this->form.txtTwo.SetFocus();
  EXPECT_EQ(this->log, (std::vector<std::string>{"-one", "+two"}));
  EXPECT_EQ(this->form.FocusedControl(), &this->form.txtTwo);
}

TYPED_TEST_P(DesktopContract, RefusalAsksNoOtherField) {
  this->form.Show();
  for (TextBox* box : {&this->form.txtOne, &this->form.txtTwo})
    box->on_lost_focus = [this, box] {
      this->log.push_back("-" + box->Name());
      box->SetFocus();
    };
  this->form.txtOne.SetFocus();
  this->log.clear();
  this->form.txtTwo.SetFocus();
  this->DoEvents(5);
  EXPECT_EQ(this->log, (std::vector<std::string>{"-txtOne"}));
  EXPECT_EQ(this->form.FocusedControl(), &this->form.txtOne);
  // And it is asked anew at the next try.
  this->form.txtTwo.SetFocus();
  EXPECT_EQ(this->log, (std::vector<std::string>{"-txtOne", "-txtOne"}));
}

TYPED_TEST_P(DesktopContract,
             FieldIsNotAskedBeforeTheFocusGoesOnFromAControlThatCausesNoValidation) {
  this->form.Show();
  this->form.txtOne.on_lost_focus = [this] { this->log.push_back("-one"); };
  this->form.txtOne.on_got_focus = [this] { this->log.push_back("+one"); };
  this->form.cmdGo.causes_validation = false;
  this->form.txtOne.SetFocus();
  this->form.cmdGo.SetFocus();
  EXPECT_EQ(this->log, (std::vector<std::string>{"+one"}));
  EXPECT_EQ(this->form.FocusedControl(), &this->form.cmdGo);
  this->form.txtOne.SetFocus();
  this->form.cmdGo.SetFocus();
  this->form.txtTwo.SetFocus();
  EXPECT_EQ(this->log, (std::vector<std::string>{"+one", "+one", "-one"}));
}

TYPED_TEST_P(DesktopContract, ModalShowReturnsWhenTheScreenIsHiddenOrUnloaded) {
  this->form.Show();
  for (const bool unload : {false, true}) {
    this->stage.Post([this, unload] { unload ? (void)this->other.Unload() : this->other.Hide(); });
    this->other.Show(Modality::kModal, &this->form);
    EXPECT_FALSE(this->other.Visible());
    EXPECT_EQ(this->other.Loaded(), !unload);
  }
}

TYPED_TEST_P(DesktopContract, ScreenThatFollowsIsShownWithinTheSameShow) {
  this->form.Show();
  this->stage.Post([this] {
    this->form.Hide();
    this->form.ContinueWith(this->other);
    this->stage.Post([this] { this->other.Hide(); });
  });
  this->form.Show(Modality::kModal);
  EXPECT_FALSE(this->other.Visible());
  EXPECT_TRUE(this->other.Loaded());
}

TYPED_TEST_P(DesktopContract, HiddenFormKeepsItsControlsAndItsTimer) {
  int ticks = 0;
  this->form.Show();
  this->form.txtOne.SetText("kept");
  this->form.tmrTick.on_tick = [&] { ++ticks; };
  this->form.tmrTick.SetInterval(5);
  this->form.Hide();
  EXPECT_TRUE(this->stage.Until([&] { return ticks >= 2; }));
  EXPECT_EQ(this->form.txtOne.Text(), "kept");
  EXPECT_TRUE(this->form.Loaded());
}

TYPED_TEST_P(DesktopContract, UnloadedFormForgetsAndTheFirstTouchLoadsIt) {
  int loads = 0;
  this->form.at_load = [&] { ++loads; };
  this->form.txtOne.SetText("gone");
  this->form.txtTwo.SetTabStop(false);
  EXPECT_EQ(loads, 1);
  this->form.Unload();
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(this->form.txtOne.Text(), "");
  EXPECT_TRUE(this->form.txtTwo.TabStop());
  EXPECT_EQ(loads, 2);
}

REGISTER_TYPED_TEST_SUITE_P(
    DesktopContract, EventThatCodeRaisesIsPartOfTheOneThatRaisedIt,
    ErrorOfAnEventThatCodeRaisesCanBeTrappedThere, ErrorThatNobodyTrapsReachesTheTopAndNobodyGoesOn,
    ErrorOfAFocusEventThatCodeRaisesPassesThroughThatCode,
    ErrorWithinDoEventsIsToldOnceAndNothingBelowTrapsItOrGoesOn,
    ErrorOverAModalScreenEndsTheScreensWait, FailedProgramDropsEventsAndTicks,
    TheTopCanStillAskTheUser, TimerTicksWhileItsOwnHandlerRunsAModalScreenInsideDoEvents,
    TimerDoesNotTickWithinADoEventsOfItsOwnHandler, OneTickIsPendingAtTheMost,
    TickOfAStoppedTimerOrAnUnloadedFormIsGone, TimersDoNotTickDuringABlockingWaitAndOnceBehindIt,
    FocusRaisesLostThenGot, RefusalAsksNoOtherField,
    FieldIsNotAskedBeforeTheFocusGoesOnFromAControlThatCausesNoValidation,
    ModalShowReturnsWhenTheScreenIsHiddenOrUnloaded, ScreenThatFollowsIsShownWithinTheSameShow,
    HiddenFormKeepsItsControlsAndItsTimer, UnloadedFormForgetsAndTheFirstTouchLoadsIt);

}  // namespace lorimet::testing_support
