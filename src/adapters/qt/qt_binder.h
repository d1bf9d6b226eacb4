// Finds the widget, action, menu or timer that shows a control, and ties the two.
#pragma once

#include <memory>

#include "adapters/qt/qt_binding.h"

class QString;

namespace lorimet {

// Ties the control to what bears its name in the window. Null when nothing of the right kind does;
// `wanted` then says what was looked for.
std::unique_ptr<Binding> Bind(Control& control, const BindingSite& site, QString& wanted);

}  // namespace lorimet
