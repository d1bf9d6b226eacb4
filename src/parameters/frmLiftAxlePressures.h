// The dialog of the pressures at which the lift axle is lowered and lifted.
#pragma once

#include "parameters/range_check.h"
#include "parameters/side_dialog.h"
#include "parameters/wizard.h"

namespace lorimet {

class frmLiftAxlePressures : public SideDialog {
 public:
  explicit frmLiftAxlePressures(const WizardParts& parts);

  Label lblLoweringPress{*this, "lblLoweringPress"};
  TextBox txtLoweringPress{*this, "txtLoweringPress"};
  Label lblLiftingPress{*this, "lblLiftingPress"};
  TextBox txtLiftingPress{*this, "txtLiftingPress"};
  Button Command1{*this, "Command1"};

 protected:
  void OnLoad() override;

 private:
  void OnAccept();

  WizardParts parts_;
  RangeChecks checks_;
};

}  // namespace lorimet
