// The life of a form: loading, hiding and unloading, its timers, its keys and its place.
#include "platform/forms.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "autotests/platform/forms_fixture.h"

namespace lorimet {
namespace {

using testing_support::FormsTest;
using testing_support::Log;
using testing_support::SampleForm;

TEST_F(FormsTest, LoadOnceUntilTheyAreUnloaded) {
  form.Load();
  form.Load();
  EXPECT_EQ(Take(), Log{"one load"});
  EXPECT_EQ(desktop.LoadedForms(), std::vector<Form*>{&form});
  EXPECT_TRUE(form.Unload());
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Take(), Log{"one unload"});
  EXPECT_TRUE(desktop.LoadedForms().empty());
}

TEST_F(FormsTest, LoadAtTheFirstTouchOfAControl) {
  using Touch = std::function<void(SampleForm&)>;
  const Touch touches[] = {
      [](SampleForm& f) { f.text.Text(); },      [](SampleForm& f) { f.text.SetText(""); },
      [](SampleForm& f) { f.text.MaxLength(); }, [](SampleForm& f) { f.text.SetFocus(); },
      [](SampleForm& f) { f.button.Caption(); }, [](SampleForm& f) { f.button.SetEnabled(true); },
      [](SampleForm& f) { f.button.Visible(); }, [](SampleForm& f) { f.button.ToolTipText(); },
      [](SampleForm& f) { f.grid.RowCount(); },  [](SampleForm& f) { f.grid.FocusedRow(); },
      [](SampleForm& f) { f.tabs.Selected(); },  [](SampleForm& f) { f.tabs.Tabs(); },
      [](SampleForm& f) { f.timer.Interval(); }, [](SampleForm& f) { f.SetCaption("text"); },
  };
  for (const Touch& touch : touches) {
    touch(form);
    EXPECT_TRUE(form.Loaded());
    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(Take(), Log{"one load"});
    form.Unload();
    Take();
  }
}

TEST_F(FormsTest, DoNotLoadWhenTheyAreAskedForTheirState) {
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.FindControl("button"), &form.button);
  form.Hide();
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(Take(), Log{});
}

TEST_F(FormsTest, KeepTheirStateWhenHiddenAndDiscardItWhenUnloaded) {
  const auto fill = [this] {
    form.text.SetText("kept");
    form.text.SetBackColor(kColorRed);
    form.button.SetEnabled(false);
    form.button.SetCaption("words");
    form.grid.AppendRow({"row"});
    form.tabs.SetTabs({"a", "b"});
    form.tabs.SetSelected(1);
    form.SetCaption("title");
    form.SetKeyPreview(true);
    form.SetMousePointer(MousePointer::kHourglass);
  };
  form.Show();
  fill();
  form.Hide();
  EXPECT_FALSE(form.Visible());
  form.Show();
  EXPECT_EQ(Take(), Log{"one load"});
  EXPECT_EQ(form.text.Text(), "kept");
  EXPECT_EQ(form.grid.RowCount(), 1);
  form.Unload();
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.grid.RowCount(), 0);  // loads it again
  EXPECT_EQ(form.text.Text(), "");
  EXPECT_EQ(form.text.BackColor(), kColorDefault);
  EXPECT_TRUE(form.button.Enabled());
  EXPECT_EQ(form.button.Caption(), "");
  EXPECT_TRUE(form.tabs.Tabs().empty());
  EXPECT_EQ(form.tabs.Selected(), 0);
  EXPECT_EQ(form.Caption(), "");
  EXPECT_FALSE(form.KeyPreview());
  EXPECT_EQ(form.Pointer(), MousePointer::kDefault);
}

TEST_F(FormsTest, HaveTheDesignersWordsWhenTheyAreLoaded) {
  SampleForm about(desktop, log, "frmAbout");  // shares that form's file
  about.Load();
  EXPECT_EQ(about.Caption(), "About Lorimet");
  EXPECT_EQ(about.DesignCaption(), "About Lorimet");
  about.SetCaption("other");
  about.Unload();
  about.Load();
  EXPECT_EQ(about.Caption(), "About Lorimet");
}

TEST_F(FormsTest, MayRefuseToUnload) {
  std::vector<UnloadMode> modes;
  form.refuses = [&](UnloadMode mode) {
    modes.push_back(mode);
    return mode == UnloadMode::kControlMenu;
  };
  form.Show();
  form.text.SetText("kept");
  form.UserClose();
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(form.text.Text(), "kept");
  EXPECT_TRUE(form.Unload());
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(modes, (std::vector{UnloadMode::kControlMenu, UnloadMode::kCode}));
  EXPECT_EQ(Take(), (Log{"one load", "one unload"}));
  EXPECT_EQ(static_cast<int>(UnloadMode::kControlMenu), 0);
  EXPECT_EQ(static_cast<int>(UnloadMode::kCode), 1);
}

TEST_F(FormsTest, CanStillBeReadWhileTheyUnload) {
  std::string seen;
  form.at_unload = [&] {
    seen = form.text.Text();
    form.Unload();  // no second time
  };
  form.text.SetText("last");
  form.Unload();
  EXPECT_EQ(seen, "last");
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(Take(), (Log{"one load", "one unload"}));
}

TEST_F(FormsTest, MayUnloadWithinTheirOwnHandlers) {
  form.Show();
  form.button.on_click = [this] {
    form.Unload();
    log.push_back("after");
  };
  form.button.UserClick();
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(Take(), (Log{"one load", "one unload", "after"}));
  form.at_load = [this] { form.Unload(); };
  form.Show(Modality::kModal);  // is gone before it could be shown
  EXPECT_FALSE(form.Visible());
  EXPECT_FALSE(form.Loaded());
}

TEST_F(FormsTest, TickTheirTimersWhileTheyAreEnabledAndHaveAnInterval) {
  int ticks = 0;
  form.timer.on_tick = [&] { ++ticks; };
  const auto ticks_in = [&](std::uint32_t milliseconds) {
    ticks = 0;
    desktop.Run(milliseconds);
    return ticks;
  };
  form.Load();
  EXPECT_EQ(ticks_in(10'000), 0);  // no interval
  form.timer.SetInterval(300);
  EXPECT_EQ(ticks_in(299), 0);
  EXPECT_EQ(ticks_in(1), 1);
  EXPECT_EQ(ticks_in(900), 3);
  form.timer.SetEnabled(false);
  EXPECT_EQ(ticks_in(10'000), 0);
  form.timer.SetEnabled(true);
  EXPECT_EQ(ticks_in(300), 1);
  desktop.Run(299);
  form.timer.SetInterval(1000);  // starts anew
  EXPECT_EQ(ticks_in(999), 0);
  EXPECT_EQ(ticks_in(1), 1);
  form.timer.SetInterval(0);
  EXPECT_EQ(ticks_in(10'000), 0);
  form.timer.SetInterval(100);
  form.Hide();
  EXPECT_EQ(ticks_in(1000), 10);  // a hidden form's timer goes on
  form.Unload();
  EXPECT_EQ(ticks_in(1000), 0);
  EXPECT_FALSE(form.Loaded());
}

TEST_F(FormsTest, MayStopTheirTimerWithinItsTick) {
  int ticks = 0;
  form.timer.SetInterval(100);
  form.timer.on_tick = [&] {
    if (++ticks == 3) form.timer.SetEnabled(false);
  };
  desktop.Run(1000);
  EXPECT_EQ(ticks, 3);
}

TEST_F(FormsTest, SeeKeysFirstWithKeyPreview) {
  form.Load();
  form.at_key = [this](KeyEvent& key) {
    log.push_back("form");
    if (key.code == kKeyF9) key.code = 0;
  };
  form.at_press = [](int& character) {
    if (character == 13) character = 0;
  };
  form.text.on_key_down = [this](KeyEvent& key) {
    log.push_back("text " + std::to_string(key.code));
  };
  Take();
  EXPECT_TRUE(form.UserKeyDown(&form.text, {kKeyF9, 0}));
  EXPECT_TRUE(form.UserKeyPress(13));
  EXPECT_EQ(Take(), Log{"text 120"});
  form.SetKeyPreview(true);
  EXPECT_FALSE(form.UserKeyDown(&form.text, {kKeyF9, 0}));
  EXPECT_TRUE(form.UserKeyDown(&form.text, {kKeyF1, 0}));
  EXPECT_TRUE(form.UserKeyDown(nullptr, {kKeyF1, 0}));
  EXPECT_EQ(Take(), (Log{"form", "form", "text 112", "form"}));
  EXPECT_FALSE(form.UserKeyPress(13));
  EXPECT_TRUE(form.UserKeyPress(65));
}

TEST_F(FormsTest, FindTheirControlsByName) {
  EXPECT_EQ(form.FindControl("grid"), &form.grid);
  EXPECT_EQ(form.FindControl("Grid"), nullptr);
  EXPECT_EQ(form.FindControl(""), nullptr);
}

TEST_F(FormsTest, CentreOnTheScreenInWholeTwips) {
  struct Row {
    int width, height, left, top;
  };
  // The screen has 15360 by 11520 twips.
  constexpr Row kRows[] = {{1000, 1000, 7180, 5260},
                           {1001, 1001, 7179, 5259},
                           {15360, 11520, 0, 0},
                           {15361, 11521, 0, 0},
                           {15363, 11523, -1, -1}};
  form.Load();
  for (const Row& row : kRows) {
    form.ViewResized(row.width, row.height);
    form.CenterOnScreen();
    EXPECT_EQ(form.Left(), row.left);
    EXPECT_EQ(form.Top(), row.top);
  }
}

TEST_F(FormsTest, TellOfTheirNewSizeWhileTheyAreVisible) {
  int resizes = 0;
  form.at_resize = [&] { ++resizes; };
  form.Load();
  form.UserResize();
  EXPECT_EQ(resizes, 0);
  form.Show();
  form.UserResize();
  EXPECT_EQ(resizes, 1);
}

}  // namespace
}  // namespace lorimet
