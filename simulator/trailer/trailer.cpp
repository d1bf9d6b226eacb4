#include "simulator/trailer/trailer.h"

#include <algorithm>
#include <string>

#include "simulator/trailer/default_parameters.h"

namespace lorimet::simulator {
namespace {

constexpr double kStepSeconds = 0.01;
constexpr double kNoReading = -1.0;
constexpr double kCountsPerPsi = 5120 / 14.5;

}  // namespace

Trailer::Trailer(const TrailerSetup& setup)
    : setup_(setup),
      identity_(DefaultIdentity(setup)),
      session_(setup.session_timeout),
      parameters_(DefaultParameters(setup)) {}

void Trailer::Advance(double seconds) {
  while (seconds > kStepSeconds) {
    Step(kStepSeconds);
    seconds -= kStepSeconds;
  }
  if (seconds > 0) Step(seconds);
}

void Trailer::Step(double seconds) {
  const double rise = brakes_.Advance(seconds, Vehicle(), load_, supply_.Pressure());
  supply_.Draw(rise);
  supply_.Advance(seconds);
  wheels_.Advance(seconds, brakes_.Delivered(1), brakes_.Delivered(2));
  electrics_.Advance(seconds);
  distances_.Advance(seconds, wheels_.MeanSpeed());
  session_.Advance(seconds);
  faults_.Advance(seconds);
  lamp_.Advance(seconds);
  reset_left_ = std::max(0.0, reset_left_ - seconds);
}

double Trailer::MainBellows() const {
  const VehicleParameters vehicle = Vehicle();
  if (setup_.suspension == Suspension::kMechanical) return kNoReading;
  const double unladen = vehicle.UnladenSuspension() * kPsiPerCount;
  return unladen + (vehicle.LadenSuspension() * kPsiPerCount - unladen) * load_;
}

LiveValues Trailer::Live() const {
  const SystemFacts& facts = FactsOf(setup_.system);
  const bool third = setup_.system == System::k4S3M || setup_.system == System::k2M1M;
  LiveValues live;
  live.primary_volts = electrics_.Volts() * 100;
  live.voltage_source = electrics_.Source() == VoltageSource::kPermanent ? 1 : 0;
  for (int i = 0; i < 6; ++i) {
    const bool sensed = i >= 2 && i < 2 + facts.sensors;
    live.wheel_speed[static_cast<std::size_t>(i)] = sensed ? wheels_.Speed(i) : kNoReading;
  }
  live.odometer = distances_.odometer;
  live.next_service = distances_.next_service;
  live.trip = distances_.trip;
  live.supply = facts.modulators == 1 ? kNoReading : supply_.Pressure();
  live.main_bellows = MainBellows();
  live.steer_bellows = third && live.main_bellows >= 0 ? live.main_bellows : kNoSensorPressure;
  live.brake1 = brakes_.Delivered(1);
  live.brake2 = facts.modulators == 1 ? kNoReading : brakes_.Delivered(2);
  live.service_brake = brakes_.Demand();
  live.warning_lamp = LampOn();
  live.faults = static_cast<int>(faults_.Faults().size());
  return live;
}

void Trailer::Reset() {
  reset_left_ = kResetSeconds;
  session_.Stop();
  brakes_.SelectMode(BrakeMode::kNormal);
  lamp_.PowerOn();
  faults_.Restart();
  stop_light_ = false;
}

Status Trailer::SetPressure(std::span<const std::uint8_t> data) {
  if (data.size() != 7) return kSubfunctionNotSupported;
  const int counts = data[1] + 256 * data[2];
  // Channel 6 carries millimetres in the same encoding.
  return brakes_.SetTestChannel(data[0], counts / kCountsPerPsi) ? kDone : kOutOfRange;
}

Status Trailer::StartRoutine(std::uint8_t id, std::span<const std::uint8_t> data) {
  const Status permitted = session_.Permit(false);
  if (permitted != kDone) return permitted;
  switch (id) {
    case 0x05:  // ends the operation before it: what was written is sealed
      parameters_.RebuildChecksums();
      return kDone;
    case 0x06:
      return SetPressure(data);
    case 0x07:
      if (data.empty()) return kSubfunctionNotSupported;
      lamp_.Command(data[0] != 0);
      return kDone;
    case 0x37:
      if (data.size() < 3 || data[2] > 2) return kSubfunctionNotSupported;
      brakes_.SelectMode(static_cast<BrakeMode>(data[2]));
      return kDone;
    case 0x3C:
      if (data.empty() || data[0] < 1 || data[0] > 2) return kSubfunctionNotSupported;
      return height_counts_ >= 1141 && height_counts_ <= 1486 ? kDone : kConditionsNotCorrect;
    case 0x41:
      return data.size() == 2 ? kDone : kSubfunctionNotSupported;
    case 0x42:
      if (data.size() < 3) return kSubfunctionNotSupported;
      return session_.SetParameterAccess(data[2] != 0);
    default:
      return kServiceNotSupported;
  }
}

Status Trailer::WriteBlock(std::uint8_t id, std::span<const std::uint8_t> data) {
  const Status permitted = session_.Permit(id != kEndOfLineFlagId);
  if (permitted != kDone) return permitted;
  if (id == kEndOfLineFlagId) {
    if (data.empty()) return kSubfunctionNotSupported;
    SetEndOfLineFlag(data[0]);
    return kDone;
  }
  return parameters_.Write(id, data) ? kDone : kOutOfRange;
}

Status Trailer::ReadBlock(std::uint8_t id, std::vector<std::uint8_t>& bytes) {
  if (id == kErrorBytesId) {
    const ErrorBytes errors = Errors();
    bytes = {id};
    for (int i = 1; i <= ErrorBytes::kCount; ++i) bytes.push_back(errors.At(i));
    return kDone;
  }
  if (id == kEndOfLineFlagId) {
    bytes = {id, end_of_line_flag_, 0};
    return kDone;
  }
  const Status permitted = session_.Permit(true);
  if (permitted != kDone) return permitted;
  const auto block = parameters_.Read(id);
  if (!block) return kOutOfRange;
  bytes = *block;
  return kDone;
}

std::uint16_t Trailer::ReadWord(std::uint32_t address) const {
  if (const auto word = memory_.Get(address)) return *word;
  const auto pair = [&](std::uint8_t id, int high, int low) {
    return static_cast<std::uint16_t>(parameters_.Byte(id, high) << 8 | parameters_.Byte(id, low));
  };
  const bool lift_check = Vehicle().Text(kFcf1, 51, 20) == "Pres and Speed Check";
  if (address == kLoweringPressure && lift_check) return pair(kFcf1, 16, 17);
  if (address == kLiftingPressure && lift_check) return pair(kFcf1, 18, 19);
  const bool speed_switch = parameters_.Byte(kEol3, 3) == 1;
  if (address == kSpeedThresholds && speed_switch) return pair(kEol3, 2, 1);
  return 0;
}

Status Trailer::WriteWord(std::uint32_t address, std::span<const std::uint8_t> data) {
  const Status permitted = session_.Permit(true);
  if (permitted != kDone) return permitted;
  if (data.size() != 2) return kOutOfRange;
  memory_.Set(address, static_cast<std::uint16_t>(data[0] << 8 | data[1]));
  return kDone;
}

Status Trailer::IoControl(std::uint8_t id, std::span<std::uint8_t> data) {
  if (id != 5) return kServiceNotSupported;
  if (data.size() < 4) return kSubfunctionNotSupported;
  const bool reading = setup_.suspension == Suspension::kMechanical;
  data[2] = reading ? static_cast<std::uint8_t>(height_counts_ >> 8) : 0xFF;
  data[3] = reading ? static_cast<std::uint8_t>(height_counts_ & 0xFF) : 0xFF;
  return kDone;
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
  ++flag_revision_;
}

}  // namespace lorimet::simulator
