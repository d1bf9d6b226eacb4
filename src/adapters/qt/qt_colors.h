// Colours of controls for the toolkit, and words that can be read on them.
#pragma once

#include <QColor>
#include <QString>

#include "platform/controls.h"

namespace lorimet {

QColor ToQColor(Color color);
// From 1, the same, to 21, black and white: how well one can be read on the other.
double Contrast(const QColor& one, const QColor& other);
// Black or white, whichever stands out more.
QColor TextColorOn(const QColor& background);

// The rule that gives the widget `object_name` this background and a text colour that can be read
// on it; empty for the colour that the look gives.
QString BackColorRule(Color color, const QString& object_name);

}  // namespace lorimet
