// Shared libraries by the dynamic linker.
#pragma once

#include <memory>
#include <string>

#include "platform/shared_library.h"

namespace lorimet {

class PosixLibraryLoader : public LibraryLoader {
 public:
  std::string LinkLibraryPath() override;
  // Binds every symbol at once, so a library that lacks something fails here and not in a call.
  std::unique_ptr<SharedLibrary> Load(const std::string& path, std::string& error) override;
};

}  // namespace lorimet
