// Background colours of controls as style sheets of their widgets.
#pragma once

#include <QString>

#include "platform/controls.h"

namespace lorimet {

// The rule that gives the widget `object_name` this background and a text colour that can be read
// on it; empty for the colour that the look gives.
QString BackColorRule(Color color, const QString& object_name);

}  // namespace lorimet
