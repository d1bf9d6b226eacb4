#include "support/support_part.h"

namespace lorimet {

SupportPart::SupportPart(Desktop& desktop, Registry& registry, Process& process,
                         HelpViewer& help_viewer, TranslationSource& translations)
    : settings(registry),
      dictionary(translations, desktop),
      help(settings, process, help_viewer, dictionary, desktop),
      err(desktop, dictionary),
      rp1210_error(desktop, dictionary),
      about(desktop, dictionary),
      pdf_link(desktop) {
  dictionary.on_language_changed.push_back([this] { help.BuildPath(); });
}

}  // namespace lorimet
