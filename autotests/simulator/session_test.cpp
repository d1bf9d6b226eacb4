#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using SessionTest = LinkFixture;

TEST_F(SessionTest, AServiceNeedsTheSessionThenThePasswordThenTheAccess) {
  ConnectAndRead();
  EXPECT_EQ(Read(0x03), kNoSession);
  EXPECT_EQ(link_->Trailer_ABS_KWP_Password(), kNoSession);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x81), kSubfunctionNotSupported);
  EXPECT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
  EXPECT_EQ(Read(0x03), kAccessDenied);
  EXPECT_EQ(Access(1), kAccessDenied);
  EXPECT_EQ(link_->Trailer_ABS_KWP_Password(), 0);
  EXPECT_EQ(Read(0x03), kAccessDenied);
  EXPECT_EQ(Access(1), 0);
  EXPECT_EQ(Read(0x03), 0);
  EXPECT_EQ(Access(0), 0);
  EXPECT_EQ(Read(0x03), kAccessDenied);
}

TEST_F(SessionTest, IsKeptAliveByTheLibrarysOwnReadingHoweverSlowTheOperator) {
  ConnectAndRead("session_timeout 5");
  OpenParameters();
  link_->Advance(3600);
  EXPECT_EQ(Read(0x03), 0);
}

TEST_F(SessionTest, LapsesAfterFiveSecondsOfSilence) {
  ConnectAndRead();
  OpenParameters();
  link_->Command("cable out");
  link_->Advance(4.8);
  link_->Command("cable in");
  EXPECT_EQ(Read(0x03), 0);
  link_->Command("cable out");
  link_->Advance(5.2);
  link_->Command("cable in");
  EXPECT_EQ(Read(0x03), kNoSession);
}

TEST_F(SessionTest, LapsesWithoutServicesWhereReadingsDoNotKeepItAlive) {
  ConnectAndRead("session_keep_alive off\nsession_timeout 5");
  OpenParameters();
  link_->Advance(4.9);
  EXPECT_EQ(Read(0x03), 0);
  link_->Advance(4.9);
  EXPECT_EQ(Read(0x03), 0);
  link_->Advance(5.1);
  EXPECT_EQ(Read(0x03), kNoSession);
  OpenParameters();
  EXPECT_EQ(Read(0x03), 0);
}

TEST_F(SessionTest, TheBrakeStaysAsItWasSetWhenTheSessionEnds) {
  for (const char* end : {"session lapse", "stop"}) {
    ConnectAndRead();
    OpenParameters();
    ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
    ASSERT_EQ(Routine(0x06, {1, 0, 0x44, 0, 0x44, 0xE8, 3}), 0);
    if (std::string_view(end) == "stop")
      link_->Trailer_ABS_KWP_StopSession();
    else
      link_->Command(end);
    link_->Advance(2);
    EXPECT_EQ(link_->Get("mode"), "test") << end;
    EXPECT_NEAR(std::stod(link_->Get("h1")), 49.3, 1) << end;
    ASSERT_EQ(link_->ResetECU(), 0);
    EXPECT_EQ(link_->Get("mode"), "normal") << end;
    EXPECT_EQ(link_->Get("channel 1"), "none") << end;
  }
}

TEST_F(SessionTest, ParameterAccessSilencesTheBroadcastUntilItEnds) {
  ConnectAndRead();
  EXPECT_EQ(link_->Get("broadcast"), "on");
  OpenParameters();
  EXPECT_EQ(link_->Get("broadcast"), "off");
  ASSERT_EQ(Access(0), 0);
  EXPECT_EQ(link_->Get("broadcast"), "on");
  ASSERT_EQ(Access(1), 0);
  link_->Trailer_ABS_KWP_StopSession();
  EXPECT_EQ(link_->Get("broadcast"), "on");
}

TEST_F(SessionTest, OpenedAnewAsksForThePasswordAndKeepsTheAccess) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
  EXPECT_EQ(Read(0x03), kAccessDenied);
  ASSERT_EQ(link_->Trailer_ABS_KWP_Password(), 0);
  EXPECT_EQ(Read(0x03), 0);
}

TEST_F(SessionTest, EndsWithStopResetAndOnCommand) {
  ConnectAndRead();
  OpenParameters();
  EXPECT_EQ(link_->Trailer_ABS_KWP_StopSession(), 0);
  EXPECT_EQ(Read(0x03), kNoSession);
  OpenParameters();
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1);
  EXPECT_EQ(Read(0x03), kNoSession);
  OpenParameters();
  EXPECT_EQ(link_->Command("session lapse"), "");
  EXPECT_EQ(Read(0x03), kNoSession);
}

TEST_F(SessionTest, ErrorBytesTheFlagAndMemoryWordsNeedNoSession) {
  ConnectAndRead();
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  EXPECT_EQ(Read(0x29), 0);
  EXPECT_EQ(Read(0x2A), 0);
  EXPECT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x0E, &high, &low), 0);
}

TEST_F(SessionTest, RoutinesNeedASessionAndKnowTheirIdentifiers) {
  ConnectAndRead();
  EXPECT_EQ(Routine(0x05, {}), kNoSession);
  OpenParameters();
  EXPECT_EQ(Routine(0x05, {}), 0);
  EXPECT_EQ(Routine(0x41, {6, 1}), 0);
  EXPECT_EQ(Routine(0x41, {6}), kSubfunctionNotSupported);
  EXPECT_EQ(Routine(0x37, {0, 0, 3}), kSubfunctionNotSupported);
  EXPECT_EQ(Routine(0x42, {0, 0}), kSubfunctionNotSupported);
  EXPECT_EQ(Routine(0x07, {}), kSubfunctionNotSupported);
  EXPECT_EQ(Routine(0x77, {}), kServiceNotSupported);
  EXPECT_EQ(link_->Trailer_ABS_KWP_SwitchDiagMode(1), 0);
}

TEST_F(SessionTest, NothingIsAnsweredWithTheCableOut) {
  ConnectAndRead();
  OpenParameters();
  link_->Command("cable out");
  EXPECT_EQ(Read(0x03), kNoAnswer);
  EXPECT_EQ(Read(0x2A), 1);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  EXPECT_EQ(link_->Disconnect(), 0);
}

using MemoryTest = LinkFixture;

TEST_F(MemoryTest, ReadsZeroUntilAScenarioSetsAWord) {
  ConnectAndRead("word 2 7 0x0E 0x3D6E");
  std::uint8_t high = 9;
  std::uint8_t low = 9;
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x0E, &high, &low), 0);
  EXPECT_EQ(high, 0x3D);
  EXPECT_EQ(low, 0x6E);
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x10, &high, &low), 0);
  EXPECT_EQ(high, 0);
  EXPECT_EQ(low, 0);
}

TEST_F(MemoryTest, TheDialogsAddressesMirrorTheParametersThatHoldTheirValues) {
  ConnectAndRead();
  ParameterStore& store = link_->TheTrailer().Parameters();
  store.SetText(0x37, 51, "Pres and Speed Check", 20);
  store.SetByte(0x37, 16, 0x3D);
  store.SetByte(0x37, 17, 0x6E);
  store.SetByte(0x37, 18, 0x29);
  store.SetByte(0x37, 19, 0x6D);
  store.SetByte(0x27, 1, 21);
  store.SetByte(0x27, 2, 4);
  store.SetByte(0x27, 3, 1);
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x0E, &high, &low), 0);
  EXPECT_EQ(high * 256 + low, 0x3D6E);
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 7, 0x10, &high, &low), 0);
  EXPECT_EQ(high * 256 + low, 0x296D);
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 0x0B, 0x59, &high, &low), 0);
  EXPECT_EQ(high, 4);
  EXPECT_EQ(low, 21);
}

TEST_F(MemoryTest, AWordCanBeWrittenWithTheAccess) {
  ConnectAndRead();
  std::uint8_t data[] = {0x12, 0x34};
  EXPECT_EQ(link_->Trailer_ABS_KWP_WriteMemoryByAddress(4, 0, 0, 2, data), kNoSession);
  OpenParameters();
  EXPECT_EQ(link_->Trailer_ABS_KWP_WriteMemoryByAddress(4, 0, 0, 1, data), kOutOfRange);
  EXPECT_EQ(link_->Trailer_ABS_KWP_WriteMemoryByAddress(4, 0, 0, 2, data), 0);
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  EXPECT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(4, 0, 0, &high, &low), 0);
  EXPECT_EQ(high, 0x12);
  EXPECT_EQ(low, 0x34);
}

}  // namespace
}  // namespace lorimet::simulator
