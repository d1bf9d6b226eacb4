#include "adapters/qt/qt_field_names.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringList>
#include <algorithm>

#include "adapters/qt/qt_text.h"

namespace lorimet {
namespace {

constexpr int kShortWords = 2;  // letters of a label that says nothing without its frame

QString Plain(QString caption) {
  caption.remove(QLatin1Char('&'));
  caption = caption.simplified();
  if (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
  return caption.trimmed();
}

// What a widget shows that is a label, or a field without a frame that serves as one.
QString Shown(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return Plain(label->text());
  if (const auto* line = qobject_cast<const QLineEdit*>(widget))
    return line->hasFrame() ? QString() : Plain(line->text());
  if (const auto* page = qobject_cast<const QPlainTextEdit*>(widget))
    return page->frameShape() != QFrame::NoFrame ? QString() : Plain(page->toPlainText());
  return {};
}

QWidget* LabelOf(const QLayoutItem* item) {
  QWidget* widget = item == nullptr ? nullptr : item->widget();
  return Shown(widget).isEmpty() ? nullptr : widget;
}

bool IsNumber(const QString& words) {
  return !words.isEmpty() && std::ranges::all_of(words, [](QChar c) { return c.isDigit(); });
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

// The labels above a place of a grid, the nearest first.
std::vector<QWidget*> Heads(const QGridLayout& grid, int row, int column) {
  std::vector<QWidget*> heads;
  for (int above = row - 1; above >= 0; --above) {
    QWidget* label = LabelOf(grid.itemAtPosition(above, column));
    if (label != nullptr && std::ranges::find(heads, label) == heads.end()) heads.push_back(label);
  }
  return heads;
}

// The label before a widget in its row, in a table the row's first; a number is told by what stands
// over its column.
template <typename LabelRow>
void RowLabel(const QGridLayout& grid, int row, int column, std::vector<LabelRow>& labels) {
  const bool in_table = !labels.empty();
  QWidget* found = nullptr;
  int place = 0;
  for (int left = column - 1; left >= 0 && (found == nullptr || in_table); --left)
    if (QWidget* label = LabelOf(grid.itemAtPosition(row, left))) {
      found = label;
      place = left;
    }
  if (found == nullptr) return;
  QWidget* head = nullptr;
  if (IsNumber(Shown(found)))
    for (QWidget* above : Heads(grid, row, place))
      if (head == nullptr && !IsNumber(Shown(above))) head = above;
  labels.push_back({found, head});
}

// In a grid a field has the words before it in its row and those at the head of its column.
template <typename LabelRow>
void GridLabels(const QGridLayout& grid, QWidget* widget, std::vector<LabelRow>& labels) {
  int row = 0;
  int column = 0;
  int row_span = 0;
  int column_span = 0;
  grid.getItemPosition(grid.indexOf(widget), &row, &column, &row_span, &column_span);
  for (QWidget* head : Heads(grid, row, column)) labels.push_back({head, nullptr});
  RowLabel(grid, row, column, labels);
}

bool InTable(QWidget& field) {
  QLayout* layout = LayoutHolding(field.parentWidget()->layout(), &field);
  const auto* grid = qobject_cast<QGridLayout*>(layout);
  if (grid == nullptr) return false;
  int row = 0;
  int column = 0;
  int row_span = 0;
  int column_span = 0;
  grid->getItemPosition(grid->indexOf(&field), &row, &column, &row_span, &column_span);
  return !Heads(*grid, row, column).empty();
}

template <typename LabelRow>
void LayoutLabels(QLayout* layout, QWidget* widget, std::vector<LabelRow>& labels) {
  if (auto* form = qobject_cast<QFormLayout*>(layout)) {
    if (QWidget* label = form->labelForField(widget)) labels.push_back({label, nullptr});
  } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
    GridLabels(*grid, widget, labels);
  } else if (layout != nullptr) {
    const int place = layout->indexOf(widget);
    if (QWidget* label = place > 0 ? LabelOf(layout->itemAt(place - 1)) : nullptr)
      labels.push_back({label, nullptr});
  }
}

}  // namespace

FieldNames::FieldNames(QWidget& window, std::function<std::string(const std::string&)> translate)
    : window_(window), translate_(std::move(translate)) {
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (!widget->accessibleName().isEmpty())
      designed_.emplace_back(widget, widget->accessibleName());
}

void FieldNames::Add(QWidget& field) {
  if (!field.accessibleName().isEmpty()) return;
  Row row;
  row.field = &field;
  row.in_table = InTable(field);
  FindLabels(field, row);
  if (!row.labels.empty() || row.frame != nullptr) rows_.push_back(std::move(row));
}

void FieldNames::FindLabels(QWidget& field, Row& row) const {
  // Outwards, until there are words.
  for (QWidget* widget = &field;
       row.labels.empty() && widget != &window_ && widget->parentWidget() != nullptr;
       widget = widget->parentWidget()) {
    QWidget* parent = widget->parentWidget();
    LayoutLabels(LayoutHolding(parent->layout(), widget), widget, row.labels);
    auto* box = qobject_cast<QGroupBox*>(parent);
    if (box == nullptr || box->title().isEmpty()) continue;
    row.frame = box;
    break;
  }
  for (QLabel* label : window_.findChildren<QLabel*>())
    if (label->buddy() == &field &&
        std::ranges::find(row.labels, label, &LabelRow::label) == row.labels.end())
      row.labels.insert(row.labels.begin(), {label, nullptr});
}

QString FieldNames::Words(const QWidget* label) const {
  if (label == nullptr) return {};
  const bool designed = std::ranges::find(designed_, label, &Designed::first) != designed_.end();
  return designed ? label->accessibleName() : Shown(label);
}

void FieldNames::Refresh() const {
  for (const auto& [widget, name] : designed_)
    if (widget != nullptr)
      widget->setAccessibleName(translate_ ? ToQString(translate_(FromQString(name))) : name);
  QHash<QString, int> taken;
  for (const Row& row : rows_) {
    QStringList words;
    qsizetype longest = 0;
    for (const LabelRow& label : row.labels) {
      const QString said = (Words(label.head) + QLatin1Char(' ') + Words(label.label)).trimmed();
      if (!said.isEmpty()) words << said;
      longest = std::max(longest, said.size());
    }
    if (row.frame != nullptr && longest <= kShortWords) words.prepend(Plain(row.frame->title()));
    // Rows of a table that begin alike are told apart by their order.
    const QString name = words.join(QStringLiteral(", "));
    if (const int before = taken[name]++; before > 0 && row.in_table)
      words << QString::number(before + 1);
    if (row.field != nullptr) row.field->setAccessibleName(words.join(QStringLiteral(", ")));
  }
}

bool FieldNames::Uses(const QWidget* widget) const {
  return widget != nullptr && std::ranges::any_of(rows_, [widget](const Row& row) {
           return std::ranges::find(row.labels, widget, &LabelRow::label) != row.labels.end();
         });
}

}  // namespace lorimet
