// Shared libraries by the system's own calls.
#pragma once

#include <memory>
#include <string>

#include "platform/shared_library.h"

namespace lorimet {

// Paths and error texts are UTF-8.
class WindowsLibraryLoader : public LibraryLoader {
 public:
  std::string LinkLibraryPath() override;
  std::unique_ptr<SharedLibrary> Load(const std::string& path, std::string& error) override;
};

}  // namespace lorimet
