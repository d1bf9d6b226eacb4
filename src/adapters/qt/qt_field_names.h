// Names by which a screen reader calls what bears no words of its own: those that the designer
// gave, the labels beside a field and at the head of its column, or the title of the frame around
// it.
#pragma once

#include <QPointer>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class QGroupBox;
class QLayout;
class QWidget;

namespace lorimet {

class FieldNames {
 public:
  // Takes in the names that the designer gave to widgets of the window; `translate` puts them into
  // the user's language.
  FieldNames(QWidget& window, std::function<std::string(const std::string&)> translate);
  // Takes in a field, unless the designer named it.
  void Add(QWidget& field);
  // Gives all the words that their labels show now.
  void Refresh() const;
  // Whether what this widget shows is part of a name.
  bool Uses(const QWidget* widget) const;

 private:
  // A label that shows but a number is called with the head of its own column: "Axle 1".
  struct LabelRow {
    QPointer<QWidget> label;
    QPointer<QWidget> head;
  };
  struct Row {
    QPointer<QWidget> field;
    std::vector<LabelRow> labels;
    QPointer<QGroupBox> frame;
    bool in_table = false;  // below the head of a column
  };
  using Designed = std::pair<QPointer<QWidget>, QString>;

  void FindLabels(QWidget& field, Row& row) const;
  QString Words(const QWidget* label) const;

  QWidget& window_;
  std::function<std::string(const std::string&)> translate_;
  std::vector<Designed> designed_;
  std::vector<Row> rows_;
};

}  // namespace lorimet
