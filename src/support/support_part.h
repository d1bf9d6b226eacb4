// The services that every floor uses, put together: settings, language, help, the small dialogs.
#pragma once

#include <functional>
#include <string>

#include "support/dictionary.h"
#include "support/frmAbout.h"
#include "support/frmErr.h"
#include "support/frmNotBuilt.h"
#include "support/frmPDFDDEForm.h"
#include "support/frmRP1210Err.h"
#include "support/help.h"
#include "support/settings.h"

namespace lorimet {

struct SupportPart {
  SupportPart(Desktop& desktop, Registry& registry, Process& process, HelpViewer& help_viewer,
              TranslationSource& translations);

  // What a command does whose screen is still to be built; `caption` is a key of the dictionary.
  std::function<void()> NotBuilt(const std::string& caption);

  Settings settings;
  Dictionary dictionary;
  Help help;
  frmErr err;
  frmRP1210Err rp1210_error;
  frmAbout about;
  frmNotBuilt not_built;
  frmPDFDDEForm pdf_link;
};

}  // namespace lorimet
