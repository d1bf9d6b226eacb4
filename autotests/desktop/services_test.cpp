// The clock, the translation files and the keys.
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QIcon>
#include <QKeyEvent>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include "adapters/qt/qt_clock.h"
#include "adapters/qt/qt_keys.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/qt_toolkit_texts.h"
#include "adapters/qt/qt_translations.h"
#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

TEST(QtClockTest, SleepingMovesTheTickCount) {
  QtClock clock;
  const std::uint32_t before = clock.TickCount();
  clock.Sleep(2);
  const std::uint32_t passed = clock.TickCount() - before;
  EXPECT_GE(passed, 1U);
  EXPECT_LT(passed, 5000U);
}

TEST(QtClockTest, NowIsLocalTime) {
  QtClock clock;
  const std::time_t before = std::time(nullptr);
  std::tm now = clock.Now();
  now.tm_isdst = -1;
  EXPECT_NEAR(static_cast<double>(std::mktime(&now)), static_cast<double>(before), 2.0);
}

TEST(QtTranslationsTest, WithoutFilesNothingIsTranslated) {
  const QTemporaryDir empty;
  QtTranslations translations(FromQString(empty.path()));
  EXPECT_EQ(translations.Lookup(1, "Yes"), "");
  EXPECT_FALSE(translations.Open());
  EXPECT_EQ(translations.Lookup(1, "Yes"), "");
}

class ToolkitTextsTest : public testing::Test {
 protected:
  ~ToolkitTextsTest() override { texts.SetLanguage(0); }
  static QString Cancel() {
    return QDialogButtonBox(QDialogButtonBox::Cancel).buttons().front()->text().remove('&');
  }
  static QString NameLabel() {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    return dialog.labelText(QFileDialog::FileName).remove('&');
  }

  QtToolkitTexts texts;
};

TEST_F(ToolkitTextsTest, StandardButtonsAndFileDialogSpeakTheChosenLanguage) {
  EXPECT_EQ(Cancel(), "Cancel");
  const QString english = NameLabel();
  texts.SetLanguage(kFrench);
  EXPECT_EQ(Cancel(), "Annuler");
  const QString french = NameLabel();
  texts.SetLanguage(kSpanish);
  EXPECT_EQ(Cancel(), "Cancelar");
  EXPECT_NE(NameLabel(), french);
  EXPECT_NE(french, english);
  texts.SetLanguage(0);
  EXPECT_EQ(Cancel(), "Cancel");
}

TEST_F(ToolkitTextsTest, LanguageWithoutItsFileIsEnglish) {
  const QTemporaryDir empty;
  QtToolkitTexts nowhere({empty.path()});
  nowhere.SetLanguage(kFrench);
  EXPECT_EQ(Cancel(), "Cancel");
}

TEST(ProgramIconTest, WindowsHaveTheProgramsIconInAllItsSizes) {
  const QIcon icon = QApplication::windowIcon();
  for (const int size : {16, 32, 48, 256})
    EXPECT_EQ(icon.actualSize(QSize(size, size)), QSize(size, size));
  EXPECT_FALSE(icon.pixmap(32, 32).toImage().isNull());
}

TEST(TestsThemselves, LeaveTheUsersSettingsAlone) {
  const QString file = QSettings(QSettings::UserScope, "QtProject").fileName();
  EXPECT_TRUE(file.startsWith(QDir::tempPath())) << FromQString(file);
}

TEST(QtKeysTest, KeysHaveTheirVirtualCodes) {
  struct Row {
    int key;
    Qt::KeyboardModifiers modifiers;
    int code;
    int shift;
  };
  const Row rows[] = {
      {Qt::Key_A, Qt::NoModifier, 65, 0},         {Qt::Key_Z, Qt::ShiftModifier, 90, 1},
      {Qt::Key_7, Qt::NoModifier, 55, 0},         {Qt::Key_7, Qt::KeypadModifier, 103, 0},
      {Qt::Key_Plus, Qt::KeypadModifier, 107, 0}, {Qt::Key_Plus, Qt::NoModifier, 187, 0},
      {Qt::Key_Enter, Qt::KeypadModifier, 13, 0}, {Qt::Key_Left, Qt::KeypadModifier, 37, 0},
      {Qt::Key_F1, Qt::NoModifier, 112, 0},       {Qt::Key_F12, Qt::ControlModifier, 123, 2},
      {Qt::Key_Delete, Qt::AltModifier, 46, 4},   {Qt::Key_Escape, Qt::NoModifier, 27, 0},
      {Qt::Key_Exclam, Qt::ShiftModifier, 49, 1}, {Qt::Key_Backtab, Qt::ShiftModifier, 9, 1},
      {Qt::Key_VolumeUp, Qt::NoModifier, 255, 0},
  };
  for (const Row& row : rows) {
    const KeyEvent key = TranslateKey(QKeyEvent(QEvent::KeyPress, row.key, row.modifiers));
    EXPECT_EQ(key.code, row.code) << row.key;
    EXPECT_EQ(key.shift, row.shift) << row.key;
  }
}

TEST(QtKeysTest, MenuKeysAreTheSystemsAndTypingIsNot) {
  const auto is_system = [](int key, Qt::KeyboardModifiers modifiers) {
    return IsSystemKey(QKeyEvent(QEvent::KeyPress, key, modifiers));
  };
  EXPECT_TRUE(is_system(Qt::Key_Alt, Qt::AltModifier));
  EXPECT_TRUE(is_system(Qt::Key_F4, Qt::AltModifier));
  EXPECT_TRUE(is_system(Qt::Key_F10, Qt::NoModifier));
  EXPECT_FALSE(is_system(Qt::Key_F10, Qt::ShiftModifier));
  EXPECT_FALSE(is_system(Qt::Key_Q, Qt::AltModifier | Qt::ControlModifier));
  EXPECT_FALSE(is_system(Qt::Key_F1, Qt::NoModifier));
  EXPECT_FALSE(is_system(Qt::Key_C, Qt::ControlModifier));
}

}  // namespace
}  // namespace lorimet
