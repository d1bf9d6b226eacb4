// Commands that wait: for a time, for something that can be seen, or for a request.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulator/trailer/request.h"

namespace lorimet::simulator {

using CommandWords = std::vector<std::string>;  // a command with its arguments

// Something that `get` tells, compared with a value: as numbers if both are, else as texts.
struct Condition {
  std::string name;     // as `get` takes it
  std::string compare;  // one of = != < <= > >=
  std::string value;
};
bool Holds(const Condition& condition, const std::string& told);

class Schedule {
 public:
  // Each runs once.
  void At(std::int64_t connected_microseconds, CommandWords command) {
    at_.push_back({connected_microseconds, std::move(command)});
  }
  void After(int steps, CommandWords command) { after_.push_back({steps, std::move(command)}); }
  void When(Condition condition, CommandWords command) {
    when_.push_back({std::move(condition), std::move(command)});
  }
  void WhenRequested(const RequestFilter& filter, CommandWords command) {
    requested_.push_back({filter, std::move(command)});
  }
  void Clear() { *this = Schedule(); }

  // The commands that wait for this request are due with the next step.
  void NoteRequest(const Request& request);
  // The commands that are due, oldest first. connected: microseconds since the connection, nothing
  // without one; look: answers what `get` tells.
  std::vector<CommandWords> Due(std::optional<std::int64_t> connected,
                                const std::function<std::string(const std::string&)>& look);
  bool Empty() const {
    return at_.empty() && after_.empty() && when_.empty() && requested_.empty() && due_.empty();
  }

 private:
  template <typename Trigger>
  struct Waiting {
    Trigger trigger;
    CommandWords command;
  };

  std::vector<Waiting<std::int64_t>> at_;
  std::vector<Waiting<int>> after_;
  std::vector<Waiting<Condition>> when_;
  std::vector<Waiting<RequestFilter>> requested_;
  std::vector<CommandWords> due_;
};

}  // namespace lorimet::simulator
