// The routines of the ECU that Trailer_ABS_KWP_StartRoutineByLocId starts, by name.
#pragma once

#include <cstdint>

namespace lorimet {

constexpr std::uint8_t kFinishRoutine =
    0x05;  // closes the operation before it, sums up written parameters; no data
constexpr std::uint8_t kSetPressure = 0x06;         // channel, pressure twice, 1000: low byte first
constexpr std::uint8_t kWarningLampRoutine = 0x07;  // state, 1000
constexpr std::uint8_t kSelectBrakeMode = 0x37;     // 0, 0, mode
constexpr std::uint8_t kCalibrateHeight = 0x3C;     // sensor pair
constexpr std::uint8_t kStopValve = 0x41;           // 6, step
constexpr std::uint8_t kParameterAccess = 0x42;     // 0, 0, flag, 0

}  // namespace lorimet
