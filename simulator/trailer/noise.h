// Noise that depends on the seed, on what is measured and on the number of the measurement alone,
// so that nothing else that happens can shift it.
#pragma once

#include <cstdint>

namespace lorimet::simulator {

enum class NoiseField : std::uint64_t {
  kVolts = 1,
  kSupply,
  kControl,
  kBrake1,
  kBrake2,
  kMainBellows,
  kSteerBellows,
  kHeight,
  kDropOut,  // four fields, one a sensor
  kGarbage = 16,
  kBus,
};

class Noise {
 public:
  void SetSeed(std::uint64_t seed) { seed_ = seed; }
  void Switch(bool on) { on_ = on; }
  bool On() const { return on_; }

  // All bits, whether the noise is on or off.
  std::uint64_t Bits(NoiseField field, std::uint64_t number, int offset = 0) const {
    const auto which = static_cast<std::uint64_t>(field) + static_cast<std::uint64_t>(offset);
    return Mix(Mix(Mix(seed_) ^ which) ^ number);
  }
  // From -1 to 1; 0 while the noise is off.
  double Swing(NoiseField field, std::uint64_t number) const {
    if (!on_) return 0;
    return static_cast<double>(Bits(field, number) >> 11) * 0x1p-52 - 1;
  }

 private:
  // The finalizer of the splitmix64 generator.
  static std::uint64_t Mix(std::uint64_t z) {
    z += 0x9E3779B97F4A7C15u;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9u;
    z = (z ^ z >> 27) * 0x94D049BB133111EBu;
    return z ^ z >> 31;
  }

  std::uint64_t seed_ = 1;
  bool on_ = true;
};

}  // namespace lorimet::simulator
