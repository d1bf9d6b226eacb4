// The commands of the main form.
#include "platform/clock.h"
#include "platform/desktop.h"
#include "session/frmZeltMain.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/help.h"

namespace lorimet {
namespace {

constexpr std::int16_t kTestPassed = 1;
constexpr std::uint32_t kResetPause = 200;  // ms after the reset that ends a calibration

constexpr std::array<const char*, 3> kPassed = {
    "Pressure Test Passed.",
    "Redundancy Test Passed.",
    "Sensor Test Passed.",
};
constexpr std::array<const char*, 3> kFailed = {
    "Pressure Test Failed.  Please resolve issues and run test again.",
    "Redundancy Test Failed.  Please resolve issues and run test again.",
    "Sensor Test Failed.  Please resolve issues and run test again.",
};

void Call(const std::function<void()>& action) {
  if (action) action();
}

}  // namespace

void frmZeltMain::BindCommands() {
  for (const MenuCommand& row : kMenuCommands) {
    const std::string name = std::string(row.menu) + "_" + std::to_string(row.index);
    static_cast<MenuItem*>(FindControl(name))->on_click = [this, row] {
      RunCommand(row.command, row.guarded);
    };
  }
  for (const ToolbarCommand& row : kToolbarCommands)
    static_cast<ToolButton*>(FindControl("tbrABS_" + std::string(row.key)))->on_click =
        [this, row] { RunCommand(row.command, true); };
}

void frmZeltMain::RunCommand(Command command, bool guarded) {
  if (guarded && bRestarting_) return;
  if (command >= Command::kPressureTest && command <= Command::kStopLightActivation) {
    RunTest(static_cast<int>(command) - static_cast<int>(Command::kPressureTest));
  } else if (command >= Command::kExit) {
    RunFromToolbar(command);
  } else {
    Run(command);
  }
}

void frmZeltMain::Run(Command command) {
  LinkLibrary& link = parts_.connection.link;
  switch (command) {
    case Command::kDisplayFaults:
    case Command::kClearFaults:
      return Call(actions.show_faults);
    case Command::kRestart:
      return RestartECU();
    case Command::kSignOff:
      return Call(actions.sign_off);
    case Command::kParametersFromEcu:
      Call(actions.read_parameters_from_ecu);
      return Call(actions.show_parameters);
    case Command::kParametersFromFile:
      if (actions.read_parameters_from_file && actions.read_parameters_from_file())
        Call(actions.show_parameters);
      return;
    case Command::kSaveEeprom:
      return Call(actions.save_eeprom);
    case Command::kResetEcu:
      link.ResetECU();
      return;
    case Command::kOdrOverview:
      return Call(actions.show_odr_overview);
    case Command::kExportOdr:
      return Call(actions.export_odr);
    case Command::kSetEolBit:
      return Call(actions.set_end_of_line_bit);
    case Command::kBusMonitor:
      return Call(actions.show_bus_monitor);
    case Command::kToggleDatalog:
      return ToggleDatalog();
    case Command::kDisableBroadcast:
    case Command::kEnableBroadcast:
      StartEcuSession(link);
      return SetParameterAccess(link, command == Command::kDisableBroadcast ? 1 : 0);
    case Command::kDeleteOdr:
      return Call(actions.delete_odr);
    case Command::kHelpContents:
      return parts_.help.ShowContents(Caption());
    case Command::kHelpSearch:
      return parts_.help.ShowSearch(Caption());
    case Command::kAbout:
      return Call(actions.show_about);
    default:
      return;
  }
}

void frmZeltMain::RunFromToolbar(Command command) {
  LinkLibrary& link = parts_.connection.link;
  switch (command) {
    case Command::kExit:
      Unload();
      return;
    case Command::kSaveReport:
      return Call(actions.save_report);
    case Command::kPrintReport:
      return Call(actions.print_report);
    case Command::kToolbarLampTest:
      StartEcuSession(link);
      return Call(actions.show_test[3]);
    case Command::kToolbarSensorTest:
      StartEcuSession(link);
      SetParameterAccess(link, 1);
      Call(actions.show_test[2]);
      return SetParameterAccess(link, 0);
    default:
      return;
  }
}

void frmZeltMain::RunTest(int index) {
  LinkLibrary& link = parts_.connection.link;
  StartEcuSession(link);
  SetParameterAccess(link, 1);
  Call(actions.show_test[static_cast<std::size_t>(index)]);
  if (index <= 2) ShowTestResult(index);
  if (index == 4 && actions.calibration_result && actions.calibration_result() == kTestPassed) {
    link.ResetECU();
    parts_.clock.Sleep(kResetPause);
  }
  if (index == 5 && bConnected) RestartECU();
  SetParameterAccess(link, 0);
}

void frmZeltMain::ShowTestResult(int index) {
  const auto i = static_cast<std::size_t>(index);
  const Dictionary& dictionary = parts_.connection.dictionary;
  const bool passed = actions.test_result[i] && actions.test_result[i]() == kTestPassed;
  MessageBox box;
  box.text = dictionary.Translate(passed ? kPassed[i] : kFailed[i]);
  box.title = dictionary.Translate(passed ? "Test Passed" : "Test Failed!");
  box.icon = passed ? BoxIcon::kInformation : BoxIcon::kCritical;
  GetDesktop().ShowMessageBox(box);
}

// The design's caption has its access key at another place, so the first use stops.
void frmZeltMain::ToggleDatalog() {
  const Dictionary& dictionary = parts_.connection.dictionary;
  if (mnuUtility[2].Caption() == dictionary.Translate("Start &Datalog Only")) {
    mnuUtility[2].SetCaption(dictionary.Translate("Stop &Datalog Only"));
    Call(actions.start_recording);
  } else {
    mnuUtility[2].SetCaption(dictionary.Translate("Start &Datalog Only"));
    Call(actions.stop_recording);
  }
}

void frmZeltMain::ShowFromPanel(const std::function<void()>& show) {
  if (bConnected && !bRestarting_ && !bMenusDisabled_) Call(show);
}

void frmZeltMain::DisableMenuToolbarItems() {
  bMenusDisabled_ = true;
  for (const int i : {1, 2, 3}) mnuABS[i].SetEnabled(false);
  for (ToolButton* button : {&tbrABS_print, &tbrABS_save, &tbrABS_faults, &tbrABS_valve,
                             &tbrABS_sensor, &tbrABS_notebook})
    button->SetEnabled(false);
}

void frmZeltMain::EnableMenuToolbarItems() {
  bMenusDisabled_ = false;
  for (const int i : {1, 2, 3}) mnuABS[i].SetEnabled(true);
  mnuABS[7].SetEnabled(false);
  for (ToolButton* button : {&tbrABS_print, &tbrABS_save, &tbrABS_faults, &tbrABS_valve,
                             &tbrABS_sensor, &tbrABS_notebook})
    button->SetEnabled(true);
}

}  // namespace lorimet
