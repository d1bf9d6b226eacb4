#include "simulator/trailer/request.h"

#include "simulator/trailer/command.h"
#include "simulator/trailer/parameter_store.h"

namespace lorimet::simulator {
namespace {

std::string ReadInto(const std::string& value, std::int64_t high, auto& target) {
  const auto number = ParseInteger(value, 0, high);
  if (!number) return "'" + value + "' is not a valid value";
  target.emplace(
      static_cast<typename std::remove_reference_t<decltype(target)>::value_type>(*number));
  return {};
}

}  // namespace

std::optional<std::string> ReadFilter(std::string_view key, const std::string& value,
                                      RequestFilter& filter) {
  if (key == "operation") {
    filter.operation = OperationByName(value);
    return filter.operation ? "" : "no operation '" + value + "'";
  }
  if (key == "block") {
    if (const BlockFacts* block = FindBlock(std::string_view(value))) {
      filter.block = block->id;
      return "";
    }
    return ReadInto(value, 255, filter.block);
  }
  if (key == "routine") return ReadInto(value, 255, filter.routine);
  if (key == "channel") return ReadInto(value, 255, filter.channel);
  if (key == "mode") return ReadInto(value, 255, filter.mode);
  if (key == "address") return ReadInto(value, 0xFFFFFF, filter.address);
  return std::nullopt;
}

}  // namespace lorimet::simulator
