// The one line for a person who works for the first time: what the program waits for at the
// trailer, and what to do next.
#pragma once

#include <string>
#include <vector>

#include "simulator/bench/model/bench.h"

namespace lorimet::bench {

// An English sentence, the key of its translation; %1 and %2 stand for the arguments.
struct Sentence {
  std::string key;
  std::vector<std::string> arguments;

  bool operator==(const Sentence&) const = default;
};

// What the person is to do at the bench itself.
enum class Deed {
  kNothing,
  kSwitchAdapter,
  kPlugCable,
  kSwitchPower,
  kFill,
  kPressPedal,
  kReleasePedal,
  kUnload,
  kReleaseParkingBrake,
  kSpin,
  kLevel,
};

struct Advice {
  Sentence waits;
  Sentence next;
  Deed deed = Deed::kNothing;
  int wheel = 0;  // that is to be spun

  bool operator==(const Advice&) const = default;
};

// By what the ECU was told and what stands in the yard, never by the program's screens.
Advice AdviceFor(const Bench& bench);

// The wheel whose turn it is in the sensor test, 1 to 6; 0 for none.
int NextWheel(const Bench& bench);

}  // namespace lorimet::bench
