#include "tests/test_frame.h"

#include "platform/clock.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/numbers.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kSlice = 10;  // ms

}  // namespace

void BlockFor(Clock& clock, std::uint32_t milliseconds) {
  // The difference stays right when the tick count wraps.
  const std::uint32_t start = clock.TickCount();
  while (clock.TickCount() - start < milliseconds) clock.Sleep(kSlice);
}

std::string PressureText(double psi, const Dictionary& dictionary) {
  return psi == kNoValue ? dictionary.Translate("N/A") : FormatNumber(psi, "##0.0");
}

bool IsUnavailable(double psi) { return psi == kNoValue || psi > kHighestPressure; }

}  // namespace lorimet
