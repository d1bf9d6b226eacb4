// The link library in its own file: loaded at the first connect, all or nothing.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "platform/shared_library.h"
#include "session/link_library.h"

namespace lorimet {

// Once loaded the library is never unloaded: it has a thread of its own.
//
// While the file cannot be loaded, Connect answers kLibraryMissing, GetErrorText tells why, and
// every other operation answers -1; the next Connect tries anew.
class LoadedLinkLibrary : public LinkLibrary {
 public:
  // RP1210's code for a driver library that is not initialised (ERR_DLL_NOT_INITIALIZED).
  static constexpr std::int32_t kLibraryMissing = 128;

  explicit LoadedLinkLibrary(LibraryLoader& loader) : loader_(loader) {}

#define LORIMET32_OVERRIDE(name, parameters, arguments) std::int32_t name parameters override;
  LORIMET32_OPERATIONS(LORIMET32_OVERRIDE)
#undef LORIMET32_OVERRIDE

  // The library has been given the records and the window by a Connect, whatever came of that, and
  // no Disconnect has succeeded since: its thread may go on writing and posting.
  bool MayStillRun() const { return may_still_run_; }

 private:
  struct Table {
#define LORIMET32_POINTER(name, parameters, arguments) \
  std::int32_t(LORIMET32_CALL* name) parameters = nullptr;
    LORIMET32_OPERATIONS(LORIMET32_POINTER)
#undef LORIMET32_POINTER
  };

  // False with `failure_` set: the file, or every operation that it lacks.
  bool Load();

  LibraryLoader& loader_;
  std::unique_ptr<SharedLibrary> library_;
  Table table_;
  std::string failure_;
  bool may_still_run_ = false;
};

}  // namespace lorimet
