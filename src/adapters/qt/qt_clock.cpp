#include "adapters/qt/qt_clock.h"

#include <thread>

namespace lorimet {

void QtClock::Sleep(std::uint32_t milliseconds) {
  if (wait_) return wait_(milliseconds);
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

std::uint32_t QtClock::TickCount() {
  const auto elapsed = std::chrono::steady_clock::now() - start_;
  return static_cast<std::uint32_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

std::tm QtClock::Now() {
  const std::time_t now = std::time(nullptr);
  std::tm result{};
#ifdef _WIN32
  localtime_s(&result, &now);
#else
  localtime_r(&now, &result);
#endif
  return result;
}

}  // namespace lorimet
