// The conversation with the simulated trailer, line by line.
#include "simulator/bench/model/wire.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lorimet::bench {
namespace {

class WireTest : public testing::Test {
 protected:
  void Send(const std::string& command) {
    wire_.Send(command, [this, command](const Answer& answer) {
      heard_.push_back(command + (answer.ok ? " = " : " ! ") + answer.text);
    });
  }

  Wire wire_;
  std::vector<std::string> heard_;
};

TEST_F(WireTest, PairsEachAnswerWithItsCommandHoweverTheBytesCome) {
  Send("get flag");
  Send("fly");
  Send("reset");
  EXPECT_EQ(wire_.TakeOutgoing(), "get flag\nfly\nreset\n");
  EXPECT_EQ(wire_.TakeOutgoing(), "");
  EXPECT_TRUE(wire_.Receive("1 ok 9\n2 unknown comm"));
  EXPECT_EQ(heard_, (std::vector<std::string>{"get flag = 9"}));
  EXPECT_EQ(wire_.Waiting(), 2u);
  EXPECT_TRUE(wire_.Receive("and 'fly'\n3 ok\n"));
  EXPECT_EQ(heard_.at(1), "fly ! unknown command 'fly'");
  EXPECT_EQ(heard_.at(2), "reset = ");
}

TEST_F(WireTest, ALineBreakInACommandDoesNotMakeTwoOfIt) {
  Send("supply 100\nreset");
  EXPECT_EQ(wire_.TakeOutgoing(), "supply 100 reset\n");
}

TEST_F(WireTest, ACommandMayBeSentFromWithinAnAnswer) {
  wire_.Send("get time", [this](const Answer&) { Send("get flag"); });
  EXPECT_TRUE(wire_.Receive("1 ok 3\n2 ok 1\n"));
  EXPECT_EQ(heard_, (std::vector<std::string>{"get flag = 1"}));
}

TEST_F(WireTest, KnowsARefusalFromAnAnswer) {
  Send("get flag");
  EXPECT_FALSE(wire_.Receive("0 somebody else has the trailer\n"));
  EXPECT_TRUE(wire_.Refused());
  EXPECT_TRUE(heard_.empty());
  wire_.Open();
  EXPECT_FALSE(wire_.Refused());
}

TEST_F(WireTest, EndsWithWhatIsNoAnswer) {
  for (const std::string nonsense : {"hello\n", "2 ok\n", "x ok\n", "1ok\n", "-1 ok\n"}) {
    wire_.Open();
    Send("reset");
    EXPECT_FALSE(wire_.Receive(nonsense)) << nonsense;
  }
  EXPECT_TRUE(heard_.empty());
  wire_.Open();
  EXPECT_FALSE(wire_.Receive("1 ok\n")) << "nobody has asked";
  wire_.Open();
  EXPECT_FALSE(wire_.Receive(std::string(70'000, 'x'))) << "a line without an end";
}

TEST_F(WireTest, ForgetsWhatALostConnectionOwes) {
  Send("get flag");
  wire_.Open();
  Send("get time");
  EXPECT_EQ(wire_.TakeOutgoing(), "get time\n");
  EXPECT_TRUE(wire_.Receive("1 ok 4\n"));
  EXPECT_EQ(heard_, (std::vector<std::string>{"get time = 4"}));
}

}  // namespace
}  // namespace lorimet::bench
