// The clock of the machine.
#pragma once

#include <chrono>

#include "platform/clock.h"

namespace lorimet {

class QtClock : public Clock {
 public:
  void Sleep(std::uint32_t milliseconds) override;
  std::uint32_t TickCount() override;
  std::tm Now() override;

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace lorimet
