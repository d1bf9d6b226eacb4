// The invisible form that the link to a manual's viewer is to hang on; no command uses it yet.
#pragma once

#include "platform/forms.h"

namespace lorimet {

class frmPDFDDEForm : public Form {
 public:
  explicit frmPDFDDEForm(Desktop& desktop) : Form(desktop, "frmPDFDDEForm") {}

  TextBox txtDDE{*this, "txtDDE"};
};

}  // namespace lorimet
