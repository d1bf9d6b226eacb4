// The fields of the library's record by name, and the values that a scenario puts in their place.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "session/ecu_data.h"

namespace lorimet::simulator {

enum class FieldKind { kDouble, kShort, kByte, kText };

// Who writes a field when: at each reading; at the end of the static read; then and whenever the
// vehicle's parameters are read; or with a transfer.
enum class FieldGroup { kLive, kIdentity, kSystem, kVehicle, kJob };

struct RecordField {
  std::string_view name;
  FieldKind kind;
  FieldGroup group;
  std::size_t offset;
  int count;         // elements of an array, 1 for a single field
  std::size_t size;  // bytes of one element
};

std::span<const RecordField> RecordFields();
const RecordField* FindField(std::string_view name);

// Stores the bytes of one element; bytes.size() is the field's size.
void StoreField(ECUData& record, const RecordField& field, int index,
                std::span<const std::uint8_t> bytes);
std::vector<std::uint8_t> LoadField(const ECUData& record, const RecordField& field, int index);

// Values that stand in the record whatever the ECU measures.
class FieldOverrides {
 public:
  // name: a field, or an element such as "dWheelSpeed(3)"; value: a number in the field's range, a
  // text in code page 1252, or "none" for the value that tells that nothing is known. The result is
  // empty, or says what is wrong.
  std::string Set(std::string_view name, const std::string& value);
  std::string Release(std::string_view name);
  void ReleaseAll() { bytes_.clear(); }

  // The bytes that stand in an element's place; nothing when it is free.
  std::optional<std::vector<std::uint8_t>> Get(const RecordField& field, int index) const;

 private:
  std::map<std::pair<const RecordField*, int>, std::vector<std::uint8_t>> bytes_;
};

}  // namespace lorimet::simulator
