#include <fstream>
#include <iterator>
#include <set>

#include "autotests/places.h"
#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using FailureModesTest = LinkFixture;

TEST_F(FailureModesTest, TheTableNamesEveryModeInItsOrderAndOnce) {
  std::set<std::string_view> names;
  for (std::size_t i = 0; i < FailureTable().size(); ++i) {
    const FailureFacts& facts = FailureTable()[i];
    EXPECT_EQ(static_cast<std::size_t>(facts.mode), i) << facts.name;
    EXPECT_TRUE(names.insert(facts.name).second) << facts.name;
    EXPECT_EQ(FindFailure(facts.name), &facts);
    EXPECT_EQ(&FactsOf(facts.mode), &facts);
  }
  EXPECT_EQ(FailureTable().back().mode, FailureMode::kMonitorFull);
  EXPECT_EQ(FindFailure("bad weather"), nullptr);
}

TEST_F(FailureModesTest, EveryModeOperationAndCommandIsInTheDocument) {
  std::ifstream file(InSource("docs/simulator.md"));
  const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  for (const FailureFacts& facts : FailureTable())
    EXPECT_NE(text.find("`" + std::string(facts.name) + "`"), std::string::npos) << facts.name;
  for (const CommandFacts& command : Commands())
    EXPECT_NE(text.find("`" + std::string(command.word)), std::string::npos) << command.word;
  for (const DefectFacts& defect : DefectTable())
    EXPECT_NE(text.find("`" + std::string(defect.name)), std::string::npos) << defect.name;
  for (const SeenFacts& seen : SeenTable())
    EXPECT_NE(text.find("`" + std::string(seen.name)), std::string::npos) << seen.name;
}

TEST_F(FailureModesTest, EveryOperationCanBeRefusedAndIsCounted) {
  for (const std::string_view name : kOperationNames) {
    if (name == "Connect" || name == "GetErrorText") continue;
    ConnectAndRead();
    OpenParameters();
    link_->BusMonitorOpen();
    ASSERT_EQ(link_->Command("failure refuse operation=" + std::string(name) + " value=77 times=1"),
              "");
    std::array<std::uint8_t, 16> data = {};
    std::array<char, 200> text = {};
    link_->Log().Clear();
    std::set<std::int32_t> results;
    results.insert(link_->Trailer_ABS_QOR_ReadStaticData());
    results.insert(link_->Trailer_ABS_QOR_DeleteODRData(1));
    results.insert(link_->Trailer_ABS_KWP_StartSession(0x83));
    results.insert(link_->Trailer_ABS_KWP_Password());
    results.insert(link_->Trailer_ABS_KWP_SwitchDiagMode(1));
    results.insert(link_->Trailer_ABS_KWP_StartRoutineByLocId(5, 0, data.data()));
    results.insert(link_->Trailer_ABS_KWP_WriteMemoryByLocId(0x2A, 2, data.data()));
    results.insert(link_->Trailer_ABS_KWP_WriteMemoryByAddress(1, 2, 3, 2, data.data()));
    results.insert(link_->Trailer_ABS_KWP_ReadMemoryByAddress(1, 2, 3, &data[0], &data[1]));
    results.insert(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()));
    results.insert(link_->Trailer_ABS_KWP_StopSession());
    results.insert(Read(0x29));
    results.insert(link_->Trailer_OVG_UploadData(text.data()));
    results.insert(link_->Trailer_OVG_UploadODRData(1, 0x51, 0));
    results.insert(link_->Trailer_OVG_ExportODRData(text.data()));
    results.insert(link_->Trailer_OVG_StopLightActivation(0x89, 0));
    results.insert(link_->BusMonitorOpen());
    results.insert(link_->BusMonitorGetData(text.data(), text.data(), 0, 0));
    results.insert(link_->BusMonitorStartRecord(text.data(), text.data(), 0));
    results.insert(link_->BusMonitorStopRecord());
    results.insert(link_->BusMonitorClose());
    results.insert(link_->FaultLock());
    results.insert(link_->FaultGetCount());
    results.insert(link_->FaultGetData(data.data()));
    results.insert(link_->FaultUnlock());
    results.insert(link_->ClearAllFaults());
    results.insert(link_->ResetECU());
    results.insert(link_->Disconnect());
    EXPECT_TRUE(results.contains(77)) << name;
    for (const std::string_view other : kOperationNames)
      EXPECT_EQ(link_->Requests(other), other == "Connect" || other == "GetErrorText" ? 0 : 1)
          << other;
  }
}

TEST_F(FailureModesTest, RefusesAsOftenAsArmedAndThenNoMore) {
  ConnectAndRead();
  link_->Command("failure refuse operation=Trailer_ABS_KWP_StartSession times=3");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), kRejected);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
  EXPECT_EQ(link_->Requests("Trailer_ABS_KWP_StartSession"), 4);
  EXPECT_EQ(link_->Requests("Trailer_ABS_KWP_Nonsense"), -1);
}

TEST_F(FailureModesTest, RefusesAlwaysUntilHealed) {
  ConnectAndRead();
  link_->Command("failure reset_refused");
  for (int i = 0; i < 20; ++i) EXPECT_NE(link_->ResetECU(), 0);
  EXPECT_TRUE(link_->TheTrailer().Answering());
  link_->Command("heal reset_refused");
  EXPECT_EQ(link_->ResetECU(), 0);
  EXPECT_FALSE(link_->TheTrailer().Answering());
}

TEST_F(FailureModesTest, ALateAnswerTakesItsTime) {
  ConnectAndRead();
  double waited = 0;
  link_->SetWaiter([&](double seconds) { waited += seconds; });
  link_->Command("failure answer_late operation=FaultLock value=0.7 times=1");
  EXPECT_EQ(link_->FaultLock(), 0);
  EXPECT_EQ(waited, 0.7);
  EXPECT_EQ(link_->FaultUnlock(), 0);
  EXPECT_EQ(waited, 0.7);
}

TEST_F(FailureModesTest, AnAnswerThatNeverComesIsGivenUpAndTheTrailerGoesOnMeanwhile) {
  ConnectAndRead();
  link_->Command("spin c 10");
  link_->Command("failure never_answer operation=FaultLock times=once");
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  EXPECT_NEAR(record_.dWheelSpeed[3].Load(), 10 - 2 * 1.2, 0.3);
  EXPECT_EQ(link_->FaultLock(), 0);
}

TEST_F(FailureModesTest, ABlockCanComeShortLongOrFromAnotherIdentifier) {
  ConnectAndRead();
  OpenParameters();
  link_->Command("failure answer_short block=EOL5 value=20 times=1");
  ASSERT_EQ(Read(0x03), 0);
  EXPECT_EQ(count_, 81) << "another block than the one told";
  ASSERT_EQ(Read(0x28), 0);
  EXPECT_EQ(count_, 20);
  EXPECT_EQ(buffer_[20], 0xA5);
  link_->Command("failure answer_short times=1");
  ASSERT_EQ(Read(0x28), 0);
  EXPECT_EQ(count_, 55);
  link_->Command("failure answer_long block=0x42 times=1");
  ASSERT_EQ(Read(0x42), 0);
  EXPECT_EQ(count_, 255);
  EXPECT_EQ(buffer_[511], 0xEE);
  link_->Command("failure other_block block=EOL3 value=0x3D times=1");
  ASSERT_EQ(Read(0x27), 0);
  EXPECT_EQ(buffer_[0], 0x3D);
  EXPECT_EQ(count_, 11);
  ASSERT_EQ(Read(0x27), 0);
  EXPECT_EQ(buffer_[0], 0x27);
}

TEST_F(FailureModesTest, ABlockCanRefuseToBeReadOrWrittenOrForgetWhatItGot) {
  ConnectAndRead();
  OpenParameters();
  link_->Command("failure read_refused block=EOL2 times=1");
  EXPECT_EQ(Read(0x27), 0);
  EXPECT_EQ(Read(0x3D), kRejected);
  EXPECT_EQ(Read(0x3D), 0);
  link_->Command("failure write_refused block=EOL3 times=4");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Write(0x27, {99}), kRejected);
  link_->Command("failure write_dropped block=EOL3 times=1");
  EXPECT_EQ(Write(0x27, {99}), 0);
  ASSERT_EQ(Read(0x27), 0);
  EXPECT_EQ(buffer_[1], 15);
  EXPECT_EQ(Write(0x27, {99}), 0);
  ASSERT_EQ(Read(0x27), 0);
  EXPECT_EQ(buffer_[1], 99);
}

TEST_F(FailureModesTest, TheLinkCanFailToSayThatItWasAttained) {
  ConnectAndRead("failure link_not_attained");
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 0);
  EXPECT_GT(record_.dSupplyPress.Load(), 0);
  link_->Command("heal all");
  link_->Advance(0.2);
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 1);
}

TEST_F(FailureModesTest, RequestsAreLoggedInOrderWithTheirArgumentsOnDemand) {
  Start("");
  ASSERT_EQ(Connect(), 0);
  link_->Log().Keep(true);
  OpenParameters();
  Read(0x2A);
  Write(0x2A, {1, 0});
  link_->FaultLock();
  const std::vector<std::string> expected = {
      "Trailer_ABS_KWP_StartSession(0x83)",
      "Trailer_ABS_KWP_Password()",
      "Trailer_ABS_KWP_StartRoutineByLocId(0x42, 4, [00 00 01 00])",
      "Trailer_OVG_ReadDataByLocId(0x2A)",
      "Trailer_ABS_KWP_WriteMemoryByLocId(0x2A, 2, [01 00])",
      "FaultLock()"};
  EXPECT_EQ(link_->Log().Lines(), expected);
  link_->Log().Clear();
  EXPECT_TRUE(link_->Log().Lines().empty());
  EXPECT_EQ(link_->Requests("FaultLock"), 0);
}

}  // namespace
}  // namespace lorimet::simulator
