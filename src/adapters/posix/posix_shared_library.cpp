#include "adapters/posix/posix_shared_library.h"

#include <dlfcn.h>

#include <cstdlib>

#include "adapters/posix/user_folders.h"

namespace lorimet {

namespace {

class LoadedLibrary : public SharedLibrary {
 public:
  explicit LoadedLibrary(void* handle) : handle_(handle) {}
  ~LoadedLibrary() override {
    if (!kept_) {
      dlclose(handle_);
    }
  }
  LoadedLibrary(const LoadedLibrary&) = delete;
  LoadedLibrary& operator=(const LoadedLibrary&) = delete;

  void Keep() override { kept_ = true; }
  void* Symbol(const std::string& name) override { return dlsym(handle_, name.c_str()); }

 private:
  void* handle_;
  bool kept_ = false;
};

}  // namespace

std::string PosixLibraryLoader::LinkLibraryPath() {
  const char* named = std::getenv("LORIMET32");
  if (named != nullptr && named[0] != '\0') {
    return named;
  }
  return FolderOf(ExecutablePath()) + "/libLorimet32.so";
}

std::unique_ptr<SharedLibrary> PosixLibraryLoader::Load(const std::string& path,
                                                        std::string& error) {
  // A name with no separator would be looked for in the system's library folders, and an empty one
  // is the program itself.
  const std::string file = path.find('/') == std::string::npos ? "./" + path : path;
  void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    const char* reason = dlerror();
    error = reason != nullptr ? reason : "cannot load " + file;
    return nullptr;
  }
  return std::make_unique<LoadedLibrary>(handle);
}

}  // namespace lorimet
