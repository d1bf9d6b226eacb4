// The eight function configuration blocks, which are never read but start from one template.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "parameters/parm_block.h"

namespace lorimet {

// What a function block counts with index 0.
constexpr std::uint8_t kFunctionBlockBytes = 111;
constexpr int kFunctionNameIndex = 51;
constexpr int kFunctionNameLength = 20;

// The template: a block with no function.
void FillInDefaultFCF(std::uint8_t nId, std::array<std::uint8_t, ParmBlock::kSize>& DataArr);
// All eight blocks as the template, present.
void ResetFunctionBlocks(ParameterImage& image);
// All eight absent: those of another trailer must not reach this one.
void DropFunctionBlocks(ParameterImage& image);

}  // namespace lorimet
