#include <array>
#include <cstring>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

// A record of six words, as the reader of the store sees it.
using Record = std::array<std::int32_t, 6>;

class FaultsTest : public LinkFixture {
 protected:
  std::vector<Record> ReadStore() {
    EXPECT_EQ(link_->FaultLock(), 0);
    std::vector<Record> records(static_cast<std::size_t>(link_->FaultGetCount()));
    EXPECT_EQ(link_->FaultGetData(records.data()), records.empty() ? kConditionsNotCorrect : 0);
    EXPECT_EQ(link_->FaultUnlock(), 0);
    return records;
  }
};

TEST_F(FaultsTest, AHealthyStoreIsEmpty) {
  ConnectAndRead();
  ASSERT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(link_->FaultGetCount(), 0);
  EXPECT_EQ(link_->FaultUnlock(), 0);
}

TEST_F(FaultsTest, RecordsCarryNumbersStateAndOccurrencesInOrder) {
  ConnectAndRead(
      "fault 3 5 active 7\nfault 7 3 stored 0\nfault 4 5 stored -1\nfault 99 31 2 70000");
  const std::vector<Record> expected = {
      {0, 3, 5, 0, 0, 7}, {0, 7, 3, 0, 1, 0}, {0, 4, 5, 0, 1, -1}, {0, 99, 31, 0, 2, 70000}};
  EXPECT_EQ(ReadStore(), expected);
  EXPECT_EQ(record_.bNumFaults.Load(), 4);
}

TEST_F(FaultsTest, TheStoreOpensOnceAndKeepsItsContentsWhileItIsLocked) {
  ConnectAndRead("fault 3 5 active 7");
  EXPECT_EQ(link_->FaultGetCount(), 0);
  EXPECT_EQ(link_->FaultUnlock(), kConditionsNotCorrect);
  ASSERT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(link_->FaultLock(), kBusy);
  link_->Command("fault 8 1 active");
  EXPECT_EQ(link_->FaultGetCount(), 1);
  ASSERT_EQ(link_->FaultUnlock(), 0);
  EXPECT_EQ(ReadStore().size(), 2u);
}

TEST_F(FaultsTest, AResetAndADisconnectReleaseTheLock) {
  ConnectAndRead();
  ASSERT_EQ(link_->FaultLock(), 0);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1);
  ASSERT_EQ(link_->FaultLock(), 0);
  ASSERT_EQ(link_->Disconnect(), 0);
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(link_->FaultLock(), 0);
}

TEST_F(FaultsTest, ClearingErasesAndAStandingCauseComesBackAfterASecond) {
  ConnectAndRead("fault 3 5 active 7\nfault 7 3 stored 2");
  ASSERT_EQ(link_->ClearAllFaults(), 0);
  link_->Advance(0.2);
  EXPECT_EQ(record_.bNumFaults.Load(), 0);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
  link_->Advance(0.95);
  EXPECT_EQ(record_.bNumFaults.Load(), 1);
  EXPECT_EQ(ReadStore(), (std::vector<Record>{{0, 3, 5, 0, 0, 1}}));
}

TEST_F(FaultsTest, AStandingCauseComesBackAtOnceWithAReset) {
  ConnectAndRead("fault 3 5 active 7");
  ASSERT_EQ(link_->ClearAllFaults(), 0);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(0.95);
  EXPECT_EQ(ReadStore(), (std::vector<Record>{{0, 3, 5, 0, 0, 1}}));
}

TEST_F(FaultsTest, AHealedCauseStaysAwayAfterClearing) {
  ConnectAndRead("fault 3 5 active 7");
  link_->Command("fault 3 5 gone");
  EXPECT_EQ(ReadStore(), (std::vector<Record>{{0, 3, 5, 0, 1, 7}}));
  ASSERT_EQ(link_->ClearAllFaults(), 0);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(3);
  EXPECT_EQ(record_.bNumFaults.Load(), 0);
  link_->Command("fault 4 4 active");
  link_->Command("fault 4 4 none");
  link_->Advance(3);
  EXPECT_EQ(record_.bNumFaults.Load(), 0);
}

TEST_F(FaultsTest, AReplacedFaultKeepsItsPlace) {
  ConnectAndRead("fault 3 5 active 7\nfault 7 3 stored 2\nfault 3 5 stored 9");
  EXPECT_EQ(ReadStore(), (std::vector<Record>{{0, 3, 5, 0, 1, 9}, {0, 7, 3, 0, 1, 2}}));
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
}

TEST_F(FaultsTest, TheRecordsFaultCountStopsAtAByte) {
  std::string scenario;
  for (int i = 0; i < 300; ++i) scenario += "fault " + std::to_string(i) + " 1 stored\n";
  ConnectAndRead(scenario);
  EXPECT_EQ(record_.bNumFaults.Load(), 255);
  EXPECT_EQ(ReadStore().size(), 300u);
}

TEST_F(FaultsTest, LockReadAndClearCanBeRefused) {
  ConnectAndRead("fault 3 5 active 7");
  link_->Command("failure fault_lock_refused times=1");
  EXPECT_NE(link_->FaultLock(), 0);
  link_->Command("failure fault_read_refused times=1");
  ASSERT_EQ(link_->FaultLock(), 0);
  ASSERT_EQ(link_->FaultGetCount(), 1);
  Record record = {9, 9, 9, 9, 9, 9};
  EXPECT_NE(link_->FaultGetData(&record), 0);
  EXPECT_EQ(record, (Record{9, 9, 9, 9, 9, 9}));
  ASSERT_EQ(link_->FaultUnlock(), 0);
  link_->Command("failure clear_refused times=1");
  EXPECT_NE(link_->ClearAllFaults(), 0);
  EXPECT_EQ(ReadStore().size(), 1u);
  link_->Command("failure clear_ineffective times=1");
  EXPECT_EQ(link_->ClearAllFaults(), 0);
  EXPECT_EQ(ReadStore().size(), 1u);
  EXPECT_EQ(link_->ClearAllFaults(), 0);
  ASSERT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(link_->FaultGetCount(), 0);
}

TEST_F(FaultsTest, AWrongCountNeverMakesTheReadWriteMoreThanWasTold) {
  ConnectAndRead("fault 1 1 stored\nfault 2 2 stored\nfault 3 3 stored");
  for (const auto& [count, written] : {std::pair(-5, 0), std::pair(1, 1), std::pair(100000, 3)}) {
    Failure failure{.mode = FailureMode::kFaultCountIs};
    failure.value = count;
    failure.times = 1;
    link_->Failures().Arm(failure);
    ASSERT_EQ(link_->FaultLock(), 0);
    EXPECT_EQ(link_->FaultGetCount(), count);
    std::array<Record, 4> records;
    for (Record& record : records) record.fill(77);
    EXPECT_EQ(link_->FaultGetData(records.data()), 0);
    for (int i = 0; i < 4; ++i)
      EXPECT_EQ(records[static_cast<std::size_t>(i)][0], i < written ? 0 : 77) << count << " " << i;
    ASSERT_EQ(link_->FaultUnlock(), 0);
  }
}

TEST_F(FaultsTest, RecordsCanComeShort) {
  ConnectAndRead("fault 1 1 stored 5\nfault 2 2 stored 6\nfailure fault_records_short times=1");
  ASSERT_EQ(link_->FaultLock(), 0);
  ASSERT_EQ(link_->FaultGetCount(), 2);
  std::array<Record, 2> records = {};
  EXPECT_EQ(link_->FaultGetData(records.data()), 0);
  EXPECT_EQ(records[0], (Record{0, 1, 1, 0, 0, 0}));
  EXPECT_EQ(records[1], (Record{}));
}

}  // namespace
}  // namespace lorimet::simulator
