#include "adapters/qt/qt_help_viewer.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <utility>

#include "adapters/qt/qt_help_window.h"
#include "adapters/qt/qt_text.h"
#include "platform/translation_source.h"

namespace lorimet {
namespace {

std::string LanguageFolder(int language) {
  if (language == kFrench) return "fr";
  if (language == kSpanish) return "es";
  return "en";
}

// The folder of a file whose name may have been written for another system.
QString FolderOf(const std::string& file) {
  QString path = ToQString(file);
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  return QFileInfo(path).path();
}

}  // namespace

QtHelpViewer::QtHelpViewer(std::string program_folder, Translator translate,
                           std::string executable_folder)
    : program_folder_(std::move(program_folder)),
      executable_folder_(std::move(executable_folder)),
      translate_(std::move(translate)) {
  if (executable_folder_.empty())
    executable_folder_ = FromQString(QCoreApplication::applicationDirPath());
}

QtHelpViewer::~QtHelpViewer() { delete window_; }

void QtHelpViewer::SetLanguage(int language) {
  language_ = language;
  // The next call shows the pages and the words of the new one.
  delete window_;
}

std::vector<std::string> QtHelpViewer::Folders(const std::string& help_file) const {
  const QString program = ToQString(program_folder_);
  QStringList roots;
  if (!help_file.empty()) roots << FolderOf(help_file) + QStringLiteral("/help");
  roots << program + QStringLiteral("/help");
  // The place of an installed program: bin/ beside share/.
  const QString executable = ToQString(executable_folder_);
  roots << executable + QStringLiteral("/help");
  roots << executable + QStringLiteral("/../share/norvick-lorimet/help");
  std::vector<std::string> languages{LanguageFolder(language_)};
  if (languages.front() != "en") languages.emplace_back("en");
  QStringList folders;
  for (const QString& root : roots)
    for (const std::string& language : languages)
      folders << QDir::cleanPath(root + QLatin1Char('/') + ToQString(language));
  folders.removeDuplicates();
  std::vector<std::string> result;
  for (const QString& folder : folders) result.push_back(FromQString(folder));
  return result;
}

void QtHelpViewer::Show(const std::string& help_file, HelpCommand command, const std::string& key) {
  if (window_ == nullptr) window_ = new HelpWindow(translate_);
  QStringList folders;
  for (const std::string& folder : Folders(help_file)) folders << ToQString(folder);
  window_->Open(folders);
  // It belongs to no window, so that none that stands modally keeps the user from it.
  if (window_->isVisible()) window_->raise();
  window_->show();
  window_->activateWindow();
  if (command == HelpCommand::kPartialKey)
    window_->ShowSearch(ToQString(key));
  else if (command == HelpCommand::kPage)
    window_->ShowPage(ToQString(key));
  else
    window_->ShowContents();
}

}  // namespace lorimet
