// The redundancy test: does the trailer brake through its pneumatic path with the electronics
// switched out?
//
// The operator builds up reservoir and control pressure, the ECU is switched into redundancy mode,
// and both modulators are compared once with the lower of the two. The screen closes by itself
// after the comparison, whatever came of it.
#pragma once

#include <cstdint>

#include "platform/forms.h"
#include "tests/test_frame.h"

namespace lorimet {

class frmRedundancyTest : public Form {
 public:
  explicit frmRedundancyTest(const TestParts& parts);

  TextBox txtStatus{*this, "txtStatus"};
  Label lblSupplyPressure{*this, "lblSupplyPressure"};
  TextBox txtSupplyPressure{*this, "txtSupplyPressure"};
  Label lblControlPressure{*this, "lblControlPressure"};
  TextBox txtControlPressure{*this, "txtControlPressure"};

  Frame fraModulators{*this, "fraModulators"};
  Label lblTargetPressure{*this, "lblTargetPressure"};
  Label lblActualPressure{*this, "lblActualPressure"};
  Label lblStatus{*this, "lblStatus"};
  Label lblH1{*this, "lblH1"};
  TextBox txtH1TargetPressure{*this, "txtH1TargetPressure"};
  TextBox txtH1ActualPressure{*this, "txtH1ActualPressure"};
  Label lblStatusH1{*this, "lblStatusH1"};
  Label lblH2{*this, "lblH2"};
  TextBox txtH2TargetPressure{*this, "txtH2TargetPressure"};
  TextBox txtH2ActualPressure{*this, "txtH2ActualPressure"};
  Label lblStatusH2{*this, "lblStatusH2"};

  Button cmdStart{*this, "cmdStart"};
  Button cmdStop{*this, "cmdStop"};
  Button cmdClose{*this, "cmdClose"};
  Timer Timer1{*this, "Timer1"};

 protected:
  void OnLoad() override;

 private:
  void Start();
  void Stop();
  void Close();
  void OnTick();
  void ShowPressures();
  void WaitForSupply();
  void SwitchOver();
  void WaitForSupplyAgain();
  void WaitForControlAgain();
  void Compare();
  bool Judge(Label& label, double actual, double target, std::int16_t& stored);
  void Finish();

  TestParts parts_;
  std::uint8_t nState_ = 1;
};

}  // namespace lorimet
