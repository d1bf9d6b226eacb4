// A form: a window with controls, whose behaviour is in the handlers of its events.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace lorimet {

enum class Modality { kModeless, kModal };
enum class MousePointer { kDefault = 0, kArrow = 1, kHourglass = 11, kArrowHourglass = 13 };
// Why a form is asked to unload.
enum class UnloadMode { kControlMenu = 0, kCode = 1 };

// Geometry is in twips; a pixel at 100 % is fifteen of them.
constexpr int kTwipsPerPixel = 15;

// A form object lives for the whole run; loading it builds its window with the controls as the
// designer drew them, hiding it keeps their state, and unloading it discards them.
class Form : public ControlOwner {
 public:
  Form(Desktop& desktop, std::string name);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& Name() const { return name_; }
  Desktop& GetDesktop() const override { return desktop_; }

  // Does nothing when the form is loaded already, or once the program closes or has failed: a form
  // that came up behind the close-down would keep the process alive for ever.
  void Load() override;
  bool Loaded() const override { return loaded_; }
  bool Visible() const { return visible_; }
  // Loads the form if need be. A modal show returns when the form is hidden or unloaded, and with
  // it every form that took its place by ContinueWith. A form whose load shows it modelessly while
  // a modal show loads it blocks its owners from then on, and its load goes on at once.
  void Show(Modality modality = Modality::kModeless, Form* owner = nullptr);
  void Hide();
  // False when the form refused.
  bool Unload() { return UnloadBy(UnloadMode::kCode); }
  bool UnloadBy(UnloadMode mode);
  // For the handler of a modal form that has just hidden or unloaded itself: `next` is shown
  // modally in its place as soon as the handler ends, within the Show that opened this form. A
  // wizard that walks back and forth so never deepens the stack.
  void ContinueWith(Form& next);

  const std::string& Caption() const;
  void SetCaption(const std::string& caption);
  MousePointer Pointer() const { return pointer_; }
  void SetMousePointer(MousePointer pointer);

  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void Move(int left, int top);
  void SetHeight(int twips);
  // For a form that is being loaded and goes on to work with the places of its controls: they are
  // known behind it, with the words that the controls have by then.
  void LayOut();
  // Left and top to half of what the screen is larger, each cut to a whole twip.
  void CenterOnScreen();
  bool Minimized() const { return minimized_; }

  // Set by the form's constructor. A screen that only shows is closed by Escape, as by its close
  // box; one that would lose edits or a run that way is not.
  bool escape_closes = false;
  // The page of the help that F1 opens, a file of help/<language>/; empty is the contents.
  std::string help_page;

  bool KeyPreview() const { return key_preview_; }
  void SetKeyPreview(bool on) { key_preview_ = on; }

  const std::vector<Control*>& Controls() const { return controls_; }
  // Null when there is none of that name.
  Control* FindControl(const std::string& name) const;
  Control* FocusedControl() const { return focused_; }

  // For views.
  FormView* View() const override { return view_.get(); }
  void ImportDesign(const std::string& caption, int width, int height);
  const std::string& DesignCaption() const { return design_caption_; }
  bool TakeChanged() { return std::exchange(changed_, false); }
  void UserClose() { UnloadBy(UnloadMode::kControlMenu); }
  // The focus moved by the user's hand, by the toolkit or by SetFocus. Raises on_lost_focus of the
  // control that was left and on_got_focus of this one; but what such a handler moves itself, to
  // refuse that its field is left, asks no other field.
  void UserFocus(Control* control) override;
  // A key before it reaches `target`; false when the form or the control swallowed it.
  bool UserKeyDown(Control* target, KeyEvent key);
  bool UserKeyPress(int character);
  // The window has another size, place or state, by the user's hand or the layout's; no event.
  void ViewResized(int width, int height);
  void ViewMoved(int left, int top);
  void ViewMinimized(bool minimized) { minimized_ = minimized; }
  // Raises the resize event, for a new size or state of a visible form.
  void UserResize();

 protected:
  virtual void OnLoad() {}
  virtual void OnQueryUnload(bool& cancel, UnloadMode mode) {
    static_cast<void>(cancel);
    static_cast<void>(mode);
  }
  virtual void OnUnload() {}
  virtual void OnResize() {}
  // Seen before the controls see them, with key preview on.
  virtual void OnKeyDown(KeyEvent& key) { static_cast<void>(key); }
  virtual void OnKeyPress(int& character) { static_cast<void>(character); }

 private:
  void AddControl(Control* control) override { controls_.push_back(control); }
  void MarkChanged();
  void DropView();

  Desktop& desktop_;
  std::string name_;
  std::string caption_;
  std::string design_caption_;
  std::vector<Control*> controls_;
  std::unique_ptr<FormView> view_;
  Form* next_ = nullptr;
  Control* focused_ = nullptr;
  Control* entered_ = nullptr;  // has been told that it got the focus, and not yet that it lost it
  bool leaving_ = false;        // a handler of on_lost_focus is running
  MousePointer pointer_ = MousePointer::kDefault;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  bool loaded_ = false;
  bool unloading_ = false;
  bool opens_modally_ = false;  // a modal show is loading it
  bool visible_ = false;
  bool minimized_ = false;
  bool key_preview_ = false;
  bool changed_ = false;
};

}  // namespace lorimet
