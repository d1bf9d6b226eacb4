#include <cmath>
#include <string>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

class WheelsTest : public LinkFixture {
 protected:
  double Number(const std::string& name) { return std::stod(link_->Get(name)); }
  std::string WheelName(int position, const char* what) {
    return "wheel " + std::to_string(position) + " " + what;
  }
  // The sensor that answers while the wheel at a position turns; '-' for none.
  char AnsweringSensor(int position) {
    EXPECT_EQ(link_->Command("spin " + std::to_string(position) + " 9"), "");
    link_->Advance(0.8);
    char answer = '-';
    for (std::size_t i = 2; i < 6; ++i)
      if (record_.dWheelSpeed[i].Load() > 4) answer = "--dcfe"[i];
    link_->Advance(10);
    return answer;
  }
  void Channel(std::uint8_t channel, bool brake) {
    const std::uint8_t high = brake ? 0x44 : 0;
    EXPECT_EQ(Routine(0x06, {channel, 0, high, 0, high, 0xE8, 3}), 0);
  }
  // Positions that the pressure of one channel alone holds, or that answer "all".
  std::string HeldBy(std::uint8_t channel) {
    OpenParameters();
    EXPECT_EQ(Routine(0x37, {0, 0, 2}), 0);
    Channel(0, false);
    Channel(channel, true);
    link_->Advance(1);
    std::string held;
    for (int position = 1; position <= 6; ++position)
      if (link_->Get(WheelName(position, "turnable")) == "no") held += std::to_string(position);
    return held;
  }
};

struct Plan {
  const char* scenario;
  const char* sensors;  // by position, '-' none, ' ' no wheel
};

TEST_F(WheelsTest, EverySensorSitsAtItsWheelByAxlesAndMounting) {
  const Plan plans[] = {
      {"configuration 2S/1M\naxles 1", " d  c "},
      {"configuration 2S/2M\naxles 1\nmounting rear", " c  d "},
      {"configuration 2S/2M\naxles 2", " -d -c"},
      {"configuration 4S/2M\naxles 2", " fd ec"},
      {"configuration 4S/2M\naxles 2\nmounting rear", " ec fd"},
      {"configuration 4S/2M\naxles 3", "fd-ec-"},
      {"configuration 4S/3M\naxles 3\nmounting rear", "ec-fd-"},
      {"configuration 2S/2M\naxles 3", "-d--c-"},
  };
  for (const Plan& plan : plans) {
    ConnectAndRead(plan.scenario);
    for (int position = 1; position <= 6; ++position) {
      const char expected = plan.sensors[position - 1];
      if (expected != ' ') {
        EXPECT_EQ(AnsweringSensor(position), expected) << plan.scenario << " " << position;
        continue;
      }
      EXPECT_EQ(link_->Command("spin " + std::to_string(position) + " 9"),
                "no wheel stands at position " + std::to_string(position));
    }
  }
}

TEST_F(WheelsTest, EveryChannelHoldsTheWheelsOfItsPipes) {
  struct Row {
    const char* scenario;
    const char* first;
    const char* second;
  };
  const Row rows[] = {
      {"", "123", "456"},
      {"mounting rear", "456", "123"},
      {"configuration 4S/2M\naxles 2", "23", "56"},
      {"configuration 2S/1M\naxles 1", "25", ""},
      {"configuration 2S/1M\naxles 2\nmounting rear", "2356", ""},
      {"defect brake_lines crossed", "456", "123"},
      {"configuration 2S/1M\naxles 1\ndefect brake_lines crossed", "25", ""},
  };
  for (const Row& row : rows) {
    ConnectAndRead(row.scenario);
    EXPECT_EQ(HeldBy(1), row.first) << row.scenario;
    ConnectAndRead(row.scenario);
    EXPECT_EQ(HeldBy(2), row.second) << row.scenario;
  }
}

TEST_F(WheelsTest, AThirdModulatorFollowsTheLowerOfTheTwoChannelsOnceBothAreSet) {
  for (const char* system : {"configuration 4S/3M", "configuration 2M+1M"}) {
    ConnectAndRead(system);
    OpenParameters();
    ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
    Channel(0, true);
    Channel(1, false);
    link_->Advance(1);
    EXPECT_GT(Number("h3"), 20) << "one channel alone: the characteristic for channel 0";
    Channel(2, true);
    link_->Advance(2);
    EXPECT_EQ(Number("h3"), 0) << "the lower of both";
    EXPECT_EQ(link_->Get("wheel 1 turnable"), "yes");
    EXPECT_EQ(link_->Get("wheel 4 turnable"), "yes");
    EXPECT_EQ(link_->Get("wheel 5 turnable"), "no");
    Channel(1, true);
    link_->Advance(1);
    EXPECT_NEAR(Number("h3"), 49.3, 1);
  }
}

TEST_F(WheelsTest, RoutineForValvesEndsWhatTheTwoChannelsHold) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  for (const std::uint8_t channel : {0, 1, 2}) Channel(channel, true);
  ASSERT_EQ(Routine(0x41, {6, 1}), 0);
  EXPECT_EQ(link_->Get("channel 1"), "none");
  EXPECT_NE(link_->Get("channel 2"), "none");
  ASSERT_EQ(Routine(0x41, {6, 0}), 0);
  EXPECT_EQ(link_->Get("channel 2"), "none");
  EXPECT_NE(link_->Get("channel 0"), "none");
}

TEST_F(WheelsTest, AHandTurnsAWheelUpHoldsItAndLetsGo) {
  ConnectAndRead();
  link_->Command("spin 2 7");
  link_->Advance(0.25);
  EXPECT_NEAR(Number("wheel 2 speed"), 3.5, 0.2);
  link_->Advance(0.25);
  EXPECT_NEAR(Number("wheel 2 speed"), 7, 0.1);
  link_->Advance(0.4);
  EXPECT_NEAR(Number("wheel 2 speed"), 7, 0.05);
  link_->Advance(1);
  EXPECT_NEAR(Number("wheel 2 speed"), 5.8, 0.05);
  EXPECT_EQ(Number("wheel 5 speed"), 0);
}

TEST_F(WheelsTest, BrakePressureAboveFourPsiSlowsAWheelAndAboveEightHoldsAHand) {
  const auto after_a_second = [&](double residual) {
    ConnectAndRead("defect modulator H1 residual=" + std::to_string(residual));
    link_->Command("spin 2 20");
    link_->Advance(0.9);
    link_->Advance(1);
    return Number("wheel 2 speed");
  };
  EXPECT_NEAR(after_a_second(4), 20 - 1.2, 0.1);
  EXPECT_NEAR(after_a_second(8), 20 - 1.2 - 0.9 * 4, 0.1);
  EXPECT_EQ(after_a_second(8.1), 0);
}

TEST_F(WheelsTest, TheParkingBrakeHoldsEveryWheel) {
  ConnectAndRead("parking_brake on");
  for (int position = 1; position <= 6; ++position)
    EXPECT_EQ(link_->Get(WheelName(position, "turnable")), "no");
  link_->Command("spin 2 7");
  link_->Advance(1);
  EXPECT_EQ(Number("wheel 2 speed"), 0);
  link_->Command("parking_brake off");
  link_->Advance(0.1);
  link_->Command("spin 2 7");
  link_->Advance(0.6);
  EXPECT_NEAR(Number("wheel 2 speed"), 7, 0.1);
}

TEST_F(WheelsTest, AllSpinsEveryWheelThatHasASensor) {
  ConnectAndRead();
  ASSERT_EQ(link_->Command("spin all 10"), "");
  link_->Advance(0.1);
  for (std::size_t i = 2; i < 6; ++i) EXPECT_GT(record_.dWheelSpeed[i].Load(), 9) << i;
  ConnectAndRead("configuration 2S/2M");
  ASSERT_EQ(link_->Command("spin all 10"), "");
  EXPECT_EQ(link_->Command("spin e 10"), "no wheel carries the sensor e");
}

TEST_F(WheelsTest, ASensorTellsStepsOfATenthAndNothingBelowItsSlowest) {
  ConnectAndRead();
  link_->Command("spin c 3");
  for (int i = 0; i < 40; ++i) {
    link_->Advance(0.1);
    const double told = record_.dWheelSpeed[3].Load();
    const double wheel = Number("wheel 5 speed");
    if (wheel < 1.05) {
      EXPECT_EQ(told, 0) << wheel;
    }
    if (wheel > 1.15) {
      EXPECT_NEAR(told, wheel, 0.06);
    }
    EXPECT_NEAR(told * 10, std::round(told * 10), 1e-9);
  }
}

TEST_F(WheelsTest, TeethAndCircumferenceOfTheParametersAreHeldAgainstTheWheelAsBuilt) {
  ConnectAndRead("parameter EOL1 55 65");  // half the tyre on c-d
  link_->Command("spin all 20");
  link_->Advance(0.1);
  EXPECT_NEAR(record_.dWheelSpeed[3].Load(), 10, 0.2);
  EXPECT_NEAR(record_.dWheelSpeed[5].Load(), 20, 0.3);
  ConnectAndRead("parameter EOL1 59 50");  // half the teeth on e-f
  link_->Command("spin all 20");
  link_->Advance(0.1);
  EXPECT_NEAR(record_.dWheelSpeed[5].Load(), 40, 0.5);
  EXPECT_NEAR(record_.dWheelSpeed[3].Load(), 20, 0.3);
}

}  // namespace
}  // namespace lorimet::simulator
