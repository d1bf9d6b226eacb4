// What many tests do with a form's controls and with an action that may end in a run-time error.
#pragma once

#include <functional>

#include "platform/controls.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

namespace lorimet::testing_support {

// As the mouse does it: the button gets the focus before its click.
inline void Press(Button& button) {
  button.Owner().UserFocus(&button);
  button.UserClick();
}

// The number of the run-time error that the action raises; 0 for none.
inline int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace lorimet::testing_support
