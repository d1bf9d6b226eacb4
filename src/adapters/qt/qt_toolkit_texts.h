// The toolkit's own words (file dialog, standard buttons, menus of text fields) in the chosen
// language, from Qt's translation files.
#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>

namespace lorimet {

class QtToolkitTexts {
 public:
  // The first folder that has the file of a language gives it; by default the folder translations
  // beside the program, else Qt's own.
  explicit QtToolkitTexts(QStringList folders = DefaultFolders());

  // An index of the dictionary's languages. English where the language has no file.
  void SetLanguage(int language);

 private:
  static QStringList DefaultFolders();

  QStringList folders_;
  std::unique_ptr<QTranslator> translator_;  // uninstalls itself when it ends
};

}  // namespace lorimet
