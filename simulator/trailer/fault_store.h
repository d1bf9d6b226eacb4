// The ECU's faults: active and stored, with their occurrence counts, clearing and coming back.
#pragma once

#include <cstdint>
#include <vector>

namespace lorimet::simulator {

constexpr std::int32_t kFaultActive = 0;
constexpr std::int32_t kFaultStored = 1;

struct Fault {
  std::int32_t sid = 0;
  std::int32_t fmi = 0;
  std::int32_t status = kFaultActive;  // other values than the two are passed on as they are
  std::int32_t times = 1;              // 0 and -1: no count is held

  bool operator==(const Fault&) const = default;
};

class FaultStore {
 public:
  static constexpr double kDetectSeconds = 1;  // until a standing cause is a fault again

  // Adds the fault, or replaces the one of the same numbers. The cause of an active one stands.
  void Set(const Fault& fault);
  // The cause is gone: an active fault becomes stored.
  void Heal(std::int32_t sid, std::int32_t fmi);
  // A cause that the ECU has found by itself: the fault is active, and counts one more when it was
  // there already.
  void Raise(std::int32_t sid, std::int32_t fmi);
  // That cause is gone: the fault is stored, unless somebody else has made it active.
  void Lower(std::int32_t sid, std::int32_t fmi);
  // The fault and its cause vanish.
  void Remove(std::int32_t sid, std::int32_t fmi);
  // Erases all; those whose cause stands come back after kDetectSeconds or a restart.
  void Clear();
  // The restart of the ECU: every standing cause is found again at once.
  void Restart();
  void Step();
  // Takes over the faults of an earlier life, in which an active one with no cause is stored.
  void Restore(const std::vector<Fault>& faults);

  const std::vector<Fault>& Faults() const { return faults_; }
  bool AnyActive() const;
  // Grows with every change, so that a keeper of the state knows when to keep it.
  std::uint64_t Revision() const { return revision_; }

 private:
  void Detect();

  std::vector<Fault> faults_;
  std::vector<Fault> causes_;
  int detect_in_ = 0;  // steps
  std::uint64_t revision_ = 0;
};

}  // namespace lorimet::simulator
