// The system page of the parameter wizard: vehicle, ABS system, suspension, axles and the stop
// light activation cable.
#pragma once

#include <array>
#include <cstdint>

#include "parameters/wizard.h"
#include "platform/forms.h"

namespace lorimet {

class frmOVGParm1 : public Form {
 public:
  explicit frmOVGParm1(const WizardParts& parts);

  Frame fraVehicleType{*this, "fraVehicleType"};
  ControlArray<OptionButton> optVehicleType{*this, "optVehicleType", 3};
  Frame fraNumAxles{*this, "fraNumAxles"};
  ControlArray<OptionButton> optNumAxles{*this, "optNumAxles", 5};
  Frame fraABSSystem{*this, "fraABSSystem"};
  ControlArray<OptionButton> optABSSystem{*this, "optABSSystem", 5};
  Frame fraSuspensionType{*this, "fraSuspensionType"};
  ControlArray<OptionButton> optSuspensionType{*this, "optSuspensionType", 2};
  Frame fraModularMounting{*this, "fraModularMounting"};
  CheckBox chkModularMounting{*this, "chkModularMounting"};

  Frame fraAxleDefinition{*this, "fraAxleDefinition"};
  Label lblAxle{*this, "lblAxle"};
  Label lblSensorCD{*this, "lblSensorCD"};
  Label lblSensorEF{*this, "lblSensorEF"};
  Label lbl3rdModulator{*this, "lbl3rdModulator"};
  Label lblLiftAxle1{*this, "lblLiftAxle1"};
  Label lblLiftAxle2{*this, "lblLiftAxle2"};
  Label lblAsTagAxle{*this, "lblAsTagAxle"};
  ControlArray<Label> lblAxleNumber{*this, "lblAxleNumber", 5};
  ControlArray<OptionButton> optSensorCD{*this, "optSensorCD", 5};
  ControlArray<OptionButton> optSensorEF{*this, "optSensorEF", 5};
  ControlArray<CheckBox> chk3rdModulator{*this, "chk3rdModulator", 5};
  ControlArray<CheckBox> chkLiftAxle1{*this, "chkLiftAxle1", 5};
  ControlArray<CheckBox> chkLiftAxle2{*this, "chkLiftAxle2", 5};
  ControlArray<CheckBox> chkAsTagAxle{*this, "chkAsTagAxle", 5};

  Frame frameSLAC{*this, "frameSLAC"};
  ControlArray<OptionButton> optSLAC{*this, "optSLAC", 3};

  // The diagram: boxes p and p + 3 are the wheels of row p.
  Frame fraDiagram{*this, "fraDiagram"};
  ControlArray<TextBox> txtSensor{*this, "txtSensor", 6};
  Picture picOVG_ECU{*this, "picOVG_ECU"};
  Picture picOVGFwd{*this, "picOVGFwd"};
  Picture picOVGRear{*this, "picOVGRear"};

  Label lblStep{*this, "lblStep"};
  Button cmdNext{*this, "cmdNext"};
  Button cmdClose{*this, "cmdClose"};

  // Draws the letters of all axles anew.
  void UpdateDisplay();
  // Blanks and hides the boxes of a diagram row, 0 to 2.
  void HideAxle(int nPos);
  // Shows a diagram row with the letters of sensors 1 (c-d) or 2 (e-f), or blank and hidden with 0.
  // A row below 0 is not drawn.
  void DisplayAxle(int nPos, int nSensors);

 protected:
  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  void LoadMounting();
  void LoadNumAxles();
  void LoadABSSystem();
  void LoadAxles();
  void LoadStopLightCable();

  void OnVehicleType(int index);
  void OnModularMounting();
  void OnABSSystem(int index);
  void OnSuspensionType(int index);
  void OnNumAxles(int index);
  void OnSensor(int index);
  void OnStopLightCable(int index);
  void OnNext();

  void TellChoices();
  void ShowMounting();
  void ApplySuspension(bool mechanical);
  void StoreAxle(int axle);

  WizardParts parts_;
  bool bLoading_ = false;
  std::array<std::int16_t, 4> nAxlePos_{};
};

}  // namespace lorimet
