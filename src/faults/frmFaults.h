// The fault list: the ECU's faults with their repair advice, and their clearing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/forms.h"

namespace lorimet {

class Clock;
class Dictionary;
class FaultTable;
class Faults;
class LinkLibrary;
class Settings;

// What the fault list uses of the rest of the program.
struct FaultListParts {
  Desktop& desktop;
  Clock& clock;
  Dictionary& dictionary;
  Settings& settings;
  LinkLibrary& link;
  Faults& faults;
  const FaultTable& table;
};

class frmFaults : public Form {
 public:
  explicit frmFaults(const FaultListParts& parts);

  Label lblGrid{*this, "lblGrid"};
  Label lblWait{*this, "lblWait"};
  DataGrid grdFaults{*this, "grdFaults"};
  Frame Frame1{*this, "Frame1"};
  Label Label1{*this, "Label1"};
  TextBox txtRepair{*this, "txtRepair"};
  Button cmdSave{*this, "cmdSave"};
  Button cmdPrint{*this, "cmdPrint"};
  Button cmdUpdate{*this, "cmdUpdate"};
  Button cmdClearAll{*this, "cmdClearAll"};
  Button cmdExit{*this, "cmdExit"};

  // Plugs: the text report, the printed one, and the main form's field that tells whether an
  // identity has been displayed. A report that is missing leaves its button disabled.
  std::function<void()> save_report;
  std::function<void()> print_report;
  std::function<std::int16_t()> ecu_type;

  // What the last click on a link formed for the manual link.
  const std::string& TopicKey() const { return topic_key_; }
  const std::string& ManualPath() const { return manual_path_; }

 protected:
  void OnLoad() override;

 private:
  void SetColumns();
  void OnRowFocused();
  void OnHyperlink(int row);
  void OpenManual(int row);
  void ClearAll();
  std::string Translated(const char* text) const;

  FaultListParts parts_;
  std::string topic_key_;
  std::string manual_path_;
};

// A number's text brought to three digits; a text of any other length than 1 or 2 stays.
std::string PadNumber(const std::string& text);

}  // namespace lorimet
