// The customary error numbers for what the system's calls on files answer.
#pragma once

#include "platform/runtime_error.h"

namespace lorimet {

// For an error of GetLastError by a call on a file that is to be written.
ErrorNumber ErrorOfCall(unsigned long error);

}  // namespace lorimet
