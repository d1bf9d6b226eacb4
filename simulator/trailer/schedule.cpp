#include "simulator/trailer/schedule.h"

#include <utility>

#include "simulator/trailer/command.h"

namespace lorimet::simulator {
namespace {

template <typename Value>
bool Compare(const Value& left, const std::string& how, const Value& right) {
  if (how == "=") return left == right;
  if (how == "!=") return left != right;
  if (how == "<") return left < right;
  if (how == "<=") return left <= right;
  if (how == ">") return left > right;
  return left >= right;
}

// Moves the commands whose trigger `fires` out of a list, in its order.
template <typename List, typename Fires>
void Take(List& list, std::vector<CommandWords>& due, Fires fires) {
  for (auto at = list.begin(); at != list.end();) {
    if (!fires(at->trigger)) {
      ++at;
      continue;
    }
    due.push_back(std::move(at->command));
    at = list.erase(at);
  }
}

}  // namespace

bool Holds(const Condition& condition, const std::string& told) {
  const auto left = ParseNumber(told);
  const auto right = ParseNumber(condition.value);
  if (left && right) return Compare(*left, condition.compare, *right);
  return Compare(told, condition.compare, condition.value);
}

void Schedule::NoteRequest(const Request& request) {
  Take(requested_, due_, [&](const RequestFilter& filter) { return Fits(filter, request); });
}

std::vector<CommandWords> Schedule::Due(
    std::optional<std::int64_t> connected,
    const std::function<std::string(const std::string&)>& look) {
  std::vector<CommandWords> due = std::exchange(due_, {});
  Take(at_, due, [&](std::int64_t time) { return connected && *connected >= time; });
  Take(after_, due, [](int& steps) { return --steps <= 0; });
  Take(when_, due,
       [&](const Condition& condition) { return Holds(condition, look(condition.name)); });
  return due;
}

}  // namespace lorimet::simulator
