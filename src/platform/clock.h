// The clock port: the blocking waits of the program.
#pragma once

#include <cstdint>
#include <ctime>

namespace lorimet {

class Clock {
 public:
  virtual ~Clock() = default;
  // Blocks the user interface; no event runs meanwhile.
  virtual void Sleep(std::uint32_t milliseconds) = 0;
  // Milliseconds since some start; wraps after 49.7 days.
  virtual std::uint32_t TickCount() = 0;
  // Local date and time of day.
  virtual std::tm Now() = 0;
};

}  // namespace lorimet
