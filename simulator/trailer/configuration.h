// What a trailer is built as: brake system, suspension, axles and mounting, with the facts of each
// brake system.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lorimet::simulator {

enum class System { k2S1M, k2S2M, k4S2M, k4S3M, k2M1M };
enum class Suspension { kAir, kMechanical };

struct SystemFacts {
  System system;
  std::string_view name;
  int sensors;
  std::uint8_t modulators;      // as the record tells them: 21 stands for 2M + 1M
  std::uint8_t parameter_code;  // in the first vehicle byte of the parameters
};

constexpr std::array<SystemFacts, 5> kSystems = {{
    {System::k2S1M, "2S/1M", 2, 1, 4},
    {System::k2S2M, "2S/2M", 2, 2, 0},
    {System::k4S2M, "4S/2M", 4, 2, 1},
    {System::k4S3M, "4S/3M", 4, 3, 2},
    {System::k2M1M, "2M+1M", 4, 21, 3},
}};

const SystemFacts& FactsOf(System system);
// By name ("4S/2M"; "4S/2M+1M" means 2M+1M), or by the code in the parameters; nothing when
// unknown.
std::optional<System> SystemByName(std::string_view name);
std::optional<System> SystemByParameterCode(int code);

// Fixed while a trailer lives.
struct TrailerSetup {
  System system = System::k4S2M;
  Suspension suspension = Suspension::kAir;
  int axles = 3;         // 1 to 3
  int vehicle_type = 0;  // 0 semi trailer, 1 draw-bar, 2 single axle
  bool rear_mounted = false;
  bool lateral_sensor = true;    // the modulator holds a lateral acceleration sensor
  double session_timeout = 300;  // seconds without a service until the diagnostic session lapses
};

}  // namespace lorimet::simulator
