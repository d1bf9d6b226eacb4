#include "parameters/function_blocks.h"

#include <algorithm>

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
  for (std::size_t i = 0; i < image.FCF.size(); ++i) {
    FillInDefaultFCF(kFunctionBlockIds[i], image.FCF[i].DataArr);
    image.FCF[i].bNumBytes = kFunctionBlockBytes;
  }
}

}  // namespace lorimet
