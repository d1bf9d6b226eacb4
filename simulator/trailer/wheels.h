// The wheels by their positions: they stand still, are spun by hand, roll with the vehicle, and
// coast or are braked down.
#pragma once

#include <array>
#include <cstddef>

#include "simulator/trailer/layout.h"
#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

// The state of the road and of the brakes for one step.
struct RollInputs {
  std::array<double, kPositions> brake = {};  // psi by position less one
  double road_speed = 0;                      // mph of the vehicle, 0 while it stands jacked up
  double grip = 0;                            // mph a second that the road gives a wheel
  bool parking_brake = false;
};

class Wheels {
 public:
  static constexpr double kCoastRate = 1.2;        // mph a second
  static constexpr double kBrakeRate = 0.9;        // mph a second for each psi above kBrakeBegin
  static constexpr double kBrakeBegin = 4;         // psi
  static constexpr double kTurnable = 8;           // psi up to which a hand turns a wheel
  static constexpr double kParkingRate = 200;      // mph a second
  static constexpr double kHandRiseSeconds = 0.5;  // until a hand has reached its speed
  static constexpr double kHandHoldSeconds = 0.4;

  // A hand turns the wheel to a speed in mph, holds it and lets go. A wheel that a hand cannot turn
  // stays as it is.
  void Spin(int position, double mph);
  // The wheel has the speed at once.
  void SetSpeed(int position, double mph);

  double Speed(int position) const { return At(position).speed; }
  double Brake(int position) const { return brakes_[Index(position)]; }
  bool Turnable(int position) const { return Brake(position) <= kTurnable && !parking_brake_; }
  bool AnyTurns() const;

  void Step(const RollInputs& inputs);

 private:
  struct Wheel {
    double speed = 0;
    double from = 0;  // the hand's way: from this speed
    double to = 0;    // to this one
    int hand = 0;     // steps that the hand has worked; 0: no hand
  };

  static std::size_t Index(int position) { return static_cast<std::size_t>(position - 1); }
  Wheel& At(int position) { return wheels_[Index(position)]; }
  const Wheel& At(int position) const { return wheels_[Index(position)]; }
  void StepHand(Wheel& wheel);
  void StepFree(Wheel& wheel, double brake, const RollInputs& inputs);

  std::array<Wheel, kPositions> wheels_ = {};
  std::array<double, kPositions> brakes_ = {};
  bool parking_brake_ = false;
};

}  // namespace lorimet::simulator
