// A link library that writes down which operations it is asked for, in their order, and passes them
// on to the one that LORIMET_RECORDED_LIBRARY names. The record is the file LORIMET_RECORD, a name
// a line.
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "session/lorimet32.h"

namespace {

class Recorder {
 public:
  Recorder() {
    if (library_ == nullptr || record_ < 0) std::abort();
  }
  ~Recorder() {
    dlclose(library_);
    close(record_);
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  // The operation itself, once it is written down.
  template <typename Operation>
  Operation* Record(const std::string& name) {
    const std::string line = name + "\n";
    if (write(record_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
    auto* operation = reinterpret_cast<Operation*>(dlsym(library_, name.c_str()));
    if (operation == nullptr) std::abort();
    return operation;
  }

 private:
  void* library_ = dlopen(std::getenv("LORIMET_RECORDED_LIBRARY"), RTLD_NOW | RTLD_LOCAL);
  int record_ =
      open(std::getenv("LORIMET_RECORD"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
};

Recorder& TheRecorder() {
  static Recorder recorder;
  return recorder;
}

}  // namespace

#define LORIMET32_PASS_ON(name, parameters, arguments)                               \
  extern "C" LORIMET32_EXPORT int32_t LORIMET32_CALL name parameters {               \
    return TheRecorder().Record<int32_t LORIMET32_CALL parameters>(#name) arguments; \
  }
LORIMET32_OPERATIONS(LORIMET32_PASS_ON)
#undef LORIMET32_PASS_ON
