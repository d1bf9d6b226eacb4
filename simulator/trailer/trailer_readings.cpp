// What the ECU measures, and what of it the ECU takes for a fault.
#include <cmath>

#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {
namespace {

constexpr double kNoReading = -1.0;
constexpr double kPressureNoise = 0.12;   // psi either way
constexpr double kPressureNothing = 0.3;  // psi up to which a sensor tells 0
constexpr double kSlowest = 1.1;          // mph below which a sensor tells 0
constexpr double kSpeedStep = 0.1;        // mph
constexpr int kDropOuts = 4;              // of so many readings an erratic sensor gives one

// The tone rings and tyres that the trailer is built with.
constexpr double kBuiltTeeth = 100;
constexpr double kBuiltCircumference = 3250;  // mm

constexpr double kFasterWheels = 8;  // mph of the others at which a silent sensor is noticed
constexpr double kDeviation = 7.25;  // psi
constexpr double kResidualStanding = 15;
constexpr double kResidualMoving = 7;
constexpr double kControlResidual = 2.9;
constexpr double kLowSupply = 65;
constexpr double kLowBellows = 2.17;
constexpr double kLowVolts = 9.5;
constexpr double kHighVolts = 16;

struct SensorCauseRow {
  int index;  // in the record
  Cause open, grounded, to_12v, gap, dead, erratic;
};
constexpr SensorCauseRow kSensorCauses[] = {
    {3, Cause::kSensorOpenC, Cause::kSensorShortC, Cause::kSensorShort12C, Cause::kSensorGapC,
     Cause::kSensorDeadC, Cause::kSensorErraticC},
    {2, Cause::kSensorOpenD, Cause::kSensorShortD, Cause::kSensorShort12D, Cause::kSensorGapD,
     Cause::kSensorDeadD, Cause::kSensorErraticD},
    {5, Cause::kSensorOpenE, Cause::kSensorShortE, Cause::kSensorShort12E, Cause::kSensorGapE,
     Cause::kSensorDeadE, Cause::kSensorErraticE},
    {4, Cause::kSensorOpenF, Cause::kSensorShortF, Cause::kSensorShort12F, Cause::kSensorGapF,
     Cause::kSensorDeadF, Cause::kSensorErraticF},
};

}  // namespace

std::optional<double> Trailer::IndicatedSpeed(int index) const {
  if (!layout_.PositionOf(index)) return std::nullopt;
  const int sensor = defects_.cables[static_cast<std::size_t>(index)];
  const auto position = layout_.PositionOf(sensor);
  if (!position) return 0;
  const SpeedSensorDefect& defect = defects_.sensors[static_cast<std::size_t>(sensor)];
  const bool drops_out = defect.state == SpeedSensorState::kErratic &&
                         noise_.Bits(NoiseField::kDropOut, readings_, sensor - 2) % kDropOuts != 0;
  if (drops_out ||
      (defect.state != SpeedSensorState::kWell && defect.state != SpeedSensorState::kErratic))
    return 0;
  const double wheel = wheels_.Speed(*position) * defect.gap;
  if (wheel <= 0) return 0;
  const int pair = index >= 4 ? 1 : 0;
  const int teeth = Vehicle().Teeth(pair);
  if (teeth == 0) return 0;
  const double told =
      wheel * (kBuiltTeeth / teeth) * (Vehicle().Circumference(pair) / kBuiltCircumference);
  if (told < kSlowest) return 0;
  return std::round(told / kSpeedStep) / (1 / kSpeedStep);
}

double Trailer::Told(double psi, const PressureSensorDefect& sensor, NoiseField field) const {
  if (sensor.state == SensorState::kNone) return kNoReading;
  if (sensor.state == SensorState::kHigh) return kNoSensorPressure;
  const double shifted = psi + sensor.offset;
  if (shifted <= kPressureNothing) return 0;
  return shifted + kPressureNoise * noise_.Swing(field, readings_);
}

LiveValues Trailer::Read() {
  ++readings_;
  const SystemFacts& facts = FactsOf(setup_.system);
  const bool one_modulator = facts.modulators == 1;
  const bool mechanical = setup_.suspension == Suspension::kMechanical;
  LiveValues live;
  live.primary_volts =
      (electrics_.Volts() + Electrics::kNoise * noise_.Swing(NoiseField::kVolts, readings_) -
       (brakes_.ValvesWork() ? Electrics::kValveDrop : 0) -
       (LampOutput() ? Electrics::kLampDrop : 0)) *
      100;
  live.voltage_source = electrics_.Source() == VoltageSource::kPermanent ? 1 : 0;
  for (int i = 0; i < 6; ++i)
    live.wheel_speed[static_cast<std::size_t>(i)] = IndicatedSpeed(i).value_or(kNoReading);
  live.odometer = distances_.odometer;
  live.next_service = distances_.next_service;
  live.trip = distances_.trip;
  live.supply =
      one_modulator ? kNoReading : Told(SupplyPort(), defects_.supply_sensor, NoiseField::kSupply);
  live.main_bellows =
      mechanical ? kNoReading
                 : Told(BellowsPressure(), defects_.bellows_sensor, NoiseField::kMainBellows);
  live.steer_bellows = layout_.Modulators() == 3 && !mechanical
                           ? Told(BellowsPressure(), {}, NoiseField::kSteerBellows)
                           : kNoSensorPressure;
  live.brake1 = Told(brakes_.Delivered(1), defects_.pressure_sensors[0], NoiseField::kBrake1);
  live.brake2 = one_modulator
                    ? kNoReading
                    : Told(brakes_.Delivered(2), defects_.pressure_sensors[1], NoiseField::kBrake2);
  live.service_brake = Told(ControlPort(), defects_.control_sensor, NoiseField::kControl);
  live.warning_lamp = LampOutput();
  live.faults = static_cast<int>(faults_.Faults().size());
  return live;
}

bool Trailer::Moving() const {
  return IndicatedSpeed(2).value_or(0) > Distances::kCountingSpeed &&
         IndicatedSpeed(3).value_or(0) > Distances::kCountingSpeed;
}

void Trailer::SensorCauses(CausesStanding& standing) const {
  const auto put = [&](Cause cause, bool stands) {
    standing[static_cast<std::size_t>(cause)] = stands;
  };
  // The slowest of the other sensors; fast enough to notice one that tells less.
  const auto others_run = [&](int index) {
    int others = 0;
    for (int i = 2; i < 6; ++i) {
      const auto speed = i == index ? std::nullopt : IndicatedSpeed(i);
      if (speed && *speed <= kFasterWheels) return false;
      others += speed ? 1 : 0;
    }
    return others > 0;
  };
  for (const SensorCauseRow& row : kSensorCauses) {
    if (!layout_.PositionOf(row.index)) continue;
    const auto sensor =
        static_cast<std::size_t>(defects_.cables[static_cast<std::size_t>(row.index)]);
    const SpeedSensorDefect& defect = defects_.sensors[sensor];
    put(row.open, defect.state == SpeedSensorState::kOpen);
    put(row.grounded, defect.state == SpeedSensorState::kShort);
    put(row.to_12v, defect.state == SpeedSensorState::kShort12V);
    const bool silent = defect.gap != 1 || defect.state == SpeedSensorState::kDead ||
                        defect.state == SpeedSensorState::kErratic;
    if (!silent || !others_run(row.index)) continue;
    put(row.gap, defect.gap != 1);
    put(row.dead, defect.state == SpeedSensorState::kDead);
    put(row.erratic, defect.state == SpeedSensorState::kErratic);
  }
}

void Trailer::PressureCauses(CausesStanding& standing) const {
  const auto put = [&](Cause cause, bool stands) {
    standing[static_cast<std::size_t>(cause)] = stands;
  };
  const bool moving = wheels_.AnyTurns() && Moving();
  const bool both = layout_.Modulators() > 1;
  put(Cause::kH1Dead, defects_.modulators[0].dead);
  put(Cause::kH2Dead, both && defects_.modulators[1].dead);
  std::array<double, 2> told = {};
  bool well = true;
  for (std::size_t i = 0; i < (both ? 2u : 1u); ++i) {
    const PressureSensorDefect& sensor = defects_.pressure_sensors[i];
    if (sensor.state == SensorState::kNone) put(Cause::kBrakePressureNone, true);
    if (sensor.state == SensorState::kHigh) put(Cause::kBrakePressureHigh, true);
    well = well && sensor.state == SensorState::kWell;
    const int modulator = static_cast<int>(i) + 1;
    told[i] = brakes_.Delivered(modulator) + sensor.offset;
    const bool released =
        brakes_.Mode() != BrakeMode::kRedundancy && brakes_.Target(modulator) <= 0;
    if (sensor.state != SensorState::kWell || !released) continue;
    if (!moving && told[i] > kResidualStanding) put(Cause::kBrakePressureResidual, true);
    if (moving && told[i] > kResidualMoving) put(Cause::kBrakePressureResidualMoving, true);
  }
  put(Cause::kBrakePressureDeviation, both && well && brakes_.Mode() == BrakeMode::kNormal &&
                                          StopLightCircuit() &&
                                          std::abs(told[0] - told[1]) > kDeviation);
  put(Cause::kControlNone, defects_.control_sensor.state == SensorState::kNone);
  put(Cause::kControlHigh, defects_.control_sensor.state == SensorState::kHigh);
  put(Cause::kControlResidual,
      defects_.control_sensor.state == SensorState::kWell && line_.Pedal() <= 0 &&
          ControlPort() + defects_.control_sensor.offset > kControlResidual);
  if (!both) return;
  put(Cause::kSupplyNone, defects_.supply_sensor.state == SensorState::kNone);
  put(Cause::kSupplyHigh, defects_.supply_sensor.state == SensorState::kHigh);
  put(Cause::kSupplyLowMoving, moving && defects_.supply_sensor.state == SensorState::kWell &&
                                   SupplyPort() + defects_.supply_sensor.offset < kLowSupply);
}

CausesStanding Trailer::Causes() const {
  CausesStanding standing = {};
  const auto put = [&](Cause cause, bool stands) {
    standing[static_cast<std::size_t>(cause)] = stands;
  };
  SensorCauses(standing);
  PressureCauses(standing);
  if (setup_.suspension == Suspension::kMechanical) {
    put(Cause::kHeightOpen, defects_.height_sensor_open);
  } else {
    put(Cause::kBellowsNone, defects_.bellows_sensor.state == SensorState::kNone);
    put(Cause::kBellowsHigh, defects_.bellows_sensor.state == SensorState::kHigh);
    put(Cause::kBellowsLowMoving,
        defects_.bellows_sensor.state == SensorState::kWell && wheels_.AnyTurns() && Moving() &&
            BellowsPressure() + defects_.bellows_sensor.offset < kLowBellows);
  }
  put(Cause::kVoltsLow, electrics_.Volts() < kLowVolts);
  put(Cause::kVoltsHigh, electrics_.Volts() > kHighVolts);
  put(Cause::kStopLightPower, electrics_.Source() == VoltageSource::kStopLight);
  put(Cause::kBusNoise, bus_noise_ > 0.01);
  return standing;
}

void Trailer::StartCauses(CausesStanding& standing) const {
  const auto put = [&](Cause cause, bool stands) {
    standing[static_cast<std::size_t>(cause)] = stands;
  };
  put(Cause::kHeightNotCalibrated, setup_.suspension == Suspension::kMechanical && !calibrated_);
  ErrorBytes complaints = Errors();
  for (const BlockFacts& block : kBlocks) {
    if (parameters_.ChecksumRight(block.id)) continue;
    put(Cause::kChecksum, true);
    complaints.Clear(block.checksum_byte, block.checksum_bit);
  }
  put(Cause::kParameters, complaints.Any());
  put(Cause::kStartUp, start_up_required_ && end_of_line_flag_ != kEndOfLinePassed);
}

}  // namespace lorimet::simulator
