#include "simulator/library/status_channel.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <unistd.h>
#endif

namespace lorimet::simulator {

#if defined(_WIN32)

void StatusChannel::Post(std::int32_t status) const {
  static const UINT message = RegisterWindowMessageA("NorvickABSError");
  const auto window = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(handle_));
  if (open_) PostMessageA(window, message, 0, static_cast<LPARAM>(status));
}

void BlockSignalsOfThisThread() {}

#else

void StatusChannel::Post(std::int32_t status) const {
  if (!open_) return;
  pollfd room{static_cast<int>(handle_), POLLOUT, 0};
  if (poll(&room, 1, 0) != 1 || (room.revents & POLLOUT) == 0) return;
  // A pipe that is ready takes this many bytes whole.
  [[maybe_unused]] const ssize_t written = write(room.fd, &status, sizeof status);
}

void BlockSignalsOfThisThread() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

#endif

}  // namespace lorimet::simulator
