// The operator's part in the end-of-line tests, played by itself: pumps, brakes, spins, adjusts and
// answers, by what the tool and the yard show.
#pragma once

#include <string>

#include "simulator/operator/screen.h"

namespace lorimet::simulator {

// How the operator works; the mistakes that one can make are switched on here.
struct OperatorHabits {
  double pedal = 90;             // psi, where control pressure is asked for
  double spin_mph = 7;           // what his hand gives a wheel
  bool spins_another = false;    // turns the wheel on the other axle of the same side first
  bool holds_pedal = false;      // does not let go of it
  bool closes_early = false;     // closes each test as soon as it has begun
  bool sees_every_lamp = false;  // says Yes to a dead lamp
};

class ScriptedOperator {
 public:
  // From a yellow tyre to his hand: the tool's next tick frees the wheel, and he walks there.
  static constexpr double kSpinSeconds = 2.3;
  static constexpr double kSpinAgainSeconds = 6;
  static constexpr double kLampSeconds = 5;       // that he watches the lamp
  static constexpr int kLampRises = 2;            // that make it blink
  static constexpr double kBoxSeconds = 0.5;      // until he has read a message
  static constexpr double kPatienceSeconds = 20;  // without progress

  // Both outlive the operator.
  ScriptedOperator(Screen& screen, Yard& yard, const OperatorHabits& habits = {})
      : screen_(screen), yard_(yard), habits_(habits) {}

  // Looks around after so many seconds more; to be called at least ten times a second.
  void Step(double seconds);
  // How often he has given up a test.
  int GivenUp() const { return given_up_; }

 private:
  void Read(const std::string& message, double seconds);
  void Arrive(const std::string& name);
  void Leave();
  void NoteProgress();
  void Redundancy();
  void Sensors();
  void Lamp();
  void Height();
  void GiveUp();
  void PressIf(std::string_view button);
  int TireToSpin() const;

  Screen& screen_;
  Yard& yard_;
  OperatorHabits habits_;
  std::string message_;    // that he reads
  double read_ = 0;        // seconds at that message
  std::string name_;       // of the screen that he works at
  std::string status_;     // as he last read it
  double now_ = 0;         // seconds at this screen
  double progressed_ = 0;  // when something moved
  int tire_ = 0;
  double spin_at_ = 0;
  bool spun_another_ = false;
  bool pressing_ = false;
  bool lamp_was_lit_ = true;
  int lamp_rises_ = 0;
  int given_up_ = 0;
  bool giving_up_ = false;
};

}  // namespace lorimet::simulator
