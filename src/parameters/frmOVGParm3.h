// The last page of the parameter wizard: Overturn Guard, tyres and teeth, and the two ways to save.
#pragma once

#include "parameters/range_check.h"
#include "parameters/wizard.h"
#include "platform/forms.h"

namespace lorimet {

class Clock;
class Faults;
class FoundConfiguration;
class ParameterFile;

class frmOVGParm3 : public Form {
 public:
  frmOVGParm3(const WizardParts& parts, Clock& clock, Faults& faults, ParameterFile& file,
              FoundConfiguration& found);

  Frame fraOVG{*this, "fraOVG"};
  ControlArray<OptionButton> optOVGStatus{*this, "optOVGStatus", 4};
  Frame fraTires{*this, "fraTires"};
  Label lblTireSize{*this, "lblTireSize"};
  Label lblNumTeeth{*this, "lblNumTeeth"};
  Label lblAxleCD{*this, "lblAxleCD"};
  Label lblAxleEF{*this, "lblAxleEF"};
  ControlArray<TextBox> txtTireSize{*this, "txtTireSize", 2};
  ControlArray<TextBox> txtNumTeeth{*this, "txtNumTeeth", 2};
  TextBox txtStatus{*this, "txtStatus"};
  Label lblStep{*this, "lblStep"};
  Button cmdSaveToECU{*this, "cmdSaveToECU"};
  Button cmdSaveToFile{*this, "cmdSaveToFile"};
  Button cmdPrev{*this, "cmdPrev"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  // Puts the page and the stop light choice of the system page into the image.
  void GetSettingsFromGUI();
  void StoreOverturnGuard();
  void StoreStopLight();
  void SaveToEcu();
  void SaveToFile();
  void Previous();
  void Close();

  WizardParts parts_;
  Clock& clock_;
  Faults& faults_;
  ParameterFile& file_;
  FoundConfiguration& found_;
  RangeChecks checks_;
};

}  // namespace lorimet
