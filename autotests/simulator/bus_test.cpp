// The data link of the simulated trailer: timing, priorities, checksums, who sends what and when,
// the monitor's queue and the data log.
#include <gtest/gtest.h>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "autotests/common/scratch_folder.h"
#include "autotests/simulator/link_fixture.h"
#include "simulator/library/bus_monitor.h"
#include "simulator/library/data_log.h"
#include "simulator/trailer/bus.h"
#include "simulator/trailer/parameter_store.h"

namespace lorimet::simulator {
namespace {

// A message as the monitor tells it.
struct Told {
  std::vector<int> bytes;
  bool doubtful = false;  // " ?" behind it
  double idle = -1;
  double stamp = -1;
  bool SumIsRight() const { return std::accumulate(bytes.begin(), bytes.end(), 0) % 256 == 0; }
  double Seconds() const { return static_cast<double>(bytes.size()) * 10 / 9600; }
};

Told Parse(const std::string& text, const std::string& timing) {
  Told told;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (word == "?")
      told.doubtful = true;
    else
      told.bytes.push_back(std::stoi(word));
  }
  std::istringstream(timing) >> told.idle >> told.stamp;
  return told;
}

class BusTest : public LinkFixture {
 protected:
  void Open(std::string_view scenario = {}) {
    ConnectAndRead(scenario);
    ASSERT_EQ(link_->BusMonitorOpen(), 0);
  }
  // The next message; nothing when none waits.
  std::optional<Told> Next() {
    std::string text(150, ' ');
    std::string timing(25, ' ');
    text.resize(1024);
    timing.resize(1024);
    EXPECT_EQ(link_->BusMonitorGetData(text.data(), timing.data(), 1, 1), 0);
    text.resize(150);
    timing.resize(25);
    if (text == std::string(150, ' ')) return std::nullopt;
    return Parse(text, timing);
  }
  std::vector<Told> Listen(double seconds) {
    std::vector<Told> all;
    for (double done = 0; done < seconds - 1e-9; done += 0.5) {
      link_->Advance(std::min(0.5, seconds - done));
      while (const auto told = Next()) all.push_back(*told);
    }
    return all;
  }
  static std::size_t Count(const std::vector<Told>& all, int sender, int parameter) {
    return static_cast<std::size_t>(std::count_if(all.begin(), all.end(), [&](const Told& told) {
      return told.bytes.size() > 1 && told.bytes[0] == sender && told.bytes[1] == parameter;
    }));
  }
  static std::set<int> Senders(const std::vector<Told>& all) {
    std::set<int> senders;
    for (const Told& told : all) senders.insert(told.bytes.at(0));
    return senders;
  }
  int Status(std::int32_t status) const {
    return static_cast<int>(std::count(statuses_.begin(), statuses_.end(), status));
  }
};

// --- The medium --------------------------------------------------------------------------------

class Medium : public testing::Test {
 protected:
  std::vector<BusMessage> Run(int steps) {
    std::vector<BusMessage> heard;
    for (int i = 0; i < steps; ++i) {
      bus.Step(bus.Now() + kBitsPerStep, noise);
      heard.insert(heard.end(), bus.Heard().begin(), bus.Heard().end());
    }
    return heard;
  }
  Bus bus;
  Noise noise;
};

TEST_F(Medium, ATenthOfASecondIsNinehundredAndSixtyBits) { EXPECT_EQ(kBitsPerStep * 10, 960); }

TEST_F(Medium, AMessageTakesTenBitsAByteAndEndsItsSumWithZero) {
  Run(1);
  bus.Send(MakeMessage(1, {137, 116, 3}), noise);
  const auto heard = Run(2);
  ASSERT_EQ(heard.size(), 1U);
  EXPECT_EQ(heard[0].size, 4U);
  EXPECT_EQ(heard[0].end - heard[0].start, 40);
  EXPECT_EQ(heard[0].bytes[3], 256 * 2 - (137 + 116 + 3) - 256);
  EXPECT_TRUE(ChecksumHolds(heard[0].Bytes()));
  EXPECT_EQ(heard[0].start, kBitsPerStep) << "at once, on a bus that was silent long enough";
}

TEST_F(Medium, WhatIsTooLongIsCutAtTwentyOneBytes) {
  const std::vector<std::uint8_t> many(40, 7);
  const BusMessage message = MakeMessage(1, many);
  EXPECT_EQ(message.size, 21U);
  EXPECT_TRUE(ChecksumHolds(message.Bytes()));
}

TEST_F(Medium, TheHigherPriorityGoesFirstAndEqualOnesInTheirOrder) {
  Run(2);  // whoever comes to a silent bus may begin at once
  bus.Send(MakeMessage(8, {1, 1}), noise);
  bus.Send(MakeMessage(5, {2, 1}), noise);
  bus.Send(MakeMessage(5, {3, 1}), noise);
  bus.Send(MakeMessage(1, {4, 1}), noise);
  const auto heard = Run(5);
  ASSERT_EQ(heard.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(heard[i].bytes[0], (std::array{4, 2, 3, 1})[i]) << i;
}

TEST_F(Medium, EachSenderKeepsOffAsLongAsItsPriorityAsks) {
  struct Row {
    int priority;
    std::int64_t idle;
  };
  for (const Row& row : {Row{1, 12}, Row{2, 14}, Row{8, 26}}) {
    bus = {};
    bus.Send(MakeMessage(1, {1, 1}), noise);
    bus.Send(MakeMessage(row.priority, {2, 1}), noise);
    const auto heard = Run(3);
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[1].start - heard[0].end, row.idle);
    EXPECT_EQ(heard[1].idle, row.idle);
  }
}

TEST_F(Medium, AFullBusCarries184OfTheShortestMessagesASecond) {
  bus.SetFull(true);
  const auto heard = Run(1000);
  EXPECT_NEAR(static_cast<double>(heard.size()) / 10, 9600.0 / 52, 0.2);
  for (std::size_t i = 1; i < heard.size(); ++i)
    ASSERT_EQ(heard[i].start - heard[i - 1].end, Bus::kLeastIdle) << i;
}

TEST_F(Medium, AFullBusLetsEverybodyElseSpeak) {
  bus.SetFull(true);
  int others = 0;
  for (int i = 0; i < 100; ++i) {
    bus.Send(MakeMessage(8, {1, 1, 1}), noise);
    for (const BusMessage& message : Run(5)) others += message.bytes[0] == 1 ? 1 : 0;
  }
  EXPECT_GE(others, 99);
}

TEST_F(Medium, WhoNeverFindsRoomIsDroppedOldestFirst) {
  for (int i = 0; i < 1000; ++i)
    bus.Send(MakeMessage(8, {1, static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8)}),
             noise);
  EXPECT_EQ(bus.Waiting(), Bus::kMostWaiting);
  const auto heard = Run(2000);
  ASSERT_EQ(heard.size(), Bus::kMostWaiting);
  EXPECT_EQ(heard[0].bytes[1] + 256 * heard[0].bytes[2], 800);
}

TEST_F(Medium, NoiseTurnsOneBitOfItsShare) {
  for (const double share : {0.0, 0.1, 1.0}) {
    bus = {};
    bus.SetNoise(share);
    int hit = 0;
    for (int i = 0; i < 2000; ++i) {
      const bool told = bus.Send(MakeMessage(1, {1, 2, static_cast<std::uint8_t>(i)}), noise);
      const auto heard = Run(2);
      ASSERT_EQ(heard.size(), 1U);
      EXPECT_EQ(told, !ChecksumHolds(heard[0].Bytes()));
      hit += told ? 1 : 0;
    }
    EXPECT_NEAR(hit / 2000.0, share, 0.025);
  }
}

// --- Who sends what ----------------------------------------------------------------------------

TEST_F(BusTest, EverySenderKeepsHisPeriods) {
  Open("distance odometer 1234.5");
  const auto all = Listen(60);
  struct Row {
    int sender, parameter;
    std::size_t least, most;
  };
  const Row rows[] = {
      // clang-format off
      {137, 116,  59,  62}, {137, 117,  59,  61}, {137, 168,  59,  61}, {137, 209,  59,  61},
      {137, 245,   5,   7}, {137, 194,   0,   0}, {137, 254, 595, 605}, {172, 254, 595, 605},
      {128,  84, 595, 605}, {128, 190, 595, 605}, {128,  91,  59,  61}, {128, 100,  59,  61},
      {128, 110,  59,  61}, {128, 168,  59,  61}, {136,  49,  59,  61}, {136,  65,  59,  61},
      {140,  96,   5,   7}, {140, 245,   5,   7},
      // clang-format on
  };
  std::size_t known = 0;
  for (const Row& row : rows) {
    const std::size_t count = Count(all, row.sender, row.parameter);
    known += count;
    EXPECT_GE(count, row.least) << row.sender << " " << row.parameter;
    EXPECT_LE(count, row.most) << row.sender << " " << row.parameter;
  }
  EXPECT_EQ(known, all.size()) << "and nobody else speaks";
  EXPECT_NEAR(static_cast<double>(all.size()) / 60, 50, 5);
}

TEST_F(BusTest, MessagesTellWhatIsSo) {
  Open("noise off\ndistance odometer 161\nsupply 90\ncompressor off\nvoltage 13.5");
  ASSERT_EQ(link_->Command("press demand 30"), "");
  Listen(3);
  const auto all = Listen(11);
  std::map<std::pair<int, int>, std::vector<int>> last;
  for (const Told& told : all) last[{told.bytes[0], told.bytes[1]}] = told.bytes;
  EXPECT_EQ((last[{137, 116}][2]), 50) << "30 psi in steps of 0.6";
  EXPECT_NEAR((last[{137, 117}][2]), link_->TheTrailer().Supply().Pressure() / 0.6, 1);
  EXPECT_EQ((last[{137, 168}][2] + 256 * last[{137, 168}][3]), 270) << "13.5 V in steps of 0.05";
  const auto& distance = last[{137, 245}];
  EXPECT_EQ(distance[2], 4);
  EXPECT_EQ(distance[3] + 256 * distance[4], 1000) << "161 km in steps of 0.161";
  EXPECT_EQ((last[{136, 65}][2]), 1) << "the brake is applied";
}

TEST_F(BusTest, ThePressureIsToldTenTimesASecondWhileItChanges) {
  Open();
  Listen(2);
  ASSERT_EQ(link_->Command("press demand 80"), "");
  const auto rising = Listen(0.5);
  EXPECT_GE(Count(rising, 137, 116), 4U);
  EXPECT_LE(Count(rising, 137, 116), 6U);
  Listen(2);
  EXPECT_LE(Count(Listen(5), 137, 116), 6U);
}

TEST_F(BusTest, FaultCodesComeOnEveryChangeAndWhileOneStands) {
  Open();
  Listen(1);
  ASSERT_EQ(link_->Command("fault 5 7 active"), "");
  auto all = Listen(0.5);
  ASSERT_EQ(Count(all, 137, 194), 1U);
  for (const Told& told : all)
    if (told.bytes[1] == 194) {
      EXPECT_EQ(std::vector<int>(told.bytes.begin(), told.bytes.end() - 1),
                (std::vector{137, 194, 2, 5, 0x37}));
    }
  EXPECT_EQ(Count(Listen(46), 137, 194), 3U) << "every 15 s";
  ASSERT_EQ(link_->Command("fault 5 7 stored"), "");
  all = Listen(0.5);
  EXPECT_EQ(Count(all, 137, 194), 1U);
  EXPECT_EQ(Count(Listen(60), 137, 194), 0U) << "nothing stands";
}

TEST_F(BusTest, ManyFaultsFillOneMessageAndNoMore) {
  Open();
  for (int sid = 1; sid <= 30; ++sid)
    ASSERT_EQ(link_->Command("fault " + std::to_string(sid) + " 3 active"), "");
  for (const Told& told : Listen(2)) {
    EXPECT_LE(told.bytes.size(), 21U);
    EXPECT_TRUE(told.SumIsRight());
  }
}

TEST_F(BusTest, TheLampSpeaksOnEachChange) {
  Open();
  EXPECT_EQ(Count(Listen(10), 10, 0) + Count(Listen(10), 11, 0), 0U);
  ASSERT_EQ(link_->Command("fault 5 7 active"), "");
  EXPECT_EQ(Count(Listen(5), 10, 0), 1U);
  ASSERT_EQ(link_->Command("fault 5 7 stored"), "");
  EXPECT_EQ(Count(Listen(5), 11, 0), 1U);
}

TEST_F(BusTest, EachServiceOfTheToolIsAnEscapeAndSoIsItsAnswer) {
  Open("towing_vehicle off");
  const auto pair = [this](const std::vector<int>& asked, const std::vector<int>& answered) {
    const auto all = Listen(0.5);
    const auto has = [&](const std::vector<int>& head) {
      return std::any_of(all.begin(), all.end(), [&](const Told& told) {
        return told.bytes.size() > head.size() &&
               std::equal(head.begin(), head.end(), told.bytes.begin());
      });
    };
    return has(asked) && has(answered);
  };
  link_->Trailer_ABS_KWP_StartSession(0x83);
  EXPECT_TRUE(pair({172, 254, 137, 0x10, 0x83}, {137, 254, 172, 0x50}));
  link_->Trailer_ABS_KWP_Password();
  EXPECT_TRUE(pair({172, 254, 137, 0x27}, {137, 254, 172, 0x67}));
  Routine(0x37, {0, 0, 2});
  EXPECT_TRUE(pair({172, 254, 137, 0x31, 0x37, 0, 0, 2}, {137, 254, 172, 0x71}));
  Access(1);
  EXPECT_TRUE(pair({172, 254, 137, 0x31, 0x42, 0, 0, 1, 0}, {137, 254, 172, 0x71}));
  Read(0x29);
  EXPECT_TRUE(pair({172, 254, 137, 0x21, 0x29}, {137, 254, 172, 0x61, 0x29}));
  std::uint8_t high = 0, low = 0;
  link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 0x20, 0x2A, &high, &low);
  EXPECT_TRUE(pair({172, 254, 137, 0x23, 2, 0x20, 0x2A}, {137, 254, 172, 0x63, high, low}));
  link_->Trailer_ABS_KWP_StopSession();
  Listen(0.5);
  Routine(0x37, {0, 0, 2});
  EXPECT_TRUE(pair({172, 254, 137, 0x31, 0x37}, {137, 254, 172, 0x7F, 0x31, 0x80})) << "a refusal";
}

TEST_F(BusTest, ALongBlockGoesOutInSeveralMessages) {
  Open("towing_vehicle off");
  OpenParameters();
  Listen(0.5);
  ASSERT_EQ(Read(kEol1), 0);
  ASSERT_GT(count_, 40);
  std::vector<int> carried;
  for (const Told& told : Listen(1))
    if (told.bytes[0] == 137 &&
        (told.bytes.size() != 8 || told.bytes[3] != 0x61 || told.bytes[4] != 0x01))
      carried.insert(carried.end(), told.bytes.begin() + 3, told.bytes.end() - 1);
  ASSERT_EQ(carried.size(), std::size_t{count_} + 1);
  EXPECT_EQ(carried[0], 0x61);
  for (std::size_t i = 1; i < carried.size(); ++i) EXPECT_EQ(carried[i], buffer_[i - 1]) << i;
}

TEST_F(BusTest, AServiceThatNobodyAnswersHasNoAnswer) {
  Open("towing_vehicle off");
  ASSERT_EQ(link_->Command("power off"), "");
  Listen(1);
  EXPECT_NE(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
  const auto all = Listen(1);
  EXPECT_EQ(Senders(all), std::set<int>{172});
}

// --- Silence -----------------------------------------------------------------------------------

TEST_F(BusTest, DisableBroadcastSilencesTheTrailerAndNobodyElse) {
  Open();
  OpenParameters();
  Listen(1);
  const auto all = Listen(20);
  for (const Told& told : all)
    if (told.bytes[0] == 137) {
      EXPECT_EQ(told.bytes[1], 254);
    }
  EXPECT_GT(Count(all, 128, 84), 150U);
  EXPECT_GT(Count(all, 137, 254), 150U) << "the library reads on";
  ASSERT_EQ(Access(0), 0);
  EXPECT_GT(Count(Listen(3), 137, 117), 1U);
}

TEST_F(BusTest, BroadcastComesBackWithAResetTheSessionsEndAndPower) {
  for (const char* what : {"reset", "session", "power", "lapse"}) {
    Open();
    OpenParameters();
    EXPECT_EQ(Count(Listen(3), 137, 117), 0U);
    if (what == std::string("reset")) link_->ResetECU();
    if (what == std::string("session")) link_->Trailer_ABS_KWP_StopSession();
    if (what == std::string("lapse")) {
      ASSERT_EQ(link_->Command("session lapse"), "");
    }
    if (what == std::string("power")) {
      ASSERT_EQ(link_->Command("power off"), "");
      Listen(1);
      ASSERT_EQ(link_->Command("power on"), "");
    }
    EXPECT_GE(Count(Listen(5), 137, 117), 3U) << what;
  }
}

TEST_F(BusTest, WithoutTheTowingVehicleOnlyTrailerAndToolSpeak) {
  Open();
  ASSERT_EQ(link_->Command("towing_vehicle off"), "");
  Listen(1);
  EXPECT_EQ(Senders(Listen(20)), (std::set{137, 172}));
  EXPECT_EQ(link_->Get("towing_vehicle"), "off");
}

TEST_F(BusTest, WithoutPowerOnlyTheTowingVehicleSpeaks) {
  Open();
  ASSERT_EQ(link_->Command("power off"), "");
  Listen(1);
  EXPECT_EQ(Senders(Listen(20)), (std::set{128, 136, 140}));
}

TEST_F(BusTest, WithTheCableOutNothingIsHeardAndTheBusGoesOn) {
  Open();
  ASSERT_EQ(link_->Command("cable out"), "");
  Listen(1);
  const auto sent = std::stoi(link_->Get("bus sent"));
  EXPECT_TRUE(Listen(10).empty());
  EXPECT_GT(std::stoi(link_->Get("bus sent")), sent + 200);
  ASSERT_EQ(link_->Command("cable in"), "");
  EXPECT_FALSE(Listen(1).empty());
}

TEST_F(BusTest, TheBusRunsWhetherOrNotAnybodyLooks) {
  Start("");
  link_->Advance(10);
  const int before = std::stoi(link_->Get("bus sent"));
  EXPECT_GT(before, 200);
  ASSERT_EQ(Connect(), 0);
  link_->Advance(10);
  EXPECT_GT(std::stoi(link_->Get("bus sent")), before + 400);
  EXPECT_EQ(link_->Get("bus monitored"), "0") << "and nothing is kept";
}

// --- The monitor -------------------------------------------------------------------------------

TEST_F(BusTest, StampsCountFromTheOpeningAndIdleTimeIsTheGapBefore) {
  Open();
  link_->Advance(5);
  ASSERT_EQ(link_->BusMonitorOpen(), 0);
  const auto all = Listen(10);
  ASSERT_GT(all.size(), 400U);
  EXPECT_LT(all[0].stamp, 0.2);
  EXPECT_NEAR(all.back().stamp, 10, 0.2);
  for (std::size_t i = 1; i < all.size(); ++i) {
    const double end = all[i - 1].stamp + all[i - 1].Seconds();
    EXPECT_NEAR(all[i].stamp - all[i].idle, end, 0.002) << i;
    EXPECT_GE(all[i].idle, 0.00125 - 0.0005);
  }
}

TEST_F(BusTest, ShowsTheTimesThatAreAskedFor) {
  Open();
  link_->Advance(3);
  struct Row {
    int idle, stamp, words;
  };
  for (const Row& row : {Row{0, 0, 0}, Row{1, 0, 1}, Row{0, 1, 1}, Row{1, 1, 2}, Row{-1, 7, 2}}) {
    std::string text(1024, ' '), timing(1024, ' ');
    ASSERT_EQ(link_->BusMonitorGetData(text.data(), timing.data(), row.idle, row.stamp), 0);
    std::istringstream words(timing.substr(0, 25));
    const std::vector<std::string> all{std::istream_iterator<std::string>(words), {}};
    ASSERT_EQ(all.size(), static_cast<std::size_t>(row.words));
    for (const std::string& word : all)
      EXPECT_EQ(word.size() - word.find('.'), 4U) << "three decimals";
    EXPECT_EQ(text.find('\0'), std::string::npos) << "no terminator of its own";
  }
}

TEST_F(BusTest, AThousandMessagesWaitAndTheOldestGoesWithAStatus) {
  Open();
  link_->Advance(18);
  EXPECT_EQ(Status(kStatusLostMessage), 0);
  statuses_.clear();
  link_->Advance(12);
  EXPECT_EQ(link_->Get("bus monitored"), "1000");
  EXPECT_GE(Status(kStatusLostMessage), 6);
  EXPECT_LE(Status(kStatusLostMessage), 12) << "one a second";
  EXPECT_LE(Status(kStatusHealthy), 3) << "none that takes the text away at once";
  std::size_t count = 0;
  double first = -1;
  while (const auto told = Next()) {
    if (count++ == 0) first = told->stamp;
  }
  EXPECT_EQ(count, 1000U);
  EXPECT_GT(first, 5) << "the oldest are gone";
}

TEST_F(BusTest, AtFullLoadTheQueueOverflowsInLittleMoreThanFiveSeconds) {
  Open("bus_load full");
  link_->Advance(5);
  EXPECT_EQ(Status(kStatusLostMessage), 0);
  EXPECT_NEAR(std::stoi(link_->Get("bus monitored")), 850, 100);
  link_->Advance(2.5);
  EXPECT_GE(Status(kStatusLostMessage), 1);
}

TEST_F(BusTest, AFloodNeverGivesAnEmptyAnswer) {
  Open();
  ASSERT_EQ(link_->Command("bus flood"), "");
  for (int i = 0; i < 500; ++i) {
    const auto told = Next();
    ASSERT_TRUE(told) << i;
    EXPECT_TRUE(told->SumIsRight());
  }
  ASSERT_EQ(link_->Command("bus flood off"), "");
  EXPECT_FALSE(Next());
}

TEST_F(BusTest, ClosingForgetsAndAClosedMonitorRefuses) {
  Open();
  link_->Advance(1);
  ASSERT_EQ(link_->BusMonitorClose(), 0);
  EXPECT_EQ(link_->Get("bus monitored"), "0");
  std::string text(1024, ' '), timing(1024, ' ');
  EXPECT_EQ(link_->BusMonitorGetData(text.data(), timing.data(), 0, 0), kConditionsNotCorrect);
  EXPECT_EQ(text, std::string(1024, ' '));
  ASSERT_EQ(link_->BusMonitorOpen(), 0);
  EXPECT_FALSE(Next());
}

TEST_F(BusTest, SpoiledTextsFillWhatTheirFailureSays) {
  struct Row {
    const char* failure;
    std::size_t length;
    bool control;
  };
  for (const Row& row : {Row{"monitor_long", 300, false}, Row{"monitor_full", 151, false},
                         Row{"monitor_control", 0, true}}) {
    Open();
    link_->Advance(1);
    ASSERT_EQ(link_->Command(std::string("failure ") + row.failure + " times=1"), "");
    std::string text(1023, ' '), timing(1023, ' ');
    text[150] = '\0';
    ASSERT_EQ(link_->BusMonitorGetData(text.data(), timing.data(), 0, 0), 0);
    if (row.control) {
      EXPECT_NE(text.find('\x07'), std::string::npos);
      EXPECT_NE(text.find('\n'), std::string::npos);
    } else {
      EXPECT_EQ(text.find('\0'), row.length > 150 ? std::string::npos : 150U) << row.failure;
      EXPECT_NE(text[row.length - 2], '\0');
    }
    const auto next = Next();
    ASSERT_TRUE(next);
    EXPECT_TRUE(next->SumIsRight()) << "once";
  }
}

TEST_F(BusTest, NoiseSpoilsItsShareAndMarksIt) {
  Open("bus noise 0.05");
  const auto all = Listen(100);
  std::size_t doubtful = 0;
  for (const Told& told : all) {
    EXPECT_EQ(told.doubtful, !told.SumIsRight());
    doubtful += told.doubtful ? 1 : 0;
  }
  EXPECT_NEAR(static_cast<double>(doubtful) / static_cast<double>(all.size()), 0.05, 0.015);
}

TEST_F(BusTest, TheReadingThatNoiseHitsIsLost) {
  Open();
  ASSERT_EQ(link_->Command("bus noise 1"), "");
  link_->Advance(1);
  ASSERT_EQ(link_->Command("supply 60"), "");
  const double before = record_.dSupplyPress.Load();
  link_->Advance(5);
  EXPECT_EQ(record_.dSupplyPress.Load(), before);
  EXPECT_GE(Status(kStatusLostMessage), 4);
  ASSERT_EQ(link_->Command("bus noise 0"), "");
  link_->Advance(0.3);
  EXPECT_NE(record_.dSupplyPress.Load(), before);
}

TEST_F(BusTest, TheEcuComplainsOfNoiseAboveOnePercent) {
  Open();
  ASSERT_EQ(link_->Command("bus noise 0.01"), "");
  link_->Advance(20);
  EXPECT_EQ(link_->Get("fault 220 9"), "none");
  ASSERT_EQ(link_->Command("bus noise 0.011"), "");
  link_->Advance(4.9);
  EXPECT_EQ(link_->Get("fault 220 9"), "none");
  link_->Advance(0.2);
  EXPECT_EQ(link_->Get("fault 220 9"), "active 1");
  ASSERT_EQ(link_->Command("bus noise 0"), "");
  link_->Advance(0.1);
  EXPECT_EQ(link_->Get("fault 220 9"), "stored 1");
}

TEST_F(BusTest, AnotherTrailerSpeaksOnTheSameBus) {
  Open();
  Listen(1);
  const auto path = std::filesystem::temp_directory_path() / "lorimet_bus.scenario";
  std::ofstream(path) << "towing_vehicle off\n";
  ASSERT_EQ(link_->Command("scenario " + path.string()), "");
  Listen(3);  // its lamp check has ended
  const auto all = Listen(2);
  EXPECT_EQ(Senders(all), (std::set{137, 172}));
  for (const Told& told : all) EXPECT_LT(told.idle, 1);
  std::filesystem::remove(path);
}

// --- An hour -----------------------------------------------------------------------------------

TEST_F(BusTest, AnHourOfTrafficIsRightAndTakesNoMoreMemory) {
  Open();
  double end = -1;
  std::size_t count = 0;
  std::size_t used = 0;
  for (int half_second = 0; half_second < 7200; ++half_second) {
    if (half_second == 600) used = mallinfo2().uordblks;
    if (half_second % 60 == 0) {
      link_->Command(half_second % 120 == 0 ? "press demand 70" : "press demand 0");
      link_->Command(half_second % 240 == 0 ? "drive 45" : "drive stop");
    }
    link_->Advance(0.5);
    while (const auto told = Next()) {
      ++count;
      ASSERT_TRUE(told->SumIsRight()) << count;
      ASSERT_FALSE(told->doubtful);
      ASSERT_GE(told->bytes.size(), 3U);
      ASSERT_LE(told->bytes.size(), 21U);
      // No overlap, and the least gap; both are told in whole milliseconds.
      ASSERT_GE(told->stamp, end + 0.00125 - 0.0011) << count;
      end = told->stamp + told->Seconds();
    }
  }
  EXPECT_GT(count, 3600U * 40);
  EXPECT_EQ(Status(kStatusLostMessage), 0);
  EXPECT_LT(mallinfo2().uordblks, used + 32768);
}

// --- The data log ------------------------------------------------------------------------------

struct LogFile {
  std::string comments;
  std::string head;
  struct Line {
    double stamp = -1;
    double idle = -1;
    Told told;
  };
  std::vector<Line> lines;
  bool whole = false;  // ends with a whole line
};

// Reads a data log as its description says.
LogFile ReadLog(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string all((std::istreambuf_iterator<char>(file)), {});
  LogFile log;
  log.whole = all.ends_with("\r\n");
  std::size_t head = all.rfind("\r\n---- ");
  head = head == std::string::npos ? 0 : head + 2;
  if (all.compare(head, 5, "---- ") != 0) return log;
  log.comments = all.substr(0, head);
  std::size_t at = all.find("\r\n", head);
  log.head = all.substr(head + 5, at - head - 5);
  for (at += 2; at < all.size();) {
    const std::size_t end = std::min(all.find("\r\n", at), all.size());
    std::istringstream words(all.substr(at, end - at));
    LogFile::Line line;
    words >> line.stamp >> line.idle;
    std::string rest;
    std::getline(words, rest);
    line.told = Parse(rest, "");
    log.lines.push_back(line);
    at = end + 2;
  }
  return log;
}

class DataLogTest : public BusTest {
 protected:
  std::int32_t StartLog(const std::string& path, const std::string& comments = {}) {
    path_text_ = path;
    path_text_.resize(1024);
    comments_text_ = comments;
    comments_text_.resize(std::max<std::size_t>(1024, comments.size() + 1));
    return link_->BusMonitorStartRecord(path_text_.data(), comments_text_.data(), 0);
  }
  std::string Path(const char* name = "log.txt") const { return (folder_ / name).string(); }

  ScratchFolder scratch_;
  const std::filesystem::path folder_ = scratch_.Path();
  std::string path_text_, comments_text_;
};

TEST_F(DataLogTest, HasTheCommentsAHeadAndALineForEachMessage) {
  ConnectAndRead("configuration 2S/2M");
  ASSERT_EQ(StartLog(Path(), "Trailer 7\r\nsecond line"), 0);
  EXPECT_EQ(link_->Get("recording"), "on");
  EXPECT_STREQ(path_text_.c_str(), Path().c_str()) << "the texts come back as they were";
  EXPECT_STREQ(comments_text_.c_str(), "Trailer 7\r\nsecond line");
  link_->Advance(10);
  ASSERT_EQ(link_->BusMonitorStopRecord(), 0);
  EXPECT_EQ(link_->Get("recording"), "off");
  link_->Advance(5);
  const LogFile log = ReadLog(Path());
  EXPECT_EQ(log.comments, "Trailer 7\r\nsecond line\r\n");
  EXPECT_EQ(log.head, "2000-01-01 00:00:02 2S/2M");
  EXPECT_TRUE(log.whole);
  ASSERT_GT(log.lines.size(), 400U);
  EXPECT_LT(log.lines.front().stamp, 0.2);
  EXPECT_NEAR(log.lines.back().stamp, 10, 0.2);
  for (std::size_t i = 1; i < log.lines.size(); ++i) {
    EXPECT_TRUE(log.lines[i].told.SumIsRight());
    const auto& before = log.lines[i - 1];
    EXPECT_NEAR(log.lines[i].stamp - log.lines[i].idle, before.stamp + before.told.Seconds(),
                0.002);
  }
}

TEST_F(DataLogTest, RunsBesideTheMonitorAndHasEveryMessageOfIt) {
  Open();
  ASSERT_EQ(StartLog(Path()), 0);
  const auto all = Listen(10);
  ASSERT_EQ(link_->BusMonitorStopRecord(), 0);
  const LogFile log = ReadLog(Path());
  EXPECT_EQ(log.comments, "");
  ASSERT_EQ(log.lines.size(), all.size());
  for (std::size_t i = 0; i < all.size(); ++i) EXPECT_EQ(log.lines[i].told.bytes, all[i].bytes);
}

TEST_F(DataLogTest, IsWholeAtEveryMoment) {
  ConnectAndRead();
  ASSERT_EQ(StartLog(Path(), "c"), 0);
  for (int i = 0; i < 300; ++i) {
    link_->Advance(0.01);
    const LogFile log = ReadLog(Path());
    ASSERT_TRUE(log.whole);
    ASSERT_EQ(log.comments, "c\r\n");
    for (const auto& line : log.lines) ASSERT_TRUE(line.told.SumIsRight());
  }
}

TEST_F(DataLogTest, CommentsThatLookLikeAHeadAreComments) {
  ConnectAndRead();
  const std::string comments = "---- 2026-01-01 00:00:00 4S/2M\r\n  1.000 0.002  137\r\n";
  ASSERT_EQ(StartLog(Path(), comments), 0);
  link_->Advance(1);
  const LogFile log = ReadLog(Path());
  EXPECT_EQ(log.comments, comments);
  EXPECT_EQ(log.head, "2000-01-01 00:00:02 4S/2M");
}

TEST_F(DataLogTest, RefusesAsItShould) {
  ConnectAndRead();
  EXPECT_EQ(link_->BusMonitorStopRecord(), kConditionsNotCorrect);
  std::ofstream(Path("old.txt")) << "old";
  EXPECT_EQ(StartLog(""), kOutOfRange);
  EXPECT_EQ(StartLog((folder_ / "gone" / "log.txt").string()), kOutOfRange);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "gone")) << "no folder is made";
  EXPECT_EQ(StartLog(folder_.string()), kOutOfRange);
  EXPECT_EQ(link_->BusMonitorStopRecord(), kConditionsNotCorrect);
  ASSERT_EQ(StartLog(Path()), 0);
  EXPECT_EQ(StartLog(Path("old.txt")), kBusy);
  std::ifstream old(Path("old.txt"));
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(old), {}), "old");
  EXPECT_EQ(link_->BusMonitorStopRecord(), 0);
  EXPECT_EQ(StartLog(Path("old.txt")), 0) << "no question about an existing file";
}

TEST_F(DataLogTest, EndsWithTheConnection) {
  ConnectAndRead();
  ASSERT_EQ(StartLog(Path()), 0);
  link_->Advance(2);
  ASSERT_EQ(link_->Disconnect(), 0);
  const std::size_t lines = ReadLog(Path()).lines.size();
  EXPECT_GT(lines, 60U);
  EXPECT_EQ(link_->Get("recording"), "off");
  link_->Advance(2);
  EXPECT_EQ(ReadLog(Path()).lines.size(), lines);
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(link_->BusMonitorStopRecord(), kConditionsNotCorrect);
}

TEST_F(DataLogTest, CanTellOtherNames) {
  ConnectAndRead();
  ASSERT_EQ(link_->Command("record renames \"" + Path("other.txt") + "\" \"other words\""), "");
  ASSERT_EQ(StartLog(Path(), "mine"), 0);
  EXPECT_STREQ(path_text_.c_str(), Path("other.txt").c_str());
  EXPECT_STREQ(comments_text_.c_str(), "other words");
  link_->Advance(1);
  ASSERT_EQ(link_->BusMonitorStopRecord(), 0);
  EXPECT_EQ(ReadLog(Path("other.txt")).comments, "other words\r\n");
  EXPECT_FALSE(std::filesystem::exists(Path()));
  ASSERT_EQ(link_->Command("record renames"), "");
  ASSERT_EQ(StartLog(Path(), "mine"), 0);
  EXPECT_STREQ(path_text_.c_str(), Path().c_str());
}

TEST_F(DataLogTest, TakesANameInCodePage1252) {
  ConnectAndRead();
  ASSERT_EQ(StartLog(folder_.string() + "/\xE9t\xE9 \x80.txt"), 0);
  EXPECT_TRUE(std::filesystem::exists(folder_ / u"\u00E9t\u00E9 \u20AC.txt"));
}

// The system refuses what goes beyond a size, as a full disk does.
TEST_F(DataLogTest, AFullDiskLosesNothingAndBreaksNoLine) {
  ConnectAndRead();
  ASSERT_EQ(StartLog(Path(), "c"), 0);
  link_->Advance(1);
  const std::size_t before = ReadLog(Path()).lines.size();
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old_limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old_limit), 0);
  rlimit limit = old_limit;
  limit.rlim_cur = std::filesystem::file_size(Path()) + 20;  // within the next line
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  link_->Advance(2);
  const LogFile full = ReadLog(Path());
  const std::int32_t refused = link_->BusMonitorStopRecord();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old_limit), 0);
  std::signal(SIGXFSZ, old_handler);
  EXPECT_EQ(full.lines.size(), before);
  EXPECT_TRUE(full.whole);
  EXPECT_EQ(refused, kOutOfRange);
  EXPECT_EQ(link_->Get("recording"), "on");
  ASSERT_EQ(link_->BusMonitorStopRecord(), 0) << "there is room again";
  const LogFile log = ReadLog(Path());
  EXPECT_GT(log.lines.size(), before + 80);
  for (std::size_t i = 1; i < log.lines.size(); ++i)
    EXPECT_NEAR(log.lines[i].stamp - log.lines[i].idle,
                log.lines[i - 1].stamp + log.lines[i - 1].told.Seconds(), 0.002);
}

}  // namespace
}  // namespace lorimet::simulator
