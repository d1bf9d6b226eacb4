// The simulated trailer as the program's link library, in the virtual time of a test.
#pragma once

#include <functional>
#include <string_view>

#include "session/link_library.h"
#include "simulator/library/link.h"

namespace lorimet::testing_support {

class SimulatedLink : public LinkLibrary {
 public:
  explicit SimulatedLink(std::string_view scenario = {}) : link(scenario) {}

  simulator::Link link;

#define LORIMET32_FORWARD(name, parameters, arguments) \
  std::int32_t name parameters override { return link.name arguments; }
  LORIMET32_OPERATIONS(LORIMET32_FORWARD)
#undef LORIMET32_FORWARD
};

}  // namespace lorimet::testing_support
