#include "support/frmNotBuilt.h"

#include <algorithm>

#include "support/dictionary.h"

namespace lorimet {

frmNotBuilt::frmNotBuilt(Desktop& desktop, Dictionary& dictionary)
    : Form(desktop, "frmNotBuilt"), dictionary_(dictionary) {
  escape_closes = true;
  cmdClose.on_click = [this] { Unload(); };
}

void frmNotBuilt::ShowFor(const std::string& command) {
  command_ = command;
  Show(Modality::kModal);
}

void frmNotBuilt::OnLoad() {
  dictionary_.TranslateForm(*this);
  std::string caption = dictionary_.Translate(command_);
  std::erase(caption, '&');
  SetCaption(caption);
  CenterOnScreen();
}

}  // namespace lorimet
