#include "tests/frmStopLight.h"

#include "session/link_library.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr int kInterval = 500;            // ms
constexpr std::int16_t kTrailer1 = 0x89;  // SAE J1587 message identifier of its brakes
constexpr std::int16_t kOff = 0;
constexpr std::int16_t kOn = 1;

}  // namespace

frmStopLight::frmStopLight(Desktop& desktop, Dictionary& dictionary, LinkLibrary& link)
    : Form(desktop, "frmStopLight"), dictionary_(dictionary), link_(link) {
  help_page = "stop_light.html";
  cmdTrl1On.on_click = [this] { Switch(kOn); };
  cmdTrl1Off.on_click = [this] { Switch(kOff); };
  Command1.on_click = [this] {
    SwitchOff();
    Unload();
  };
  Timer1.on_tick = [this] { link_.Trailer_OVG_StopLightActivation(nTrailer_, nLightState_); };
}

void frmStopLight::OnLoad() {
  dictionary_.TranslateForm(*this);
  CenterOnScreen();
  nTrailer_ = kTrailer1;
  nLightState_ = kOff;
  Timer1.SetEnabled(false);
  Timer1.SetInterval(kInterval);
  // Where a key that is pressed by habit lights nothing.
  Command1.SetFocus();
}

// The first command goes out on the next tick, and every tick repeats it.
void frmStopLight::Switch(std::int16_t state) {
  nLightState_ = state;
  Timer1.SetEnabled(true);
}

void frmStopLight::SwitchOff() {
  link_.Trailer_OVG_StopLightActivation(nTrailer_, kOff);
  Timer1.SetEnabled(false);
}

// The window's close box leaves no light on either.
void frmStopLight::OnQueryUnload(bool& cancel, UnloadMode mode) {
  static_cast<void>(cancel);
  if (mode == UnloadMode::kControlMenu) SwitchOff();
}

}  // namespace lorimet
