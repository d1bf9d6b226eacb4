// The tool's display, read from the program's forms by the names of their controls.
#pragma once

#include <string>
#include <string_view>

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "simulator/operator/screen.h"

namespace lorimet::simulator {

// For an operator beside the program on any desktop. What a message box looks like is the desktop's
// own business, so the class for it says what stands there and answers it.
class FormScreen : public Screen {
 public:
  // The desktop outlives the screen.
  explicit FormScreen(Desktop& desktop) : desktop_(desktop) {}

  std::string Name() const override;
  std::string Status() const override;
  int YellowTire() const override;
  bool CanPress(std::string_view button) const override;
  void Press(std::string_view button) override;

 protected:
  // The buttons of the message box on top, bits of BoxButton; 0 while no box stands, or a form over
  // it.
  virtual unsigned BoxButtons() const = 0;
  virtual void AnswerBox(BoxButton answer) = 0;
  // The user's click on a button of a form.
  virtual void Click(Button& button);
  // The form on top; null where none but the main screen is.
  Form* Top() const;

 private:
  template <typename Kind>
  Kind* Find(std::string_view name, ControlKind kind) const;
  Button* Pressable(std::string_view name) const;

  Desktop& desktop_;
};

}  // namespace lorimet::simulator
