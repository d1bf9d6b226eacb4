// Every defect of the simulated trailer, each strong enough for the test that looks for it.
#pragma once

#include <cstddef>
#include <string_view>

namespace lorimet::testing_support {

constexpr const char* kDefects[] = {
    "defect supply_leak 2.5",
    "defect lines_swapped",
    "defect control_residual 4",
    "defect control_leak 3",
    "defect control_sensor none",
    "defect control_sensor high",
    "defect control_sensor offset=4",
    "defect supply_sensor none",
    "defect supply_sensor high",
    "defect supply_sensor offset=-45",
    "defect bellows_sensor none",
    "defect bellows_sensor high",
    "defect bellows_sensor offset=-9",
    "defect bellows burst",
    "defect modulator H1 dead",
    "defect modulator H1 weak=0.9",
    "defect modulator H1 residual=5",
    "defect modulator H1 residual=9",
    "defect modulator H1 slow=8",
    "defect modulator H1 leak=60",
    "defect modulator H2 dead",
    "defect modulator H2 weak=0.9",
    "defect modulator H2 residual=5",
    "defect modulator H2 residual=9",
    "defect modulator H2 slow=8",
    "defect modulator H2 leak=60",
    "defect pressure_sensor H1 none",
    "defect pressure_sensor H1 high",
    "defect pressure_sensor H1 offset=-8",
    "defect pressure_sensor H2 none",
    "defect pressure_sensor H2 high",
    "defect pressure_sensor H2 offset=-8",
    "defect redundancy H1 blocked",
    "defect redundancy H1 kinked=4",
    "defect redundancy H1 offset=7",
    "defect redundancy H2 blocked",
    "defect redundancy H2 kinked=4",
    "defect redundancy H2 offset=7",
    "defect brake_lines crossed",
    "defect wire c d",
    "defect sensor c open",
    "defect sensor c short",
    "defect sensor c short_12v",
    "defect sensor c dead",
    "defect sensor c gap=0.57",
    "defect sensor c erratic",
    "defect wheel 1 no_brake",
    "defect mode_ignored 1",
    "defect mode_ignored 2",
    "defect load_ignored",
    "defect lamp dead",
    "defect lamp shorted",
    "defect height_sensor open",
    "defect stop_lights dead",
};

// Whether one of a table's rows is about this defect.
template <typename Row, std::size_t N>
bool HasRow(const Row (&rows)[N], std::string_view defect) {
  for (const Row& row : rows)
    if (defect == row.scenario) return true;
  return false;
}

}  // namespace lorimet::testing_support
