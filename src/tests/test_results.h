// The outcomes of the vehicle's end-of-line tests.
#pragma once

#include <array>
#include <cstdint>

namespace lorimet {

// Result codes of a test.
constexpr std::int16_t kNotTested = -1;
constexpr std::int16_t kTestFailed = 0;  // or started and not finished
constexpr std::int16_t kTestPassed = 1;
constexpr std::int16_t kTestNotApplicable = 2;

// Survives from test to test for the whole run.
struct TestResults {
  std::array<double, 6> dMaxSpeed{};           // mph, by sensor index: "c" 3, "d" 2, "e" 5, "f" 4
  std::array<std::uint8_t, 6> bSensorOrder{};  // spin step noted during the sensor test
  std::int16_t nLampTest = kNotTested;
  std::int16_t nPressureTest = kNotTested;
  std::int16_t nRedundancyTest = kNotTested;
  std::int16_t nH1Pressure = 0;  // psi, when the redundancy test passed the modulator
  std::int16_t nH2Pressure = 0;
  std::int16_t nSensorTest = kNotTested;
  std::int16_t nHeightCalCD = kNotTested;
  std::int16_t nHeightCalEF = kNotTested;
};

// As at the start of the main screen: the elements 0 to 4 of the sensor arrays to 0 and five result
// codes to "not tested". The others are no part of the clearing.
void ClearTestResults(TestResults& results);

}  // namespace lorimet
