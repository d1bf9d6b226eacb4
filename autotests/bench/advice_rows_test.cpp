// What the bench says of each state of a trailer: both sides of every bound.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "simulator/bench/model/advice.h"
#include "simulator/bench/model/bench.h"
#include "simulator/library/files.h"

namespace lorimet::bench {
namespace {

constexpr char kReleaseFirst[] = "Release the pedal before you sign the trailer off.";
constexpr char kFillFirst[] = "Fill the reservoir before you sign the trailer off.";
constexpr char kUnloadFirst[] = "Unload the trailer before you sign it off.";
constexpr char kBegin[] = "Choose Sign-off, Begin Sign-off Procedure there.";
constexpr char kPress[] = "Press the pedal to 90 psi and hold it.";
constexpr char kFill[] = "Fill the reservoir.";

std::string Routine(const std::string& arguments) {
  return "Trailer_ABS_KWP_StartRoutineByLocId(" + arguments + ")";
}

// The bench in front of a trailer that answers what it is bidden to.
class AdviceRowsTest : public testing::Test {
 protected:
  AdviceRowsTest() { bench_.Open(); }

  void Is(const std::string& name, const std::string& value) { answers_[name] = value; }
  void Tell(const std::string& request) {
    requests_.push_back(request);
    Look();
  }
  void Pass(double seconds) {
    time_ += seconds;
    Look();
  }
  void Connect() { Tell("Connect(137)"); }
  // The session that every test opens.
  void Prepare() {
    Connect();
    Tell(Routine("0x42, 3, [00 00 01]"));
  }
  void TestMode() {
    Prepare();
    Tell(Routine("0x37, 3, [00 00 02]"));
  }
  void Redundancy() {
    TestMode();
    Tell(Routine("0x37, 3, [00 00 01]"));
  }
  void BrakeWheels() {
    TestMode();
    Tell(Routine("0x06, 3, [00 00 44]"));
  }
  void Free(int channel) { Tell(Routine("0x06, 3, [0" + std::to_string(channel) + " 00 00]")); }
  void Brake(int channel) { Tell(Routine("0x06, 3, [0" + std::to_string(channel) + " 00 44]")); }

  std::string Waits() const { return AdviceFor(bench_).waits.key; }
  // What it says with this value.
  std::string Next(const std::string& name, const std::string& value) {
    Is(name, value);
    Look();
    return AdviceFor(bench_).next.key;
  }
  std::string Next() {
    Look();
    return AdviceFor(bench_).next.key;
  }
  int Wheel() const { return AdviceFor(bench_).wheel; }

 private:
  void Look() {
    bench_.Look();
    for (std::string sent; !(sent = bench_.TakeOutgoing()).empty();) {
      std::istringstream lines(sent);
      std::string received;
      for (std::string line; std::getline(lines, line);)
        received += simulator::AnswerLine(++lines_, {Answer(line.substr(4)), ""});
      ASSERT_TRUE(bench_.Receive(received));
    }
  }
  std::string Answer(const std::string& name) const {
    if (name == "time") return std::to_string(time_);
    if (name == "told") return std::to_string(requests_.size());
    if (name.starts_with("request ")) return requests_.at(std::stoul(name.substr(8)) - 1);
    const auto answer = answers_.find(name);
    return answer == answers_.end() ? "0" : answer->second;
  }

  // A trailer that can be signed off.
  std::map<std::string, std::string> answers_ = {
      {"configuration", "4S/2M"},
      {"suspension", "air"},
      {"connection", "on"},
      {"adapter", "on"},
      {"cable", "in"},
      {"power", "on"},
      {"parking_brake", "off"},
      {"ecu", "on"},
      {"supply", "110"},
      {"bellows", "20"},
      {"wheel 1 turnable", "yes"},
      {"wheel 2 turnable", "yes"},
      {"wheel 1 sensor", "f"},
      {"wheel 2 sensor", "d"},
      {"wheel 4 sensor", "e"},
      {"wheel 5 sensor", "c"},
      {"height", "none"},
  };
  std::vector<std::string> requests_;
  double time_ = 10;
  std::size_t lines_ = 0;
  Bench bench_;
};

TEST_F(AdviceRowsTest, BeforeTheSignOffWhatStandsInItsWayIsClearedAway) {
  Connect();
  EXPECT_EQ(Next("control_line", "2.9"), kReleaseFirst);
  EXPECT_EQ(Next("control_line", "2.8"), kBegin);
  EXPECT_EQ(Next("supply", "80"), kFillFirst);
  EXPECT_EQ(Next("supply", "80.1"), kBegin);
  EXPECT_EQ(Next("load", "0.1"), kUnloadFirst);
  EXPECT_EQ(Next("load", "0"), kBegin);
  EXPECT_EQ(Next("flag", "1"), "Choose another trailer, or try what you like.");
  EXPECT_EQ(Next("flag", "2"), kBegin);
}

TEST_F(AdviceRowsTest, ATestThatWaitsForPressureIsGivenIt) {
  constexpr char kRead[] = "Read its screen; in the redundancy test press the pedal to 90 psi.";
  Prepare();
  EXPECT_EQ(Next("supply", "72.5"), kFill);
  EXPECT_EQ(Next("supply", "72.6"), "Read its screen and go on there.");
  EXPECT_EQ(Next("control_line", "2.9"), "Release the pedal.");
  EXPECT_EQ(Next("control_line", "80"), "Release the pedal.");
  EXPECT_EQ(Next("control_line", "80.1"), "Read its screen and go on there.");
  Is("control_line", "0");
  Pass(2.5);
  EXPECT_EQ(Next("bellows", "2.1"), "Read its screen and go on there.");
  Pass(0.1);
  EXPECT_EQ(Next("bellows", "2.17"), "The bellows have no air: mend the defect.");
  EXPECT_EQ(Next("bellows", "2.2"), kRead);
  Is("suspension", "mechanical");
  EXPECT_EQ(Next("control_line", "20"), kRead);
  EXPECT_EQ(Next("bellows", "0"), kRead);
}

TEST_F(AdviceRowsTest, ASystemWithOneModulatorWaitsForNoPressure) {
  Is("configuration", "2S/1M");
  Prepare();
  EXPECT_EQ(Next("supply", "20"), "Read its screen and go on there.");
  EXPECT_EQ(Next("configuration", "2M+1M"), kFill);
}

TEST_F(AdviceRowsTest, AfterThePressuresComesTheRedundancy) {
  TestMode();
  EXPECT_EQ(Waits(), "The program takes over the brakes.");
  Tell(Routine("0x06, 3, [04 00 10]"));
  Pass(1.5);
  EXPECT_EQ(Next(), "Leave the pedal alone and wait.");
  Pass(0.2);
  EXPECT_EQ(Next("supply", "80"), kFill);
  EXPECT_EQ(Next("supply", "80.1"), kPress);
  EXPECT_EQ(Next("control_line", "80"), kPress);
  EXPECT_EQ(Next("control_line", "80.1"), "Read its screen and go on there.");
}

TEST_F(AdviceRowsTest, TheRedundancyTestWantsSupplyThenThePedalAndHasItHeldToItsEnd) {
  Redundancy();
  Is("pedal", "90");
  EXPECT_EQ(Next("supply", "79.75"), kFill);
  EXPECT_EQ(Next("supply", "79.8"), kPress);
  EXPECT_EQ(Next("control_line", "75.4"), kPress);
  EXPECT_EQ(Next("control_line", "75.5"), "Keep the pedal pressed until its screen has closed.");
  Pass(9.4);
  EXPECT_EQ(Next(), "Keep the pedal pressed until its screen has closed.");
  Pass(0.1);
  EXPECT_EQ(Next(), "Release the pedal, then read the program's message.");
  Is("pedal", "0");
  EXPECT_EQ(Next("supply", "72.5"), kFill);
  EXPECT_EQ(Next("supply", "72.6"), "Read the program's message and press OK.");
}

TEST_F(AdviceRowsTest, WheelsAreSpunOneByOneAsTheyAreFreed) {
  constexpr char kSpin[] = "Spin wheel %1 (sensor %2): click it, or press %1.";
  BrakeWheels();
  EXPECT_EQ(Next("parking_brake", "on"), "Release the parking brake.");
  Is("parking_brake", "off");
  const std::string wait = Next();
  EXPECT_NE(wait, kSpin);
  Free(1);
  EXPECT_EQ(Next(), kSpin);
  EXPECT_EQ(Wheel(), 1);
  EXPECT_EQ(Next("wheel 1 speed", "4"), kSpin);
  EXPECT_EQ(Next("wheel 1 speed", "4.1"), "Watch the program's screen.");
  Is("wheel 1 speed", "0");
  EXPECT_EQ(Next("wheel 1 turnable", "no"), "Wait until it can be turned.");
  Brake(2);  // another one: nobody has answered
  EXPECT_EQ(Next("wheel 1 turnable", "yes"), kSpin);
  Brake(1);
  EXPECT_EQ(Next(), wait);
  Free(2);
  EXPECT_EQ(Next(), kSpin);
  EXPECT_EQ(Wheel(), 2);
}

TEST_F(AdviceRowsTest, ASecondTestOfTheWheelsBeginsWithTheFirst) {
  BrakeWheels();
  Free(1);
  Brake(1);
  Tell(Routine("0x41, 0, []"));
  Tell(Routine("0x37, 3, [00 00 00]"));
  EXPECT_EQ(Waits(), "The sensor test has ended.");
  for (const char* again : {"0x42, 3, [00 00 01]", "0x37, 3, [00 00 02]", "0x06, 3, [00 00 44]"})
    Tell(Routine(again));
  Free(1);
  EXPECT_EQ(Next(), "Spin wheel %1 (sensor %2): click it, or press %1.");
  EXPECT_EQ(Wheel(), 1);
}

TEST_F(AdviceRowsTest, ALampBlinksWhenItHasGoneOnTwice) {
  Prepare();
  Tell(Routine("0x07, 1, [01]"));
  EXPECT_EQ(Next("lamp lit", "on"), "Watch the lamp.");
  EXPECT_EQ(Next("lamp lit", "off"), "Watch the lamp.");
  EXPECT_EQ(Next("lamp lit", "on"), "It blinks here: answer Yes.");
}

TEST_F(AdviceRowsTest, ALampThatStaysDarkIsAnsweredNoAfterSixSeconds) {
  Prepare();
  for (int second = 0; second < 6; ++second) {
    Tell(Routine("0x07, 1, [01]"));
    Pass(1);
    EXPECT_EQ(Next(), "Watch the lamp.") << second;
  }
  Tell(Routine("0x07, 1, [01]"));
  Pass(0.1);
  EXPECT_EQ(Next(), "It does not blink here: answer No.");
}

TEST_F(AdviceRowsTest, TheHeightSensorIsPluggedInUnloadedAndLevelled) {
  constexpr char kCalibrate[] = "Press Calibrate height sensor c-d there.";
  constexpr char kLevel[] = "Bring the lever to the horizontal.";
  Prepare();
  Tell("Trailer_ABS_KWP_IOControlByLocId(0x10, 1, [01])");
  EXPECT_EQ(Next("height", "none"), "The sensor tells nothing: plug it in.");
  Is("height", "1300");
  EXPECT_EQ(Next("load", "1"), "Unload the trailer.");
  EXPECT_EQ(Next("load", "0"), kCalibrate);
  EXPECT_EQ(Next("height", "1140"), kLevel);
  EXPECT_EQ(Next("height", "1141"), kCalibrate);
  EXPECT_EQ(Next("height", "1486"), kCalibrate);
  EXPECT_EQ(Next("height", "1487"), kLevel);
}

TEST_F(AdviceRowsTest, WhatIsDoneASecondTimeTakesItsTimeAgain) {
  Redundancy();
  Is("control_line", "90");
  Pass(9);
  Tell(Routine("0x37, 3, [00 00 01]"));
  Pass(9);
  EXPECT_EQ(Waits(), "The program compares the brake pressures with the pedal's.");
  for (int time = 0; time < 2; ++time) {
    Tell("WriteMemoryByLocId(0x2A, 1, [01])");
    Pass(10);
    EXPECT_EQ(Waits(), "The program writes the end-of-line flag and restarts the ECU.");
  }
  Pass(1);
  EXPECT_EQ(Waits(), "The end-of-line flag says that the trailer has not passed.");
}

TEST_F(AdviceRowsTest, OnlyValvesThatEndRightBeforeTheBrakesAreNormalEndTheSensorTest) {
  BrakeWheels();
  Tell(Routine("0x41, 0, []"));
  Tell(Routine("0x07, 1, [00]"));
  Tell(Routine("0x37, 3, [00 00 00]"));
  EXPECT_NE(Waits(), "The sensor test has ended.");
}

TEST_F(AdviceRowsTest, NoWheelIsFreeWhenTheTestBeginsAnew) {
  BrakeWheels();
  const std::string wait = Next();
  Free(1);
  EXPECT_NE(Next(), wait);
  Tell(Routine("0x37, 3, [00 00 02]"));
  Tell(Routine("0x06, 3, [00 00 44]"));
  EXPECT_EQ(Next(), wait);
}

TEST_F(AdviceRowsTest, ANewConnectionForgetsWhatWasUnderWay) {
  BrakeWheels();
  Connect();
  EXPECT_EQ(Next(), kBegin);
  Tell(Routine("0x37, 3, [00 00 01]"));
  EXPECT_EQ(Waits(), "The redundancy test waits for control pressure above 75.4 psi.");
}

}  // namespace
}  // namespace lorimet::bench
