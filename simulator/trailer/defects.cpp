#include "simulator/trailer/defects.h"

#include <algorithm>
#include <optional>

#include "simulator/trailer/command.h"
#include "simulator/trailer/layout.h"

namespace lorimet::simulator {
namespace {

using Words = std::vector<std::string>;  // behind the name

std::string Bad(const std::string& word) { return "'" + word + "' is not a valid value"; }

std::string ReadRange(const std::string& word, double low, double high, double& target) {
  const auto number = ParseNumber(word);
  if (!number || !(*number >= low && *number <= high)) return Bad(word);
  target = *number;
  return {};
}

// A rate in psi a second, or a pressure.
std::string PutNumber(const Words& words, double& target) {
  return ReadRange(words[0], 0, 1000, target);
}

// "H1" and "H2", and "H3" where it makes sense, to 0, 1 and 2.
std::optional<std::size_t> ModulatorIndex(const std::string& word, std::size_t count) {
  if (word.size() != 2 || word[0] != 'H' || word[1] < '1') return std::nullopt;
  const auto index = static_cast<std::size_t>(word[1] - '1');
  if (index >= count) return std::nullopt;
  return index;
}

std::optional<int> SensorOf(const std::string& word) {
  return word.size() == 1 ? SensorIndex(word[0]) : std::nullopt;
}

// "key=number" with a key and a range.
struct Option {
  std::string_view key;
  double low;
  double high;
  double* target;
};
std::string PutOption(const std::string& word, std::initializer_list<Option> options) {
  for (const Option& option : options) {
    if (!word.starts_with(std::string(option.key) + "=")) continue;
    return ReadRange(word.substr(option.key.size() + 1), option.low, option.high, *option.target);
  }
  return Bad(word);
}

std::string PutPressureSensor(const std::string& word, PressureSensorDefect& sensor) {
  if (word == "none") {
    sensor.state = SensorState::kNone;
    return {};
  }
  if (word == "high") {
    sensor.state = SensorState::kHigh;
    return {};
  }
  return PutOption(word, {{"offset", -200, 200, &sensor.offset}});
}

std::string PutModulator(Defects& d, const Words& words) {
  const auto index = ModulatorIndex(words[0], d.modulators.size());
  if (!index) return Bad(words[0]);
  ModulatorDefect& modulator = d.modulators[*index];
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (words[i] == "dead") {
      modulator.dead = true;
      continue;
    }
    std::string error = PutOption(words[i], {{"weak", 0, 2, &modulator.weak},
                                             {"residual", 0, 200, &modulator.residual},
                                             {"slow", 0.1, 1000, &modulator.slow},
                                             {"leak", 0, 1000, &modulator.leak}});
    if (!error.empty()) return error;
  }
  return {};
}

std::string PutBrakePressureSensor(Defects& d, const Words& words) {
  const auto index = ModulatorIndex(words[0], d.pressure_sensors.size());
  if (!index) return Bad(words[0]);
  return PutPressureSensor(words[1], d.pressure_sensors[*index]);
}

std::string PutRedundancy(Defects& d, const Words& words) {
  const auto index = ModulatorIndex(words[0], d.redundancies.size());
  if (!index) return Bad(words[0]);
  RedundancyDefect& path = d.redundancies[*index];
  if (words[1] == "blocked") {
    path.blocked = true;
    return {};
  }
  return PutOption(words[1],
                   {{"kinked", 0.01, 1000, &path.kinked}, {"offset", -200, 200, &path.offset}});
}

std::string PutWire(Defects& d, const Words& words) {
  const auto a = SensorOf(words[0]);
  const auto b = SensorOf(words[1]);
  if (!a) return Bad(words[0]);
  if (!b || a == b) return Bad(words[1]);
  std::swap(d.cables[static_cast<std::size_t>(*a)], d.cables[static_cast<std::size_t>(*b)]);
  return {};
}

std::string PutSensor(Defects& d, const Words& words) {
  const auto index = SensorOf(words[0]);
  if (!index) return Bad(words[0]);
  SpeedSensorDefect& sensor = d.sensors[static_cast<std::size_t>(*index)];
  struct Named {
    std::string_view name;
    SpeedSensorState state;
  };
  constexpr Named kStates[] = {{"open", SpeedSensorState::kOpen},
                               {"short", SpeedSensorState::kShort},
                               {"short_12v", SpeedSensorState::kShort12V},
                               {"dead", SpeedSensorState::kDead},
                               {"erratic", SpeedSensorState::kErratic}};
  for (const Named& named : kStates) {
    if (words[1] != named.name) continue;
    sensor.state = named.state;
    return {};
  }
  return PutOption(words[1], {{"gap", 0, 1, &sensor.gap}});
}

std::string PutWheel(Defects& d, const Words& words) {
  const auto position = ParseInteger(words[0], 1, kPositions);
  if (!position) return Bad(words[0]);
  if (words[1] != "no_brake") return Bad(words[1]);
  d.no_brake[static_cast<std::size_t>(*position - 1)] = true;
  return {};
}

std::string PutModeIgnored(Defects& d, const Words& words) {
  const auto mode = ParseInteger(words[0], 1, 2);
  if (!mode) return Bad(words[0]);
  d.mode_ignored[static_cast<std::size_t>(*mode)] = true;
  return {};
}

std::string PutLamp(Defects& d, const Words& words) {
  if (words[0] == "dead")
    d.lamp_dead = true;
  else if (words[0] == "shorted")
    d.lamp_shorted = true;
  else
    return Bad(words[0]);
  return {};
}

// A defect that one word names.
std::string PutWord(const Words& words, std::string_view wanted, bool& target) {
  if (words[0] != wanted) return Bad(words[0]);
  target = true;
  return {};
}

struct Row {
  std::string_view name;
  std::size_t least;  // words behind the name
  std::size_t most;
  std::string_view usage;
  std::string (*put)(Defects&, const Words&);
  void (*repair)(Defects&, const Defects&);  // takes this defect's part of a healthy trailer
};

#define LORIMET32_PUT(expression) [](Defects& d, const Words& words) { return expression; }
#define LORIMET32_PUT_FLAG(member) \
  [](Defects& d, const Words&) {   \
    d.member = true;               \
    return std::string();          \
  }
#define LORIMET32_REPAIR(member) [](Defects& d, const Defects& well) { d.member = well.member; }

constexpr Row kRows[] = {
    {"supply_leak", 1, 1, "PSI_A_SECOND", LORIMET32_PUT(PutNumber(words, d.supply_leak)),
     LORIMET32_REPAIR(supply_leak)},
    {"lines_swapped", 0, 0, "", LORIMET32_PUT_FLAG(lines_swapped), LORIMET32_REPAIR(lines_swapped)},
    {"control_residual", 1, 1, "PSI", LORIMET32_PUT(PutNumber(words, d.control_residual)),
     LORIMET32_REPAIR(control_residual)},
    {"control_leak", 1, 1, "PSI_A_SECOND", LORIMET32_PUT(PutNumber(words, d.control_leak)),
     LORIMET32_REPAIR(control_leak)},
    {"control_sensor", 1, 1, "none|high|offset=PSI",
     LORIMET32_PUT(PutPressureSensor(words[0], d.control_sensor)),
     LORIMET32_REPAIR(control_sensor)},
    {"supply_sensor", 1, 1, "none|high|offset=PSI",
     LORIMET32_PUT(PutPressureSensor(words[0], d.supply_sensor)), LORIMET32_REPAIR(supply_sensor)},
    {"bellows_sensor", 1, 1, "none|high|offset=PSI",
     LORIMET32_PUT(PutPressureSensor(words[0], d.bellows_sensor)),
     LORIMET32_REPAIR(bellows_sensor)},
    {"bellows", 1, 1, "burst", LORIMET32_PUT(PutWord(words, "burst", d.bellows_burst)),
     LORIMET32_REPAIR(bellows_burst)},
    {"modulator", 2, 5, "H1|H2|H3 dead|weak=F|residual=PSI|slow=F|leak=PSI_A_SECOND...",
     PutModulator, LORIMET32_REPAIR(modulators)},
    {"pressure_sensor", 2, 2, "H1|H2 none|high|offset=PSI", PutBrakePressureSensor,
     LORIMET32_REPAIR(pressure_sensors)},
    {"redundancy", 2, 2, "H1|H2|H3 blocked|kinked=SECONDS|offset=PSI", PutRedundancy,
     LORIMET32_REPAIR(redundancies)},
    {"brake_lines", 1, 1, "crossed",
     LORIMET32_PUT(PutWord(words, "crossed", d.brake_lines_crossed)),
     LORIMET32_REPAIR(brake_lines_crossed)},
    {"wire", 2, 2, "c|d|e|f c|d|e|f", PutWire, LORIMET32_REPAIR(cables)},
    {"sensor", 2, 2, "c|d|e|f open|short|short_12v|dead|erratic|gap=F", PutSensor,
     LORIMET32_REPAIR(sensors)},
    {"wheel", 2, 2, "1..6 no_brake", PutWheel, LORIMET32_REPAIR(no_brake)},
    {"mode_ignored", 1, 1, "1|2", PutModeIgnored, LORIMET32_REPAIR(mode_ignored)},
    {"load_ignored", 0, 0, "", LORIMET32_PUT_FLAG(load_ignored), LORIMET32_REPAIR(load_ignored)},
    {"lamp", 1, 1, "dead|shorted", PutLamp,
     [](Defects& d, const Defects&) { d.lamp_dead = d.lamp_shorted = false; }},
    {"height_sensor", 1, 1, "open", LORIMET32_PUT(PutWord(words, "open", d.height_sensor_open)),
     LORIMET32_REPAIR(height_sensor_open)},
    {"stop_lights", 1, 1, "dead", LORIMET32_PUT(PutWord(words, "dead", d.stop_lights_dead)),
     LORIMET32_REPAIR(stop_lights_dead)},
};
#undef LORIMET32_PUT
#undef LORIMET32_PUT_FLAG
#undef LORIMET32_REPAIR

const Row* Find(std::string_view name) {
  for (const Row& row : kRows)
    if (row.name == name) return &row;
  return nullptr;
}

}  // namespace

std::string PutDefect(Defects& defects, const std::vector<std::string>& words) {
  const Row* row = words.empty() ? nullptr : Find(words.front());
  if (row == nullptr) return "no defect '" + (words.empty() ? "" : words.front()) + "'";
  if (words.size() < row->least + 1 || words.size() > row->most + 1)
    return "use: defect " + std::string(row->name) + " " + std::string(row->usage);
  Defects changed = defects;
  std::string error = row->put(changed, {words.begin() + 1, words.end()});
  if (error.empty()) defects = changed;
  return error;
}

std::string RepairDefect(Defects& defects, std::string_view name) {
  if (name == "all") {
    defects = Defects();
    return {};
  }
  const Row* row = Find(name);
  if (row == nullptr) return "no defect '" + std::string(name) + "'";
  row->repair(defects, Defects());
  return {};
}

std::vector<DefectFacts> DefectTable() {
  std::vector<DefectFacts> facts;
  for (const Row& row : kRows) facts.push_back({row.name, row.usage});
  return facts;
}

}  // namespace lorimet::simulator
