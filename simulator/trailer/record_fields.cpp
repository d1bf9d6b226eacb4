#include "simulator/trailer/record_fields.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>

#include "simulator/trailer/command.h"

namespace lorimet::simulator {
namespace {

using enum FieldKind;
using enum FieldGroup;

#define LORIMET32_FIELD(name, kind, group, count, size) \
  { #name, kind, group, offsetof(ECUData, name), count, size }

constexpr RecordField kFields[] = {
    LORIMET32_FIELD(dPrimaryVolts, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dVoltageSource, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dWheelSpeed, kDouble, kLive, 6, 8),
    LORIMET32_FIELD(dOdometer, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dNextService, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dTripReading, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dSupplyPress, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dSteerBellows, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dBrake1Press, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dBrake2Press, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dMainBellows, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dServiceBrake, kDouble, kLive, 1, 8),
    LORIMET32_FIELD(dControlPressure1, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dControlPressure2, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dTargetPressure1, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dTargetPressure2, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dLadenBellows, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dUnladenBellows, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(dLadenHeightValue, kDouble, kVehicle, 1, 8),
    LORIMET32_FIELD(nWarningLamp, kShort, kLive, 1, 2),
    LORIMET32_FIELD(nODRUploadStep, kShort, kJob, 1, 2),
    LORIMET32_FIELD(nMechanicalSuspension, kShort, kVehicle, 1, 2),
    LORIMET32_FIELD(nMounting, kShort, kVehicle, 1, 2),
    LORIMET32_FIELD(nVehicleType, kShort, kVehicle, 1, 2),
    LORIMET32_FIELD(nAxleLift, kShort, kVehicle, 3, 2),
    LORIMET32_FIELD(nAxleFlag, kShort, kVehicle, 3, 2),
    LORIMET32_FIELD(nAxleSensors, kShort, kVehicle, 3, 2),
    LORIMET32_FIELD(VehicleId, kText, kIdentity, 1, 18),
    LORIMET32_FIELD(Manufacturer, kText, kIdentity, 1, 22),
    LORIMET32_FIELD(TrailerType, kText, kIdentity, 1, 22),
    LORIMET32_FIELD(nNumAxles, kShort, kVehicle, 1, 2),
    LORIMET32_FIELD(nLinkJobDone, kShort, kJob, 1, 2),
    LORIMET32_FIELD(dBytesRemaining, kDouble, kJob, 1, 8),
    LORIMET32_FIELD(bNumSensors, kByte, kSystem, 1, 1),
    LORIMET32_FIELD(bNumModulators, kByte, kSystem, 1, 1),
    LORIMET32_FIELD(bNumFaults, kByte, kLive, 1, 1),
    LORIMET32_FIELD(PartNum, kText, kIdentity, 1, 16),
    LORIMET32_FIELD(MfgDate, kText, kIdentity, 1, 12),
    LORIMET32_FIELD(SWRev, kText, kIdentity, 1, 12),
    LORIMET32_FIELD(SerialNum, kText, kIdentity, 1, 16),
    LORIMET32_FIELD(DiagId, kText, kIdentity, 1, 12),
    LORIMET32_FIELD(SysName, kText, kIdentity, 1, 18),
};
#undef LORIMET32_FIELD

template <typename Field, typename Record>
auto& ElementAt(Record& record, const RecordField& field, int index) {
  using Byte = std::conditional_t<std::is_const_v<Record>, const std::byte, std::byte>;
  using Element = std::conditional_t<std::is_const_v<Record>, const Field, Field>;
  auto* at = reinterpret_cast<Byte*>(&record) + field.offset +
             static_cast<std::size_t>(index) * field.size;
  return *reinterpret_cast<Element*>(at);
}

std::vector<std::uint8_t> LittleEndian(std::uint64_t bits, std::size_t size) {
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(bits >> 8 * i));
  return bytes;
}

std::uint64_t FromLittleEndian(std::span<const std::uint8_t> bytes) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) bits |= std::uint64_t{bytes[i]} << 8 * i;
  return bits;
}

std::vector<std::uint8_t> NothingKnown(const RecordField& field) {
  switch (field.kind) {
    case kDouble:
      return LittleEndian(std::bit_cast<std::uint64_t>(kNoValue), 8);
    case kShort:
      return LittleEndian(0xFFFF, 2);
    default:
      return std::vector<std::uint8_t>(field.size, 0);
  }
}

// The bytes of a value written down; nothing when it does not fit the field.
std::optional<std::vector<std::uint8_t>> Parse(const RecordField& field, const std::string& value) {
  if (field.kind == kText) {
    if (value.size() > field.size) return std::nullopt;
    std::vector<std::uint8_t> bytes(value.begin(), value.end());
    bytes.resize(field.size, 0);
    return bytes;
  }
  if (field.kind == kDouble) {
    const auto number = ParseNumber(value);
    if (!number) return std::nullopt;
    return LittleEndian(std::bit_cast<std::uint64_t>(*number), 8);
  }
  const int low = field.kind == kShort ? -32768 : 0;
  const int high = field.kind == kShort ? 32767 : 255;
  const auto number = ParseInteger(value, low, high);
  if (!number) return std::nullopt;
  return LittleEndian(static_cast<std::uint64_t>(*number), field.size);
}

// "dWheelSpeed(3)" to the field and 3; a field without an index to -1, all its elements.
std::optional<std::pair<const RecordField*, int>> FindElement(std::string_view name) {
  int index = -1;
  const std::size_t open = name.find('(');
  if (open != std::string_view::npos) {
    if (name.back() != ')') return std::nullopt;
    const auto number = ParseInteger(name.substr(open + 1, name.size() - open - 2), 0, 99);
    if (!number) return std::nullopt;
    index = static_cast<int>(*number);
    name = name.substr(0, open);
  }
  const RecordField* field = FindField(name);
  if (field == nullptr || index >= field->count) return std::nullopt;
  return std::pair(field, index);
}

}  // namespace

std::span<const RecordField> RecordFields() { return kFields; }

const RecordField* FindField(std::string_view name) {
  for (const RecordField& field : kFields)
    if (field.name == name) return &field;
  return nullptr;
}

void StoreField(ECUData& record, const RecordField& field, int index,
                std::span<const std::uint8_t> bytes) {
  switch (field.kind) {
    case kDouble:
      ElementAt<EcuDouble>(record, field, index)
          .Store(std::bit_cast<double>(FromLittleEndian(bytes)));
      break;
    case kShort:
      ElementAt<EcuShort>(record, field, index)
          .Store(static_cast<std::int16_t>(FromLittleEndian(bytes)));
      break;
    default:
      for (std::size_t i = 0; i < bytes.size(); ++i)
        (&ElementAt<EcuByte>(record, field, index) + i)->Store(bytes[i]);
  }
}

std::vector<std::uint8_t> LoadField(const ECUData& record, const RecordField& field, int index) {
  switch (field.kind) {
    case kDouble:
      return LittleEndian(
          std::bit_cast<std::uint64_t>(ElementAt<EcuDouble>(record, field, index).Load()), 8);
    case kShort:
      return LittleEndian(
          static_cast<std::uint16_t>(ElementAt<EcuShort>(record, field, index).Load()), 2);
    default: {
      std::vector<std::uint8_t> bytes;
      for (std::size_t i = 0; i < field.size; ++i)
        bytes.push_back((&ElementAt<EcuByte>(record, field, index) + i)->Load());
      return bytes;
    }
  }
}

std::string FieldOverrides::Set(std::string_view name, const std::string& value) {
  const auto element = FindElement(name);
  if (!element) return "no field '" + std::string(name) + "'";
  const auto& [field, index] = *element;
  const auto bytes = value == "none" ? NothingKnown(*field) : Parse(*field, value);
  if (!bytes) return "'" + value + "' does not fit the field '" + std::string(name) + "'";
  for (int i = 0; i < field->count; ++i)
    if (index < 0 || i == index) bytes_[{field, i}] = *bytes;
  return {};
}

std::string FieldOverrides::Release(std::string_view name) {
  const auto element = FindElement(name);
  if (!element) return "no field '" + std::string(name) + "'";
  const auto& [field, index] = *element;
  for (int i = 0; i < field->count; ++i)
    if (index < 0 || i == index) bytes_.erase({field, i});
  return {};
}

std::optional<std::vector<std::uint8_t>> FieldOverrides::Get(const RecordField& field,
                                                             int index) const {
  const auto at = bytes_.find({&field, index});
  if (at == bytes_.end()) return std::nullopt;
  return at->second;
}

}  // namespace lorimet::simulator
