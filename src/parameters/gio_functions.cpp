#include "parameters/gio_functions.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "parameters/block_table.h"
#include "parameters/function_blocks.h"
#include "parameters/parameter_map.h"

namespace lorimet {
namespace {

constexpr std::uint8_t kNoConnector = 255;

struct GioWrite {
  int item;
  FieldWrite write;
};

// The bytes outside the function blocks. The rows of the special functions hold for the box that is
// not checked.
// clang-format off
constexpr GioWrite kGioWrites[] = {
    {0, PutByte(parameter::kGioMask2,               6)},
    {0, PutByte(parameter::kOutputOptions,        128)},
    {0, PutByte(parameter::kSharedPin,             65)},
    {0, PutByte(parameter::Connector(39),         209)},
    {0, PutByte(parameter::Connector(40),         211)},
    {0, PutByte(parameter::Connector(41),         212)},
    {0, PutByte(parameter::Connector(103),        161)},

    {1, SetBits(parameter::kGioMask1,            0xF8)},
    {1, PutByte(parameter::GioValue(35),            7)},
    {1, PutByte(parameter::GioValue(38),            0)},
    {1, PutByte(parameter::kSharedPin,              0)},
    {1, PutByte(parameter::Connector(89),         179)},
    {1, PutByte(parameter::Connector(99),         177)},

    {2, SetBits(parameter::kGioMask2,            0x02)},
    {2, PutByte(parameter::kSharedPin,              0)},
    {2, PutByte(parameter::Connector(105),         65)},

    {3, PutByte(parameter::kSharedPin,              0)},

    {4, PutByte(parameter::Connector(39),           0)},
    {4, PutByte(parameter::Connector(40),           0)},
    {4, PutByte(parameter::Connector(41),           0)},
    {4, PutByte(parameter::kGioMask1,             224)},
    {4, PutByte(parameter::kGioMask2,               3)},
    {4, PutByte(parameter::Connector(91),         145)},
    {4, PutByte(parameter::Connector(94),         177)},

    {5, PutByte(parameter::kGioMask1,             248)},
    {5, PutByte(parameter::kGioMask2,               3)},
    {5, SetBits(parameter::kHydraulicSensor)},
    {5, PutByte(parameter::Connector(91),         145)},
    {5, PutByte(parameter::Connector(94),         177)},
    {5, PutByte(parameter::Connector(85),         161)},

    {6, PutByte(parameter::kOutputOptions,        128)},
    {6, PutByte(parameter::kGioMask1,             248)},
    {6, PutByte(parameter::kGioMask2,               1)},
    {6, PutByte(parameter::Connector(93),         145)},
    {6, PutByte(parameter::Connector(96),         161)},
    {6, PutByte(parameter::Connector(98),         147)},
    {6, PutByte(parameter::GioValue(35),            3)},
    {6, PutByte(parameter::GioValue(36),            3)},

    {8, ClearBits(parameter::kSpecialFunctions)},
    {8, PutByte(parameter::kGuardOptions,         176)},
    {8, PutByte(parameter::kHydraulicPin1,          0)},
    {8, PutByte(parameter::kHydraulicPin2,          0)},
    {8, PutByte(parameter::kConstantPowerPin,       0)},
    {8, ClearBits(parameter::kSpeedSwitchBit)},
    {8, PutByte(parameter::kTurnOnSpeed,           15)},
    {8, PutByte(parameter::kTurnOffSpeed,          10)},
    {8, PutByte(parameter::kSpeedSwitchMode,        2)},
    {8, PutByte(parameter::kSpeedSwitchPin,         0)},
};
// clang-format on

struct FcfByte {
  std::uint8_t index;  // 0 ends the list: the local identifier is no recipe's
  std::uint8_t value;
};

struct FcfRecipe {
  int item;
  int block;  // 1 to 8
  std::string_view name;
  FcfByte bytes[15];
};

// The bytes of the function blocks, by index and value. FCF1 of the lift axle lacks 16 to 19, which
// the lift axle dialog writes.
// clang-format off
constexpr FcfRecipe kFcfRecipes[] = {
    {0, 7, "Tire Inflation sys  ", {{1, 1}, {47, 41}, {50, 37}}},
    {0, 8, "Wheel end over temp ", {{1, 4}, {3, 118}, {14, 3}, {40, 0}, {41, 120}, {47, 40},
                                    {50, 33}}},

    {1, 1, "Tag Axle Control 1  ", {{1, 4}, {2, 4}, {3, 0}, {4, 48}, {12, 10}, {13, 192}, {16, 5},
                                    {17, 220}, {18, 5}, {19, 170}, {42, 0}, {43, 1}, {44, 5},
                                    {50, 16}}},
    {1, 2, "Tag Axle Control 2  ", {{1, 3}, {2, 4}, {4, 49}, {12, 19}, {13, 136}, {44, 5},
                                    {50, 16}}},
    {1, 3, "Tag Axle Control 3  ", {{1, 4}, {2, 4}, {3, 40}, {4, 41}, {44, 8}}},
    {1, 4, "Tag Axle Control 4  ", {{1, 4}, {2, 4}, {3, 42}, {4, 0}, {14, 2}, {15, 2}, {16, 0},
                                    {17, 2}, {20, 3}, {21, 149}, {22, 2}, {23, 222}, {44, 4},
                                    {50, 16}}},
    {1, 5, "Tag Axle Control 5  ", {{1, 4}, {2, 4}, {3, 41}, {4, 43}, {44, 3}, {47, 49}, {50, 32}}},

    {2, 7, "Reverse Light       ", {{1, 5}, {2, 4}, {3, 255}, {4, 50}, {11, 14}, {44, 6},
                                    {50, 48}}},

    {3, 6, "Tank Pressure       ", {{1, 4}, {3, 5}, {4, 255}, {14, 2}, {16, 103}, {17, 115},
                                    {18, 89}, {19, 167}, {47, 39}, {50, 48}}},

    {4, 3, "SwitchInput1        ", {{1, 1}, {47, 75}, {50, 32}}},
    {4, 4, "SwitchInput2        ", {{1, 1}, {47, 75}, {49, 8}, {50, 32}}},
    {4, 5, "SwitchConjunction   ", {{1, 4}, {2, 4}, {3, 114}, {4, 115}, {44, 4}}},
    {4, 6, "if > 10 mph         ", {{1, 4}, {2, 4}, {3, 51}, {4, 0}, {12, 3}, {13, 144}, {44, 5}}},
    {4, 7, "generate event      ", {{1, 4}, {2, 4}, {3, 117}, {4, 116}, {44, 3}, {50, 1}}},

    {5, 3, "SwitchInput1        ", {{1, 1}, {47, 75}, {50, 32}}},
    {5, 4, "SwitchInput2        ", {{1, 1}, {47, 75}, {49, 8}, {50, 32}}},
    {5, 5, "SwitchConjunction   ", {{1, 4}, {2, 4}, {3, 114}, {4, 115}, {44, 4}}},
    {5, 6, "if > 10 mph         ", {{1, 4}, {2, 4}, {3, 51}, {4, 0}, {12, 3}, {13, 144}, {44, 5}}},
    {5, 7, "generate event      ", {{1, 4}, {2, 4}, {3, 117}, {4, 116}, {44, 3}, {50, 1}}},
    {5, 1, "Tire Inflation sys  ", {{1, 1}, {47, 41}, {50, 37}}},
    {5, 2, "Wheel end over temp ", {{1, 4}, {3, 112}, {14, 3}, {40, 0}, {41, 20}, {47, 40},
                                    {50, 33}}},

    {6, 1, "Pres and Speed Check", {{1, 4}, {2, 4}, {3, 1}, {4, 0}, {14, 2}, {15, 2}, {20, 0},
                                    {21, 114}, {22, 0}, {23, 102}, {44, 3}}},
    {6, 2, "Auto Lowering       ", {{1, 4}, {2, 4}, {3, 88}, {4, 96}, {44, 4}, {50, 4}}},
    {6, 3, "Lift Axle           ", {{1, 4}, {2, 4}, {3, 92}, {4, 117}, {15, 2}, {20, 0}, {21, 2},
                                    {44, 3}, {47, 42}, {48, 7}, {50, 36}}},
    {6, 4, "Light Out           ", {{1, 4}, {2, 0}, {3, 114}}},
    {6, 5, "Inverting           ", {{1, 3}, {2, 4}, {4, 88}, {9, 7}, {10, 208}, {14, 2}, {16, 11},
                                    {17, 184}, {18, 7}, {19, 208}, {44, 4}, {49, 64}, {50, 8}}},
    {6, 6, "Lift/Lower Check    ", {{1, 4}, {2, 4}, {3, 100}, {4, 113}, {44, 8}}},
};
// clang-format on

static_assert(std::ranges::all_of(kFcfRecipes, [](const FcfRecipe& recipe) {
  return recipe.name.size() == kFunctionNameLength && recipe.bytes[14].index == 0;
}));

void ApplyRecipe(const FcfRecipe& recipe, ParameterImage& image) {
  ParmBlock& block = image.*kFunctionBlocks[static_cast<std::size_t>(recipe.block - 1)];
  for (const FcfByte& byte : recipe.bytes) {
    if (byte.index == 0) break;
    block(byte.index) = byte.value;
  }
  for (int i = 0; i < kFunctionNameLength; ++i)
    block(kFunctionNameIndex + i) =
        static_cast<std::uint8_t>(recipe.name[static_cast<std::size_t>(i)]);
}

void ApplyFunction(int item, ParameterImage& image) {
  for (const GioWrite& row : kGioWrites)
    if (row.item == item) ApplyWrites(row.write, image);
  for (const FcfRecipe& recipe : kFcfRecipes)
    if (recipe.item == item) ApplyRecipe(recipe, image);
  // The tag axle's blocks are made present again.
  if (item == kGioTagAxle)
    for (std::size_t i = 0; i < 5; ++i) (image.*kFunctionBlocks[i]).bNumBytes = kFunctionBlockBytes;
}

}  // namespace

void ApplyGioFunctions(const GioChoice& chosen, ParameterImage& image) {
  // The lift axle's dialog has stored what the user confirmed; the tag axle's recipe, which comes
  // first, has values of its own in the same place.
  const BytePair lowering = parameter::kLoweringPressure.In(image);
  const BytePair lifting = parameter::kLiftingPressure.In(image);
  for (int i = parameter::kFirstGioConnector; i <= parameter::kLastGioConnector; ++i)
    parameter::Connector(i).Put(image, kNoConnector);
  parameter::kGioMask1.Put(image, 0);
  parameter::kGioMask2.Put(image, 0);
  for (int item = 0; item < kGioFunctionCount; ++item)
    if (chosen[static_cast<std::size_t>(item)] != (item == kGioSpecial)) ApplyFunction(item, image);
  if (!chosen[kGioLiftAxle]) return;
  parameter::kLoweringPressure.Put(image, lowering);
  parameter::kLiftingPressure.Put(image, lifting);
}

}  // namespace lorimet
