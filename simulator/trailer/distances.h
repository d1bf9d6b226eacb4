// Odometer, trip and the distance to the next service, in km.
#pragma once

#include <algorithm>
#include <cstdint>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

struct Distances {
  static constexpr double kKmPerMile = 1.609;
  static constexpr double kCountingSpeed = 3;  // mph of both wheels of the axle c-d

  double odometer = 84213.6;
  double trip = 412.3;
  double next_service = 15786.0;

  // The speeds of both wheels in mph. One that is spun by hand alone counts nothing.
  void Step(double mph_c, double mph_d) {
    if (mph_c <= kCountingSpeed || mph_d <= kCountingSpeed) return;
    const double km = (mph_c + mph_d) / 2 * kKmPerMile * kStepSeconds / 3600;
    odometer += km;
    trip += km;
    next_service -= km;
  }
  // Grows with every tenth of a kilometre, which is as often as they are kept.
  std::uint64_t Revision() const {
    return static_cast<std::uint64_t>(std::max(0.0, odometer) * 10);
  }
};

}  // namespace lorimet::simulator
