// The trailer together with all that can be made wrong about it and its link: what a scenario and
// its commands act on.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "simulator/trailer/failure_modes.h"
#include "simulator/trailer/record_fields.h"
#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {

// What Connect has to ask for; empty where everything will do.
struct AdapterDemands {
  std::string vendor;
  std::string protocol;
  std::optional<std::int32_t> device;
};

struct Simulation {
  explicit Simulation(const TrailerSetup& setup) : trailer(setup) {}

  Trailer trailer;
  FailurePlan failures;
  FieldOverrides fields;
  AdapterDemands adapter;
  std::optional<std::string> answered_vendor;  // written over the text given to Connect
  std::optional<std::string> answered_protocol;
  std::int32_t client_id = 0;
  std::vector<std::int32_t> statuses;  // to be posted at the next chance
};

}  // namespace lorimet::simulator
