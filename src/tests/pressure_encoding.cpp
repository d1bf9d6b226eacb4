#include "tests/pressure_encoding.h"

#include "support/numbers.h"

namespace lorimet {
namespace {

constexpr double kCountsPerBar = 5120;

}  // namespace

PressureWord EncodePressure(double psi, double psi_per_bar) {
  const double counts = psi / psi_per_bar * kCountsPerBar;
  PressureWord word;
  const std::int32_t high = ToLong(counts) / 256;
  word.high = ToByte(high);
  word.low = ToByte(counts - 256.0 * word.high);
  return word;
}

}  // namespace lorimet
