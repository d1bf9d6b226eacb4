#include "adapters/qt/qt_translations.h"

#include <QTranslator>
#include <utility>

#include "adapters/qt/qt_text.h"

namespace lorimet {
namespace {

constexpr char kContext[] = "lorimet";

std::unique_ptr<QTranslator> Load(const std::string& folder, const QString& name) {
  auto translator = std::make_unique<QTranslator>();
  // The file is named whole, so that no file of another language stands in for it.
  if (!translator->load(ToQString(folder) + QLatin1Char('/') + name)) return nullptr;
  return translator;
}

}  // namespace

QtTranslations::QtTranslations(std::string folder) : folder_(std::move(folder)) {}

QtTranslations::~QtTranslations() = default;

bool QtTranslations::Open() {
  french_ = Load(folder_, QStringLiteral("lorimet_fr.qm"));
  spanish_ = Load(folder_, QStringLiteral("lorimet_es.qm"));
  return french_ != nullptr || spanish_ != nullptr;
}

std::string QtTranslations::Lookup(int language, const std::string& key) {
  const QTranslator* translator = nullptr;
  if (language == kFrench) translator = french_.get();
  if (language == kSpanish) translator = spanish_.get();
  if (translator == nullptr || key.empty()) return {};
  return FromQString(translator->translate(kContext, key.c_str()));
}

}  // namespace lorimet
