// The trailer with its ECU: everything that stands on the yard, driven by Step in virtual time.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "simulator/trailer/air_supply.h"
#include "simulator/trailer/bellows.h"
#include "simulator/trailer/brakes.h"
#include "simulator/trailer/configuration.h"
#include "simulator/trailer/control_line.h"
#include "simulator/trailer/defects.h"
#include "simulator/trailer/distances.h"
#include "simulator/trailer/driving.h"
#include "simulator/trailer/electrics.h"
#include "simulator/trailer/fault_monitor.h"
#include "simulator/trailer/fault_store.h"
#include "simulator/trailer/height_sensor.h"
#include "simulator/trailer/identity.h"
#include "simulator/trailer/kwp_status.h"
#include "simulator/trailer/layout.h"
#include "simulator/trailer/live_values.h"
#include "simulator/trailer/load_sensing.h"
#include "simulator/trailer/memory_words.h"
#include "simulator/trailer/noise.h"
#include "simulator/trailer/parameter_store.h"
#include "simulator/trailer/plausibility.h"
#include "simulator/trailer/recorder_counters.h"
#include "simulator/trailer/recorder_memory.h"
#include "simulator/trailer/session.h"
#include "simulator/trailer/stop_lights.h"
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

  // One step of the grid.
  void Step();
  // The trailer is built and its ECU switched on: what a scenario has loaded has settled, and what
  // it has made wrong is found.
  void Begin() {
    bellows_.Settle();
    CheckItself();
  }
  // The same for a trailer whose memory of an earlier life has just been put in.
  void Resume() {
    monitor_.Forget();
    CheckItself();
  }

  // --- What the ECU tells by itself.
  bool Powered() const { return electrics_.Powered(); }
  bool Restarting() const { return restart_left_ > 0; }
  bool Answering() const { return Powered() && !Restarting(); }
  // The next reading of the live values.
  LiveValues Read();

  // --- Services of the ECU; 0 is success.
  void Reset();
  void ClearFaults();
  Status StartRoutine(std::uint8_t id, std::span<const std::uint8_t> data);
  Status WriteBlock(std::uint8_t id, std::span<const std::uint8_t> data);
  // bytes: the answer with the local identifier's echo at index 0.
  Status ReadBlock(std::uint8_t id, std::vector<std::uint8_t>& bytes);
  std::uint16_t ReadWord(std::uint32_t address) const;
  Status WriteWord(std::uint32_t address, std::span<const std::uint8_t> data);
  Status IoControl(std::uint8_t id, std::span<std::uint8_t> data);
  Status DeleteRecorderData(std::uint8_t selector);
  void ActivateStopLights(std::int32_t trailer, std::int32_t state) {
    stop_lights_.Activate(trailer, state);
  }
  ErrorBytes Errors() const;

  // --- What a person does to the trailer.
  void SetParkingBrake(bool on) { parking_brake_ = on; }
  bool ParkingBrake() const { return parking_brake_; }
  void SetResetSeconds(double seconds) { restart_steps_ = StepsIn(seconds); }
  // Makes the ECU complain whatever the parameters say.
  void ForceError(int byte, int bit, bool on);
  void SetEndOfLineFlag(std::uint8_t value);
  void SetCalibrated(bool calibrated);
  void SetStartUpRequired(bool required) { start_up_required_ = required; }
  // The share of messages on the bus that noise spoils.
  void SetBusNoise(double share) { bus_noise_ = share; }
  void SetWord(std::uint32_t address, std::uint16_t word);

  // --- What a person can see.
  bool LampOutput() const { return Powered() && lamp_.On(faults_.AnyActive()); }
  bool LampLit() const;
  bool StopLightsLit() const { return stop_lights_.Lit(parameters_, defects_.stop_lights_dead); }
  // Counts of the height sensor without noise; nothing without a reading.
  std::optional<std::uint16_t> Height() const { return HeightCounts(0); }
  bool Calibrated() const { return calibrated_; }
  double BellowsPressure() const;  // psi; 0 with mechanical suspension
  double WheelBrake(int position) const;
  // The speed that the ECU works out for an input, by the record's index; nothing without a sensor.
  std::optional<double> IndicatedSpeed(int index) const;

  const TrailerSetup& Setup() const { return setup_; }
  VehicleParameters Vehicle() const { return VehicleParameters(parameters_); }
  std::uint8_t EndOfLineFlag() const { return end_of_line_flag_; }
  const Layout& Plan() const { return layout_; }
  Identity& Ident() { return identity_; }
  const Identity& Ident() const { return identity_; }
  AirSupply& Supply() { return supply_; }
  ControlLine& Line() { return line_; }
  Bellows& Load() { return bellows_; }
  Brakes& Brake() { return brakes_; }
  Wheels& Rolling() { return wheels_; }
  Driving& Road() { return driving_; }
  HeightSensor& HeightLever() { return height_; }
  StopLights& Lights() { return stop_lights_; }
  Electrics& Electric() { return electrics_; }
  Distances& Distance() { return distances_; }
  RecorderCounters& Recorder() { return recorder_; }
  RecorderMemory& Recorded() { return recorded_; }
  Session& Diagnosis() { return session_; }
  FaultStore& Faults() { return faults_; }
  ParameterStore& Parameters() { return parameters_; }
  MemoryWords& Memory() { return memory_; }
  Defects& Wrong() { return defects_; }
  Noise& Measuring() { return noise_; }
  const AirSupply& Supply() const { return supply_; }
  const ControlLine& Line() const { return line_; }
  const Bellows& Load() const { return bellows_; }
  const Brakes& Brake() const { return brakes_; }
  const Wheels& Rolling() const { return wheels_; }
  const Driving& Road() const { return driving_; }
  const Electrics& Electric() const { return electrics_; }
  const Distances& Distance() const { return distances_; }
  const RecorderCounters& Recorder() const { return recorder_; }
  const RecorderMemory& Recorded() const { return recorded_; }
  const Session& Diagnosis() const { return session_; }
  const FaultStore& Faults() const { return faults_; }
  const ParameterStore& Parameters() const { return parameters_; }
  const MemoryWords& Memory() const { return memory_; }
  const Noise& Measuring() const { return noise_; }
  const Defects& Wrong() const { return defects_; }
  // Grows with every change of what outlives the trailer's power.
  std::uint64_t Revision() const {
    return parameters_.Revision() + faults_.Revision() + recorder_.Revision() +
           distances_.Revision() + kept_revision_;
  }

 private:
  // --- Steps, in their order.
  void StepPower();
  void StepEcu();
  void StepBrakes();
  void StepWheels();
  void StepSlip();
  void StepLateral();
  void StepFaults();
  void Record(RecorderCounter counter);
  void Start();
  void CheckItself();
  void GoOut();
  const LoadSensing& Sensing();

  // --- What reaches the ECU.
  double SupplyPort() const {
    return defects_.lines_swapped ? line_.Pressure() : supply_.Pressure();
  }
  double ControlPort() const {
    return defects_.lines_swapped ? supply_.Pressure() : line_.Pressure();
  }
  double KnownLoad() const;
  std::optional<std::uint16_t> HeightCounts(double swing) const;
  bool Moving() const;
  bool StopLightCircuit() const { return line_.Pressure() > kStopLightPressure; }
  CausesStanding Causes() const;
  void SensorCauses(CausesStanding& standing) const;
  void PressureCauses(CausesStanding& standing) const;
  void StartCauses(CausesStanding& standing) const;
  // A pressure as its sensor tells it.
  double Told(double psi, const PressureSensorDefect& sensor, NoiseField field) const;
  Status SetPressure(std::span<const std::uint8_t> data);
  Status SelectMode(std::span<const std::uint8_t> data);
  Status EndValves(std::span<const std::uint8_t> data);
  Status Calibrate(std::span<const std::uint8_t> data);

  static constexpr double kStopLightPressure = 4;  // psi in the control line

  TrailerSetup setup_;
  Layout layout_;
  Identity identity_;
  AirSupply supply_;
  ControlLine line_;
  Bellows bellows_;
  Brakes brakes_;
  Wheels wheels_;
  Driving driving_;
  HeightSensor height_;
  StopLights stop_lights_;
  WarningLamp lamp_;
  Electrics electrics_;
  Distances distances_;
  RecorderCounters recorder_;
  RecorderMemory recorded_;
  Session session_;
  FaultStore faults_;
  FaultMonitor monitor_;
  ParameterStore parameters_;
  MemoryWords memory_;
  Defects defects_;
  Noise noise_;
  std::set<std::pair<int, int>> forced_errors_;
  LoadSensing sensing_;
  std::uint64_t sensing_revision_ = ~std::uint64_t{0};
  std::uint64_t steps_ = 0;
  std::uint64_t readings_ = 0;
  std::uint64_t height_readings_ = 0;
  std::uint64_t kept_revision_ = 0;
  int restart_steps_ = StepsIn(kResetSeconds);
  int restart_left_ = 0;             // steps
  std::array<int, 2> leaning_ = {};  // steps above the lateral levels 1 and 2
  std::array<bool, kPositions> slipping_ = {};
  std::uint8_t end_of_line_flag_ = kEndOfLineNotPassed;
  double bus_noise_ = 0;
  bool was_powered_ = true;
  bool stop_light_was_on_ = false;
  bool parking_brake_ = false;
  bool calibrated_ = true;
  bool start_up_required_ = false;
};

}  // namespace lorimet::simulator
