// What is wrong with a screen that the tour takes a picture of.
#pragma once

#include <QString>

class QWidget;

namespace lorimet {

// What a person who sees this screen would call an error, in words; empty when there is nothing: a
// box or an error screen in front that nobody asked for, a help page or a picture that was not
// found, fields or a list with nothing in them (`may_be_empty` lets these pass).
QString WrongWith(const QWidget& screen, bool may_be_empty);

}  // namespace lorimet
