// The screens of the vehicle's tests as windows: what the operator sees and what the keyboard does.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>

#include "adapters/headless/headless_ports.h"
#include "autotests/common/fake_link.h"
#include "autotests/desktop/desktop_fixture.h"
#include "autotests/places.h"
#include "faults/fault_table.h"
#include "faults/faults.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "tests/frmLampTest.h"
#include "tests/frmPressureTest.h"
#include "tests/frmRedundancyTest.h"
#include "tests/frmSensorOrientation.h"
#include "tests/frmSetEOLBit.h"
#include "tests/frmStopLight.h"
#include "tests/frmSuspensionCal.h"
#include "tests/test_results.h"

namespace lorimet {
namespace {

using testing_support::FakeLink;

class TestScreenWindows : public DesktopTest {
 protected:
  TestScreenWindows() {
    dictionary.Open();
    ecu.bNumSensors.Store(4);
    ecu.bNumModulators.Store(2);
    ecu.nNumAxles.Store(2);
    ecu.nAxleSensors[0].Store(2);
    ecu.nAxleSensors[1].Store(1);
    ecu.dSupplyPress.Store(112.0);
    ecu.dMainBellows.Store(10.0);
  }
  ~TestScreenWindows() override {
    for (Form* screen : All()) screen->Unload();
  }
  std::vector<Form*> All() {
    return {&pressure, &redundancy, &sensors, &lamp, &calibration, &stop_light, &flag};
  }
  void Open(Form& screen) {
    // The sensor test begins with a warning.
    QTimer::singleShot(0, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        box->buttons().constFirst()->click();
    });
    screen.Show();
    Pump();
  }
  template <typename Widget>
  Widget* In(Form& screen, const char* name) {
    auto* widget = windows.Window(screen)->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  static QColor Ground(QWidget* widget) {
    // A pixel beside the letter and within the border.
    return widget->grab().toImage().pixelColor(8, widget->height() / 2);
  }

  FakeLink link;
  VirtualClock clock;
  QtDesktop windows;
  TsTranslations translations{InSource("translations")};
  Dictionary dictionary{translations, windows};
  ECUData ecu{};
  TestResults results;
  FaultTable table;
  Faults faults{link, windows, dictionary, table};
  TestParts parts{windows, clock, dictionary, link, ecu, results};
  frmPressureTest pressure{parts};
  frmRedundancyTest redundancy{parts};
  frmSensorOrientation sensors{parts};
  frmLampTest lamp{parts};
  frmSuspensionCal calibration{parts, faults};
  frmStopLight stop_light{windows, dictionary, link};
  frmSetEOLBit flag{windows, dictionary, {link, clock, faults}};
};

TEST_F(TestScreenWindows, ThePlanShowsAtAGlanceWhichWheelToSpin) {
  Open(sensors);
  for (const char* name : {"TirePic_1", "TirePic_4", "TireTxt_1", "TireTxt_4"})
    EXPECT_FALSE(In<QWidget>(sensors, name)->isVisible()) << name;
  for (const char* name : {"TirePic_2", "TirePic_3", "TirePic_5", "TirePic_6"}) {
    EXPECT_TRUE(In<QWidget>(sensors, name)->isVisible()) << name;
    EXPECT_FALSE(In<QLabel>(sensors, name)->pixmap(Qt::ReturnByValue).isNull()) << name;
  }
  EXPECT_FALSE(In<QLabel>(sensors, "bmpABS")->pixmap(Qt::ReturnByValue).isNull());
  for (int tick = 0; tick < 2; ++tick) sensors.Timer1.Tick();
  EXPECT_EQ(In<QLineEdit>(sensors, "TireTxt_2")->text(), "f");
  EXPECT_EQ(Ground(In<QLineEdit>(sensors, "TireTxt_2")), QColor(0xFF, 0xFF, 0x00));
  EXPECT_EQ(Ground(In<QLineEdit>(sensors, "TireTxt_3")), QColor(Qt::white));
  // Each on its own line.
  const QStringList lines = In<QPlainTextEdit>(sensors, "txtStatus")->toPlainText().split('\n');
  EXPECT_EQ(lines, (QStringList{"        ", "", " -Sensor Test-", "",
                                "Spin Tire 1 as shown on the diagram..."}));
  // And in the control as the test has written it.
  EXPECT_TRUE(sensors.txtStatus.Text().starts_with("        \r\r -Sensor Test-\r\r"));
}

TEST_F(TestScreenWindows, AWrongSensorIsRedAndTheRightOneGreen) {
  Open(sensors);
  for (int tick = 0; tick < 2; ++tick) sensors.Timer1.Tick();
  ecu.dWheelSpeed[4].Store(6.0);
  ecu.dWheelSpeed[3].Store(6.0);
  for (int tick = 0; tick < 2; ++tick) sensors.Timer1.Tick();
  EXPECT_EQ(Ground(In<QLineEdit>(sensors, "textOrder_1")), QColor(0x00, 0xFF, 0x00));
  EXPECT_EQ(Ground(In<QLineEdit>(sensors, "textOrder_3")), QColor(0xFF, 0x00, 0x00));
  EXPECT_EQ(In<QLineEdit>(sensors, "textOrder_3")->text(), " 1");
  EXPECT_EQ(In<QLineEdit>(sensors, "textRPM_1")->text(), "6.0");
}

TEST_F(TestScreenWindows, AnAxleWithoutSensorsHasNoTires) {
  ecu.nNumAxles.Store(3);
  ecu.nAxleSensors[2].Store(0);
  Open(sensors);
  const QImage bare = In<QWidget>(sensors, "TirePic_3")->grab().toImage();
  EXPECT_EQ(bare, In<QWidget>(sensors, "TirePic_6")->grab().toImage());
  EXPECT_EQ(bare.pixelColor(13, 40), bare.pixelColor(0, 0)) << "nothing is drawn";
  const QImage tire = In<QWidget>(sensors, "TirePic_1")->grab().toImage();
  EXPECT_NE(tire.pixelColor(13, 40), tire.pixelColor(0, 0));
}

TEST_F(TestScreenWindows, TheLampOfTheScreenBlinksWithTheTrailers) {
  Open(lamp);
  auto* indicator = In<QLabel>(lamp, "lblWarningLamp");
  EXPECT_EQ(Ground(indicator), QColor(Qt::white));
  lamp.Timer1.Tick();
  EXPECT_EQ(Ground(indicator), QColor(0xFF, 0x00, 0x00));
  lamp.Timer1.Tick();
  EXPECT_EQ(Ground(indicator), QColor(Qt::white));
}

TEST_F(TestScreenWindows, AStatusFieldCannotBeTypedIn) {
  for (Form* screen : All()) {
    Open(*screen);
    for (QLineEdit* line : windows.Window(*screen)->findChildren<QLineEdit*>())
      EXPECT_TRUE(line->isReadOnly()) << screen->Name() << line->objectName().toStdString();
    for (auto* page : windows.Window(*screen)->findChildren<QPlainTextEdit*>())
      EXPECT_TRUE(page->isReadOnly()) << screen->Name();
    screen->Unload();
  }
}

// A key that is pressed by habit must not command the ECU: Enter presses the button that has the
// focus and no other, and when a screen opens no button has it but one that closes.
TEST_F(TestScreenWindows, EnterCommandsNothingUnlessAButtonHasTheFocus) {
  for (Form* screen : All()) {
    Open(*screen);
    for (QPushButton* button : windows.Window(*screen)->findChildren<QPushButton*>()) {
      EXPECT_FALSE(button->isDefault()) << screen->Name();
      EXPECT_FALSE(button->autoDefault()) << screen->Name();
    }
    link.TakeCalls();
    results.nLampTest = 9;
    for (QLineEdit* line : windows.Window(*screen)->findChildren<QLineEdit*>())
      if (line->isVisible() && line->isEnabled()) Press(line, Qt::Key_Return);
    Press(windows.Window(*screen), Qt::Key_Enter);
    const QWidget* focus = windows.Window(*screen)->focusWidget();
    const bool on_button = qobject_cast<const QPushButton*>(focus) != nullptr;
    EXPECT_TRUE(!on_button || focus->objectName() == "Command1") << screen->Name();
    EXPECT_TRUE(screen->Loaded()) << screen->Name();
    EXPECT_EQ(link.TakeCalls(), std::vector<std::string>{}) << screen->Name();
    screen->Unload();
  }
}

// A run that is under way is not lost by a key.
TEST_F(TestScreenWindows, EscapeClosesNoTest) {
  for (Form* screen : All()) {
    Open(*screen);
    Press(windows.Window(*screen), Qt::Key_Escape);
    for (QLineEdit* line : windows.Window(*screen)->findChildren<QLineEdit*>())
      if (line->isVisible() && line->isEnabled()) Press(line, Qt::Key_Escape);
    EXPECT_TRUE(screen->Loaded()) << screen->Name();
    screen->Unload();
  }
}

TEST_F(TestScreenWindows, EveryScreenHasItsPageOfTheHelp) {
  for (const Form* screen : All())
    for (const char* language : {"en", "fr", "es"})
      EXPECT_TRUE(std::filesystem::exists(InSource("help/") + language + "/" + screen->help_page))
          << screen->Name();
}

TEST_F(TestScreenWindows, EveryScreenOpensInTheMiddle) {
  for (Form* screen : All()) {
    Open(*screen);
    EXPECT_EQ(screen->Left(), (windows.ScreenWidth() - screen->Width()) / 2) << screen->Name();
    EXPECT_EQ(screen->Top(), (windows.ScreenHeight() - screen->Height()) / 2) << screen->Name();
    screen->Unload();
  }
}

TEST_F(TestScreenWindows, AccessKeysAreUniqueInEveryLanguage) {
  for (const int language : {int{kEnglish}, int{kFrench}, int{kSpanish}}) {
    dictionary.SetLanguage(language);
    for (Form* screen : All()) {
      Open(*screen);
      QString keys;
      for (QPushButton* button : windows.Window(*screen)->findChildren<QPushButton*>()) {
        const qsizetype at = button->text().indexOf('&');
        if (at < 0) continue;
        const QChar key = button->text().at(at + 1).toUpper();
        EXPECT_FALSE(keys.contains(key))
            << screen->Name() << " " << language << " " << button->text().toStdString();
        keys += key;
      }
      screen->Unload();
    }
  }
}

TEST_F(TestScreenWindows, EveryFieldHasANameForAScreenReader) {
  for (Form* screen : All()) {
    Open(*screen);
    for (QLineEdit* line : windows.Window(*screen)->findChildren<QLineEdit*>())
      EXPECT_FALSE(line->accessibleName().isEmpty())
          << screen->Name() << " " << line->objectName().toStdString();
    screen->Unload();
  }
}

TEST_F(TestScreenWindows, TheWindowsFitASmallScreenInEveryLanguage) {
  for (const int language : {int{kEnglish}, int{kFrench}, int{kSpanish}}) {
    dictionary.SetLanguage(language);
    for (Form* screen : All()) {
      Open(*screen);
      const QSize size = windows.Window(*screen)->minimumSizeHint();
      EXPECT_LE(size.width(), 1000) << screen->Name() << " " << language;
      EXPECT_LE(size.height(), 700) << screen->Name() << " " << language;
      screen->Unload();
    }
  }
}

}  // namespace
}  // namespace lorimet
