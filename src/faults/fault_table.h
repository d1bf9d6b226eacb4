// The faults that have a description, in the language on screen.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lorimet {

struct FaultDefinition {
  std::string Name;  // translated
  std::int16_t Sid = 0;
  std::int16_t Fmi = 0;
  std::int16_t RepairIndex = 0;
};

// Row 0 is blank and stays so; the catalogue's rows follow in its order once the table is built.
class FaultTable {
 public:
  // Rebuilds the table from scratch, with each description as `translate` gives it.
  void BuildFaultTable(const std::function<std::string(const std::string&)>& translate);
  // Appends one row. The blink code is not kept: nothing shows it.
  void AddFaultDefinition(const std::string& Name, std::int16_t Sid, std::int16_t Fmi,
                          const std::string& blink_code, std::int16_t RepairIndex);

  std::size_t Size() const { return rows_.size(); }
  // `index` below Size().
  const FaultDefinition& operator[](std::size_t index) const { return rows_[index]; }
  // The index of the first row of that pair, the blank row 0 included; Size() when there is none.
  std::size_t Find(std::int32_t sid, std::int32_t fmi) const;

 private:
  std::vector<FaultDefinition> rows_ = std::vector<FaultDefinition>(1);
};

}  // namespace lorimet
