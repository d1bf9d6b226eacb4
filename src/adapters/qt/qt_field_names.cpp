#include "adapters/qt/qt_field_names.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QStringList>
#include <utility>

namespace lorimet {
namespace {

using Labels = std::vector<QPointer<QLabel>>;

QString Words(QString caption) {
  caption.remove(QLatin1Char('&'));
  caption = caption.simplified();
  if (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
  return caption.trimmed();
}

QLabel* LabelOf(QLayoutItem* item) {
  if (item == nullptr) return nullptr;
  auto* label = qobject_cast<QLabel*>(item->widget());
  return label != nullptr && !label->text().isEmpty() ? label : nullptr;
}

// The layout that holds the widget itself, among this one and those within it.
QLayout* LayoutHolding(QLayout* layout, QWidget* widget) {
  if (layout == nullptr) return nullptr;
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* item = layout->itemAt(i);
    if (item->widget() == widget) return layout;
    if (QLayout* found = LayoutHolding(item->layout(), widget)) return found;
  }
  return nullptr;
}

// In a grid a field has the words at the head of its column and those before it in its row.
void GridLabels(QGridLayout& grid, QWidget* widget, Labels& labels) {
  int row = 0;
  int column = 0;
  int row_span = 0;
  int column_span = 0;
  grid.getItemPosition(grid.indexOf(widget), &row, &column, &row_span, &column_span);
  for (int above = row - 1; above >= 0; --above)
    if (QLabel* label = LabelOf(grid.itemAtPosition(above, column))) {
      labels.emplace_back(label);
      break;
    }
  for (int left = column - 1; left >= 0; --left)
    if (QLabel* label = LabelOf(grid.itemAtPosition(row, left))) {
      labels.emplace_back(label);
      break;
    }
}

void LayoutLabels(QLayout* layout, QWidget* widget, Labels& labels) {
  if (auto* form = qobject_cast<QFormLayout*>(layout)) {
    if (auto* label = qobject_cast<QLabel*>(form->labelForField(widget)))
      labels.emplace_back(label);
  } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
    GridLabels(*grid, widget, labels);
  } else if (layout != nullptr) {
    const int place = layout->indexOf(widget);
    if (QLabel* label = place > 0 ? LabelOf(layout->itemAt(place - 1)) : nullptr)
      labels.emplace_back(label);
  }
}

}  // namespace

void FieldNames::Add(QWidget& field) {
  if (!field.accessibleName().isEmpty()) return;
  Row row;
  row.field = &field;
  FindLabels(field, row);
  if (!row.labels.empty() || row.frame != nullptr) rows_.push_back(std::move(row));
}

void FieldNames::FindLabels(QWidget& field, Row& row) const {
  for (QLabel* label : window_.findChildren<QLabel*>())
    if (label->buddy() == &field) row.labels.emplace_back(label);
  // Outwards, until there are words or a frame.
  QWidget* widget = &field;
  while (row.labels.empty() && widget != &window_ && widget->parentWidget() != nullptr) {
    QWidget* parent = widget->parentWidget();
    LayoutLabels(LayoutHolding(parent->layout(), widget), widget, row.labels);
    if (!row.labels.empty()) return;
    auto* box = qobject_cast<QGroupBox*>(parent);
    if (box != nullptr && !box->title().isEmpty()) {
      row.frame = box;
      return;
    }
    widget = parent;
  }
}

void FieldNames::Refresh() const {
  for (const Row& row : rows_) {
    QStringList words;
    for (const auto& label : row.labels)
      if (label != nullptr && !Words(label->text()).isEmpty()) words << Words(label->text());
    if (row.frame != nullptr) words << Words(row.frame->title());
    if (row.field != nullptr) row.field->setAccessibleName(words.join(QStringLiteral(", ")));
  }
}

}  // namespace lorimet
