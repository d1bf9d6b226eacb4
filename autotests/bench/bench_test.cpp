// What the bench sees of a simulated trailer, and what it makes of it.
#include "simulator/bench/model/bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "autotests/bench/bench_on_link.h"
#include "autotests/places.h"
#include "simulator/bench/model/ready.h"
#include "simulator/trailer/scenario.h"

namespace lorimet::bench {
namespace {

class BenchTest : public testing::Test {
 protected:
  BenchTest() {
    bench_.on_answer = [this](const std::string& command, const Answer& answer) {
      answers_.push_back(command + (answer.ok ? " = " : " ! ") + answer.text);
    };
  }

  void Connect() {
    std::array<char, 1024> protocol = {}, vendor = {};
    link_.Connect(protocol.data(), 7, vendor.data(), -1, 3, nullptr, nullptr, nullptr, nullptr,
                  nullptr, nullptr, nullptr, nullptr);
  }
  void Do(const std::string& command, double seconds = 0.1) {
    bench_.Do(command);
    socket_.Carry();
    link_.Advance(seconds);
    socket_.Look();
  }
  const Sight& Seen() const { return bench_.Seen(); }

  simulator::Link link_{"axles 2"};
  Bench bench_;
  LinkSocket socket_{bench_, link_};
  std::vector<std::string> answers_;
};

TEST_F(BenchTest, AsksForNothingThatTheTrailerDoesNotKnow) {
  simulator::Link whole;  // with all six wheels
  for (const std::string& name : SightNames()) EXPECT_EQ(whole.Command("get " + name), "") << name;
}

TEST_F(BenchTest, SeesTheTrailerAsItStands) {
  EXPECT_EQ(bench_.Where(), Presence::kAbsent);
  socket_.Look();
  ASSERT_TRUE(socket_.Fine());
  EXPECT_EQ(bench_.Where(), Presence::kThere);
  EXPECT_EQ(Seen().configuration, "4S/2M");
  EXPECT_EQ(Seen().Modulators(), 2);
  EXPECT_NEAR(Seen().supply, 112, 1);
  EXPECT_FALSE(Seen().Wheel(1).present) << "two axles have no first one";
  EXPECT_TRUE(Seen().Wheel(2).present);
  EXPECT_EQ(Seen().Wheel(6).sensor, 'c');
  EXPECT_FALSE(Seen().height.has_value());
  EXPECT_FALSE(Seen().connection);
  Connect();
  socket_.Look();
  EXPECT_TRUE(Seen().connection);
  EXPECT_EQ(bench_.Told().Now(), Activity::kConnected);
}

TEST_F(BenchTest, SeesEachThingThatAPersonDoes) {
  struct Row {
    const char* command;
    bool (*seen)(const Sight&);
  };
  const Row rows[] = {
      {"supply 60", [](const Sight& s) { return s.supply > 59 && s.supply < 61; }},
      {"compressor off", [](const Sight& s) { return !s.compressor; }},
      {"press demand 90", [](const Sight& s) { return s.pedal == 90 && s.control_line > 5; }},
      {"press demand 0", [](const Sight& s) { return s.pedal == 0; }},
      {"load laden", [](const Sight& s) { return s.load == 1; }},
      {"parking_brake on", [](const Sight& s) { return s.parking_brake && !s.Wheel(2).turnable; }},
      {"parking_brake off", [](const Sight& s) { return !s.parking_brake; }},
      {"spin 2 7", [](const Sight& s) { return s.Wheel(2).speed > 1 && s.Wheel(3).speed == 0; }},
      {"cable out", [](const Sight& s) { return !s.cable; }},
      {"cable in", [](const Sight& s) { return s.cable; }},
      {"adapter off", [](const Sight& s) { return !s.adapter; }},
      {"power off", [](const Sight& s) { return !s.power && s.ecu == "off"; }},
      {"power on", [](const Sight& s) { return s.power && s.ecu != "off"; }},
      {"fault 5 7 active", [](const Sight& s) { return s.faults > 0 && s.lamp; }},
      {"defect lamp dead", [](const Sight& s) { return s.defects == "lamp" && !s.lamp; }},
      {"failure refuse", [](const Sight& s) { return s.failures == "refuse"; }},
      {"flag 1", [](const Sight& s) { return s.flag == 1; }},
  };
  for (const Row& row : rows) {
    Do(row.command);
    EXPECT_TRUE(row.seen(Seen())) << row.command;
  }
  for (const std::string& answer : answers_) EXPECT_TRUE(answer.ends_with(" = ")) << answer;
}

TEST_F(BenchTest, SeesTheHeightSensorOfMechanicalSuspension) {
  Do("scenario " + InSource("simulator/scenarios/mechanical_4s2m.scenario"));
  EXPECT_FALSE(Seen().air);
  EXPECT_TRUE(Seen().rear_mounted);
  EXPECT_EQ(Seen().height, 1310);
  Do("lever 10");
  EXPECT_EQ(Seen().height, 1425);
  Do("height none");
  EXPECT_FALSE(Seen().height.has_value());
}

TEST_F(BenchTest, TellsWhatWasWrongWithACommand) {
  Do("supply lots");
  Do("get flag");
  EXPECT_EQ(answers_, (std::vector<std::string>{"supply lots ! 'lots' is not a valid value",
                                                "get flag = 2"}));
}

TEST_F(BenchTest, KeepsTheRequestsInTheirOrderAndBeginsAnewWithTheCounts) {
  Connect();
  link_.FaultLock();
  link_.FaultUnlock();
  socket_.Look();
  link_.ResetECU();
  socket_.Look();
  socket_.Look();
  std::vector<std::string> texts;
  for (const ToldLine& line : bench_.Requests()) texts.push_back(line.text);
  ASSERT_EQ(texts.size(), 4u);
  EXPECT_EQ(texts[1], "FaultLock()");
  EXPECT_EQ(texts[3], "ResetECU()");
  for (int i = 0; i < 300; ++i) link_.FaultLock();
  socket_.Look();
  EXPECT_EQ(bench_.Requests().size(), 104u) << "the trailer remembers a hundred";
  Do("log clear");
  EXPECT_TRUE(bench_.Requests().empty());
}

TEST_F(BenchTest, OneRoundAtATimeIsUnderWay) {
  bench_.Look();
  const std::string first = bench_.TakeOutgoing();
  bench_.Look();
  EXPECT_EQ(bench_.TakeOutgoing(), "");
  EXPECT_EQ(std::ranges::count(first, '\n'), static_cast<long>(SightNames().size()));
}

TEST_F(BenchTest, AnotherTrailerIsSeenAtOnce) {
  socket_.Look();
  const std::vector<Ready> trailers = ReadyTrailers({"/nowhere", InSource("simulator/scenarios")});
  ASSERT_GE(trailers.size(), 11u);
  EXPECT_EQ(trailers[0].label, "Semi-trailer, 4S/2M");
  Do(trailers[2].command);
  EXPECT_EQ(Seen().configuration, "2S/1M");
  EXPECT_EQ(Seen().Modulators(), 1);
}

TEST_F(BenchTest, KnowsAnAbsentTrailerFromOneThatIsTaken) {
  int seen = 0;
  bench_.on_seen = [&] { ++seen; };
  socket_.Look();
  EXPECT_EQ(seen, 1);
  bench_.Close();
  EXPECT_EQ(bench_.Where(), Presence::kAbsent);
  bench_.Open();
  EXPECT_FALSE(bench_.Receive("0 somebody else has the trailer\n"));
  bench_.Close();
  EXPECT_EQ(bench_.Where(), Presence::kTaken);
  EXPECT_EQ(seen, 3);
}

TEST(Ready, IsTakenByTheTrailerEveryOne) {
  for (const Ready& trailer : ReadyTrailers({InSource("simulator/scenarios")}))
    EXPECT_EQ(simulator::Link().Command(trailer.command), "") << trailer.label;
  for (const Ready& defect : ReadyDefects()) {
    simulator::Link link;
    EXPECT_EQ(link.Command(defect.command), "") << defect.command;
    EXPECT_NE(link.Get("defects"), "none") << defect.command;
  }
  for (const Ready& failure : ReadyFailures())
    EXPECT_EQ(simulator::Link().Command(failure.command), "") << failure.command;
}

TEST(Ready, EveryDefectHasWords) {
  for (const simulator::DefectFacts& facts : simulator::DefectTable())
    EXPECT_NE(WordsOfDefect(facts.name), facts.name);
  EXPECT_EQ(WordsOfDefect("rust"), "rust");
}

TEST(Ready, CompletesEveryCommandThatALivingTrailerTakes) {
  const std::vector<std::string> lines = Completions();
  EXPECT_TRUE(std::ranges::is_sorted(lines));
  for (const simulator::CommandFacts& facts : simulator::Commands()) {
    EXPECT_EQ(std::ranges::count(lines, facts.word), facts.builds ? 0 : 1) << facts.word;
    EXPECT_EQ(UsageOf(facts.word).empty(), facts.builds) << facts.word;
  }
  EXPECT_EQ(std::ranges::count(lines, "get wheel"), 1);
  EXPECT_EQ(UsageOf("get wheel 3"), "get wheel N speed|brake|turnable|sensor");
  EXPECT_EQ(UsageOf("lever 3"), "lever DEGREES");
  EXPECT_EQ(UsageOf("fly"), "");
  EXPECT_EQ(UsageOf(""), "");
}

}  // namespace
}  // namespace lorimet::bench
