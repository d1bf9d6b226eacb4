// The end-of-line flag by hand: a vehicle is passed or failed without any test.
#pragma once

#include <cstdint>

#include "platform/forms.h"
#include "tests/eol_flag.h"

namespace lorimet {

class Dictionary;

class frmSetEOLBit : public Form {
 public:
  frmSetEOLBit(Desktop& desktop, Dictionary& dictionary, const EolFlagParts& parts);

  Label lblStatus{*this, "lblStatus"};
  TextBox txtStatus{*this, "txtStatus"};
  Label lblWait{*this, "lblWait"};
  Button cmdSetStatusFlag{*this, "cmdSetStatusFlag"};
  Button cmdClearStatusFlag{*this, "cmdClearStatusFlag"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  void Set(std::int16_t bPass);
  void ShowFlag();

  Dictionary& dictionary_;
  EolFlagParts parts_;
  std::uint8_t nEOLStatus_ = 0;  // as last read
};

}  // namespace lorimet
