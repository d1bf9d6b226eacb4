// What the bus monitor shows: the messages of the trailer's data link, one a line.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

namespace lorimet::simulator {

struct BusMessage {
  double time = 0;  // seconds since the monitor opened
  double idle = 0;  // seconds since the message before
  std::string text;
};

// Messages queue up while the monitor is open; a full queue loses the oldest.
class BusTraffic {
 public:
  static constexpr double kPeriod = 0.1;  // seconds from message to message
  static constexpr std::size_t kQueue = 1000;

  void Open();
  void Close();
  bool IsOpen() const { return open_; }
  // demand and supply: the pressures that the messages carry, psi.
  void Advance(double seconds, bool link_up, double demand, double supply);
  // False when no message waits.
  bool Take(BusMessage& message);

 private:
  std::deque<BusMessage> queue_;
  bool open_ = false;
  double time_ = 0;
  double last_ = 0;
  double due_ = kPeriod;
  unsigned count_ = 0;
};

}  // namespace lorimet::simulator
