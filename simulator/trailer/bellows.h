// The air bellows, which follow the load.
#pragma once

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class Bellows {
 public:
  static constexpr double kSeconds = 6;  // time constant

  // From 0 (unladen) to 1 (laden).
  void SetLoad(double load) { load_ = load; }
  double Load() const { return load_; }
  // How far the bellows have come, from 0 to 1.
  double Share() const { return share_; }
  void Settle() { share_ = load_; }
  void Step() { share_ += (load_ - share_) * (kStepSeconds / kSeconds); }

 private:
  double load_ = 0;
  double share_ = 0;
};

}  // namespace lorimet::simulator
