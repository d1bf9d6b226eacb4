// A person signs a trailer off by hand: the program and the bench as two processes on one simulated
// trailer, and nobody who knows more than the two windows show.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "autotests/process/display.h"
#include "autotests/process/running_program.h"

namespace lorimet {
namespace {

using namespace std::chrono_literals;

class BenchWalkTest : public ProcessTest {
 protected:
  static constexpr auto kPatience = 500s;  // of a walk that takes a minute
  static constexpr auto kLook = 100ms;
  static constexpr auto kAgain = 6s;  // until what has not helped is done once more
  static constexpr auto kAnswer = 3s;
  static inline const std::vector<std::string> kInTheCorner = {"-qwindowgeometry", "+0+0"};

  // By mouse and keyboard on a display where there can be one, else by the window system's events.
  BenchWalkTest() : display_(Display::Open(folder / "display.output")) {
    if (!display_) return;
    environment["QT_QPA_PLATFORM"] = "xcb";
    environment["DISPLAY"] = display_->Name();
  }

  // Clicks in the middle of a control, as soon as it can be reached.
  void Press(const Run& run, const std::string& window, const std::string& control) {
    const std::string target = window + " " + control;
    if (!display_) {
      EXPECT_TRUE(run.Tell("press " + target)) << target;
      return;
    }
    std::optional<std::string> place;
    EXPECT_TRUE(Eventually([&] { return (place = run.Ask("where " + target)).has_value(); }))
        << target;
    if (window == "frmBench") display_->Raise("Trailer Bench");
    if (place) display_->Click(*place);
  }

  void BeginSignOff(const Run& program) {
    if (display_) {
      Press(program, "frmZeltMain", "mnuABS_1");
      Press(program, "frmZeltMain", "mnuSignOff_0");
    } else {
      ASSERT_TRUE(program.Tell("trigger frmZeltMain mnuSignOff_0"));
    }
  }

  // One by the mouse, the next by its key.
  void Spin(const Run& bench, const std::string& wheel) {
    if (spins_++ % 2 == 0)
      Press(bench, "frmBench", "wheel_" + wheel);
    else if (display_)
      display_->KeyTo("Trailer Bench", wheel);
    else
      EXPECT_TRUE(bench.Tell("key frmBench " + wheel)) << wheel;
  }

  // What to do next, as the bench says.
  static std::string Next(const Run& bench) { return bench.Get("frmBench", "lblNext", "text"); }

  // Does at the bench what its line says, once for each time that it says so, but pumps on.
  void Obey(const Run& bench, const Run& program) {
    const std::string next = Next(bench);
    const bool pump = next.starts_with("Fill the reservoir");
    const auto now = std::chrono::steady_clock::now();
    if (next == last_ && !pump && now < obeyed_ + kAgain) return;
    last_ = next;
    obeyed_ = now;
    heard_.insert(next);
    if (pump) Press(bench, "frmBench", "cmdPump");
    if (next.starts_with("Press the pedal")) Press(bench, "frmBench", "cmdPress");
    if (next.starts_with("Release the pedal")) Press(bench, "frmBench", "cmdRelease");
    if (next == "Release the parking brake.") Press(bench, "frmBench", "chkParkingBrake");
    if (next.starts_with("Spin wheel ")) Spin(bench, next.substr(11, 1));
    if (next == "It blinks here: answer Yes." && program.Ask("where frmLampTest cmdYes"))
      Press(program, "frmLampTest", "cmdYes");
  }

  // Reads the program's message, if one stands, and puts it away: OK, or No to a question.
  void ReadMessage(const Run& program) {
    const auto text = program.Ask("get msgBox . text");
    if (!text) return;
    messages_.insert(*text);
    if (display_)
      display_->Key("Escape");
    else
      program.Ask("key msgBox Escape");
    const auto limit = std::chrono::steady_clock::now() + kAnswer;
    while (program.Ask("get msgBox . text") == text && std::chrono::steady_clock::now() < limit)
      std::this_thread::sleep_for(kLook);
  }

  std::unique_ptr<Display> display_;
  std::string last_;
  std::chrono::steady_clock::time_point obeyed_;
  int spins_ = 0;
  std::set<std::string> heard_;
  std::set<std::string> messages_;
};

TEST_F(BenchWalkTest, WhoFollowsTheBenchSignsATrailerOff) {
  WriteFile(folder / "trailer.scenario",
            "configuration 2S/2M\naxles 2\nsupply 62\ncompressor off\nparking_brake on\n");
  environment["LORIMET32_SCENARIO"] = folder / "trailer.scenario";
  NameLauncher(InBuild("lorimet_bench_window"));
  Run bench(*this, "bench", "lorimet_bench_window");
  ASSERT_TRUE(bench.Shows("frmBench", "lblWaits", "text", "There is no simulated trailer."));
  Run program(*this, "program", "lorimet", kInTheCorner);
  ASSERT_TRUE(program.Shows("frmZeltMain", "txtConfig", "text", "2S/2M"));
  ASSERT_TRUE(Eventually([&] {
    Obey(bench, program);
    return Next(bench).starts_with("Choose Sign-off");
  }));
  BeginSignOff(program);
  const auto limit = std::chrono::steady_clock::now() + kPatience;
  const auto signed_off = [&] {
    return bench.Get("frmBench", "lblWaits", "text") == "The trailer is signed off.";
  };
  while (!signed_off() && std::chrono::steady_clock::now() < limit) {
    Obey(bench, program);
    ReadMessage(program);
    std::this_thread::sleep_for(kLook);  // the two programs run in real time
  }
  EXPECT_TRUE(signed_off()) << Next(bench);
  ASSERT_TRUE(Eventually([&] {
    ReadMessage(program);
    return messages_.contains("Do you want to print the data?");
  }));
  EXPECT_TRUE(heard_.contains("Press the pedal to 90 psi and hold it."));
  EXPECT_GE(spins_, 2);
  Trailer("get flag");
  EXPECT_TRUE(Eventually([&] { return ReadFile(folder / "control.answers") == "1 ok 1\n"; }));

  ASSERT_TRUE(program.Tell("close frmZeltMain"));
  EXPECT_EQ(program.ExitStatus(), 0);
  EXPECT_TRUE(bench.Shows("frmBench", "lblWaits", "text", "There is no simulated trailer."));
  EXPECT_TRUE(bench.Stands());
  const std::size_t expected = display_ ? 2 : 1;
  EXPECT_TRUE(Eventually([&] { return LivingChildren().size() == expected; }))
      << "the bench that the program has started does not make way for this one";
  EXPECT_EQ(bench.Ask("windows"), "frmBench") << "no box about a launcher that is not there";
}

TEST_F(BenchWalkTest, TheBenchComesAndGoesAndTheProgramDoesNotNotice) {
  Run program(*this, "program");
  ASSERT_TRUE(program.Shows("frmZeltMain", "txtConfig", "text", "4S/2M"));
  {
    Run bench(*this, "bench", "lorimet_bench_window");
    ASSERT_TRUE(
        bench.Shows("frmBench", "lblWaits", "text", "The program is connected and waits for you."));
    Run second(*this, "second", "lorimet_bench_window");
    EXPECT_EQ(second.ExitStatus(), 0) << "one bench a trailer";
    EXPECT_TRUE(bench.Stands());
    ASSERT_TRUE(bench.Tell("close frmBench"));
    EXPECT_EQ(bench.ExitStatus(), 0);
  }
  EXPECT_TRUE(program.Stands());
  EXPECT_EQ(program.Ask("windows"), "frmZeltMain");
  Run bench(*this, "again", "lorimet_bench_window");
  EXPECT_TRUE(
      bench.Shows("frmBench", "lblWaits", "text", "The program is connected and waits for you."));
}

}  // namespace
}  // namespace lorimet
