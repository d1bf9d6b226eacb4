// The trailer with its ECU: everything that stands on the yard, driven by Advance in virtual time.
#pragma once

#include <cstdint>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "simulator/trailer/air_supply.h"
#include "simulator/trailer/brakes.h"
#include "simulator/trailer/configuration.h"
#include "simulator/trailer/distances.h"
#include "simulator/trailer/electrics.h"
#include "simulator/trailer/fault_store.h"
#include "simulator/trailer/identity.h"
#include "simulator/trailer/kwp_status.h"
#include "simulator/trailer/live_values.h"
#include "simulator/trailer/memory_words.h"
#include "simulator/trailer/parameter_store.h"
#include "simulator/trailer/plausibility.h"
#include "simulator/trailer/session.h"
#include "simulator/trailer/vehicle_parameters.h"
#include "simulator/trailer/warning_lamp.h"
#include "simulator/trailer/wheels.h"

namespace lorimet::simulator {

constexpr std::uint8_t kErrorBytesId = 0x29;
constexpr std::uint8_t kEndOfLineFlagId = 0x2A;
constexpr std::uint8_t kEndOfLinePassed = 1;
constexpr std::uint8_t kEndOfLineNotPassed = 2;
constexpr double kResetSeconds = 0.8;

class Trailer {
 public:
  explicit Trailer(const TrailerSetup& setup);

  // Any length of time; the parts see steps of at most 10 ms.
  void Advance(double seconds);

  // What the ECU answers by itself. It answers nothing while it restarts.
  bool Answering() const { return reset_left_ <= 0; }
  LiveValues Live() const;

  // Services of the ECU; 0 is success.
  void Reset();
  void ClearFaults() { faults_.Clear(); }
  Status StartRoutine(std::uint8_t id, std::span<const std::uint8_t> data);
  Status WriteBlock(std::uint8_t id, std::span<const std::uint8_t> data);
  // bytes: the answer with the local identifier's echo at index 0.
  Status ReadBlock(std::uint8_t id, std::vector<std::uint8_t>& bytes);
  std::uint16_t ReadWord(std::uint32_t address) const;
  Status WriteWord(std::uint32_t address, std::span<const std::uint8_t> data);
  Status IoControl(std::uint8_t id, std::span<std::uint8_t> data);
  ErrorBytes Errors() const;

  // What a person does to the trailer. Load is from 0 (unladen) to 1 (laden).
  void SpinWheel(int sensor_index, double mph) { wheels_.Spin(sensor_index, mph); }
  void PressDemand(double psi) { brakes_.SetDemand(psi); }
  void SetLoad(double load) { load_ = load; }
  void SetHeightCounts(std::uint16_t counts) { height_counts_ = counts; }
  void SetStopLight(bool on) { stop_light_ = on; }
  // Makes the ECU complain whatever the parameters say.
  void ForceError(int byte, int bit, bool on);
  void SetEndOfLineFlag(std::uint8_t value);

  const TrailerSetup& Setup() const { return setup_; }
  VehicleParameters Vehicle() const { return VehicleParameters(parameters_); }
  std::uint8_t EndOfLineFlag() const { return end_of_line_flag_; }
  bool StopLight() const { return stop_light_; }
  bool LampOn() const { return lamp_.On(faults_.AnyActive()); }
  Identity& Ident() { return identity_; }
  const Identity& Ident() const { return identity_; }
  AirSupply& Supply() { return supply_; }
  Brakes& Brake() { return brakes_; }
  Electrics& Electric() { return electrics_; }
  Distances& Distance() { return distances_; }
  Session& Diagnosis() { return session_; }
  FaultStore& Faults() { return faults_; }
  const FaultStore& Faults() const { return faults_; }
  ParameterStore& Parameters() { return parameters_; }
  const ParameterStore& Parameters() const { return parameters_; }
  MemoryWords& Memory() { return memory_; }
  // Grows with every change of what outlives the trailer's power.
  std::uint64_t Revision() const {
    return parameters_.Revision() + faults_.Revision() + flag_revision_;
  }

 private:
  void Step(double seconds);
  double MainBellows() const;
  Status SetPressure(std::span<const std::uint8_t> data);

  TrailerSetup setup_;
  Identity identity_;
  AirSupply supply_;
  Brakes brakes_;
  Wheels wheels_;
  WarningLamp lamp_;
  Electrics electrics_;
  Distances distances_;
  Session session_;
  FaultStore faults_;
  ParameterStore parameters_;
  MemoryWords memory_;
  std::set<std::pair<int, int>> forced_errors_;
  double load_ = 0;
  double reset_left_ = 0;
  std::uint16_t height_counts_ = 1310;
  std::uint8_t end_of_line_flag_ = kEndOfLineNotPassed;
  std::uint64_t flag_revision_ = 0;
  bool stop_light_ = false;
};

}  // namespace lorimet::simulator
