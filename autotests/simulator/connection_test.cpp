#include <algorithm>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using ConnectionTest = LinkFixture;

TEST_F(ConnectionTest, AnswersTheClientIdentifierAndTakesWhateverIsAskedForByDefault) {
  EXPECT_EQ(Connect(), 0);
  Start("client_id 127");
  EXPECT_EQ(Connect(), 127);
}

TEST_F(ConnectionTest, RefusesASecondConnectionAndKeepsTheFirst) {
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(Connect(), 130);
  EXPECT_EQ(link_->Disconnect(), 0);
  EXPECT_EQ(Connect(), 0);
}

TEST_F(ConnectionTest, NamesWhatIsWrongWithTheAdapter) {
  const std::pair<const char*, int> rows[] = {
      {"failure no_adapter", 142},
      {"failure wrong_device", 134},
      {"failure wrong_protocol", 136},
      {"failure wrong_vendor", 128},
      {"adapter vendor DGTECH32", 128},
      {"adapter device 1", 134},
      {"adapter protocol J1708", 136},
      {"failure connect_answers value=-1", -1},
      {"failure connect_answers value=128", 128},
      {"failure connect_answers value=65536", 65536},
      {"failure refuse operation=Connect", 142},
      {"failure never_answer operation=Connect", 142},
      {"failure refuse operation=Connect value=150", 150},
  };
  for (const auto& [scenario, code] : rows) {
    Start(scenario);
    EXPECT_EQ(Connect(), code) << scenario;
    EXPECT_FALSE(link_->Connected()) << scenario;
  }
}

TEST_F(ConnectionTest, ConnectsToTheAdapterThatItDemands) {
  Start("adapter vendor V\nadapter device -1\nadapter protocol -1");
  vendor_ = {'V'};
  EXPECT_EQ(Connect(), 0);
}

TEST_F(ConnectionTest, ConnectsAgainOnceAFailureHasStruckAsOftenAsArmed) {
  Start("failure no_adapter times=2");
  EXPECT_EQ(Connect(), 142);
  EXPECT_EQ(Connect(), 142);
  EXPECT_EQ(Connect(), 0);
}

TEST_F(ConnectionTest, WritesOverTheTextsWhenAScenarioSaysSo) {
  Start("answer vendor NEWVEND\nanswer protocol J1708");
  ASSERT_EQ(Connect(), 0);
  EXPECT_STREQ(vendor_.data(), "NEWVEND");
  EXPECT_STREQ(protocol_.data(), "J1708");
}

TEST_F(ConnectionTest, KnowsNothingUntilTheFirstReading) {
  record_.dSupplyPress.Store(99);
  record_.SysName.Store("OLD");
  link_status_.bLinkAttained.Store(1);
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(record_.dSupplyPress.Load(), -1.0);
  EXPECT_EQ(record_.dLadenBellows.Load(), -1.0);
  EXPECT_EQ(record_.SysName.ByteAt(0), 0);
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 0);
  link_->Advance(0.1);
  EXPECT_EQ(record_.dSupplyPress.Load(), -1.0);
  link_->Advance(0.1);
  EXPECT_GT(record_.dSupplyPress.Load(), 100);
  EXPECT_NE(link_status_.bLinkAttained.Load(), 0);
}

TEST_F(ConnectionTest, LeavesTheFieldsOfTransfersToTheProgram) {
  record_.nODRUploadStep.Store(4);
  record_.nLinkJobDone.Store(5);
  record_.dBytesRemaining.Store(17);
  ASSERT_EQ(Connect(), 0);
  link_->Advance(5);
  EXPECT_EQ(record_.nODRUploadStep.Load(), 4);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 5);
  EXPECT_EQ(record_.dBytesRemaining.Load(), 17);
}

TEST_F(ConnectionTest, PostsHealthOnceASecond) {
  Start("");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(5.05);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>(5, 0));
}

TEST_F(ConnectionTest, PostsALinkErrorASecondAfterTheCableComesOutAndEverySecondFromThen) {
  ConnectAndRead();
  link_->Command("cable out");
  link_->Advance(0.85);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 0);
  link_->Advance(2.3);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 3);
  statuses_.clear();
  link_->Command("cable in");
  link_->Advance(0.2);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>{0});
}

TEST_F(ConnectionTest, HoldsTheLastValuesWhileTheCableIsOut) {
  ConnectAndRead();
  link_->Command("cable out");
  link_->Command("supply 50");
  link_->Advance(3);
  EXPECT_GT(record_.dSupplyPress.Load(), 100);
  link_->Command("cable in");
  link_->Advance(0.2);
  EXPECT_LT(record_.dSupplyPress.Load(), 60);
}

TEST_F(ConnectionTest, NeverAttainsTheLinkWithTheCableOut) {
  Start("cable out");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(3.05);
  EXPECT_EQ(link_status_.bLinkAttained.Load(), 0);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>(3, -100));
}

TEST_F(ConnectionTest, ReportsALostMessageAndThenHealth) {
  ConnectAndRead();
  link_->Command("failure lost_message times=1");
  link_->Advance(0.15);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>{-500});
  statuses_.clear();
  link_->Advance(0.85);
  EXPECT_TRUE(statuses_.empty()) << "the report stands for a whole second";
  link_->Advance(0.3);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>{0});
}

TEST_F(ConnectionTest, PostsAnyStatusOnCommand) {
  ConnectAndRead();
  link_->Command("post -99");
  link_->Command("post -67");
  link_->Advance(0.01);
  EXPECT_EQ(statuses_, (std::vector<std::int32_t>{-99, -67}));
}

TEST_F(ConnectionTest, WritesAndPostsNothingAfterDisconnect) {
  ConnectAndRead();
  ASSERT_EQ(link_->Disconnect(), 0);
  record_.dSupplyPress.Store(3);
  link_->Advance(5);
  EXPECT_EQ(record_.dSupplyPress.Load(), 3);
  EXPECT_TRUE(statuses_.empty());
}

TEST_F(ConnectionTest, RefusesEveryServiceWithoutAConnection) {
  EXPECT_EQ(link_->Disconnect(), 129);
  EXPECT_EQ(link_->ResetECU(), 129);
  EXPECT_EQ(link_->FaultLock(), 129);
  EXPECT_EQ(link_->FaultGetCount(), 0);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StopSession(), 129);
  EXPECT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 129);
  EXPECT_EQ(Read(0x03), 129);
  EXPECT_EQ(link_->Requests("ResetECU"), 1);
}

TEST_F(ConnectionTest, StaticReadIsAJobThatEndsWithTheConfigurationInTheRecord) {
  Start("");
  ASSERT_EQ(Connect(), 0);
  record_.nLinkJobDone.Store(9);
  ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  link_->Advance(0.75);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  EXPECT_EQ(record_.bNumSensors.Load(), 0);
  link_->Advance(0.1);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
  EXPECT_EQ(record_.bNumSensors.Load(), 4);
  EXPECT_EQ(record_.bNumModulators.Load(), 2);
  EXPECT_EQ(record_.nNumAxles.Load(), 3);
  EXPECT_EQ(record_.nAxleSensors[0].Load(), 2);
  EXPECT_EQ(record_.nAxleSensors[1].Load(), 1);
  EXPECT_EQ(record_.nAxleSensors[2].Load(), 0);
  EXPECT_EQ(record_.SysName.Load().substr(0, 17), std::string("TRAILER OVG 4S/2M"));
  EXPECT_EQ(record_.VehicleId.Load(), "1NL4S2M30A0012345 ");
  EXPECT_NEAR(record_.dTargetPressure1.Load(), 8 * 1.451, 1e-9);
  EXPECT_NEAR(record_.dTargetPressure2.Load(), 40 * 1.451, 1e-9);
  EXPECT_NEAR(record_.dLadenBellows.Load(), 48 * 1.451, 1e-9);
  EXPECT_EQ(record_.dLadenHeightValue.Load(), -1.0);
}

TEST_F(ConnectionTest, TellsEverySystemAsItIs) {
  struct Row {
    const char* scenario;
    int sensors, modulators;
  };
  const Row rows[] = {{"configuration 2S/1M", 2, 1},
                      {"configuration 2S/2M", 2, 2},
                      {"configuration 4S/2M", 4, 2},
                      {"configuration 4S/3M", 4, 3},
                      {"configuration 2M+1M", 4, 21}};
  for (const Row& row : rows) {
    ConnectAndRead(row.scenario);
    EXPECT_EQ(record_.bNumSensors.Load(), row.sensors) << row.scenario;
    EXPECT_EQ(record_.bNumModulators.Load(), row.modulators) << row.scenario;
  }
}

TEST_F(ConnectionTest, TellsMechanicalSuspensionMountingAndVehicle) {
  ConnectAndRead("suspension mechanical\nmounting rear\nvehicle drawbar\naxles 2");
  EXPECT_EQ(record_.nMechanicalSuspension.Load(), 1);
  EXPECT_EQ(record_.nMounting.Load(), 1);
  EXPECT_EQ(record_.nVehicleType.Load(), 1);
  EXPECT_EQ(record_.nNumAxles.Load(), 2);
  EXPECT_NEAR(record_.dLadenHeightValue.Load(), 80.0, 1e-9);
  EXPECT_EQ(record_.dLadenBellows.Load(), -1.0);
  EXPECT_EQ(record_.dMainBellows.Load(), -1.0);
}

TEST_F(ConnectionTest, StaticReadGivesUpOnASilentEcuAndKnowsNothing) {
  Start("cable out");
  ASSERT_EQ(Connect(), 0);
  ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  link_->Advance(4.9);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  link_->Advance(0.2);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
  EXPECT_EQ(record_.SysName.ByteAt(0), 0);
}

TEST_F(ConnectionTest, StaticReadCanBeMadeNeverToEndAndEndsOnceHealed) {
  Start("failure static_read_never_ends");
  ASSERT_EQ(Connect(), 0);
  ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  link_->Advance(60);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  link_->Command("heal static_read_never_ends");
  link_->Advance(0.1);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
}

TEST_F(ConnectionTest, RestartOfTheEcuIsShorterThanALostLinkAndRefusesServices) {
  ConnectAndRead();
  ASSERT_EQ(link_->ResetECU(), 0);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), kBusy);
  EXPECT_EQ(link_->FaultLock(), kBusy);
  link_->Advance(0.85);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
  link_->Advance(1);
  EXPECT_EQ(std::count(statuses_.begin(), statuses_.end(), -100), 0);
}

TEST_F(ConnectionTest, ABrokenScenarioIsTheAnswerOfConnectAndItsTextTheReason) {
  Start("configuration 4S/2M\nfrobnicate 3\n");
  EXPECT_EQ(Connect(), 200);
  std::string text(80, ' ');
  link_->GetErrorText(200, text.data(), 80);
  EXPECT_EQ(text.find("Scenario: line 2: unknown command 'frobnicate'"), 0u) << text;
}

TEST_F(ConnectionTest, SurvivesAbsentAndMisplacedRecords) {
  EXPECT_EQ(link_->Connect(nullptr, 0, nullptr, 0, 3, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr),
            0);
  EXPECT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  link_->Advance(3);
  EXPECT_TRUE(link_->Attained());
}

using ErrorTextTest = LinkFixture;

TEST_F(ErrorTextTest, StandsInFrontOfTheBlanksThatWereThere) {
  std::string buffer(256, ' ');
  link_->GetErrorText(-100, buffer.data(), 256);
  EXPECT_EQ(buffer, "No response from the ECU." + std::string(256 - 25, ' '));
}

TEST_F(ErrorTextTest, IsThereForEveryErrorOfConnect) {
  for (const int code : {128, 129, 130, 131, 132, 133, 134, 135, 136, 142, 143, 200}) {
    std::string buffer(1024, ' ');
    link_->GetErrorText(code, buffer.data(), 1024);
    EXPECT_NE(buffer, std::string(1024, ' ')) << code;
    EXPECT_EQ(buffer.find('\0'), std::string::npos) << code;
  }
}

TEST_F(ErrorTextTest, LeavesTheBufferOfAnUnknownCodeAsItIs) {
  std::string buffer = "untouched";
  link_->GetErrorText(4711, buffer.data(), 9);
  EXPECT_EQ(buffer, "untouched");
}

TEST_F(ErrorTextTest, IsCutAtTheBuffersLength) {
  std::string buffer(12, '#');
  link_->GetErrorText(-100, buffer.data(), 5);
  EXPECT_EQ(buffer, "No re#######");
  link_->GetErrorText(-100, nullptr, 5);
  link_->GetErrorText(-100, buffer.data(), 0);
  EXPECT_EQ(buffer, "No re#######");
}

TEST_F(ErrorTextTest, CanComeUnterminatedEmptyOrNotAtAll) {
  link_->Command("failure error_text_unterminated times=1");
  std::string buffer(17, ' ');
  buffer[16] = '\0';
  link_->GetErrorText(-100, buffer.data(), 16);
  EXPECT_EQ(buffer.find('\0'), std::string::npos);
  link_->Command("failure error_text_empty times=1");
  link_->GetErrorText(-100, buffer.data(), 16);
  EXPECT_EQ(buffer[0], '\0');
  link_->Command("failure error_text_unknown times=1");
  buffer.assign(17, ' ');
  link_->GetErrorText(-100, buffer.data(), 16);
  EXPECT_EQ(buffer, std::string(17, ' '));
}

}  // namespace
}  // namespace lorimet::simulator
