#include "simulator/bench/texts.h"

#include <QCoreApplication>
#include <utility>

namespace lorimet::bench {

QString Texts::Translate(const char* key) const {
  const QString text = language_ == QLatin1String("en") ? QString() : own_.translate("bench", key);
  return text.isEmpty() ? QString::fromUtf8(key) : text;
}

QString Texts::Translate(const Sentence& sentence) const {
  QString text = Translate(sentence.key);
  for (std::size_t i = 0; i < sentence.arguments.size(); ++i)
    text.replace(QLatin1Char('%') + QString::number(i + 1),
                 QString::fromStdString(sentence.arguments[i]));
  return text;
}

void Texts::SetLanguage(const QString& language) {
  QCoreApplication::removeTranslator(&toolkit_);
  language_ = QStringLiteral("en");
  if (own_.load(QStringLiteral(":/translations/bench_%1.qm").arg(language))) language_ = language;
  if (toolkit_.load(QStringLiteral(":/translations/qtbase_%1.qm").arg(language)))
    QCoreApplication::installTranslator(&toolkit_);
  for (const auto& put : bound_) put();
}

void Texts::Bind(std::function<void()> put) {
  put();
  bound_.push_back(std::move(put));
}

}  // namespace lorimet::bench
