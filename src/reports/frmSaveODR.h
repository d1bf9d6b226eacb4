// The export of the operating data recorder into a file named after the vehicle. The link library
// asks for step after step by its status; the screen shows them and watches the end.
#pragma once

#include <cstdint>
#include <string>

#include "platform/forms.h"

namespace lorimet {

class Clock;
class Dictionary;
class LinkLibrary;
class Process;
struct ECUData;

// What the screen uses of the rest of the program.
struct SaveOdrParts {
  Desktop& desktop;
  Clock& clock;
  Process& process;
  Dictionary& dictionary;
  LinkLibrary& link;
  ECUData& ecu_data;
};

class frmSaveODR : public Form {
 public:
  explicit frmSaveODR(const SaveOdrParts& parts);

  Label Label1{*this, "Label1"};
  TextBox txtStatus{*this, "txtStatus"};
  ProgressBar Progress{*this, "Progress"};
  Timer Timer1{*this, "Timer1"};
  Button cmdClose{*this, "cmdClose"};

  // A step of the library: its text, empty for a step that has none, and its number. Nothing while
  // the form is not loaded: an export goes on behind a closed screen.
  void ShowStep(const std::string& text, int step);

 protected:
  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;

 private:
  // Names the file; false, and the user is told, when nothing is known to name it after.
  bool NameFile();
  void PrepareEcu();
  std::int32_t Export();
  void OnTick();

  SaveOdrParts parts_;
  std::string strExportFile_;
  bool has_name_ = false;  // one that a file can have
};

}  // namespace lorimet
