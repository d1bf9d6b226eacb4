#include <algorithm>
#include <string>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

// How failures are narrowed down, and what they do to a call.
using LinkFailuresTest = LinkFixture;

TEST_F(LinkFailuresTest, RoutinesAreToldApartByIdentifierChannelAndMode) {
  ConnectAndRead(
      "failure refuse routine=0x37 mode=1 times=1\nfailure refuse routine=0x06 channel=4 times=1");
  OpenParameters();
  EXPECT_EQ(Routine(0x37, {0, 0, 2}), 0);
  EXPECT_EQ(Routine(0x37, {0, 0, 1}), kRejected);
  EXPECT_EQ(Routine(0x37, {0, 0, 1}), 0);
  EXPECT_EQ(Routine(0x06, {0, 0, 0, 0, 0, 0xE8, 3}), 0);
  EXPECT_EQ(Routine(0x06, {4, 0, 0, 0, 0, 0xE8, 3}), kRejected);
  EXPECT_EQ(Routine(0x06, {4, 0, 0, 0, 0, 0xE8, 3}), 0);
}

TEST_F(LinkFailuresTest, ARoutineCanStaySilentOrAnswerLateByItself) {
  ConnectAndRead(
      "failure never_answer routine=0x07 times=1 value=3\n"
      "failure answer_late routine=0x05 times=1 value=1.5");
  OpenParameters();
  double waited = 0;
  link_->SetWaiter([&](double seconds) { waited += seconds; });
  EXPECT_EQ(Routine(0x05, {}), 0);
  EXPECT_EQ(waited, 1.5);
  EXPECT_EQ(Routine(0x07, {1, 0xE8, 3}), kNoAnswer);
  EXPECT_EQ(waited, 4.5);
  EXPECT_EQ(link_->Get("lamp output"), "off");
}

TEST_F(LinkFailuresTest, AWordIsRefusedByItsAddress) {
  ConnectAndRead("failure read_refused address=0x02202C");
  std::uint8_t high = 7;
  std::uint8_t low = 7;
  EXPECT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 0x20, 0x2A, &high, &low), 0);
  high = low = 7;
  EXPECT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 0x20, 0x2C, &high, &low), kRejected);
  EXPECT_EQ(high, 7);
  EXPECT_EQ(low, 7);
}

TEST_F(LinkFailuresTest, SkipLetsMatchingCallsPassFirst) {
  ConnectAndRead("failure refuse operation=FaultLock skip=2 times=1");
  const auto lock = [&] {
    const auto status = link_->FaultLock();
    link_->FaultUnlock();
    return status;
  };
  EXPECT_EQ(lock(), 0);
  EXPECT_EQ(Read(0x2A), 0) << "another operation does not count";
  EXPECT_EQ(lock(), 0);
  EXPECT_EQ(lock(), kRejected);
  EXPECT_EQ(lock(), 0);
}

TEST_F(LinkFailuresTest, AFailureEndsAfterItsTime) {
  ConnectAndRead();
  link_->Command("failure refuse operation=FaultUnlock for=2");
  link_->Advance(1.99);
  ASSERT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(link_->FaultUnlock(), kRejected);
  link_->Advance(0.02);
  EXPECT_EQ(link_->FaultUnlock(), 0);
}

TEST_F(LinkFailuresTest, ACableOutForAWhileComesBackByItself) {
  ConnectAndRead();
  link_->Command("failure cable_out for=2.5");
  link_->Advance(2.4);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 2);
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  link_->Advance(0.3);
  EXPECT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(statuses_.back(), 0);
}

TEST_F(LinkFailuresTest, ACableOutCountsReadingsAndServices) {
  ConnectAndRead();
  link_->Command("failure cable_out times=3");
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  link_->Advance(0.1);
  EXPECT_EQ(link_->FaultLock(), 0);
}

TEST_F(LinkFailuresTest, TheLinkCanBeAttainedLate) {
  Start("failure link_not_attained times=5");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(0.65);
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 0);
  link_->Advance(0.1);
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 1);
}

TEST_F(LinkFailuresTest, OneStaticReadCanNeverEndAndTheNextOneDoes) {
  Start("failure static_read_never_ends times=1");
  ASSERT_EQ(Connect(), 0);
  link_->Trailer_ABS_QOR_ReadStaticData();
  link_->Advance(30);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  link_->Trailer_ABS_QOR_ReadStaticData();
  link_->Advance(1);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
  Start("failure static_read_never_ends for=3");
  ASSERT_EQ(Connect(), 0);
  link_->Trailer_ABS_QOR_ReadStaticData();
  link_->Advance(2.9);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  link_->Advance(0.2);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
}

TEST_F(LinkFailuresTest, AnAnswerCanComeRightWithAWrongStatus) {
  ConnectAndRead("failure answer_status block=0x2A value=1 times=1\nflag 7");
  EXPECT_EQ(Read(0x2A), 1);
  EXPECT_EQ(buffer_[1], 7);
  EXPECT_EQ(count_, 3);
  EXPECT_EQ(Read(0x2A), 0);
}

TEST_F(LinkFailuresTest, AnAnswerCanBeTheOneBefore) {
  ConnectAndRead("word 2 7 0x0E 0x1234\nword 2 7 0x10 0x5678");
  EXPECT_EQ(Read(0x2A), 0);
  link_->Command("failure answer_stale times=1");
  EXPECT_EQ(Read(0x29), 0);
  EXPECT_EQ(buffer_[0], 0x2A);
  EXPECT_EQ(count_, 3);
  EXPECT_EQ(Read(0x29), 0);
  EXPECT_EQ(buffer_[0], 0x29);
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x0E, &high, &low);
  link_->Command("failure answer_stale times=1");
  link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x10, &high, &low);
  EXPECT_EQ(high * 256 + low, 0x1234);
}

TEST_F(LinkFailuresTest, AnAnswerCanBeBytesOfChanceThatTheSeedDecides) {
  const auto garbage = [&](const char* seed) {
    ConnectAndRead(std::string("failure answer_garbage\n") + seed);
    EXPECT_EQ(Read(0x29), 0);
    EXPECT_EQ(count_, 21);
    return std::vector<std::uint8_t>(buffer_.begin(), buffer_.begin() + 21);
  };
  const auto first = garbage("");
  EXPECT_EQ(garbage(""), first);
  EXPECT_NE(garbage("noise seed=3"), first);
  EXPECT_GT(std::count_if(first.begin(), first.end(), [](int byte) { return byte != 0; }), 10);
}

TEST_F(LinkFailuresTest, TheLinkCanBeLostWithinACall) {
  ConnectAndRead("failure cable_out_at routine=0x05 times=1 for=3");
  OpenParameters();
  EXPECT_EQ(Routine(0x41, {6, 1}), 0);
  EXPECT_EQ(Routine(0x05, {}), kNoAnswer);
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  link_->Advance(2.9);
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  link_->Advance(0.2);
  EXPECT_EQ(link_->FaultLock(), 0);
}

TEST_F(LinkFailuresTest, AStatusCanFollowACall) {
  ConnectAndRead("failure status_after operation=FaultLock value=-99 times=1");
  EXPECT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>{-99});
  link_->FaultUnlock();
  EXPECT_EQ(statuses_.size(), 1u);
}

TEST_F(LinkFailuresTest, TheHeightSensorsAnswerCanBeMissingOrWronglyTold) {
  ConnectAndRead(
      "suspension mechanical\nheight 1310\nfailure io_control_short times=1\n"
      "failure io_control_status value=5 times=1");
  OpenParameters();
  std::array<std::uint8_t, 4> data = {1, 0, 0xFF, 0xFF};
  EXPECT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()), 0);
  EXPECT_EQ(data, (std::array<std::uint8_t, 4>{1, 0, 0xFF, 0xFF}));
  EXPECT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()), 5);
  EXPECT_EQ(data[2] * 256 + data[3], 1310);
}

TEST_F(LinkFailuresTest, LostMessagesAreToldOnceASecondAtMost) {
  ConnectAndRead();
  link_->Command("failure lost_message");
  link_->Advance(3.05);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -500), 3);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 0);
}

TEST_F(LinkFailuresTest, TheSilenceOfAResetIsNoLinkErrorForFiveSeconds) {
  ConnectAndRead("reset_time 3");
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(3.2);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 0);
  EXPECT_EQ(statuses_.back(), 0);
  link_->Command("reset_time 20");
  ASSERT_EQ(link_->ResetECU(), 0);
  statuses_.clear();
  link_->Advance(4.95);
  EXPECT_TRUE(statuses_.empty());
  link_->Advance(1.1);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 2);
  Start("reset_time 3");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(0.5);
  link_->Command("reset");  // nobody has asked the library for it
  link_->Advance(2);
  EXPECT_GT(std::count(statuses_.begin(), statuses_.end(), -100), 0);
}

TEST_F(LinkFailuresTest, NothingAnswersWithoutTheAdapter) {
  ConnectAndRead();
  link_->Command("adapter off");
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  link_->Advance(2);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 2);
  link_->Disconnect();
  EXPECT_EQ(Connect(), kHardwareSilent);
  link_->Command("adapter on");
  EXPECT_EQ(Connect(), 0);
}

TEST_F(LinkFailuresTest, RequestsAreKeptOnCommandAndTheLastOneAlways) {
  ConnectAndRead();
  EXPECT_EQ(link_->Get("last Trailer_ABS_KWP_StartSession"), "none");
  ASSERT_EQ(link_->Command("log on"), "");
  OpenParameters();
  ASSERT_EQ(link_->Command("log off"), "");
  link_->FaultLock();
  EXPECT_EQ(link_->Log().Lines().size(), 3u);
  EXPECT_EQ(link_->Get("last Trailer_ABS_KWP_StartRoutineByLocId"), "(0x42, 4, [00 00 01 00])");
  EXPECT_EQ(link_->Get("requests FaultLock"), "1");
  EXPECT_EQ(link_->Get("told"), "6");
  EXPECT_EQ(link_->Get("request 6"), "FaultLock()");
  for (int i = 0; i < 100; ++i) link_->FaultUnlock();
  EXPECT_EQ(link_->Get("request 106"), "FaultUnlock()");
  EXPECT_EQ(link_->Get("request 7"), "FaultUnlock()");
  EXPECT_EQ(link_->Get("request 6"), "none") << "a hundred are kept";
  EXPECT_NE(link_->Command("get requests Fly"), "");
  ASSERT_EQ(link_->Command("log clear"), "");
  EXPECT_EQ(link_->Get("requests FaultLock"), "0");
  EXPECT_EQ(link_->Get("told"), "0");
  EXPECT_EQ(link_->Get("request 1"), "none");
  EXPECT_TRUE(link_->Log().Lines().empty());
}

}  // namespace
}  // namespace lorimet::simulator
