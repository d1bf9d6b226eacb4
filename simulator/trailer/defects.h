// What is wrong with the trailer itself: hoses, valves, sensors, cables, lamps. A healthy one has
// the values that stand here.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::simulator {

enum class SensorState { kWell, kNone, kHigh };

// A pressure sensor of the ECU.
struct PressureSensorDefect {
  SensorState state = SensorState::kWell;
  double offset = 0;  // psi

  bool operator==(const PressureSensorDefect&) const = default;
};

struct ModulatorDefect {
  bool dead = false;    // no electric apply
  double weak = 1;      // the target times this
  double residual = 0;  // psi, never below
  double slow = 1;      // all times times this
  double leak = 0;      // psi a second while applied

  bool operator==(const ModulatorDefect&) const = default;
};

// The pneumatic path of a modulator.
struct RedundancyDefect {
  bool blocked = false;
  double kinked = 0;  // time constant in seconds; 0: the healthy one
  double offset = 0;  // psi less

  bool operator==(const RedundancyDefect&) const = default;
};

enum class SpeedSensorState { kWell, kOpen, kShort, kShort12V, kDead, kErratic };

struct SpeedSensorDefect {
  SpeedSensorState state = SpeedSensorState::kWell;
  double gap = 1;  // the share of the speed that is told

  bool operator==(const SpeedSensorDefect&) const = default;
};

struct Defects {
  double supply_leak = 0;       // psi a second
  bool lines_swapped = false;   // supply and control hoses exchanged
  double control_residual = 0;  // psi
  double control_leak = 0;      // psi a second under a held pedal
  PressureSensorDefect control_sensor;
  PressureSensorDefect supply_sensor;
  PressureSensorDefect bellows_sensor;
  bool bellows_burst = false;
  std::array<ModulatorDefect, 3> modulators;
  std::array<PressureSensorDefect, 2> pressure_sensors;  // at the outlets of H1 and H2
  std::array<RedundancyDefect, 3> redundancies;
  bool brake_lines_crossed = false;
  std::array<int, 6> cables = {0, 1, 2, 3, 4, 5};  // by ECU input: the sensor at its end
  std::array<SpeedSensorDefect, 6> sensors;        // by the index of the record
  std::array<bool, 6> no_brake = {};               // by position less one
  std::array<bool, 3> mode_ignored = {};           // by the mode
  bool load_ignored = false;
  bool lamp_dead = false;
  bool lamp_shorted = false;
  bool height_sensor_open = false;
  bool stop_lights_dead = false;

  bool operator==(const Defects&) const = default;
};

// Puts a defect into the trailer: its name, where, and "key=value" options. The result is empty, or
// says what is wrong with the words; then nothing has changed.
std::string PutDefect(Defects& defects, const std::vector<std::string>& words);
// Takes back every defect of a name, or "all".
std::string RepairDefect(Defects& defects, std::string_view name);

struct DefectFacts {
  std::string_view name;
  std::string_view usage;
};
std::vector<DefectFacts> DefectTable();

}  // namespace lorimet::simulator
