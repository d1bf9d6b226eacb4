// Names of files that come from data.
#pragma once

#include <string>

namespace lorimet {

// Error 52 for a name that would leave its folder or is none: a separator, a drive, a control
// character, a reserved device name, an empty name, or one of points and blanks alone.
void CheckFileName(const std::string& name);

}  // namespace lorimet
