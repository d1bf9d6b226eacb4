// What the ECU takes for a fault, how soon, and what becomes of it when its cause goes or stays.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "simulator/trailer/fault_store.h"

namespace lorimet::simulator {

// One a row of the table of causes, in its order.
enum class Cause {
  kSensorOpenC,
  kSensorOpenD,
  kSensorOpenE,
  kSensorOpenF,
  kSensorShortC,
  kSensorShortD,
  kSensorShortE,
  kSensorShortF,
  kSensorShort12C,
  kSensorShort12D,
  kSensorShort12E,
  kSensorShort12F,
  kSensorGapC,
  kSensorGapD,
  kSensorGapE,
  kSensorGapF,
  kSensorDeadC,
  kSensorDeadD,
  kSensorDeadE,
  kSensorDeadF,
  kSensorErraticC,
  kSensorErraticD,
  kSensorErraticE,
  kSensorErraticF,
  kH1Dead,
  kH2Dead,
  kBrakePressureNone,
  kBrakePressureHigh,
  kBrakePressureDeviation,
  kBrakePressureResidual,
  kBrakePressureResidualMoving,
  kControlNone,
  kControlHigh,
  kControlResidual,
  kSupplyNone,
  kSupplyHigh,
  kSupplyLowMoving,
  kBellowsNone,
  kBellowsHigh,
  kBellowsLowMoving,
  kHeightOpen,
  kHeightNotCalibrated,
  kVoltsLow,
  kVoltsHigh,
  kStopLightPower,
  kBusNoise,
  kChecksum,
  kParameters,
  kStartUp,
  kCount,
};

constexpr std::size_t kCauses = static_cast<std::size_t>(Cause::kCount);
using CausesStanding = std::array<bool, kCauses>;

enum class CauseKind {
  kElectrical,  // found at once by a restart
  kWatched,     // found after its time, whatever else happens
  kStart,       // looked at when the ECU starts, and then only
};

struct CauseFacts {
  Cause cause;
  std::int32_t sid;
  std::int32_t fmi;
  double seconds;  // that the cause has to last
  CauseKind kind;
};
std::span<const CauseFacts> CauseTable();

class FaultMonitor {
 public:
  // Looks after `seconds` more of these causes.
  void Watch(double seconds, const CausesStanding& standing, FaultStore& store);
  // The ECU starts.
  void Start(const CausesStanding& standing, FaultStore& store);
  // The store has been cleared: what stands has to last its time again.
  void Forget();
  // The cause is mended while the ECU runs.
  void Mend(Cause cause, FaultStore& store);

 private:
  struct Watched {
    double seconds = 0;
    bool raised = false;
  };

  std::array<Watched, kCauses> watched_ = {};
};

}  // namespace lorimet::simulator
