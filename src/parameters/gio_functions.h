// The ready-made functions of the generic inputs and outputs: fixed recipes of constants, whose
// meaning is the ECU's.
#pragma once

#include <array>

#include "parameters/parm_block.h"

namespace lorimet {

// The functions in the order of the GIO page, which is also the order in which they are applied.
enum GioFunction {
  kGioTixa = 0,
  kGioTagAxle = 1,
  kGioReverseLight = 2,
  kGioTankPressure = 3,
  kGioHeightStatus = 4,
  kGioHeightStatusTixa = 5,
  kGioLiftAxle = 6,
  kGioDoorAjar = 7,  // cannot be chosen, and writes nothing
  kGioSpecial = 8,
};
constexpr int kGioFunctionCount = 9;

using GioChoice = std::array<bool, kGioFunctionCount>;

// Clears the function mask and the connectors and applies the functions that are chosen on top of
// what the function blocks hold; a later function overwrites an earlier one's bytes. The
// special functions act when they are not chosen: their own dialog has written them otherwise.
void ApplyGioFunctions(const GioChoice& chosen, ParameterImage& image);

}  // namespace lorimet
