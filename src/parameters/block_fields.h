// Fields of the parameter image: the bits, the pairs and the texts that a block is made of, and
// writes of them as rows of a table.
#pragma once

#include <bit>
#include <cstdint>
#include <span>

#include "parameters/parm_block.h"

namespace lorimet {

// Some bits of a byte, side by side; their value counts from the lowest of them.
struct ByteField {
  BlockName block;
  int index;
  std::uint8_t mask = 0xFF;

  std::uint8_t In(const ParameterImage& image) const {
    return static_cast<std::uint8_t>(((image.*block)(index)&mask) >> std::countr_zero(mask));
  }
  // Keeps the other bits of the byte; of a value too large its low bits count.
  void Put(ParameterImage& image, int value) const {
    std::uint8_t& byte = (image.*block)(index);
    byte = static_cast<std::uint8_t>((byte & ~mask) | ((value << std::countr_zero(mask)) & mask));
  }
};

struct BytePair {
  std::uint8_t high = 0;
  std::uint8_t low = 0;
};

// Two bytes, the high one first.
struct PairField {
  BlockName block;
  int index;

  BytePair In(const ParameterImage& image) const {
    return {(image.*block)(index), (image.*block)(index + 1)};
  }
  void Put(ParameterImage& image, const BytePair& pair) const {
    (image.*block)(index) = pair.high;
    (image.*block)(index + 1) = pair.low;
  }
};

// Single-byte characters (code page 1252).
struct TextField {
  BlockName block;
  int index;
  int size;
};

// One write: the bits of `mask` in a byte become those of `bits`.
struct FieldWrite {
  BlockName block;
  int index;
  std::uint8_t mask;
  std::uint8_t bits;
};

constexpr FieldWrite PutByte(const ByteField& field, std::uint8_t value) {
  return {field.block, field.index, 0xFF, value};
}
constexpr FieldWrite SetBits(const ByteField& field, std::uint8_t bits) {
  return {field.block, field.index, bits, bits};
}
constexpr FieldWrite SetBits(const ByteField& field) { return SetBits(field, field.mask); }
constexpr FieldWrite ClearBits(const ByteField& field) {
  return {field.block, field.index, field.mask, 0};
}

inline void ApplyWrites(const FieldWrite& write, ParameterImage& image) {
  std::uint8_t& byte = (image.*write.block)(write.index);
  byte = static_cast<std::uint8_t>((byte & ~write.mask) | write.bits);
}
inline void ApplyWrites(std::span<const FieldWrite> writes, ParameterImage& image) {
  for (const FieldWrite& write : writes) ApplyWrites(write, image);
}

}  // namespace lorimet
