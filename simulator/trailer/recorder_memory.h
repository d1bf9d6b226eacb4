// What the operating data recorder keeps besides its counters.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>

#include "simulator/trailer/recorder_counters.h"
#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

struct RecorderEvent {
  std::uint8_t counter = 0;    // which one has counted, by its number
  std::uint32_t odometer = 0;  // in tenths of a kilometre

  bool operator==(const RecorderEvent&) const = default;
};

class RecorderMemory {
 public:
  static constexpr std::size_t kClasses = 16;  // of 5 mph
  static constexpr double kClassWidth = 5;
  static constexpr std::size_t kEvents = 32;

  // One step of the road: the speed in mph, and whether the brake is on.
  void Step(double speed, bool braking) {
    if (speed <= 0) return;
    trip_km += speed * 1.609 * kStepSeconds / 3600;
    if (braking) braking_seconds += kStepSeconds;
    const auto at = static_cast<std::size_t>(speed / kClassWidth);
    seconds_at_speed[std::min(at, kClasses - 1)] += kStepSeconds;
  }
  void Note(const RecorderEvent& event) {
    events.push_back(event);
    if (events.size() > kEvents) events.pop_front();
  }

  std::uint32_t starts = 0;    // of the ECU
  double braking_seconds = 0;  // on the road
  double trip_km = 0;          // since it was emptied
  std::array<double, kClasses> seconds_at_speed = {};
  std::deque<RecorderEvent> events;  // the latest, oldest first
};

}  // namespace lorimet::simulator
