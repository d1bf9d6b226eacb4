// What outlives the trailer's power, as text: parameter blocks, faults with their counts, the
// end-of-line flag, the calibration, distances, recorder counters and memory words.
#pragma once

#include <string>
#include <string_view>

#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {

// scenario: the text that the trailer was built from; a state fits only its own scenario.
std::string SaveState(const Trailer& trailer, std::string_view scenario);

// All or nothing: false, and the trailer as it was, for a state that is damaged or of another
// scenario.
bool RestoreState(Trailer& trailer, std::string_view scenario, std::string_view state);

}  // namespace lorimet::simulator
