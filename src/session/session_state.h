// The process-wide records of the session, which stay valid for the whole run because the link
// library writes into them from Connect to Disconnect.
#pragma once

#include <cstdint>
#include <string>

#include "session/ecu_data.h"

namespace lorimet {

// The ECU family that Connect is told: trailer ABS.
constexpr std::int32_t kTrailerFamily = 3;

struct SessionRecords {
  ECUData ecu_data{};
  std::uint8_t before_2 = 0;  // single variables that the library is given and nobody reads
  std::uint8_t before_1 = 0;
  LinkStatus link_status{};
  std::uint8_t after_1 = 0;
  std::uint8_t after_2 = 0;
  std::uint8_t after_3 = 0;
  std::uint32_t after_word = 0;

  std::int32_t lECUFamily = 0;
  std::string vendor;  // the settings of the last connect, as the library left them
  std::string protocol;
  std::int16_t device_id = -1;
};

}  // namespace lorimet
