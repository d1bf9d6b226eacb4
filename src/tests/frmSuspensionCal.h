// The calibration of the height sensor of a trailer on mechanical suspension.
//
// The e-f half is shown and does nothing: only the c-d sensor is polled and can be calibrated.
#pragma once

#include <cstdint>

#include "platform/forms.h"
#include "tests/test_frame.h"

namespace lorimet {

class Faults;

class frmSuspensionCal : public Form {
 public:
  frmSuspensionCal(const TestParts& parts, Faults& faults);

  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  Label Label3{*this, "Label3"};
  Label lblHeightCD{*this, "lblHeightCD"};
  TextBox txtHeightCD{*this, "txtHeightCD"};
  Label lblHeightEF{*this, "lblHeightEF"};
  TextBox txtHeightEF{*this, "txtHeightEF"};
  ControlArray<Button> cmdCalHgtSensor{*this, "cmdCalHgtSensor", 2};
  Button cmdClose{*this, "cmdClose"};
  Timer Timer1{*this, "Timer1"};

 protected:
  void OnLoad() override;

 private:
  void OnTick();
  void ShowCounts();
  void Calibrate(int index);
  void Close();

  TestParts parts_;
  Faults& faults_;
  bool overflow_reported_ = false;
};

}  // namespace lorimet
