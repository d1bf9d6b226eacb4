// The lamp test: the trailer's warning lamp blinks, and a person says whether it does.
#pragma once

#include <cstdint>

#include "platform/forms.h"
#include "tests/test_frame.h"

namespace lorimet {

class frmLampTest : public Form {
 public:
  explicit frmLampTest(const TestParts& parts);

  TextBox txtStatus{*this, "txtStatus"};
  Label lblWarningLamp{*this, "lblWarningLamp"};
  Button cmdYes{*this, "cmdYes"};
  Button cmdNo{*this, "cmdNo"};
  Timer Timer1{*this, "Timer1"};

 protected:
  void OnLoad() override;

 private:
  void OnTick();
  void Answer(std::int16_t result);

  TestParts parts_;
  std::uint8_t nLampState_ = 0;  // as last commanded
};

}  // namespace lorimet
