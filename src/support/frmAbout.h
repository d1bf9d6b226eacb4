// The about box.
#pragma once

#include "platform/forms.h"

namespace lorimet {

class Dictionary;

class frmAbout : public Form {
 public:
  frmAbout(Desktop& desktop, Dictionary& dictionary);

  Picture picIcon{*this, "picIcon"};
  Label lblTitle{*this, "lblTitle"};
  Label lblVersion{*this, "lblVersion"};
  Label lblDescription{*this, "lblDescription"};
  Label lblDisclaimer{*this, "lblDisclaimer"};
  Button cmdOK{*this, "cmdOK"};

 protected:
  void OnLoad() override;

 private:
  Dictionary& dictionary_;
};

}  // namespace lorimet
