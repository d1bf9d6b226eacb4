// Names of files that come from data.
#pragma once

#include <string>

namespace lorimet {

// False for a name that would leave its folder or is none: a separator, a drive, a control
// character, a reserved device name, an empty name, or one of points and blanks alone.
bool IsFileName(const std::string& name);

// Error 52 for what IsFileName refuses.
void CheckFileName(const std::string& name);

}  // namespace lorimet
