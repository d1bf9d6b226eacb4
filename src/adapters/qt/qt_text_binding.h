// Text boxes: one line or many.
#pragma once

#include <memory>

#include "adapters/qt/qt_binding.h"

namespace lorimet {

// Null when the widget is no text field.
std::unique_ptr<Binding> BindTextBox(TextBox& box, QWidget* widget, const BindingSite& site);

}  // namespace lorimet
