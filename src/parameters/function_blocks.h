// The eight function configuration blocks, which are never read but start from one template.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "parameters/parm_block.h"

namespace lorimet {

constexpr int kFunctionBlockCount = 8;
// What a function block counts with index 0.
constexpr std::uint8_t kFunctionBlockBytes = 111;
// The local identifiers of FCF1 to FCF8.
constexpr std::array<std::uint8_t, kFunctionBlockCount> kFunctionBlockIds = {
    0x37, 0x38, 0x39, 0x3A, 0x3B, 0x3C, 0x44, 0x45,
};
constexpr int kFunctionNameIndex = 51;
constexpr int kFunctionNameLength = 20;

// The template: a block with no function.
void FillInDefaultFCF(std::uint8_t nId, std::array<std::uint8_t, ParmBlock::kSize>& DataArr);
// All eight blocks as the template, present.
void ResetFunctionBlocks(ParameterImage& image);

}  // namespace lorimet
