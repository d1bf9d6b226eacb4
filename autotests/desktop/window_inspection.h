// What is wrong with a window, as its user would complain of it.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QTableWidget;
class QWidget;

namespace lorimet {

class Inspection {
 public:
  explicit Inspection(QWidget& window);

  // Words of another language: gives what a text of the program is called in the one that is
  // spoken.
  std::function<QString(const QString& text)> translate;
  // Takes the keyboard from control to control, to see whether each shows it.
  bool walks_focus = false;

  // Clipped words and titles, letters given twice, controls without a name or of one name, what
  // covers what, what is beyond an edge, the order of the tabulator, buttons of a row.
  QStringList Run();

 private:
  void Complain(const QString& complaint) { complaints_ << complaint; }
  void ClippedWords();
  void CrampedCells(const QTableWidget& table);
  void ClippedTitle();
  void Doubles(const QStringList& captions, const QString& where);
  void Access();
  void Names();
  void Overlaps();
  void Place();
  void TabOrder();
  void ButtonRows();
  void Language();
  void Focus();

  QWidget& window_;
  QList<QWidget*> widgets_;  // of the window that are visible
  QStringList complaints_;
};

}  // namespace lorimet
