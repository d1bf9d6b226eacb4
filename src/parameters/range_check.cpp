#include "parameters/range_check.h"

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/numbers.h"

namespace lorimet {

void ShowPlainMessage(const Form& form, const Dictionary& dictionary, const char* text,
                      const char* title) {
  ShowPlainBox(form.GetDesktop(), dictionary.Translate(text), dictionary.Translate(title));
}

void RangeChecks::WatchFocus(TextBox& field) {
  field.on_got_focus = [&field] { field.SelectAll(); };
}

void RangeChecks::Watch(TextBox& field, Rule rule) {
  WatchFocus(field);
  field.on_lost_focus = [this, check = Check{&field, rule}] { LostFocus(check); };
  field.on_key_down = [this](KeyEvent&) { refused_ = nullptr; };
  checks_.push_back({&field, std::move(rule)});
}

void RangeChecks::Watch(TextBox& field, double low, double high, const char* complaint) {
  Watch(field, [low, high, complaint](double value) {
    return value < low || value > high ? complaint : nullptr;
  });
}

void RangeChecks::LostFocus(const Check& check) {
  refused_ = nullptr;
  if (Validate(check) || !form_.Loaded()) return;
  refused_ = check.field;
  refused_text_ = check.field->Text();
  check.field->SetFocus();
}

bool RangeChecks::Validate(const Check& check) {
  const char* const complaint = check.rule(NumericValue(check.field->Text()));
  if (complaint == nullptr) return true;
  ShowPlainMessage(form_, dictionary_, complaint, "Range Limit Exceeded");
  return false;
}

bool RangeChecks::Accept() {
  const TextBox* const refused = std::exchange(refused_, nullptr);
  for (const Check& check : checks_) {
    if (check.field != form_.FocusedControl()) continue;
    const bool told = refused == check.field && refused_text_ == check.field->Text();
    const bool fails = check.rule(NumericValue(check.field->Text())) != nullptr;
    return fails && told ? false : Validate(check);
  }
  return true;
}

}  // namespace lorimet
