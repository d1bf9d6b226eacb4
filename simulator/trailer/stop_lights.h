// The trailer's stop lights as the stop light activation of the ECU drives them.
#pragma once

#include <algorithm>
#include <cstdint>

#include "simulator/trailer/parameter_store.h"
#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class StopLights {
 public:
  static constexpr std::int32_t kTrailer = 0x89;  // the first trailer's brakes on the data link
  static constexpr double kHoldSeconds = 1.5;     // a command that is not repeated ends

  void SetFitted(bool fitted) { fitted_ = fitted; }
  void Activate(std::int32_t trailer, std::int32_t state) {
    if (trailer != kTrailer) return;
    left_ = state != 0 ? StepsIn(kHoldSeconds) : 0;
  }
  void Off() { left_ = 0; }
  void Step() { left_ = std::max(0, left_ - 1); }

  // What a person sees, by the option in the parameters.
  bool Lit(const ParameterStore& parameters, bool dead) const {
    return left_ > 0 && fitted_ && !dead && HasOption(parameters);
  }

  static bool HasOption(const ParameterStore& store) {
    return store.Byte(kEol5, 18) > 0 && (store.Byte(kEol2, 2) & 0x20) != 0 &&
           store.Byte(kEol3, 33) == 3 && (store.Byte(kEol9, 2) & 4) != 0 &&
           store.Byte(kEol9, 15) == 'I';
  }

 private:
  bool fitted_ = true;
  int left_ = 0;  // steps
};

}  // namespace lorimet::simulator
