// How often each operation was asked for, what for the last time, and on request the whole order.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
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
    if (keeping_) lines_.push_back(std::string(NameOf(operation)) + "(" + arguments + ")");
  }
  void Keep(bool keeping) { keeping_ = keeping; }
  bool Keeping() const { return keeping_; }

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
  }

 private:
  std::array<int, kOperationNames.size()> counts_ = {};
  std::array<std::string, kOperationNames.size()> last_;
  std::vector<std::string> lines_;
  bool keeping_ = false;
};

}  // namespace lorimet::simulator
