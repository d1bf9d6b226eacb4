// The ECU's memory as its transfers carry it: the image of the EEPROM, and the nine memories of the
// operating data recorder. docs/simulator.md tells every place.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {

using Bytes = std::vector<std::uint8_t>;

// `size` bytes: less cuts the image, more is filled up with 0xFF.
Bytes EepromImage(const Trailer& trailer, std::size_t size);

struct RecorderSection {
  std::string_view name;
  double seconds;  // that its transfer takes
  Bytes (*bytes)(const Trailer& trailer);
};

// In the order of the steps 1 to 9.
const std::array<RecorderSection, 9>& RecorderSections();

}  // namespace lorimet::simulator
