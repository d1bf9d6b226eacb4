#include "tests/eol_flag.h"

#include <array>

#include "faults/faults.h"
#include "platform/clock.h"
#include "session/link_library.h"
#include "tests/test_routines.h"

namespace lorimet {
namespace {

// ms: for the flag to be stored, for the faults to be gone, for the ECU to be back.
constexpr std::uint32_t kAfterWrite = 2000;
constexpr std::uint32_t kAfterClearing = 2000;
constexpr std::uint32_t kAfterReset = 6000;

}  // namespace

std::int32_t SetEOLFlag(const EolFlagParts& parts, std::int16_t bPass) {
  std::array<std::uint8_t, 2> flag = {bPass == 0 ? kEolNotPassed : kEolPassed, 0};
  const std::int32_t result = parts.link.Trailer_ABS_KWP_WriteMemoryByLocId(
      kEolFlagId, static_cast<std::uint8_t>(flag.size()), flag.data());
  FinishRoutine(parts.link);
  parts.clock.Sleep(kAfterWrite);
  parts.faults.ClearFaults();
  parts.clock.Sleep(kAfterClearing);
  parts.faults.GetFaultCount();
  TryLinkCall([&] { return parts.link.ResetECU(); });
  parts.clock.Sleep(kAfterReset);
  parts.faults.GetFaultCount();
  return result;
}

EolFlagReading ReadEOLFlag(LinkLibrary& link) {
  std::array<std::uint8_t, kReadBufferSize> data{};
  EolFlagReading reading;
  reading.result = TryLinkCall([&] {
    std::uint8_t count = 0;
    return link.Trailer_OVG_ReadDataByLocId(kEolFlagId, &count, data.data());
  });
  reading.value = data[1];
  return reading;
}

}  // namespace lorimet
