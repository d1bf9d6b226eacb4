// The main form: the session with the ECU, the live status panel, and the road into every screen.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/forms.h"
#include "session/command_routing.h"
#include "session/connection.h"

namespace lorimet {

class Clock;
class Help;
class Process;
class frmErr;

// What the main form uses of the rest of the program.
struct MainFormParts {
  ConnectionParts connection;
  Clock& clock;
  Help& help;
  Process& process;
  frmErr& err;
};

class frmZeltMain : public Form {
 public:
  explicit frmZeltMain(const MainFormParts& parts);

  // Makes a connection, closing the one there is first; the only road to one. Refused while one
  // is being made. Returns when the ECU's identity is shown or the attempt has failed.
  void RestartECU();
  // Paints the identity from the record.
  void DisplayCompId();
  // Paints the live values; every tick of tmrABS.
  void UpdateLiveData();
  // Blanks the live values when a connection ends.
  void ClearStatusPanel();
  // Shows the words in the Message Center before and during the work; a message of the link that
  // stood there comes back, and what comes meanwhile stays.
  void TellWhile(const std::string& words, const std::function<void()>& work);
  // For a screen that runs long: takes the commands away and gives them back. Afterwards the
  // Utility menu stays grey, even where the chord shows it.
  void DisableMenuToolbarItems();
  void EnableMenuToolbarItems();
  // Lets the user choose the language and stores the choice.
  void SelectLanguage();
  // Ends the link in order after an error that ends the process, also one within the close-down;
  // what is done already is not done again.
  void CloseLink();

  bool bConnected = false;
  std::int16_t nECUType = 0;  // 2 once the identity has been displayed

  bool Restarting() const { return bRestarting_; }
  bool MenusDisabled() const { return bMenusDisabled_; }

  CommandActions actions;
  // Clear the records of the higher floors at the form's load.
  std::vector<std::function<void()>> reset_results;
  // Run before the library fills the record of a new connection.
  std::vector<std::function<void()>> before_static_read;

  // Menus.
  ControlArray<MenuItem> mnuABS{*this, "mnuABS", {0, 1, 2, 3, 4, 6, 7, 8}};
  ControlArray<MenuItem> mnuDiagnostics{*this, "mnuDiagnostics", 3};
  ControlArray<MenuItem> mnuSignOff{*this, "mnuSignOff", 1};
  ControlArray<MenuItem> mnuTests{*this, "mnuTests", 6};
  ControlArray<MenuItem> mnuSystem{*this, "mnuSystem", 2};
  ControlArray<MenuItem> mnuTools{*this, "mnuTools", 2};
  ControlArray<MenuItem> mnuODR{*this, "mnuODR", 2};
  ControlArray<MenuItem> mnuUtility{*this, "mnuUtility", 6};
  ControlArray<MenuItem> mnuHelp{*this, "mnuHelp", {0, 1, 3}};

  // Toolbar.
  ToolButton tbrABS_exit{*this, "tbrABS", "exit"};
  ToolButton tbrABS_print{*this, "tbrABS", "print"};
  ToolButton tbrABS_save{*this, "tbrABS", "save"};
  ToolButton tbrABS_restart{*this, "tbrABS", "restart"};
  ToolButton tbrABS_faults{*this, "tbrABS", "faults"};
  ToolButton tbrABS_valve{*this, "tbrABS", "valve"};
  ToolButton tbrABS_sensor{*this, "tbrABS", "sensor"};
  ToolButton tbrABS_notebook{*this, "tbrABS", "notebook"};
  ToolButton tbrABS_help{*this, "tbrABS", "help"};

  // ECU information.
  Frame fraECUInfo{*this, "fraECUInfo"};
  Label lblECUType{*this, "lblECUType"};
  Label lblConfig{*this, "lblConfig"};
  Label lblPartNum{*this, "lblPartNum"};
  Label lblSerialNum{*this, "lblSerialNum"};
  Label lblSWRev{*this, "lblSWRev"};
  Label lblMfgDate{*this, "lblMfgDate"};
  Label lblDiagId{*this, "lblDiagId"};
  Label lblOdom{*this, "lblOdom"};
  Label lblTripOdom{*this, "lblTripOdom"};
  Label lblNextService{*this, "lblNextService"};
  TextBox txtECUType{*this, "txtECUType"};
  TextBox txtConfig{*this, "txtConfig"};
  TextBox txtPartNum{*this, "txtPartNum"};
  TextBox txtSerialNum{*this, "txtSerialNum"};
  TextBox txtSWRev{*this, "txtSWRev"};
  TextBox txtMfgDate{*this, "txtMfgDate"};
  TextBox txtDiagId{*this, "txtDiagId"};
  TextBox txtOdom{*this, "txtOdom"};
  TextBox txtTripOdom{*this, "txtTripOdom"};
  TextBox txtNextService{*this, "txtNextService"};

  // Live values.
  Frame fraWheelSpeed{*this, "fraWheelSpeed"};
  ControlArray<Label> lblSpeed{*this, "lblSpeed", {2, 3, 4, 5}};
  ControlArray<TextBox> txtSpeed{*this, "txtSpeed", 6};
  Frame fraWarningLamp{*this, "fraWarningLamp"};
  TextBox txtWarningLamp{*this, "txtWarningLamp"};
  Picture picPlan{*this, "picPlan"};
  Frame fraAirPress{*this, "fraAirPress"};
  Label lblServiceBrake{*this, "lblServiceBrake"};
  Label lblSupply{*this, "lblSupply"};
  Label lblBrake1Press{*this, "lblBrake1Press"};
  Label lblBrake2Press{*this, "lblBrake2Press"};
  Label lblMainBellows{*this, "lblMainBellows"};
  Label lblSteerBellows{*this, "lblSteerBellows"};
  TextBox txtServiceBrake{*this, "txtServiceBrake"};
  TextBox txtSupply{*this, "txtSupply"};
  TextBox txtBrake1Press{*this, "txtBrake1Press"};
  TextBox txtBrake2Press{*this, "txtBrake2Press"};
  TextBox txtMainBellows{*this, "txtMainBellows"};
  TextBox txtSteerBellows{*this, "txtSteerBellows"};
  Frame fraVoltage{*this, "fraVoltage"};
  Label lblPrimaryVolts{*this, "lblPrimaryVolts"};
  Label lblVoltageSource{*this, "lblVoltageSource"};
  TextBox txtPrimaryVolts{*this, "txtPrimaryVolts"};
  ControlArray<OptionButton> optVoltageSource{*this, "optVoltageSource", 2};
  Frame fraFaults{*this, "fraFaults"};
  Label lblExistingFaults{*this, "lblExistingFaults"};
  TextBox txtExistingFaults{*this, "txtExistingFaults"};
  Label lblError{*this, "lblError"};
  TextBox txtError{*this, "txtError"};
  TextBox txtHidden{*this, "txtHidden"};

  Timer tmrABS{*this, "tmrABS"};

 protected:
  void OnLoad() override;
  void OnUnload() override;
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override;

 private:
  // What the panel last painted. Only the fault count and the wheel speeds are compared.
  struct LastShown {
    std::uint8_t faults = 0;
    std::int16_t lamp = 0;
    double volts = 0;
    double voltage_source = 0;
    std::array<double, 6> wheel_speed{};
    double odometer = 0;
  };

  void BindCommands();
  void BindPanel();
  void SetStartLanguage();
  void OnTick();

  // What a step of a restart leads to.
  enum class Restart {
    kGoesOn,
    kEnds,
    kEndsWithPointer,  // ends, and the mouse pointer stays as it was
  };
  Restart CloseOldConnection();
  Restart LookForConnection();
  Restart LetEventsRun();
  Restart OpenConnection();
  Restart BeginReading();
  Restart ReadIdentity();
  Restart ShowIdentity();
  void ResetLastShown();
  void ShowRestartError(const std::string& text);

  void CloseConnection();
  void StopSession();

  void ShowIdentity(TextBox& box, const std::string& bytes, bool colour);
  std::string ConfigurationText();
  void UpdateSupplyAndSide2();
  void UpdatePressures();
  void UpdateLampAndVoltage();
  void UpdateSpeeds();
  void UpdateOdometer();
  void ShowPlan();
  std::string NoData() const;
  std::string OrNoData(double value, double shown, const char* mask) const;

  // When a command is refused, in silence.
  enum class Guard {
    kAlways,          // never refused
    kNotRestarting,   // while a connect or close-down runs
    kConnectedPanel,  // then too, with no connection, and while the commands are taken away
  };
  struct CommandRow {
    std::function<void()>& event;
    Guard guard;
    std::variant<std::function<void()> CommandActions::*, void (frmZeltMain::*)()> action;
  };
  bool Refused(Guard guard) const;
  void Run(std::function<void()> CommandActions::*plugged);
  void Run(void (frmZeltMain::*own)()) { (this->*own)(); }
  void Exit();
  void ResetEcu();
  void DisableBroadcast();
  void EnableBroadcast();
  void ShowHelpContents();
  void ShowHelpSearch();
  void ToggleDatalog();

  MainFormParts parts_;
  LastShown last_shown_;
  bool bRestarting_ = false;
  bool bMenusDisabled_ = false;
  // How far the link has been closed; an error in the midst of it goes on from there.
  enum class Closing { kNot, kRecordingStopped, kSessionStopped };
  Closing closing_ = Closing::kNot;
};

}  // namespace lorimet
