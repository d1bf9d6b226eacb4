// The commands of the main form: the menu, the toolbar and the panel's double clicks.
#include "platform/desktop.h"
#include "session/frmZeltMain.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/help.h"

namespace lorimet {

// One row a command: whose event it is, when it is refused, and what it does.
void frmZeltMain::BindCommands() {
  using A = CommandActions;
  using M = frmZeltMain;
  constexpr Guard kAlways = Guard::kAlways;
  constexpr Guard kNotRestarting = Guard::kNotRestarting;
  constexpr Guard kConnectedPanel = Guard::kConnectedPanel;
  const CommandRow kCommands[] = {
      // clang-format off
      {mnuDiagnostics[0].on_click,         kNotRestarting,  &A::show_faults},
      {mnuDiagnostics[1].on_click,         kNotRestarting,  &A::show_faults},
      {mnuDiagnostics[2].on_click,         kNotRestarting,  &M::RestartECU},
      {mnuSignOff[0].on_click,             kNotRestarting,  &A::sign_off},
      {mnuTests[0].on_click,               kNotRestarting,  &A::pressure_test},
      {mnuTests[1].on_click,               kNotRestarting,  &A::redundancy_test},
      {mnuTests[2].on_click,               kNotRestarting,  &A::sensor_test},
      {mnuTests[3].on_click,               kNotRestarting,  &A::lamp_test},
      {mnuTests[4].on_click,               kNotRestarting,  &A::suspension_calibration},
      {mnuTests[5].on_click,               kNotRestarting,  &A::stop_light_activation},
      {mnuSystem[0].on_click,              kAlways,         &A::edit_parameters_from_ecu},
      {mnuSystem[1].on_click,              kAlways,         &A::edit_parameters_from_file},
      {mnuTools[0].on_click,               kNotRestarting,  &A::save_eeprom},
      {mnuTools[1].on_click,               kNotRestarting,  &M::ResetEcu},
      {mnuODR[0].on_click,                 kAlways,         &A::show_odr_overview},
      {mnuODR[1].on_click,                 kAlways,         &A::export_odr},
      {mnuUtility[0].on_click,             kNotRestarting,  &A::set_end_of_line_bit},
      {mnuUtility[1].on_click,             kNotRestarting,  &A::show_bus_monitor},
      {mnuUtility[2].on_click,             kNotRestarting,  &M::ToggleDatalog},
      {mnuUtility[3].on_click,             kNotRestarting,  &M::DisableBroadcast},
      {mnuUtility[4].on_click,             kNotRestarting,  &M::EnableBroadcast},
      {mnuUtility[5].on_click,             kNotRestarting,  &A::delete_odr},
      {mnuHelp[0].on_click,                kNotRestarting,  &M::ShowHelpContents},
      {mnuHelp[1].on_click,                kNotRestarting,  &M::ShowHelpSearch},
      {mnuHelp[3].on_click,                kNotRestarting,  &A::show_about},
      {tbrABS_exit.on_click,               kNotRestarting,  &M::Exit},
      {tbrABS_print.on_click,              kNotRestarting,  &A::print_report},
      {tbrABS_save.on_click,               kNotRestarting,  &A::save_report},
      {tbrABS_restart.on_click,            kNotRestarting,  &M::RestartECU},
      {tbrABS_faults.on_click,             kNotRestarting,  &A::show_faults},
      {tbrABS_valve.on_click,              kNotRestarting,  &A::toolbar_lamp_test},
      {tbrABS_sensor.on_click,             kNotRestarting,  &A::toolbar_sensor_test},
      // The notebook button has no action.
      {tbrABS_help.on_click,               kNotRestarting,  &M::ShowHelpContents},
      {txtExistingFaults.on_double_click,  kConnectedPanel, &A::show_faults},
      {txtWarningLamp.on_double_click,     kConnectedPanel, &A::show_faults},
      {txtBrake2Press.on_double_click,     kConnectedPanel, &A::panel_redundancy_test},
      // clang-format on
  };
  for (const CommandRow& row : kCommands)
    row.event = [this, guard = row.guard, action = row.action] {
      if (!Refused(guard)) std::visit([this](auto member) { Run(member); }, action);
    };
}

bool frmZeltMain::Refused(Guard guard) const {
  if (!GetDesktop().life.Open()) return true;
  switch (guard) {
    case Guard::kAlways:
      return false;
    case Guard::kNotRestarting:
      return bRestarting_;
    case Guard::kConnectedPanel:
      return !bConnected || bRestarting_ || bMenusDisabled_;
  }
  return true;
}

void frmZeltMain::Run(std::function<void()> CommandActions::*plugged) {
  if (actions.*plugged) (actions.*plugged)();
}

void frmZeltMain::Exit() { Unload(); }

void frmZeltMain::ResetEcu() { parts_.connection.link.ResetECU(); }

void frmZeltMain::DisableBroadcast() {
  StartEcuSession(parts_.connection.link);
  SetParameterAccess(parts_.connection.link, 1);
}

void frmZeltMain::EnableBroadcast() {
  StartEcuSession(parts_.connection.link);
  SetParameterAccess(parts_.connection.link, 0);
}

void frmZeltMain::ShowHelpContents() { parts_.help.ShowContents(Caption()); }

void frmZeltMain::ShowHelpSearch() { parts_.help.ShowSearch(Caption()); }

// The design's caption has its access key at another place, so the first use stops.
void frmZeltMain::ToggleDatalog() {
  const Dictionary& dictionary = parts_.connection.dictionary;
  if (mnuUtility[2].Caption() == dictionary.Translate("Start &Datalog Only")) {
    mnuUtility[2].SetCaption(dictionary.Translate("Stop &Datalog Only"));
    Run(&CommandActions::start_recording);
  } else {
    mnuUtility[2].SetCaption(dictionary.Translate("Start &Datalog Only"));
    Run(&CommandActions::stop_recording);
  }
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
