// A person signs a trailer off by hand: the program and the bench as two processes on one simulated
// trailer, and nobody who knows more than the two windows show.
#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>
#include <thread>

#include "autotests/process/running_program.h"

namespace lorimet {
namespace {

using namespace std::chrono_literals;

class BenchWalkTest : public ProcessTest {
 protected:
  static constexpr auto kPatience = 100s;
  static constexpr auto kLook = 100ms;

  // What to do next, as the bench says.
  static std::string Next(const Run& bench) { return bench.Get("frmBench", "lblNext", "text"); }
  static void PressThere(const Run& bench, const std::string& control) {
    EXPECT_TRUE(bench.Tell("press frmBench " + control)) << control;
  }

  // Does at the bench what its line says, once for each time that it says so, but pumps on.
  void Obey(const Run& bench, const Run& program) {
    const std::string next = Next(bench);
    const bool pump = next.starts_with("Fill the reservoir");
    if (next == last_ && !pump) return;
    last_ = next;
    heard_.insert(next);
    if (pump) PressThere(bench, "cmdPump");
    if (next.starts_with("Press the pedal")) PressThere(bench, "cmdPress");
    if (next.starts_with("Release the pedal")) PressThere(bench, "cmdRelease");
    if (next == "Release the parking brake.") PressThere(bench, "chkParkingBrake");
    if (next.starts_with("Spin wheel ")) PressThere(bench, "wheel_" + next.substr(11, 1));
    if (next == "It blinks here: answer Yes.") {
      EXPECT_TRUE(program.Tell("click frmLampTest cmdYes"));
    }
  }

  // Reads the program's message, if one stands, and puts it away: OK, or No to a question.
  void ReadMessage(const Run& program) {
    const auto text = program.Ask("get msgBox . text");
    if (!text) return;
    messages_.insert(*text);
    program.Ask("key msgBox Escape");
  }

  std::string last_;
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
  Run program(*this, "program");
  ASSERT_TRUE(program.Shows("frmZeltMain", "txtConfig", "text", "2S/2M"));
  ASSERT_TRUE(Eventually([&] {
    Obey(bench, program);
    return Next(bench).starts_with("Choose Sign-off");
  }));
  ASSERT_TRUE(program.Tell("trigger frmZeltMain mnuSignOff_0"));
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
  Trailer("get flag");
  EXPECT_TRUE(Eventually([&] { return ReadFile(folder / "control.answers") == "1 ok 1\n"; }));

  ASSERT_TRUE(program.Tell("close frmZeltMain"));
  EXPECT_EQ(program.ExitStatus(), 0);
  EXPECT_TRUE(bench.Shows("frmBench", "lblWaits", "text", "There is no simulated trailer."));
  EXPECT_TRUE(bench.Stands());
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
