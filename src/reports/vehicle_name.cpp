#include "reports/vehicle_name.h"

#include "session/ecu_data.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::size_t kSerialInName = 12;

}  // namespace

std::optional<std::string> SerialName(const ECUData& ecu_data) {
  const std::string serial = ecu_data.SerialNum.Load();
  if (serial.front() == '\0') return std::nullopt;
  return FromCp1252(Trim(UntilNul(serial)).substr(0, kSerialInName));
}

std::optional<std::string> VehicleName(const ECUData& ecu_data) {
  const std::string id = Trim(ecu_data.VehicleId.Load());
  const std::string_view name = UntilNul(id).substr(0, id.find(' '));
  if (!name.empty()) return FromCp1252(name);
  return SerialName(ecu_data);
}

}  // namespace lorimet
