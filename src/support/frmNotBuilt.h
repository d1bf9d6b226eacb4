// The screen in place of one whose own screen is still to be built.
#pragma once

#include <string>

#include "platform/forms.h"

namespace lorimet {

class Dictionary;

class frmNotBuilt : public Form {
 public:
  frmNotBuilt(Desktop& desktop, Dictionary& dictionary);

  Label lblText{*this, "lblText"};
  Button cmdClose{*this, "cmdClose"};

  // Shows the form modally under the caption of the command, a key of the dictionary.
  void ShowFor(const std::string& command);

 protected:
  void OnLoad() override;

 private:
  Dictionary& dictionary_;
  std::string command_;
};

}  // namespace lorimet
