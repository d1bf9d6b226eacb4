#include "tests/test_results.h"

namespace lorimet {

void ClearTestResults(TestResults& results) {
  for (std::size_t i = 0; i <= 4; ++i) {
    results.dMaxSpeed[i] = 0;
    results.bSensorOrder[i] = 0;
  }
  results.nLampTest = kNotTested;
  results.nPressureTest = kNotTested;
  results.nRedundancyTest = kNotTested;
  results.nSensorTest = kNotTested;
  results.nHeightCalCD = kNotTested;
}

}  // namespace lorimet
