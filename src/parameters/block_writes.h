// Writes of single bytes and bits into the blocks of the parameter image, as rows of a table.
#pragma once

#include <cstdint>
#include <span>

#include "parameters/parm_block.h"

namespace lorimet {

// Replaces the bits of `mask` by those of `bits` and keeps the others.
inline void SetBits(ParmBlock& block, int index, unsigned mask, unsigned bits) {
  block(index) = static_cast<std::uint8_t>((block(index) & ~mask) | bits);
}

// One write: the bits of `mask` in a byte become those of `bits`.
struct BlockWrite {
  ParmBlock ParameterImage::*block;
  int index;
  std::uint8_t mask;
  std::uint8_t bits;
};

constexpr BlockName kEOL1 = &ParameterImage::EOL1;
constexpr BlockName kEOL2 = &ParameterImage::EOL2;
constexpr BlockName kEOL3 = &ParameterImage::EOL3;
constexpr BlockName kEOL5 = &ParameterImage::EOL5;

constexpr BlockWrite PutByte(BlockName block, int index, std::uint8_t value) {
  return {block, index, 0xFF, value};
}
constexpr BlockWrite PutBits(BlockName block, int index, std::uint8_t bits) {
  return {block, index, bits, bits};
}
constexpr BlockWrite ClearBits(BlockName block, int index, std::uint8_t bits) {
  return {block, index, bits, 0};
}

inline void ApplyWrites(const BlockWrite& write, ParameterImage& image) {
  SetBits(image.*write.block, write.index, write.mask, write.bits);
}
inline void ApplyWrites(std::span<const BlockWrite> writes, ParameterImage& image) {
  for (const BlockWrite& write : writes) ApplyWrites(write, image);
}

}  // namespace lorimet
