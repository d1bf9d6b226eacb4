// The dialog of the vehicle speeds at which the speed switch turns on and off.
#pragma once

#include "parameters/range_check.h"
#include "parameters/side_dialog.h"
#include "parameters/wizard.h"

namespace lorimet {

class frmSpeedSwitchThresh : public SideDialog {
 public:
  explicit frmSpeedSwitchThresh(const WizardParts& parts);

  Label lblTurnOnThresh{*this, "lblTurnOnThresh"};
  TextBox txtTurnOnThresh{*this, "txtTurnOnThresh"};
  Label lblTurnOffThresh{*this, "lblTurnOffThresh"};
  TextBox txtTurnOffThresh{*this, "txtTurnOffThresh"};
  Label lblNote{*this, "lblNote"};
  Button Command1{*this, "Command1"};

 protected:
  void OnLoad() override;

 private:
  void OnAccept();

  WizardParts parts_;
  RangeChecks checks_;
};

}  // namespace lorimet
