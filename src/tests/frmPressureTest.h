// The pressure test: do the modulators deliver the brake pressures that the load-sensing parameters
// promise?
//
// The program simulates load and control pressure and compares what both modulators deliver at
// five points, laden and unladen. A pressure that does not come in is waited for until the operator
// closes the screen; there is no failure that the screen itself decides.
#pragma once

#include <cstdint>

#include "platform/forms.h"
#include "tests/test_frame.h"

namespace lorimet {

class frmPressureTest : public Form {
 public:
  explicit frmPressureTest(const TestParts& parts);

  Label lblSupply{*this, "lblSupply"};
  TextBox txtSupply{*this, "txtSupply"};
  Label lblDemand{*this, "lblDemand"};
  TextBox txtDemand{*this, "txtDemand"};
  TextBox txtStatus{*this, "txtStatus"};

  // The readings, modulator H1 in the even rows and H2 in the odd ones.
  Frame fraReadings{*this, "fraReadings"};
  ControlArray<Label> lblColumn{*this, "lblColumn", 4};
  ControlArray<Label> lblRow{*this, "lblRow", 10};
  ControlArray<Label> lblControl{*this, "lblControl", 10};
  ControlArray<Label> lblTarget{*this, "lblTarget", 10};
  ControlArray<TextBox> txtActual{*this, "txtActual", 10};
  ControlArray<Label> lblStatus{*this, "lblStatus", 10};

  Button cmdStart{*this, "cmdStart"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
  Timer Timer1{*this, "Timer1"};

 protected:
  void OnLoad() override;

 private:
  // What one state from 4 to 8 measures.
  struct Point {
    bool laden;
    double control;  // psi
    double target;   // psi
    int row;         // of modulator H1; H2 is the next
  };

  void FillRows();
  void Start();
  void OnTick();
  void WaitForNoControlPressure();
  void WaitForSupply();
  void CheckBellows();
  void Measure();
  void Finish();
  Point PointOfState() const;
  void SendLoad(bool laden);
  void SendControl(double psi);
  bool Judge(int row, double actual, double target);
  bool Mechanical() const;

  TestParts parts_;
  std::uint8_t nState_ = 1;
};

}  // namespace lorimet
