// The dialog that tells that the connection could not be made.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms.h"

namespace lorimet {

class Dictionary;

// Built anew for each failure: the caller sets the two fields, then shows it.
class frmRP1210Err : public Form {
 public:
  frmRP1210Err(Desktop& desktop, Dictionary& dictionary);

  Picture Picture1{*this, "Picture1"};
  Frame fraRP1210{*this, "fraRP1210"};
  Label lblRP1210ErrNum{*this, "lblRP1210ErrNum"};
  Label lblRP1210ErrDesc{*this, "lblRP1210ErrDesc"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdDetails{*this, "cmdDetails"};
  Label lblErr{*this, "lblErr"};

  std::string strErrorText;
  std::int32_t lngRP1210Err = 0;

 protected:
  void OnLoad() override;

 private:
  void HideDetails(bool hide);

  Dictionary& dictionary_;
  bool details_hidden_ = true;
};

}  // namespace lorimet
