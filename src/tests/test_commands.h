// The vehicle's tests as the menu, the toolbar and the panel start them, one at a time.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "tests/test_results.h"

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class LinkLibrary;
class frmZeltMain;

// By the index of mnuTests.
enum class VehicleTest : std::size_t {
  kPressure,
  kRedundancy,
  kSensor,
  kLamp,
  kSuspensionCalibration,
  kStopLightActivation,
};
constexpr std::size_t kVehicleTests = 6;

struct TestCommandParts {
  LinkLibrary& link;
  Desktop& desktop;
  Clock& clock;
  const Dictionary& dictionary;
  frmZeltMain& main_form;
  const TestResults& results;
};

class TestCommands {
 public:
  explicit TestCommands(const TestCommandParts& parts) : parts_(parts) {}

  // The test screens: each is shown modally, and the call returns when it has closed.
  std::array<std::function<void()>, kVehicleTests> show;

  // From the menu: in a session, with the parameter access open around it.
  void RunTest(VehicleTest test);
  // From the toolbar: no parameter access.
  void RunLampTestFromToolbar();
  // From the toolbar: no word about the outcome.
  void RunSensorTestFromToolbar();
  // The bare screen.
  void Show(VehicleTest test) const;

 private:
  void AfterTest(VehicleTest test);
  void CloseAccess();
  void ShowTestResult(VehicleTest test, std::int16_t result);

  TestCommandParts parts_;
};

// "Pressure Test Failed.  Please resolve issues and run test again." and its box, for the tests
// from kPressure to kLamp.
void ShowTestFailed(Desktop& desktop, const Dictionary& dictionary, VehicleTest test);

}  // namespace lorimet
