#include "adapters/qt/qt_dialogs.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "adapters/qt/qt_pictures.h"
#include "adapters/qt/qt_text.h"

namespace lorimet {
namespace {

struct ButtonRow {
  BoxButton button;
  QMessageBox::StandardButton standard;
  std::string MessageBox::*caption;
};

constexpr ButtonRow kButtons[] = {
    {kBoxYes, QMessageBox::Yes, &MessageBox::yes},
    {kBoxNo, QMessageBox::No, &MessageBox::no},
    {kBoxOk, QMessageBox::Ok, &MessageBox::ok},
    {kBoxCancel, QMessageBox::Cancel, &MessageBox::cancel},
};

struct IconRow {
  BoxIcon icon;
  QMessageBox::Icon kind;
  const char* picture;
};

constexpr IconRow kIcons[] = {
    {BoxIcon::kInformation, QMessageBox::Information, "box_information"},
    {BoxIcon::kQuestion, QMessageBox::Question, "box_question"},
    {BoxIcon::kWarning, QMessageBox::Warning, "box_warning"},
    {BoxIcon::kCritical, QMessageBox::Critical, "box_critical"},
};

// The kind stays known to the window system and to screen readers; the picture is ours.
void SetIcon(BoxIcon icon, QMessageBox& dialog) {
  for (const IconRow& row : kIcons) {
    if (row.icon != icon) continue;
    dialog.setIcon(row.kind);
    if (auto* label = dialog.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")))
      label->setPixmap(LoadPicture(QLatin1String(row.picture), dialog.devicePixelRatioF()));
  }
}

// Adds the buttons and gives back the one that closing the box stands for: Cancel, else the last.
BoxButton AddButtons(const MessageBox& box, QMessageBox& dialog) {
  BoxButton last = kBoxOk;
  const unsigned wanted = box.buttons != 0 ? box.buttons : static_cast<unsigned>(kBoxOk);
  for (const ButtonRow& row : kButtons) {
    if (!(wanted & row.button)) continue;
    QPushButton* button = dialog.addButton(row.standard);
    if (!(box.*row.caption).empty()) button->setText(ToWidgetText(box.*row.caption));
    if (dialog.defaultButton() == nullptr) dialog.setDefaultButton(button);
    dialog.setEscapeButton(button);
    last = row.button;
  }
  return last;
}

bool NativeDialogsAllowed() {
  const QString platform = QGuiApplication::platformName();
  return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

// "ECU (*.ecu)|*.ecu|All Files (*.*)|*.*" to the toolkit's "ECU (*.ecu)", "All Files (*)".
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQString(filter).split(QLatin1Char('|'), Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString words = parts[i];
    words.truncate(words.indexOf(QLatin1Char('(')));
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    // Every file, those without an extension among them.
    patterns.replace(QStringLiteral("*.*"), QStringLiteral("*"));
    filters << QStringLiteral("%1 (%2)").arg(words.trimmed(), patterns);
  }
  return filters;
}

// Stays open when the folder of a name to be written is not there.
class FileChooser : public QFileDialog {
 public:
  FileChooser(QWidget* parent, bool path_must_exist)
      : QFileDialog(parent), path_must_exist_(path_must_exist) {}

  void accept() override {
    const QStringList files = selectedFiles();
    if (path_must_exist_ && !files.isEmpty()) {
      const QString folder = QFileInfo(files.front()).absolutePath();
      if (!QFileInfo(folder).isDir()) {
        QMessageBox::warning(this, windowTitle(),
                             QCoreApplication::translate(
                                 "QFileDialog",
                                 "%1\nDirectory not found.\nPlease verify the correct directory "
                                 "name was given.")
                                 .arg(QDir::toNativeSeparators(folder)));
        return;
      }
    }
    QFileDialog::accept();
  }

 private:
  bool path_must_exist_;
};

void SetUp(const FileDialog& dialog, QFileDialog& chooser) {
  const bool is_save = dialog.kind == FileDialog::Kind::kSave;
  chooser.setObjectName(QStringLiteral("dlgFile"));
  chooser.setWindowModality(Qt::WindowModal);
  chooser.setOption(QFileDialog::DontUseNativeDialog, !NativeDialogsAllowed());
  chooser.setOption(QFileDialog::DontConfirmOverwrite, true);
  chooser.setAcceptMode(is_save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  chooser.setFileMode(dialog.file_must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  if (!dialog.title.empty()) chooser.setWindowTitle(ToQString(dialog.title));
  if (!dialog.filter.empty()) chooser.setNameFilters(NameFilters(dialog.filter));
  if (!dialog.initial_directory.empty()) chooser.setDirectory(ToQString(dialog.initial_directory));
  QString suffix = ToQString(dialog.default_extension);
  if (suffix.startsWith(QLatin1Char('.'))) suffix.remove(0, 1);
  if (!suffix.isEmpty()) chooser.setDefaultSuffix(suffix);
  if (!dialog.file_name.empty()) chooser.selectFile(ToQString(dialog.file_name));
}

}  // namespace

BoxButton RunMessageBox(const MessageBox& box, QWidget* parent) {
  // On the heap: the parent may end while the box is open, and takes the box with it.
  QPointer<QMessageBox> dialog = new QMessageBox(parent);
  dialog->setObjectName(QStringLiteral("msgBox"));
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setTextFormat(Qt::PlainText);
  SetIcon(box.icon, *dialog);
  dialog->setWindowTitle(ToWidgetText(box.title));
  dialog->setText(ToWidgetText(box.text));
  BoxButton answer = AddButtons(box, *dialog);
  const int result = dialog->exec();
  for (const ButtonRow& row : kButtons)
    if (result == row.standard) answer = row.button;
  delete dialog;
  return answer;
}

std::optional<std::string> RunFileDialog(const FileDialog& dialog, QWidget* parent) {
  QPointer<QFileDialog> chooser = new FileChooser(parent, dialog.path_must_exist);
  SetUp(dialog, *chooser);
  std::optional<std::string> result;
  if (chooser->exec() == QDialog::Accepted && chooser != nullptr) {
    const QStringList files = chooser->selectedFiles();
    if (!files.isEmpty()) result = FromQString(QDir::toNativeSeparators(files.front()));
  }
  delete chooser;
  return result;
}

std::optional<int> RunListDialog(const std::string& title, const std::vector<std::string>& items,
                                 int selected, QWidget* parent) {
  QPointer<QDialog> dialog = new QDialog(parent);
  dialog->setObjectName(QStringLiteral("dlgChoose"));
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setWindowTitle(ToWidgetText(title));
  auto* list = new QListWidget(dialog);
  list->setObjectName(QStringLiteral("lstChoose"));
  list->setAccessibleName(ToWidgetText(title));
  for (const std::string& item : items) list->addItem(ToWidgetText(item));
  list->setCurrentRow(selected);
  auto* buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog.data());
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(list);
  layout->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog.data(), &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog.data(), &QDialog::reject);
  QObject::connect(list, &QListWidget::itemDoubleClicked, dialog.data(), &QDialog::accept);
  std::optional<int> result;
  if (dialog->exec() == QDialog::Accepted && dialog != nullptr && list->currentRow() >= 0)
    result = list->currentRow();
  delete dialog;
  return result;
}

}  // namespace lorimet
