#include "platform/forms.h"

#include <algorithm>
#include <utility>

namespace lorimet {

Form::Form(Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {
  desktop_.forms_.push_back(this);
}

Form::~Form() {
  DropView();
  std::erase(desktop_.forms_, this);
}

void Form::Load() {
  if (loaded_ || unloading_ || !desktop_.life.Open()) return;
  for (Control* control : controls_) control->Reset();
  caption_.clear();
  pointer_ = MousePointer::kDefault;
  left_ = top_ = 0;
  minimized_ = false;
  key_preview_ = false;
  focused_ = entered_ = nullptr;
  leaving_ = false;
  loaded_ = true;
  desktop_.loaded_forms_.push_back(this);
  view_ = desktop_.CreateView(*this);
  desktop_.views_.push_back(view_.get());
  OnLoad();
}

void Form::Show(Modality modality, Form* owner) {
  Form* form = this;
  const bool modal = modality == Modality::kModal;
  while (form != nullptr) {
    if (modal && !form->loaded_) form->opens_modally_ = true;
    form->Load();
    if (modal) form->opens_modally_ = false;
    if (!form->loaded_) return;
    // Not at the load: the handler that named the next form may touch this one once more.
    form->next_ = nullptr;
    form->visible_ = true;
    form->view_->Flush();
    form->view_->Show(modal || form->opens_modally_, owner);
    if (!modal) return;
    desktop_.RunModal(*form);
    form = std::exchange(form->next_, nullptr);
  }
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (view_ != nullptr) view_->Hide();
}

bool Form::UnloadBy(UnloadMode mode) {
  if (!loaded_ || unloading_) return !loaded_;
  bool cancel = false;
  OnQueryUnload(cancel, mode);
  if (cancel) return false;
  if (!loaded_ || unloading_) return true;
  unloading_ = true;
  OnUnload();
  for (Control* control : controls_) control->ViewDropped();
  DropView();
  unloading_ = false;
  return true;
}

void Form::DropView() {
  if (!loaded_) return;
  Hide();
  std::erase(desktop_.views_, view_.get());
  view_.reset();
  loaded_ = false;
  focused_ = entered_ = nullptr;
  std::erase(desktop_.loaded_forms_, this);
}

void Form::ContinueWith(Form& next) { next_ = &next; }

const std::string& Form::Caption() const { return caption_; }

void Form::SetCaption(const std::string& caption) {
  Load();
  if (caption_ == caption) return;
  caption_ = caption;
  MarkChanged();
}

void Form::SetMousePointer(MousePointer pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  MarkChanged();
}

void Form::Move(int left, int top) {
  left_ = left;
  top_ = top;
  MarkChanged();
}

void Form::SetHeight(int twips) {
  if (height_ == twips) return;
  height_ = twips;
  MarkChanged();
}

void Form::LayOut() {
  if (view_ != nullptr) view_->LayOut();
}

void Form::CenterOnScreen() {
  Move((desktop_.ScreenWidth() - width_) / 2, (desktop_.ScreenHeight() - height_) / 2);
}

Control* Form::FindControl(const std::string& name) const {
  const auto found = std::ranges::find_if(
      controls_, [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::ImportDesign(const std::string& caption, int width, int height) {
  design_caption_ = caption;
  caption_ = caption;
  width_ = width;
  height_ = height;
}

void Form::MarkChanged() {
  changed_ = true;
  if (view_ != nullptr) view_->Changed(nullptr);
}

void Form::UserFocus(Control* control) {
  if (!loaded_ || control == focused_) return;
  focused_ = control;
  // The field that is left for this one has not been left for good.
  const bool asks = control == nullptr || control->causes_validation;
  if (asks && !leaving_ && entered_ != control) {
    Control* const previous = std::exchange(entered_, nullptr);
    if (previous != nullptr && previous->on_lost_focus) {
      leaving_ = true;
      const struct Left {
        bool& leaving;
        ~Left() { leaving = false; }
      } left{leaving_};
      previous->Raise(previous->on_lost_focus);
    }
    // The handler may have moved the focus on, or have ended the form.
    if (!loaded_ || focused_ != control) return;
  }
  if (asks) entered_ = control;
  if (control != nullptr && control->on_got_focus) control->Raise(control->on_got_focus);
}

bool Form::UserKeyDown(Control* target, KeyEvent key) {
  if (key_preview_) desktop_.RunEvent([&] { OnKeyDown(key); });
  if (key.code == 0) return false;
  const bool passed = target == nullptr || target->UserKeyDown(key);
  // A field that keeps all keys does not keep the help away.
  if (key.code == kKeyF1 && key.shift == 0 && desktop_.on_help)
    desktop_.RunEvent([this] { desktop_.on_help(*this); });
  return passed;
}

bool Form::UserKeyPress(int character) {
  if (key_preview_) desktop_.RunEvent([&] { OnKeyPress(character); });
  return character != 0;
}

void Form::ViewResized(int width, int height) {
  width_ = width;
  height_ = height;
}

void Form::ViewMoved(int left, int top) {
  left_ = left;
  top_ = top;
}

void Form::UserResize() {
  if (visible_) desktop_.RunEvent([this] { OnResize(); });
}

}  // namespace lorimet
