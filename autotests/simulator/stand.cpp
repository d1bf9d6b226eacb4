#include "autotests/simulator/stand.h"

#include <algorithm>
#include <cmath>

namespace lorimet::simulator {
namespace {

constexpr double kStep = 0.01;

}  // namespace

Stand::Stand(const std::string& scenario, const OperatorHabits& habits)
    : link(scenario), hand(*this, yard_, habits) {}

void Stand::Pass(double time) {
  for (int i = 0; i < static_cast<int>(time / kStep + 0.5); ++i) {
    link.Advance(kStep);
    clock_ += kStep;
    hand.Step(kStep);
  }
}

void Stand::Begin() {
  link.Connect(nullptr, 0, nullptr, -1, 3, nullptr, nullptr, &link_status_, &record, nullptr,
               nullptr, nullptr, nullptr);
  link.Trailer_ABS_QOR_ReadStaticData();
  Pass(2.5);
  for (int i = 0; i < 4 && link.Trailer_ABS_KWP_StartSession(0x83) != 0; ++i) {
  }
  for (int i = 0; i < 4 && link.Trailer_ABS_KWP_Password() != 0; ++i) {
  }
  Routine(0x42, {0, 0, 1, 0}, 4);
}

bool Stand::CanPress(std::string_view button) const {
  return std::find(buttons_.begin(), buttons_.end(), button) != buttons_.end();
}

void Stand::Press(std::string_view button) {
  if (button == "cmdYes" || button == "cmdCalHgtSensor_0") result_ = 1;
  if (button == "StopButton") {
    ReleaseAll();
    std::erase(buttons_, "StopButton");
    step_ = 0;
    return;
  }
  closed_by_operator = true;
  Close();
}

void Stand::Open(const char* name, std::vector<std::string> buttons) {
  name_ = name;
  buttons_ = std::move(buttons);
  status_.clear();
  yellow_ = 0;
  result_ = 0;
  state = 1;
  ticks = 0;
  closed_by_operator = false;
}

void Stand::Close() {
  status = status_;
  name_.clear();
  status_.clear();
  buttons_.clear();
  yellow_ = 0;
}

template <typename Tick>
void Stand::Run(double interval, Tick tick) {
  const double begun = clock_;
  double due = clock_ + interval;
  while (!name_.empty()) {
    Pass(kStep);
    if (name_.empty() || clock_ + kStep / 2 < due) continue;
    ++ticks;
    tick();
    due = std::max(due + interval, clock_ + kStep);
  }
  seconds = clock_ - begun;
  Pass(0.2);  // the operator sees that the screen has gone
}

int Stand::Routine(std::uint8_t id, std::vector<std::uint8_t> data, int tries) {
  int result = 1;
  for (int i = 0; i < tries && result != 0; ++i)
    result = link.Trailer_ABS_KWP_StartRoutineByLocId(id, static_cast<std::uint8_t>(data.size()),
                                                      data.data());
  return result;
}

int Stand::SetPressure(int channel, double psi, double divisor) {
  const double counts = psi / divisor * 5120;
  const auto high = static_cast<int>(std::nearbyint(counts)) / 256;
  const auto low = static_cast<int>(std::nearbyint(counts - 256 * high));
  const auto h = static_cast<std::uint8_t>(high);
  const auto l = static_cast<std::uint8_t>(low);
  return Routine(0x06, {static_cast<std::uint8_t>(channel), l, h, l, h, 0xE8, 3}, 4);
}

// --- Pressure -----------------------------------------------------------------------------------

int Stand::Pressure() {
  rows.fill("");
  Open("frmPressureTest", {"cmdCancel", "cmdStart"});
  Run(0.45, [this] { PressureTick(); });
  return result_;
}

void Stand::PressureTick() {
  const bool mechanical = record.nMechanicalSuspension.Load() == 1;
  const double demand = record.dServiceBrake.Load();
  const double first = record.dControlPressure1.Load();
  const double first_target = record.dTargetPressure1.Load();
  switch (state) {
    case 1:
      if (mechanical) {
        state = 2;
      } else if (demand == -1.0 || demand > 181.9) {
        status_ = "Control Pressure not valid.";
      } else {
        status_ = "Waiting for no control pressure (< 2.9 psi) ...";
        if (demand < 2.9) state = 2;
      }
      break;
    case 2:
      status_ = "Waiting for supply pressure greater than 72.5 psi...";
      if (record.dSupplyPress.Load() <= 72.5) break;
      Routine(0x37, {0, 0, 2});
      state = 3;
      break;
    case 3:
      if (mechanical || record.dMainBellows.Load() > 2.17)
        state = 4;
      else
        status_ = "Bellows pressure is too low (less than 2.17 psi).";
      break;
    case 4:
      return Measure(0, true, 0, 0);
    case 5:
      return Measure(2, true, first, first_target);
    case 6:
      return Measure(4, true, record.dControlPressure2.Load(), record.dTargetPressure2.Load());
    case 7:
      return Measure(6, false, 0, 0);
    case 8:
      return Measure(8, false, first, first_target);
    default:
      result_ = 1;
      Close();
  }
}

void Stand::Measure(int row, bool laden, double control, double wanted) {
  status_ = laden ? "Testing Laden..." : "Testing Unladen...";
  if (record.nMechanicalSuspension.Load() == 1)
    SetPressure(6, laden ? record.dLadenHeightValue.Load() : 0);
  else if (laden)
    SetPressure(4, record.dLadenBellows.Load(), 14.4);
  else
    SetPressure(4, record.dUnladenBellows.Load());
  SetPressure(0, control);
  Pass(0.4);
  if (name_.empty()) return;
  const double told[] = {record.dBrake1Press.Load(), record.dBrake2Press.Load()};
  for (int side = 0; side < 2; ++side) {
    const bool well = std::abs(told[side] - wanted) <= 2.9;
    rows[static_cast<std::size_t>(row + side)] = well ? "OK" : "Testing...";
    if (!well) return;
  }
  ++state;
}

// --- Redundancy ---------------------------------------------------------------------------------

int Stand::Redundancy() {
  h1 = h2 = "";
  stored_h1 = stored_h2 = 0;
  Open("frmRedundancyTest", {"cmdStop", "cmdClose"});
  Run(0.45, [this] { RedundancyTick(); });
  return result_;
}

void Stand::RedundancyTick() {
  const double supply = record.dSupplyPress.Load();
  const double demand = record.dServiceBrake.Load();
  switch (state) {
    case 1:
      status_ = "Waiting for SUPPLY PRESSURE to reach 80 psi...";
      if (supply > 80) state = 2;
      break;
    case 2:
      status_ = "Waiting for CONTROL PRESSURE to reach 80 psi...";
      if (demand <= 80) break;
      Routine(0x37, {0, 0, 1});
      status_ = "Waiting for ECU to switch into redundancy mode (5 seconds)...";
      Pass(5);
      state = 3;
      break;
    case 3:
      status_ = "Waiting for supply pressure to reach 79.75 psi...";
      if (supply > 79.75) state = 4;
      break;
    case 4:
      status_ = "Waiting for control pressure to reach 75.4 psi...";
      if (demand > 75.4) state = 5;
      break;
    case 5:
      target = std::min(supply, demand);
      Pass(2);
      state = 6;
      compared_h1 = record.dBrake1Press.Load();
      h1 = std::abs(record.dBrake1Press.Load() - target) > 5.8 ? "Fail" : "Pass";
      if (h1 == "Fail") break;
      stored_h1 = static_cast<int>(std::nearbyint(record.dBrake1Press.Load()));
      h2 = std::abs(record.dBrake2Press.Load() - target) > 5.8 ? "Fail" : "Pass";
      if (h2 == "Fail") break;
      stored_h2 = static_cast<int>(std::nearbyint(record.dBrake2Press.Load()));
      result_ = 1;
      Pass(1);
      break;
    default:
      Close();
  }
}

// --- Sensors ------------------------------------------------------------------------------------

void Stand::PlanTires() {
  spin_order_.clear();
  expected_.clear();
  std::map<int, int> sensor_at;  // by position
  const int axles = record.nNumAxles.Load();
  const bool rear = record.nMounting.Load() == 1;
  const int first = axles == 3 ? 1 : 2;
  for (int axle = 0; axle < axles; ++axle) {
    const int pair = record.nAxleSensors[static_cast<std::size_t>(axle)].Load();
    if (pair != 1 && pair != 2) continue;
    const int near = pair == 1 ? 2 : 4;  // "d" or "f", the other is the next
    sensor_at[first + axle] = rear ? near + 1 : near;
    sensor_at[first + axle + 3] = rear ? near : near + 1;
  }
  for (const int position : {1, 2, 3, 6, 5, 4}) {
    if (!sensor_at.contains(position)) continue;
    spin_order_.push_back(position);
    expected_.push_back(sensor_at[position]);
  }
}

int Stand::Sensors() {
  PlanTires();
  highest.fill(0);
  last_speed_.fill(0);
  red = false;
  tire_ = 0;
  step_ = 1;
  Open("frmSensorOrientation", {"StopButton", "CloseButton"});
  Run(0.8, [this] { SensorTick(); });
  state = step_;
  return result_;
}

void Stand::ReleaseAll() {
  for (const int channel : {1, 2, 0}) Free(channel);
  for (const std::uint8_t step : {1, 2, 0}) Routine(0x41, {6, step});
  Routine(0x37, {0, 0, 1});
}

void Stand::SensorTick() {
  const bool one_modulator = record.bNumModulators.Load() == 1;
  bool any_moves = false;
  for (std::size_t i = 0; i < expected_.size(); ++i) {
    const auto index = static_cast<std::size_t>(expected_[i]);
    const double speed = record.dWheelSpeed[index].Load();
    if (speed <= 4) continue;
    any_moves = true;
    last_speed_[i] = speed;
    highest[index] = std::max(highest[index], speed);
  }
  if (step_ == 1) {
    if (!one_modulator && record.dSupplyPress.Load() < 72.5) {
      status_ = "Reservoir pressure must be > 72.5 psi.  Increase pressure.";
      return;
    }
    Routine(0x37, {0, 0, 2});
    step_ = 2;
    if (any_moves) status_ = "The vehicle is not at a standstill! Click STOP to end testing.";
  } else if (step_ == 2) {
    status_ = "Spin Tire " + std::to_string(tire_ + 1);
    yellow_ = spin_order_[tire_];
    deadline_ = clock_;
    step_ = 3;
  } else if (step_ == 3) {
    Spin(any_moves);
  } else if (step_ == 4) {
    for (std::size_t i = 0; i < expected_.size(); ++i) {
      const double speed = record.dWheelSpeed[static_cast<std::size_t>(expected_[i])].Load();
      if (speed == last_speed_[i] || speed <= 5) continue;
      last_speed_[i] = speed;
      status_ = "The vehicle is not at a standstill! Click STOP to end testing.";
      return;
    }
    step_ = 2;
    if (++tire_ < spin_order_.size()) return;
    status_ = "All Sensors tested, Click STOP to end testing.";
    result_ = 1;
    ReleaseAll();
    step_ = 5;
  } else if (step_ == 5) {
    Close();
  }
}

void Stand::Spin(bool any_moves) {
  const bool one_modulator = record.bNumModulators.Load() == 1;
  const bool rear = record.nMounting.Load() == 1;
  const int own = one_modulator ? 1 : (spin_order_[tire_] <= 3) != rear ? 1 : 2;
  if (clock_ >= deadline_) {
    Brake(0);
    if (!one_modulator) Brake(3 - own);
    Free(own);
    deadline_ = clock_ + 5;
  }
  if (!any_moves) return;
  for (std::size_t i = 0; i < expected_.size(); ++i) {
    const auto index = static_cast<std::size_t>(expected_[i]);
    if (record.dWheelSpeed[index].Load() <= 4) continue;
    if (i == tire_) {
      record.dWheelSpeed[index].Store(0);
      Brake(own);
      Pass(0.5);
      step_ = 4;
    } else {
      status_ = "Sensor Order does NOT match configuration! Click STOP to end testing.";
      red = true;
    }
  }
}

// --- Lamp and height ----------------------------------------------------------------------------

int Stand::Lamp() {
  Open("frmLampTest", {"cmdYes", "cmdNo"});
  status_ = "Do You See The Warning Lamp Blinking ON and OFF?";
  std::uint8_t lamp = 0;
  Run(0.8, [&] {
    lamp = lamp == 0 ? 1 : 0;
    Routine(0x07, {lamp, 0xE8, 3});
  });
  return result_;
}

int Stand::Height() {
  Open("frmSuspensionCal", {"cmdClose"});
  Run(0.5, [&] {
    std::array<std::uint8_t, 11> data = {1, 0, 0xFF, 0xFF};
    link.Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data());
    const int counts = data[2] * 256 + data[3];
    status_ = counts == 0xFFFF ? "n/a" : std::to_string(counts);
    std::erase(buttons_, "cmdCalHgtSensor_0");
    if (counts >= 1141 && counts <= 1486) buttons_.push_back("cmdCalHgtSensor_0");
  });
  if (result_ == 0) return 0;
  result_ = Routine(0x3C, {1}, 4) == 0 ? 1 : 0;
  Routine(0x05, {});
  for (int i = 0; i < 4 && link.ClearAllFaults() != 0; ++i) {
  }
  return result_;
}

std::string Stand::SignOff() {
  const int modulators = record.bNumModulators.Load();
  if (modulators != 1 && Pressure() != 1) return "Pressure";
  if (modulators != 1 && Redundancy() != 1) return "Redundancy";
  if (Sensors() != 1) return "Sensor";
  if (Lamp() != 1) return "Lamp";
  if (record.nMechanicalSuspension.Load() == 1 && Height() != 1) return "Calibration";
  std::array<std::uint8_t, 2> flag = {1, 0};
  const bool written = link.Trailer_ABS_KWP_WriteMemoryByLocId(0x2A, 2, flag.data()) == 0;
  Routine(0x05, {});
  Pass(2);
  faults_cleared = link.Get("faults");
  link.ClearAllFaults();
  Pass(2);
  for (int i = 0; i < 4 && link.ResetECU() != 0; ++i) {
  }
  Pass(6);
  return written ? "" : "Flag";
}

}  // namespace lorimet::simulator
