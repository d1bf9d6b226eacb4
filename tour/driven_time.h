// The tour's time: it passes while the program waits, as fast as the machine can, and the trailer's
// with it.
#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <functional>
#include <map>

#include "platform/clock.h"

namespace lorimet {

class QtDesktop;
class Timer;

class DrivenTime : public Clock {
 public:
  // `trailer` lets so many milliseconds of the trailer's time pass.
  explicit DrivenTime(std::function<void(std::int32_t milliseconds)> trailer)
      : trailer_(std::move(trailer)) {}

  // From now on the desktop's timers tick in this time, and time passes whenever its event loop has
  // nothing to do. To be called once, before the first form is loaded; the desktop stays.
  void Drive(QtDesktop& desktop);
  // Comes when the program waits for nothing but time: for its user. True when he has done
  // something, of which the program should hear before time goes on.
  std::function<bool()> on_idle;
  // Comes as time passes, within the program's own waits as well.
  std::function<void()> on_passed;
  // How many times faster than the clock at the most; 0 for no limit.
  double fastest = 0;

  std::uint64_t Milliseconds() const { return now_; }

  void Sleep(std::uint32_t milliseconds) override;
  std::uint32_t TickCount() override { return static_cast<std::uint32_t>(now_); }
  std::tm Now() override;

 private:
  struct Running {
    int interval = 0;
    std::uint64_t due = 0;
  };

  void OnIdle();
  void Pass();
  // True when one was due.
  bool PostTicks();
  void KeepPace() const;

  std::function<void(std::int32_t)> trailer_;
  QtDesktop* desktop_ = nullptr;
  std::uint64_t now_ = 0;
  std::map<Timer*, Running> running_;
  std::chrono::system_clock::time_point begun_ = std::chrono::system_clock::now();
  std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
};

}  // namespace lorimet
