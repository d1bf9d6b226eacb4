// The data grid: rows, the focused one, its link, and copying.
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTableWidget>

#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

using Log = std::vector<std::string>;

class GridTest : public DesktopTest {
 protected:
  GridTest() {
    form.Show();
    Pump();
    form.grdRows.on_focused_row_change = [this] {
      form.log.push_back("row " + std::to_string(form.grdRows.FocusedRow()));
    };
    form.grdRows.on_hyperlink_click = [this](int row) {
      form.log.push_back("link " + std::to_string(row));
    };
    table = Find<QTableWidget>(form, "grdRows");
    desktop.RunEvent([this] {
      form.grdRows.SetColumns({{"Num", "Num", false}, {"Name", "Name", true}});
      form.grdRows.BeginInsert();
      form.grdRows.AppendRow({"1", "first"});
      form.grdRows.AppendRow({"2", "second"});
      form.grdRows.AppendRow({"3", "third"});
      form.grdRows.EndInsert();
    });
  }

  void ClickCell(int row, int column) {
    const QPointF place = table->visualItemRect(table->item(row, column)).center();
    QWidget* viewport = table->viewport();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, place, viewport->mapToGlobal(place), Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                        Qt::NoModifier);
      Send(viewport, event);
    }
  }

  QTableWidget* table;
};

TEST_F(GridTest, RowsAndCaptionsAreShown) {
  ASSERT_EQ(table->rowCount(), 3);
  ASSERT_EQ(table->columnCount(), 2);
  EXPECT_EQ(table->item(1, 1)->text(), "second");
  EXPECT_EQ(table->horizontalHeaderItem(1)->text(), "Name");
  EXPECT_EQ(table->horizontalHeader()->defaultAlignment(), Qt::AlignCenter);
  EXPECT_TRUE(table->item(0, 1)->font().underline());
  EXPECT_FALSE(table->item(0, 0)->font().underline());
  EXPECT_EQ(table->currentRow(), 0);
  EXPECT_EQ(form.log, (Log{"row 0"}));
}

TEST_F(GridTest, KeysAndMouseMoveTheFocusedRow) {
  form.log.clear();
  table->setFocus();
  Press(table, Qt::Key_Down);
  ClickCell(2, 0);
  EXPECT_EQ(form.log, (Log{"row 1", "row 2"}));
  EXPECT_EQ(form.grdRows.FocusedRow(), 2);
}

TEST_F(GridTest, ClickOnALinkFollowsIt) {
  form.log.clear();
  ClickCell(1, 1);
  EXPECT_EQ(form.log, (Log{"row 1", "link 1"}));
}

TEST_F(GridTest, EnterFollowsTheLinkOfTheFocusedRow) {
  form.log.clear();
  table->setFocus();
  Press(table, Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(form.log, (Log{"link 0"}));
}

TEST_F(GridTest, WholeRowsAreCopiedWithTabs) {
  table->setFocus();
  Press(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "1\tfirst");
  Press(table, Qt::Key_Down, Qt::ShiftModifier);
  Press(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "1\tfirst\n2\tsecond");
}

TEST_F(GridTest, DeletedRowsGo) {
  desktop.RunEvent([this] {
    while (form.grdRows.RowCount() > 0) form.grdRows.DeleteRow(0);
  });
  EXPECT_EQ(table->rowCount(), 0);
  EXPECT_EQ(form.grdRows.FocusedRow(), -1);
}

TEST_F(GridTest, FormMayUnloadOnALink) {
  form.grdRows.on_hyperlink_click = [this](int) { form.Unload(); };
  table->setFocus();
  Press(table, Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_FALSE(form.Loaded());
}

}  // namespace
}  // namespace lorimet
