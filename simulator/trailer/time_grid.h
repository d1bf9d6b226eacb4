// The one grid of time on which everything in the simulation is integrated.
#pragma once

#include <cstdint>

namespace lorimet::simulator {

constexpr std::int64_t kStepMicroseconds = 10000;
constexpr double kStepSeconds = 0.01;

// Steps in a duration, rounded to the grid.
constexpr int StepsIn(double seconds) { return static_cast<int>(seconds / kStepSeconds + 0.5); }

}  // namespace lorimet::simulator
