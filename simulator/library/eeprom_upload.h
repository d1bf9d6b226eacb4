// The upload of the EEPROM: the library fetches byte after byte by itself, and asks the program now
// and then to be resumed.
#pragma once

#include <cstddef>
#include <string_view>

#include "simulator/library/link_outage.h"
#include "simulator/library/memory_file.h"
#include "simulator/trailer/kwp_status.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

class EepromUpload {
 public:
  static constexpr double kBytesPerSecond = 256;

  // What is to be told: nothing new, that the program is to resume it, or that it has ended.
  enum class Sign { kNone, kResumeWanted, kEnded };

  // path: in code page 1252.
  Status Begin(const Simulation& simulation, std::string_view path);
  // Refused unless the upload waits for it.
  Status Resume();
  // Nothing stays, neither of the upload nor of its file.
  void Abort();
  // One step of the grid.
  Sign Step(const Simulation& simulation, bool reachable);

  bool Runs() const { return state_ != State::kNone; }
  // Bytes still to come; 0 once the file is in its place.
  int Remaining() const { return remaining_; }

 private:
  enum class State { kNone, kFetching, kWaiting };

  Sign Fetch(const Simulation& simulation);
  Sign Finish(const Simulation& simulation);
  void Move(const UploadPlan& plan);

  State state_ = State::kNone;
  PendingFile file_;
  LinkOutage outage_;
  int remaining_ = 0;
  double position_ = 0;           // the same with its fraction
  std::size_t next_restart_ = 0;  // of the plan's
  bool climbing_ = false;
  bool has_climbed_ = false;
};

}  // namespace lorimet::simulator
