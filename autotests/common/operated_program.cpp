#include "autotests/common/operated_program.h"

#include <stdexcept>
#include <string_view>
#include <utility>

#include "session/session_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

constexpr std::uint32_t kLook = 10;             // ms between two looks of the operator
constexpr std::uint32_t kSeen = 200;            // ms until he has seen that a screen has gone
constexpr std::uint64_t kPatience = 3'600'000;  // ms; a box that stands so long stands for ever

// "Trailer_ABS_KWP_StartRoutineByLocId(...)" is "StartRoutine(...)".
std::string Short(std::string call) {
  for (const std::string_view prefix : {"Trailer_ABS_KWP_", "Trailer_ABS_QOR_", "Trailer_OVG_"})
    if (call.starts_with(prefix)) call.erase(0, prefix.size());
  if (const auto at = call.find("ByLocId("); at != std::string::npos) call.erase(at, 7);
  return call;
}

}  // namespace

HeadlessScreen::HeadlessScreen(HeadlessDesktop& desktop) : FormScreen(desktop), desktop_(desktop) {
  desktop.at_box = [this](const MessageBox& box) { return Stand(box); };
}

unsigned HeadlessScreen::BoxButtons() const {
  const Form* top = Top();
  return top == nullptr || top == under_ ? buttons_ : 0;
}

BoxButton HeadlessScreen::Stand(const MessageBox& box) {
  // The last words of a program that has failed: no look runs any more.
  if (desktop_.life.Failed()) return kBoxOk;
  const unsigned buttons_below = std::exchange(buttons_, box.buttons);
  const Form* under_below = std::exchange(under_, Top());
  answer_.reset();
  for (std::uint64_t stood = 0; !answer_; stood += kLook) {
    if (stood > kPatience) throw std::logic_error("nobody answers the box: " + box.text);
    desktop_.Run(kLook);
  }
  buttons_ = buttons_below;
  under_ = under_below;
  return *std::exchange(answer_, std::nullopt);
}

OperatedProgram::OperatedProgram(const std::string& scenario,
                                 const simulator::OperatorHabits& habits)
    : link(scenario), hand(screen, yard, habits) {
  if (!Trailer().ScenarioError().empty()) throw std::runtime_error(Trailer().ScenarioError());
  std::tm date{};
  date.tm_year = 2026 - 1900;
  date.tm_mon = 10;
  date.tm_mday = 21;
  date.tm_hour = 15;
  clock.SetDate(date);
  Drive(Trailer(), clock);
  Trailer().Log().Keep(true);
  clock.on_sleep = [this](std::uint32_t milliseconds) { NoteSleep(milliseconds); };
  desktop.on_do_events = [this] { hook.Deliver(); };
  desktop.on_unhandled_error = [this](const RuntimeError& error) {
    program.OnUnhandledError(error);
  };
  Look();
  if (program.Start() != EntryResult::kRunning)
    throw std::runtime_error("the program does not start");
}

OperatedProgram::~OperatedProgram() {
  clock.on_advance = nullptr;
  clock.on_sleep = nullptr;
}

void OperatedProgram::Look() {
  desktop.After(kLook, [this] { Look(); });
  const std::uint64_t now = clock.Milliseconds();
  const std::uint64_t before = std::exchange(looked_, now);
  if (on_look) on_look();
  if (operator_works) hand.Step(static_cast<double>(now - before) / 1000);
}

void OperatedProgram::RunTest(int index) {
  Main().mnuTests[index].UserClick();
  desktop.Run(kSeen);
}

void OperatedProgram::SignOff() {
  Main().mnuSignOff[0].UserClick();
  desktop.Run(kSeen);
}

frmZeltMain& OperatedProgram::Main() { return program.session->main_form; }
TestsPart& OperatedProgram::Tests() { return *program.tests; }
TestResults& OperatedProgram::Results() { return program.tests->test_results; }
ECUData& OperatedProgram::Ecu() { return program.session->records.ecu_data; }

void OperatedProgram::NoteCalls() {
  const std::vector<std::string>& lines = Trailer().Log().Lines();
  if (lines.size() == noted_) return;
  sleeps_ = 0;
  for (; noted_ < lines.size(); ++noted_) sequence_.push_back(Short(lines[noted_]));
}

void OperatedProgram::NoteSleep(std::uint32_t milliseconds) {
  NoteCalls();
  if (sleeps_ > 0 && slept_ == milliseconds)
    sequence_.pop_back();
  else
    sleeps_ = 0;
  slept_ = milliseconds;
  std::string entry = "sleep " + std::to_string(milliseconds);
  if (++sleeps_ > 1) entry += " x " + std::to_string(sleeps_);
  sequence_.push_back(std::move(entry));
}

std::vector<std::string> OperatedProgram::TakeSequence() {
  NoteCalls();
  sleeps_ = 0;
  return std::exchange(sequence_, {});
}

}  // namespace lorimet::testing_support
