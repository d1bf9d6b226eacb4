// The services that every floor uses, put together: settings, language, help, the small dialogs.
#pragma once

#include <string>

#include "support/dictionary.h"
#include "support/frmAbout.h"
#include "support/frmErr.h"
#include "support/frmPDFDDEForm.h"
#include "support/frmRP1210Err.h"
#include "support/help.h"
#include "support/settings.h"

namespace lorimet {

struct SupportPart {
  SupportPart(Desktop& desktop, Registry& registry, Process& process, HelpViewer& help_viewer,
              TranslationSource& translations);

  Settings settings;
  Dictionary dictionary;
  Help help;
  frmErr err;
  frmRP1210Err rp1210_error;
  frmAbout about;
  frmPDFDDEForm pdf_link;
};

}  // namespace lorimet
