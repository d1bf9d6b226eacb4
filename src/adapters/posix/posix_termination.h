// The requests of the system to end: SIGTERM, SIGINT and SIGHUP, as something an event loop can
// watch.
#pragma once

#include "adapters/posix/file_descriptor.h"

namespace lorimet {

// One at a time in a process. The first signal is told here; the next one of its kind ends the
// process at once, should it hang.
class PosixTermination {
 public:
  // Throws error 57 when the system has no pipe to give.
  PosixTermination();
  ~PosixTermination();
  PosixTermination(const PosixTermination&) = delete;
  PosixTermination& operator=(const PosixTermination&) = delete;

  // Becomes readable with the first signal, and stays so.
  int ReadDescriptor() const { return reading_.Get(); }

 private:
  FileDescriptor reading_;
  FileDescriptor writing_;
};

}  // namespace lorimet
