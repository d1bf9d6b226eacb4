// A link library that does not let go. It writes down which operations it is asked for, a name a
// line of the file LORIMET_RECORD, and its own thread goes on writing into the record as long as
// the process lives.
//
// It refuses to disconnect, and posts statuses from then on; where LORIMET_STUBBORN is "connect" it
// refuses to connect, once it has learned the records and the window, and posts from the end of the
// session on. After fifty statuses it writes the line "posted".
#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include "session/ecu_data.h"
#include "session/lorimet32.h"

namespace {

std::atomic<bool> g_posting = false;

void WriteDown(const std::string& name) {
  const std::string line = name + "\n";
  const int record =
      open(std::getenv("LORIMET_RECORD"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  if (write(record, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
  close(record);
}

bool RefusesToConnect() {
  const char* what = std::getenv("LORIMET_STUBBORN");
  return what != nullptr && std::strcmp(what, "connect") == 0;
}

[[noreturn]] void GoOn(int window, lorimet::ECUData* ecu) {
  constexpr int kEnough = 50;
  int posted = 0;
  for (double value = 0;; value += 0.25) {
    ecu->dSupplyPress.Store(value);
    ecu->DiagId.Store(std::to_string(value));
    if (g_posting) {
      // Healthy and broken in turn, so that each error would be shown anew.
      for (const std::int32_t status : {0, -100, -67})
        if (write(window, &status, sizeof status) == sizeof status && ++posted == kEnough)
          WriteDown("posted");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

std::int32_t Begin(std::uint32_t window, void* record) {
  auto* ecu = static_cast<lorimet::ECUData*>(record);
  ecu->nLinkJobDone.Store(-1);
  std::thread(GoOn, static_cast<int>(window), ecu).detach();
  return RefusesToConnect() ? 142 : 0;
}

std::int32_t Answer(const std::string& name) {
  if (name == (RefusesToConnect() ? "Trailer_ABS_KWP_StopSession" : "Disconnect")) g_posting = true;
  return name == "Disconnect" ? -1 : 0;
}

}  // namespace

extern "C" LORIMET32_EXPORT int32_t LORIMET32_CALL Connect(char*, uint32_t hWnd, char*, int32_t,
                                                           int32_t, uint8_t*, uint8_t*, void*,
                                                           void* ecuData, uint8_t*, uint8_t*,
                                                           uint8_t*, uint32_t*) {
  WriteDown("Connect");
  return Begin(hWnd, ecuData);
}

extern "C" LORIMET32_EXPORT int32_t LORIMET32_CALL GetErrorText(int32_t, char*, int32_t) {
  return 0;
}

#define LORIMET32_ANSWER(name, parameters, arguments)                  \
  extern "C" LORIMET32_EXPORT int32_t LORIMET32_CALL name parameters { \
    WriteDown(#name);                                                  \
    return Answer(#name);                                              \
  }
// The arguments play no part.
#pragma GCC diagnostic ignored "-Wunused-parameter"
LORIMET32_LINK_OPERATIONS(LORIMET32_ANSWER)
#undef LORIMET32_ANSWER
