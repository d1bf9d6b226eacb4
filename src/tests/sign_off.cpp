#include "tests/sign_off.h"

#include <string>

#include "parameters/parm_block.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "session/frmZeltMain.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/text.h"
#include "tests/test_commands.h"
#include "tests/test_results.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kBeforeSaving = 2000;  // ms

}  // namespace

void SignOffProcedure::SignOff() {
  StartEcuSession(parts_.flag.link);
  SetParameterAccess(parts_.flag.link, 1);
  ClearResults();
  if (!PassPressureTest() || !PassRedundancyTest() || !PassSensorTest() || !PassLampTest()) return;
  if (parts_.image.bStopLightCable) TellOfStopLightCable();
  if (!parts_.desktop.life.Open()) return;
  if (!PassCalibration() || !SetFlag()) return;
  OfferReport();
}

// What a calibration of sensor e-f left is no part of it.
void SignOffProcedure::ClearResults() {
  TestResults& results = parts_.results;
  results.nLampTest = kNotTested;
  results.nPressureTest = kNotTested;
  results.nRedundancyTest = kNotTested;
  results.nSensorTest = kNotTested;
  results.nHeightCalCD = kNotTested;
}

bool SignOffProcedure::PassPressureTest() {
  if (parts_.ecu.bNumModulators.Load() == 1)
    parts_.results.nPressureTest = kTestNotApplicable;
  else if (!Show(parts_.pressure_test, &parts_.main_form))
    return false;
  if (parts_.ecu.bNumModulators.Load() <= 1 || parts_.results.nPressureTest == kTestPassed)
    return true;
  return Fail(VehicleTest::kPressure);
}

bool SignOffProcedure::PassRedundancyTest() {
  if (parts_.ecu.bNumModulators.Load() == 1)
    parts_.results.nRedundancyTest = kTestNotApplicable;
  else if (!Show(parts_.redundancy_test, &parts_.main_form))
    return false;
  if (parts_.ecu.bNumModulators.Load() < 2 || parts_.results.nRedundancyTest == kTestPassed)
    return true;
  return Fail(VehicleTest::kRedundancy);
}

bool SignOffProcedure::PassSensorTest() {
  if (!Show(parts_.sensor_test, &parts_.main_form)) return false;
  if (parts_.results.nSensorTest == kTestPassed) return true;
  return Fail(VehicleTest::kSensor);
}

bool SignOffProcedure::PassLampTest() {
  if (!Show(parts_.lamp_test, &parts_.main_form)) return false;
  if (parts_.results.nLampTest == kTestPassed) return true;
  return Fail(VehicleTest::kLamp);
}

void SignOffProcedure::TellOfStopLightCable() {
  ShowPlainBox(
      parts_.desktop,
      Translated("Corbel software has determined that the optional Stop Light Activation Cable "
                 "should have been installed.  ") +
          Translated(
              "This feature can be tested from the Main screen using the TESTS pull-down.  ") +
          Translated(
              "You must have functional trailer stop lights attached in order to perform this "
              "test."),
      Translated("Stop Light Activation Cable"));
}

// Air suspension leaves "not tested", which passes; a screen left without calibrating leaves 0.
bool SignOffProcedure::PassCalibration() {
  const bool needed = parts_.ecu.nMechanicalSuspension.Load() == 1;
  if (needed && !Show(parts_.calibration, nullptr)) return false;
  if (parts_.results.nHeightCalCD != kTestFailed) return true;
  return Fail("Height Sensor Calibration Failed.  Please resolve issues and run test again.",
              "Calibration Failed!");
}

bool SignOffProcedure::SetFlag() {
  frmZeltMain& main_form = parts_.main_form;
  main_form.SetMousePointer(MousePointer::kHourglass);
  main_form.txtError.SetText(Translated("Setting End-of-line Bit"));
  parts_.desktop.Repaint();
  const std::int32_t result = SetEOLFlag(parts_.flag, 1);
  main_form.txtError.SetText("  ");
  main_form.SetMousePointer(MousePointer::kArrow);
  if (result == 0) return true;
  return Fail("Unable to clear the End of Line bit.", "Sign-off Failure");
}

void SignOffProcedure::OfferReport() {
  if (Ask(Translated("All tests passed.  End-of-line bit set.") + kCrLf +
          Translated("Do you want to save the data?"))) {
    parts_.main_form.TellWhile(Translated("Saving the data..."),
                               [this] { parts_.flag.clock.Sleep(kBeforeSaving); });
    if (save_report) save_report();
  }
  if (Ask(Translated("Do you want to print the data?")) && print_report) print_report();
}

bool SignOffProcedure::Ask(const std::string& text) {
  MessageBox box;
  box.title = Translated("Sign-off Complete");
  box.text = text;
  box.buttons = kBoxYes | kBoxNo;
  box.yes = Translated("Yes");
  box.no = Translated("No");
  return parts_.desktop.ShowMessageBox(box) == kBoxYes && parts_.desktop.life.Open();
}

bool SignOffProcedure::Fail(VehicleTest test) {
  ShowTestFailed(parts_.desktop, parts_.dictionary, test);
  return false;
}

bool SignOffProcedure::Fail(const char* text, const char* title) {
  ShowPlainBox(parts_.desktop, Translated(text), Translated(title), BoxIcon::kCritical);
  return false;
}

// False when the program was closed behind the screen: nothing is said or sent then.
bool SignOffProcedure::Show(Form& test, Form* owner) {
  test.Show(Modality::kModal, owner);
  return parts_.desktop.life.Open();
}

std::string SignOffProcedure::Translated(const char* text) const {
  return parts_.dictionary.Translate(text);
}

}  // namespace lorimet
