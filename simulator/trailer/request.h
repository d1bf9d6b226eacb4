// One request of the program to the library, with what can be told of its arguments.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/trailer/operations.h"

namespace lorimet::simulator {

// What narrows requests down; an empty one fits every request.
struct RequestFilter {
  std::optional<Operation> operation = {};
  std::optional<int> block = {};              // local identifier of a read or a write
  std::optional<int> routine = {};            // identifier of a routine
  std::optional<int> channel = {};            // first data byte of routine 0x06
  std::optional<int> mode = {};               // third data byte of routine 0x37
  std::optional<std::uint32_t> address = {};  // of a memory word
};

// A request has at most what its kind has.
using Request = RequestFilter;

// Whether the request has everything that the filter asks for.
constexpr bool Fits(const RequestFilter& filter, const Request& request) {
  const auto fits = [](const auto& wanted, const auto& given) {
    return !wanted || wanted == given;
  };
  return fits(filter.operation, request.operation) && fits(filter.block, request.block) &&
         fits(filter.routine, request.routine) && fits(filter.channel, request.channel) &&
         fits(filter.mode, request.mode) && fits(filter.address, request.address);
}

// Reads one "key=value" into the filter: operation, block (by name or number), routine, channel,
// mode, address. Nothing when the key is none of them; otherwise an empty text, or what is wrong.
std::optional<std::string> ReadFilter(std::string_view key, const std::string& value,
                                      RequestFilter& filter);

}  // namespace lorimet::simulator
