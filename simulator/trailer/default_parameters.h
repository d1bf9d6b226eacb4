// The parameter blocks with which a healthy trailer leaves the factory.
#pragma once

#include "simulator/trailer/configuration.h"
#include "simulator/trailer/parameter_store.h"

namespace lorimet::simulator {

// They encode the setup and draw no complaint from the plausibility check.
ParameterStore DefaultParameters(const TrailerSetup& setup);

}  // namespace lorimet::simulator
