#include "session/frmZeltMain.h"

#include <utility>

#include "platform/clock.h"
#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "session/link_library.h"
#include "session/link_messages.h"
#include "session/session_state.h"
#include "support/dictionary.h"
#include "support/frmErr.h"
#include "support/help.h"
#include "support/settings.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr int kRefreshInterval = 300;      // ms
constexpr std::uint32_t kStaticWait = 30;  // ms between two looks at the end of the static read
constexpr std::int16_t kHighestLanguage = 10;

}  // namespace

frmZeltMain::frmZeltMain(const MainFormParts& parts)
    : Form(parts.connection.desktop, "frmZeltMain"), parts_(parts) {
  BindCommands();
  BindPanel();
  tmrABS.on_tick = [this] { OnTick(); };
}

void frmZeltMain::OnLoad() {
  bRestarting_ = false;
  SetMousePointer(MousePointer::kHourglass);
  bConnected = false;
  parts_.connection.records.lECUFamily = kTrailerFamily;
  tmrABS.SetInterval(0);
  SetStartLanguage();
  SetKeyPreview(true);
  mnuABS[7].SetVisible(false);
  mnuODR[1].SetEnabled(false);
  Hide();
  CenterOnScreen();
  parts_.connection.messages.SetErrorControl(&txtError);
  Show();
  GetDesktop().DoEvents();
  if (!GetDesktop().life.Open()) return;
  for (const auto& reset : reset_results) reset();
  RestartECU();
  if (GetDesktop().life.Open()) SetMousePointer(MousePointer::kArrow);
}

void frmZeltMain::SetStartLanguage() {
  Dictionary& dictionary = parts_.connection.dictionary;
  const std::int16_t language = parts_.connection.settings.GetLanguage();
  dictionary.SetLanguage(language >= 0 && language <= kHighestLanguage ? int{language}
                                                                       : int{kNative});
  dictionary.Open();
  dictionary.TranslateForm(*this);
}

void frmZeltMain::SelectLanguage() {
  Dictionary& dictionary = parts_.connection.dictionary;
  dictionary.Open();
  const std::optional<int> selection = dictionary.ChooseLanguage();
  if (!selection) return;
  dictionary.SetLanguage(*selection);
  parts_.connection.settings.SaveLanguage(static_cast<std::int16_t>(dictionary.Language()));
}

void frmZeltMain::OnKeyDown(KeyEvent& key) {
  constexpr int kChord = kShiftMask | kCtrlMask | kAltMask;
  if (key.code == kKeyF9 && (key.shift & kChord) == kChord) {
    mnuABS[7].SetVisible(!mnuABS[7].Visible());
    return;
  }
  if (key.code != kKeyF1) key.code = 0;
}

void frmZeltMain::OnKeyPress(int& character) { character = 0; }

void frmZeltMain::OnTick() {
  if (!GetDesktop().life.Open()) return;
  frmErr& err = parts_.err;
  if (parts_.connection.records.link_status.bLinkAttained.Load() != 0) {
    const Dictionary& dictionary = parts_.connection.dictionary;
    err.lblErr.SetCaption(
        dictionary.Translate("Successful connection was attained but has since been lost.") +
        kCrLf + dictionary.Translate("Please check connection between the PC and ECU."));
  }
  UpdateLiveData();
}

void frmZeltMain::RestartECU() {
  if (bRestarting_) {
    SetMousePointer(MousePointer::kArrow);
    return;
  }
  using M = frmZeltMain;
  bRestarting_ = true;
  for (const auto step :
       {&M::CloseOldConnection, &M::LookForConnection, &M::LetEventsRun, &M::OpenConnection,
        &M::BeginReading, &M::ReadIdentity, &M::ShowIdentity}) {
    const Restart result = (this->*step)();
    // The user can have closed the window meanwhile; the close-down has the last word.
    if (!GetDesktop().life.Open()) return;
    if (result == Restart::kGoesOn) continue;
    bRestarting_ = false;
    if (result == Restart::kEnds) SetMousePointer(MousePointer::kArrow);
    return;
  }
}

frmZeltMain::Restart frmZeltMain::CloseOldConnection() {
  if (!bConnected) return Restart::kGoesOn;
  const std::int16_t result = DisconnectECU(parts_.connection);
  bConnected = false;
  ClearStatusPanel();
  if (result == 0) return Restart::kGoesOn;
  ShowRestartError(
      "Please check the connection and make sure the cable is properly connected.  "
      "Click the \"Restart\" button to try again.");
  return Restart::kEndsWithPointer;
}

frmZeltMain::Restart frmZeltMain::LookForConnection() {
  GetDesktop().DoEvents();
  return bConnected ? Restart::kEnds : Restart::kGoesOn;
}

frmZeltMain::Restart frmZeltMain::LetEventsRun() {
  GetDesktop().DoEvents();
  return Restart::kGoesOn;
}

frmZeltMain::Restart frmZeltMain::OpenConnection() {
  ResetLastShown();
  if (ConnectECU(parts_.connection, txtError) == 0) return Restart::kGoesOn;
  ShowRestartError(
      "Please check to make sure the device drivers and libraries are correctly "
      "installed.");
  return Restart::kEnds;
}

frmZeltMain::Restart frmZeltMain::BeginReading() {
  bConnected = true;
  txtError.SetText("");
  SetMousePointer(MousePointer::kHourglass);
  return LetEventsRun();
}

// Waits without a time-out: the user can close the window meanwhile.
frmZeltMain::Restart frmZeltMain::ReadIdentity() {
  for (const auto& prepare : before_static_read) prepare();
  parts_.connection.link.Trailer_ABS_QOR_ReadStaticData();
  StartEcuSession(parts_.connection.link);
  while (GetDesktop().life.Open() && parts_.connection.records.ecu_data.nLinkJobDone.Load() == 0) {
    parts_.clock.Sleep(kStaticWait);
    GetDesktop().DoEvents();
  }
  return Restart::kGoesOn;
}

frmZeltMain::Restart frmZeltMain::ShowIdentity() {
  DisplayCompId();
  tmrABS.SetInterval(kRefreshInterval);
  tmrABS.SetEnabled(true);
  return Restart::kEnds;
}

// A restart that the close-down has overtaken gives no advice any more.
void frmZeltMain::ShowRestartError(const std::string& text) {
  if (!GetDesktop().life.Open()) return;
  Dictionary& dictionary = parts_.connection.dictionary;
  dictionary.ShowMessageBox(dictionary.Translate(text),
                            dictionary.Translate("ERROR: Unable to connect to the device"),
                            BoxKind::kError, kBoxOk, 0);
}

void frmZeltMain::ResetLastShown() {
  last_shown_.faults = 0;
  last_shown_.lamp = -99;
  last_shown_.volts = -99.0;
  last_shown_.odometer = -99.0;
  last_shown_.voltage_source = kNoValue;
  last_shown_.wheel_speed.fill(kNoValue);
}

void frmZeltMain::OnUnload() {
  CloseConnection();
  // The main form is the first of the list, at index 0.
  Desktop& desktop = GetDesktop();
  for (int i = static_cast<int>(desktop.LoadedForms().size()) - 1; i >= 1; --i)
    if (i < static_cast<int>(desktop.LoadedForms().size()))
      desktop.LoadedForms()[static_cast<std::size_t>(i)]->Unload();
  StopSession();
  if (RunApp(parts_.connection.settings, parts_.process, "Hubrest.exe", "NO") != 0) {
    Dictionary& dictionary = parts_.connection.dictionary;
    dictionary.ShowMessageBox(dictionary.Translate("Could not locate the Norvick Main executable."),
                              "", BoxKind::kError, kBoxOk, 0);
  } else {
    Hide();
  }
}

void frmZeltMain::CloseLink() {
  CloseConnection();
  StopSession();
}

void frmZeltMain::CloseConnection() {
  GetDesktop().life.Close();
  bRestarting_ = true;
  if (Loaded()) tmrABS.SetEnabled(false);
  if (!bConnected) return;
  if (std::exchange(closing_, Closing::kRecordingStopped) == Closing::kNot)
    Run(&CommandActions::stop_recording);
  DisconnectECU(parts_.connection);
  bConnected = false;
}

void frmZeltMain::StopSession() {
  if (std::exchange(closing_, Closing::kSessionStopped) != Closing::kSessionStopped)
    parts_.connection.link.Trailer_ABS_KWP_StopSession();
}

}  // namespace lorimet
