// The services that the ECU offers.
#include <string>

#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {
namespace {

constexpr double kCountsPerPsi = 5120 / 14.5;

}  // namespace

void Trailer::Reset() { Start(); }

void Trailer::ClearFaults() {
  faults_.Clear();
  monitor_.Forget();
}

Status Trailer::SetPressure(std::span<const std::uint8_t> data) {
  if (data.size() != 7) return kSubfunctionNotSupported;
  const int channel = data[0];
  const int counts = data[1] + 256 * data[2];
  const bool load = channel == 4 || channel == 6;
  if (load && defects_.load_ignored) return kDone;
  // Channel 6 carries millimetres in the same encoding.
  return brakes_.SetTestChannel(channel, counts / kCountsPerPsi) ? kDone : kOutOfRange;
}

Status Trailer::SelectMode(std::span<const std::uint8_t> data) {
  if (data.size() < 3 || data[2] > 2) return kSubfunctionNotSupported;
  if (!defects_.mode_ignored[data[2]]) brakes_.SelectMode(static_cast<BrakeMode>(data[2]));
  return kDone;
}

// Step 1 or 2 ends what that modulator's channel holds, step 0 both.
Status Trailer::EndValves(std::span<const std::uint8_t> data) {
  if (data.size() != 2) return kSubfunctionNotSupported;
  for (const int channel : {1, 2})
    if (data[1] == 0 || data[1] == channel) brakes_.EndTestChannel(channel);
  return kDone;
}

Status Trailer::Calibrate(std::span<const std::uint8_t> data) {
  if (data.empty() || data[0] < 1 || data[0] > 2) return kSubfunctionNotSupported;
  const auto counts = Height();
  if (!counts || *counts < HeightSensor::kCalibrationLow ||
      *counts > HeightSensor::kCalibrationHigh)
    return kConditionsNotCorrect;
  SetCalibrated(true);
  return kDone;
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
      if (data.size() < 3) return kSubfunctionNotSupported;
      lamp_.Command(data[0] != 0, (data[1] + 256 * data[2]) / 1000.0);
      return kDone;
    case 0x37:
      return SelectMode(data);
    case 0x3C:
      return Calibrate(data);
    case 0x41:
      return EndValves(data);
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
  for (const RecorderCounterFacts& facts : kRecorderCounters)
    if (facts.address == address) return static_cast<std::uint16_t>(recorder_.Value(facts.counter));
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
  SetWord(address, static_cast<std::uint16_t>(data[0] << 8 | data[1]));
  return kDone;
}

Status Trailer::IoControl(std::uint8_t id, std::span<std::uint8_t> data) {
  const Status permitted = session_.Permit(false);
  if (permitted != kDone) return permitted;
  if (id != 5) return kServiceNotSupported;
  if (data.size() < 4) return kSubfunctionNotSupported;
  const double swing = noise_.Swing(NoiseField::kHeight, ++height_readings_);
  const std::uint16_t counts = HeightCounts(swing).value_or(0xFFFF);
  data[2] = static_cast<std::uint8_t>(counts >> 8);
  data[3] = static_cast<std::uint8_t>(counts & 0xFF);
  return kDone;
}

Status Trailer::DeleteRecorderData(std::uint8_t selector) {
  constexpr std::uint8_t kOverview = 3;
  constexpr std::uint8_t kHistogram = 5;
  constexpr std::uint8_t kTripAccumulator = 8;
  // The histogram and the trip accumulator have no counter.
  bool known = selector == kHistogram || selector == kTripAccumulator;
  if (selector == kOverview) recorded_.starts = 0;
  if (selector == kHistogram) recorded_.seconds_at_speed = {};
  if (selector == kTripAccumulator) recorded_.trip_km = 0;
  ++kept_revision_;
  for (const RecorderCounterFacts& facts : kRecorderCounters) {
    if (facts.selector != selector) continue;
    known = true;
    recorder_.Set(facts.counter, 0);
    memory_.Forget(facts.address);
  }
  return known ? kDone : kSubfunctionNotSupported;
}

}  // namespace lorimet::simulator
