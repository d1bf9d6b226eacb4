#include "support/frmErr.h"

#include "support/dictionary.h"
#include "support/text.h"

namespace lorimet {

frmErr::frmErr(Desktop& desktop, Dictionary& dictionary)
    : Form(desktop, "frmErr"), dictionary_(dictionary) {
  escape_closes = true;
  help_page = "connection.html";
  cmdOK.on_click = [this] { Hide(); };
}

void frmErr::OnLoad() {
  CenterOnScreen();
  SetCaption(dictionary_.Translate("Norvick Lorimet"));
  lblErr.SetCaption(dictionary_.Translate("Communications are only partially functioning.") +
                    kCrLf + dictionary_.Translate("Please check your connections between the PC") +
                    kCrLf + dictionary_.Translate("     and the Norvick Trailer ABS ECU."));
  cmdOK.SetCaption(dictionary_.Translate("OK"));
}

void frmErr::OnQueryUnload(bool& cancel, UnloadMode mode) {
  if (mode != UnloadMode::kControlMenu) return;
  Hide();
  cancel = true;
}

}  // namespace lorimet
