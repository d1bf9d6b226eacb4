#include "simulator/trailer/wheels.h"

#include <algorithm>

namespace lorimet::simulator {
namespace {

constexpr int kRiseSteps = StepsIn(Wheels::kHandRiseSeconds);
constexpr int kHoldSteps = StepsIn(Wheels::kHandHoldSeconds);

}  // namespace

void Wheels::Spin(int position, double mph) {
  if (!Turnable(position)) return;
  Wheel& wheel = At(position);
  wheel.from = wheel.speed;
  wheel.to = mph;
  wheel.hand = 1;
}

void Wheels::SetSpeed(int position, double mph) {
  if (!Turnable(position)) return;
  At(position).speed = mph;
  At(position).hand = 0;
}

bool Wheels::AnyTurns() const {
  return std::any_of(wheels_.begin(), wheels_.end(),
                     [](const Wheel& wheel) { return wheel.speed > 0; });
}

void Wheels::StepHand(Wheel& wheel) {
  const double share = std::min(1.0, static_cast<double>(wheel.hand) / kRiseSteps);
  wheel.speed = wheel.from + (wheel.to - wheel.from) * share;
  if (++wheel.hand > kRiseSteps + kHoldSteps) wheel.hand = 0;
}

void Wheels::StepFree(Wheel& wheel, double brake, const RollInputs& inputs) {
  double slowing = kCoastRate + kBrakeRate * std::max(0.0, brake - kBrakeBegin);
  if (inputs.parking_brake) slowing += kParkingRate;
  if (inputs.road_speed <= 0 && inputs.grip <= 0) {
    wheel.speed = std::max(0.0, wheel.speed - slowing * kStepSeconds);
    return;
  }
  // The road takes the wheel along as far as its grip reaches.
  const double braked = std::max(0.0, wheel.speed - slowing * kStepSeconds);
  const double pull = inputs.grip * kStepSeconds;
  wheel.speed = std::clamp(inputs.road_speed, braked - pull, braked + pull);
}

void Wheels::Step(const RollInputs& inputs) {
  brakes_ = inputs.brake;
  parking_brake_ = inputs.parking_brake;
  for (int position = 1; position <= kPositions; ++position) {
    Wheel& wheel = At(position);
    if (wheel.hand != 0 && !Turnable(position)) wheel.hand = 0;
    if (wheel.hand != 0)
      StepHand(wheel);
    else if (wheel.speed > 0 || inputs.grip > 0)
      StepFree(wheel, Brake(position), inputs);
  }
}

}  // namespace lorimet::simulator
