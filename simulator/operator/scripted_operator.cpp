#include "simulator/operator/scripted_operator.h"

#include <algorithm>
#include <iterator>

namespace lorimet::simulator {
namespace {

constexpr std::string_view kPressure = "frmPressureTest";
constexpr std::string_view kRedundancy = "frmRedundancyTest";
constexpr std::string_view kSensors = "frmSensorOrientation";
constexpr std::string_view kLamp = "frmLampTest";
constexpr std::string_view kHeight = "frmSuspensionCal";

// What tells something and wants to be read; it may stand over a test.
constexpr std::string_view kBox = "msgBox";
constexpr std::string_view kErrorScreens[] = {"frmErr", "frmRP1210Err"};

bool IsMessage(std::string_view name) {
  return name == kBox || std::ranges::find(kErrorScreens, name) != std::end(kErrorScreens);
}

}  // namespace

void ScriptedOperator::Step(double seconds) {
  const std::string name = screen_.Name();
  if (IsMessage(name)) return Read(name, seconds);
  message_.clear();
  now_ += seconds;
  if (name != name_) {
    Leave();
    Arrive(name);
  }
  if (name_.empty()) return;
  NoteProgress();
  if (habits_.closes_early || giving_up_ || now_ - progressed_ > kPatienceSeconds) {
    GiveUp();
    return;
  }
  if (name_ == kRedundancy) Redundancy();
  if (name_ == kSensors) Sensors();
  if (name_ == kLamp) Lamp();
  if (name_ == kHeight) Height();
}

void ScriptedOperator::Read(const std::string& message, double seconds) {
  if (message != message_) read_ = 0;
  message_ = message;
  read_ += seconds;
  if (read_ < kBoxSeconds) return;
  read_ = 0;  // another one may stand there at once
  for (const std::string_view button : {"yes", "ok", "cmdOK"}) {
    if (!screen_.CanPress(button)) continue;
    return screen_.Press(button);
  }
}

void ScriptedOperator::Arrive(const std::string& name) {
  name_ = name;
  status_.clear();
  now_ = 0;
  progressed_ = 0;
  tire_ = 0;
  spun_another_ = false;
  lamp_was_lit_ = true;
  lamp_rises_ = 0;
  giving_up_ = false;
  if (name_ == kPressure) {
    yard_.Do("load unladen");
    if (!habits_.holds_pedal) yard_.Do("press demand 0");
  }
  if (name_ == kSensors) yard_.Do("parking_brake off");
  if (name_ == kHeight) yard_.Do("lever 0");
}

void ScriptedOperator::Leave() {
  if (name_ != kRedundancy) return;
  if (pressing_ && !habits_.holds_pedal) yard_.Do("press demand 0");
  pressing_ = false;
}

void ScriptedOperator::NoteProgress() {
  if (name_ == kHeight) return;  // counts that flicker are no progress
  const std::string status = screen_.Status();
  const int tire = screen_.YellowTire();
  if (status != status_ || tire != tire_) progressed_ = now_;
  status_ = status;
  if (tire == tire_) return;
  tire_ = tire;
  spin_at_ = now_ + kSpinSeconds;
}

void ScriptedOperator::Redundancy() {
  if (pressing_ || status_.find("CONTROL PRESSURE") == std::string::npos) return;
  pressing_ = true;
  yard_.Do("press demand " + std::to_string(habits_.pedal));
}

// The wheel of the yellow tyre, or by mistake, once, the one behind or in front of it.
int ScriptedOperator::TireToSpin() const {
  if (!habits_.spins_another || spun_another_) return tire_;
  const bool first = tire_ == 1 || tire_ == 4;
  const bool before = !first && !yard_.See("wheel " + std::to_string(tire_ - 1) + " speed").empty();
  return before ? tire_ - 1 : tire_ + 1;
}

void ScriptedOperator::Sensors() {
  if (tire_ == 0 || now_ < spin_at_) return;
  spin_at_ = now_ + kSpinAgainSeconds;
  yard_.Do("spin " + std::to_string(TireToSpin()) + " " + std::to_string(habits_.spin_mph));
  spun_another_ = true;
}

void ScriptedOperator::Lamp() {
  const bool lit = yard_.See("lamp lit") == "on";
  if (lit && !lamp_was_lit_) ++lamp_rises_;
  lamp_was_lit_ = lit;
  if (lamp_rises_ >= kLampRises || (habits_.sees_every_lamp && now_ >= kLampSeconds))
    PressIf("cmdYes");
  else if (now_ >= kLampSeconds)
    PressIf("cmdNo");
}

void ScriptedOperator::Height() { PressIf("cmdCalHgtSensor_0"); }

void ScriptedOperator::GiveUp() {
  if (!giving_up_) ++given_up_;
  giving_up_ = true;
  for (const std::string_view button :
       {"StopButton", "cmdStop", "CloseButton", "cmdClose", "cmdCancel", "cmdNo"}) {
    if (!screen_.CanPress(button)) continue;
    screen_.Press(button);
    return;
  }
}

void ScriptedOperator::PressIf(std::string_view button) {
  if (screen_.CanPress(button)) screen_.Press(button);
}

}  // namespace lorimet::simulator
