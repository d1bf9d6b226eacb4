// What a person does to the trailer on the yard and on the road, and what is broken about it.
#include "simulator/trailer/commands.h"

namespace lorimet::simulator {
namespace {

std::string RunSupply(Simulation& s, const Words& words) {
  double psi = 0;
  std::string error = ReadNumber(words[0], 0, 1000, psi);
  if (error.empty()) s.trailer.Supply().SetPressure(psi);
  return error;
}

std::string RunCompressor(Simulation& s, const Words& words) {
  const auto on = Choose(words[0], {{"off", 0}, {"on", 1}});
  if (!on) return BadValue(words[0]);
  s.trailer.Supply().SetCompressor(*on != 0);
  return {};
}

std::string RunPress(Simulation& s, const Words& words) {
  if (words[0] != "demand") return BadValue(words[0]);
  double psi = 0;
  std::string error = ReadNumber(words[1], 0, 1000, psi);
  if (error.empty()) s.trailer.Line().SetPedal(psi);
  return error;
}

std::string RunLoad(Simulation& s, const Words& words) {
  double load = 0;
  const auto named = Choose(words[0], {{"unladen", 0}, {"laden", 1}});
  std::string error = named ? std::string() : ReadNumber(words[0], 0, 1, load);
  if (error.empty()) s.trailer.Load().SetLoad(named ? *named : load);
  return error;
}

// A letter gives the wheel with that sensor its speed at once; a position is turned by a hand.
std::string RunSpin(Simulation& s, const Words& words) {
  Trailer& trailer = s.trailer;
  double mph = 0;
  std::string error = ReadNumber(words[1], 0, 1000, mph);
  if (!error.empty()) return error;
  if (words[0] == "all") {
    for (int index = 2; index < 6; ++index)
      if (const auto position = trailer.Plan().PositionOf(index))
        trailer.Rolling().SetSpeed(*position, mph);
    return {};
  }
  if (const auto position = ParseInteger(words[0], 1, kPositions)) {
    if (!trailer.Plan().HasWheel(static_cast<int>(*position)))
      return "no wheel stands at position " + words[0];
    trailer.Rolling().Spin(static_cast<int>(*position), mph);
    return {};
  }
  const auto index = words[0].size() == 1 ? SensorIndex(words[0][0]) : std::nullopt;
  if (!index) return BadValue(words[0]);
  const auto position = trailer.Plan().PositionOf(*index);
  if (!position) return "no wheel carries the sensor " + words[0];
  trailer.Rolling().SetSpeed(*position, mph);
  return {};
}

std::string RunParkingBrake(Simulation& s, const Words& words) {
  const auto on = ChooseSwitch(words[0]);
  if (!on) return BadValue(words[0]);
  s.trailer.SetParkingBrake(*on != 0);
  return {};
}

std::string RunVoltage(Simulation& s, const Words& words) {
  double volts = 0;
  std::string error = ReadNumber(words[0], 0, 100, volts);
  if (error.empty()) s.trailer.Electric().SetVolts(volts);
  return error;
}

std::string RunVoltageSource(Simulation& s, const Words& words) {
  const auto source = Choose(words[0], {{"stop_light", 0}, {"permanent", 1}});
  if (!source) return BadValue(words[0]);
  s.trailer.Electric().SetSource(static_cast<VoltageSource>(*source));
  return {};
}

std::string RunPower(Simulation& s, const Words& words) {
  const auto on = ChooseSwitch(words[0]);
  if (!on) return BadValue(words[0]);
  s.trailer.Electric().SwitchPermanent(*on != 0);
  return {};
}

std::string RunStopLightPower(Simulation& s, const Words& words) {
  const auto on = ChooseSwitch(words[0]);
  if (!on) return BadValue(words[0]);
  s.trailer.Electric().SwitchStopLight(*on != 0);
  return {};
}

std::string RunStopLights(Simulation& s, const Words& words) {
  const auto present = Choose(words[0], {{"missing", 0}, {"present", 1}});
  if (!present) return BadValue(words[0]);
  s.trailer.Lights().SetFitted(*present != 0);
  return {};
}

std::string RunDistance(Simulation& s, const Words& words) {
  double km = 0;
  std::string error = ReadNumber(words[1], -1e9, 1e9, km);
  if (!error.empty()) return error;
  Distances& distances = s.trailer.Distance();
  if (words[0] == "odometer")
    distances.odometer = km;
  else if (words[0] == "trip")
    distances.trip = km;
  else if (words[0] == "next_service")
    distances.next_service = km;
  else
    return BadValue(words[0]);
  return {};
}

std::string RunHeight(Simulation& s, const Words& words) {
  std::uint16_t counts = 0;
  if (words[0] == "none") {
    s.trailer.HeightLever().Disconnect();
    return {};
  }
  std::string error = ReadNumber(words[0], 0, 65535, counts);
  if (error.empty()) s.trailer.HeightLever().SetCounts(counts);
  return error;
}

std::string RunLever(Simulation& s, const Words& words) {
  double degrees = 0;
  std::string error = ReadNumber(words[0], -90, 90, degrees);
  if (error.empty()) s.trailer.HeightLever().SetLever(degrees);
  return error;
}

std::string RunDrive(Simulation& s, const Words& words) {
  double mph = 0;
  std::string error = words[0] == "stop" ? std::string() : ReadNumber(words[0], 0, 100, mph);
  if (error.empty()) s.trailer.Road().SetTarget(mph);
  return error;
}

std::string RunLateral(Simulation& s, const Words& words) {
  double g = 0;
  std::string error = ReadNumber(words[0], 0, 2, g);
  if (error.empty()) s.trailer.Road().SetLateral(g);
  return error;
}

std::string RunSurface(Simulation& s, const Words& words) {
  const auto ice = Choose(words[0], {{"dry", 0}, {"ice", 1}});
  if (!ice) return BadValue(words[0]);
  s.trailer.Road().SetIce(*ice != 0);
  return {};
}

std::string RunTowingVehicle(Simulation& s, const Words& words) {
  const auto on = ChooseSwitch(words[0]);
  if (!on) return BadValue(words[0]);
  s.senders.SetTowingVehicle(*on != 0);
  return {};
}

std::string RunDefect(Simulation& s, const Words& words) {
  return PutDefect(s.trailer.Wrong(), words);
}

std::string RunRepair(Simulation& s, const Words& words) {
  return RepairDefect(s.trailer.Wrong(), words[0]);
}

std::string RunNoise(Simulation& s, const Words& words) {
  if (const auto on = ChooseSwitch(words[0])) {
    s.trailer.Measuring().Switch(*on != 0);
    return {};
  }
  const auto seed =
      words[0].starts_with("seed=") ? ParseInteger(words[0].substr(5), 0, INT64_MAX) : std::nullopt;
  if (!seed) return BadValue(words[0]);
  s.trailer.Measuring().SetSeed(static_cast<std::uint64_t>(*seed));
  return {};
}

constexpr CommandRow kRows[] = {
    {"supply", 1, 1, "PSI", nullptr, RunSupply},
    {"compressor", 1, 1, "on|off", nullptr, RunCompressor},
    {"press", 2, 2, "demand PSI", nullptr, RunPress},
    {"load", 1, 1, "unladen|laden|0..1", nullptr, RunLoad},
    {"spin", 2, 2, "1..6|c|d|e|f|all MPH", nullptr, RunSpin},
    {"parking_brake", 1, 1, "on|off", nullptr, RunParkingBrake},
    {"voltage", 1, 1, "VOLTS", nullptr, RunVoltage},
    {"voltage_source", 1, 1, "stop_light|permanent", nullptr, RunVoltageSource},
    {"power", 1, 1, "on|off", nullptr, RunPower},
    {"stop_light_power", 1, 1, "on|off", nullptr, RunStopLightPower},
    {"stop_lights", 1, 1, "present|missing", nullptr, RunStopLights},
    {"distance", 2, 2, "odometer|trip|next_service KM", nullptr, RunDistance},
    {"height", 1, 1, "COUNTS|none", nullptr, RunHeight},
    {"lever", 1, 1, "DEGREES", nullptr, RunLever},
    {"drive", 1, 1, "MPH|stop", nullptr, RunDrive},
    {"lateral", 1, 1, "G", nullptr, RunLateral},
    {"surface", 1, 1, "dry|ice", nullptr, RunSurface},
    {"towing_vehicle", 1, 1, "on|off", nullptr, RunTowingVehicle},
    {"defect", 1, 6, "NAME [WHERE] [OPTIONS]", nullptr, RunDefect},
    {"repair", 1, 1, "NAME|all", nullptr, RunRepair},
    {"noise", 1, 1, "on|off|seed=N", nullptr, RunNoise},
};

}  // namespace

std::span<const CommandRow> YardCommands() { return kRows; }

}  // namespace lorimet::simulator
