// The dialog of the special GIO functions, opened from the GIO page.
#pragma once

#include "parameters/side_dialog.h"
#include "parameters/wizard.h"

namespace lorimet {

class frmGIOSpecial : public SideDialog {
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
