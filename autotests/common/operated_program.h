// The whole program on a simulated trailer, in virtual time, with the trailer's operator in front.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/simulated_link.h"
#include "autotests/common/stand_ins.h"
#include "program.h"
#include "session/ecu_data.h"
#include "simulator/operator/form_screen.h"
#include "simulator/operator/link_yard.h"
#include "simulator/operator/scripted_operator.h"

namespace lorimet {
class frmZeltMain;
struct TestResults;
struct TestsPart;
}  // namespace lorimet

namespace lorimet::testing_support {

// Tells its sleeps.
class ToldClock : public VirtualClock {
 public:
  std::function<void(std::uint32_t milliseconds)> on_sleep;
  void Sleep(std::uint32_t milliseconds) override {
    if (on_sleep) on_sleep(milliseconds);
    VirtualClock::Sleep(milliseconds);
  }
};

// The headless desktop's screen. A box stands until the operator answers it, and time goes on.
class HeadlessScreen : public simulator::FormScreen {
 public:
  explicit HeadlessScreen(HeadlessDesktop& desktop);
  ~HeadlessScreen() override { desktop_.at_box = nullptr; }

 protected:
  unsigned BoxButtons() const override;
  void AnswerBox(BoxButton answer) override { answer_ = answer; }

 private:
  BoxButton Stand(const MessageBox& box);

  HeadlessDesktop& desktop_;
  unsigned buttons_ = 0;
  const Form* under_ = nullptr;  // the box, when it came
  std::optional<BoxButton> answer_;
};

class OperatedProgram : public StandIns {
 public:
  // Starts the program and connects it. A scenario that is broken, or a program that does not
  // start, is a std::runtime_error.
  explicit OperatedProgram(const std::string& scenario,
                           const simulator::OperatorHabits& habits = {});
  ~OperatedProgram();
  OperatedProgram(const OperatedProgram&) = delete;
  OperatedProgram& operator=(const OperatedProgram&) = delete;

  // Each returns when its last screen and message are gone and the operator has seen it.
  void RunTest(int index);  // of the menu of tests
  void SignOff();

  frmZeltMain& Main();
  TestsPart& Tests();
  TestResults& Results();
  ECUData& Ecu();
  simulator::Link& Trailer() { return link.link; }
  // The calls of the library and the sleeps in the order in which they happened, since the last
  // call: "StartRoutine(0x37, 3, [00 00 02])", "sleep 2000". Equal sleeps in a row are one entry,
  // "sleep 10 x 40".
  std::vector<std::string> TakeSequence();

  ToldClock clock;
  HeadlessDesktop desktop{clock};
  SimulatedLink link;
  Program program{With(desktop, clock, link)};
  HeadlessScreen screen{desktop};
  simulator::LinkYard yard{link.link};
  simulator::ScriptedOperator hand;
  bool operator_works = true;
  // Comes with every look, before he does something.
  std::function<void()> on_look;

 private:
  void Look();
  void NoteSleep(std::uint32_t milliseconds);
  void NoteCalls();

  std::uint64_t looked_ = 0;
  std::size_t noted_ = 0;  // lines of the trailer's log
  std::vector<std::string> sequence_;
  std::uint32_t slept_ = 0;  // milliseconds of each of the sleeps in a row
  int sleeps_ = 0;
};

}  // namespace lorimet::testing_support
