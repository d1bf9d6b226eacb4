// The operations of the link library as an enumeration, made from its contract.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "session/lorimet32.h"

namespace lorimet::simulator {

// One enumerator an operation, under its exported name.
enum class Operation {
#define LORIMET32_ENUMERATE(name, parameters, arguments) name,
  LORIMET32_OPERATIONS(LORIMET32_ENUMERATE)
#undef LORIMET32_ENUMERATE
};

constexpr std::array kOperationNames = {
#define LORIMET32_NAME(name, parameters, arguments) std::string_view(#name),
    LORIMET32_OPERATIONS(LORIMET32_NAME)
#undef LORIMET32_NAME
};

constexpr std::string_view NameOf(Operation operation) {
  return kOperationNames[static_cast<std::size_t>(operation)];
}

constexpr std::optional<Operation> OperationByName(std::string_view name) {
  for (std::size_t i = 0; i < kOperationNames.size(); ++i)
    if (kOperationNames[i] == name) return static_cast<Operation>(i);
  return std::nullopt;
}

}  // namespace lorimet::simulator
