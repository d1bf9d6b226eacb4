#include "parameters/frmOVGParm3.h"

#include "parameters/conversions.h"
#include "parameters/parameter_file.h"
#include "parameters/parameter_map.h"
#include "parameters/parameter_writing.h"
#include "parameters/record_refresh.h"
#include "parameters/wizard_step.h"
#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"

namespace lorimet {
namespace {

// Items of optOVGStatus.
constexpr int kNotAvailable = 0;
constexpr int kOff = 1;
constexpr int kSingleTires = 2;
constexpr int kTwinTires = 3;

}  // namespace

frmOVGParm3::frmOVGParm3(const WizardParts& parts, Clock& clock, Faults& faults,
                         ParameterFile& file, FoundConfiguration& found)
    : Form(parts.desktop, "frmOVGParm3"),
      parts_(parts),
      clock_(clock),
      faults_(faults),
      file_(file),
      found_(found),
      checks_(*this, parts.dictionary) {
  help_page = "overturn_guard.html";
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
  // Both drop what is in the field that is left.
  cmdPrev.causes_validation = cmdClose.causes_validation = false;
  cmdPrev.on_click = [this] { Previous(); };
  cmdClose.on_click = [this] { Close(); };
}

void frmOVGParm3::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  lblStep.SetCaption(StepWords(parts_, WizardStep::kOverturnGuard));
  CenterOnScreen();
  const ParameterImage& image = parts_.image;
  optOVGStatus[kNotAvailable].SetEnabled(false);
  const bool on = parameter::kOverturnGuard.In(image) != 0;
  const bool twin = parameter::kTwinTyres.In(image) != 0;
  optOVGStatus[!on ? kOff : twin ? kTwinTires : kSingleTires].SetValue(true);
  if (parts_.choices.two_sensors) {
    txtTireSize[1].SetEnabled(false);
    txtNumTeeth[1].SetEnabled(false);
  }
  for (int i = 0; i < 2; ++i) {
    txtTireSize[i].SetText(TyreText(parameter::kTyreSize[i].In(image)));
    txtNumTeeth[i].SetText(std::to_string(parameter::kNumTeeth[i].In(image)));
  }
}

void frmOVGParm3::GetSettingsFromGUI() {
  StoreOverturnGuard();
  for (int i = 0; i < 2; ++i)
    parameter::kTyreSize[i].Put(parts_.image, TyreByte(txtTireSize[i].Text()));
  for (int i = 0; i < 2; ++i)
    parameter::kNumTeeth[i].Put(parts_.image, TeethByte(txtNumTeeth[i].Text()));
  StoreStopLight();
}

// With the guard off, the kind of tyres keeps its last value.
void frmOVGParm3::StoreOverturnGuard() {
  const bool twin = optOVGStatus[kTwinTires].Value();
  const bool on = twin || optOVGStatus[kSingleTires].Value();
  parameter::kOverturnGuard.Put(parts_.image, on ? 1 : 0);
  if (on) parameter::kTwinTyres.Put(parts_.image, twin ? 1 : 0);
}

void frmOVGParm3::StoreStopLight() {
  ParameterImage& image = parts_.image;
  const StopLightCable cable = parts_.choices.stop_light;
  if (cable != StopLightCable::kNone) {
    parameter::kStopLightInstalled.Put(image, 1);
    parameter::kStopLightLetter.Put(image, 'I');
    parameter::kStopLightMode.Put(image, 3);
    parameter::kStopLightPin.Put(image, cable == StopLightCable::kLevel2Output ? 177 : 65);
    parameter::kSharedOutput.Put(image, 0);
    parameter::kStopLightOption.Put(image, 1);
    return;
  }
  // What the page of the functions has put into these two bytes is given up.
  const bool shared = parts_.ecu_data.bNumModulators.Load() > 1;
  parameter::kOutputOptions.Put(image, 0);
  parameter::kSharedOutput.Put(image, shared ? 1 : 0);
  parameter::kSharedPin.Put(image, shared ? 65 : 0);
  parameter::kStopLightPin.Put(image, 0);
  parameter::kStopLightMode.Put(image, 7);
}

void frmOVGParm3::SaveToEcu() {
  GetSettingsFromGUI();
  RefreshTestFields(parts_.image, parts_.ecu_data);
  WriteParmsToECU({parts_.link, parts_.desktop, parts_.dictionary, clock_, faults_, parts_.image,
                   found_, *this, txtStatus});
  Close();
}

void frmOVGParm3::SaveToFile() {
  GetSettingsFromGUI();
  if (!file_.WriteParmsToFile()) {
    txtStatus.SetText(file_.FailureText(parts_.dictionary));
    return;
  }
  txtStatus.SetText(" ");
  ShowPlainBox(parts_.desktop, "Write to file complete.", "Parameter Data");
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
