#include "simulator/trailer/fault_store.h"

#include <algorithm>

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {
namespace {

auto Find(std::vector<Fault>& faults, std::int32_t sid, std::int32_t fmi) {
  return std::find_if(faults.begin(), faults.end(),
                      [=](const Fault& f) { return f.sid == sid && f.fmi == fmi; });
}

void Put(std::vector<Fault>& faults, const Fault& fault) {
  const auto at = Find(faults, fault.sid, fault.fmi);
  if (at == faults.end())
    faults.push_back(fault);
  else
    *at = fault;
}

void Erase(std::vector<Fault>& faults, std::int32_t sid, std::int32_t fmi) {
  const auto at = Find(faults, sid, fmi);
  if (at != faults.end()) faults.erase(at);
}

}  // namespace

void FaultStore::Set(const Fault& fault) {
  ++revision_;
  Put(faults_, fault);
  if (fault.status == kFaultActive)
    Put(causes_, fault);
  else
    Erase(causes_, fault.sid, fault.fmi);
}

void FaultStore::Heal(std::int32_t sid, std::int32_t fmi) {
  ++revision_;
  Erase(causes_, sid, fmi);
  const auto at = Find(faults_, sid, fmi);
  if (at != faults_.end() && at->status == kFaultActive) at->status = kFaultStored;
}

void FaultStore::Raise(std::int32_t sid, std::int32_t fmi) {
  const auto at = Find(faults_, sid, fmi);
  if (at == faults_.end()) {
    faults_.push_back({sid, fmi, kFaultActive, 1});
  } else {
    if (at->status == kFaultActive) return;
    at->status = kFaultActive;
    if (at->times > 0) ++at->times;
  }
  ++revision_;
}

void FaultStore::Lower(std::int32_t sid, std::int32_t fmi) {
  const auto at = Find(faults_, sid, fmi);
  if (at == faults_.end() || at->status != kFaultActive) return;
  if (Find(causes_, sid, fmi) != causes_.end()) return;
  at->status = kFaultStored;
  ++revision_;
}

void FaultStore::Remove(std::int32_t sid, std::int32_t fmi) {
  ++revision_;
  Erase(causes_, sid, fmi);
  Erase(faults_, sid, fmi);
}

void FaultStore::Clear() {
  ++revision_;
  faults_.clear();
  detect_in_ = StepsIn(kDetectSeconds);
}

void FaultStore::Restart() { Detect(); }

void FaultStore::Step() {
  if (detect_in_ > 0 && --detect_in_ == 0) Detect();
}

void FaultStore::Restore(const std::vector<Fault>& faults) {
  ++revision_;
  faults_ = faults;
  for (Fault& fault : faults_) {
    const bool caused = Find(causes_, fault.sid, fault.fmi) != causes_.end();
    if (fault.status == kFaultActive && !caused) fault.status = kFaultStored;
    if (fault.status == kFaultStored && caused) fault.status = kFaultActive;
  }
  Detect();
}

bool FaultStore::AnyActive() const {
  return std::any_of(faults_.begin(), faults_.end(),
                     [](const Fault& f) { return f.status == kFaultActive; });
}

void FaultStore::Detect() {
  detect_in_ = 0;
  for (const Fault& cause : causes_) {
    if (Find(faults_, cause.sid, cause.fmi) != faults_.end()) continue;
    faults_.push_back({cause.sid, cause.fmi, kFaultActive, 1});
    ++revision_;
  }
}

}  // namespace lorimet::simulator
