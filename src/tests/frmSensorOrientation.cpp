#include "tests/frmSensorOrientation.h"

#include <algorithm>

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

constexpr int kInterval = 800;                  // ms
constexpr int kRows = 4;                        // of the table, one a spin step
constexpr double kSpinning = 4.0;               // mph, above it a wheel turns
constexpr double kRolling = 5.0;                // mph, above it a wheel that slows down still rolls
constexpr double kEnoughSupply = 72.5;          // psi
constexpr std::int32_t kRenewTime = 5000;       // ms between two sendings of the brake commands
constexpr std::uint32_t kBrakeTime = 500;       // ms, for the wheel that has answered to be braked
constexpr PressureWord kBraked = {0x00, 0x44};  // 3.4 bar
constexpr Color kColorGreen = 0x00FF00;

// A picture without a tire: an empty name would show the designer's.
constexpr const char* kNoTire = "TireNone";

constexpr const char* kTitle = " -Sensor Test-";
constexpr const char* kErrorTitle = " Sensor Test Error!!!";
constexpr const char* kNotAtRest = "The vehicle is not at a standstill! Click STOP to end testing.";
constexpr std::array<const char*, kRows> kSpinTexts = {
    "Spin Tire 1 as shown on the diagram...",
    "Now Spin Tire 2 as shown on the diagram...",
    "Now Spin Tire 3 as shown on the diagram...",
    "Now Spin Tire 4 as shown on the diagram...",
};

// Up one side of the trailer and back down the other.
constexpr std::array<int, 6> kWalk = {1, 2, 3, 6, 5, 4};

// 0 for what is no sensor's letter.
std::int16_t SensorIndexOf(const std::string& letter) {
  if (letter == "c") return 3;
  if (letter == "d") return 2;
  if (letter == "e") return 5;
  if (letter == "f") return 4;
  return 0;
}

bool HasRow(int step) { return step >= 1 && step <= kRows; }

}  // namespace

frmSensorOrientation::frmSensorOrientation(const TestParts& parts)
    : Form(parts.desktop, "frmSensorOrientation"), parts_(parts) {
  help_page = "sensor_test.html";
  StartButton.on_click = [this] { Start(); };
  StopButton.on_click = [this] { Stop(); };
  CloseButton.on_click = [this] { Close(); };
  Timer1.on_tick = [this] { OnTick(); };
}

std::string frmSensorOrientation::Translated(const char* text) const {
  return parts_.dictionary.Translate(text);
}

// --- Load --------------------------------------------------------------------------------------

void frmSensorOrientation::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  MessageBox warning;
  warning.title = Translated("Sensor Test Warning");
  warning.text =
      Translated("Secure the vehicle to prevent it from running off and release the hand brake.");
  parts_.desktop.ShowMessageBox(warning);
  // The program may have been closed while the box stood.
  if (!Loaded()) return;
  ShowIntroduction();
  ShowMounting();
  ShowAxles();
  parts_.desktop.Repaint();
  DetermineSpinOrder();
  Start();
}

void frmSensorOrientation::ShowIntroduction() {
  const std::string gap = std::string(kCrLf) + kCrLf;
  txtStatus.SetText(
      Translated("This test checks the correct assignment of the ABS sensors to the modulators. ") +
      gap + Translated("It requires that the wheels be spun in a predetermined order.  ") + gap +
      Translated("It is applicable to QOR Plus ECU's only.") + gap +
      Translated("Click START to begin test or CLOSE to exit."));
}

void frmSensorOrientation::ShowMounting() {
  switch (parts_.ecu.nMounting.Load()) {
    case 0:
      txtMounting.SetText(Translated("Forward"));
      return bmpABS.SetImage("bmpFwd");
    case 1:
      txtMounting.SetText(Translated("Rear"));
      return bmpABS.SetImage("bmpRear");
    default:
      txtMounting.SetText(Translated("Unknown"));
      StartButton.SetEnabled(false);
      StopButton.SetEnabled(false);
  }
}

void frmSensorOrientation::ShowAxles() {
  const auto sensors = [this](std::size_t axle) { return parts_.ecu.nAxleSensors[axle].Load(); };
  switch (parts_.ecu.nNumAxles.Load()) {
    case 1:
      HideAxle(1);
      HideAxle(3);
      DisplayTires();
      return DisplayAxle(2, sensors(0));
    case 2:
      HideAxle(1);
      DisplayTires();
      DisplayAxle(2, sensors(0));
      return DisplayAxle(3, sensors(1));
    case 3:
      DisplayTires();
      for (int axle = 1; axle <= 3; ++axle)
        DisplayAxle(axle, sensors(static_cast<std::size_t>(axle - 1)));
      return;
    default:
      return;
  }
}

void frmSensorOrientation::HideAxle(int nAxle) {
  for (const int position : {nAxle, nAxle + 3}) {
    TirePic[position].SetVisible(false);
    TireTxt[position].SetText(" ");
    TireTxt[position].SetVisible(false);
    TireTxt[position].SetEnabled(false);
  }
  if (nAxle != 3) return;
  for (const int row : {3, 4}) {
    lblExpected[row].SetCaption("-");
    textRPM[row].SetText(Translated("N/A"));
    textRPM[row].SetEnabled(false);
    textOrder[row].SetEnabled(false);
  }
}

void frmSensorOrientation::DisplayAxle(int nAxle, int nSensors) {
  TextBox& near = TireTxt[nAxle];
  TextBox& far = TireTxt[nAxle + 3];
  const std::int16_t mounting = parts_.ecu.nMounting.Load();
  if (nSensors == 0) {
    for (const int position : {nAxle, nAxle + 3}) {
      TirePic[position].SetImage(kNoTire);
      TireTxt[position].SetText(" ");
      TireTxt[position].SetEnabled(false);
    }
  } else if (nSensors == 1 && (mounting == 0 || mounting == 1)) {
    near.SetText(mounting == 0 ? "d" : "c");
    far.SetText(mounting == 0 ? "c" : "d");
  } else if (nSensors == 2 && (mounting == 0 || mounting == 1)) {
    near.SetText(mounting == 0 ? "f" : "e");
    far.SetText(mounting == 0 ? "e" : "f");
  }
}

void frmSensorOrientation::DisplayTires() {
  switch (parts_.ecu.nNumAxles.Load()) {
    case 1:
      TirePic[2].SetImage("TirePic1");
      return TirePic[5].SetImage("TirePic2");
    case 2:
      TirePic[2].SetImage("TirePic1");
      TirePic[3].SetImage("TirePic2");
      TirePic[6].SetImage("TirePic3");
      return TirePic[5].SetImage("TirePic4");
    default:
      return;
  }
}

void frmSensorOrientation::DetermineSpinOrder() {
  nSpinOrder_.fill(0);
  nSensorIndex_.fill(0);
  int step = 0;
  for (const int position : kWalk) {
    if (!TireTxt[position].Enabled()) continue;
    ++step;
    nSpinOrder_[static_cast<std::size_t>(step)] = static_cast<std::int16_t>(position);
    const std::string letter = TireTxt[position].Text();
    const std::int16_t index = SensorIndexOf(letter);
    if (index == 0) continue;
    nSensorIndex_[static_cast<std::size_t>(step)] = index;
    if (HasRow(step)) lblExpected[step].SetCaption(letter);
  }
}

// --- Buttons -----------------------------------------------------------------------------------

void frmSensorOrientation::Start() {
  TestResults& results = parts_.results;
  for (int row = 1; row <= kRows; ++row) {
    const auto i = static_cast<std::size_t>(row);
    if (textRPM[row].Text() != Translated("N/A")) textRPM[row].SetText("0");
    dLastSpeed_[i] = 0;
    results.bSensorOrder[i] = 0;
    results.dMaxSpeed[i] = 0;
    textOrder[row].SetText("");
    textOrder[row].SetBackColor(kColorWhite);
  }
  results.bSensorOrder[5] = 0;
  results.dMaxSpeed[5] = 0;
  for (int position = 1; position <= kPositions; ++position)
    TireTxt[position].SetBackColor(kColorWhite);
  parts_.desktop.Repaint();
  StopButton.SetEnabled(true);
  StartButton.SetEnabled(false);
  nTire_ = 1;
  nStep_ = 1;
  Timer1.SetInterval(kInterval);
  Timer1.SetEnabled(true);
  results.nSensorTest = kTestFailed;
}

void frmSensorOrientation::Stop() {
  Release();
  Timer1.SetEnabled(false);
  StopButton.SetEnabled(false);
  StartButton.SetEnabled(true);
}

// The brakes stay as they were set.
void frmSensorOrientation::Close() {
  nStep_ = 1;
  nTire_ = 1;
  Timer1.SetEnabled(false);
  Unload();
}

// --- The tick ----------------------------------------------------------------------------------

void frmSensorOrientation::OnTick() {
  ShowSupply();
  const bool moving = KeepSpeeds();
  switch (nStep_) {
    case 1:
      return TakeBrakes(moving);
    case 2:
      return AskForTire();
    case 3:
      return WatchSpin();
    case 4:
      return WaitForRest();
    default:
      Unload();
  }
}

void frmSensorOrientation::ShowSupply() {
  txtSupplyPressure.SetText(OneModulator() ? Translated("n/a")
                                           : FormatNumber(parts_.ecu.dSupplyPress.Load(), "##0.0"));
}

// True when any wheel turns.
bool frmSensorOrientation::KeepSpeeds() {
  bool moving = false;
  for (int step = 1; step <= SpinSteps(); ++step) {
    const double speed = Speed(step);
    if (!(speed > kSpinning)) continue;
    moving = true;
    dLastSpeed_[static_cast<std::size_t>(step)] = speed;
    KeepHighest(step, speed);
  }
  return moving;
}

void frmSensorOrientation::TakeBrakes(bool moving) {
  if (parts_.ecu.bNumModulators.Load() > 1 && parts_.ecu.dSupplyPress.Load() < kEnoughSupply)
    return SayPlain("Reservoir pressure must be > 72.5 psi.  Increase pressure.");
  SelectBrakeMode(parts_.link, BrakeMode::kTest);
  nStep_ = 2;
  if (moving) SayPlain(kNotAtRest);
}

void frmSensorOrientation::AskForTire() {
  if (HasRow(nTire_)) Say(kTitle, kSpinTexts[static_cast<std::size_t>(nTire_ - 1)]);
  if (nTire_ > 1) PaintTire(nTire_ - 1, kColorWhite);
  PaintTire(nTire_, kColorYellow);
  const bool near = nSpinOrder_[nTire_] <= 3;
  nModulator_ = near == (parts_.ecu.nMounting.Load() == 0) ? 1 : 2;
  lDeadline_ = static_cast<std::int32_t>(parts_.clock.TickCount());
  nStep_ = 3;
}

void frmSensorOrientation::WatchSpin() {
  BrakeAllButOne();
  for (int step = 1; step <= SpinSteps(); ++step) {
    const double speed = Speed(step);
    if (!(speed > kSpinning)) continue;
    KeepHighest(step, speed);
    if (step == nTire_)
      OnRightWheel(step);
    else
      OnWrongWheel(step);
    parts_.desktop.Repaint();
  }
}

// At once, and anew every five seconds.
void frmSensorOrientation::BrakeAllButOne() {
  // The difference stays right when the tick count wraps.
  const std::uint32_t now = parts_.clock.TickCount();
  const auto past = static_cast<std::int32_t>(now - static_cast<std::uint32_t>(lDeadline_));
  if (past <= 0) return;
  BrakeWheel(0);
  if (OneModulator()) {
    FreeWheel(1);
  } else {
    BrakeWheel(nModulator_ == 1 ? 2 : 1);
    FreeWheel(static_cast<std::uint8_t>(nModulator_));
  }
  lDeadline_ = static_cast<std::int32_t>(now + kRenewTime);
}

void frmSensorOrientation::OnRightWheel(int step) {
  // So that the next reading of the library shows whether the wheel still turns.
  const auto index = static_cast<std::size_t>(nSensorIndex_[static_cast<std::size_t>(step)]);
  parts_.ecu.dWheelSpeed[index].Store(0.0);
  BrakeWheel(OneModulator() ? 1 : static_cast<std::uint8_t>(nModulator_));
  parts_.clock.Sleep(kBrakeTime);
  nStep_ = 4;
}

// The step stays: the right sensor may still answer.
void frmSensorOrientation::OnWrongWheel(int step) {
  Say(kErrorTitle, "Sensor Order does NOT match configuration! Click STOP to end testing.");
  NoteOrder(step, kColorRed);
  StoreOrder(static_cast<std::size_t>(step));
}

void frmSensorOrientation::WaitForRest() {
  if (StillMoving()) return Say(kTitle, kNotAtRest);
  OnAtRest();
}

// A wheel rolls as long as its speed changes; one constant speed counts as rest.
bool frmSensorOrientation::StillMoving() {
  bool moving = false;
  for (int step = 1; step <= SpinSteps(); ++step) {
    const double speed = Speed(step);
    double& last = dLastSpeed_[static_cast<std::size_t>(step)];
    if (speed == last || !(speed > kRolling)) continue;
    last = speed;
    moving = true;
  }
  return moving;
}

void frmSensorOrientation::OnAtRest() {
  NoteOrder(nTire_, kColorGreen);
  const int sensors = parts_.ecu.bNumSensors.Load();
  // Not the row's own index, which is settled so.
  StoreOrder(static_cast<std::size_t>(sensors + 1));
  if (nTire_ == sensors) return Pass();
  nStep_ = 2;
  ++nTire_;
}

// The line is there for one tick: the next one closes the screen.
void frmSensorOrientation::Pass() {
  Say(kTitle, "All Sensors tested, Click STOP to end testing.");
  StartButton.SetEnabled(false);
  parts_.results.nSensorTest = kTestPassed;
  Release();
  nStep_ = 5;
}

// --- The ECU -----------------------------------------------------------------------------------

void frmSensorOrientation::FreeWheel(std::uint8_t nChannel) {
  SetPressure(parts_.link, static_cast<PressureChannel>(nChannel), {});
}

void frmSensorOrientation::BrakeWheel(std::uint8_t nChannel) {
  SetPressure(parts_.link, static_cast<PressureChannel>(nChannel), kBraked);
}

void frmSensorOrientation::StopValveActivation() {
  for (const std::uint8_t step : {1, 2, 0}) ActivateStopValve(parts_.link, step);
  SelectBrakeMode(parts_.link, BrakeMode::kRedundancy);
}

void frmSensorOrientation::Release() {
  for (const std::uint8_t channel : {1, 2, 0}) FreeWheel(channel);
  StopValveActivation();
}

// --- Small things ------------------------------------------------------------------------------

// A count of sensors that no trailer has adds no spin step.
int frmSensorOrientation::SpinSteps() const {
  return std::min<int>(parts_.ecu.bNumSensors.Load(), kPositions);
}

// 0 for a step that no sensor belongs to.
double frmSensorOrientation::Speed(int step) const {
  const std::int16_t index = nSensorIndex_[static_cast<std::size_t>(step)];
  return index == 0 ? 0 : parts_.ecu.dWheelSpeed[static_cast<std::size_t>(index)].Load();
}

void frmSensorOrientation::KeepHighest(int step, double speed) {
  const auto index = static_cast<std::size_t>(nSensorIndex_[static_cast<std::size_t>(step)]);
  double& highest = parts_.results.dMaxSpeed[index];
  if (!(speed > highest)) return;
  highest = speed;
  if (HasRow(step)) textRPM[step].SetText(FormatNumber(speed, "#,##0.0"));
}

bool frmSensorOrientation::OneModulator() const { return parts_.ecu.bNumModulators.Load() == 1; }

void frmSensorOrientation::PaintTire(int step, Color color) {
  const std::int16_t position = nSpinOrder_[static_cast<std::size_t>(step)];
  if (position != 0) TireTxt[position].SetBackColor(color);
}

void frmSensorOrientation::NoteOrder(int step, Color color) {
  if (!HasRow(step)) return;
  textOrder[step].SetBackColor(color);
  textOrder[step].SetText(" " + std::to_string(nTire_));
}

void frmSensorOrientation::StoreOrder(std::size_t index) {
  if (index < parts_.results.bSensorOrder.size()) parts_.results.bSensorOrder[index] = nTire_;
}

void frmSensorOrientation::SayPlain(const char* text) { txtStatus.SetText(Translated(text)); }

void frmSensorOrientation::Say(const char* title, const char* text) {
  txtStatus.SetText("        \r\r" + Translated(title) + "\r\r" + Translated(text));
}

}  // namespace lorimet
