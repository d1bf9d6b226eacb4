// The dialog of the special GIO functions, opened from the GIO page.
#pragma once

#include "parameters/wizard.h"
#include "platform/forms.h"

namespace lorimet {

class frmGIOSpecial : public Form {
 public:
  explicit frmGIOSpecial(const WizardParts& parts);

  Frame fraPerkins{*this, "fraPerkins"};
  ControlArray<CheckBox> chkPerkins{*this, "chkPerkins", 3};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  void OnFunction(int index);
  void OnClose();

  WizardParts parts_;
  bool loading_ = false;
};

}  // namespace lorimet
