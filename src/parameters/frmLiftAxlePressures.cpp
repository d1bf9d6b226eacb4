#include "parameters/frmLiftAxlePressures.h"

#include "parameters/memory_word.h"
#include "parameters/parameter_map.h"
#include "support/dictionary.h"
#include "support/numbers.h"

namespace lorimet {
namespace {

constexpr MemoryAddress kLoweringAddress{2, 7, 0x0E};
constexpr MemoryAddress kLiftingAddress{2, 7, 0x10};
constexpr double kCounts = 5120;  // are 14 psi
constexpr double kPsi = 14;
constexpr int kLeastDifference = 5;  // psi

std::string PressureOf(const MemoryWord& word, const char* unknown) {
  if (word.first == 0 && word.second == 0) return unknown;
  return FormatNumber((word.first * 256 + word.second) / kCounts * kPsi, "#0");
}

// Error 6 from 90 psi on, whose counts do not fit.
BytePair CountsOf(std::int16_t psi) {
  const std::int16_t counts = ToInteger(psi / kPsi * kCounts);
  const int high = counts / 256;
  return {ToByte(high), ToByte(counts % 256)};
}

std::int16_t WholePsi(const TextBox& field) { return ToInteger(NumericValue(field.Text())); }

}  // namespace

frmLiftAxlePressures::frmLiftAxlePressures(const WizardParts& parts)
    : SideDialog(parts.desktop, "frmLiftAxlePressures"),
      parts_(parts),
      checks_(*this, parts.dictionary) {
  checks_.Watch(txtLiftingPress, 1, 100,
                "Lifting Pressure out of range.  Valid range : 0 - 100 psi");
  checks_.Watch(txtLoweringPress, 1, 100,
                "Lowering Pressure out of range.  Valid range : 0 - 100 psi");
  help_page = "lift_axle_pressures.html";
  Command1.on_click = [this] {
    if (checks_.Accept()) OnAccept();
  };
}

void frmLiftAxlePressures::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  txtLoweringPress.SetText(PressureOf(ReadMemoryWord(parts_.link, kLoweringAddress, 2), "43"));
  txtLiftingPress.SetText(PressureOf(ReadMemoryWord(parts_.link, kLiftingAddress, 1), "29"));
}

void frmLiftAxlePressures::OnAccept() {
  const std::int16_t lowering = WholePsi(txtLoweringPress);
  const std::int16_t lifting = WholePsi(txtLiftingPress);
  if (lifting > lowering) {
    ShowPlainMessage(*this, parts_.dictionary,
                     "Lifting Pressure must be less than Lowering Pressure.", "Invalid Values");
    txtLiftingPress.SetFocus();
    return;
  }
  if (lowering - lifting < kLeastDifference) {
    ShowPlainMessage(*this, parts_.dictionary,
                     "Lifting Pressure and Lowering Pressure must differ by "
                     "more than 5 psi.",
                     "Invalid Values");
    return;
  }
  parameter::kLoweringPressure.Put(parts_.image, CountsOf(lowering));
  parameter::kLiftingPressure.Put(parts_.image, CountsOf(lifting));
  Confirm();
}

}  // namespace lorimet
