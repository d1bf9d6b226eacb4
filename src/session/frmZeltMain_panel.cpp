// The live status panel of the main form.
#include <cmath>
#include <utility>

#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "session/frmZeltMain.h"
#include "session/session_state.h"
#include "session/trailer_plan.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr double kKilometresPerMile = 1.609;
constexpr double kHighestSteerBellows = 181.9;  // psi; a reading from here on is no reading
constexpr double kSpeedNoise = 1.11;            // mph; up to here a wheel shows as standing still
constexpr const char* kLiteralNoData = "N/A";   // shown untranslated where this is used
constexpr int kMixedModulators = 21;            // the number that means 2M + 1M

Color MissingColour(double value) { return value == kNoValue ? kColorOrange : kColorWhite; }

}  // namespace

void frmZeltMain::BindPanel() {
  const auto to_hidden = [this] { txtHidden.SetFocus(); };
  for (TextBox* box :
       {&txtECUType,     &txtConfig,       &txtPartNum,      &txtSerialNum,      &txtSWRev,
        &txtMfgDate,     &txtDiagId,       &txtOdom,         &txtTripOdom,       &txtNextService,
        &txtWarningLamp, &txtServiceBrake, &txtSupply,       &txtBrake1Press,    &txtBrake2Press,
        &txtMainBellows, &txtSteerBellows, &txtPrimaryVolts, &txtExistingFaults, &txtError})
    box->on_got_focus = to_hidden;
  for (auto& box : txtSpeed) box->on_got_focus = to_hidden;
}

std::string frmZeltMain::NoData() const { return parts_.connection.dictionary.Translate("N/A"); }

// `shown` in the mask, unless `value`, the field as the library left it, is missing.
std::string frmZeltMain::OrNoData(double value, double shown, const char* mask) const {
  return value == kNoValue ? NoData() : FormatNumber(shown, mask);
}

void frmZeltMain::ShowIdentity(TextBox& box, const std::string& bytes, bool colour) {
  const bool missing = bytes.empty() || bytes.front() == '\0';
  const std::size_t end = bytes.find_last_not_of('\0') + 1;
  box.SetText(missing ? NoData() : FromCp1252(std::string_view(bytes).substr(0, end)));
  if (colour) box.SetBackColor(missing ? kColorOrange : kColorWhite);
}

std::string frmZeltMain::ConfigurationText() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  const int sensors = ecu.bNumSensors.Load();
  const int modulators = ecu.bNumModulators.Load();
  const bool known = sensors == 0 || sensors == 2 || sensors == 4;
  const std::string text = known ? FormatNumber(sensors, "#S/") : "?S/";
  if (modulators >= 1 && modulators <= 3) {
    mnuTests[0].SetEnabled(modulators != 1);
    mnuTests[1].SetEnabled(modulators != 1);
    return text + FormatNumber(modulators, "#M");
  }
  return text + (modulators == kMixedModulators ? "2M + 1M" : "?M");
}

void frmZeltMain::DisplayCompId() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  nECUType = 2;
  ShowIdentity(txtECUType, ecu.SysName.Load(), false);
  ShowIdentity(txtMfgDate, ecu.MfgDate.Load(), true);
  ShowIdentity(txtSerialNum, ecu.SerialNum.Load(), true);
  ShowIdentity(txtSWRev, ecu.SWRev.Load(), true);
  ShowIdentity(txtPartNum, ecu.PartNum.Load(), true);
  ShowIdentity(txtDiagId, ecu.DiagId.Load(), true);
  txtConfig.SetText(ConfigurationText());
  const double trip = ecu.dTripReading.Load();
  txtTripOdom.SetText(OrNoData(trip, trip / kKilometresPerMile, "##,###,##0.0"));
  txtTripOdom.SetBackColor(MissingColour(trip));
  const double service = ecu.dNextService.Load();
  txtNextService.SetText(OrNoData(service, service / kKilometresPerMile, "##,###,##0"));
  txtNextService.SetBackColor(MissingColour(service));
}

void frmZeltMain::UpdateLiveData() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  UpdateSupplyAndSide2();
  UpdatePressures();
  UpdateLampAndVoltage();
  const std::uint8_t faults = ecu.bNumFaults.Load();
  const Dictionary& dictionary = parts_.connection.dictionary;
  txtExistingFaults.SetText(dictionary.Translate(faults > 0 ? "Yes" : "None"));
  txtExistingFaults.SetBackColor(faults > 0 ? kColorRed : kColorWhite);
  if (std::exchange(last_shown_.faults, faults) != faults) {
    DisplayCompId();  // the speeds and the odometer wait for the next pass
  } else {
    if (ecu.bNumSensors.Load() > 0 && ecu.bNumModulators.Load() > 0) UpdateSpeeds();
    UpdateOdometer();
  }
  ShowPlan();
  GetDesktop().DoEvents();
}

void frmZeltMain::TellWhile(const std::string& words, const std::function<void()>& work) {
  const std::string before = txtError.Text();
  txtError.SetText(words);
  GetDesktop().Repaint();
  work();
  if (txtError.Text() == words) txtError.SetText(before);
}

// The trailer from above, with what the fields show.
void frmZeltMain::ShowPlan() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  const auto ground = [](const TextBox& box) {
    return box.BackColor() == kColorDefault ? kColorWhite : box.BackColor();
  };
  const auto with_caption = [&](const Label& label, const TextBox& box) {
    return PlanValue{label.Caption() + "  " + box.Text(), ground(box)};
  };
  TrailerPlan plan;
  plan.axles = ecu.nNumAxles.Load();
  plan.mounting = ecu.nMounting.Load();
  for (std::size_t i = 0; i < plan.sensors.size(); ++i)
    plan.sensors[i] = ecu.nAxleSensors[i].Load();
  for (int i = 2; i <= 5; ++i)
    plan.speeds[static_cast<std::size_t>(i)] = {txtSpeed[i].Text(), ground(txtSpeed[i])};
  plan.demand = with_caption(lblServiceBrake, txtServiceBrake);
  plan.supply = with_caption(lblSupply, txtSupply);
  plan.side1 = with_caption(lblBrake1Press, txtBrake1Press);
  plan.side2 = with_caption(lblBrake2Press, txtBrake2Press);
  plan.main_bellows = with_caption(lblMainBellows, txtMainBellows);
  // Few trailers have them; a cleared panel says so in the user's language.
  if (txtSteerBellows.Text() != kLiteralNoData && txtSteerBellows.Text() != NoData())
    plan.steer_bellows = with_caption(lblSteerBellows, txtSteerBellows);
  picPlan.SetDrawing(DrawTrailerPlan(plan));
}

void frmZeltMain::UpdateSupplyAndSide2() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  // The label of side 1 goes grey while the value of side 2 is blanked: so it is meant.
  const bool single = ecu.bNumModulators.Load() == 1;
  txtSupply.SetEnabled(!single);
  lblSupply.SetEnabled(!single);
  lblBrake1Press.SetEnabled(!single);
  if (single) {
    txtSupply.SetText(kLiteralNoData);
    txtBrake2Press.SetText(kLiteralNoData);
    return;
  }
  txtSupply.SetText(FormatNumber(ecu.dSupplyPress.Load(), "##0.0"));
  const double side2 = ecu.dBrake2Press.Load();
  txtBrake2Press.SetText(OrNoData(side2, side2, "##0"));
}

void frmZeltMain::UpdatePressures() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  txtServiceBrake.SetText(FormatNumber(ecu.dServiceBrake.Load(), "##0.0"));
  const double steer = ecu.dSteerBellows.Load();
  const bool steered = steer != kNoValue && steer < kHighestSteerBellows;
  txtSteerBellows.SetText(steered ? FormatNumber(steer, "##0") : kLiteralNoData);
  const double side1 = ecu.dBrake1Press.Load();
  txtBrake1Press.SetText(OrNoData(side1, side1, "##0"));
  const double bellows = ecu.dMainBellows.Load();
  txtMainBellows.SetText(OrNoData(bellows, bellows, "##0"));
}

void frmZeltMain::UpdateLampAndVoltage() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  const Dictionary& dictionary = parts_.connection.dictionary;
  last_shown_.lamp = ecu.nWarningLamp.Load();
  const bool on = last_shown_.lamp > 0;
  txtWarningLamp.SetText(dictionary.Translate(on ? "On" : "Off"));
  txtWarningLamp.SetBackColor(on ? kColorYellow : kColorWhite);

  last_shown_.volts = ecu.dPrimaryVolts.Load();
  txtPrimaryVolts.SetText(OrNoData(last_shown_.volts, last_shown_.volts / 100, "##0.0"));
  txtPrimaryVolts.SetBackColor(MissingColour(last_shown_.volts));

  const double source = ecu.dVoltageSource.Load();
  if (source == kNoValue) return;
  const double index = std::nearbyint(source);
  if (index == 0.0 || index == 1.0) optVoltageSource[index == 0.0 ? 0 : 1].SetValue(true);
  last_shown_.voltage_source = source;
}

void frmZeltMain::UpdateSpeeds() {
  const ECUData& ecu = parts_.connection.records.ecu_data;
  for (std::uint8_t i = 2; i <= 5; ++i) {
    const double speed = ecu.dWheelSpeed[i].Load();
    if (std::exchange(last_shown_.wheel_speed[i], speed) == speed) continue;
    const bool still = speed != kNoValue && speed <= kSpeedNoise;
    txtSpeed[i].SetText(still ? " 0" : OrNoData(speed, speed, "##0.0"));
    txtSpeed[i].SetBackColor(MissingColour(speed));
  }
}

void frmZeltMain::UpdateOdometer() {
  last_shown_.odometer = parts_.connection.records.ecu_data.dOdometer.Load();
  // Unchanged: the library's distance is not divided here.
  txtOdom.SetText(OrNoData(last_shown_.odometer, last_shown_.odometer, "##,###,##0.0"));
  txtOdom.SetBackColor(MissingColour(last_shown_.odometer));
  if (last_shown_.odometer != kNoValue) mnuODR[1].SetEnabled(true);
}

void frmZeltMain::ClearStatusPanel() {
  GetDesktop().DoEvents();
  if (!GetDesktop().life.Open()) return;
  const auto blank = [this](TextBox& box, Color color) {
    box.SetText(NoData());
    box.SetBackColor(color);
  };
  blank(txtWarningLamp, kColorWhite);
  blank(txtPrimaryVolts, kColorOrange);
  txtExistingFaults.SetText(parts_.connection.dictionary.Translate("None"));
  txtExistingFaults.SetBackColor(kColorWhite);
  for (TextBox* box : {&txtSupply, &txtServiceBrake, &txtBrake1Press, &txtBrake2Press,
                       &txtMainBellows, &txtSteerBellows})
    blank(*box, kColorWhite);
  for (int i = 2; i <= 5; ++i) blank(txtSpeed[i], kColorWhite);
  ShowPlan();
}

}  // namespace lorimet
