// The clock of the machine.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

#include "platform/clock.h"

namespace lorimet {

class QtClock : public Clock {
 public:
  // `wait` blocks while the windows repaint; without one the thread sleeps.
  explicit QtClock(std::function<void(std::uint32_t milliseconds)> wait = {})
      : wait_(std::move(wait)) {}

  void Sleep(std::uint32_t milliseconds) override;
  std::uint32_t TickCount() override;
  std::tm Now() override;

 private:
  std::function<void(std::uint32_t)> wait_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace lorimet
