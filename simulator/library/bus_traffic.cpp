#include "simulator/library/bus_traffic.h"

#include <cstdio>

namespace lorimet::simulator {
namespace {

constexpr unsigned kTrailerBrakes = 137;  // message identifier of the first trailer's brakes

// A J1587 message in decimal bytes, closed by the checksum that brings their sum to 0.
std::string Message(unsigned parameter, unsigned value) {
  const unsigned checksum = (256 - (kTrailerBrakes + parameter + value) % 256) % 256;
  char text[40];
  std::snprintf(text, sizeof text, "%03u %03u %03u %03u", kTrailerBrakes, parameter, value,
                checksum);
  return text;
}

}  // namespace

void BusTraffic::Open() {
  *this = BusTraffic();
  open_ = true;
}

void BusTraffic::Close() { *this = BusTraffic(); }

void BusTraffic::Advance(double seconds, bool link_up, double demand, double supply) {
  if (!open_) return;
  time_ += seconds;
  if (time_ < due_) return;
  due_ = time_ + kPeriod;
  if (!link_up) return;
  constexpr unsigned kServiceBrake = 116;  // parameters, in steps of 0.6 psi
  constexpr unsigned kSupply = 117;
  const bool service = ++count_ % 2 == 1;
  const double psi = service ? demand : supply;
  const auto value = static_cast<unsigned>(psi / 0.6) & 0xFFu;
  queue_.push_back({time_, time_ - last_, Message(service ? kServiceBrake : kSupply, value)});
  last_ = time_;
  if (queue_.size() > kQueue) queue_.pop_front();
}

bool BusTraffic::Take(BusMessage& message) {
  if (queue_.empty()) return false;
  message = queue_.front();
  queue_.pop_front();
  return true;
}

}  // namespace lorimet::simulator
