// The shared-library port: loading a library by its file name and finding operations in it.
#pragma once

#include <memory>
#include <string>

namespace lorimet {

// A library that is loaded; the handle lives as long as the object.
class SharedLibrary {
 public:
  virtual ~SharedLibrary() = default;
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
