// The fault store of the ECU: reading it under its lock, clearing it, and filling the fault list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace lorimet {

class DataGrid;
class Desktop;
class Dictionary;
class FaultTable;
class LinkLibrary;
class TextBox;

// One record as the library writes it.
struct FaultRecord {
  std::int32_t reserved_0 = 0;
  std::int32_t Sid = 0;  // subsystem identifier
  std::int32_t Fmi = 0;  // failure mode identifier
  std::int32_t reserved_12 = 0;
  std::int32_t Status = 0;  // 0 active, 1 stored, others are possible
  std::int32_t Times = 0;   // occurrences; 0 and -1: no count is held

  bool operator==(const FaultRecord&) const = default;
};
static_assert(sizeof(FaultRecord) == 24);
static_assert(offsetof(FaultRecord, Sid) == 4);
static_assert(offsetof(FaultRecord, Fmi) == 8);
static_assert(offsetof(FaultRecord, Status) == 16);
static_assert(offsetof(FaultRecord, Times) == 20);
static_assert(std::is_standard_layout_v<FaultRecord>);

constexpr std::int32_t kFaultActive = 0;
constexpr std::int32_t kFaultStored = 1;

class Faults {
 public:
  Faults(LinkLibrary& link, Desktop& desktop, const Dictionary& dictionary, const FaultTable& table)
      : link_(link), desktop_(desktop), dictionary_(dictionary), table_(table) {}

  // The records of the last reading, and one zeroed element behind them that is never shown.
  const std::vector<FaultRecord>& FaultData() const { return FaultData_; }

  // The number of faults, with FaultData refreshed; 0, with FaultData as it was, when the store is
  // not to be had. Error 6 for a count that does not fit 16 bits.
  std::int16_t GetFaultCount();
  // Asks the ECU to erase its faults. 0, with FaultData emptied, or -1 with it as it was.
  std::int16_t ClearFaults();
  // Forgets the records of the last reading.
  void EmptyFaultData() { ResizeFaultData(0); }
  // Fills the grid, active faults first, then stored ones, each in the ECU's order. An empty store
  // leaves the grid as it is. A run-time error is shown in two boxes, the store left as it is.
  void FillFaultGrid(DataGrid& grid, TextBox& repair);
  // Deletes all rows and empties the repair box.
  void ClearFaultGrid(DataGrid& grid, TextBox& repair);

 private:
  // How far a filling has come, for the report of an error in it.
  struct Progress {
    int pass = 0;
    int records = 0;
    int record = 0;
  };

  void FillFaultGrid(DataGrid& grid, TextBox& repair, Progress& progress);
  void ResizeFaultData(std::int16_t count);
  std::vector<std::string> RowOf(const FaultRecord& record, int number) const;
  void ShowFillError(std::int32_t number, const std::string& description, const Progress& progress);

  LinkLibrary& link_;
  Desktop& desktop_;
  const Dictionary& dictionary_;
  const FaultTable& table_;
  std::vector<FaultRecord> FaultData_ = std::vector<FaultRecord>(1);
};

}  // namespace lorimet
