// Whoever does what the bench says signs a healthy trailer off, and hears what is in the way.
#include "simulator/bench/model/advice.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "autotests/bench/bench_on_link.h"
#include "autotests/common/operated_program.h"

namespace lorimet::bench {
namespace {

using testing_support::OperatedProgram;

// A newcomer: does at the bench what its line says, answers messages, and at the program's screens
// presses only what the line names.
class Newcomer {
 public:
  explicit Newcomer(OperatedProgram& program)
      : program_(program), socket_(bench_, program.Trailer()) {
    program_.operator_works = false;
    Wait();
  }

  const std::set<std::string>& Heard() const { return heard_; }
  const std::set<Deed>& Deeds() const { return deeds_; }
  const Bench& TheBench() const { return bench_; }

 private:
  static constexpr std::uint32_t kLook = 100;       // ms
  static constexpr std::uint32_t kPatience = 4000;  // ms until he does the same again

  void Wait() {
    program_.desktop.After(kLook, [this] {
      Wait();
      Look();
    });
  }

  void Look() {
    socket_.Look();
    const Advice advice = AdviceFor(bench_);
    heard_.insert(advice.waits.key);
    heard_.insert(advice.next.key);
    stood_ = advice == last_ ? stood_ + kLook : 0;
    last_ = advice;
    if (stood_ % kPatience == kLook) Obey(advice);
    AtTheScreen(advice);
  }

  void Obey(const Advice& advice) {
    deeds_.insert(advice.deed);
    const auto command = [&]() -> std::string {
      switch (advice.deed) {
        case Deed::kFill:
          return "supply 110";
        case Deed::kPressPedal:
          return "press demand 90";
        case Deed::kReleasePedal:
          return "press demand 0";
        case Deed::kUnload:
          return "load unladen";
        case Deed::kReleaseParkingBrake:
          return "parking_brake off";
        case Deed::kSpin:
          return "spin " + std::to_string(advice.wheel) + " 7";
        case Deed::kLevel:
          return "lever 0";
        case Deed::kPlugCable:
          return "cable in";
        case Deed::kSwitchAdapter:
          return "adapter on";
        case Deed::kSwitchPower:
          return "power on";
        case Deed::kNothing:
          return "";
      }
      return "";
    }();
    if (command.empty()) return;
    bench_.Do(command);
    socket_.Carry();
  }

  void AtTheScreen(const Advice& advice) {
    auto& screen = program_.screen;
    const auto press_if = [&](std::string_view button) {
      if (screen.CanPress(button)) screen.Press(button);
    };
    if (screen.Name() == "msgBox") {
      if (++box_ < 10) return;
      box_ = 0;
      for (const std::string_view button : {"yes", "ok"})
        if (screen.CanPress(button)) return screen.Press(button);
    }
    box_ = 0;
    if (advice.next.key == "It blinks here: answer Yes.") press_if("cmdYes");
    if (advice.next.key == "It does not blink here: answer No.") press_if("cmdNo");
    if (advice.next.key == "Press Calibrate height sensor c-d there.")
      press_if("cmdCalHgtSensor_0");
  }

  OperatedProgram& program_;
  Bench bench_;
  LinkSocket socket_;
  Advice last_;
  std::uint32_t stood_ = 0;
  int box_ = 0;  // looks at a box
  std::set<std::string> heard_;
  std::set<Deed> deeds_;
};

struct Trailer {
  const char* name;
  const char* scenario;
};

class SignOffByAdviceTest : public testing::TestWithParam<Trailer> {};

TEST_P(SignOffByAdviceTest, EndsWithTheFlagSet) {
  OperatedProgram program(std::string(GetParam().scenario) +
                          "\nsupply 60\ncompressor off\nload laden\nparking_brake on");
  program.Trailer().Command("press demand 20");
  Newcomer newcomer(program);
  program.SignOff();
  EXPECT_EQ(program.Trailer().Get("flag"), "1");
  // The newcomer looks only where the program lets events run, so hears of the flag at its end.
  program.desktop.Run(11'000);
  EXPECT_EQ(AdviceFor(newcomer.TheBench()).waits.key, "The trailer is signed off.");
  EXPECT_TRUE(newcomer.Deeds().contains(Deed::kSpin));
  const bool one_modulator = newcomer.TheBench().Seen().Modulators() == 1;
  EXPECT_EQ(newcomer.Deeds().contains(Deed::kPressPedal), !one_modulator);
  EXPECT_EQ(newcomer.Deeds().contains(Deed::kReleaseParkingBrake), true);
}

INSTANTIATE_TEST_SUITE_P(
    Healthy, SignOffByAdviceTest,
    testing::Values(Trailer{"FourSensors", "configuration 4S/2M\naxles 2"},
                    Trailer{"ThreeAxles", "configuration 4S/2M\naxles 3"},
                    Trailer{"OneModulator", "configuration 2S/1M\naxles 1"},
                    Trailer{"TwoSensors", "configuration 2S/2M\naxles 2"},
                    Trailer{"ThreeModulators", "configuration 4S/3M\naxles 3"},
                    Trailer{"Drawbar", "configuration 2M+1M\naxles 3\nvehicle drawbar"},
                    Trailer{"RearMounted", "configuration 4S/2M\naxles 3\nmounting rear"},
                    Trailer{"Mechanical",
                            "suspension mechanical\nmounting rear\naxles 3\nlever 30"}),
    [](const auto& row) { return row.param.name; });

TEST(Advice, ADeadLampIsAnsweredNo) {
  OperatedProgram program("configuration 2S/1M\naxles 1\ndefect lamp dead");
  Newcomer newcomer(program);
  program.SignOff();
  EXPECT_EQ(program.Trailer().Get("flag"), "2");
  EXPECT_TRUE(newcomer.Heard().contains("It does not blink here: answer No."));
  EXPECT_FALSE(newcomer.Heard().contains("It blinks here: answer Yes."));
}

TEST(Advice, OneTestFromTheMenuEndsWhereItBegan) {
  OperatedProgram program("configuration 4S/2M\naxles 2");
  Newcomer newcomer(program);
  program.desktop.Run(500);
  const Advice before = AdviceFor(newcomer.TheBench());
  EXPECT_EQ(before.next.key, "Choose Sign-off, Begin Sign-off Procedure there.");
  program.RunTest(0);
  program.desktop.Run(500);
  EXPECT_EQ(AdviceFor(newcomer.TheBench()), before);
  EXPECT_TRUE(newcomer.Heard().contains("The program tests the brake pressures."));
}

TEST(Advice, WhatIsSwitchedOffComesFirst) {
  OperatedProgram program("configuration 4S/2M\naxles 2");
  auto& link = program.Trailer();
  Bench bench;
  LinkSocket socket(bench, link);
  const auto waits = [&](const char* command) {
    link.Command(command);
    link.Advance(0.1);
    socket.Look();
    return AdviceFor(bench).waits.key;
  };
  EXPECT_EQ(AdviceFor(bench).waits.key, "There is no simulated trailer.");
  EXPECT_EQ(waits("get time"), "The program is connected and waits for you.");
  EXPECT_EQ(waits("power off"), "The ECU has no power.");
  EXPECT_EQ(waits("cable out"), "The diagnostic cable is pulled.");
  link.Disconnect();
  EXPECT_EQ(waits("get time"), "No program is connected to the trailer.");
  EXPECT_EQ(waits("adapter off"), "The adapter is switched off.");
  bench.Close();
  EXPECT_EQ(AdviceFor(bench).waits.key, "There is no simulated trailer.");
}

TEST(Story, ReadsARequestInTheTrailersWords) {
  const ToldRequest routine =
      ReadRequest("Trailer_ABS_KWP_StartRoutineByLocId(0x37, 3, [00 00 02])");
  EXPECT_EQ(routine.operation, "StartRoutine");
  EXPECT_EQ(routine.numbers, (std::vector<int>{0x37, 3}));
  EXPECT_EQ(routine.data, (std::vector<std::uint8_t>{0, 0, 2}));
  EXPECT_EQ(ReadRequest("ResetECU()").operation, "ResetECU");
  EXPECT_TRUE(ReadRequest("ResetECU()").numbers.empty());
  EXPECT_EQ(ReadRequest("Trailer_OVG_StopLightActivation(137, 1)").Number(1), 1);
  EXPECT_EQ(ReadRequest("").operation, "");
  EXPECT_EQ(ReadRequest("X(").Number(0), -1);
  EXPECT_EQ(ReadRequest("X([zz 1").Byte(9), -1);
}

}  // namespace
}  // namespace lorimet::bench
