// The stage of the program's life; statuses, timers, commands and waits consult it.
#pragma once

namespace lorimet {

enum class LifeStage {
  kStarting,
  kRunning,
  kClosing,    // the close-down has begun
  kFailed,     // a run-time error ends the program
  kUnwinding,  // the top has taken the error, and what waited below it does not go on
};

class LifeCycle {
 public:
  LifeStage Stage() const { return stage_; }
  // Events are handled, waits go on and forms may load: true until the program closes or fails.
  bool Open() const { return stage_ == LifeStage::kStarting || stage_ == LifeStage::kRunning; }
  // Nothing the user does is handled any more.
  bool Failed() const { return stage_ >= LifeStage::kFailed; }
  bool Unwinding() const { return stage_ == LifeStage::kUnwinding; }

  void Run() { Move(LifeStage::kRunning); }
  void Close() { Move(LifeStage::kClosing); }
  void Fail() { Move(LifeStage::kFailed); }
  void Unwind() { Move(LifeStage::kUnwinding); }

 private:
  // Forward only: nothing leads out of a failure, and a program that closes does not run again.
  void Move(LifeStage stage) {
    if (stage > stage_) stage_ = stage;
  }

  LifeStage stage_ = LifeStage::kStarting;
};

}  // namespace lorimet
