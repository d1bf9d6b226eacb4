#include "parameters/frmGIOSpecial.h"

#include <cstdint>

#include "parameters/parameter_map.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr int kSpeedSwitchBox = 2;

// A box shows as checked when all its bytes are these.
struct Mark {
  int box;
  ByteField field;
  std::uint8_t value;
};
// clang-format off
constexpr Mark kMarks[] = {
    {0, parameter::kSuspensionLaden,       54},
    {0, parameter::kSuspensionUnladen,     10},
    {0, parameter::kHydraulicPin1,        147},
    {0, parameter::kHydraulicPin2,        145},
    {1, parameter::kConstantPowerPin,     161},
    {1, parameter::kSharedPin,             65},
    {2, parameter::kTurnOnSpeed,           21},
    {2, parameter::kSpeedSwitch,            1},
    {2, parameter::kTurnOffSpeed,           0},
    {2, parameter::kSpeedSwitchMode,        1},
    {2, parameter::kSpeedSwitchKind,        7},
};

// What a box writes when the dialog is closed.
struct SpecialWrite {
  int box;
  bool checked;
  FieldWrite write;
};
constexpr SpecialWrite kSpecialWrites[] = {
    {0, true,  SetBits(parameter::kHydraulicSensor)},
    {0, true,  PutByte(parameter::kGuardOptions,         160)},
    {0, true,  PutByte(parameter::kHydraulicPin1,        147)},
    {0, true,  PutByte(parameter::kHydraulicPin2,        145)},
    {0, false, ClearBits(parameter::kHydraulicSensor)},
    {0, false, PutByte(parameter::kGuardOptions,         176)},
    {0, false, PutByte(parameter::kHydraulicPin1,          0)},
    {0, false, PutByte(parameter::kHydraulicPin2,          0)},

    {1, true,  PutByte(parameter::kSharedPin,             65)},
    {1, true,  PutByte(parameter::kConstantPowerPin,     161)},
    {1, true,  SetBits(parameter::kConstantPower)},
    {1, false, PutByte(parameter::kConstantPowerPin,       0)},
    {1, false, ClearBits(parameter::kConstantPower)},

    {2, true,  PutByte(parameter::kSpeedSwitch,            1)},
    {2, true,  PutByte(parameter::kSpeedSwitchMode,        1)},
    {2, true,  PutByte(parameter::kSpeedSwitchKind,        7)},
    {2, true,  PutByte(parameter::kSpeedSwitchPin,       177)},
    {2, false, PutByte(parameter::kSpeedSwitch,            0)},
    {2, false, PutByte(parameter::kTurnOnSpeed,           15)},
    {2, false, PutByte(parameter::kTurnOffSpeed,          10)},
    {2, false, PutByte(parameter::kSpeedSwitchMode,        2)},
    {2, false, PutByte(parameter::kSpeedSwitchPin,         0)},
};

// What is written in every case, the suspension pressures first of all.
constexpr FieldWrite kAlways[] = {
    PutByte(parameter::kSuspensionUnladen,     10),
    PutByte(parameter::kSuspensionLaden,       54),
    PutByte(parameter::Connector(39),         209),
    PutByte(parameter::Connector(40),         211),
    PutByte(parameter::Connector(41),         212),
    PutByte(parameter::GioValue(35),            3),
    PutByte(parameter::GioValue(36),            3),
};
// clang-format on

bool IsMarked(int box, const ParameterImage& image) {
  for (const Mark& mark : kMarks)
    if (mark.box == box && mark.field.In(image) != mark.value) return false;
  return true;
}

}  // namespace

frmGIOSpecial::frmGIOSpecial(const WizardParts& parts)
    : SideDialog(parts.desktop, "frmGIOSpecial"), parts_(parts) {
  chkPerkins.OnClick([this](int index) { OnFunction(index); });
  help_page = "gio_selection.html";
  cmdClose.on_click = [this] { OnClose(); };
}

void frmGIOSpecial::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  // What the image holds already needs no dialog.
  loading_ = true;
  for (int box = 0; box < chkPerkins.Size(); ++box)
    chkPerkins[box].SetValue(IsMarked(box, parts_.image));
  loading_ = false;
}

void frmGIOSpecial::OnFunction(int index) {
  if (loading_ || index != kSpeedSwitchBox || !chkPerkins[index].Value()) return;
  // Left by its close box it has asked for nothing.
  if (!parts_.pages.speed_switch->Ask(*this) && Loaded()) chkPerkins[index].SetValue(false);
}

void frmGIOSpecial::OnClose() {
  for (const SpecialWrite& row : kSpecialWrites)
    if (chkPerkins[row.box].Value() == row.checked) ApplyWrites(row.write, parts_.image);
  ApplyWrites(kAlways, parts_.image);
  Confirm();
}

}  // namespace lorimet
