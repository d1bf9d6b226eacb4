// The options of the bus monitor: where the data log goes, and what each line shows.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms.h"

namespace lorimet {

class BusMonitor;
class Dictionary;
class Process;

class frmMonitorOptions : public Form {
 public:
  frmMonitorOptions(Desktop& desktop, Dictionary& dictionary, Process& process,
                    BusMonitor& monitor);

  TabStrip tbsOptions{*this, "tbsOptions"};
  ControlArray<Picture> picOptions{*this, "picOptions", 2};
  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1"};
  TextBox txtDatalogComments{*this, "txtDatalogComments"};
  Label lblDatalogFileName{*this, "lblDatalogFileName"};
  Button cmdSaveAs{*this, "cmdSaveAs"};
  Frame Frame2{*this, "Frame2"};
  CheckBox chkIdleTime{*this, "chkIdleTime"};
  CheckBox chkTimestamp{*this, "chkTimestamp"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
  Button cmdApply{*this, "cmdApply"};

 protected:
  void OnLoad() override;
  void OnKeyDown(KeyEvent& key) override;

 private:
  void ShowPage();
  void SaveAs();
  void Apply();

  Dictionary& dictionary_;
  Process& process_;
  BusMonitor& monitor_;
  // The dialog's own, until they are applied.
  std::string strFileName_;
  std::string strComments_;
  std::int16_t nTimestamp_ = 0;
  std::int16_t nIdleTime_ = 0;
};

}  // namespace lorimet
