#include "parameters/frmOVGParm3.h"

#include "parameters/conversions.h"
#include "parameters/frmGIOSelection.h"
#include "parameters/frmOVGParm1.h"
#include "parameters/frmOVGParm2.h"
#include "parameters/parameter_file.h"
#include "parameters/parameter_writing.h"
#include "parameters/parm_block.h"
#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

// Items of optOVGStatus.
constexpr int kNotAvailable = 0;
constexpr int kOff = 1;
constexpr int kSingleTires = 2;
constexpr int kTwinTires = 3;

// Items of the system page's optSLAC.
constexpr int kLevel2Output = 1;
constexpr int kNoCable = 2;

constexpr std::uint8_t Without(std::uint8_t byte, int bits) {
  return static_cast<std::uint8_t>(byte & ~bits);
}
constexpr std::uint8_t With(std::uint8_t byte, int bits) {
  return static_cast<std::uint8_t>(byte | bits);
}

}  // namespace

frmOVGParm3::frmOVGParm3(const WizardParts& parts, Clock& clock, Faults& faults,
                         ParameterFile& file)
    : Form(parts.desktop, "frmOVGParm3"),
      parts_(parts),
      clock_(clock),
      faults_(faults),
      file_(file),
      checks_(*this, parts.dictionary) {
  for (auto& field : txtNumTeeth)
    checks_.Watch(*field, 50, 130, "Number of Teeth out of range.  Valid range : 50 - 130");
  for (auto& field : txtTireSize)
    checks_.Watch(*field, 1200, 5200, "Tire Size out of range.  Valid range : 1200 - 5200 mm");
  const auto bind = [this](Button& button, void (frmOVGParm3::*action)()) {
    button.on_click = [this, action] {
      if (checks_.Accept()) (this->*action)();
    };
  };
  bind(cmdSaveToECU, &frmOVGParm3::SaveToEcu);
  bind(cmdSaveToFile, &frmOVGParm3::SaveToFile);
  bind(cmdPrev, &frmOVGParm3::Previous);
  bind(cmdClose, &frmOVGParm3::Close);
}

void frmOVGParm3::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  const ParmBlock& vehicle = parts_.image.EOL1;
  optOVGStatus[kNotAvailable].SetEnabled(false);
  const bool on = (parts_.image.EOL2(5) & 0x80) != 0;
  const bool twin = (vehicle(62) & 0x01) != 0;
  optOVGStatus[!on ? kOff : twin ? kTwinTires : kSingleTires].SetValue(true);
  const frmOVGParm1& system = *parts_.pages.system;
  if (system.optABSSystem[0].Value() || system.optABSSystem[4].Value()) {
    txtTireSize[1].SetEnabled(false);
    txtNumTeeth[1].SetEnabled(false);
  }
  txtTireSize[0].SetText(TyreText(vehicle(55)));
  txtTireSize[1].SetText(TyreText(vehicle(56)));
  txtNumTeeth[0].SetText(std::to_string(vehicle(58)));
  txtNumTeeth[1].SetText(std::to_string(vehicle(59)));
}

void frmOVGParm3::GetSettingsFromGUI() {
  StoreOverturnGuard();
  ParmBlock& vehicle = parts_.image.EOL1;
  vehicle(55) = TyreByte(txtTireSize[0].Text());
  vehicle(56) = TyreByte(txtTireSize[1].Text());
  vehicle(58) = TeethByte(txtNumTeeth[0].Text());
  vehicle(59) = TeethByte(txtNumTeeth[1].Text());
  StoreStopLight();
}

// With the guard off, the kind of tyres keeps its last value.
void frmOVGParm3::StoreOverturnGuard() {
  ParmBlock& vehicle = parts_.image.EOL1;
  ParmBlock& guard = parts_.image.EOL2;
  guard(5) = Without(guard(5), 0x80);
  const bool twin = optOVGStatus[kTwinTires].Value();
  if (!twin && !optOVGStatus[kSingleTires].Value()) return;
  guard(5) = With(guard(5), 0x80);
  vehicle(62) = twin ? With(vehicle(62), 0x01) : Without(vehicle(62), 0x01);
}

void frmOVGParm3::StoreStopLight() {
  ParameterImage& image = parts_.image;
  const frmOVGParm1& system = *parts_.pages.system;
  if (!system.optSLAC[kNoCable].Value()) {
    image.EOL9(2) = With(image.EOL9(2), 0x04);
    image.EOL9(15) = 'I';
    image.EOL3(33) = 3;
    image.EOL5(18) = system.optSLAC[kLevel2Output].Value() ? 177 : 65;
    image.EOL2(2) = With(Without(image.EOL2(2), 0x80), 0x20);
    return;
  }
  // What the page of the functions has put into these two bytes is given up.
  image.EOL2(2) = 0;
  image.EOL5(20) = 0;
  if (parts_.ecu_data.bNumModulators.Load() > 1) {
    image.EOL2(2) = With(image.EOL2(2), 0x80);
    image.EOL5(20) = 65;
  }
  image.EOL5(18) = 0;
  image.EOL3(33) = 7;
}

void frmOVGParm3::SaveToEcu() {
  GetSettingsFromGUI();
  RefreshTestFields(parts_.image, parts_.ecu_data);
  WriteParmsToECU({parts_.link, parts_.desktop, parts_.dictionary, clock_, faults_, parts_.image,
                   *this, txtStatus});
  Close();
}

void frmOVGParm3::SaveToFile() {
  GetSettingsFromGUI();
  if (!file_.WriteParmsToFile()) return;
  txtStatus.SetText(" ");
  MessageBox box;
  box.text = "Write to file complete.";
  box.title = "Parameter Data";
  parts_.desktop.ShowMessageBox(box);
  Close();
}

void frmOVGParm3::Previous() {
  Unload();
  ContinueWith(*parts_.pages.load_sensing);
}

void frmOVGParm3::Close() {
  parts_.pages.system->Unload();
  parts_.pages.gio->Unload();
  parts_.pages.load_sensing->Unload();
  Hide();
  Unload();
}

}  // namespace lorimet
