// The warning lamp's output: its check at power-on, the faults that light it, and a routine's
// command.
#pragma once

#include <algorithm>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

class WarningLamp {
 public:
  static constexpr double kCheckSeconds = 2;

  void PowerOn() {
    check_left_ = StepsIn(kCheckSeconds);
    command_left_ = 0;
  }
  // Holds for a time, then the lamp tells the truth again.
  void Command(bool on, double seconds) {
    command_ = on;
    command_left_ = StepsIn(seconds);
  }
  void Step() {
    check_left_ = std::max(0, check_left_ - 1);
    command_left_ = std::max(0, command_left_ - 1);
  }
  bool On(bool active_fault) const {
    if (command_left_ > 0) return command_;
    return check_left_ > 0 || active_fault;
  }

 private:
  int check_left_ = StepsIn(kCheckSeconds);  // steps
  int command_left_ = 0;                     // steps
  bool command_ = false;
};

}  // namespace lorimet::simulator
