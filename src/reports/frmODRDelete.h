// The screen that erases parts of the operating data recorder: a click acts at once.
#pragma once

#include "platform/forms.h"

namespace lorimet {

class Dictionary;
class LinkLibrary;

class frmODRDelete : public Form {
 public:
  frmODRDelete(Desktop& desktop, Dictionary& dictionary, LinkLibrary& link);

  Frame Frame1{*this, "Frame1"};
  ControlArray<CheckBox> chkODRDel{*this, "chkODRDel", 3};
  Button cmdClose{*this, "cmdClose"};

 protected:
  void OnLoad() override;

 private:
  Dictionary& dictionary_;
};

}  // namespace lorimet
