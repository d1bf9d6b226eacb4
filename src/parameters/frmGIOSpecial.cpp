#include "parameters/frmGIOSpecial.h"

#include <cstdint>

#include "parameters/parameter_map.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

using namespace parameter;

constexpr int kSpeedSwitchBox = 2;

// A box shows as checked when all its bytes are these.
struct Mark {
  int box;
  ByteField field;
  std::uint8_t value;
};
// clang-format off
constexpr Mark kMarks[] = {
    {0, kSuspensionLaden,       54},
    {0, kSuspensionUnladen,     10},
    {0, kHydraulicPin1,        147},
    {0, kHydraulicPin2,        145},
    {1, kConstantPowerPin,     161},
    {1, kSharedPin,             65},
    {2, kTurnOnSpeed,           21},
    {2, kSpeedSwitch,            1},
    {2, kTurnOffSpeed,           0},
    {2, kSpeedSwitchMode,        1},
    {2, kSpeedSwitchKind,        7},
};

// What a box writes when the dialog is closed.
struct SpecialWrite {
  int box;
  bool checked;
  FieldWrite write;
};
constexpr SpecialWrite kSpecialWrites[] = {
    {0, true,  SetBits(kHydraulicSensor)},
    {0, true,  PutByte(kGuardOptions,         160)},
    {0, true,  PutByte(kHydraulicPin1,        147)},
    {0, true,  PutByte(kHydraulicPin2,        145)},
    {0, false, ClearBits(kHydraulicSensor)},
    {0, false, PutByte(kGuardOptions,         176)},
    {0, false, PutByte(kHydraulicPin1,          0)},
    {0, false, PutByte(kHydraulicPin2,          0)},

    {1, true,  PutByte(kSharedPin,             65)},
    {1, true,  PutByte(kConstantPowerPin,     161)},
    {1, true,  SetBits(kConstantPower)},
    {1, false, PutByte(kConstantPowerPin,       0)},
    {1, false, ClearBits(kConstantPower)},

    {2, true,  PutByte(kSpeedSwitch,            1)},
    {2, true,  PutByte(kSpeedSwitchMode,        1)},
    {2, true,  PutByte(kSpeedSwitchKind,        7)},
    {2, true,  PutByte(kSpeedSwitchPin,       177)},
    {2, false, PutByte(kSpeedSwitch,            0)},
    {2, false, PutByte(kTurnOnSpeed,           15)},
    {2, false, PutByte(kTurnOffSpeed,          10)},
    {2, false, PutByte(kSpeedSwitchMode,        2)},
    {2, false, PutByte(kSpeedSwitchPin,         0)},
};

// What is written in every case, the suspension pressures first of all.
constexpr FieldWrite kAlways[] = {
    PutByte(kSuspensionUnladen,     10),
    PutByte(kSuspensionLaden,       54),
    PutByte(Connector(39),         209),
    PutByte(Connector(40),         211),
    PutByte(Connector(41),         212),
    PutByte(GioValue(35),            3),
    PutByte(GioValue(36),            3),
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
