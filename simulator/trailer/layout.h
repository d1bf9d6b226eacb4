// Which wheel stands where, which sensor it carries and which brake line reaches it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "simulator/trailer/configuration.h"

namespace lorimet::simulator {

// Wheels have positions: n is a wheel of axle n on the side of positions 1 to 3, n + 3 the wheel of
// the same axle on the other side. One axle takes 2 and 5, two axles 2, 3, 5 and 6.
constexpr int kPositions = 6;

// The sensor letters, in the order of the record's wheel speeds.
constexpr std::array<char, 6> kSensorLetters = {'a', 'b', 'd', 'c', 'f', 'e'};

// Index of a sensor letter in the record ("c" 3, "d" 2, "e" 5, "f" 4); nothing for others.
std::optional<int> SensorIndex(char letter);

class Layout {
 public:
  explicit Layout(const TrailerSetup& setup);

  bool HasWheel(int position) const { return Valid(position) && At(position).present; }
  // Index of the sensor at a position; nothing where there is none.
  std::optional<int> SensorAt(int position) const;
  // The position of a sensor; nothing for one that the trailer does not have.
  std::optional<int> PositionOf(int sensor_index) const;
  // The modulator, 1 to 3, to which the pipes of a wheel lead. crossed: the lines of the first two
  // have been exchanged.
  int ModulatorOf(int position, bool crossed) const;
  int Modulators() const { return modulators_; }

 private:
  struct Wheel {
    bool present = false;
    int sensor = 0;  // index in the record, 0 for none
    int modulator = 1;
  };

  static bool Valid(int position) { return position >= 1 && position <= kPositions; }
  const Wheel& At(int position) const { return wheels_[static_cast<std::size_t>(position - 1)]; }

  std::array<Wheel, kPositions> wheels_ = {};
  int modulators_ = 2;  // that brake wheels
};

}  // namespace lorimet::simulator
