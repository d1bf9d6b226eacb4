// The shared-library port: loading a library by its file name and finding operations in it.
#pragma once

#include <memory>
#include <string>

namespace lorimet {

// A library that is loaded; it is unloaded with the object, unless it is kept.
class SharedLibrary {
 public:
  virtual ~SharedLibrary() = default;
  // Never unloads it: a thread of its own may run in it for as long as the process lives.
  virtual void Keep() = 0;
  // Null when the library has no operation of that name.
  virtual void* Symbol(const std::string& name) = 0;
};

class LibraryLoader {
 public:
  virtual ~LibraryLoader() = default;
  // The file that the environment variable LORIMET32 names, or else the library's own file name in
  // the folder of the executable.
  virtual std::string LinkLibraryPath() = 0;
  // Null when the file cannot be loaded; `error` then says why, in the platform's words.
  virtual std::unique_ptr<SharedLibrary> Load(const std::string& path, std::string& error) = 0;
};

}  // namespace lorimet
