// How long a transfer waits for an ECU that does not answer.
#pragma once

#include <cstdint>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class LinkOutage {
 public:
  static constexpr double kPatience = 10;  // seconds

  enum class Turn { kNone, kBack, kLost };

  // One step of the grid: the ECU has just come back, or has been away for too long.
  Turn Step(bool reachable) {
    if (reachable) {
      const bool was_away = away_ > 0;
      away_ = 0;
      return was_away ? Turn::kBack : Turn::kNone;
    }
    return ++away_ == StepsIn(kPatience) ? Turn::kLost : Turn::kNone;
  }
  void Forget() { away_ = 0; }

 private:
  int away_ = 0;  // steps
};

}  // namespace lorimet::simulator
