// The warning lamp: its check at power-on, the faults that light it, and a routine's command.
#pragma once

#include <optional>

namespace lorimet::simulator {

class WarningLamp {
 public:
  static constexpr double kCheckSeconds = 2;

  void PowerOn() {
    check_left_ = kCheckSeconds;
    command_.reset();
  }
  // A command holds until it is released or the ECU restarts.
  void Command(bool on) { command_ = on; }
  void Release() { command_.reset(); }
  void Advance(double seconds) { check_left_ = check_left_ > seconds ? check_left_ - seconds : 0; }

  bool On(bool active_fault) const {
    if (command_) return *command_;
    return check_left_ > 0 || active_fault;
  }

 private:
  double check_left_ = kCheckSeconds;
  std::optional<bool> command_;
};

}  // namespace lorimet::simulator
