// The end-of-line flag: its writing, its reading and its screen.
#include "tests/eol_flag.h"

#include "autotests/tests/test_screen_fixture.h"
#include "tests/frmSetEOLBit.h"

namespace lorimet::testing_support {
namespace {

// The write's bytes are checked apart.
const Calls kSequence = {"WriteMemory 2A:2", "StartRoutine 05:", "sleep 2000",    "ClearAllFaults",
                         "sleep 2000",       "FaultLock",        "FaultGetCount", "FaultGetData",
                         "FaultUnlock",      "ResetECU",         "sleep 6000",    "FaultLock",
                         "FaultGetCount",    "FaultGetData",     "FaultUnlock"};

Calls Join(std::initializer_list<Calls> parts) {
  Calls all;
  for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

class EolFlagTest : public TestScreenTest {
 protected:
  EolFlagParts FlagParts() { return {link, clock, faults}; }
  using Bytes = std::vector<std::uint8_t>;
  // The ECU's byte, with a status of its own.
  void Hold(std::uint8_t value, std::int32_t status = 0) {
    link.read_block = [value, status](std::uint8_t id, std::uint8_t* count, std::uint8_t* data) {
      EXPECT_EQ(id, 0x2A);
      EXPECT_EQ(*count, 0);
      *count = 3;
      data[0] = 0x2A;
      data[1] = value;
      data[2] = 0;
      return status;
    };
  }
  frmSetEOLBit screen{desktop, dictionary, FlagParts()};
};

TEST_F(EolFlagTest, IsWrittenThenTheFaultsAreClearedAndTheEcuIsReset) {
  EXPECT_EQ(SetEOLFlag(FlagParts(), 1), 0);
  ExpectCalls(kSequence);
  EXPECT_EQ(link.written[0x2A], (Bytes{1, 0}));
  EXPECT_EQ(SetEOLFlag(FlagParts(), 0), 0);
  ExpectCalls(kSequence);
  EXPECT_EQ(link.written[0x2A], (Bytes{2, 0}));
  for (const std::int16_t other : {-1, 2, -32768}) {
    SetEOLFlag(FlagParts(), other);
    EXPECT_EQ(link.written[0x2A], (Bytes{1, 0})) << other;
  }
}

TEST_F(EolFlagTest, AFailedWriteIsTriedOnceAndEverythingBehindItIsDone) {
  link.always["WriteMemory"] = 0x33;
  link.always["StartRoutine"] = 1;
  EXPECT_EQ(SetEOLFlag(FlagParts(), 1), 0x33);
  ExpectCalls(kSequence);
}

TEST_F(EolFlagTest, ClearingAndResetAreTriedFourTimesAndALockedStoreIsPassedOver) {
  link.always = {{"ClearAllFaults", 1}, {"ResetECU", 1}, {"FaultLock", 1}};
  EXPECT_EQ(SetEOLFlag(FlagParts(), 1), 0);
  ExpectCalls(Join({{"WriteMemory 2A:2", "StartRoutine 05:", "sleep 2000"},
                    Calls(4, "ClearAllFaults"),
                    {"sleep 2000", "FaultLock"},
                    Calls(4, "ResetECU"),
                    {"sleep 6000", "FaultLock"}}));
  link.always["ResetECU"] = 0;
  link.answers["ResetECU"] = {1, 1, 1};
  SetEOLFlag(FlagParts(), 1);
  const Calls calls = sequence.Take();
  EXPECT_EQ(std::ranges::count(calls, "ResetECU"), 4);
}

TEST_F(EolFlagTest, TheScreenShowsWhatTheEcuHolds) {
  struct Row {
    std::uint8_t value;
    std::int32_t status;
    std::string text;
  };
  const Row rows[] = {
      {1, 0, "EOL Test Passed"},
      {2, 0, "EOL Test Not Passed"},
      {0, 0, "Unknown"},
      {7, 0, "Unknown"},
      {255, 0, "Unknown"},
      {1, 1, "Error"},
      {2, 1, "Error"},
      {0, 1, "Error"},
      {1, 0x33, "EOL Test Passed"},
      {2, 129, "EOL Test Not Passed"},
      {0, -1, "Unknown"},
  };
  for (const Row& row : rows) {
    Hold(row.value, row.status);
    screen.Load();
    EXPECT_EQ(screen.txtStatus.Text(), row.text) << int{row.value} << " " << row.status;
    EXPECT_EQ(link.TakeCalls(), Calls(row.status == 0 ? 1 : 4, "ReadData 2A"));
    screen.cmdClose.UserClick();
    EXPECT_FALSE(screen.Loaded());
  }
}

TEST_F(EolFlagTest, ThreeRefusalsOfTheReadingAreNoFailure) {
  int left = 3;
  link.read_block = [&](std::uint8_t, std::uint8_t*, std::uint8_t* data) {
    if (left-- > 0) return 1;
    data[1] = 2;
    return 0;
  };
  screen.Load();
  EXPECT_EQ(screen.txtStatus.Text(), "EOL Test Not Passed");
  EXPECT_EQ(link.TakeCalls(), Calls(4, "ReadData 2A"));
}

TEST_F(EolFlagTest, ARefusedReadingShowsNothingOfTheOneBefore) {
  Hold(1);
  screen.Load();
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 0x31; };
  screen.cmdSetStatusFlag.UserClick();
  EXPECT_EQ(screen.txtStatus.Text(), "Unknown");
}

// An answer of the greatest length that a read may have.
TEST_F(EolFlagTest, ALongAnswerHarmsNothing) {
  link.read_block = [](std::uint8_t, std::uint8_t* count, std::uint8_t* data) {
    *count = 255;
    std::fill_n(data, 512, std::uint8_t{1});
    return 0;
  };
  screen.Load();
  EXPECT_EQ(screen.txtStatus.Text(), "EOL Test Passed");
}

TEST_F(EolFlagTest, BothButtonsOpenASessionSetTheFlagAndReadItAnew) {
  Hold(2);
  screen.Load();
  sequence.Take();
  link.on_call = [&](const std::string& call) {
    EXPECT_EQ(screen.Pointer(), MousePointer::kHourglass) << call;
    if (call == "ResetECU") Hold(link.written[0x2A][0]);
  };
  screen.cmdSetStatusFlag.UserClick();
  EXPECT_EQ(screen.txtStatus.Text(), "EOL Test Passed");
  EXPECT_EQ(screen.Pointer(), MousePointer::kArrow);
  ExpectCalls(Join({{"repaint", "StartSession 83", "Password"}, kSequence, {"ReadData 2A"}}));
  screen.cmdClearStatusFlag.UserClick();
  EXPECT_EQ(screen.txtStatus.Text(), "EOL Test Not Passed");
  ExpectCalls(Join({{"repaint", "StartSession 83", "Password"}, kSequence, {"ReadData 2A"}}));
}

TEST_F(EolFlagTest, WithNoConnectionTheButtonsRunThroughTheirWholeDelays) {
  link.always = {{"StartSession", 129}, {"Password", 129},       {"WriteMemory", 129},
                 {"StartRoutine", 129}, {"ClearAllFaults", 129}, {"ResetECU", 129},
                 {"FaultLock", 129}};
  link.read_block = [](std::uint8_t, std::uint8_t*, std::uint8_t*) { return 1; };
  screen.Load();
  EXPECT_EQ(screen.txtStatus.Text(), "Error");
  screen.cmdSetStatusFlag.UserClick();
  EXPECT_EQ(clock.Milliseconds(), 10'000u);
  EXPECT_EQ(screen.txtStatus.Text(), "Error");
  EXPECT_EQ(screen.Pointer(), MousePointer::kArrow);
}

TEST_F(EolFlagTest, TheScreenSpeaksTheUsersLanguage) {
  dictionary.SetLanguage(kSpanish);
  Hold(2);
  screen.Load();
  EXPECT_EQ(screen.txtStatus.Text(), Row(kSpanish, "EOL Test Not Passed"));
  EXPECT_EQ(screen.cmdClearStatusFlag.Caption(), Row(kSpanish, "Set EOL to 'Fail'"));
}

}  // namespace
}  // namespace lorimet::testing_support
