// The trailer's time in other hands, beside the contract: for who drives the program faster than
// the clock, and takes the trailer along.
#pragma once

#include "session/lorimet32.h"

// Lets so many milliseconds of the trailer's time pass, and takes in what has been commanded. From
// the first call on no other time passes; statuses are posted within the call.
extern "C" LORIMET32_EXPORT void SimulatorAdvance(int32_t milliseconds);
