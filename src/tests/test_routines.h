// The ECU's routines by which the tests work the brakes, the lamp and the height sensor.
//
// Each is one request; where a result is not given, the tests do not look at it.
#pragma once

#include <cstdint>

#include "tests/pressure_encoding.h"

namespace lorimet {

class Desktop;
class LinkLibrary;

enum class BrakeMode : std::uint8_t { kRedundancy = 1, kTest = 2 };

// Gives brake control to the test routines, or hands it back to the pneumatic redundancy path.
void SelectBrakeMode(LinkLibrary& link, BrakeMode mode);

enum class PressureChannel : std::uint8_t {
  kControl = 0,
  kModulator1 = 1,
  kModulator2 = 2,
  kBellows = 4,  // simulated
  kHeight = 6,   // simulated
};

// 0 when the ECU has taken the pressure.
std::int32_t SetPressure(LinkLibrary& link, PressureChannel channel, PressureWord pressure);

void SetWarningLamp(LinkLibrary& link, std::uint8_t state);
void ActivateStopValve(LinkLibrary& link, std::uint8_t step);
// Closes the operation before it.
void FinishRoutine(LinkLibrary& link);

// The raw counts of height sensor c-d as the ECU answers them, 0xFF twice without a reading.
struct HeightReading {
  std::uint8_t high = 0xFF;
  std::uint8_t low = 0xFF;
};
HeightReading ReadHeightSensor(LinkLibrary& link);

// Has the ECU take the present position as the zero of sensor pair 1 (c-d) or 2 (e-f), any other
// number counting as 1; up to four tries, and the routine's end. 0 on success.
std::int16_t RunHeightCalibration(LinkLibrary& link, Desktop& desktop, int nPair);

}  // namespace lorimet
