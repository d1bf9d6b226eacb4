#include "tour/screen_check.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFragment>
#include <QWidget>
#include <algorithm>

namespace lorimet {
namespace {

QString InFront(const QWidget& screen) {
  for (const QWidget* window : QApplication::topLevelWidgets())
    for (const char* alarm : {"frmErr", "frmRP1210Err", "msgBox"})
      if (window != &screen && window->isVisible() && window->objectName() == QLatin1String(alarm))
        return QStringLiteral("%1 is in front of it").arg(window->objectName());
  return {};
}

// The first line of what a field says.
QString ErrorIn(const QWidget& screen, const QStringList& error_words) {
  for (const QWidget* widget : screen.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    for (const char* property : {"text", "plainText"}) {
      const QString line = widget->property(property).toString().trimmed().section('\n', 0, 0);
      for (const QString& word : error_words)
        if (line.startsWith(word)) return QStringLiteral("it says \"%1\"").arg(line);
    }
  }
  return {};
}

QString WrongWithPage(const QTextBrowser& page) {
  if (page.source().isEmpty()) return QStringLiteral("it shows no page of the help");
  const QTextDocument& document = *page.document();
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextCharFormat format = piece.fragment().charFormat();
      if (!format.isImageFormat()) continue;
      const QString picture = format.toImageFormat().name();
      if (!document.resource(QTextDocument::ImageResource, QUrl(picture)).isValid())
        return QStringLiteral("the page lacks the picture ") + picture;
    }
  return {};
}

QString Emptiness(const QWidget& screen) {
  for (const auto* list : screen.findChildren<QTableWidget*>())
    if (list->isVisible() && list->rowCount() == 0) return QStringLiteral("its list is empty");
  const auto fields = screen.findChildren<QLineEdit*>();
  const auto shown = [](const QLineEdit* field) { return field->isVisible(); };
  const auto filled = [&](const QLineEdit* field) {
    return shown(field) && !field->text().isEmpty();
  };
  if (std::any_of(fields.begin(), fields.end(), shown) &&
      std::none_of(fields.begin(), fields.end(), filled))
    return QStringLiteral("all its fields are empty");
  return {};
}

}  // namespace

QString WrongWith(const QWidget& screen, Content content, const QStringList& error_words) {
  if (const QString alarm = InFront(screen); !alarm.isEmpty()) return alarm;
  if (const QString error = ErrorIn(screen, error_words);
      content != Content::kError && !error.isEmpty())
    return error;
  for (const auto* page : screen.findChildren<QTextBrowser*>())
    if (const QString wrong = WrongWithPage(*page); !wrong.isEmpty()) return wrong;
  return content == Content::kPerhapsNone ? QString() : Emptiness(screen);
}

}  // namespace lorimet
