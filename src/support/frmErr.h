// The dialog that tells that the link runs badly or was lost.
#pragma once

#include "platform/forms.h"

namespace lorimet {

class Dictionary;

// Loaded once at start and kept loaded, so that its words can be changed before it is shown.
class frmErr : public Form {
 public:
  frmErr(Desktop& desktop, Dictionary& dictionary);

  Label lblErr{*this, "lblErr"};
  Picture Picture1{*this, "Picture1"};
  Button cmdOK{*this, "cmdOK"};

 protected:
  void OnLoad() override;
  // Closing by the control menu hides the form instead.
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  Dictionary& dictionary_;
};

}  // namespace lorimet
