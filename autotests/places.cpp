#include "autotests/places.h"

namespace lorimet {

std::string InSource(const std::string& path) { return LORIMET_SOURCE_ROOT "/" + path; }

std::string InBuild(const std::string& path) { return LORIMET_BINARY_DIR "/" + path; }

}  // namespace lorimet
