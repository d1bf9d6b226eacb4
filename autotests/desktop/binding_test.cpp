// Windows are bound to their forms by name, and the designer's drawing reaches the controls.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

using BindingTest = DesktopTest;
using BindingDeathTest = DesktopTest;

TEST_F(BindingTest, LoadingImportsWhatTheDesignerDrew) {
  form.Load();
  EXPECT_EQ(form.Caption(), "Sample");
  EXPECT_EQ(form.lblName.Caption(), "&Name:");
  EXPECT_EQ(form.txtName.Text(), "nobody");
  EXPECT_EQ(form.txtName.MaxLength(), 8);
  EXPECT_EQ(form.txtLast.MaxLength(), 0);
  EXPECT_EQ(form.fraChoices.Caption(), "Choices");
  EXPECT_EQ(form.chkFine.ToolTipText(), "Tick it");
  EXPECT_FALSE(form.cmdOther.Enabled());
  EXPECT_TRUE(form.cmdOK.Enabled());
  EXPECT_EQ(form.prgWork.Max(), 9);
  EXPECT_EQ(form.mnuTop.Caption(), "&Top");
  EXPECT_EQ(form.mnuItem.Caption(), "&Item");
  EXPECT_EQ(form.tbrHelp.ToolTipText(), "Help me");
  for (const auto& option : form.optChoice) EXPECT_FALSE(option->Value());
  for (const Control* control : form.Controls()) EXPECT_TRUE(control->Visible()) << control->Name();
}

TEST_F(BindingTest, FormSizeIsTheWindowsInTwips) {
  form.Load();
  const QWidget* window = desktop.Window(form);
  EXPECT_EQ(form.Width(), window->width() * kTwipsPerPixel);
  EXPECT_EQ(form.Height(), window->height() * kTwipsPerPixel);
  // All of it, but for what the screen has no room for below a title bar.
  constexpr int kTitleBar = 36;
  const int room = QGuiApplication::primaryScreen()->availableGeometry().height() - kTitleBar;
  EXPECT_GE(window->height(), std::min(window->sizeHint().height(), room));
}

TEST_F(BindingTest, CentredWindowStandsInTheMiddleOfTheScreen) {
  form.load = [this] { form.CenterOnScreen(); };
  form.Show();
  Pump();
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QWidget* window = desktop.Window(form);
  EXPECT_NEAR(window->pos().x(), screen.x() + (screen.width() - window->width()) / 2.0, 1);
  EXPECT_NEAR(window->pos().y(), screen.y() + (screen.height() - window->height()) / 2.0, 1);
}

TEST_F(BindingTest, WindowThatGrowsWithItsWordsStaysCentred) {
  form.load = [this] {
    form.CenterOnScreen();
    form.cmdOK.SetCaption(std::string(120, 'W'));
  };
  form.Load();
  const int designed = form.Width();
  form.Show();
  Pump();
  EXPECT_GT(form.Width(), designed);
  EXPECT_EQ(form.Left(), (desktop.ScreenWidth() - form.Width()) / 2);
}

TEST_F(BindingTest, HeightFromCodeIsNeverLessThanTheLayoutNeeds) {
  form.Show();
  form.SetHeight(15);
  desktop.Flush();
  EXPECT_GE(desktop.Window(form)->height(), desktop.Window(form)->minimumSizeHint().height());
  EXPECT_EQ(form.Height(), desktop.Window(form)->height() * kTwipsPerPixel);
  form.SetHeight(900 * kTwipsPerPixel);
  desktop.Flush();
  EXPECT_EQ(desktop.Window(form)->height(), 900);
}

TEST_F(BindingTest, TimerIsAChildOfTheWindow) {
  form.Load();
  EXPECT_NE(Find<QTimer>(form, "tmrTick"), nullptr);
}

TEST_F(BindingTest, PropertiesReachTheWidgets) {
  form.Show();
  desktop.RunEvent([this] {
    form.SetCaption("Other");
    form.txtName.SetText("one\r\ntwo");
    form.txtNotes.SetText("one\r\ntwo");
    form.lblName.SetCaption("a\r\nb");
    form.fraChoices.SetCaption("More");
    form.cmdOther.SetEnabled(true);
    form.cmdOK.SetVisible(false);
    form.chkFine.SetToolTipText("Leave it");
    form.mnuTop.SetCaption("&Bottom");
    form.mnuTop.SetEnabled(false);
    form.mnuItem.SetVisible(false);
    form.tbrHelp.SetEnabled(false);
  });
  EXPECT_EQ(desktop.Window(form)->windowTitle(), "Other");
  EXPECT_EQ(Find<QPlainTextEdit>(form, "txtNotes")->toPlainText(), "one\ntwo");
  EXPECT_EQ(Find<QLabel>(form, "lblName")->text(), "a\nb");
  EXPECT_EQ(Find<QGroupBox>(form, "fraChoices")->title(), "More");
  EXPECT_TRUE(Find<QPushButton>(form, "cmdOther")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>(form, "cmdOK")->isVisible());
  EXPECT_EQ(Find<QCheckBox>(form, "chkFine")->toolTip(), "Leave it");
  EXPECT_EQ(Find<QMenu>(form, "mnuTop")->title(), "&Bottom");
  EXPECT_FALSE(Find<QMenu>(form, "mnuTop")->menuAction()->isEnabled());
  EXPECT_FALSE(Find<QAction>(form, "mnuItem")->isVisible());
  EXPECT_FALSE(Find<QAction>(form, "tbrHelp_help")->isEnabled());
}

TEST_F(BindingTest, ValueBeyondTheRangeShowsAFullBar) {
  form.Show();
  auto* bar = Find<QProgressBar>(form, "prgWork");
  desktop.RunEvent([this] { form.prgWork.SetValue(12); });
  EXPECT_EQ(bar->value(), 9);
  desktop.RunEvent([this] { form.prgWork.SetValue(-3); });
  EXPECT_EQ(bar->value(), 0);
  desktop.RunEvent([this] {
    form.prgWork.SetMax(20);
    form.prgWork.SetValue(12);
  });
  EXPECT_EQ(bar->value(), 12);
}

QColor Ground(QWidget* widget) {
  const QImage image = widget->grab().toImage();
  return image.pixelColor(image.width() - 8, image.height() / 2);
}

TEST_F(BindingTest, BackColorIsStrongerThanTheLook) {
  form.Show();
  auto* field = Find<QLineEdit>(form, "txtLast");
  const QColor own = Ground(field);
  desktop.RunEvent([this] { form.txtLast.SetBackColor(kColorOrange); });
  EXPECT_EQ(Ground(field), QColor(255, 128, 0));
  desktop.RunEvent([this] { form.txtLast.SetBackColor(kColorRed); });
  EXPECT_EQ(Ground(field), QColor(255, 0, 0));
  desktop.RunEvent([this] { form.txtLast.SetBackColor(kColorButtonFace); });
  EXPECT_EQ(Ground(field), field->palette().color(QPalette::Window));
  desktop.RunEvent([this] { form.txtLast.SetBackColor(kColorDefault); });
  EXPECT_EQ(Ground(field), own);
}

TEST_F(BindingTest, BackColorOfManyLinesFillsTheField) {
  form.Show();
  auto* field = Find<QPlainTextEdit>(form, "txtNotes");
  desktop.RunEvent([this] { form.txtNotes.SetBackColor(kColorYellow); });
  EXPECT_EQ(Ground(field), QColor(255, 255, 0));
}

TEST_F(BindingTest, FieldsAreCalledByTheirLabels) {
  form.Load();
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->accessibleName(), "Name");
  EXPECT_EQ(Find<QLineEdit>(form, "txtLast")->accessibleName(), "Last");
  desktop.RunEvent([this] { form.lblName.SetCaption("&Nom :"); });
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->accessibleName(), "Nom");
}

TEST_F(BindingTest, UnloadingDiscardsAndLoadingBuildsAnew) {
  form.Load();
  const QPointer<QWidget> first = desktop.Window(form);
  form.txtName.SetText("x");
  form.Unload();
  Pump();
  EXPECT_EQ(first, nullptr);
  EXPECT_EQ(form.txtName.Text(), "nobody");
  EXPECT_TRUE(form.Loaded());
}

TEST_F(BindingTest, HidingKeepsTheState) {
  form.Show();
  form.txtName.SetText("kept");
  form.Hide();
  form.Show();
  EXPECT_EQ(Find<QLineEdit>(form, "txtName")->text(), "kept");
}

TEST_F(BindingTest, HourglassCoversTheFieldsAndGoes) {
  form.Show();
  auto* field = Find<QLineEdit>(form, "txtName");
  const auto before = field->cursor().shape();
  desktop.RunEvent([this] { form.SetMousePointer(MousePointer::kHourglass); });
  EXPECT_EQ(desktop.Window(form)->cursor().shape(), Qt::WaitCursor);
  EXPECT_EQ(field->cursor().shape(), Qt::WaitCursor);
  desktop.RunEvent([this] { form.SetMousePointer(MousePointer::kArrow); });
  EXPECT_EQ(desktop.Window(form)->cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(field->cursor().shape(), before);
}

TEST_F(BindingTest, NativeWindowOfAFormIsItsWindows) {
  EXPECT_NE(desktop.NativeWindow(form), 0U);
  EXPECT_EQ(desktop.NativeWindow(form), static_cast<std::uintptr_t>(desktop.Window(form)->winId()));
}

TEST_F(BindingDeathTest, WindowWithoutAWidgetForAControlIsRefused) {
  class Greedy : public Form {
   public:
    using Form::Form;
    TextBox txtMissing{*this, "txtMissing"};
    Label txtName{*this, "txtName"};  // another kind than the widget
  };
  Greedy greedy(desktop, "frmSample");
  EXPECT_DEATH(greedy.Load(), "frmSample lacks: txtMissing .*txtName \\(QLabel\\)");
}

TEST_F(BindingDeathTest, FormWithoutAWindowIsRefused) {
  Form nowhere(desktop, "frmNowhere");
  EXPECT_DEATH(nowhere.Load(), "no window for form frmNowhere");
}

}  // namespace
}  // namespace lorimet
