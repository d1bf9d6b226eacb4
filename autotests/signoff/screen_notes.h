// What a test's screen showed while the operator worked at it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "autotests/common/operated_program.h"

namespace lorimet::testing_support {

// Looks as often as the operator does, and before he acts: what stands here at the end is what
// stood on each screen when it closed.
class ScreenNotes {
 public:
  // The program outlives the notes.
  explicit ScreenNotes(OperatedProgram& stand) : stand_(stand) {
    stand.on_look = [this] { Look(); };
  }
  ~ScreenNotes() { stand_.on_look = nullptr; }
  ScreenNotes(const ScreenNotes&) = delete;
  ScreenNotes& operator=(const ScreenNotes&) = delete;

  // The line of status when the last screen closed, and all of them, each once in a row.
  std::string status;
  std::vector<std::string> statuses;
  double seconds = 0;  // that the last screen stood
  // The pressure test's.
  std::array<std::string, 10> rows;
  std::array<std::string, 10> actual;
  // The redundancy test's.
  std::string h1, h2, target, actual_h1, actual_h2;
  // The sensor test's, by the spin step from 0: the field "Order Seen" and whether it was ever red.
  std::array<std::string, 4> seen;
  std::array<bool, 4> green{};
  bool red = false;
  std::vector<int> tires;     // that were yellow, in order
  std::vector<int> red_from;  // the yellow tyre at which a field turned red
  // The height screen's.
  std::string counts;
  bool could_calibrate = false;
  // The most faults that the ECU held meanwhile.
  int faults = 0;

 private:
  void Look();
  void LookAtPressureTest();
  void LookAtRedundancyTest();
  void LookAtSensorTest();

  OperatedProgram& stand_;
  std::string name_;
  double arrived_ = 0;
};

}  // namespace lorimet::testing_support
