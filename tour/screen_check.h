// What is wrong with a screen that the tour takes a picture of.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace lorimet {

// What a screen may show that would else be wrong.
enum class Content {
  kGood,
  kPerhapsNone,  // fields or a list with nothing in them
  kError,        // a message of an error
};

// What a person who sees this screen would call an error, in words; empty when there is nothing: a
// box or an error screen in front that nobody asked for, a field that shows a message of an error,
// a help page or a picture that was not found, fields or a list with nothing in them. Messages of
// errors begin with one of `error_words`.
QString WrongWith(const QWidget& screen, Content content, const QStringList& error_words);

}  // namespace lorimet
