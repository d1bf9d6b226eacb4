// How often each operation was asked for, what for the last time, and on request the whole order.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/trailer/operations.h"

namespace lorimet::simulator {

// "0x83", "-1" and "[00 00 01 00]", as requests are written down.
std::string HexByte(std::uint8_t byte);
std::string HexBytes(std::span<const std::uint8_t> bytes);

class RequestLog {
 public:
  // arguments: separated by ", ".
  void Note(Operation operation, const std::string& arguments) {
    ++counts_[static_cast<std::size_t>(operation)];
    last_[static_cast<std::size_t>(operation)] = arguments;
    std::string line = std::string(NameOf(operation)) + "(" + arguments + ")";
    if (keeping_) lines_.push_back(line);
    recent_[static_cast<std::size_t>(told_++) % kRecent] = std::move(line);
  }
  void Keep(bool keeping) { keeping_ = keeping; }
  bool Keeping() const { return keeping_; }

  // The requests of all operations since the counts began.
  int Told() const { return told_; }
  // The one of a number from 1 on; empty when there is none, or it is not among the last kRecent.
  const std::string& Request(int number) const {
    static const std::string kNone;
    if (number < 1 || number > told_ || number <= told_ - static_cast<int>(kRecent)) return kNone;
    return recent_[static_cast<std::size_t>(number - 1) % kRecent];
  }
  int Requests(Operation operation) const { return counts_[static_cast<std::size_t>(operation)]; }
  // By exported name; -1 for a name that is no operation's.
  int Requests(std::string_view name) const {
    const auto operation = OperationByName(name);
    return operation ? Requests(*operation) : -1;
  }
  // The arguments of the last request of an operation; empty when there was none.
  const std::string& Last(Operation operation) const {
    return last_[static_cast<std::size_t>(operation)];
  }
  // Such as "Trailer_ABS_KWP_StartRoutineByLocId(0x42, 4, [00 00 01 00])", oldest first.
  const std::vector<std::string>& Lines() const { return lines_; }
  void Clear() {
    counts_.fill(0);
    last_.fill({});
    lines_.clear();
    told_ = 0;
  }

 private:
  static constexpr std::size_t kRecent = 100;

  std::array<std::string, kRecent> recent_;
  int told_ = 0;
  std::array<int, kOperationNames.size()> counts_ = {};
  std::array<std::string, kOperationNames.size()> last_;
  std::vector<std::string> lines_;
  bool keeping_ = false;
};

}  // namespace lorimet::simulator
