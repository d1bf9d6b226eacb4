// What fields do beside showing their text: copying, padding, the decimal comma; and the colours.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableWidget>

#include "adapters/qt/qt_colors.h"
#include "autotests/desktop/screens_fixture.h"

namespace lorimet {
namespace {

class FieldsTest : public ScreensTest {
 protected:
  void SetUp() override {
    Start();
    QGuiApplication::clipboard()->setText("before");
  }
  static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }
  // Chooses the one item of the menu that a right click on the widget opens.
  static void CopyByMenu(QWidget* widget) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                            widget->mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(widget, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    menu->actions().constFirst()->trigger();
    menu->close();
    Pump();
  }
  frmZeltMain& Main() { return program.session->main_form; }
};

TEST_F(FieldsTest, AFieldThatOnlyShowsIsCopiedWholeOrAsSelected) {
  Main().txtSerialNum.SetText("NV-1001");
  desktop.Flush();
  auto* field = Find<QLineEdit>(Main(), "txtSerialNum");
  CopyByMenu(field);
  EXPECT_EQ(Copied(), "NV-1001");
  field->setSelection(0, 2);
  CopyByMenu(field);
  EXPECT_EQ(Copied(), "NV");
  EXPECT_EQ(field->selectedText(), "NV");
}

TEST_F(FieldsTest, AClickOnThePanelKeepsWhatIsSelected) {
  Main().txtSerialNum.SetText("NV-1001");
  desktop.Flush();
  auto* field = Find<QLineEdit>(Main(), "txtSerialNum");
  field->selectAll();
  road::Click(Find<QLineEdit>(Main(), "txtPartNum"));
  EXPECT_EQ(field->selectedText(), "NV-1001");
}

TEST_F(FieldsTest, TheRepairTextIsCopiedByItsKeyAndNotEdited) {
  frmFaults& list = program.faults->fault_list;
  list.Show();
  list.txtRepair.SetText("Check the plug.");
  Activate(list);
  list.txtRepair.SetFocus();
  Key(list, Qt::Key_C, Qt::ControlModifier, "\x03");
  EXPECT_EQ(Copied(), "Check the plug.");
  Key(list, Qt::Key_X, Qt::NoModifier, "x");
  EXPECT_EQ(list.txtRepair.Text(), "Check the plug.");
}

TEST_F(FieldsTest, TheGridCopiesTheSelectedRowByItsMenu) {
  frmFaults& list = program.faults->fault_list;
  list.Show();
  list.grdFaults.BeginInsert();
  list.grdFaults.AppendRow({"1", "Sensor c", "ACTIVE", "N/A", "5", "7"});
  list.grdFaults.EndInsert();
  Activate(list);
  CopyByMenu(Find<QTableWidget>(list, "grdFaults")->viewport());
  EXPECT_EQ(Copied(), "1\tSensor c\tACTIVE\tN/A\t5\t7");
}

TEST_F(FieldsTest, TheNameOfAFaultHasTheWidthThatIsSpareAlsoAfterAnUpdate) {
  frmFaults& list = program.faults->fault_list;
  list.Show();
  Activate(list);
  auto* table = Find<QTableWidget>(list, "grdFaults");
  for (int times = 0; times < 2; ++times) {
    list.grdFaults.BeginInsert();
    list.grdFaults.AppendRow({"1", "Sensor c", "ACTIVE", "N/A", "5", "7"});
    list.grdFaults.EndInsert();
    Pump();
    EXPECT_GT(table->columnWidth(1), table->viewport()->width() / 2);
    EXPECT_EQ(table->horizontalHeader()->length(), table->viewport()->width());
  }
}

TEST_F(FieldsTest, BlanksThatFillAFieldUpAreNotShownAndStay) {
  Form& page = program.parameters->load_sensing_page;
  page.Load();
  program.parameters->load_sensing_page.txtManufacturer.SetText("ACME                ");
  page.Show();
  Activate(page);
  auto* field = Find<QLineEdit>(page, "txtManufacturer");
  EXPECT_EQ(field->text(), "ACME");
  EXPECT_EQ(program.parameters->load_sensing_page.txtManufacturer.Text(), "ACME                ");
  field->setFocus();
  field->end(false);
  for (const char* key : {" ", "Z"})
    Key(page, *key == ' ' ? Qt::Key_Space : Qt::Key_Z, Qt::NoModifier, key);
  EXPECT_EQ(field->text(), "ACME Z");
  EXPECT_EQ(program.parameters->load_sensing_page.txtManufacturer.Text(), "ACME Z");
}

TEST_F(FieldsTest, OtherBlanksBehindTheSameTextKeepTheUsersPlace) {
  frmOVGParm2& page = program.parameters->load_sensing_page;
  page.Show();
  page.txtManufacturer.SetText("ACME  ");
  Activate(page);
  auto* field = Find<QLineEdit>(page, "txtManufacturer");
  field->setCursorPosition(2);
  page.txtManufacturer.SetText("ACME    ");
  Pump();
  EXPECT_EQ(field->cursorPosition(), 2);
}

TEST_F(FieldsTest, ACommaDoesNotGetIntoAFieldThatOnlyShows) {
  frmOVGParm2& page = program.parameters->load_sensing_page;
  page.Show();
  Activate(page);
  auto* field = Find<QLineEdit>(page, "txtBrakingPressUnladen_0");
  field->setFocus();
  field->setText("32");
  field->setReadOnly(true);
  Key(page, Qt::Key_Comma, Qt::NoModifier, ",");
  EXPECT_EQ(field->text(), "32");
}

TEST_F(FieldsTest, ACommaIsThePointInFieldsOfNumbersAndACommaElsewhere) {
  frmOVGParm2& page = program.parameters->load_sensing_page;
  page.Show();
  Activate(page);
  const auto type_into = [&](TextBox& box, Qt::KeyboardModifiers modifiers) {
    box.SetText("");
    box.SetFocus();
    Key(page, Qt::Key_1, Qt::NoModifier, "1");
    Key(page, Qt::Key_Comma, modifiers, ",");
    Key(page, Qt::Key_5, Qt::NoModifier, "5");
    return box.Text();
  };
  EXPECT_EQ(type_into(page.txtBrakingPressUnladen[0], Qt::NoModifier), "1.5");
  EXPECT_EQ(type_into(page.txtBrakingPressUnladen[0], Qt::KeypadModifier), "1.5");
  EXPECT_EQ(type_into(page.txtTrailerVIN, Qt::NoModifier), "1,5");
}

TEST_F(FieldsTest, TheFieldsOfTheLoadsSayWhatTheyHold) {
  frmOVGParm2& page = program.parameters->load_sensing_page;
  page.Show();
  Pump();
  EXPECT_EQ(Find<QWidget>(page, "txtAxleLoadUnladen_0")->accessibleName().toStdString(),
            "Axle load (kg), Unladen, Axle 1");
  EXPECT_EQ(Find<QWidget>(page, "txtBrakingPressLadenPm_K1_2")->accessibleName().toStdString(),
            "Pm_K1, Braking pressure (psi), Laden, Axle 3");
  frmOVGParm3& last = program.parameters->overturn_guard_page;
  last.Show();
  Pump();
  EXPECT_EQ(Find<QWidget>(last, "txtNumTeeth_1")->accessibleName().toStdString(),
            "Axle e-f, Number of Teeth");
}

TEST_F(FieldsTest, ALongWaitHasThePointerOfWaiting) {
  const auto pointer_in = [&](std::uint32_t milliseconds) {
    bool waiting = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      const QCursor* pointer = QApplication::overrideCursor();
      waiting = waiting || (pointer != nullptr && pointer->shape() == Qt::WaitCursor);
    });
    look.start(10);
    desktop.Wait(milliseconds);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    return waiting;
  };
  EXPECT_TRUE(pointer_in(1000));
  EXPECT_FALSE(pointer_in(200));
}

TEST(Colours, WordsStandOutOnEveryGroundThatIsRequired) {
  for (const Color ground : {kColorWhite, kColorYellow, kColorOrange, kColorRed, Color{0x00FF00}})
    EXPECT_GE(Contrast(TextColorOn(ToQColor(ground)), ToQColor(ground)), 4.5) << ground;
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21.0, 0.01);
}

}  // namespace
}  // namespace lorimet
