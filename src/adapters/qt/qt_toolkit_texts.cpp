#include "adapters/qt/qt_toolkit_texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <utility>

#include "platform/translation_source.h"

namespace lorimet {
namespace {

QString FileOf(int language) {
  if (language == kFrench) return QStringLiteral("qtbase_fr.qm");
  if (language == kSpanish) return QStringLiteral("qtbase_es.qm");
  return {};
}

}  // namespace

QtToolkitTexts::QtToolkitTexts(QStringList folders) : folders_(std::move(folders)) {}

QStringList QtToolkitTexts::DefaultFolders() {
  return {QCoreApplication::applicationDirPath() + QStringLiteral("/translations"),
          QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
}

void QtToolkitTexts::SetLanguage(int language) {
  translator_.reset();
  const QString file = FileOf(language);
  if (file.isEmpty()) return;
  for (const QString& folder : folders_) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(folder + QLatin1Char('/') + file)) continue;
    QCoreApplication::installTranslator(translator.get());
    translator_ = std::move(translator);
    return;
  }
}

}  // namespace lorimet
