#include "parameters/function_blocks.h"

#include <algorithm>

#include "parameters/block_table.h"

namespace lorimet {

void FillInDefaultFCF(std::uint8_t nId, std::array<std::uint8_t, ParmBlock::kSize>& DataArr) {
  DataArr.fill(0);
  DataArr[0] = nId;
  for (std::size_t i = 3; i <= 8; ++i) DataArr[i] = 255;
  DataArr[10] = 100;
  DataArr[11] = 255;
  DataArr[47] = 255;
  DataArr[48] = 7;
  std::fill_n(DataArr.begin() + kFunctionNameIndex, kFunctionNameLength, std::uint8_t{' '});
}

void ResetFunctionBlocks(ParameterImage& image) {
  for (const BlockRow& row : kBlockTable) {
    if (std::ranges::find(kFunctionBlocks, row.block) == kFunctionBlocks.end()) continue;
    FillInDefaultFCF(row.local_id, (image.*row.block).DataArr);
    (image.*row.block).bNumBytes = kFunctionBlockBytes;
  }
}

void DropFunctionBlocks(ParameterImage& image) {
  for (const BlockName block : kFunctionBlocks) (image.*block).bNumBytes = 0;
}

}  // namespace lorimet
