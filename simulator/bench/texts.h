// The bench's texts in the language of the person who sits at it.
#pragma once

#include <QString>
#include <QTranslator>
#include <functional>
#include <string>
#include <vector>

#include "simulator/bench/model/advice.h"

namespace lorimet::bench {

class Texts {
 public:
  Texts() = default;
  Texts(const Texts&) = delete;
  Texts& operator=(const Texts&) = delete;

  // The text of an English key; the key where there is none.
  QString Translate(const char* key) const;
  QString Translate(const std::string& key) const { return Translate(key.c_str()); }
  QString Translate(const Sentence& sentence) const;
  // "en", "fr" or "es"; another one means English. Puts all bound texts anew.
  void SetLanguage(const QString& language);
  QString Language() const { return language_; }
  // put: runs at once and at each change of language.
  void Bind(std::function<void()> put);

 private:
  QString language_ = QStringLiteral("en");
  QTranslator own_;
  QTranslator toolkit_;  // the words of its own menus
  std::vector<std::function<void()>> bound_;
};

}  // namespace lorimet::bench
