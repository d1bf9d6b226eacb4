// The commands of the test menu: what stands around each of the vehicle's tests.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class TestCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    Start();
    for (int i = 0; i <= 5; ++i)
      program.tests->commands.show[static_cast<std::size_t>(i)] = [this, i] {
        link.calls.push_back("test " + std::to_string(i));
        program.tests->test_results.nPressureTest = outcome[0];
        program.tests->test_results.nRedundancyTest = outcome[1];
        program.tests->test_results.nSensorTest = outcome[2];
        program.tests->test_results.nHeightCalCD = outcome[3];
      };
  }
  static Calls Around(const std::string& test, const Calls& after = {}) {
    Calls calls = {"StartSession 83", "Password", "StartRoutine 42:00000100", test};
    calls.insert(calls.end(), after.begin(), after.end());
    calls.push_back("StartRoutine 42:00000000");
    return calls;
  }

  // Pressure, redundancy, sensor, calibration.
  std::vector<std::int16_t> outcome = {-1, -1, -1, -1};
};

TEST_F(TestCommandsTest, APassedTestIsToldBeforeTheAccessIsGivenBack) {
  const std::vector<const char*> kTexts = {"Pressure Test Passed.", "Redundancy Test Passed.",
                                           "Sensor Test Passed."};
  for (int i = 0; i <= 2; ++i) {
    outcome = {-1, -1, -1, -1};
    outcome[static_cast<std::size_t>(i)] = 1;
    const std::string test = "test " + std::to_string(i);
    desktop.OnBox([&](const MessageBox&) { EXPECT_EQ(link.calls.back(), test); });
    Main().mnuTests[i].UserClick();
    EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox(kTexts[static_cast<std::size_t>(i)],
                                                  "Test Passed", BoxIcon::kInformation)});
    EXPECT_EQ(link.TakeCalls(), Around(test));
  }
}

TEST_F(TestCommandsTest, AnyOtherOutcomeIsAFailureACancelledTestIncluded) {
  const std::vector<std::string> kNames = {"Pressure", "Redundancy", "Sensor"};
  for (int i = 0; i <= 2; ++i) {
    for (const std::int16_t other : {-1, 0, 2, 257, -32768}) {
      outcome = {1, 1, 1, 1};
      outcome[static_cast<std::size_t>(i)] = other;
      Main().mnuTests[i].UserClick();
      EXPECT_EQ(desktop.TakeBoxes(),
                Boxes{PlainBox(kNames[static_cast<std::size_t>(i)] +
                                   " Test Failed.  Please resolve issues and run test again.",
                               "Test Failed!", BoxIcon::kCritical)})
          << i << " " << other;
      EXPECT_EQ(link.TakeCalls(), Around("test " + std::to_string(i)));
    }
  }
}

TEST_F(TestCommandsTest, TheResultSpeaksTheUsersLanguage) {
  program.support->dictionary.SetLanguage(kFrench);
  const auto& rows = translations.Rows(kFrench);
  Main().mnuTests[0].UserClick();
  outcome[2] = 1;
  Main().mnuTests[2].UserClick();
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox(rows.at("Pressure Test Failed.  Please resolve issues and run test "
                                    "again."),
                            "Échec du test !", BoxIcon::kCritical),
                   PlainBox(rows.at("Sensor Test Passed."), rows.at("Test Passed"),
                            BoxIcon::kInformation)}));
}

TEST_F(TestCommandsTest, TheLampTestIsFollowedByNothing) {
  outcome = {1, 1, 1, 1};
  Main().mnuTests[3].UserClick();
  EXPECT_EQ(link.TakeCalls(), Around("test 3"));
  EXPECT_EQ(clock.sleeps, std::vector<std::uint32_t>{});
}

TEST_F(TestCommandsTest, ACalibrationThatPassedResetsTheEcuAndPauses) {
  link.always["ResetECU"] = -1;  // ignored
  outcome[3] = 1;
  Main().mnuTests[4].UserClick();
  EXPECT_EQ(link.TakeCalls(), Around("test 4", {"ResetECU"}));
  EXPECT_EQ(link.TakeSequence(), (Calls{"StartSession 83", "Password", "StartRoutine 42:00000100",
                                        "ResetECU", "sleep 200", "StartRoutine 42:00000000"}));
}

TEST_F(TestCommandsTest, ACalibrationThatDidNotPassIsFollowedByNothing) {
  for (const std::int16_t other : {-1, 0, 2}) {
    outcome[3] = other;
    Main().mnuTests[4].UserClick();
    EXPECT_EQ(link.TakeCalls(), Around("test 4")) << other;
  }
  EXPECT_EQ(clock.sleeps, std::vector<std::uint32_t>{});
}

TEST_F(TestCommandsTest, TheStopLightActivationRestartsAConnection) {
  Main().mnuTests[5].UserClick();
  EXPECT_EQ(link.TakeCalls(), Around("test 5", {"Disconnect", "Connect", "ReadStaticData",
                                                "StartSession 83", "Password"}));
  Main().bConnected = false;
  Main().mnuTests[5].UserClick();
  EXPECT_EQ(link.TakeCalls(), Around("test 5"));
}

TEST_F(TestCommandsTest, ServicesThatFailAreTriedFourTimesAndTheTestRunsNoneTheLess) {
  link.always = {{"StartSession", -1}, {"Password", -1}, {"StartRoutine", -1}};
  Main().mnuTests[3].UserClick();
  Calls expected(4, "StartSession 83");
  expected.insert(expected.end(), 4, "Password");
  expected.insert(expected.end(), 4, "StartRoutine 42:00000100");
  expected.push_back("test 3");
  expected.insert(expected.end(), 4, "StartRoutine 42:00000000");
  EXPECT_EQ(link.TakeCalls(), expected);
}

TEST_F(TestCommandsTest, AWindowClosedInTheRestartBehindTheStopLightsSendsNothingMore) {
  link.on_static_read = [&] { desktop.After(100, [&] { Main().UserClose(); }); };
  Ecu().nLinkJobDone.Store(0);
  Main().mnuTests[5].UserClick();
  EXPECT_EQ(link.TakeCalls(),
            (Calls{"StartSession 83", "Password", "StartRoutine 42:00000100", "test 5",
                   "Disconnect", "Connect", "ReadStaticData", "StartSession 83", "Password",
                   "BusMonitorStopRecord", "Disconnect", "StopSession"}));
  EXPECT_TRUE(desktop.LoadedForms().empty());
}

TEST_F(TestCommandsTest, AWindowClosedBehindATestSendsAndTellsNothingMore) {
  for (auto& show : program.tests->commands.show)
    show = [&, shown = show] {
      shown();
      Main().UserClose();
    };
  const Calls closed = {
      "StartSession 83", "Password",   "StartRoutine 42:00000100", "test 0", "BusMonitorStopRecord",
      "Disconnect",      "StopSession"};
  Main().mnuTests[0].UserClick();
  EXPECT_EQ(link.TakeCalls(), closed);
}

TEST_F(TestCommandsTest, AWindowClosedBehindTheToolbarsSensorTestSendsNothingMore) {
  program.tests->commands.show[2] = [&] { Main().UserClose(); };
  Main().tbrABS_sensor.UserClick();
  EXPECT_EQ(link.TakeCalls().back(), "StopSession");
}

TEST_F(TestCommandsTest, TheToolbarsLampTestUsesNoParameterAccess) {
  Main().tbrABS_valve.UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"StartSession 83", "Password", "test 3"}));
}

TEST_F(TestCommandsTest, TheToolbarsSensorTestTellsNoOutcome) {
  for (const std::int16_t result : {1, 0}) {
    outcome[2] = result;
    Main().tbrABS_sensor.UserClick();
    EXPECT_EQ(link.TakeCalls(), Around("test 2"));
  }
}

TEST_F(TestCommandsTest, ADoubleClickOnBrakeSide2ShowsTheBareRedundancyTest) {
  Main().txtBrake2Press.UserDoubleClick();
  EXPECT_EQ(link.TakeCalls(), Calls{"test 1"});
}

TEST_F(TestCommandsTest, ThePanelIsPaintedBehindAScreen) {
  program.tests->commands.show[3] = [&] {
    Ecu().dServiceBrake.Store(7.0);
    desktop.Run(300);
    EXPECT_EQ(Main().txtServiceBrake.Text(), "7.0");
  };
  Main().mnuTests[3].UserClick();
}

}  // namespace
}  // namespace lorimet::testing_support
