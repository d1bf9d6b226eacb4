// Defects of the third modulator, which has no channel and no reading of its own, and axles whose
// sensors the parameters do not name.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/signoff/screen_notes.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

struct Row {
  const char* scenario;
  int sensor_test;
  std::vector<int> tires;  // that were yellow, in order
  std::vector<int> red;    // at which a field turned red
};

TEST(ThirdModulator, IsSeenAtItsWheelsAlone) {
  const Row rows[] = {
      {"defect modulator H3 residual=9", 0, {1}, {}},
      {"defect modulator H3 residual=7", 1, {1, 2, 5, 4}, {}},
      {"defect modulator H3 dead", 1, {1, 2, 5, 4}, {2, 5, 4}},
      {"defect modulator H3 leak=60", 1, {1, 2, 5, 4}, {}},
      {"defect redundancy H3 blocked", 1, {1, 2, 5, 4}, {}},
  };
  for (const char* system : {"configuration 4S/3M\n", "configuration 2M+1M\n"})
    for (const Row& row : rows) {
      OperatedProgram stand(std::string(system) + row.scenario);
      const ScreenNotes notes(stand);
      stand.RunTest(0);
      EXPECT_EQ(stand.Results().nPressureTest, 1) << system << row.scenario;
      stand.RunTest(1);
      EXPECT_EQ(stand.Results().nRedundancyTest, 1) << system << row.scenario;
      stand.RunTest(2);
      EXPECT_EQ(stand.Results().nSensorTest, row.sensor_test) << system << row.scenario;
      EXPECT_EQ(notes.tires, row.tires) << system << row.scenario;
      EXPECT_EQ(notes.red_from, row.red) << system << row.scenario;
    }
}

// Its tyres are spun, and no sensor is there to answer.
TEST(UnnamedSensors, AnAxleOfAnUnknownPairWaitsForEver) {
  const Row rows[] = {
      {"configuration 4S/2M\naxles 2\nparameter EOL1 13 48", 0, {2, 3}, {}},
      {"configuration 4S/2M\naxles 3\nparameter EOL1 13 48", 0, {1, 2}, {}},
  };
  for (const Row& row : rows) {
    OperatedProgram stand(row.scenario);
    const ScreenNotes notes(stand);
    stand.RunTest(2);
    EXPECT_EQ(stand.Results().nSensorTest, row.sensor_test) << row.scenario;
    EXPECT_EQ(notes.tires, row.tires) << row.scenario;
    EXPECT_EQ(stand.hand.GivenUp(), 1) << row.scenario;
  }
}

}  // namespace
}  // namespace lorimet::testing_support
