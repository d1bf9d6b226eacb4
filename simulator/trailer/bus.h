// The data link at 9600 bit/s: one message at a time, the higher priority first, with gaps between.
// Times are counted in bits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

#include "simulator/trailer/noise.h"
#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

constexpr std::int64_t kBitsPerSecond = 9600;
constexpr std::int64_t kBitsPerByte = 10;
constexpr std::int64_t kBitsPerStep = kBitsPerSecond * kStepMicroseconds / 1'000'000;

struct BusMessage {
  static constexpr std::size_t kMostBytes = 21;  // with the checksum

  std::array<std::uint8_t, kMostBytes> bytes = {};
  std::size_t size = 0;
  int priority = 8;        // 1 goes first, 8 last
  std::int64_t start = 0;  // of its first bit
  std::int64_t end = 0;    // of its last
  std::int64_t idle = 0;   // of the bus, before it

  std::span<const std::uint8_t> Bytes() const { return {bytes.data(), size}; }
};

// The last byte brings the sum of all to 0. What is too long for one message is cut.
BusMessage MakeMessage(int priority, std::span<const std::uint8_t> bytes);
inline BusMessage MakeMessage(int priority, std::initializer_list<std::uint8_t> bytes) {
  return MakeMessage(priority, std::span(bytes.begin(), bytes.size()));
}
bool ChecksumHolds(std::span<const std::uint8_t> bytes);

class Bus {
 public:
  // A sender keeps off for so long behind a message: 10 bits and 2 for each step of its priority.
  static constexpr std::int64_t kLeastIdle = 12;
  static constexpr std::size_t kMostWaiting = 200;  // messages; beyond it the oldest is dropped

  // What somebody wants to send from now on. True when the noise will hit it.
  bool Send(BusMessage message, const Noise& noise);
  // Lets a step of the grid pass that ends at this time.
  void Step(std::int64_t now, const Noise& noise);
  // The messages that have ended in the last step.
  const std::vector<BusMessage>& Heard() const { return heard_; }

  // Fills whatever room is left with the shortest messages.
  void SetFull(bool full) { full_ = full; }
  bool Full() const { return full_; }
  // The share of messages, 0 to 1, in which the noise turns a bit.
  void SetNoise(double share) { noise_share_ = share; }
  double NoiseShare() const { return noise_share_; }
  // The library always has another message to give.
  void SetFlood(bool flood) { flood_ = flood; }
  bool Flood() const { return flood_; }

  std::int64_t Now() const { return now_; }
  std::uint64_t Sent() const { return sent_; }
  std::size_t Waiting() const { return waiting_.size(); }
  // The shortest message that carries anything, for a bus that must not fall silent.
  static BusMessage Filler(std::uint64_t number);

 private:
  struct Offer {
    BusMessage message;
    std::int64_t ready;
  };

  std::optional<BusMessage> Next(std::int64_t from);
  std::int64_t StartOf(const Offer& offer) const;
  bool Disturb(BusMessage& message, const Noise& noise);

  std::vector<Offer> waiting_;  // in the order of their coming
  std::optional<BusMessage> going_out_;
  std::vector<BusMessage> heard_;
  std::int64_t now_ = 0;
  std::int64_t last_end_ = 0;
  std::uint64_t offered_ = 0;
  std::uint64_t sent_ = 0;
  double noise_share_ = 0;
  bool full_ = false;
  bool flood_ = false;
};

}  // namespace lorimet::simulator
