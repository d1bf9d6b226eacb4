// The end-of-line tests of the tool in miniature: their timers, states, bounds and calls, over a
// simulated trailer in virtual time, with the scripted operator in front.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "session/ecu_data.h"
#include "simulator/library/link.h"
#include "simulator/operator/link_yard.h"
#include "simulator/operator/scripted_operator.h"

namespace lorimet::simulator {

class Stand : public Screen {
 public:
  explicit Stand(const std::string& scenario, const OperatorHabits& habits = {});

  // Connects, reads the static data and opens session and access.
  void Begin();
  // Each shows its screen until it closes itself or the operator closes it; 1 when it has passed.
  int Pressure();
  int Redundancy();
  int Sensors();
  int Lamp();
  int Height();
  // All of them in the order of a sign-off; the name of the first that fails, or empty.
  std::string SignOff();

  // Screen
  std::string Name() const override { return name_; }
  std::string Status() const override { return status_; }
  int YellowTire() const override { return yellow_; }
  bool CanPress(std::string_view button) const override;
  void Press(std::string_view button) override;

  void Pass(double seconds);

  Link link;
  ECUData record = {};
  int state = 0;                     // of the last test
  std::string status;                // of the last test, as it was when its screen closed
  std::array<std::string, 10> rows;  // of the pressure test
  std::string h1, h2;                // of the redundancy test
  int stored_h1 = 0, stored_h2 = 0;
  double compared_h1 = 0;  // what stood against the target
  double target = 0;
  std::array<double, 6> highest = {};  // of the sensor test, by the record's index
  bool red = false;                    // a wrong sensor has answered
  double seconds = 0;                  // that the last test took
  bool closed_by_operator = false;
  int ticks = 0;
  std::string faults_cleared;  // how many there were when the sign-off cleared them
  ScriptedOperator hand;

 private:
  void Open(const char* name, std::vector<std::string> buttons);
  // Runs ticks until the screen is closed.
  template <typename Tick>
  void Run(double interval, Tick tick);
  void Close();
  int Routine(std::uint8_t id, std::vector<std::uint8_t> data, int tries = 1);
  int SetPressure(int channel, double psi, double divisor = 14.5);
  void Brake(int channel) { Routine(0x06, {std::uint8_t(channel), 0, 0x44, 0, 0x44, 0xE8, 3}); }
  void Free(int channel) { Routine(0x06, {std::uint8_t(channel), 0, 0, 0, 0, 0xE8, 3}); }
  void ReleaseAll();
  void PressureTick();
  void Measure(int row, bool laden, double control, double wanted);
  void RedundancyTick();
  void SensorTick();
  void Spin(bool any_moves);
  void PlanTires();

  LinkStatus link_status_ = {};
  LinkYard yard_{link};
  std::string name_;
  std::string status_;
  std::vector<std::string> buttons_;
  int yellow_ = 0;
  int result_ = 0;
  int step_ = 0;  // of the sensor test
  std::size_t tire_ = 0;
  std::vector<int> spin_order_;  // positions
  std::vector<int> expected_;    // sensor indices
  std::array<double, 6> last_speed_ = {};
  double deadline_ = 0;
  double clock_ = 0;
};

}  // namespace lorimet::simulator
