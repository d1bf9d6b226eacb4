#include "tests/test_commands.h"

#include "platform/clock.h"
#include "platform/desktop.h"
#include "session/frmZeltMain.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kResetPause = 200;  // ms after the reset that ends a calibration

// The tests whose outcome is told; of the lamp test only a failure is, by the sign-off.
struct TestWords {
  const char* passed;
  const char* failed;
};
constexpr std::array<TestWords, 4> kWords = {{
    {"Pressure Test Passed.", "Pressure Test Failed.  Please resolve issues and run test again."},
    {"Redundancy Test Passed.",
     "Redundancy Test Failed.  Please resolve issues and run test again."},
    {"Sensor Test Passed.", "Sensor Test Failed.  Please resolve issues and run test again."},
    {"", "Lamp Test Failed.  Please resolve issues and run test again."},
}};

}  // namespace

void TestCommands::Show(VehicleTest test) const {
  const std::function<void()>& screen = show[static_cast<std::size_t>(test)];
  if (screen) screen();
}

void TestCommands::RunTest(VehicleTest test) {
  StartEcuSession(parts_.link);
  SetParameterAccess(parts_.link, 1);
  Show(test);
  AfterTest(test);
  CloseAccess();
}

// The window can have been closed behind a test's screen or in the restart that follows one; the
// session has been stopped then.
void TestCommands::CloseAccess() {
  if (parts_.desktop.life.Open()) SetParameterAccess(parts_.link, 0);
}

void TestCommands::AfterTest(VehicleTest test) {
  if (!parts_.desktop.life.Open()) return;
  switch (test) {
    case VehicleTest::kPressure:
      return ShowTestResult(test, parts_.results.nPressureTest);
    case VehicleTest::kRedundancy:
      return ShowTestResult(test, parts_.results.nRedundancyTest);
    case VehicleTest::kSensor:
      return ShowTestResult(test, parts_.results.nSensorTest);
    case VehicleTest::kLamp:
      return;  // the answer was one of the screen's own two buttons
    case VehicleTest::kSuspensionCalibration:
      if (parts_.results.nHeightCalCD != kTestPassed) return;
      parts_.link.ResetECU();
      return parts_.clock.Sleep(kResetPause);
    case VehicleTest::kStopLightActivation:
      if (parts_.main_form.bConnected) parts_.main_form.RestartECU();
      return;
  }
}

void TestCommands::RunLampTestFromToolbar() {
  StartEcuSession(parts_.link);
  Show(VehicleTest::kLamp);
}

void TestCommands::RunSensorTestFromToolbar() {
  StartEcuSession(parts_.link);
  SetParameterAccess(parts_.link, 1);
  Show(VehicleTest::kSensor);
  CloseAccess();
}

void TestCommands::ShowTestResult(VehicleTest test, std::int16_t result) {
  if (result != kTestPassed) return ShowTestFailed(parts_.desktop, parts_.dictionary, test);
  ShowPlainBox(parts_.desktop,
               parts_.dictionary.Translate(kWords[static_cast<std::size_t>(test)].passed),
               parts_.dictionary.Translate("Test Passed"), BoxIcon::kInformation);
}

void ShowTestFailed(Desktop& desktop, const Dictionary& dictionary, VehicleTest test) {
  ShowPlainBox(desktop, dictionary.Translate(kWords[static_cast<std::size_t>(test)].failed),
               dictionary.Translate("Test Failed!"), BoxIcon::kCritical);
}

}  // namespace lorimet
