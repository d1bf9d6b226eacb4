// Forms that stand modally, alone, over each other and one after the other.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "autotests/platform/forms_fixture.h"
#include "platform/forms.h"

namespace lorimet {
namespace {

using testing_support::Log;
using testing_support::SampleForm;
using ModalFormsTest = testing_support::FormsTest;

TEST_F(ModalFormsTest, ReturnFromAModalShowWhenTheyAreHiddenOrUnloaded) {
  desktop.OnModal("one", [this](Form& shown) {
    EXPECT_TRUE(shown.Visible());
    log.push_back("shown");
    form.Hide();
    log.push_back("hidden");
  });
  form.Show(Modality::kModal);
  EXPECT_TRUE(form.Loaded());
  EXPECT_EQ(Take(), (Log{"one load", "shown", "hidden"}));
  desktop.OnModal("one", [](Form& shown) { shown.UserClose(); });
  form.Show(Modality::kModal);
  EXPECT_FALSE(form.Loaded());
  EXPECT_EQ(Take(), Log{"one unload"});
}

TEST_F(ModalFormsTest, StandModallyUntilATimerEndsThem) {
  form.at_load = [this] { form.timer.SetInterval(250); };
  form.timer.on_tick = [this] { form.Hide(); };
  form.Show(Modality::kModal);
  EXPECT_EQ(clock.Milliseconds(), 250u);
}

TEST_F(ModalFormsTest, ReturnAtOnceFromAModelessShow) {
  form.Show();
  EXPECT_TRUE(form.Visible());
  EXPECT_TRUE(desktop.ModalForms().empty());
}

TEST_F(ModalFormsTest, WalkBackAndForthInOneShow) {
  constexpr int kSteps = 1000;
  int steps = 0;
  std::vector<std::uintptr_t> places;  // of the handler's stack frame
  const auto step = [&](SampleForm& from, SampleForm& to) {
    places.push_back(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)));
    from.Unload();
    if (++steps < kSteps) from.ContinueWith(to);
  };
  for (int i = 0; i < kSteps; i += 2) {
    desktop.OnModal("one", [&](Form&) { step(form, other); });
    desktop.OnModal("two", [&](Form&) { step(other, form); });
  }
  form.Show(Modality::kModal);
  EXPECT_EQ(steps, kSteps);
  EXPECT_EQ(desktop.DeepestModal(), 1);
  EXPECT_EQ(desktop.ModalForms().size(), std::size_t{kSteps});
  EXPECT_FALSE(form.Loaded());
  EXPECT_FALSE(other.Loaded());
  // The very same stack frames again and again.
  const auto [lowest, highest] = std::minmax_element(places.begin(), places.end());
  EXPECT_LT(*highest - *lowest, 4096u);
}

TEST_F(ModalFormsTest, ContinueAlsoWhenTheLeftFormIsTouchedAgain) {
  desktop.OnModal("one", [this](Form&) {
    form.Unload();
    form.ContinueWith(other);
    form.text.SetText("for the next time");  // loads it
  });
  desktop.OnModal("two", [this](Form&) { other.Hide(); });
  form.Show(Modality::kModal);
  EXPECT_EQ(desktop.ModalForms(), (std::vector<std::string>{"one", "two"}));
  // And only that once.
  desktop.OnModal("one", [this](Form&) { form.Hide(); });
  form.Show(Modality::kModal);
  EXPECT_EQ(desktop.ModalForms(), (std::vector<std::string>{"one", "two", "one"}));
}

TEST_F(ModalFormsTest, ForgetANextFormThatWasNamedWhileTheyStoodModelessly) {
  form.Show();
  form.ContinueWith(other);
  form.Hide();
  desktop.OnModal("one", [this](Form&) { form.Hide(); });
  form.Show(Modality::kModal);
  EXPECT_EQ(desktop.ModalForms(), std::vector<std::string>{"one"});
}

TEST_F(ModalFormsTest, StandModallyOverEachOther) {
  desktop.OnModal("two", [this](Form&) { other.Hide(); });
  desktop.OnModal("one", [this](Form&) {
    other.Show(Modality::kModal, &form);
    EXPECT_TRUE(form.Visible());
    form.Hide();
  });
  form.Show(Modality::kModal);
  EXPECT_EQ(desktop.DeepestModal(), 2);
}

}  // namespace
}  // namespace lorimet
