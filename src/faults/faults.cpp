#include "faults/faults.h"

#include <algorithm>
#include <utility>

#include "faults/fault_table.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {

void Faults::ResizeFaultData(std::int16_t count) {
  FaultData_.assign(static_cast<std::size_t>(std::max<int>(count, 0)) + 1, FaultRecord{});
}

std::int16_t Faults::GetFaultCount() {
  if (link_.FaultLock() != 0) return 0;
  const std::int16_t count = ToInteger(link_.FaultGetCount());
  ResizeFaultData(count);
  link_.FaultGetData(FaultData_.data());
  link_.FaultUnlock();
  return count;
}

std::int16_t Faults::ClearFaults() {
  if (TryLinkCall([&] { return link_.ClearAllFaults(); }) != 0) return -1;
  ResizeFaultData(0);
  return 0;
}

void Faults::ClearFaultGrid(DataGrid& grid, TextBox& repair) {
  for (int rows = grid.RowCount(); rows > 0; --rows) grid.DeleteRow(rows - 1);
  repair.SetText("");
}

void Faults::FillFaultGrid(DataGrid& grid, TextBox& repair) {
  Progress progress;
  try {
    FillFaultGrid(grid, repair, progress);
  } catch (const RuntimeError& error) {
    ShowFillError(error.Number(), error.Description(), progress);
  }
}

void Faults::FillFaultGrid(DataGrid& grid, TextBox& repair, Progress& progress) {
  if (link_.FaultLock() != 0) return;
  const std::int16_t count = ToInteger(link_.FaultGetCount());
  if (count <= 0) {
    link_.FaultUnlock();
    return;
  }
  progress.records = count;
  ClearFaultGrid(grid, repair);
  grid.BeginInsert();
  ResizeFaultData(count);
  // After a failed read the store stays locked and the grid empty.
  if (link_.FaultGetData(FaultData_.data()) != 0) return;
  link_.FaultUnlock();
  int number = 1;
  for (const std::int32_t status : {kFaultActive, kFaultStored}) {
    ++progress.pass;
    for (progress.record = 0; progress.record < count; ++progress.record) {
      const FaultRecord& record = FaultData_[static_cast<std::size_t>(progress.record)];
      if (record.Status == status) grid.AppendRow(RowOf(record, number++));
    }
  }
  grid.EndInsert();
}

std::vector<std::string> Faults::RowOf(const FaultRecord& record, int number) const {
  const std::size_t found = table_.Find(record.Sid, record.Fmi);
  const bool known = found < table_.Size();
  const bool counted = record.Times != 0 && record.Times != -1;
  return {
      std::to_string(number),
      known ? table_[found].Name : dictionary_.Translate("The description is not available"),
      dictionary_.Translate(record.Status == kFaultActive ? "ACTIVE" : "Stored"),
      counted ? std::to_string(record.Times) : dictionary_.Translate("N/A"),
      std::to_string(known ? table_[found].Sid : record.Sid),
      std::to_string(known ? table_[found].Fmi : record.Fmi),
  };
}

void Faults::ShowFillError(std::int32_t number, const std::string& description,
                           const Progress& progress) {
  ShowPlainBox(desktop_, std::to_string(number) + ":  " + description, "ERROR");
  ShowPlainBox(desktop_,
               std::string("Error in insert fault record.") + kCrLf +
                   "iCol = " + std::to_string(progress.pass) + kCrLf +
                   "iNbrOfRows = " + std::to_string(progress.records) + kCrLf +
                   "iRow = " + std::to_string(progress.record),
               "ERROR");
}

}  // namespace lorimet
