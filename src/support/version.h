// The version of the program, from the build.
#pragma once

namespace lorimet {

constexpr int kVersionMajor = LORIMET_VERSION_MAJOR;
constexpr int kVersionMinor = LORIMET_VERSION_MINOR;
constexpr int kVersionRevision = LORIMET_VERSION_REVISION;

}  // namespace lorimet
