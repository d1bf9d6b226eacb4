// The parameter image: the in-memory copy of the ECU's end-of-line parameters.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/runtime_error.h"

namespace lorimet {

// One block. Index 0 is no parameter data: it holds the echo of the local identifier after a read.
class ParmBlock {
 public:
  static constexpr int kSize = 201;

  // The length counted with index 0; 0 means that the block is absent.
  std::uint8_t bNumBytes = 0;
  std::array<std::uint8_t, kSize> DataArr{};

  // Byte `index`, 0 to 200; error 9 beyond.
  std::uint8_t& operator()(int index) { return DataArr[Checked(index)]; }
  std::uint8_t operator()(int index) const { return DataArr[Checked(index)]; }

  bool operator==(const ParmBlock&) const = default;

 private:
  static std::size_t Checked(int index) {
    if (index < 0 || index >= kSize) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    return static_cast<std::size_t>(index);
  }
};

// The sixteen blocks and what is shared with them; alive for the whole run.
struct ParameterImage {
  ParmBlock EOL1, EOL2, EOL3, EOL4, EOL5, EOL6, EOL7, EOL9;
  ParmBlock FCF1, FCF2, FCF3, FCF4, FCF5, FCF6, FCF7, FCF8;

  bool bStopLightCable = false;        // a stop light activation cable is configured
  std::int16_t nNumAxlesSelected = 0;  // as chosen on the system page
  std::string strTrailerVIN;           // the vehicle id last accepted in the wizard, UTF-8
};

// A block by its place in the image: image.*kEOL1.
using BlockName = ParmBlock ParameterImage::*;

}  // namespace lorimet
