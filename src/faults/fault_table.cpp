#include "faults/fault_table.h"

#include "faults/fault_catalogue.h"

#include <algorithm>

namespace lorimet {

void FaultTable::BuildFaultTable(const std::function<std::string(const std::string&)>& translate) {
  rows_.assign(1, FaultDefinition{});
  for (const FaultCatalogueRow& row : kFaultCatalogue)
    AddFaultDefinition(translate(row.description), row.sid, row.fmi, row.blink_code,
                       row.repair_index);
}

void FaultTable::AddFaultDefinition(const std::string& Name, std::int16_t Sid, std::int16_t Fmi,
                                    const std::string& blink_code, std::int16_t RepairIndex) {
  static_cast<void>(blink_code);
  rows_.push_back({Name, Sid, Fmi, RepairIndex});
}

std::size_t FaultTable::Find(std::int32_t sid, std::int32_t fmi) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const FaultDefinition& row) {
    return row.Sid == sid && row.Fmi == fmi;
  });
  return static_cast<std::size_t>(found - rows_.begin());
}

}  // namespace lorimet
