// Where the tests find what they read and start. The paths are compiled into one object alone, so
// that every other object is the same in every checkout and a compiler cache can share it.
#pragma once

#include <string>

namespace lorimet {

// A path inside the source tree, such as "docs/samples".
std::string InSource(const std::string& path);
// A path inside the folder of the programs built, such as "lorimet".
std::string InBuild(const std::string& path);

}  // namespace lorimet
