// What the library hears on the data link: the queue of the monitor, and each message as text.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include "simulator/trailer/bus.h"

namespace lorimet::simulator {

// Decimal bytes with blanks between; " ?" behind a message whose checksum is wrong.
std::string TextOf(const BusMessage& message);
// A time on the bus in seconds, with three decimals.
std::string SecondsOf(std::int64_t bits);

class BusMonitorQueue {
 public:
  static constexpr std::size_t kMost = 1000;

  // Begins anew: empty, and its time counts from here.
  void Open(std::int64_t now);
  void Close() { *this = {}; }
  bool IsOpen() const { return open_; }
  // False when the oldest message had to go for this one. A message that had begun before the
  // opening is none.
  bool Add(const BusMessage& message);
  bool Take(BusMessage& message);
  // Of a message, since the opening.
  std::string StampOf(const BusMessage& message) const {
    return SecondsOf(message.start - opened_);
  }
  std::size_t Size() const { return queue_.size(); }

 private:
  std::deque<BusMessage> queue_;
  std::int64_t opened_ = 0;
  bool open_ = false;
};

}  // namespace lorimet::simulator
