#include "parameters/wizard_step.h"

#include "session/ecu_data.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

void Replace(std::string& text, const char* mark, int number) {
  const std::size_t at = text.find(mark);
  if (at != std::string::npos) text.replace(at, 2, std::to_string(number));
}

}  // namespace

std::string StepWords(const WizardParts& parts, WizardStep step) {
  const bool gio = parts.ecu_data.bNumModulators.Load() != 1;
  const int skipped = !gio && step > WizardStep::kGio ? 1 : 0;
  std::string words = parts.dictionary.Translate("Step %1 of %2");
  Replace(words, "%1", static_cast<int>(step) + 1 - skipped);
  Replace(words, "%2", gio ? 4 : 3);
  return words;
}

}  // namespace lorimet
