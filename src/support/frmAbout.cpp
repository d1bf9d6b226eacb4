#include "support/frmAbout.h"

#include "support/dictionary.h"
#include "support/version.h"

namespace lorimet {

frmAbout::frmAbout(Desktop& desktop, Dictionary& dictionary)
    : Form(desktop, "frmAbout"), dictionary_(dictionary) {
  escape_closes = true;
  cmdOK.on_click = [this] { Unload(); };
}

void frmAbout::OnLoad() {
  // The title, the description and the notice are in the form's design.
  dictionary_.TranslateForm(*this);
  lblVersion.SetCaption(dictionary_.Translate("Version") + " " + std::to_string(kVersionMajor) +
                        "." + std::to_string(kVersionMinor) + "." +
                        std::to_string(kVersionRevision));
  CenterOnScreen();
}

}  // namespace lorimet
