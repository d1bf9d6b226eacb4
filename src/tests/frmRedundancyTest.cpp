#include "tests/frmRedundancyTest.h"

#include <cmath>

#include "platform/clock.h"
#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/test_results.h"
#include "tests/test_routines.h"

namespace lorimet {
namespace {

constexpr int kInterval = 450;               // ms
constexpr std::uint32_t kSwitchTime = 5000;  // ms, for the ECU to leave its electronics
constexpr std::uint32_t kPause = 1000;       // ms
constexpr double kSupplyBefore = 80.0;       // psi, before the switch
constexpr double kControlBefore = 80.0;
constexpr double kSupplyAfter = 79.75;  // psi, after it
constexpr double kControlAfter = 75.4;
constexpr double kTolerance = 5.8;  // psi, of a modulator to the target
constexpr const char* kMask = "##0.0";

}  // namespace

frmRedundancyTest::frmRedundancyTest(const TestParts& parts)
    : Form(parts.desktop, "frmRedundancyTest"), parts_(parts) {
  help_page = "redundancy_test.html";
  cmdStart.on_click = [this] { Start(); };
  cmdStop.on_click = [this] { Stop(); };
  cmdClose.on_click = [this] { Close(); };
  Timer1.on_tick = [this] { OnTick(); };
}

void frmRedundancyTest::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  txtStatus.SetText(
      std::string("This test checks that the brake system pneumatic piping is correct. ") + kCrLf +
      kCrLf +
      "It also checks that, during a brake application, the pressures in the control line, "
      "reservoir and modulator maintain the correct relationship." +
      kCrLf + kCrLf + "Press Start to begin test.");
  Start();
}

void frmRedundancyTest::Start() {
  parts_.results.nRedundancyTest = kTestFailed;
  parts_.results.nH1Pressure = 0;
  parts_.results.nH2Pressure = 0;
  cmdStop.SetEnabled(true);
  cmdStart.SetEnabled(false);
  nState_ = 1;
  Timer1.SetInterval(kInterval);
  Timer1.SetEnabled(true);
}

void frmRedundancyTest::Stop() {
  Timer1.SetEnabled(false);
  cmdStop.SetEnabled(false);
  cmdStart.SetEnabled(true);
  Unload();
}

void frmRedundancyTest::Close() {
  Timer1.SetEnabled(false);
  Unload();
}

void frmRedundancyTest::OnTick() {
  ShowPressures();
  switch (nState_) {
    case 1:
      return WaitForSupply();
    case 2:
      return SwitchOver();
    case 3:
      return WaitForSupplyAgain();
    case 4:
      return WaitForControlAgain();
    case 5:
      return Compare();
    default:
      return Finish();
  }
}

// The state that follows writes its own line over these two.
void frmRedundancyTest::ShowPressures() {
  const double supply = parts_.ecu.dSupplyPress.Load();
  const double demand = parts_.ecu.dServiceBrake.Load();
  txtSupplyPressure.SetText(PressureText(supply, parts_.dictionary));
  txtControlPressure.SetText(PressureText(demand, parts_.dictionary));
  if (IsUnavailable(supply)) txtStatus.SetText("Supply Pressure unavailable.");
  if (IsUnavailable(demand)) txtStatus.SetText("Demand Pressure unavailable.");
}

void frmRedundancyTest::WaitForSupply() {
  txtStatus.SetText("Waiting for SUPPLY PRESSURE to reach 80 psi...");
  if (parts_.ecu.dSupplyPress.Load() > kSupplyBefore) nState_ = 2;
}

void frmRedundancyTest::SwitchOver() {
  txtStatus.SetText("Waiting for CONTROL PRESSURE to reach 80 psi...");
  if (!(parts_.ecu.dServiceBrake.Load() > kControlBefore)) return;
  SelectBrakeMode(parts_.link, BrakeMode::kRedundancy);
  txtStatus.SetText("Waiting for ECU to switch into redundancy mode (5 seconds)...");
  parts_.desktop.Repaint();
  BlockFor(parts_.clock, kSwitchTime);
  nState_ = 3;
}

void frmRedundancyTest::WaitForSupplyAgain() {
  txtStatus.SetText("Waiting for supply pressure to reach 79.75 psi...");
  if (parts_.ecu.dSupplyPress.Load() > kSupplyAfter) nState_ = 4;
}

void frmRedundancyTest::WaitForControlAgain() {
  txtStatus.SetText("Waiting for control pressure to reach 75.4 psi...");
  if (parts_.ecu.dServiceBrake.Load() > kControlAfter) nState_ = 5;
}

// The target is from before the two seconds, the judged values from after them; the boxes keep
// what stood before.
void frmRedundancyTest::Compare() {
  const ECUData& ecu = parts_.ecu;
  txtStatus.SetText("Comparing Target Pressures with Actual Pressures...");
  const double supply = ecu.dSupplyPress.Load();
  const double demand = ecu.dServiceBrake.Load();
  const double target = supply < demand ? supply : demand;
  for (TextBox* box : {&txtH1TargetPressure, &txtH2TargetPressure})
    box->SetText(FormatNumber(target, kMask));
  txtH1ActualPressure.SetText(FormatNumber(ecu.dBrake1Press.Load(), kMask));
  txtH2ActualPressure.SetText(FormatNumber(ecu.dBrake2Press.Load(), kMask));
  for (int second = 0; second < 2; ++second) {
    parts_.desktop.Repaint();
    parts_.clock.Sleep(kPause);
  }
  TestResults& results = parts_.results;
  if (Judge(lblStatusH1, ecu.dBrake1Press.Load(), target, results.nH1Pressure) &&
      Judge(lblStatusH2, ecu.dBrake2Press.Load(), target, results.nH2Pressure))
    results.nRedundancyTest = kTestPassed;
  parts_.desktop.Repaint();
  parts_.clock.Sleep(kPause);
  nState_ = 6;
}

bool frmRedundancyTest::Judge(Label& label, double actual, double target, std::int16_t& stored) {
  // False as well for a reading that is no number.
  const bool within = std::abs(actual - target) <= kTolerance;
  if (within) stored = ToInteger(actual);
  label.SetCaption(within ? "Pass" : "Fail");
  return within;
}

void frmRedundancyTest::Finish() {
  txtStatus.SetText("Test Complete.");
  Timer1.SetEnabled(false);
  Unload();
}

}  // namespace lorimet
