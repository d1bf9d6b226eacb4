// The GIO page of the parameter wizard: the choice of ready-made functions of the generic inputs
// and outputs.
#pragma once

#include "parameters/wizard.h"
#include "platform/forms.h"

namespace lorimet {

// Each load starts the function blocks from their defaults with no box checked, whatever the ECU
// holds.
class frmGIOSelection : public Form {
 public:
  explicit frmGIOSelection(const WizardParts& parts);

  ControlArray<CheckBox> chkGIO{*this, "chkGIO", 9};
  Label lblStep{*this, "lblStep"};
  Button cmdPrev{*this, "cmdPrev"};
  Button cmdNext{*this, "cmdNext"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  void OnFunction(int index);
  void OnNext();
  void OnClose();

  WizardParts parts_;
};

}  // namespace lorimet
