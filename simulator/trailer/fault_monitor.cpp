#include "simulator/trailer/fault_monitor.h"

namespace lorimet::simulator {
namespace {

using enum Cause;
using enum CauseKind;

constexpr CauseFacts kTable[] = {
    {kSensorOpenC, 3, 5, 0.2, kElectrical},
    {kSensorOpenD, 4, 5, 0.2, kElectrical},
    {kSensorOpenE, 5, 5, 0.2, kElectrical},
    {kSensorOpenF, 6, 5, 0.2, kElectrical},
    {kSensorShortC, 3, 4, 0.2, kElectrical},
    {kSensorShortD, 4, 4, 0.2, kElectrical},
    {kSensorShortE, 5, 4, 0.2, kElectrical},
    {kSensorShortF, 6, 4, 0.2, kElectrical},
    {kSensorShort12C, 3, 3, 0.2, kElectrical},
    {kSensorShort12D, 4, 3, 0.2, kElectrical},
    {kSensorShort12E, 5, 3, 0.2, kElectrical},
    {kSensorShort12F, 6, 3, 0.2, kElectrical},
    {kSensorGapC, 3, 1, 3, kWatched},
    {kSensorGapD, 4, 1, 3, kWatched},
    {kSensorGapE, 5, 1, 3, kWatched},
    {kSensorGapF, 6, 1, 3, kWatched},
    {kSensorDeadC, 3, 9, 3, kWatched},
    {kSensorDeadD, 4, 9, 3, kWatched},
    {kSensorDeadE, 5, 9, 3, kWatched},
    {kSensorDeadF, 6, 9, 3, kWatched},
    {kSensorErraticC, 3, 7, 3, kWatched},
    {kSensorErraticD, 4, 7, 3, kWatched},
    {kSensorErraticE, 5, 7, 3, kWatched},
    {kSensorErraticF, 6, 7, 3, kWatched},
    {kH1Dead, 10, 5, 0.5, kElectrical},
    {kH2Dead, 9, 5, 0.5, kElectrical},
    {kBrakePressureNone, 62, 4, 0.5, kElectrical},
    {kBrakePressureHigh, 62, 3, 0.5, kElectrical},
    {kBrakePressureDeviation, 62, 0, 2, kWatched},
    {kBrakePressureResidual, 62, 11, 5, kWatched},
    {kBrakePressureResidualMoving, 62, 15, 5, kWatched},
    {kControlNone, 77, 5, 0.5, kElectrical},
    {kControlHigh, 77, 3, 0.5, kElectrical},
    {kControlResidual, 143, 15, 30, kWatched},
    {kSupplyNone, 144, 4, 0.5, kElectrical},
    {kSupplyHigh, 144, 3, 0.5, kElectrical},
    {kSupplyLowMoving, 144, 1, 1, kWatched},
    {kBellowsNone, 69, 5, 0.5, kElectrical},
    {kBellowsHigh, 69, 3, 0.5, kElectrical},
    {kBellowsLowMoving, 69, 12, 10, kWatched},
    {kHeightOpen, 120, 5, 0.5, kElectrical},
    {kHeightNotCalibrated, 120, 13, 0, kStart},
    {kVoltsLow, 251, 12, 2, kWatched},
    {kVoltsHigh, 251, 3, 2, kWatched},
    {kStopLightPower, 251, 2, 5, kWatched},
    {kBusNoise, 220, 9, 5, kWatched},
    {kChecksum, 253, 12, 0, kStart},
    {kParameters, 253, 2, 0, kStart},
    {kStartUp, 253, 14, 0, kStart},
};
static_assert(std::size(kTable) == kCauses);

}  // namespace

std::span<const CauseFacts> CauseTable() { return kTable; }

void FaultMonitor::Watch(double seconds, const CausesStanding& standing, FaultStore& store) {
  for (std::size_t i = 0; i < kCauses; ++i) {
    const CauseFacts& facts = kTable[i];
    Watched& watched = watched_[i];
    if (facts.kind == kStart) continue;
    if (!standing[i]) {
      if (watched.raised) store.Lower(facts.sid, facts.fmi);
      watched = {};
      continue;
    }
    watched.seconds += seconds;
    // Half a step short, as sums of steps are.
    if (watched.raised || watched.seconds + seconds / 2 < facts.seconds) continue;
    watched.raised = true;
    store.Raise(facts.sid, facts.fmi);
  }
}

void FaultMonitor::Start(const CausesStanding& standing, FaultStore& store) {
  for (std::size_t i = 0; i < kCauses; ++i) {
    const CauseFacts& facts = kTable[i];
    Watched& watched = watched_[i];
    if (!standing[i] || facts.kind == kWatched) {
      if (watched.raised) store.Lower(facts.sid, facts.fmi);
      watched = {};
    } else {
      if (!watched.raised) store.Raise(facts.sid, facts.fmi);
      watched.raised = true;
    }
  }
}

void FaultMonitor::Forget() { watched_ = {}; }

void FaultMonitor::Mend(Cause cause, FaultStore& store) {
  const auto i = static_cast<std::size_t>(cause);
  if (watched_[i].raised) store.Lower(kTable[i].sid, kTable[i].fmi);
  watched_[i] = {};
}

}  // namespace lorimet::simulator
