#include "parameters/frmOVGParm1.h"

#include "parameters/parameter_map.h"
#include "parameters/wizard_step.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr int kRows = 5;  // of the axle definition
constexpr const char* kBlank = " ";

// The diagram row of an axle by the number of axles, one to three; -1 is not drawn.
// clang-format off
constexpr int kDiagramRow[parameter::kAxles][3] = {
    { 1,  1, 0},
    {-1,  2, 1},
    {-1, -1, 2},
};
// clang-format on

// The letters of a diagram row, by sensors and mounting.
struct Letters {
  const char* left;
  const char* right;
};
constexpr Letters kLetters[][2] = {
    {{"c", "d"}, {"d", "c"}},  // rear, forward
    {{"e", "f"}, {"f", "e"}},
};

// The record can hold a number that no item stands for; the array then stays without a selection.
void Select(const ControlArray<OptionButton>& options, int index) {
  if (index >= 0 && index < options.Size()) options[index].SetValue(true);
}

}  // namespace

frmOVGParm1::frmOVGParm1(const WizardParts& parts)
    : Form(parts.desktop, "frmOVGParm1"), parts_(parts) {
  const auto bind = [this](auto& options, void (frmOVGParm1::*action)(int)) {
    options.OnClick([this, action](int index) {
      (this->*action)(index);
      TellChoices();
    });
  };
  bind(optVehicleType, &frmOVGParm1::OnVehicleType);
  bind(optNumAxles, &frmOVGParm1::OnNumAxles);
  bind(optABSSystem, &frmOVGParm1::OnABSSystem);
  bind(optSuspensionType, &frmOVGParm1::OnSuspensionType);
  bind(optSensorCD, &frmOVGParm1::OnSensor);
  bind(optSensorEF, &frmOVGParm1::OnSensor);
  bind(optSLAC, &frmOVGParm1::OnStopLightCable);
  chkModularMounting.on_click = [this] {
    OnModularMounting();
    TellChoices();
  };
  help_page = "system_page.html";
  cmdNext.on_click = [this] { OnNext(); };
  cmdClose.on_click = [this] { Unload(); };
}

// --- Loading -------------------------------------------------------------------------------------

void frmOVGParm1::OnLoad() {
  bLoading_ = true;
  nAxlePos_ = {};
  parts_.dictionary.TranslateForm(*this);
  lblStep.SetCaption(StepWords(parts_, WizardStep::kSystem));
  CenterOnScreen();
  Select(optVehicleType, parts_.ecu_data.nVehicleType.Load());
  LoadMounting();
  for (auto& box : txtSensor) box->SetText(parts_.dictionary.Translate("N/A"));
  LoadNumAxles();
  LoadABSSystem();
  Select(optSuspensionType, parts_.ecu_data.nMechanicalSuspension.Load());
  LoadAxles();
  LoadStopLightCable();
  bLoading_ = false;
  TellChoices();
}

void frmOVGParm1::LoadMounting() {
  const std::int16_t mounting = parts_.ecu_data.nMounting.Load();
  if (mounting != 0 && mounting != 1) return;
  chkModularMounting.SetValue(mounting == 0);
  ShowMounting();
}

void frmOVGParm1::LoadNumAxles() {
  const std::int16_t n = parts_.ecu_data.nNumAxles.Load();
  parts_.image.nNumAxlesSelected = n;
  if (n < 1 || n > kRows) {
    optNumAxles[1].SetValue(true);
    return;
  }
  optNumAxles[n - 1].SetValue(true);
  for (int row = n; row < kRows; ++row) {
    optSensorCD[row].SetEnabled(false);
    optSensorEF[row].SetEnabled(false);
    chkLiftAxle1[row].SetEnabled(false);
  }
  if (n == 1) {
    optABSSystem[1].SetEnabled(false);
    nAxlePos_[0] = 1;
  } else if (n == 2) {
    nAxlePos_[0] = 1;
    nAxlePos_[1] = 2;
  } else if (n == 3) {
    nAxlePos_[0] = 0;
    nAxlePos_[1] = 1;
    nAxlePos_[2] = 2;
  }
}

void frmOVGParm1::LoadABSSystem() {
  const int sensors = parts_.ecu_data.bNumSensors.Load();
  const int modulators = parts_.ecu_data.bNumModulators.Load();
  if (sensors == 2 && modulators == 1) {
    optABSSystem[4].SetEnabled(true);
    optABSSystem[0].SetEnabled(false);
    optABSSystem[1].SetEnabled(false);
    optABSSystem[4].SetValue(true);
  } else if (sensors == 2) {
    optABSSystem[0].SetEnabled(true);
    optABSSystem[1].SetEnabled(false);
    optABSSystem[4].SetEnabled(false);
    optABSSystem[0].SetValue(true);
  } else if (modulators == 2) {
    optABSSystem[0].SetEnabled(true);
    optABSSystem[1].SetEnabled(true);
    optABSSystem[4].SetEnabled(false);
    optABSSystem[1].SetValue(true);
  }
}

void frmOVGParm1::LoadAxles() {
  for (int axle = 0; axle < parameter::kAxles; ++axle) {
    const auto at = static_cast<std::size_t>(axle);
    const std::int16_t sensors = parts_.ecu_data.nAxleSensors[at].Load();
    if (sensors == 1) optSensorCD[axle].SetValue(true);
    if (sensors == 2) optSensorEF[axle].SetValue(true);
    if (sensors == 1 || sensors == 2) DisplayAxle(nAxlePos_[at], sensors);
    const std::int16_t lift = parts_.ecu_data.nAxleLift[at].Load();
    if (lift == 1) chkLiftAxle1[axle].SetValue(true);
    if (lift == 3) chkLiftAxle2[axle].SetValue(true);
  }
}

void frmOVGParm1::LoadStopLightCable() {
  const ParameterImage& image = parts_.image;
  const bool present = image.EOL9.bNumBytes != 0;
  const bool configured =
      present && parameter::kStopLightInstalled.In(image) != 0 &&
      parameter::kStopLightLetter.In(image) == 'I' && parameter::kStopLightMode.In(image) == 3 &&
      parameter::kStopLightPin.In(image) > 0 && parameter::kStopLightOption.In(image) != 0;
  frameSLAC.SetEnabled(present);
  const int item = parameter::kStopLightPin.In(image) == 177 ? 1 : 0;
  optSLAC[configured ? item : 2].SetValue(true);
  parts_.image.bStopLightCable = configured;
}

void frmOVGParm1::OnQueryUnload(bool& cancel, UnloadMode) {
  if (bLoading_) cancel = true;
}

// --- Choices -------------------------------------------------------------------------------------

void frmOVGParm1::OnVehicleType(int index) {
  if (bLoading_) return;
  parameter::kVehicleType.Put(parts_.image, index);
}

void frmOVGParm1::OnModularMounting() {
  if (bLoading_) return;
  parameter::kMounting.Put(parts_.image, 0);
  parameter::kRearMounted.Put(parts_.image, chkModularMounting.Value() ? 0 : 1);
  ShowMounting();
  UpdateDisplay();
}

// Runs while the page loads, too.
void frmOVGParm1::OnABSSystem(int index) {
  const bool two_sensors = index == 0 || index == 4;
  optNumAxles[0].SetEnabled(two_sensors);
  if (two_sensors) {
    for (auto& option : optSensorEF) option->SetEnabled(false);
  } else {
    optSensorEF[0].SetEnabled(true);
    optSensorEF[1].SetEnabled(true);
  }
  parameter::kAbsSystem.Put(parts_.image, index);
  UpdateDisplay();
}

void frmOVGParm1::OnSuspensionType(int index) {
  if (bLoading_) return;
  parameter::kMechanical.Put(parts_.image, index);
  parameter::kSuspensionInputs.Put(parts_.image, 0);
  ApplySuspension(index == 1);
}

// Touches no block, and runs while the page loads, too.
void frmOVGParm1::OnNumAxles(int index) {
  parts_.image.nNumAxlesSelected = static_cast<std::int16_t>(index + 1);
  if (index == 0) {
    if (optABSSystem[1].Value()) {
      optABSSystem[1].SetEnabled(false);
      optABSSystem[1].SetValue(false);
      optABSSystem[0].SetValue(true);
      for (auto& option : optSensorEF) option->SetEnabled(false);
    }
    HideAxle(0);
    nAxlePos_[0] = 1;
    HideAxle(2);
  } else {
    optABSSystem[1].SetEnabled(true);
    if (index == 1) HideAxle(0);
    const std::int16_t first = index == 1 ? 1 : 0;
    nAxlePos_[0] = first;
    nAxlePos_[1] = static_cast<std::int16_t>(first + 1);
    if (index != 1) nAxlePos_[2] = 2;
  }
  UpdateDisplay();
  const bool with_ef = index != 0 && parts_.ecu_data.bNumModulators.Load() > 1;
  for (int row = 0; row < kRows; ++row) {
    const bool used = row <= index;
    optSensorCD[row].SetEnabled(used);
    chkLiftAxle1[row].SetEnabled(used);
    if (!used || with_ef) optSensorEF[row].SetEnabled(used);
  }
}

void frmOVGParm1::OnSensor(int) { UpdateDisplay(); }

void frmOVGParm1::OnStopLightCable(int) {
  parts_.image.bStopLightCable = optSLAC[0].Value() || optSLAC[1].Value();
}

void frmOVGParm1::ApplySuspension(bool mechanical) {
  ParameterImage& image = parts_.image;
  parameter::kPathSensing.Put(image, mechanical ? 1 : 0);
  parameter::kBellowsSensing.Put(image, mechanical ? 0 : 1);
  const bool one_modulator = parts_.ecu_data.bNumModulators.Load() == 1;
  const int sensor = one_modulator ? 20 : 148;
  parameter::kSuspensionPin.Put(image, mechanical ? sensor : 0);
}

// --- The diagram ---------------------------------------------------------------------------------

void frmOVGParm1::ShowMounting() {
  picOVG_ECU.SetImage(chkModularMounting.Value() ? "picOVGFwd" : "picOVGRear");
}

void frmOVGParm1::HideAxle(int nPos) {
  for (const int box : {nPos, nPos + 3}) {
    txtSensor[box].SetText(kBlank);
    txtSensor[box].SetEnabled(false);
    txtSensor[box].SetVisible(false);
  }
}

void frmOVGParm1::DisplayAxle(int nPos, int nSensors) {
  if (nPos < 0) return;
  const bool lettered = nSensors == 1 || nSensors == 2;
  const Letters letters = lettered ? kLetters[nSensors - 1][chkModularMounting.Value() ? 1 : 0]
                                   : Letters{kBlank, kBlank};
  txtSensor[nPos].SetText(letters.left);
  txtSensor[nPos + 3].SetText(letters.right);
  for (const int box : {nPos, nPos + 3}) {
    txtSensor[box].SetEnabled(true);
    txtSensor[box].SetVisible(lettered);
  }
}

void frmOVGParm1::UpdateDisplay() {
  if (bLoading_) return;
  for (int row = 0; row < 3; ++row) HideAxle(row);
  DisplayAxle(1, 0);
  int last = 0;
  if (optNumAxles[1].Value()) {
    DisplayAxle(2, 0);
    last = 1;
  } else if (optNumAxles[2].Value()) {
    DisplayAxle(0, 0);
    DisplayAxle(2, 0);
    last = 2;
  }
  for (int axle = 0; axle <= last; ++axle) {
    const int row = kDiagramRow[axle][last];
    if (optSensorCD[axle].Value()) {
      DisplayAxle(row, 1);
      chkLiftAxle1[axle].SetEnabled(false);
    }
    if (optABSSystem[1].Value() && optSensorEF[axle].Value()) {
      DisplayAxle(row, 2);
      chkLiftAxle1[axle].SetEnabled(true);
    }
  }
}

// --- Leaving -------------------------------------------------------------------------------------

void frmOVGParm1::StoreAxle(int axle) {
  int sensors = 0;
  if (optSensorCD[axle].Value() && optSensorCD[axle].Enabled()) sensors += 1;
  if (optSensorEF[axle].Value() && optSensorEF[axle].Enabled()) sensors += 2;
  parameter::AxleSensors(axle).Put(parts_.image, sensors);
  int lift = 0;
  if (chkLiftAxle1[axle].Value()) lift += 1;
  if (chkLiftAxle2[axle].Value()) lift += 3;
  parameter::AxleLift(axle).Put(parts_.image, lift);
}

void frmOVGParm1::TellChoices() {
  if (bLoading_) return;
  SystemChoices& choices = parts_.choices;
  choices.air_suspension = optSuspensionType[0].Value();
  choices.two_sensors = optABSSystem[0].Value() || optABSSystem[4].Value();
  for (int item = 0; item < optSLAC.Size(); ++item)
    if (optSLAC[item].Value()) choices.stop_light = static_cast<StopLightCable>(item);
  for (int i = 0; i < txtSensor.Size(); ++i)
    choices.diagram[static_cast<std::size_t>(i)] = {txtSensor[i].Text(), txtSensor[i].Enabled()};
  choices.picture = picOVG_ECU.Image();
}

void frmOVGParm1::OnNext() {
  for (int axle = 0; axle < parameter::kAxles; ++axle) StoreAxle(axle);
  ApplySuspension(optSuspensionType[1].Value());
  Hide();
  if (parts_.ecu_data.bNumModulators.Load() == 1)
    ContinueWith(*parts_.pages.load_sensing);
  else
    ContinueWith(*parts_.pages.gio);
}

}  // namespace lorimet
