// The sixteen blocks of the parameter image: what each is called by the ECU, by the user and by the
// file, and its place in every order of reading and writing.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "parameters/parm_block.h"

namespace lorimet {

struct BlockRow {
  BlockName block;
  std::uint8_t local_id;
  // Places from 1; 0 where the block is left out.
  std::uint8_t ecu_read;
  std::uint8_t ecu_write;
  std::uint8_t file_read;
  std::uint8_t file_write;
  bool optional;        // its section is written only while it is present
  const char* section;  // of the file; null for none
  const char* status;   // shown while it is written to the ECU
  const char* error;    // shown when the ECU refuses it
};

// clang-format off
inline constexpr std::array<BlockRow, 16> kBlockTable = {{
    // Read and written: ECU, file.
    {&ParameterImage::EOL1, 0x03, 2,  3, 1, 1, false, "EOL1_System_Parameter",
     "Writing Vehicle Data to ECU", "Error Writing Vehicle Parameters"},
    {&ParameterImage::EOL2, 0x3D, 1,  2, 2, 2, false, "EOL2_GIO_Functions",
     "Writing OVG Data to ECU ",    "Error Writing OVG Parameters"},
    {&ParameterImage::EOL3, 0x27, 5,  5, 4, 3, true,  "EOL3_GIO_Parameter",
     "Writing EOL3 Data to ECU",    "Error Writing EOL3 Parameters"},
    {&ParameterImage::EOL4, 0x17, 0,  6, 5, 4, true,  "EOL4_SLEV_Parameter",
     "Writing EOL4 Data to ECU",    "Error Writing EOL4 Parameters"},
    {&ParameterImage::EOL5, 0x28, 4,  1, 3, 5, false, "EOL5_GIO_Connectors",
     "Writing EOL5 Data to ECU",    "Error Writing EOL5 Parameters"},
    {&ParameterImage::EOL6, 0x05, 0,  7, 6, 6, true,  "EOL6_ServiceIntervall",
     "Writing EOL6 Data to ECU",    "Error Writing EOL6 Parameters"},
    {&ParameterImage::EOL7, 0x06, 3,  4, 8, 8, false, "EOL7_Vehicle_Data",
     "Writing Trailer Data to ECU", "Error Writing Trailer Parameters"},
    {&ParameterImage::EOL9, 0x42, 6,  8, 7, 7, true,  "EOL9_GIO_FID",
     "Writing EOL9 Data to ECU",    "Error Writing EOL9 Parameters"},
    {&ParameterImage::FCF1, 0x37, 0,  9, 0, 0, false, nullptr,
     "Writing FCF 1 Data to ECU",   "Error Writing FCF1 GIO Parameters"},
    {&ParameterImage::FCF2, 0x38, 0, 10, 0, 0, false, nullptr,
     "Writing FCF 2 Data to ECU",   "Error Writing FCF2 GIO Parameters"},
    {&ParameterImage::FCF3, 0x39, 0, 11, 0, 0, false, nullptr,
     "Writing FCF 3 Data to ECU",   "Error Writing FCF3 GIO Parameters"},
    {&ParameterImage::FCF4, 0x3A, 0, 12, 0, 0, false, nullptr,
     "Writing FCF 4 Data to ECU",   "Error Writing FCF4 GIO Parameters"},
    {&ParameterImage::FCF5, 0x3B, 0, 13, 0, 0, false, nullptr,
     "Writing FCF 5 Data to ECU",   "Error Writing FCF5 GIO Parameters"},
    {&ParameterImage::FCF6, 0x3C, 0, 14, 0, 0, false, nullptr,
     "Writing FCF 6 Data to ECU",   "Error Writing FCF6 GIO Parameters"},
    {&ParameterImage::FCF7, 0x44, 0, 15, 0, 0, false, nullptr,
     "Writing FCF 7 Data to ECU",   "Error Writing FCF7 GIO Parameters"},
    {&ParameterImage::FCF8, 0x45, 0, 16, 0, 0, false, nullptr,
     "Writing FCF 8 Data to ECU",   "Error Writing FCF8 GIO Parameters"},
}};
// clang-format on

// The rows that have a place in an order, in that order: kBlocksInOrder<&BlockRow::ecu_write>. A
// place that is missing or given twice does not compile.
template <std::uint8_t BlockRow::*kPlace>
inline constexpr auto kBlocksInOrder = [] {
  constexpr auto kCount = static_cast<std::size_t>(
      std::ranges::count_if(kBlockTable, [](const BlockRow& row) { return row.*kPlace != 0; }));
  std::array<const BlockRow*, kCount> rows{};
  for (const BlockRow& row : kBlockTable)
    if (row.*kPlace != 0) rows.at(row.*kPlace - std::size_t{1}) = &row;
  return rows;
}();

template <std::uint8_t BlockRow::*kPlace>
inline constexpr bool kOrderIsWhole = [] {
  for (std::size_t place = 1; place <= kBlocksInOrder<kPlace>.size(); ++place)
    if (std::ranges::count(kBlockTable, place, kPlace) != 1) return false;
  return true;
}();
static_assert(kOrderIsWhole<&BlockRow::ecu_read> && kOrderIsWhole<&BlockRow::ecu_write> &&
              kOrderIsWhole<&BlockRow::file_read> && kOrderIsWhole<&BlockRow::file_write>);

// EOL7's count once it has been read, whatever came.
constexpr std::uint8_t kTrailerBytes = 123;

// FCF1 to FCF8, the function configuration blocks, which are never read.
inline constexpr std::array<BlockName, 8> kFunctionBlocks = {
    &ParameterImage::FCF1, &ParameterImage::FCF2, &ParameterImage::FCF3, &ParameterImage::FCF4,
    &ParameterImage::FCF5, &ParameterImage::FCF6, &ParameterImage::FCF7, &ParameterImage::FCF8,
};

}  // namespace lorimet
