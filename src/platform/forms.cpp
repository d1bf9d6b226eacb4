#include "platform/forms.h"

#include <algorithm>
#include <utility>

#include "platform/desktop.h"

namespace lorimet {

Form::Form(Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {}

Form::~Form() { DropView(); }

void Form::Load() {
  if (loaded_ || unloading_) return;
  for (Control* control : controls_) control->Reset();
  caption_.clear();
  pointer_ = MousePointer::kDefault;
  left_ = top_ = 0;
  minimized_ = false;
  key_preview_ = false;
  focused_ = entered_ = nullptr;
  loaded_ = true;
  desktop_.loaded_forms_.push_back(this);
  view_ = desktop_.CreateView(*this);
  OnLoad();
}

void Form::Show(Modality modality, Form* owner) {
  Form* form = this;
  while (form != nullptr) {
    form->Load();
    if (!form->loaded_) return;
    // Not at the load: the handler that named the next form may touch this one once more.
    form->next_ = nullptr;
    form->visible_ = true;
    form->view_->Flush();
    form->view_->Show(modality == Modality::kModal, owner);
    if (modality == Modality::kModeless) return;
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
  DropView();
  unloading_ = false;
  return true;
}

void Form::DropView() {
  if (!loaded_) return;
  Hide();
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
  // A control that the focus was taken from before it could enter has nothing to lose; two fields
  // that refuse to be left would else pass the focus between them without end.
  Control* const previous = std::exchange(entered_, nullptr);
  if (previous != nullptr && previous->on_lost_focus) previous->Raise(previous->on_lost_focus);
  // The handler may have moved the focus on, or have ended the form.
  if (!loaded_ || focused_ != control) return;
  entered_ = control;
  if (control != nullptr && control->on_got_focus) control->Raise(control->on_got_focus);
}

bool Form::UserKeyDown(Control* target, KeyEvent key) {
  if (key_preview_) desktop_.RunEvent([&] { OnKeyDown(key); });
  if (key.code == 0) return false;
  return target == nullptr || target->UserKeyDown(key);
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
