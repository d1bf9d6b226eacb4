// A dialog beside a page of the parameter wizard: what is entered counts only when it is confirmed.
#pragma once

#include "platform/forms.h"

namespace lorimet {

class SideDialog : public Form {
 public:
  using Form::Form;

  // Shows it over `owner`. False when it was left by its close box.
  bool Ask(Form& owner) {
    confirmed_ = false;
    Show(Modality::kModal, &owner);
    return confirmed_;
  }

 protected:
  void Confirm() {
    confirmed_ = true;
    Unload();
  }

 private:
  bool confirmed_ = false;
};

}  // namespace lorimet
