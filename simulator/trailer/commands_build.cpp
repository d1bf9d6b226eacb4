// What a trailer is built as.
#include "simulator/trailer/commands.h"

namespace lorimet::simulator {
namespace {

std::string BuildConfiguration(TrailerSetup& setup, const Words& words) {
  const auto system = SystemByName(words[0]);
  if (!system) return BadValue(words[0]);
  setup.system = *system;
  return {};
}

std::string BuildSuspension(TrailerSetup& setup, const Words& words) {
  const auto mechanical = Choose(words[0], {{"air", 0}, {"mechanical", 1}});
  if (!mechanical) return BadValue(words[0]);
  setup.suspension = *mechanical != 0 ? Suspension::kMechanical : Suspension::kAir;
  return {};
}

std::string BuildAxles(TrailerSetup& setup, const Words& words) {
  return ReadNumber(words[0], 1, 3, setup.axles);
}

std::string BuildVehicle(TrailerSetup& setup, const Words& words) {
  const auto type = Choose(words[0], {{"semi", 0}, {"drawbar", 1}, {"single_axle", 2}});
  if (!type) return BadValue(words[0]);
  setup.vehicle_type = *type;
  return {};
}

std::string BuildMounting(TrailerSetup& setup, const Words& words) {
  const auto rear = Choose(words[0], {{"forward", 0}, {"rear", 1}});
  if (!rear) return BadValue(words[0]);
  setup.rear_mounted = *rear != 0;
  return {};
}

std::string BuildLateralSensor(TrailerSetup& setup, const Words& words) {
  const auto present = Choose(words[0], {{"missing", 0}, {"present", 1}});
  if (!present) return BadValue(words[0]);
  setup.lateral_sensor = *present != 0;
  return {};
}

std::string BuildSessionTimeout(TrailerSetup& setup, const Words& words) {
  return ReadNumber(words[0], 0, 1e6, setup.session_timeout);
}

constexpr CommandRow kRows[] = {
    {"configuration", 1, 1, "2S/1M|2S/2M|4S/2M|4S/3M|2M+1M", BuildConfiguration},
    {"suspension", 1, 1, "air|mechanical", BuildSuspension},
    {"axles", 1, 1, "1|2|3", BuildAxles},
    {"vehicle", 1, 1, "semi|drawbar|single_axle", BuildVehicle},
    {"mounting", 1, 1, "forward|rear", BuildMounting},
    {"lateral_sensor", 1, 1, "present|missing", BuildLateralSensor},
    {"session_timeout", 1, 1, "SECONDS", BuildSessionTimeout},
};

}  // namespace

std::span<const CommandRow> BuildingCommands() { return kRows; }

}  // namespace lorimet::simulator
