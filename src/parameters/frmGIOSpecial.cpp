#include "parameters/frmGIOSpecial.h"

#include <cstdint>

#include "parameters/block_writes.h"
#include "parameters/frmSpeedSwitchThresh.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr int kSpeedSwitch = 2;

// A box shows as checked when all its bytes are these.
struct Mark {
  int box;
  BlockName block;
  int index;
  std::uint8_t value;
};
// clang-format off
constexpr Mark kMarks[] = {
    {0, kEOL1, 34,  54},
    {0, kEOL1, 33,  10},
    {0, kEOL5, 30, 147},
    {0, kEOL5, 31, 145},
    {1, kEOL5, 21, 161},
    {1, kEOL5, 20,  65},
    {2, kEOL3,  1,  21},
    {2, kEOL2,  1,   1},
    {2, kEOL3,  2,   0},
    {2, kEOL3,  3,   1},
    {2, kEOL3,  5,   7},
};

// What a box writes when the dialog is closed.
struct SpecialWrite {
  int box;
  bool checked;
  BlockWrite write;
};
constexpr SpecialWrite kSpecialWrites[] = {
    {0, true,  PutBits(kEOL2,   3, 0x40)},
    {0, true,  PutByte(kEOL2,   5,  160)},
    {0, true,  PutByte(kEOL5,  30,  147)},
    {0, true,  PutByte(kEOL5,  31,  145)},
    {0, false, ClearBits(kEOL2, 3, 0x40)},
    {0, false, PutByte(kEOL2,   5,  176)},
    {0, false, PutByte(kEOL5,  30,    0)},
    {0, false, PutByte(kEOL5,  31,    0)},

    {1, true,  PutByte(kEOL5,  20,   65)},
    {1, true,  PutByte(kEOL5,  21,  161)},
    {1, true,  PutBits(kEOL2,   3, 0x01)},
    {1, false, PutByte(kEOL5,  21,    0)},
    {1, false, ClearBits(kEOL2, 3, 0x01)},

    {2, true,  PutByte(kEOL2,   1,    1)},
    {2, true,  PutByte(kEOL3,   3,    1)},
    {2, true,  PutByte(kEOL3,   5,    7)},
    {2, true,  PutByte(kEOL5,   1,  177)},
    {2, false, PutByte(kEOL2,   1,    0)},
    {2, false, PutByte(kEOL3,   1,   15)},
    {2, false, PutByte(kEOL3,   2,   10)},
    {2, false, PutByte(kEOL3,   3,    2)},
    {2, false, PutByte(kEOL5,   1,    0)},
};

// What is written in every case, the suspension pressures first of all.
constexpr BlockWrite kAlways[] = {
    PutByte(kEOL1, 33,  10),
    PutByte(kEOL1, 34,  54),
    PutByte(kEOL5, 39, 209),
    PutByte(kEOL5, 40, 211),
    PutByte(kEOL5, 41, 212),
    PutByte(kEOL3, 35,   3),
    PutByte(kEOL3, 36,   3),
};
// clang-format on

bool IsMarked(int box, const ParameterImage& image) {
  for (const Mark& mark : kMarks)
    if (mark.box == box && (image.*mark.block)(mark.index) != mark.value) return false;
  return true;
}

}  // namespace

frmGIOSpecial::frmGIOSpecial(const WizardParts& parts)
    : Form(parts.desktop, "frmGIOSpecial"), parts_(parts) {
  chkPerkins.OnClick([this](int index) { OnFunction(index); });
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
  if (loading_ || index != kSpeedSwitch || !chkPerkins[index].Value()) return;
  parts_.pages.speed_switch->Show(Modality::kModal, this);
}

void frmGIOSpecial::OnClose() {
  for (const SpecialWrite& row : kSpecialWrites)
    if (chkPerkins[row.box].Value() == row.checked) ApplyWrites(row.write, parts_.image);
  ApplyWrites(kAlways, parts_.image);
  Unload();
}

}  // namespace lorimet
