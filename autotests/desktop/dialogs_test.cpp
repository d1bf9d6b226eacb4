// Message boxes, file dialogs and lists, as a robot finds them by their names.
#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "adapters/qt/qt_text.h"
#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

class DialogsTest : public DesktopTest {
 protected:
  DialogsTest() {
    form.Show();
    Pump();
  }

  BoxButton Answer(const MessageBox& box, const std::function<void(QMessageBox&)>& act) {
    WhenModal([&](QWidget* modal) {
      EXPECT_EQ(modal->objectName(), "msgBox");
      act(static_cast<QMessageBox&>(*modal));
    });
    return desktop.ShowMessageBox(box);
  }
  std::optional<std::string> Choose(const FileDialog& dialog,
                                    const std::function<void(QFileDialog&)>& act) {
    WhenModal([&](QWidget* modal) {
      EXPECT_EQ(modal->objectName(), "dlgFile");
      act(static_cast<QFileDialog&>(*modal));
    });
    return desktop.ShowFileDialog(dialog);
  }
  static void Enter(QFileDialog& dialog, const QString& name) {
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (!name.isEmpty()) edit->setText(name);
    Press(edit, Qt::Key_Return, Qt::NoModifier, "\r");
  }
  std::string Path(const char* name) const {
    return FromQString(QDir::toNativeSeparators(folder.filePath(QLatin1String(name))));
  }

  QTemporaryDir folder;
};

TEST_F(DialogsTest, BoxShowsItsWordsAndButtons) {
  MessageBox box;
  box.text = "<b>one</b>\r\ntwo";
  box.title = "Title";
  box.icon = BoxIcon::kCritical;
  box.buttons = kBoxYes | kBoxNo;
  box.yes = "&Oui";
  box.no = "&Non";
  const BoxButton answer = Answer(box, [](QMessageBox& shown) {
    EXPECT_EQ(shown.text(), "<b>one</b>\ntwo");
    EXPECT_EQ(shown.textFormat(), Qt::PlainText);
    EXPECT_EQ(shown.windowTitle(), "Title");
    EXPECT_EQ(shown.icon(), QMessageBox::Critical);
    EXPECT_EQ(shown.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(shown.button(QMessageBox::Yes)->text(), "&Oui");
    EXPECT_EQ(shown.button(QMessageBox::No)->text(), "&Non");
    shown.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(answer, kBoxYes);
}

TEST_F(DialogsTest, ClosedBoxAnswersCancelElseItsLastButton) {
  struct Row {
    unsigned buttons;
    BoxButton answer;
  };
  for (const Row& row :
       {Row{kBoxOk, kBoxOk}, Row{kBoxYes | kBoxNo, kBoxNo}, Row{kBoxOk | kBoxCancel, kBoxCancel},
        Row{kBoxYes | kBoxNo | kBoxCancel, kBoxCancel}}) {
    MessageBox box;
    box.buttons = row.buttons;
    EXPECT_EQ(Answer(box, [](QMessageBox& shown) { Press(&shown, Qt::Key_Escape); }), row.answer);
    EXPECT_EQ(Answer(box, [](QMessageBox& shown) { shown.close(); }), row.answer);
  }
}

// As a hand does it, that has touched no button before.
TEST_F(DialogsTest, EnterAnswersTheFirstButton) {
  for (const unsigned buttons : {kBoxYes | kBoxNo, kBoxOk | kBoxCancel, unsigned{kBoxOk}}) {
    MessageBox box;
    box.buttons = buttons;
    const BoxButton answer = Answer(box, [](QMessageBox& shown) {
      Pump();
      road::Key(&shown, Qt::Key_Return, Qt::NoModifier, "\r");
    });
    EXPECT_EQ(answer, buttons & kBoxYes ? kBoxYes : kBoxOk);
  }
}

TEST_F(DialogsTest, ChangesAreOnTheScreenWhileABoxStands) {
  desktop.RunEvent([this] {
    form.txtName.SetText("shown");
    Answer({}, [this](QMessageBox& shown) {
      EXPECT_EQ(Find<QLineEdit>(form, "txtName")->text(), "shown");
      shown.close();
    });
  });
}

TEST_F(DialogsTest, SaveDialogProposesAndCompletesTheName) {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.title = "Save it";
  dialog.file_name = "trailer";
  dialog.initial_directory = FromQString(folder.path());
  dialog.default_extension = ".ecu";
  dialog.filter = "ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt|All Files (*.*)|*.*";
  dialog.path_must_exist = true;
  const auto file = Choose(dialog, [](QFileDialog& shown) {
    EXPECT_EQ(shown.windowTitle(), "Save it");
    EXPECT_EQ(shown.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(shown.nameFilters(), (QStringList{"ECU (*.ecu)", "Text (*.txt)", "All Files (*)"}));
    EXPECT_TRUE(shown.testOption(QFileDialog::DontUseNativeDialog));
    Enter(shown, {});
  });
  EXPECT_EQ(file, Path("trailer.ecu"));
}

TEST_F(DialogsTest, SaveDialogReplacesAFileWithoutAQuestion) {
  QFile existing(folder.filePath("old.ecu"));
  ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
  existing.close();
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.initial_directory = FromQString(folder.path());
  EXPECT_EQ(Choose(dialog, [](QFileDialog& shown) { Enter(shown, "old.ecu"); }), Path("old.ecu"));
}

TEST_F(DialogsTest, SaveDialogWantsAFolderThatIsThere) {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.initial_directory = FromQString(folder.path());
  dialog.path_must_exist = true;
  const auto file = Choose(dialog, [](QFileDialog& shown) {
    WhenModal([&shown](QWidget* warning) {
      EXPECT_TRUE(warning->inherits("QMessageBox"));
      Press(warning, Qt::Key_Escape);
      EXPECT_TRUE(shown.isVisible());
    });
    Enter(shown, "nowhere/x.ecu");
    Enter(shown, "x.ecu");
  });
  EXPECT_EQ(file, Path("x.ecu"));
}

TEST_F(DialogsTest, OpenDialogWantsAFileThatIsThere) {
  FileDialog dialog;
  dialog.initial_directory = FromQString(folder.path());
  dialog.default_extension = ".ecu";
  dialog.filter = "ECU (*.ecu)|*.ecu";
  dialog.file_must_exist = true;
  const auto file = Choose(dialog, [](QFileDialog& shown) {
    WhenModal([](QWidget* warning) { Press(warning, Qt::Key_Escape); });
    Enter(shown, "missing");
    EXPECT_TRUE(shown.isVisible());
    shown.reject();
  });
  EXPECT_EQ(file, std::nullopt);
}

TEST_F(DialogsTest, OpenDialogGivesTheWholePath) {
  QFile existing(folder.filePath("this.ecu"));
  ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
  existing.close();
  FileDialog dialog;
  dialog.initial_directory = FromQString(folder.path());
  dialog.default_extension = ".ecu";
  dialog.filter = "ECU (*.ecu)|*.ecu";
  dialog.file_must_exist = true;
  EXPECT_EQ(Choose(dialog, [](QFileDialog& shown) { Enter(shown, "this"); }), Path("this.ecu"));
}

TEST_F(DialogsTest, ListGivesTheChosenRow) {
  WhenModal([](QWidget* modal) {
    EXPECT_EQ(modal->objectName(), "dlgChoose");
    auto* list = modal->findChild<QListWidget*>("lstChoose");
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->currentRow(), 1);
    list->setCurrentRow(2);
    static_cast<QDialog*>(modal)->accept();
  });
  EXPECT_EQ(desktop.ChooseFromList("Language", {"a", "b", "c"}, 1), 2);
}

TEST_F(DialogsTest, CancelledListGivesNothing) {
  WhenModal([](QWidget* modal) { Press(modal, Qt::Key_Escape); });
  EXPECT_EQ(desktop.ChooseFromList("Language", {"a", "b"}, 1), std::nullopt);
}

}  // namespace
}  // namespace lorimet
