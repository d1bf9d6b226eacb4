#include "monitor/frmMonitorOptions.h"

#include <optional>

#include "monitor/bus_monitor.h"
#include "platform/process.h"
#include "support/dictionary.h"

namespace lorimet {

constexpr int kKeyTab = 9;

frmMonitorOptions::frmMonitorOptions(Desktop& desktop, Dictionary& dictionary, Process& process,
                                     BusMonitor& monitor)
    : Form(desktop, "frmMonitorOptions"),
      dictionary_(dictionary),
      process_(process),
      monitor_(monitor) {
  help_page = "monitor_options.html";
  txtDatalogComments.on_change = [this] { strComments_ = txtDatalogComments.Text(); };
  chkIdleTime.on_click = [this] { nIdleTime_ = chkIdleTime.Value() ? 1 : 0; };
  chkTimestamp.on_click = [this] { nTimestamp_ = chkTimestamp.Value() ? 1 : 0; };
  tbsOptions.on_click = [this] { ShowPage(); };
  cmdSaveAs.on_click = [this] { SaveAs(); };
  cmdApply.on_click = [this] { Apply(); };
  cmdOK.on_click = [this] {
    Apply();
    Unload();
  };
  cmdCancel.on_click = [this] { Unload(); };
}

void frmMonitorOptions::OnLoad() {
  dictionary_.TranslateForm(*this);
  tbsOptions.SetTabs({dictionary_.Translate("Data Log"), dictionary_.Translate("Display")});
  SetKeyPreview(true);
  CenterOnScreen();
  const DatalogInfo datalog = monitor_.GetDatalogInfo();
  const DisplayOptions display = monitor_.GetDisplayOptions();
  strFileName_ = datalog.file;
  strComments_ = datalog.comments;
  nIdleTime_ = display.idle_time;
  nTimestamp_ = display.timestamp;
  lblDatalogFileName.SetCaption(strFileName_);
  txtDatalogComments.SetText(strComments_);
  chkTimestamp.SetValue(nTimestamp_ == 1);
  chkIdleTime.SetValue(nIdleTime_ == 1);
  tbsOptions.SetSelected(0);
  ShowPage();
}

void frmMonitorOptions::ShowPage() {
  const int chosen = tbsOptions.Selected();
  picOptions[chosen].SetVisible(true);
  picOptions[1 - chosen].SetVisible(false);
}

void frmMonitorOptions::OnKeyDown(KeyEvent& key) {
  if (key.code != kKeyTab || key.shift != kCtrlMask) return;
  const int tabs = static_cast<int>(tbsOptions.Tabs().size());
  tbsOptions.SetSelected((tbsOptions.Selected() + 1) % tabs);
  key.code = 0;
}

void frmMonitorOptions::SaveAs() {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.file_name = strFileName_;
  dialog.initial_directory = process_.ProgramFolder();
  dialog.filter = dictionary_.Translate("Text (*.txt)|*.txt|All Files (*.*)|*.*");
  dialog.path_must_exist = true;
  // A cancelled dialog leaves the name that it was given.
  const std::string file = GetDesktop().ShowFileDialog(dialog).value_or(strFileName_);
  if (!Loaded() || file.empty()) return;
  lblDatalogFileName.SetCaption(file);
  strFileName_ = file;
}

void frmMonitorOptions::Apply() {
  monitor_.SetDatalogInfo({strFileName_, strComments_});
  monitor_.SetDisplayOptions(nIdleTime_, nTimestamp_);
}

}  // namespace lorimet
