#include "simulator/trailer/configuration.h"

namespace lorimet::simulator {

const SystemFacts& FactsOf(System system) {
  for (const SystemFacts& facts : kSystems)
    if (facts.system == system) return facts;
  return kSystems[0];
}

std::optional<System> SystemByName(std::string_view name) {
  if (name == "4S/2M+1M") return System::k2M1M;
  for (const SystemFacts& facts : kSystems)
    if (facts.name == name) return facts.system;
  return std::nullopt;
}

std::optional<System> SystemByParameterCode(int code) {
  for (const SystemFacts& facts : kSystems)
    if (facts.parameter_code == code) return facts.system;
  return std::nullopt;
}

}  // namespace lorimet::simulator
