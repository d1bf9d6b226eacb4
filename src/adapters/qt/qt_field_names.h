// Names by which a screen reader calls the fields that bear no words of their own: the label that
// stands beside a field, or the title of the frame around it.
#pragma once

#include <QPointer>
#include <QString>

#include <vector>

class QGroupBox;
class QLabel;
class QLayout;
class QWidget;

namespace lorimet {

class FieldNames {
 public:
  // Takes in the fields of the window that have no accessible name.
  explicit FieldNames(QWidget& window) : window_(window) {}
  void Add(QWidget& field);
  // Gives the fields the words that their labels show now.
  void Refresh() const;

 private:
  struct Row {
    QPointer<QWidget> field;
    std::vector<QPointer<QLabel>> labels;
    QPointer<QGroupBox> frame;
  };

  void FindLabels(QWidget& field, Row& row) const;

  QWidget& window_;
  std::vector<Row> rows_;
};

}  // namespace lorimet
