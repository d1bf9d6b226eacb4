// What the library has found out about the connected trailer, while a parameter file is in its
// place in the ECU's record.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace lorimet {

struct ECUData;
struct ParameterImage;

class FoundConfiguration {
 public:
  explicit FoundConfiguration(ECUData& ecu_data) : ecu_data_(ecu_data) {}

  // Before a file takes the place; of several files the first finds what the library found.
  void Keep();
  // Before a read from the ECU: what was kept comes back.
  void Restore();
  // The library finds out anew, and what was kept is another trailer's.
  void Forget() { kept_.reset(); }
  // The ECU has accepted EOL1: the record follows the image and the number of axles chosen. Sensors
  // and modulators stay what the library found.
  void TakeWritten(const ParameterImage& image);

 private:
  struct Fields {
    std::int16_t vehicle_type, suspension, mounting, axles;
    std::array<std::int16_t, 3> lift, flag, axle_sensors;
    std::uint8_t sensors, modulators;
    std::string vehicle_id, manufacturer, trailer_type;
  };

  ECUData& ecu_data_;
  std::optional<Fields> kept_;
};

}  // namespace lorimet
