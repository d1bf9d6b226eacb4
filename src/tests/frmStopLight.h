// The stop light activation: the operator switches the trailer's stop lights by hand. It has no
// result.
#pragma once

#include <cstdint>

#include "platform/forms.h"

namespace lorimet {

class Dictionary;
class LinkLibrary;

class frmStopLight : public Form {
 public:
  frmStopLight(Desktop& desktop, Dictionary& dictionary, LinkLibrary& link);

  Button cmdTrl1On{*this, "cmdTrl1On"};
  Button cmdTrl1Off{*this, "cmdTrl1Off"};
  Button Command1{*this, "Command1"};
  Timer Timer1{*this, "Timer1"};

 protected:
  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  void Switch(std::int16_t state);
  void SwitchOff();

  Dictionary& dictionary_;
  LinkLibrary& link_;
  std::int16_t nTrailer_ = 0;
  std::int16_t nLightState_ = 0;
};

}  // namespace lorimet
