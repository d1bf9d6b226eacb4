#include "autotests/places.h"
#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

// Who writes the record when.
class RecordTest : public LinkFixture {
 protected:
  // Writes the vehicle's block with other bytes at some indices.
  void WriteEol1(std::initializer_list<std::pair<std::size_t, std::uint8_t>> changes) {
    ASSERT_EQ(Read(kEol1), 0);
    std::vector<std::uint8_t> data(buffer_.begin() + 1, buffer_.begin() + 81);
    for (const auto& [index, value] : changes) data[index - 1] = value;
    ASSERT_EQ(Write(kEol1, data), 0);
  }
};

TEST_F(RecordTest, ParametersThatWereWrittenAreToldHalfASecondAfterTheEcuIsBackFromAReset) {
  ConnectAndRead();
  OpenParameters();
  WriteEol1({{34, 70}, {42, 9}});
  link_->Advance(5);
  EXPECT_NEAR(record_.dLadenBellows.Load(), 48 * 1.451, 1e-9) << "nobody has told them";
  record_.nLinkJobDone.Store(4);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1.2);
  EXPECT_NEAR(record_.dLadenBellows.Load(), 48 * 1.451, 1e-9);
  link_->Advance(0.15);
  EXPECT_NEAR(record_.dLadenBellows.Load(), 70 * 1.451, 1e-9);
  EXPECT_NEAR(record_.dTargetPressure1.Load(), 9 * 1.451, 1e-9);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 4) << "a reset is no job";
}

TEST_F(RecordTest, TheVehicleIsToldAfterEveryResetAndTheIdentityWithTheStaticReadOnly) {
  ConnectAndRead();
  for (int i = 0; i < 2; ++i) {
    record_.dLadenBellows.Store(1);
    record_.nAxleSensors[0].Store(9);
    record_.bNumSensors.Store(99);
    record_.SysName.Store("OURS");
    ASSERT_EQ(link_->ResetECU(), 0);
    link_->Advance(2);
    EXPECT_NEAR(record_.dLadenBellows.Load(), 48 * 1.451, 1e-9);
    EXPECT_EQ(record_.nAxleSensors[0].Load(), 2);
    EXPECT_EQ(record_.bNumSensors.Load(), 99);
    EXPECT_EQ(record_.SysName.Load().substr(0, 4), "OURS");
  }
}

TEST_F(RecordTest, ALostLinkDelaysWhatIsToldAfterAReset) {
  ConnectAndRead();
  record_.dLadenBellows.Store(1);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Command("cable out");
  link_->Advance(4);
  EXPECT_EQ(record_.dLadenBellows.Load(), 1);
  link_->Command("cable in");
  link_->Advance(0.1);
  EXPECT_GT(record_.dLadenBellows.Load(), 1);
}

TEST_F(RecordTest, WithoutAStaticReadAResetTellsNothing) {
  Start("");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(1);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(3);
  EXPECT_EQ(record_.dLadenBellows.Load(), -1);
}

TEST_F(RecordTest, AReadingOfTheVehiclesBlockTellsTheVehicleAndTheSystem) {
  ConnectAndRead();
  OpenParameters();
  record_.bNumSensors.Store(2);
  record_.bNumModulators.Store(1);
  record_.nMechanicalSuspension.Store(1);
  record_.nMounting.Store(1);
  record_.nNumAxles.Store(1);
  record_.nAxleLift[2].Store(3);
  record_.nAxleSensors[1].Store(0);
  record_.SysName.Store("OURS");
  ASSERT_EQ(Read(kEol2), 0);
  EXPECT_EQ(record_.nNumAxles.Load(), 1) << "another block";
  ASSERT_EQ(Read(kEol1), 0);
  EXPECT_EQ(record_.bNumSensors.Load(), 4);
  EXPECT_EQ(record_.bNumModulators.Load(), 2);
  EXPECT_EQ(record_.nMechanicalSuspension.Load(), 0);
  EXPECT_EQ(record_.nMounting.Load(), 0);
  EXPECT_EQ(record_.nNumAxles.Load(), 3);
  EXPECT_EQ(record_.nAxleLift[2].Load(), 0);
  EXPECT_EQ(record_.nAxleSensors[1].Load(), 1);
  EXPECT_EQ(record_.SysName.Load().substr(0, 4), "OURS");
}

TEST_F(RecordTest, ARefusedReadingTellsNothing) {
  ConnectAndRead("failure read_refused block=EOL1");
  OpenParameters();
  record_.nNumAxles.Store(1);
  EXPECT_NE(Read(kEol1), 0);
  EXPECT_EQ(record_.nNumAxles.Load(), 1);
}

TEST_F(RecordTest, AnAxleCountsThatHasAnyLoadByte) {
  const std::pair<const char*, int> rows[] = {
      {"parameter EOL1 15 0 0 0 0", 2}, {"parameter EOL1 15 1 0 0 0", 3},
      {"parameter EOL1 15 0 1 0 0", 3}, {"parameter EOL1 15 0 0 16 0", 3},
      {"parameter EOL1 15 0 0 0 1", 3}, {"parameter EOL1 3 0 0 0 0\nparameter EOL1 9 0 0 0 0", 1},
  };
  for (const auto& [scenario, axles] : rows) {
    ConnectAndRead(scenario);
    EXPECT_EQ(record_.nNumAxles.Load(), axles) << scenario;
  }
}

TEST_F(RecordTest, TextsOfAnAnswerAreCutAtTheContractsBuffer) {
  Start("answer vendor " + std::string(3000, 'V') + "\nanswer protocol " + std::string(1023, 'P'));
  std::vector<char> vendor(1025, '#');
  std::vector<char> protocol(1025, '#');
  vendor[0] = protocol[0] = '\0';
  ASSERT_EQ(link_->Connect(protocol.data(), 0, vendor.data(), -1, 3, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr, nullptr, nullptr),
            0);
  EXPECT_EQ(std::string(vendor.data()), std::string(1023, 'V'));
  EXPECT_EQ(std::string(protocol.data()), std::string(1023, 'P'));
  EXPECT_EQ(vendor[1024], '#') << "nothing behind the buffer";
  EXPECT_EQ(protocol[1024], '#');
}

TEST_F(RecordTest, AnotherScenarioIsAnotherTrailerOnTheSameLink) {
  ConnectAndRead();
  const std::string file = InSource("simulator/scenarios/healthy_2s1m.scenario");
  EXPECT_NE(link_->Command("scenario /no/such/file"), "");
  ASSERT_EQ(link_->Command("scenario " + file), "");
  EXPECT_TRUE(link_->Connected());
  EXPECT_EQ(link_->Requests("Connect"), 1) << "the link counts on";
  EXPECT_EQ(record_.bNumModulators.Load(), 2) << "nobody has read the static data anew";
  ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  link_->Advance(1);
  EXPECT_EQ(record_.bNumModulators.Load(), 1);
  EXPECT_EQ(record_.dBrake2Press.Load(), -1);
}

}  // namespace
}  // namespace lorimet::simulator
