// The recorder's screens as windows: what blocks what, what fits, and what a hand can do to them.
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWindow>

#include <string>
#include <vector>

#include "autotests/desktop/screens_fixture.h"
#include "reports/reports_part.h"

namespace lorimet {
namespace {

class RecorderWindows : public ScreensTest {
 protected:
  void SetUp() override {
    Start();
    program.support->dictionary.Open();
    program.support->dictionary.SetLanguage(kEnglish);
    Ecu().VehicleId.Store("1NL4S2M30A0012345");
    link.read_word = [](int, std::uint8_t* high, std::uint8_t* low) {
      *high = 127;
      *low = 255;
      return 0;
    };
  }
  ReportsPart& Reports() { return *program.reports; }
  std::vector<Form*> All() {
    return {&Reports().odr_view, &Reports().odr_delete, &Reports().save_eeprom,
            &Reports().save_odr};
  }
  // The upload's dialog is cancelled.
  void Open(Form& screen) {
    if (&screen == &Reports().save_eeprom)
      DesktopTest::WhenModal([](QWidget* dialog) { dialog->close(); });
    screen.Show();
    Pump();
  }
};

TEST_F(RecorderWindows, TheExportBlocksTheMainWindowAlreadyWhileItPreparesTheEcu) {
  QWidget* const main_window = desktop.Window(program.session->main_form);
  bool seen = false;
  link.on_call = [&](const std::string& call) {
    if (!call.starts_with("ExportODRData")) return;
    seen = true;
    QWidget* window = desktop.Window(Reports().save_odr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowModality(), Qt::WindowModal);
    EXPECT_EQ(window->windowHandle()->transientParent(), main_window->windowHandle());
    QTimer::singleShot(0, window,
                       [this] { road::Click(Find<QPushButton>(Reports().save_odr, "cmdClose")); });
  };
  program.session->main_form.mnuODR[1].UserClick();
  EXPECT_TRUE(seen);
  EXPECT_FALSE(Reports().save_odr.Loaded());
}

TEST_F(RecorderWindows, StepsMoveTheBarAndTheLastOneFillsIt) {
  Open(Reports().save_odr);
  auto* bar = Find<QProgressBar>(Reports().save_odr, "Progress");
  EXPECT_TRUE(bar->isVisible());
  for (int step = 0; step <= 9; ++step) {
    desktop.RunEvent([&] { Reports().save_odr.ShowStep("Saving", step); });
    EXPECT_EQ(bar->value(), std::min(step, 8));
    EXPECT_EQ(bar->maximum(), 8);
  }
  EXPECT_EQ(Find<QPlainTextEdit>(Reports().save_odr, "txtStatus")->toPlainText(), "Saving");
}

TEST_F(RecorderWindows, ThePathInTheStatusCanBeSelectedAndNotTyped) {
  Open(Reports().save_odr);
  desktop.RunEvent([&] { Reports().save_odr.ShowStep("Saving", 1); });
  auto* status = Find<QPlainTextEdit>(Reports().save_odr, "txtStatus");
  status->setFocus();
  Key(Reports().save_odr, Qt::Key_X, Qt::NoModifier, "x");
  EXPECT_EQ(status->toPlainText(), "Saving");
  status->selectAll();
  EXPECT_EQ(status->textCursor().selectedText(), "Saving");
}

TEST_F(RecorderWindows, ACancelledDialogLeavesTheUploadWithItsWords) {
  Open(Reports().save_eeprom);
  EXPECT_TRUE(desktop.Window(Reports().save_eeprom)->isVisible());
  EXPECT_EQ(Find<QPlainTextEdit>(Reports().save_eeprom, "txtStatus")->toPlainText(),
            "EEPROM data not saved.  Please try again.");
  EXPECT_FALSE(Find<QProgressBar>(Reports().save_eeprom, "Progress")->isVisible());
}

TEST_F(RecorderWindows, AClickOnABoxDeletesAndNoKeyThatIsPressedByHabit) {
  for (const int key : {int{Qt::Key_Return}, int{Qt::Key_Space}}) {
    Open(Reports().odr_delete);
    Activate(Reports().odr_delete);
    link.calls.clear();
    EXPECT_EQ(Reports().odr_delete.FocusedControl(), &Reports().odr_delete.cmdClose);
    Key(Reports().odr_delete, key, Qt::NoModifier, "\r");
    Pump();
    EXPECT_TRUE(link.calls.empty());
  }
  Reports().odr_delete.Unload();
  Open(Reports().odr_delete);
  auto* box = Find<QCheckBox>(Reports().odr_delete, "chkODRDel_1");
  for (int i = 0; i < 2; ++i) road::Click(box, QPoint(8, box->height() / 2));
  EXPECT_EQ(link.calls, std::vector<std::string>(2, "DeleteODRData 06"));
}

TEST_F(RecorderWindows, NoKeyThatIsPressedByHabitEndsATransfer) {
  Open(Reports().save_odr);
  Activate(Reports().save_odr);
  for (const int key : {int{Qt::Key_Return}, int{Qt::Key_Space}, int{Qt::Key_Escape}})
    Key(Reports().save_odr, key, Qt::NoModifier, " ");
  Pump();
  EXPECT_TRUE(Reports().save_odr.Loaded());
}

TEST_F(RecorderWindows, OpenInTheMiddleFitASmallScreenAndNameTheirFields) {
  for (const int language : {int{kEnglish}, int{kFrench}, int{kSpanish}}) {
    program.support->dictionary.SetLanguage(language);
    for (Form* screen : All()) {
      Open(*screen);
      QWidget* window = desktop.Window(*screen);
      EXPECT_EQ(screen->Left(), (desktop.ScreenWidth() - screen->Width()) / 2) << screen->Name();
      EXPECT_LE(window->minimumSizeHint().width(), 1000) << screen->Name() << language;
      EXPECT_LE(window->minimumSizeHint().height(), 700) << screen->Name() << language;
      for (const QLineEdit* line : window->findChildren<QLineEdit*>()) {
        EXPECT_FALSE(line->accessibleName().isEmpty()) << qPrintable(line->objectName());
        EXPECT_TRUE(line->isReadOnly()) << qPrintable(line->objectName());
      }
      for (const QPlainTextEdit* text : window->findChildren<QPlainTextEdit*>())
        EXPECT_FALSE(text->accessibleName().isEmpty()) << screen->Name();
      if (const QByteArray folder = qgetenv("LORIMET_GRAB_FOLDER"); !folder.isEmpty())
        window->grab().save(QString::fromLocal8Bit(folder) + "/" +
                            QString::fromStdString(screen->Name()) + "_" +
                            QString::number(language) + ".png");
      screen->Unload();
      Pump();
    }
  }
}

}  // namespace
}  // namespace lorimet
