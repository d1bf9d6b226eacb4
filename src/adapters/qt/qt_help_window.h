// The window of the help viewer.
#pragma once

#include <QMainWindow>

#include <functional>
#include <string>

#include "adapters/qt/qt_help_pages.h"

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;

namespace lorimet {

class HelpWindow : public QMainWindow {
 public:
  using Translator = std::function<std::string(const std::string&)>;

  explicit HelpWindow(Translator translate);

  // Shows the pages of the first folder that has some.
  void Open(const QStringList& folders);
  void ShowContents();
  // Shows one page, a file of the folder; the contents where there is no such page.
  void ShowPage(const QString& page);
  // Shows the search with these words in it.
  void ShowSearch(const QString& words);

 private:
  QString Words(const char* text) const;
  void BuildTools();
  void BuildSides();
  void SetWords();
  void FillContents();
  void ShowMissing(const QStringList& folders);
  void Search();
  void Choose(QListWidgetItem* item);

  Translator translate_;
  HelpPages pages_;
  bool has_pages_ = false;
  QTextBrowser* page_;
  QTabWidget* sides_;
  QTreeWidget* contents_;
  QLineEdit* words_;
  QListWidget* results_;
  QLabel* found_;
  QAction* back_;
  QAction* forward_;
  QAction* home_;
};

}  // namespace lorimet
