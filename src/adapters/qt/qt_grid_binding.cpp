#include "adapters/qt/qt_grid_binding.h"

#include <QFont>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPalette>
#include <QStringList>

#include "adapters/qt/qt_text.h"

namespace lorimet {

GridBinding::GridBinding(DataGrid& grid, QTableWidget* table, const BindingSite& site)
    : WidgetBinding(grid, table), grid_(grid), table_(table), dispatch_(site.dispatch) {
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
  table->horizontalHeader()->setHighlightSections(false);
  table->setMouseTracking(true);
  QObject::connect(table, &QTableWidget::currentCellChanged, site.lifetime,
                   [&grid, dispatch = site.dispatch](int row) {
                     dispatch([&grid, row] { grid.UserFocusRow(row); });
                   });
  QObject::connect(table, &QTableWidget::cellClicked, site.lifetime,
                   [this, dispatch = site.dispatch](int row, int column) {
                     if (!IsLink(column)) return;
                     dispatch([&grid = grid_, row] { grid.UserClickHyperlink(row); });
                   });
  QObject::connect(table, &QTableWidget::cellEntered, site.lifetime, [this](int, int column) {
    table_->viewport()->setCursor(IsLink(column) ? Qt::PointingHandCursor : Qt::ArrowCursor);
  });
  QObject::connect(table, &QTableWidget::viewportEntered, site.lifetime,
                   [this] { table_->viewport()->setCursor(Qt::ArrowCursor); });
}

void GridBinding::Mirror(unsigned changes) {
  WidgetBinding::Mirror(changes);
  if (changes & Control::kContent) MirrorContent();
  if (changes & (Control::kContent | Control::kSelection)) MirrorFocus();
}

bool GridBinding::HandleKey(const QKeyEvent& key) {
  const bool is_enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  const int row = table_->currentRow();
  if (!is_enter || !HasLink() || row < 0) return false;
  const EventDispatcher dispatch = dispatch_;  // outlives this object, should the form end
  dispatch([this, row] { grid_.UserClickHyperlink(row); });
  return true;
}

bool GridBinding::IsLink(int column) const {
  const auto& columns = grid_.Columns();
  return column >= 0 && static_cast<std::size_t>(column) < columns.size() &&
         columns[static_cast<std::size_t>(column)].hyperlink;
}

bool GridBinding::HasLink() const {
  for (const GridColumn& column : grid_.Columns())
    if (column.hyperlink) return true;
  return false;
}

void GridBinding::MirrorContent() {
  QStringList captions;
  for (const GridColumn& column : grid_.Columns()) captions << ToWidgetText(column.caption);
  table_->setColumnCount(static_cast<int>(captions.size()));
  table_->setHorizontalHeaderLabels(captions);
  table_->setRowCount(grid_.RowCount());
  for (int row = 0; row < grid_.RowCount(); ++row) FillRow(row);
  FitColumns();
}

// What is spare goes to the column with the links, which has the longest words, or to the last one.
void GridBinding::FitColumns() {
  int widest = table_->columnCount() - 1;
  for (int column = widest; column >= 0; --column)
    if (IsLink(column)) widest = column;
  for (int column = 0; column < table_->columnCount(); ++column)
    table_->horizontalHeader()->setSectionResizeMode(
        column, column == widest ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void GridBinding::FillRow(int row) {
  const std::vector<std::string>& cells = grid_.Row(row);
  for (int column = 0; column < table_->columnCount(); ++column) {
    const auto place = static_cast<std::size_t>(column);
    auto* item = new QTableWidgetItem(place < cells.size() ? ToWidgetText(cells[place]) : "");
    item->setToolTip(item->text());  // for a column that is too narrow for it
    if (IsLink(column)) {
      QFont font = table_->font();
      font.setUnderline(true);
      item->setFont(font);
      item->setForeground(table_->palette().brush(QPalette::Link));
    }
    table_->setItem(row, column, item);
  }
}

void GridBinding::MirrorFocus() {
  const int row = grid_.FocusedRow();
  if (row < 0) {
    table_->clearSelection();
    table_->setCurrentItem(nullptr);
  } else if (table_->currentRow() != row) {
    table_->setCurrentCell(row, 0);
  }
}

QString GridBinding::CopyText() const {
  QStringList lines;
  for (int row = 0; row < table_->rowCount(); ++row) {
    if (!table_->selectionModel()->isRowSelected(row)) continue;
    QStringList cells;
    for (int column = 0; column < table_->columnCount(); ++column)
      cells << table_->item(row, column)->text();
    lines << cells.join(QLatin1Char('\t'));
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace lorimet
