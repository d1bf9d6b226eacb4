// The load-sensing page of the parameter wizard: axle loads, suspension and braking pressures, and
// who the trailer is.
#pragma once

#include "parameters/range_check.h"
#include "parameters/wizard.h"
#include "platform/forms.h"

namespace lorimet {

class frmOVGParm2 : public Form {
 public:
  explicit frmOVGParm2(const WizardParts& parts);

  // The rows of the grid are axles.
  Frame fraAxles{*this, "fraAxles"};
  Label lblAxle{*this, "lblAxle"};
  Label lblUnladen{*this, "lblUnladen"};
  Label lblLaden{*this, "lblLaden"};
  Label lblAxleLoadUnladen{*this, "lblAxleLoadUnladen"};
  Label lblAxleLoadLaden{*this, "lblAxleLoadLaden"};
  TextBox txtColHdrUnladen{*this, "txtColHdrUnladen"};
  TextBox txtColHdrLaden{*this, "txtColHdrLaden"};
  Label lblBrakingPressUnladen{*this, "lblBrakingPressUnladen"};
  Label lblBrakingPressLaden{*this, "lblBrakingPressLaden"};
  Label lblPm_AN{*this, "lblPm_AN"};
  Label lblPm_K1{*this, "lblPm_K1"};
  Label lblPm_Max{*this, "lblPm_Max"};
  ControlArray<TextBox> txtNumAxles{*this, "txtNumAxles", 5};
  ControlArray<TextBox> txtAxleLoadUnladen{*this, "txtAxleLoadUnladen", 5};
  ControlArray<TextBox> txtAxleLoadLaden{*this, "txtAxleLoadLaden", 5};
  ControlArray<TextBox> txtSuspensionPressUnladen{*this, "txtSuspensionPressUnladen", 5};
  ControlArray<TextBox> txtSuspensionPressLaden{*this, "txtSuspensionPressLaden", 5};
  ControlArray<TextBox> txtBrakingPressUnladen{*this, "txtBrakingPressUnladen", 5};
  ControlArray<TextBox> txtBrakingPressLadenPm_AN{*this, "txtBrakingPressLadenPm_AN", 5};
  ControlArray<TextBox> txtBrakingPressLadenPm_K1{*this, "txtBrakingPressLadenPm_K1", 5};
  ControlArray<TextBox> txtBrakingPressLadenPm_Max{*this, "txtBrakingPressLadenPm_Max", 5};

  Label lblControlPressure{*this, "lblControlPressure"};
  ControlArray<TextBox> txtControlPressureUnladen{*this, "txtControlPressureUnladen", 1};
  ControlArray<TextBox> txtControlPressureLaden{*this, "txtControlPressureLaden", 3};

  Frame LeverLengthFrame{*this, "LeverLengthFrame"};
  TextBox txtLeverLengthHdr{*this, "txtLeverLengthHdr"};
  ControlArray<TextBox> txtLeverLength{*this, "txtLeverLength", 5};

  ControlArray<TextBox> txtSensor{*this, "txtSensor", 6};
  Picture picOVG_ECU{*this, "picOVG_ECU"};

  Frame fraTrailer{*this, "fraTrailer"};
  Label lblProdDate{*this, "lblProdDate"};
  TextBox txtProdWeek{*this, "txtProdWeek"};
  TextBox txtProdYear{*this, "txtProdYear"};
  Label lblTrailerVIN{*this, "lblTrailerVIN"};
  TextBox txtTrailerVIN{*this, "txtTrailerVIN"};
  Label lblManufacturer{*this, "lblManufacturer"};
  TextBox txtManufacturer{*this, "txtManufacturer"};
  Label lblTrailerType{*this, "lblTrailerType"};
  TextBox txtTrailerType{*this, "txtTrailerType"};

  Label lblStep{*this, "lblStep"};
  Button cmdPrev{*this, "cmdPrev"};
  Button cmdNext{*this, "cmdNext"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  void WatchFields();
  void WatchColumn(const ControlArray<TextBox>& column, double high, const char* complaint);
  void WatchSuspensionLaden();
  bool IsUnused(const ControlArray<TextBox>& column, int row) const;

  void ShowDiagram();
  void ShowIdentity();
  void ShowSuspensionKind();
  void ShowAxle(int i);
  void ShowControlPressures();

  void Next();
  void StoreAxleLoads();
  void StoreSuspension();
  void StoreBrakingPressures();
  void StoreProductionDate();
  void StoreIdentity();
  void Previous();
  void Close();

  WizardParts parts_;
  RangeChecks checks_;
  bool bAirSuspension_ = false;
};

}  // namespace lorimet
