#include "simulator/bench/model/wire.h"

#include <algorithm>
#include <utility>

namespace lorimet::bench {
namespace {

constexpr std::size_t kLongestLine = 65536;  // bytes; more without an end is no answer

}  // namespace

void Wire::Open() { *this = Wire(); }

void Wire::Send(std::string_view command, Answered answered) {
  std::string line(command);
  std::ranges::replace(line, '\n', ' ');
  outgoing_ += line + "\n";
  waiting_.push_back(std::move(answered));
}

std::string Wire::TakeOutgoing() { return std::exchange(outgoing_, {}); }

bool Wire::Receive(std::string_view bytes) {
  received_ += bytes;
  for (std::size_t end = 0; (end = received_.find('\n')) != std::string::npos;) {
    const std::string line = received_.substr(0, end);
    received_.erase(0, end + 1);
    if (!TakeLine(line)) return false;
  }
  return received_.size() < kLongestLine;
}

// "3 ok", "3 ok 112.4", "3 unknown command 'fly'", or "0 " and why nothing will be answered.
bool Wire::TakeLine(std::string_view line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return false;
  const std::string_view number = line.substr(0, blank);
  const std::string_view rest = line.substr(blank + 1);
  if (number == "0") {
    refused_ = true;
    return false;
  }
  if (waiting_.empty() || number != std::to_string(answered_ + 1)) return false;
  ++answered_;
  const Answered answered = std::move(waiting_.front());
  waiting_.pop_front();
  const bool ok = rest == "ok" || rest.starts_with("ok ");
  Answer answer{ok, std::string(ok ? rest.substr(std::min<std::size_t>(3, rest.size())) : rest)};
  if (answered) answered(answer);
  return true;
}

}  // namespace lorimet::bench
