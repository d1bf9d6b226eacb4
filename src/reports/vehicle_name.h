// What the recorder's screens and files call the connected vehicle.
#pragma once

#include <optional>
#include <string>

namespace lorimet {

struct ECUData;

// The first 12 characters of the serial number; nothing when the ECU has not told it. UTF-8.
std::optional<std::string> SerialName(const ECUData& ecu_data);

// The vehicle id up to its first blank or NUL or, where there is none, the serial number's name.
std::optional<std::string> VehicleName(const ECUData& ecu_data);

}  // namespace lorimet
