// The trailer seen from above, with the live values where they belong: a drawing of what the panel
// shows.
#pragma once

#include <array>
#include <string>

#include "platform/drawing.h"

namespace lorimet {

struct PlanValue {
  std::string words;
  Color ground = kColorWhite;
};

struct TrailerPlan {
  int axles = 0;                 // 1 to 3 are drawn
  std::array<int, 3> sensors{};  // of each axle: 1 c-d, 2 e-f
  int mounting = 0;              // of the ECU, 0 forward, 1 rear; the sides are not known of others
  std::array<PlanValue, 6> speeds;  // by the record's index
  PlanValue demand, supply, side1, side2, main_bellows, steer_bellows;
};

Drawing DrawTrailerPlan(const TrailerPlan& plan);

}  // namespace lorimet
