#include "simulator/trailer/scenario.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>

#include "simulator/trailer/command.h"

namespace lorimet::simulator {
namespace {

using Words = std::vector<std::string>;  // a command's arguments

std::string BadValue(const std::string& word) { return "'" + word + "' is not a valid value"; }

// Reads a number in a range into `target`; the error otherwise.
template <typename Number>
std::string Read(const std::string& word, double low, double high, Number& target) {
  const auto number = ParseNumber(word);
  if (!number || !(*number >= low && *number <= high)) return BadValue(word);
  const auto value = static_cast<Number>(*number);
  if (static_cast<double>(value) != *number) return BadValue(word);
  target = value;
  return {};
}

struct Choice {
  std::string_view word;
  int value;
};

std::optional<int> Choose(const std::string& word, std::initializer_list<Choice> choices) {
  for (const Choice& choice : choices)
    if (choice.word == word) return choice.value;
  return std::nullopt;
}

// --- Building -----------------------------------------------------------------------------------

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
  return Read(words[0], 1, 3, setup.axles);
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
  return Read(words[0], 0, 1e6, setup.session_timeout);
}

// --- The link -----------------------------------------------------------------------------------

std::string RunClientId(Simulation& s, const Words& words) {
  return Read(words[0], 0, 127, s.client_id);
}

std::string RunAdapter(Simulation& s, const Words& words) {
  if (words[0] == "vendor")
    s.adapter.vendor = words[1];
  else if (words[0] == "protocol")
    s.adapter.protocol = words[1];
  else if (words[0] == "device")
    return Read(words[1], -32768, 32767, s.adapter.device.emplace());
  else
    return BadValue(words[0]);
  return {};
}

std::string RunAnswer(Simulation& s, const Words& words) {
  if (words[0] == "vendor")
    s.answered_vendor = words[1];
  else if (words[0] == "protocol")
    s.answered_protocol = words[1];
  else
    return BadValue(words[0]);
  return {};
}

std::string RunCable(Simulation& s, const Words& words) {
  const auto out = Choose(words[0], {{"in", 0}, {"out", 1}});
  if (!out) return BadValue(words[0]);
  s.failures.Heal(FailureMode::kCableOut);
  if (*out != 0) s.failures.Arm({.mode = FailureMode::kCableOut});
  return {};
}

std::string RunPost(Simulation& s, const Words& words) {
  std::int32_t status = 0;
  std::string error = Read(words[0], std::numeric_limits<std::int32_t>::min(),
                           std::numeric_limits<std::int32_t>::max(), status);
  if (error.empty()) s.statuses.push_back(status);
  return error;
}

std::string ReadBlockId(const std::string& word, std::uint8_t& id) {
  if (const BlockFacts* block = FindBlock(std::string_view(word))) {
    id = block->id;
    return {};
  }
  return Read(word, 0, 255, id);
}

// One "key=value" of a failure.
std::string ReadFailureOption(const std::string& word, Failure& failure) {
  const std::size_t equals = word.find('=');
  if (equals == std::string::npos) return BadValue(word);
  const std::string key = word.substr(0, equals);
  const std::string value = word.substr(equals + 1);
  if (key == "operation") {
    failure.operation = OperationByName(value);
    return failure.operation ? "" : "no operation '" + value + "'";
  }
  if (key == "block") {
    std::uint8_t id = 0;
    std::string error = ReadBlockId(value, id);
    failure.block = id;
    return error;
  }
  if (key == "value") return Read(value, -1e12, 1e12, failure.value);
  if (key != "times") return BadValue(word);
  if (value == "always") {
    failure.times = kAlways;
    return {};
  }
  return value == "once" ? Read("1", 1, 1, failure.times) : Read(value, 1, 1e6, failure.times);
}

std::string RunFailure(Simulation& s, const Words& words) {
  const FailureFacts* facts = FindFailure(words[0]);
  if (facts == nullptr) return "no failure '" + words[0] + "'";
  Failure failure{.mode = facts->mode};
  for (std::size_t i = 1; i < words.size(); ++i) {
    std::string error = ReadFailureOption(words[i], failure);
    if (!error.empty()) return error;
  }
  s.failures.Arm(failure);
  return {};
}

std::string RunHeal(Simulation& s, const Words& words) {
  if (words[0] == "all") {
    s.failures.HealAll();
    return {};
  }
  const FailureFacts* facts = FindFailure(words[0]);
  if (facts == nullptr) return "no failure '" + words[0] + "'";
  s.failures.Heal(facts->mode);
  return {};
}

// --- The record ---------------------------------------------------------------------------------

std::string RunField(Simulation& s, const Words& words) { return s.fields.Set(words[0], words[1]); }

std::string RunRelease(Simulation& s, const Words& words) {
  if (words[0] != "all") return s.fields.Release(words[0]);
  s.fields.ReleaseAll();
  return {};
}

// --- The ECU ------------------------------------------------------------------------------------

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
  std::string error = Read(words[0], kLow, kHigh, fault.sid);
  if (error.empty()) error = Read(words[1], kLow, kHigh, fault.fmi);
  if (error.empty() && words.size() > 3) error = Read(words[3], kLow, kHigh, fault.times);
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
    error = Read(words[2], kLow, kHigh, fault.status);
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
  error = Read(words[1], 1, block->size, index);
  for (std::size_t i = 2; error.empty() && i < words.size(); ++i, ++index) {
    error = index > block->size ? BadValue(words[i]) : Read(words[i], 0, 255, value);
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
  std::string error = Read(words[0], 0, 255, value);
  if (error.empty()) s.trailer.SetEndOfLineFlag(value);
  return error;
}

std::string RunWord(Simulation& s, const Words& words) {
  std::uint8_t address[3] = {};
  std::uint16_t value = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    std::string error = Read(words[i], 0, 255, address[i]);
    if (!error.empty()) return error;
  }
  std::string error = Read(words[3], 0, 65535, value);
  if (error.empty()) s.trailer.Memory().Set(Address(address[0], address[1], address[2]), value);
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

// --- The yard -----------------------------------------------------------------------------------

std::string RunSupply(Simulation& s, const Words& words) {
  double psi = 0;
  std::string error = Read(words[0], 0, 1000, psi);
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
  std::string error = Read(words[1], 0, 1000, psi);
  if (error.empty()) s.trailer.PressDemand(psi);
  return error;
}

std::string RunLoad(Simulation& s, const Words& words) {
  double load = 0;
  const auto named = Choose(words[0], {{"unladen", 0}, {"laden", 1}});
  std::string error = named ? std::string() : Read(words[0], 0, 1, load);
  if (error.empty()) s.trailer.SetLoad(named ? *named : load);
  return error;
}

std::string RunSpin(Simulation& s, const Words& words) {
  double mph = 0;
  std::string error = Read(words[1], 0, 1000, mph);
  if (!error.empty()) return error;
  if (words[0] == "all") {
    for (int i = 2; i < 6; ++i) s.trailer.SpinWheel(i, mph);
    return {};
  }
  const auto index = words[0].size() == 1 ? SensorIndex(words[0][0]) : std::nullopt;
  if (!index) return BadValue(words[0]);
  s.trailer.SpinWheel(*index, mph);
  return {};
}

std::string RunVoltage(Simulation& s, const Words& words) {
  double volts = 0;
  std::string error = Read(words[0], 0, 100, volts);
  if (error.empty()) s.trailer.Electric().SetVolts(volts);
  return error;
}

std::string RunVoltageSource(Simulation& s, const Words& words) {
  const auto source = Choose(words[0], {{"stop_light", 0}, {"permanent", 1}});
  if (!source) return BadValue(words[0]);
  s.trailer.Electric().SetSource(static_cast<VoltageSource>(*source));
  return {};
}

std::string RunDistance(Simulation& s, const Words& words) {
  double km = 0;
  std::string error = Read(words[1], -1e9, 1e9, km);
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
  std::string error = Read(words[0], 0, 65535, counts);
  if (error.empty()) s.trailer.SetHeightCounts(counts);
  return error;
}

// --- The table ----------------------------------------------------------------------------------

struct CommandRow {
  std::string_view word;
  std::size_t least;  // arguments
  std::size_t most;
  std::string_view usage;
  std::string (*build)(TrailerSetup&, const Words&);
  std::string (*run)(Simulation&, const Words&);
};

constexpr std::size_t kMany = 1000;

constexpr CommandRow kCommands[] = {
    {"configuration", 1, 1, "2S/1M|2S/2M|4S/2M|4S/3M|2M+1M", BuildConfiguration, nullptr},
    {"suspension", 1, 1, "air|mechanical", BuildSuspension, nullptr},
    {"axles", 1, 1, "1|2|3", BuildAxles, nullptr},
    {"vehicle", 1, 1, "semi|drawbar|single_axle", BuildVehicle, nullptr},
    {"mounting", 1, 1, "forward|rear", BuildMounting, nullptr},
    {"lateral_sensor", 1, 1, "present|missing", BuildLateralSensor, nullptr},
    {"session_timeout", 1, 1, "SECONDS", BuildSessionTimeout, nullptr},
    {"client_id", 1, 1, "0..127", nullptr, RunClientId},
    {"adapter", 2, 2, "vendor|protocol|device VALUE", nullptr, RunAdapter},
    {"answer", 2, 2, "vendor|protocol TEXT", nullptr, RunAnswer},
    {"cable", 1, 1, "in|out", nullptr, RunCable},
    {"post", 1, 1, "STATUS", nullptr, RunPost},
    {"failure", 1, 5, "NAME [operation=NAME] [block=NAME|ID] [value=NUMBER] [times=N|once|always]",
     nullptr, RunFailure},
    {"heal", 1, 1, "NAME|all", nullptr, RunHeal},
    {"field", 2, 2, "NAME[(INDEX)] VALUE|none", nullptr, RunField},
    {"release", 1, 1, "NAME[(INDEX)]|all", nullptr, RunRelease},
    {"identity", 2, 2,
     "part_number|production_date|software|serial_number|diagnostic_id|system_name|vehicle_id|"
     "manufacturer|trailer_type TEXT",
     nullptr, RunIdentity},
    {"fault", 3, 4, "SID FMI active|stored|gone|none|STATUS [TIMES]", nullptr, RunFault},
    {"parameter", 3, kMany, "BLOCK INDEX BYTE...", nullptr, RunParameter},
    {"checksum", 2, 2, "BLOCK wrong", nullptr, RunChecksum},
    {"parameter_error", 2, 2, "BYTE-BIT on|off", nullptr, RunParameterError},
    {"flag", 1, 1, "BYTE", nullptr, RunFlag},
    {"word", 4, 4, "HIGH MIDDLE LOW WORD", nullptr, RunWord},
    {"reset", 0, 0, "", nullptr, RunReset},
    {"session", 1, 1, "lapse", nullptr, RunSession},
    {"supply", 1, 1, "PSI", nullptr, RunSupply},
    {"compressor", 1, 1, "on|off", nullptr, RunCompressor},
    {"press", 2, 2, "demand PSI", nullptr, RunPress},
    {"load", 1, 1, "unladen|laden|0..1", nullptr, RunLoad},
    {"spin", 2, 2, "c|d|e|f|all MPH", nullptr, RunSpin},
    {"voltage", 1, 1, "VOLTS", nullptr, RunVoltage},
    {"voltage_source", 1, 1, "stop_light|permanent", nullptr, RunVoltageSource},
    {"distance", 2, 2, "odometer|trip|next_service KM", nullptr, RunDistance},
    {"height", 1, 1, "COUNTS", nullptr, RunHeight},
};

struct Parsed {
  const CommandRow* row = nullptr;  // null for an empty line
  Words words;
  std::string error;
};

Parsed Parse(std::string_view line) {
  Parsed parsed;
  const auto words = SplitWords(line);
  if (!words) {
    parsed.error = "quotes that do not end";
    return parsed;
  }
  if (words->empty()) return parsed;
  const auto* row = std::find_if(std::begin(kCommands), std::end(kCommands),
                                 [&](const CommandRow& r) { return r.word == words->front(); });
  if (row == std::end(kCommands)) {
    parsed.error = "unknown command '" + words->front() + "'";
    return parsed;
  }
  parsed.words.assign(words->begin() + 1, words->end());
  if (parsed.words.size() < row->least || parsed.words.size() > row->most)
    parsed.error = "use: " + std::string(row->word) + " " + std::string(row->usage);
  parsed.row = row;
  return parsed;
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string AtLine(std::size_t index, const std::string& error) {
  return "line " + std::to_string(index + 1) + ": " + error;
}

}  // namespace

std::vector<CommandFacts> Commands() {
  std::vector<CommandFacts> facts;
  for (const CommandRow& row : kCommands)
    facts.push_back({row.word, row.usage, row.build != nullptr});
  return facts;
}

std::string RunCommand(Simulation& simulation, std::string_view line) {
  const Parsed parsed = Parse(line);
  if (!parsed.error.empty() || parsed.row == nullptr) return parsed.error;
  if (parsed.row->run == nullptr)
    return "'" + std::string(parsed.row->word) + "' can stand only in a scenario file";
  return parsed.row->run(simulation, parsed.words);
}

std::unique_ptr<Simulation> DefaultSimulation() {
  return std::make_unique<Simulation>(TrailerSetup{});
}

ScenarioResult BuildScenario(std::string_view text) {
  std::vector<Parsed> commands;
  TrailerSetup setup;
  for (const std::string_view line : Lines(text)) {
    commands.push_back(Parse(line));
    Parsed& command = commands.back();
    if (command.error.empty() && command.row != nullptr && command.row->build != nullptr)
      command.error = command.row->build(setup, command.words);
    if (!command.error.empty()) break;
  }
  auto simulation = std::make_unique<Simulation>(setup);
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const Parsed& command = commands[i];
    std::string error = command.error;
    if (error.empty() && command.row != nullptr && command.row->run != nullptr)
      error = command.row->run(*simulation, command.words);
    if (!error.empty()) return {DefaultSimulation(), AtLine(i, error)};
  }
  return {std::move(simulation), {}};
}

}  // namespace lorimet::simulator
