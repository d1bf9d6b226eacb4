#include "simulator/operator/form_screen.h"

#include <algorithm>
#include <array>

namespace lorimet::simulator {
namespace {

constexpr std::string_view kMainScreen = "frmZeltMain";
// Loaded long before they are shown, and over all others then.
constexpr std::array<std::string_view, 2> kErrorScreens = {"frmErr", "frmRP1210Err"};
constexpr int kTires = 6;

// 0 for a name that is no button's.
unsigned BoxButtonOf(std::string_view name) {
  if (name == "yes") return kBoxYes;
  if (name == "no") return kBoxNo;
  if (name == "ok") return kBoxOk;
  if (name == "cancel") return kBoxCancel;
  return 0;
}

}  // namespace

Form* FormScreen::Top() const {
  Form* top = nullptr;
  for (Form* form : desktop_.LoadedForms()) {
    if (!form->Visible() || form->Name() == kMainScreen) continue;
    if (std::ranges::find(kErrorScreens, form->Name()) != kErrorScreens.end()) return form;
    top = form;
  }
  return top;
}

template <typename Kind>
Kind* FormScreen::Find(std::string_view name, ControlKind kind) const {
  const Form* form = Top();
  Control* control = form == nullptr ? nullptr : form->FindControl(std::string(name));
  if (control == nullptr || control->Kind() != kind) return nullptr;
  return static_cast<Kind*>(control);
}

std::string FormScreen::Name() const {
  if (BoxButtons() != 0) return "msgBox";
  const Form* form = Top();
  return form == nullptr ? "" : form->Name();
}

std::string FormScreen::Status() const {
  const auto* status = Find<TextBox>("txtStatus", ControlKind::kTextBox);
  return status == nullptr ? "" : status->Text();
}

int FormScreen::YellowTire() const {
  for (int position = 1; position <= kTires; ++position) {
    const auto* tire = Find<TextBox>("TireTxt_" + std::to_string(position), ControlKind::kTextBox);
    if (tire != nullptr && tire->BackColor() == kColorYellow) return position;
  }
  return 0;
}

Button* FormScreen::Pressable(std::string_view name) const {
  auto* button = Find<Button>(name, ControlKind::kButton);
  return button != nullptr && button->Enabled() && button->Visible() ? button : nullptr;
}

bool FormScreen::CanPress(std::string_view button) const {
  if (const unsigned buttons = BoxButtons(); buttons != 0)
    return (buttons & BoxButtonOf(button)) != 0;
  return Pressable(button) != nullptr;
}

void FormScreen::Press(std::string_view button) {
  if (!CanPress(button)) return;
  if (BoxButtons() != 0)
    AnswerBox(static_cast<BoxButton>(BoxButtonOf(button)));
  else
    Click(*Pressable(button));
}

void FormScreen::Click(Button& button) {
  button.Owner().UserFocus(&button);
  button.UserClick();
}

}  // namespace lorimet::simulator
