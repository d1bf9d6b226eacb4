#include "support/dictionary.h"

#include "platform/forms.h"

namespace lorimet {
namespace {

BoxIcon IconOf(BoxKind kind) {
  switch (kind) {
    case BoxKind::kWarning:
      return BoxIcon::kWarning;
    case BoxKind::kError:
      return BoxIcon::kCritical;
    case BoxKind::kInformation:
      return BoxIcon::kInformation;
    case BoxKind::kConfirmation:
      return BoxIcon::kQuestion;
  }
  return BoxIcon::kNone;
}

// The captions that a control has; null for the kinds that have none.
CaptionedControl* Captioned(Control* control) {
  return control->Design().caption ? dynamic_cast<CaptionedControl*>(control) : nullptr;
}

}  // namespace

void Dictionary::Open() {
  if (open_) return;
  open_ = true;
  usable_ = source_.Open();
}

void Dictionary::SetLanguage(int language) {
  language_ = language;
  change_pending_ = true;
  if (open_) RaiseLanguageChanged();
}

void Dictionary::RaiseLanguageChanged() {
  if (!change_pending_) return;
  change_pending_ = false;
  for (const auto& handler : on_language_changed) handler();
}

std::string Dictionary::Translate(const std::string& text) const {
  const bool column = language_ == kFrench || language_ == kEnglish || language_ == kSpanish;
  if (!usable_ || !column || text.empty()) return text;
  std::string translated = source_.Lookup(language_, text);
  return translated.empty() ? text : translated;
}

void Dictionary::TranslateForm(Form& form) {
  RaiseLanguageChanged();
  form.SetCaption(Translate(form.DesignCaption()));
  for (Control* control : form.Controls()) {
    const ControlDesign& design = control->Design();
    if (CaptionedControl* captioned = Captioned(control))
      captioned->SetCaption(Translate(*design.caption));
    if (design.text && control->Kind() == ControlKind::kTextBox)
      static_cast<TextBox*>(control)->SetText(Translate(*design.text));
    if (design.tool_tip) control->SetToolTipText(Translate(*design.tool_tip));
  }
}

BoxButton Dictionary::ShowMessageBox(const std::string& text, const std::string& title,
                                     BoxKind kind, unsigned buttons, int help_context) {
  static_cast<void>(help_context);  // no box has help of its own
  MessageBox box;
  box.text = text;
  box.title = title;
  box.icon = IconOf(kind);
  box.buttons = buttons;
  if (buttons & kBoxYes) box.yes = Translate("Yes");
  if (buttons & kBoxNo) box.no = Translate("No");
  if (buttons & kBoxOk) box.ok = Translate("OK");
  if (buttons & kBoxCancel) box.cancel = Translate("Cancel");
  return desktop_.ShowMessageBox(box);
}

std::optional<int> Dictionary::ChooseLanguage() {
  // In their own words, so that each reader recognises theirs.
  const bool listed = language_ >= 0 && language_ < kLanguageCount;
  return desktop_.ChooseFromList(Translate("Language"),
                                 {"Native", "français", "English", "Español"},
                                 listed ? language_ : int{kNative});
}

}  // namespace lorimet
