#include "simulator/trailer/bus.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace lorimet::simulator {
namespace {

constexpr std::int64_t kQuietBits = 10;
constexpr std::int64_t kBitsPerPriority = 2;
constexpr std::uint8_t kFillerSender = 225;     // an identifier that no other sender here has
constexpr std::uint8_t kFillerParameter = 112;  // of one byte

unsigned SumOf(std::span<const std::uint8_t> bytes) {
  return std::accumulate(bytes.begin(), bytes.end(), 0u);
}

}  // namespace

BusMessage MakeMessage(int priority, std::span<const std::uint8_t> bytes) {
  BusMessage message;
  message.priority = priority;
  message.size = std::min(bytes.size(), BusMessage::kMostBytes - 1);
  std::copy_n(bytes.begin(), message.size, message.bytes.begin());
  message.bytes[message.size] = static_cast<std::uint8_t>(0u - SumOf(message.Bytes()));
  ++message.size;
  return message;
}

bool ChecksumHolds(std::span<const std::uint8_t> bytes) { return SumOf(bytes) % 256 == 0; }

BusMessage Bus::Filler(std::uint64_t number) {
  return MakeMessage(8, {kFillerSender, kFillerParameter, static_cast<std::uint8_t>(number)});
}

bool Bus::Disturb(BusMessage& message, const Noise& noise) {
  const std::uint64_t bits = noise.Bits(NoiseField::kBus, ++offered_);
  if (static_cast<double>(bits >> 11) * 0x1p-53 >= noise_share_) return false;
  message.bytes[bits % message.size] ^= static_cast<std::uint8_t>(1u << (bits >> 8 & 7));
  return true;
}

bool Bus::Send(BusMessage message, const Noise& noise) {
  const bool disturbed = Disturb(message, noise);
  if (waiting_.size() >= kMostWaiting) waiting_.erase(waiting_.begin());
  waiting_.push_back({message, now_});
  return disturbed;
}

std::int64_t Bus::StartOf(const Offer& offer) const {
  const std::int64_t idle = kQuietBits + kBitsPerPriority * offer.message.priority;
  return std::max(offer.ready, last_end_ + idle);
}

// The message that goes out next, by when the senders may begin; on a full bus a filler when nobody
// else waits.
std::optional<BusMessage> Bus::Next(std::int64_t from) {
  const auto first =
      std::min_element(waiting_.begin(), waiting_.end(), [this](const Offer& a, const Offer& b) {
        const std::int64_t start_a = StartOf(a);
        const std::int64_t start_b = StartOf(b);
        return start_a != start_b ? start_a < start_b : a.message.priority < b.message.priority;
      });
  const std::int64_t filler_start = std::max(from, last_end_ + kLeastIdle);
  const bool nobody = first == waiting_.end() || first->ready > filler_start;
  if (full_ && nobody) {
    BusMessage filler = Filler(sent_);
    filler.start = filler_start;
    return filler;
  }
  if (first == waiting_.end()) return std::nullopt;
  BusMessage message = first->message;
  message.start = StartOf(*first);
  if (message.start < now_) waiting_.erase(first);
  return message;
}

void Bus::Step(std::int64_t now, const Noise& noise) {
  const std::int64_t from = std::exchange(now_, now);
  heard_.clear();
  while (true) {
    if (!going_out_) {
      std::optional<BusMessage> next = Next(from);
      if (!next || next->start >= now) return;
      if (next->bytes[0] == kFillerSender) Disturb(*next, noise);
      next->idle = next->start - last_end_;
      next->end = next->start + kBitsPerByte * static_cast<std::int64_t>(next->size);
      going_out_ = next;
    }
    if (going_out_->end > now) return;
    last_end_ = going_out_->end;
    ++sent_;
    heard_.push_back(*going_out_);
    going_out_.reset();
  }
}

}  // namespace lorimet::simulator
