#include <cstring>
#include <string>
#include <vector>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using TimeTest = LinkFixture;

std::string BytesOf(const ECUData& record) {
  std::string bytes(sizeof record, '\0');
  std::memcpy(bytes.data(), &record, sizeof record);
  return bytes;
}

// A lively trailer for `seconds`, in steps of so many.
struct Ride {
  std::string record;
  std::vector<std::int32_t> statuses;
  std::string supply;
};
Ride RunInSteps(double step, double seconds, const std::string& more = "") {
  ECUData record = {};
  LinkStatus link_status = {};
  Ride run;
  Link link(
      "load laden\nat 1 press demand 60\nat 2 spin all 20\nat 3 cable out\nat 4.7 cable in\n" +
          more,
      [&](std::int32_t status) { run.statuses.push_back(status); });
  link.Connect(nullptr, 0, nullptr, -1, 3, nullptr, nullptr, &link_status, &record, nullptr,
               nullptr, nullptr, nullptr);
  link.Trailer_ABS_QOR_ReadStaticData();
  for (int i = 0; i < static_cast<int>(seconds / step + 0.5); ++i) link.Advance(step);
  run.record = BytesOf(record);
  run.supply = link.Get("supply");
  return run;
}

TEST_F(TimeTest, ManyShortStepsEndInTheSameBytesAsAFewLongOnes) {
  const Ride whole = RunInSteps(6, 6);
  for (const double step : {0.003, 0.01, 0.3, 1.5, 0.00075}) {
    const Ride parts = RunInSteps(step, 6);
    EXPECT_EQ(parts.record, whole.record) << step;
    EXPECT_EQ(parts.statuses, whole.statuses) << step;
    EXPECT_EQ(parts.supply, whole.supply) << step;
  }
}

TEST_F(TimeTest, WhatIsLessThanAStepIsCarriedOver) {
  Link link;
  link.Advance(0.009);
  EXPECT_EQ(link.Get("time"), "0");
  link.Advance(0.001);
  EXPECT_EQ(link.Get("time"), "0.01");
}

TEST_F(TimeTest, TheSameScenarioTellsTheSameAndAnotherSeedDoesNot) {
  EXPECT_EQ(RunInSteps(0.1, 6).record, RunInSteps(0.1, 6).record);
  EXPECT_NE(RunInSteps(0.1, 6, "noise seed=2").record, RunInSteps(0.1, 6).record);
}

TEST_F(TimeTest, NoiseStaysWithinItsBoundsMovesAndCanBeSwitchedOff) {
  ConnectAndRead("compressor off\nsupply 100");
  double low = 1000;
  double high = 0;
  for (int i = 0; i < 100; ++i) {
    link_->Advance(0.1);
    const double off = record_.dSupplyPress.Load() - std::stod(link_->Get("supply"));
    low = std::min(low, off);
    high = std::max(high, off);
  }
  EXPECT_GE(low, -0.123);
  EXPECT_LE(high, 0.123);
  EXPECT_LT(low, -0.08);
  EXPECT_GT(high, 0.08);
  link_->Command("noise off");
  link_->Advance(0.1);
  EXPECT_NEAR(record_.dSupplyPress.Load(), std::stod(link_->Get("supply")), 0.001);
}

TEST_F(TimeTest, ADefectOfOneFieldShiftsTheNoiseOfNoOther) {
  const auto volts = [&](const char* scenario) {
    ConnectAndRead(scenario);
    std::vector<double> told;
    for (int i = 0; i < 20; ++i) {
      link_->Advance(0.1);
      told.push_back(record_.dPrimaryVolts.Load());
    }
    return told;
  };
  EXPECT_EQ(volts(""), volts("defect control_residual 4"));
  EXPECT_NE(volts(""), volts("noise seed=9"));
}

TEST_F(TimeTest, NothingIsToldOfAPressureThatIsNotThere) {
  ConnectAndRead();
  for (int i = 0; i < 50; ++i) {
    link_->Advance(0.1);
    EXPECT_EQ(record_.dServiceBrake.Load(), 0);
    EXPECT_EQ(record_.dBrake1Press.Load(), 0);
  }
}

TEST_F(TimeTest, TheWorldGoesOnWhileNobodyIsConnected) {
  Start("compressor off\nsupply 100");
  link_->Advance(100);
  ASSERT_EQ(Connect(), 0);
  link_->Advance(0.3);
  EXPECT_NEAR(record_.dSupplyPress.Load(), 98, 0.2);
  ASSERT_EQ(link_->Disconnect(), 0);
  link_->Advance(100);
  ASSERT_EQ(Connect(), 0);
  link_->Advance(0.3);
  EXPECT_NEAR(record_.dSupplyPress.Load(), 96, 0.2);
}

// --- Commands that wait -------------------------------------------------------------------------

using ScheduleTest = LinkFixture;

TEST_F(ScheduleTest, ATimeCountsFromTheConnection) {
  Start("at 2 supply 50");
  link_->Advance(10);
  EXPECT_EQ(link_->Get("supply").substr(0, 2), "11") << "nobody is connected";
  ASSERT_EQ(Connect(), 0);
  link_->Advance(1.99);
  EXPECT_EQ(link_->Get("supply").substr(0, 2), "11");
  link_->Advance(0.01);
  EXPECT_EQ(link_->Get("supply"), "50");
}

TEST_F(ScheduleTest, AWaitingCommandRunsOnceAndInItsOrder) {
  ASSERT_EQ(link_->Command("after 1 flag 7"), "");
  ASSERT_EQ(link_->Command("after 1 flag 8"), "");
  link_->Advance(0.99);
  EXPECT_EQ(link_->Get("flag"), "2");
  link_->Advance(0.01);
  EXPECT_EQ(link_->Get("flag"), "8");
  link_->Command("flag 2");
  link_->Advance(5);
  EXPECT_EQ(link_->Get("flag"), "2");
}

TEST_F(ScheduleTest, ACommandWaitsForWhatCanBeSeen) {
  ASSERT_EQ(link_->Command("when control_line > 40 flag 9"), "");
  ASSERT_EQ(link_->Command("when mode = test flag 3"), "");
  ASSERT_EQ(link_->Command("when wheel 2 speed >= 5 flag 4"), "");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("flag"), "2");
  link_->Command("press demand 45");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("flag"), "9");
  link_->Command("press demand 0");
  link_->Advance(1);
  link_->Command("spin 2 7");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("flag"), "4");
}

TEST_F(ScheduleTest, ACommandWaitsForARequest) {
  ConnectAndRead("when request routine=0x37 mode=1 press demand 90");
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  link_->Advance(0.1);
  EXPECT_EQ(link_->Get("pedal"), "0");
  ASSERT_EQ(Routine(0x37, {0, 0, 1}), 0);
  link_->Advance(0.01);
  EXPECT_EQ(link_->Get("pedal"), "90");
  link_->Command("press demand 0");
  ASSERT_EQ(Routine(0x37, {0, 0, 1}), 0);
  link_->Advance(0.1);
  EXPECT_EQ(link_->Get("pedal"), "0") << "each waits once";
}

TEST_F(ScheduleTest, ATextOfAWaitingCommandStaysWhole) {
  ASSERT_EQ(link_->Command("after 0.1 identity part_number \"M\xC3\xBC # 1\""), "");
  link_->Advance(0.2);
  EXPECT_EQ(link_->TheTrailer().Ident().part_number, "M\xFC # 1");
}

TEST_F(ScheduleTest, MistakesAreRefusedAtOnceOrComplainedOfLater) {
  for (const char* line :
       {"after x flag 1", "after 1 fly", "after 1 flag", "after 1 configuration 2S/1M",
        "after 1 get time", "at 1", "when h1 flag 1", "when h9 > 1 flag 1", "when > 1 flag 1",
        "when h1 > 1", "when request flag", "when request routine=x flag 1",
        "when request colour=red flag 1", "cancel", "cancel some", "log maybe"})
    EXPECT_NE(link_->Command(line), "") << line;
  ASSERT_EQ(link_->Command("after 0.1 supply lots"), "");
  link_->Advance(0.2);
  EXPECT_EQ(link_->TakeComplaints(),
            std::vector<std::string>{"supply: 'lots' is not a valid value"});
  EXPECT_TRUE(link_->TakeComplaints().empty());
}

TEST_F(ScheduleTest, WaitingCommandsCanBeForgotten) {
  link_->Command("after 1 flag 7");
  link_->Command("when h1 >= 0 flag 8");
  ASSERT_EQ(link_->Command("cancel all"), "");
  link_->Advance(5);
  EXPECT_EQ(link_->Get("flag"), "2");
}

}  // namespace
}  // namespace lorimet::simulator
