#include "adapters/posix/posix_termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include "platform/runtime_error.h"

namespace lorimet {

namespace {

constexpr std::array<int, 3> kSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal handler has no other way to its object.
std::atomic<int> g_writing = -1;

void Tell(int) {
  const int error = errno;
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = write(g_writing, &byte, 1);
  errno = error;
}

}  // namespace

PosixTermination::PosixTermination() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
    throw RuntimeError(ErrorNumber::kDeviceIoError);
  }
  reading_ = FileDescriptor(ends[0]);
  writing_ = FileDescriptor(ends[1]);
  g_writing = writing_.Get();
  struct sigaction action {};
  action.sa_handler = Tell;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int signal : kSignals) {
    sigaction(signal, &action, nullptr);
  }
}

PosixTermination::~PosixTermination() {
  for (const int signal : kSignals) {
    std::signal(signal, SIG_DFL);
  }
  g_writing = -1;
}

}  // namespace lorimet
