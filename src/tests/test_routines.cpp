#include "tests/test_routines.h"

#include <algorithm>
#include <array>
#include <limits>

#include "platform/desktop.h"
#include "session/link_library.h"

namespace lorimet {
namespace {

constexpr std::uint8_t kFinish = 0x05;
constexpr std::uint8_t kSetPressure = 0x06;
constexpr std::uint8_t kWarningLamp = 0x07;
constexpr std::uint8_t kSelectBrakeMode = 0x37;
constexpr std::uint8_t kHeightCalibration = 0x3C;
constexpr std::uint8_t kStopValve = 0x41;
constexpr std::uint8_t kHeightSensor = 5;  // local id of the input

// The last two bytes of the pressure and the lamp routine: 1000.
constexpr std::uint8_t kThousandLow = 0xE8;
constexpr std::uint8_t kThousandHigh = 0x03;

template <std::size_t N>
std::int32_t StartRoutine(LinkLibrary& link, std::uint8_t id, std::array<std::uint8_t, N> data) {
  return link.Trailer_ABS_KWP_StartRoutineByLocId(id, static_cast<std::uint8_t>(N), data.data());
}

}  // namespace

void SelectBrakeMode(LinkLibrary& link, BrakeMode mode) {
  StartRoutine<3>(link, kSelectBrakeMode, {0, 0, static_cast<std::uint8_t>(mode)});
}

std::int32_t SetPressure(LinkLibrary& link, PressureChannel channel, PressureWord pressure) {
  return StartRoutine<7>(link, kSetPressure,
                         {static_cast<std::uint8_t>(channel), pressure.low, pressure.high,
                          pressure.low, pressure.high, kThousandLow, kThousandHigh});
}

void SetWarningLamp(LinkLibrary& link, std::uint8_t state) {
  StartRoutine<3>(link, kWarningLamp, {state, kThousandLow, kThousandHigh});
}

void ActivateStopValve(LinkLibrary& link, std::uint8_t step) {
  StartRoutine<2>(link, kStopValve, {6, step});
}

void FinishRoutine(LinkLibrary& link) {
  std::uint8_t none = 0;
  link.Trailer_ABS_KWP_StartRoutineByLocId(kFinish, 0, &none);
}

HeightReading ReadHeightSensor(LinkLibrary& link) {
  std::array<std::uint8_t, kReadBufferSize> data = {1, 0, 0xFF, 0xFF};
  link.Trailer_ABS_KWP_IOControlByLocId(kHeightSensor, 1, data.data());
  return {data[2], data[3]};
}

std::int16_t RunHeightCalibration(LinkLibrary& link, Desktop& desktop, int nPair) {
  const std::uint8_t pair = nPair == 2 ? 2 : 1;
  const std::int32_t result =
      TryLinkCall([&] { return StartRoutine<1>(link, kHeightCalibration, {pair}); });
  desktop.Repaint();
  FinishRoutine(link);
  // A failure must not become 0 on its way into 16 bits.
  using Status = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<std::int32_t>(result, Status::min(), Status::max()));
}

}  // namespace lorimet
