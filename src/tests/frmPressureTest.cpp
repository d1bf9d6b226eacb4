#include "tests/frmPressureTest.h"

#include <cmath>

#include "session/ecu_data.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/test_results.h"
#include "tests/test_routines.h"

namespace lorimet {
namespace {

constexpr int kInterval = 450;           // ms
constexpr std::uint32_t kSettle = 400;   // ms, from the commands to the readings
constexpr double kNoControl = 2.9;       // psi, below it nobody brakes
constexpr double kEnoughSupply = 72.5;   // psi
constexpr double kEnoughBellows = 2.17;  // psi
constexpr double kTolerance = 2.9;       // psi, of a reading to its target
constexpr const char* kMask = "##0.0";

}  // namespace

frmPressureTest::frmPressureTest(const TestParts& parts)
    : Form(parts.desktop, "frmPressureTest"), parts_(parts) {
  help_page = "pressure_test.html";
  cmdStart.on_click = [this] { Start(); };
  cmdCancel.on_click = [this] { Unload(); };
  cmdOK.on_click = cmdCancel.on_click;
  Timer1.on_tick = [this] { OnTick(); };
}

void frmPressureTest::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  txtStatus.SetText(
      std::string("This test checks for correct laden and unladen brake pressures. ") + kCrLf +
      kCrLf + "Chock wheels to prevent rolling!" + kCrLf + kCrLf + "Press Start to begin test.");
  FillRows();
  Start();
}

// The unladen rows repeat the first laden point.
void frmPressureTest::FillRows() {
  const ECUData& ecu = parts_.ecu;
  const std::string control_1 = FormatNumber(ecu.dControlPressure1.Load(), kMask);
  const std::string target_1 = FormatNumber(ecu.dTargetPressure1.Load(), kMask);
  for (const int row : {2, 3, 8, 9}) {
    lblControl[row].SetCaption(control_1);
    lblTarget[row].SetCaption(target_1);
  }
  for (const int row : {4, 5}) {
    lblControl[row].SetCaption(FormatNumber(ecu.dControlPressure2.Load(), kMask));
    lblTarget[row].SetCaption(FormatNumber(ecu.dTargetPressure2.Load(), kMask));
  }
}

// The rows of an earlier run stay until they are written over.
void frmPressureTest::Start() {
  parts_.results.nPressureTest = kTestFailed;
  nState_ = 1;
  Timer1.SetInterval(kInterval);
  Timer1.SetEnabled(true);
}

void frmPressureTest::OnTick() {
  txtSupply.SetText(PressureText(parts_.ecu.dSupplyPress.Load(), parts_.dictionary));
  txtDemand.SetText(PressureText(parts_.ecu.dServiceBrake.Load(), parts_.dictionary));
  switch (nState_) {
    case 1:
      return WaitForNoControlPressure();
    case 2:
      return WaitForSupply();
    case 3:
      return CheckBellows();
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
      return Measure();
    default:
      return Finish();
  }
}

bool frmPressureTest::Mechanical() const { return parts_.ecu.nMechanicalSuspension.Load() == 1; }

void frmPressureTest::WaitForNoControlPressure() {
  if (Mechanical()) {
    nState_ = 2;
    return;
  }
  const double demand = parts_.ecu.dServiceBrake.Load();
  if (IsUnavailable(demand)) {
    txtStatus.SetText("Control Pressure not valid.");
    return;
  }
  txtStatus.SetText("Waiting for no control pressure (< 2.9 psi) ...");
  if (demand < kNoControl) nState_ = 2;
}

void frmPressureTest::WaitForSupply() {
  txtStatus.SetText("Waiting for supply pressure greater than 72.5 psi...");
  if (!(parts_.ecu.dSupplyPress.Load() > kEnoughSupply)) return;
  SelectBrakeMode(parts_.link, BrakeMode::kTest);
  nState_ = 3;
}

void frmPressureTest::CheckBellows() {
  if (Mechanical()) {
    nState_ = 4;
    return;
  }
  txtStatus.SetText("Check if main axle bellows pressure > 2.17 psi...");
  if (parts_.ecu.dMainBellows.Load() > kEnoughBellows)
    nState_ = 4;
  else
    txtStatus.SetText("Bellows pressure is too low (less than 2.17 psi).");
}

frmPressureTest::Point frmPressureTest::PointOfState() const {
  const ECUData& ecu = parts_.ecu;
  switch (nState_) {
    case 4:
      return {true, 0, 0, 0};
    case 5:
      return {true, ecu.dControlPressure1.Load(), ecu.dTargetPressure1.Load(), 2};
    case 6:
      return {true, ecu.dControlPressure2.Load(), ecu.dTargetPressure2.Load(), 4};
    case 7:
      return {false, 0, 0, 6};
    default:
      return {false, ecu.dControlPressure1.Load(), ecu.dTargetPressure1.Load(), 8};
  }
}

// Sent anew on every tick of a state: both modulators pass together or are tried together.
void frmPressureTest::Measure() {
  const Point point = PointOfState();
  txtStatus.SetText(point.laden ? "Testing Laden..." : "Testing Unladen...");
  SendLoad(point.laden);
  SendControl(point.control);
  BlockFor(parts_.clock, kSettle);
  const double h1 = parts_.ecu.dBrake1Press.Load();
  const double h2 = parts_.ecu.dBrake2Press.Load();
  txtActual[point.row].SetText(FormatNumber(h1, "##0.0#"));
  txtActual[point.row + 1].SetText(FormatNumber(h2, "##0.0#"));
  // H2 is looked at only once H1 is right.
  if (Judge(point.row, h1, point.target) && Judge(point.row + 1, h2, point.target)) ++nState_;
}

void frmPressureTest::SendLoad(bool laden) {
  const ECUData& ecu = parts_.ecu;
  PressureChannel channel = PressureChannel::kBellows;
  PressureWord load;
  if (Mechanical()) {
    channel = PressureChannel::kHeight;
    if (laden) load = EncodePressure(ecu.dLadenHeightValue.Load());
  } else if (laden) {
    load = EncodePressure(ecu.dLadenBellows.Load(), kPsiPerBarLadenBellows);
  } else {
    load = EncodePressure(ecu.dUnladenBellows.Load());
  }
  TryLinkCall([&] { return SetPressure(parts_.link, channel, load); });
}

void frmPressureTest::SendControl(double psi) {
  const PressureWord control = EncodePressure(psi);
  TryLinkCall([&] { return SetPressure(parts_.link, PressureChannel::kControl, control); });
}

bool frmPressureTest::Judge(int row, double actual, double target) {
  // False as well for a reading that is no number.
  const bool within = std::abs(actual - target) <= kTolerance;
  lblStatus[row].SetCaption(within ? "OK" : "Testing...");
  return within;
}

void frmPressureTest::Finish() {
  txtStatus.SetText("Test Complete - Passed");
  parts_.results.nPressureTest = kTestPassed;
  Unload();
}

}  // namespace lorimet
