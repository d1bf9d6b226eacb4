// What the ECU holds and does.
#include "simulator/trailer/commands.h"

#include <limits>

namespace lorimet::simulator {
namespace {

std::string ReadBlockId(const std::string& word, std::uint8_t& id) {
  if (const BlockFacts* block = FindBlock(std::string_view(word))) {
    id = block->id;
    return {};
  }
  return ReadNumber(word, 0, 255, id);
}

std::string RunIdentity(Simulation& s, const Words& words) {
  struct Place {
    std::string_view name;
    std::string Identity::*text;
    std::size_t width;
  };
  static constexpr Place kPlaces[] = {
      {"part_number", &Identity::part_number, 16},
      {"production_date", &Identity::production_date, 12},
      {"software", &Identity::software, 12},
      {"serial_number", &Identity::serial_number, 16},
      {"diagnostic_id", &Identity::diagnostic_id, 12},
      {"system_name", &Identity::system_name, 18},
  };
  struct VehiclePlace {
    std::string_view name;
    int index;
    int width;
  };
  static constexpr VehiclePlace kVehiclePlaces[] = {
      {"vehicle_id", 4, 18}, {"manufacturer", 22, 20}, {"trailer_type", 42, 20}};
  for (const Place& place : kPlaces) {
    if (place.name != words[0]) continue;
    if (words[1].size() > place.width) return BadValue(words[1]);
    s.trailer.Ident().*place.text = words[1];
    return {};
  }
  for (const VehiclePlace& place : kVehiclePlaces) {
    if (place.name != words[0]) continue;
    if (words[1].size() > static_cast<std::size_t>(place.width)) return BadValue(words[1]);
    s.trailer.Parameters().SetText(kEol7, place.index, words[1], place.width);
    return {};
  }
  return BadValue(words[0]);
}

std::string RunFault(Simulation& s, const Words& words) {
  constexpr double kLow = std::numeric_limits<std::int32_t>::min();
  constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
  Fault fault;
  std::string error = ReadNumber(words[0], kLow, kHigh, fault.sid);
  if (error.empty()) error = ReadNumber(words[1], kLow, kHigh, fault.fmi);
  if (error.empty() && words.size() > 3) error = ReadNumber(words[3], kLow, kHigh, fault.times);
  if (!error.empty()) return error;
  if (words[2] == "gone") {
    s.trailer.Faults().Heal(fault.sid, fault.fmi);
    return {};
  }
  if (words[2] == "none") {
    s.trailer.Faults().Remove(fault.sid, fault.fmi);
    return {};
  }
  if (words[2] == "stored")
    fault.status = kFaultStored;
  else if (words[2] != "active")
    error = ReadNumber(words[2], kLow, kHigh, fault.status);
  if (error.empty()) s.trailer.Faults().Set(fault);
  return error;
}

std::string RunParameter(Simulation& s, const Words& words) {
  std::uint8_t id = 0;
  int index = 0;
  std::uint8_t value = 0;
  std::string error = ReadBlockId(words[0], id);
  if (!error.empty()) return error;
  const BlockFacts* block = FindBlock(id);
  if (block == nullptr) return BadValue(words[0]);
  error = ReadNumber(words[1], 1, block->size, index);
  for (std::size_t i = 2; error.empty() && i < words.size(); ++i, ++index) {
    error = index > block->size ? BadValue(words[i]) : ReadNumber(words[i], 0, 255, value);
    if (error.empty()) s.trailer.Parameters().SetByte(id, index, value);
  }
  return error;
}

std::string RunChecksum(Simulation& s, const Words& words) {
  std::uint8_t id = 0;
  std::string error = ReadBlockId(words[0], id);
  if (!error.empty()) return error;
  if (FindBlock(id) == nullptr) return BadValue(words[0]);
  if (words[1] != "wrong") return BadValue(words[1]);
  s.trailer.Parameters().SpoilChecksum(id);
  return {};
}

std::string RunParameterError(Simulation& s, const Words& words) {
  const std::size_t dash = words[0].find('-');
  if (dash == std::string::npos) return BadValue(words[0]);
  const auto byte = ParseInteger(words[0].substr(0, dash), 1, ErrorBytes::kCount);
  const auto bit = ParseInteger(words[0].substr(dash + 1), 0, 7);
  if (!byte || !bit) return BadValue(words[0]);
  const auto on = Choose(words[1], {{"off", 0}, {"on", 1}});
  if (!on) return BadValue(words[1]);
  s.trailer.ForceError(static_cast<int>(*byte), static_cast<int>(*bit), *on != 0);
  return {};
}

std::string RunFlag(Simulation& s, const Words& words) {
  std::uint8_t value = 0;
  std::string error = ReadNumber(words[0], 0, 255, value);
  if (error.empty()) s.trailer.SetEndOfLineFlag(value);
  return error;
}

std::string RunWord(Simulation& s, const Words& words) {
  std::uint8_t address[3] = {};
  std::uint16_t value = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    std::string error = ReadNumber(words[i], 0, 255, address[i]);
    if (!error.empty()) return error;
  }
  std::string error = ReadNumber(words[3], 0, 65535, value);
  if (error.empty()) s.trailer.SetWord(Address(address[0], address[1], address[2]), value);
  return error;
}

std::string RunReset(Simulation& s, const Words&) {
  s.trailer.Reset();
  return {};
}

std::string RunSession(Simulation& s, const Words& words) {
  if (words[0] != "lapse") return BadValue(words[0]);
  s.trailer.Diagnosis().Stop();
  return {};
}

std::string RunSessionKeepAlive(Simulation& s, const Words& words) {
  const auto on = ChooseSwitch(words[0]);
  if (!on) return BadValue(words[0]);
  s.trailer.Diagnosis().SetKeepAlive(*on != 0);
  return {};
}

std::string RunResetTime(Simulation& s, const Words& words) {
  double seconds = 0;
  std::string error = ReadNumber(words[0], 0, 60, seconds);
  if (error.empty()) s.trailer.SetResetSeconds(seconds);
  return error;
}

std::string RunCalibration(Simulation& s, const Words& words) {
  const auto done = Choose(words[0], {{"open", 0}, {"done", 1}});
  if (!done) return BadValue(words[0]);
  s.trailer.SetCalibrated(*done != 0);
  return {};
}

std::string RunStartUp(Simulation& s, const Words& words) {
  const auto required = Choose(words[0], {{"done", 0}, {"required", 1}});
  if (!required) return BadValue(words[0]);
  s.trailer.SetStartUpRequired(*required != 0);
  return {};
}

constexpr CommandRow kRows[] = {
    {"identity", 2, 2,
     "part_number|production_date|software|serial_number|diagnostic_id|system_name|vehicle_id|"
     "manufacturer|trailer_type TEXT",
     nullptr, RunIdentity},
    {"fault", 3, 4, "SID FMI active|stored|gone|none|STATUS [TIMES]", nullptr, RunFault},
    {"parameter", 3, kManyWords, "BLOCK INDEX BYTE...", nullptr, RunParameter},
    {"checksum", 2, 2, "BLOCK wrong", nullptr, RunChecksum},
    {"parameter_error", 2, 2, "BYTE-BIT on|off", nullptr, RunParameterError},
    {"flag", 1, 1, "BYTE", nullptr, RunFlag},
    {"word", 4, 4, "HIGH MIDDLE LOW WORD", nullptr, RunWord},
    {"reset", 0, 0, "", nullptr, RunReset},
    {"reset_time", 1, 1, "SECONDS", nullptr, RunResetTime},
    {"session", 1, 1, "lapse", nullptr, RunSession},
    {"session_keep_alive", 1, 1, "on|off", nullptr, RunSessionKeepAlive},
    {"calibration", 1, 1, "done|open", nullptr, RunCalibration},
    {"start_up", 1, 1, "done|required", nullptr, RunStartUp},
};

}  // namespace

std::span<const CommandRow> EcuCommands() { return kRows; }

}  // namespace lorimet::simulator
