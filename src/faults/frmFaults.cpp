#include "faults/frmFaults.h"

#include "faults/fault_table.h"
#include "faults/faults.h"
#include "faults/repair_instructions.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/numbers.h"
#include "support/settings.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kLoadWait = 1500;     // ms, for the ECU to have its faults ready
constexpr std::uint32_t kRestartWait = 8000;  // ms, for the ECU to be back after a reset
constexpr std::int16_t kIdentityShown = 2;
constexpr const char* kNoDescription = "The description is not available";
constexpr const char* kNoInstruction = "Repair instruction not available for the current fault.";

}  // namespace

std::string PadNumber(const std::string& text) {
  if (text.size() == 1) return "00" + text;
  if (text.size() == 2) return "0" + text;
  return text;
}

frmFaults::frmFaults(const FaultListParts& parts)
    : Form(parts.desktop, "frmFaults"), parts_(parts) {
  escape_closes = true;
  help_page = "faults.html";
  grdFaults.on_focused_row_change = [this] { OnRowFocused(); };
  grdFaults.on_hyperlink_click = [this](int row) { OnHyperlink(row); };
  // The box can be read and selected, but not edited.
  txtRepair.on_key_down = [](KeyEvent& key) { key.code = 0; };
  cmdUpdate.on_click = [this] { parts_.faults.FillFaultGrid(grdFaults, txtRepair); };
  cmdClearAll.on_click = [this] { ClearAll(); };
  cmdSave.on_click = [this] {
    if (save_report) save_report();
  };
  cmdPrint.on_click = [this] {
    if (print_report) print_report();
  };
  cmdExit.on_click = [this] { Unload(); };
}

std::string frmFaults::Translated(const char* text) const {
  return parts_.dictionary.Translate(text);
}

void frmFaults::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  SetColumns();
  cmdSave.SetEnabled(static_cast<bool>(save_report));
  cmdPrint.SetEnabled(static_cast<bool>(print_report));
  CenterOnScreen();
  parts_.clock.Sleep(kLoadWait);
  parts_.faults.FillFaultGrid(grdFaults, txtRepair);
}

void frmFaults::SetColumns() {
  const Dictionary& dictionary = parts_.dictionary;
  grdFaults.SetColumns({
      {"Num", dictionary.Translate("Num"), false},
      {"Name", dictionary.Translate("Name"), true},
      {"Type", dictionary.Translate("Type"), false},
      {"Times", dictionary.Translate("Times"), false},
      {"Sid", dictionary.Translate("SID"), false},
      {"Fmi", dictionary.Translate("FMI"), false},
  });
}

void frmFaults::OnRowFocused() {
  txtRepair.SetText("");
  const int row = grdFaults.FocusedRow();
  if (row < 0) return;
  const std::string& sid = grdFaults.Cell(row, "Sid");
  const std::string& fmi = grdFaults.Cell(row, "Fmi");
  if (fmi == Translated("N/A") || sid.empty()) return;
  const std::size_t found = parts_.table.Find(ToLong(StrictNumber(sid)), ToLong(StrictNumber(fmi)));
  if (found < parts_.table.Size())
    ShowRepairInstruction(
        parts_.table[found].RepairIndex, txtRepair,
        [this](const std::string& text) { return parts_.dictionary.Translate(text); });
}

void frmFaults::OnHyperlink(int row) {
  try {
    OpenManual(row);
  } catch (const RuntimeError& error) {
    ShowPlainBox(parts_.desktop,
                 Name() + kCrLf + "Func: grdFaults_OnHyperLinkEditStartClick" + kCrLf +
                     "Error = 0x" + HexText(static_cast<std::uint32_t>(error.Number())) + kCrLf +
                     error.Description(),
                 "");
  }
}

void frmFaults::OpenManual(int row) {
  const std::string sid = grdFaults.Cell(row, "Sid");
  const std::string fmi = grdFaults.Cell(row, "Fmi");
  manual_path_.clear();
  parts_.settings.ReadRegString(RegistryHive::kLocalMachine,
                                std::string(kAppPathsKey) + "QORABS.exe", "Path", manual_path_);
  if (!manual_path_.ends_with('\\')) manual_path_ += '\\';
  const bool unknown = grdFaults.Cell(row, "Name") == Translated(kNoDescription) ||
                       txtRepair.Text() == Translated(kNoInstruction);
  topic_key_ = unknown ? "SIDunkFMIunk" : "SID" + PadNumber(sid) + "FMI" + PadNumber(fmi);
  // Once an identity has been displayed the key and the path are only kept.
  if (ecu_type && ecu_type() == kIdentityShown) return;
  parts_.dictionary.ShowMessageBox(
      Translated("No help manual currently exists for this Trailer configuration."),
      Translated("Missing Help File"), BoxKind::kInformation, kBoxOk, 0);
}

void frmFaults::ClearAll() {
  // A second click while the events run would start a second clearing.
  const bool had_focus = FocusedControl() == &cmdClearAll;
  cmdClearAll.SetEnabled(false);
  SetMousePointer(MousePointer::kHourglass);
  lblWait.SetCaption(
      Translated("Clearing the faults. The ECU restarts, which takes some seconds."));
  parts_.faults.ClearFaultGrid(grdFaults, txtRepair);
  parts_.faults.ClearFaults();
  parts_.desktop.DoEvents();
  TryLinkCall([&] { return parts_.link.ResetECU(); });
  parts_.clock.Sleep(kRestartWait);
  // The user can have closed the list while the events ran.
  if (!Loaded()) return;
  SetMousePointer(MousePointer::kDefault);
  lblWait.SetCaption("");
  cmdClearAll.SetEnabled(true);
  if (had_focus) cmdClearAll.SetFocus();
  parts_.faults.FillFaultGrid(grdFaults, txtRepair);
}

}  // namespace lorimet
