#include "simulator/trailer/trailer.h"

#include <algorithm>

#include "simulator/trailer/default_parameters.h"

namespace lorimet::simulator {
namespace {

constexpr int kFaultSteps = 5;  // from one look after faults to the next

constexpr double kSlipBegins = 0.30;  // share of the vehicle's speed
constexpr double kSlipEnds = 0.10;
constexpr double kSlipSpeed = 5;  // mph below which slip is not looked after

struct LateralLevel {
  double g;
  RecorderCounter counter;
};
constexpr LateralLevel kLateralLevels[] = {{0.30, RecorderCounter::kLevel1},
                                           {0.40, RecorderCounter::kLevel2}};
constexpr double kLateralSeconds = 0.3;
constexpr double kLateralSpeed = 12;  // mph

}  // namespace

Trailer::Trailer(const TrailerSetup& setup)
    : setup_(setup),
      layout_(setup),
      identity_(DefaultIdentity(setup)),
      brakes_(layout_.Modulators()),
      session_(setup.session_timeout),
      parameters_(DefaultParameters(setup)) {}

void Trailer::Step() {
  line_.Step(defects_.control_residual, defects_.control_leak);
  bellows_.Step();
  driving_.Step();
  StepPower();
  if (Powered()) StepEcu();
  StepBrakes();
  supply_.Step(brakes_.Drawn(), defects_.supply_leak);
  StepWheels();
  if (Powered() && ++steps_ % kFaultSteps == 0) StepFaults();
}

void Trailer::Record(RecorderCounter counter) {
  recorder_.Count(counter);
  recorded_.Note({static_cast<std::uint8_t>(counter),
                  static_cast<std::uint32_t>(std::max(0.0, distances_.odometer) * 10)});
}

void Trailer::StepPower() {
  electrics_.Step(StopLightCircuit());
  if (StopLightCircuit() && !stop_light_was_on_) Record(RecorderCounter::kStopLight);
  stop_light_was_on_ = StopLightCircuit();
  if (!Powered() && was_powered_) GoOut();
  if (Powered() && !was_powered_) Start();
  was_powered_ = Powered();
}

void Trailer::Start() {
  GoOut();
  restart_left_ = restart_steps_;
  ++recorded_.starts;
  ++kept_revision_;
  CheckItself();
}

void Trailer::CheckItself() {
  lamp_.PowerOn();
  faults_.Restart();
  CausesStanding standing = Causes();
  StartCauses(standing);
  monitor_.Start(standing, faults_);
}

void Trailer::GoOut() {
  restart_left_ = 0;
  session_.Stop();
  brakes_.SelectMode(BrakeMode::kNormal);
  stop_lights_.Off();
}

void Trailer::StepEcu() {
  restart_left_ = std::max(0, restart_left_ - 1);
  session_.Step();
  faults_.Step();
  lamp_.Step();
  stop_lights_.Step();
}

const LoadSensing& Trailer::Sensing() {
  if (sensing_revision_ != parameters_.Revision()) {
    sensing_ = LoadSensing::From(Vehicle());
    sensing_revision_ = parameters_.Revision();
  }
  return sensing_;
}

double Trailer::BellowsPressure() const {
  if (setup_.suspension == Suspension::kMechanical || defects_.bellows_burst) return 0;
  const double unladen = Vehicle().UnladenSuspension() * kPsiPerCount;
  const double laden = Vehicle().LadenSuspension() * kPsiPerCount;
  return unladen + (laden - unladen) * bellows_.Share();
}

// Without a reading the ECU brakes as for a laden trailer.
double Trailer::KnownLoad() const {
  if (setup_.suspension == Suspension::kMechanical)
    return defects_.height_sensor_open ? 1 : bellows_.Load();
  if (defects_.bellows_sensor.state != SensorState::kWell) return 1;
  if (!defects_.bellows_burst && defects_.bellows_sensor.offset == 0) return bellows_.Share();
  return LoadOfBellows(sensing_, BellowsPressure() + defects_.bellows_sensor.offset);
}

void Trailer::StepBrakes() {
  const LoadSensing& sensing = Sensing();
  BrakeInputs inputs;
  inputs.demand = std::max(0.0, ControlPort() + defects_.control_sensor.offset);
  inputs.load = KnownLoad();
  inputs.supply_port = SupplyPort();
  inputs.control_port = ControlPort();
  inputs.electric = Powered() && defects_.control_sensor.state == SensorState::kWell;
  brakes_.Step(inputs, sensing, defects_);
}

double Trailer::WheelBrake(int position) const {
  if (defects_.no_brake[static_cast<std::size_t>(position - 1)]) return 0;
  return brakes_.Delivered(layout_.ModulatorOf(position, defects_.brake_lines_crossed));
}

void Trailer::StepWheels() {
  RollInputs inputs;
  for (int position = 1; position <= kPositions; ++position)
    if (layout_.HasWheel(position))
      inputs.brake[static_cast<std::size_t>(position - 1)] = WheelBrake(position);
  inputs.road_speed = driving_.Speed();
  inputs.grip = driving_.Grip();
  inputs.parking_brake = parking_brake_;
  wheels_.Step(inputs);
  if (wheels_.AnyTurns()) {
    const auto speed = [&](int sensor) {
      const auto position = layout_.PositionOf(sensor);
      return position ? wheels_.Speed(*position) : 0;
    };
    distances_.Step(speed(3), speed(2));
  }
  recorded_.Step(Powered() ? driving_.Speed() : 0, StopLightCircuit());
  StepSlip();
  StepLateral();
}

// The antilock control: it empties the modulator of a wheel that slips, and counts the event.
void Trailer::StepSlip() {
  const double road = driving_.Speed();
  if (road <= 0) return;
  std::array<bool, Brakes::kModulators> released = {};
  for (int position = 1; position <= kPositions; ++position) {
    bool& slipping = slipping_[static_cast<std::size_t>(position - 1)];
    if (!layout_.SensorAt(position)) continue;
    const double slip = (road - wheels_.Speed(position)) / road;
    const bool braked = WheelBrake(position) > Wheels::kBrakeBegin;
    const bool watched = Powered() && road > kSlipSpeed;
    if (watched && braked && !slipping && slip > kSlipBegins) {
      slipping = true;
      Record(RecorderCounter::kAbs);
    } else if (!watched || slip < kSlipEnds) {
      slipping = false;
    }
    const int modulator = layout_.ModulatorOf(position, false);
    if (slipping) released[static_cast<std::size_t>(modulator - 1)] = true;
  }
  for (int modulator = 1; modulator <= Brakes::kModulators; ++modulator)
    brakes_.Release(modulator, released[static_cast<std::size_t>(modulator - 1)]);
}

void Trailer::StepLateral() {
  const bool watched = Powered() && driving_.Speed() > kLateralSpeed;
  for (std::size_t i = 0; i < leaning_.size(); ++i) {
    const bool leaning = watched && driving_.Lateral() > kLateralLevels[i].g;
    leaning_[i] = leaning ? leaning_[i] + 1 : 0;
    if (leaning_[i] == StepsIn(kLateralSeconds) && Vehicle().OverturnGuard())
      Record(kLateralLevels[i].counter);
  }
}

void Trailer::StepFaults() { monitor_.Watch(kFaultSteps * kStepSeconds, Causes(), faults_); }

bool Trailer::LampLit() const {
  if (defects_.lamp_dead) return false;
  return LampOutput() || defects_.lamp_shorted;
}

std::optional<std::uint16_t> Trailer::HeightCounts(double swing) const {
  if (setup_.suspension != Suspension::kMechanical || defects_.height_sensor_open)
    return std::nullopt;
  const double path = Vehicle().LadenPath() * bellows_.Load();
  return height_.Counts(LeverTravel(path, Vehicle().LeverLength()), swing);
}

ErrorBytes Trailer::Errors() const {
  ErrorBytes errors = JudgeParameters(parameters_, setup_);
  for (const auto& [byte, bit] : forced_errors_) errors.Set(byte, bit);
  return errors;
}

void Trailer::ForceError(int byte, int bit, bool on) {
  if (on)
    forced_errors_.insert({byte, bit});
  else
    forced_errors_.erase({byte, bit});
}

void Trailer::SetEndOfLineFlag(std::uint8_t value) {
  end_of_line_flag_ = value;
  ++kept_revision_;
}

void Trailer::SetCalibrated(bool calibrated) {
  calibrated_ = calibrated;
  ++kept_revision_;
  if (calibrated) monitor_.Mend(Cause::kHeightNotCalibrated, faults_);
}

void Trailer::SetWord(std::uint32_t address, std::uint16_t word) {
  memory_.Set(address, word);
  ++kept_revision_;
}

}  // namespace lorimet::simulator
