// Faults of a disk, for the adapters that read and write files by the system's calls.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <memory>

#include "adapters/posix/file_calls.h"

namespace lorimet {

// Every other call is interrupted, and the rest moves seven bytes at most.
inline FileCalls StutteringCalls() {
  const auto turn = std::make_shared<int>(0);
  const auto interrupted = [turn] {
    errno = EINTR;
    return (*turn)++ % 2 == 0;
  };
  FileCalls calls;
  calls.read = [interrupted](int file, void* to, std::size_t size) {
    return interrupted() ? ssize_t{-1} : ::read(file, to, std::min<std::size_t>(size, 7));
  };
  calls.write = [interrupted](int file, const void* from, std::size_t size) {
    return interrupted() ? ssize_t{-1} : ::write(file, from, std::min<std::size_t>(size, 7));
  };
  calls.fsync = [interrupted](int file) { return interrupted() ? -1 : ::fsync(file); };
  return calls;
}

// A share that lets nobody change rights and owners, and knows no fsync.
inline FileCalls ShareCalls() {
  FileCalls calls;
  calls.fchown = [](int, uid_t, gid_t) {
    errno = EPERM;
    return -1;
  };
  calls.fchmod = [](int, mode_t) {
    errno = EPERM;
    return -1;
  };
  calls.fsync = [](int) {
    errno = EINVAL;
    return -1;
  };
  return calls;
}

enum class FileCall { kRead, kWrite, kSync, kRename };

// One call fails with this error whenever it is made.
inline FileCalls FailingCalls(FileCall which, int error) {
  FileCalls calls;
  const auto fail = [error] {
    errno = error;
    return -1;
  };
  if (which == FileCall::kRead) calls.read = [fail](int, void*, std::size_t) { return fail(); };
  if (which == FileCall::kWrite)
    calls.write = [fail](int, const void*, std::size_t) { return fail(); };
  if (which == FileCall::kSync) calls.fsync = [fail](int) { return fail(); };
  if (which == FileCall::kRename)
    calls.rename = [fail](const char*, const char*) { return fail(); };
  return calls;
}

// Permissions bind nobody who is root.
class OrdinaryUser {
 public:
  OrdinaryUser() : was_root_(geteuid() == 0) {
    if (was_root_) {
      EXPECT_EQ(seteuid(65534), 0);
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (was_root_) {
      EXPECT_EQ(seteuid(0), 0);
    }
  }

 private:
  bool was_root_;
};

}  // namespace lorimet
