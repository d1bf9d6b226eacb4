// What the vehicle's tests share: the things that a test screen uses, the wait that blocks a tick,
// and how a live pressure is shown and judged.
//
// A test screen is driven by its timer and a small state. Each tick shows the live values and then
// acts once on the state; a state whose condition is not met is tried again on the next tick, for
// as long as the operator lets it.
#pragma once

#include <cstdint>
#include <string>

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class LinkLibrary;
struct ECUData;
struct TestResults;

struct TestParts {
  Desktop& desktop;
  Clock& clock;
  Dictionary& dictionary;
  LinkLibrary& link;
  ECUData& ecu;
  TestResults& results;
};

// Above it a pressure reading is no reading, psi.
constexpr double kHighestPressure = 181.9;

// Sleeps by 10 ms until so many milliseconds have passed; neither events nor repainting meanwhile.
void BlockFor(Clock& clock, std::uint32_t milliseconds);

// "##0.0", or the dictionary's "N/A" where there is no value yet.
std::string PressureText(double psi, const Dictionary& dictionary);
// There is no value yet, or it is above the highest pressure.
bool IsUnavailable(double psi);

}  // namespace lorimet
