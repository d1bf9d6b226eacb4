// Reading, clearing and listing the faults: the order of the link calls and every early exit.
#include "faults/faults.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "support/dictionary.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class FaultsTest : public ProgramTest {
 protected:
  // The store that the fake library answers with.
  void Hold(const std::vector<FaultRecord>& records) {
    link.always["FaultGetCount"] = static_cast<std::int32_t>(records.size());
    link.fault_data = [records](void* first) {
      std::copy(records.begin(), records.end(), static_cast<FaultRecord*>(first));
    };
  }
  Faults& Module() { return program.faults->faults; }
};

TEST_F(FaultsTest, CountIsReadUnderTheLockAndTheRecordsAreKept) {
  Hold({{0, 5, 7, 0, 0, 3}, {0, 59, 12, 0, 1, 1}});
  EXPECT_EQ(Module().GetFaultCount(), 2);
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock", "FaultGetCount", "FaultGetData", "FaultUnlock"}));
  ASSERT_EQ(Module().FaultData().size(), 3u);
  EXPECT_EQ(Module().FaultData()[0].Sid, 5);
  EXPECT_EQ(Module().FaultData()[1].Fmi, 12);
  EXPECT_EQ(Module().FaultData()[2], FaultRecord{});
}

TEST_F(FaultsTest, RefusedLockGivesNoFaultsAndTouchesNothing) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Module().GetFaultCount();
  const auto before = Module().FaultData();
  link.TakeCalls();
  link.always["FaultLock"] = 1;
  EXPECT_EQ(Module().GetFaultCount(), 0);
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock"}));
  EXPECT_EQ(Module().FaultData(), before);
}

TEST_F(FaultsTest, EmptyStoreLeavesOneZeroedElement) {
  Hold({});
  EXPECT_EQ(Module().GetFaultCount(), 0);
  EXPECT_EQ(Module().FaultData(), std::vector<FaultRecord>(1));
  EXPECT_EQ(link.TakeCalls(), (Calls{"FaultLock", "FaultGetCount", "FaultGetData", "FaultUnlock"}));
}

TEST_F(FaultsTest, NegativeCountKeepsTheSpareElement) {
  link.always["FaultGetCount"] = -1;
  EXPECT_EQ(Module().GetFaultCount(), -1);
  EXPECT_EQ(Module().FaultData().size(), 1u);
}

TEST_F(FaultsTest, RefusedDataIsIgnoredByTheCount) {
  Hold({{0, 5, 7, 0, 0, 3}});
  link.always["FaultGetData"] = 9;
  EXPECT_EQ(Module().GetFaultCount(), 1);
  EXPECT_EQ(link.TakeCalls().back(), "FaultUnlock");
}

TEST_F(FaultsTest, CountBeyondSixteenBitsIsAnOverflow) {
  for (const std::int32_t count : {32768, 40000, 2'000'000'000}) {
    link.always["FaultGetCount"] = count;
    try {
      Module().GetFaultCount();
      FAIL() << count;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 6) << count;
    }
  }
}

TEST_F(FaultsTest, LargestCountIsRead) {
  link.always["FaultGetCount"] = 32767;
  EXPECT_EQ(Module().GetFaultCount(), 32767);
  EXPECT_EQ(Module().FaultData().size(), 32768u);
}

// Fails on one text.
class FailingTranslations : public TranslationSource {
 public:
  bool Open() override { return true; }
  std::string Lookup(int, const std::string& key) override {
    if (key == "Stored") throw RuntimeError(ErrorNumber::kOverflow);
    return key;
  }
};

TEST_F(FaultsTest, AnErrorWhileTheListIsFilledTellsWhereItStood) {
  FailingTranslations failing;
  Dictionary dictionary(failing, desktop);
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  Faults module(link, desktop, dictionary, program.faults->fault_table);
  Hold({{0, 5, 7, 0, 0, 3}, {0, 5, 7, 0, 1, 3}, {0, 59, 12, 0, 0, 1}, {0, 3, 1, 0, 0, 1}});
  frmFaults& list = program.faults->fault_list;
  module.FillFaultGrid(list.grdFaults, list.txtRepair);
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("6:  Overflow", "ERROR"),
                   PlainBox("Error in insert fault record.\r\niCol = 2\r\niNbrOfRows = 4\r\n"
                            "iRow = 1",
                            "ERROR")}));
}

TEST_F(FaultsTest, ClearingIsTriedUntilItSucceeds) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Module().GetFaultCount();
  link.TakeCalls();
  link.answers["ClearAllFaults"] = {1, 1, 0};
  EXPECT_EQ(Module().ClearFaults(), 0);
  EXPECT_EQ(link.TakeCalls(), Calls(3, "ClearAllFaults"));
  EXPECT_EQ(Module().FaultData(), std::vector<FaultRecord>(1));
}

TEST_F(FaultsTest, ClearingGivesUpAfterFourTriesAndKeepsTheRecords) {
  Hold({{0, 5, 7, 0, 0, 3}});
  Module().GetFaultCount();
  link.TakeCalls();
  link.always["ClearAllFaults"] = 2;
  EXPECT_EQ(Module().ClearFaults(), -1);
  EXPECT_EQ(link.TakeCalls(), Calls(4, "ClearAllFaults"));
  EXPECT_EQ(Module().FaultData().size(), 2u);
}

}  // namespace
}  // namespace lorimet::testing_support
