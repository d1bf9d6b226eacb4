// The French and Spanish texts, from the translation files inside the program.
#pragma once

#include <memory>
#include <string>

#include "platform/translation_source.h"

class QTranslator;

namespace lorimet {

class QtTranslations : public TranslationSource {
 public:
  // The folder of lorimet_fr.qm and lorimet_es.qm.
  explicit QtTranslations(std::string folder = ":/translations");
  ~QtTranslations() override;

  // False when neither file is there; a language whose file is missing has no texts.
  bool Open() override;
  std::string Lookup(int language, const std::string& key) override;

 private:
  std::string folder_;
  std::unique_ptr<QTranslator> french_;
  std::unique_ptr<QTranslator> spanish_;
};

}  // namespace lorimet
