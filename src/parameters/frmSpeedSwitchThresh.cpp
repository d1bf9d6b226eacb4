#include "parameters/frmSpeedSwitchThresh.h"

#include <cstdint>
#include <string>

#include "parameters/memory_word.h"
#include "parameters/parameter_map.h"
#include "support/dictionary.h"
#include "support/numbers.h"

namespace lorimet {
namespace {

constexpr MemoryAddress kThresholdsAddress{2, 0x0B, 0x59};
constexpr int kLeastDifference = 2;  // kph

std::string SpeedOf(std::uint8_t byte, const char* unknown) {
  return byte == 0 ? unknown : std::to_string(byte);
}

std::int16_t WholeKph(const TextBox& field) { return ToInteger(NumericValue(field.Text())); }

}  // namespace

frmSpeedSwitchThresh::frmSpeedSwitchThresh(const WizardParts& parts)
    : SideDialog(parts.desktop, "frmSpeedSwitchThresh"),
      parts_(parts),
      checks_(*this, parts.dictionary) {
  checks_.Watch(txtTurnOnThresh, 2, 100, "Turn On Thresh out of range.  Valid range : 2 - 100 kph");
  checks_.Watch(txtTurnOffThresh, 0, 100,
                "Turn Off Thresh out of range.  Valid range : 0 - 100 kph");
  help_page = "speed_switch.html";
  Command1.on_click = [this] {
    if (checks_.Accept()) OnAccept();
  };
}

void frmSpeedSwitchThresh::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  const MemoryWord thresholds = ReadMemoryWord(parts_.link, kThresholdsAddress, 2);
  txtTurnOnThresh.SetText(SpeedOf(thresholds.second, "0"));
  txtTurnOffThresh.SetText(SpeedOf(thresholds.first, "21"));
}

void frmSpeedSwitchThresh::OnAccept() {
  const std::int16_t turn_on = WholeKph(txtTurnOnThresh);
  const std::int16_t turn_off = WholeKph(txtTurnOffThresh);
  if (turn_off > turn_on) {
    ShowPlainMessage(*this, parts_.dictionary,
                     "Turn OFF Threshold must be less than Turn ON Threshold.", "Invalid Values");
    txtTurnOnThresh.SetFocus();
    return;
  }
  if (turn_on - turn_off < kLeastDifference) {
    // The words are those of the lift axle's dialog.
    ShowPlainMessage(*this, parts_.dictionary,
                     "Lifting Pressure and Lowering Pressure must differ by "
                     "more than 2 kph.",
                     "Invalid Values");
    return;
  }
  parameter::kTurnOnSpeed.Put(parts_.image, ToByte(turn_on));
  parameter::kTurnOffSpeed.Put(parts_.image, ToByte(turn_off));
  Confirm();
}

}  // namespace lorimet
