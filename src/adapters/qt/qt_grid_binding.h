// The data grid as a table: rows to select and copy, one of them focused, links to follow.
#pragma once

#include <QTableWidget>

#include "adapters/qt/qt_widget_binding.h"

namespace lorimet {

class GridBinding : public WidgetBinding {
 public:
  GridBinding(DataGrid& grid, QTableWidget* table, const BindingSite& site);

  void Mirror(unsigned changes) override;
  bool HandleKey(const QKeyEvent& key) override;
  QString CopyText() const override;  // the selected rows, their cells parted by tabulators

 private:
  bool IsLink(int column) const;
  bool HasLink() const;
  void MirrorContent();
  void MirrorFocus();
  void FillRow(int row);
  void FitColumns();

  DataGrid& grid_;
  QTableWidget* table_;
  EventDispatcher dispatch_;
};

}  // namespace lorimet
