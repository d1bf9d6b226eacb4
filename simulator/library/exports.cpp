// The library's exported operations: each is the method of the same name of the one link; and the
// road by which its time is driven.
#include "session/lorimet32.h"
#include "simulator/library/driven_time.h"
#include "simulator/library/library.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

using lorimet::simulator::Library;
using lorimet::simulator::Link;

// Windows would end the thread while it unloads the library, so it stays loaded there.
#if defined(_WIN32)
void StayLoaded() {
  HMODULE self = nullptr;
  GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                     reinterpret_cast<LPCSTR>(&StayLoaded), &self);
}
#endif

// Lives until the library is unloaded.
Library& TheLibrary() {
#if defined(_WIN32)
  static Library& library = *new Library;
  static const bool stays = (StayLoaded(), true);
  static_cast<void>(stays);
#else
  static Library library;
#endif
  return library;
}

#if !defined(_WIN32)
// The trailer's time begins with the loading. Windows starts no thread within it; there the time
// begins with the first call.
[[maybe_unused]] const Library& loaded = TheLibrary();
#endif

}  // namespace

#define LORIMET32_DEFINE(name, parameters, arguments)                        \
  extern "C" LORIMET32_EXPORT int32_t LORIMET32_CALL name parameters {       \
    return TheLibrary().Do([=](Link& link) { return link.name arguments; }); \
  }
LORIMET32_OPERATIONS(LORIMET32_DEFINE)
#undef LORIMET32_DEFINE

void SimulatorAdvance(int32_t milliseconds) { TheLibrary().Advance(milliseconds / 1000.0); }
