// The report of a run-time error that ends the program.
#pragma once

#include "platform/desktop.h"
#include "platform/runtime_error.h"

namespace lorimet {

// Shows the number and the description in a plain box; nothing for kObjectError, whose words the
// user has read already.
void ShowErrorReport(Desktop& desktop, const RuntimeError& error);

// Runs a module procedure. A run-time error in it ends the program: it is shown and then raised on
// as kObjectError.
template <typename Procedure>
auto WithErrorReport(Desktop& desktop, const Procedure& procedure) {
  try {
    return procedure();
  } catch (const RuntimeError& error) {
    desktop.life.Fail();
    ShowErrorReport(desktop, error);
    throw RuntimeError(kObjectError, "");
  }
}

// What the user sees of a run-time error that no procedure handles.
MessageBox UnhandledErrorBox(const RuntimeError& error);

}  // namespace lorimet
