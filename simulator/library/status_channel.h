// The way back to the program: a status is written into its pipe, or posted to its window.
#pragma once

#include <cstdint>

namespace lorimet::simulator {

class StatusChannel {
 public:
  // handle: the writing end of a pipe, or a window handle on Windows.
  void Open(std::uint32_t handle) {
    handle_ = handle;
    open_ = true;
  }
  void Close() { open_ = false; }
  // A status that finds no room, or nobody who reads, is lost. Never blocks and never raises a
  // signal in a thread that has SIGPIPE blocked.
  void Post(std::int32_t status) const;

 private:
  std::uint32_t handle_ = 0;
  bool open_ = false;
};

// Keeps the signals of the program away from the calling thread; SIGPIPE with them.
void BlockSignalsOfThisThread();

}  // namespace lorimet::simulator
