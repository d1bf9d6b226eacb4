// The upload of the ECU's EEPROM into a file that the user names. The link library transfers on its
// own; the screen watches how far it is.
#pragma once

#include <string>

#include "platform/forms.h"

namespace lorimet {

class Dictionary;
class LinkLibrary;
class Process;
struct ECUData;

class frmSaveEEPROM : public Form {
 public:
  frmSaveEEPROM(Desktop& desktop, Process& process, Dictionary& dictionary, LinkLibrary& link,
                ECUData& ecu_data);

  Label Label1{*this, "Label1"};
  TextBox txtStatus{*this, "txtStatus"};
  ProgressBar Progress{*this, "Progress"};
  Timer Timer1{*this, "Timer1"};
  Button cmdClose{*this, "cmdClose"};

 protected:
  // Asks for the file's name, and stands whatever the answer was.
  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  void BeginUpload();
  // False for a cancelled dialog and a name that is none.
  bool AskForName();
  std::int32_t Upload(const std::string& text);
  void OnTick();
  void ShowProgress();
  void ResumeUpload();
  void Leave();

  Process& process_;
  Dictionary& dictionary_;
  LinkLibrary& link_;
  ECUData& ecu_data_;
  std::string file_name_;  // of the dialog
};

}  // namespace lorimet
