#include "simulator/library/bus_monitor.h"

#include <cstdio>

namespace lorimet::simulator {

std::string TextOf(const BusMessage& message) {
  std::string text;
  for (const std::uint8_t byte : message.Bytes()) {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%s%03u", text.empty() ? "" : " ", unsigned{byte});
    text += digits;
  }
  if (!ChecksumHolds(message.Bytes())) text += " ?";
  return text;
}

std::string SecondsOf(std::int64_t bits) {
  const std::int64_t milliseconds = (bits * 1000 + kBitsPerSecond / 2) / kBitsPerSecond;
  char digits[32];
  std::snprintf(digits, sizeof digits, "%lld.%03lld", static_cast<long long>(milliseconds / 1000),
                static_cast<long long>(milliseconds % 1000));
  return digits;
}

void BusMonitorQueue::Open(std::int64_t now) {
  *this = {};
  open_ = true;
  opened_ = now;
}

bool BusMonitorQueue::Add(const BusMessage& message) {
  if (!open_ || message.start < opened_) return true;
  queue_.push_back(message);
  if (queue_.size() <= kMost) return true;
  queue_.pop_front();
  return false;
}

bool BusMonitorQueue::Take(BusMessage& message) {
  if (queue_.empty()) return false;
  message = queue_.front();
  queue_.pop_front();
  return true;
}

}  // namespace lorimet::simulator
