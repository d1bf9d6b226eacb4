// The system's calls under the files, which a test replaces to make them fail or come back short.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <functional>

namespace lorimet {

struct FileCalls {
  std::function<ssize_t(int, void*, std::size_t)> read = ::read;
  std::function<ssize_t(int, const void*, std::size_t)> write = ::write;
  std::function<int(int)> fsync = ::fsync;
  std::function<int(int, uid_t, gid_t)> fchown = ::fchown;
  std::function<int(int, mode_t)> fchmod = ::fchmod;
  std::function<int(const char*, const char*)> rename = std::rename;
};

}  // namespace lorimet
