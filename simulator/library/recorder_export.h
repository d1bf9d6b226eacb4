// The export of the operating data recorder: nine memories, each asked for by the program when the
// library has told its step.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "simulator/library/link_outage.h"
#include "simulator/library/memory_file.h"
#include "simulator/trailer/kwp_status.h"
#include "simulator/trailer/simulation.h"

namespace lorimet::simulator {

class RecorderExport {
 public:
  static constexpr std::uint8_t kBlockCode = 0x51;

  // What is to be told: nothing new, the step that stands now, or the end.
  enum class Sign { kNone, kStep, kEnded };

  // path: in code page 1252. Once it is kDone, the step is 1 and to be told.
  Status Begin(std::string_view path);
  // The program asks for the memory of the step that was told.
  Status Fetch(std::uint8_t step, std::uint8_t code);
  void Abort();
  // One step of the grid.
  Sign Step(const Simulation& simulation, bool reachable);

  bool Runs() const { return state_ != State::kNone; }
  int StepNumber() const { return step_; }

 private:
  enum class State { kNone, kWaiting, kFetching, kStuck };

  Sign FinishBlock(const Simulation& simulation);
  Sign Finish(const Simulation& simulation);

  State state_ = State::kNone;
  PendingFile file_;
  LinkOutage outage_;
  std::vector<MemorySection> sections_;
  int step_ = 0;
  int fetched_for_ = 0;  // steps of the grid
};

}  // namespace lorimet::simulator
