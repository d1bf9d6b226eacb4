// The transfers of the ECU's memory as the link does them: what is answered, what is told, and what
// stands on the disk. Their course on the screen is held by the tests of the recorder's screens.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "autotests/common/memory_file_reader.h"
#include "autotests/platform/native_fixture.h"
#include "autotests/simulator/link_fixture.h"
#include "simulator/library/files.h"
#include "simulator/library/memory_file.h"

namespace lorimet::simulator {
namespace {

using testing_support::ReadMemoryFile;

class TransfersTest : public LinkFixture {
 protected:
  std::int32_t Upload(std::string text) {
    text.resize(1024, '\0');
    return link_->Trailer_OVG_UploadData(text.data());
  }
  std::int32_t Export(std::string path) {
    path.resize(1024, '\0');
    const std::int32_t status = link_->Trailer_OVG_ExportODRData(path.data());
    export_path_ = path.c_str();
    return status;
  }
  int Posted(std::int32_t status) {
    return static_cast<int>(std::ranges::count(statuses_, status));
  }
  std::int32_t Fetch(int step) {
    return link_->Trailer_OVG_UploadODRData(static_cast<std::uint8_t>(step), 0x51, 0);
  }
  bool NothingStands() const { return std::filesystem::is_empty(folder_.Path()); }

  ScratchFolder folder_;
  std::string file_ = folder_ / "memory.txt";
  std::string export_path_;
};

TEST(MemoryFileTest, ItsChecksumIsTheCommonOne) {
  EXPECT_EQ(Checksum("123456789"), 0xCBF43926u);
  EXPECT_EQ(Checksum(""), 0u);
}

TEST(MemoryFileTest, HasTheFormThatIsDocumented) {
  std::vector<std::uint8_t> bytes(33);
  bytes[1] = 0x1F;
  const std::string text = MemoryFileText("odr", {{"abs", bytes}, {"empty", {}}});
  EXPECT_TRUE(text.starts_with("lorimet32-memory 1 odr\nsection abs 33 "));
  EXPECT_NE(text.find("\n00 1F 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                      "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n00\nsection empty 0 "
                      "00000000\nend "),
            std::string::npos)
      << text;
}

TEST(MemoryFileTest, PathsAreInCodePage1252) {
  EXPECT_EQ(PathOf("/a/G\xD6TE \x80\x9F.tso").string(), "/a/GÖTE €Ÿ.tso");
}

TEST_F(TransfersTest, NeedNeitherSessionNorAccessButAnAnsweringEcu) {
  ConnectAndRead();
  link_->Command("cable out");
  EXPECT_EQ(Upload(file_), kNoAnswer);
  EXPECT_EQ(Export(file_), kNoAnswer);
  EXPECT_EQ(Upload("Abort"), kDone);
  link_->Command("cable in");
  EXPECT_EQ(Upload(file_), kDone);
  EXPECT_EQ(link_->Disconnect(), kDone);
  EXPECT_EQ(Upload(file_), kInvalidClient);
}

TEST_F(TransfersTest, TheNumberIsWholeAndToldWithReadingsThatAreRarer) {
  ConnectAndRead();
  record_.dBytesRemaining.Store(-1);
  ASSERT_EQ(Upload(file_), kDone);
  EXPECT_EQ(record_.dBytesRemaining.Load(), -1) << "not before a reading";
  std::vector<double> told;
  for (int i = 0; i < 300; ++i) {
    link_->Advance(0.01);
    const double bytes = record_.dBytesRemaining.Load();
    if (told.empty() || told.back() != bytes) told.push_back(bytes);
  }
  ASSERT_GE(told.size(), 6u);
  for (std::size_t i = 2; i < told.size(); ++i) EXPECT_EQ(told[i - 1] - told[i], 128) << i;
  EXPECT_EQ(link_->Get("transfer").substr(0, 7), "eeprom ");
  EXPECT_EQ(Posted(-100), 0);
}

TEST_F(TransfersTest, AskForAResumeAndTakeNoOther) {
  ConnectAndRead();
  record_.nLinkJobDone.Store(0);
  EXPECT_EQ(Upload(""), kConditionsNotCorrect);
  ASSERT_EQ(Upload(file_), kDone);
  EXPECT_EQ(Upload(""), kConditionsNotCorrect);
  EXPECT_EQ(Upload(file_), kBusy);
  EXPECT_EQ(Export(file_), kBusy);
  link_->Advance(16.1);
  EXPECT_EQ(record_.nLinkJobDone.Load(), -1);
  EXPECT_EQ(record_.dBytesRemaining.Load(), 4096);
  link_->Advance(5);
  EXPECT_EQ(record_.dBytesRemaining.Load(), 4096);
  record_.nLinkJobDone.Store(0);
  EXPECT_EQ(Upload(""), kDone);
  EXPECT_EQ(Upload(""), kConditionsNotCorrect);
  link_->Advance(16.1);
  EXPECT_EQ(record_.dBytesRemaining.Load(), 0);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
  EXPECT_TRUE(ReadMemoryFile(file_));
  EXPECT_EQ(link_->Get("transfer"), "none");
}

TEST_F(TransfersTest, AFileStandsBesideItsPlaceUntilItIsWhole) {
  ConnectAndRead();
  std::ofstream(file_) << "an earlier one";
  ASSERT_EQ(Upload(file_), kDone);
  EXPECT_TRUE(std::filesystem::exists(file_ + ".part"));
  EXPECT_EQ(ReadWholeFile(file_), "an earlier one");
  EXPECT_EQ(Upload("Abort"), kDone);
  EXPECT_FALSE(std::filesystem::exists(file_ + ".part"));
  EXPECT_EQ(record_.dBytesRemaining.Load(), -1);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 1);
  for (const char* bad : {"/nowhere/at/all.txt", "/"}) EXPECT_EQ(Upload(bad), kOutOfRange) << bad;
}

TEST_F(TransfersTest, EndWithTheConnectionAndWithAnotherTrailer) {
  ConnectAndRead();
  const std::string scenario = folder_ / "next.scenario";
  std::ofstream(scenario) << "configuration 2S/1M\n";
  for (const bool disconnects : {true, false}) {
    ASSERT_EQ(Upload(file_), kDone);
    if (disconnects) link_->Disconnect();
    if (!disconnects) {
      EXPECT_EQ(link_->Command("scenario " + scenario), "");
    }
    EXPECT_FALSE(std::filesystem::exists(file_ + ".part"));
    EXPECT_EQ(link_->Get("transfer"), "none");
    if (disconnects) Connect();
    link_->Advance(1);
  }
}

TEST_F(TransfersTest, TheStepStandsBeforeTheExportIsAnswered) {
  ConnectAndRead();
  ASSERT_EQ(Export(file_), kDone);
  EXPECT_EQ(record_.nODRUploadStep.Load(), 1);
  EXPECT_EQ(statuses_, std::vector<std::int32_t>{-67});
  EXPECT_EQ(export_path_, file_);
  link_->Advance(30);
  EXPECT_EQ(record_.nODRUploadStep.Load(), 1) << "nobody has asked for it";
}

TEST_F(TransfersTest, OnlyTheStepThatWasToldIsFetchedAndOnce) {
  ConnectAndRead();
  EXPECT_EQ(Fetch(1), kOutOfRange);
  ASSERT_EQ(Export(file_), kDone);
  EXPECT_EQ(Fetch(2), kOutOfRange);
  EXPECT_EQ(Fetch(0), kOutOfRange);
  EXPECT_EQ(link_->Trailer_OVG_UploadODRData(1, 0x50, 0), kSubfunctionNotSupported);
  EXPECT_EQ(Fetch(1), kDone);
  EXPECT_EQ(Fetch(1), kOutOfRange);
  link_->Advance(2.05);
  EXPECT_EQ(record_.nODRUploadStep.Load(), 2);
  EXPECT_EQ(Posted(-67), 2);
  EXPECT_EQ(Fetch(1), kOutOfRange);
}

TEST_F(TransfersTest, TheEndIsPostedOnceAndTheStepIsLeftToTheProgram) {
  ConnectAndRead();
  ASSERT_EQ(Export(file_), kDone);
  const double seconds[] = {2, 1, 6, 1.5, 1.5, 2, 8, 3, 1};
  for (int step = 1; step <= 9; ++step) {
    ASSERT_EQ(Fetch(step), kDone) << step;
    link_->Advance(seconds[step - 1] - 0.05);
    EXPECT_EQ(record_.nODRUploadStep.Load(), step);
    EXPECT_EQ(Posted(-66), 0);
    link_->Advance(0.1);
    EXPECT_EQ(record_.nODRUploadStep.Load(), std::min(step + 1, 9));
  }
  EXPECT_EQ(Posted(-66), 1);
  EXPECT_TRUE(ReadMemoryFile(file_));
  link_->Advance(30);
  EXPECT_EQ(Posted(-66), 1);
  EXPECT_EQ(Posted(-67), 9);
  EXPECT_EQ(record_.nODRUploadStep.Load(), 9);
}

TEST_F(TransfersTest, AnOutageOfTenSecondsKillsEither) {
  for (const bool exports : {true, false}) {
    for (const double seconds : {9.8, 10.2}) {
      ConnectAndRead();
      ASSERT_EQ(exports ? Export(file_) : Upload(file_), kDone);
      if (exports) Fetch(1);
      link_->Advance(1);
      record_.nLinkJobDone.Store(0);
      link_->Command("cable out");
      link_->Advance(seconds);
      const bool dead = seconds > 10;
      EXPECT_EQ(link_->Get("transfer") == "none", dead) << exports;
      EXPECT_EQ(std::filesystem::exists(file_ + ".part"), !dead);
      if (!exports) {
        EXPECT_EQ(record_.nLinkJobDone.Load(), dead ? 1 : 0);
      }
      link_->Command("cable in");
      link_->Advance(0.1);
      if (!exports) {
        EXPECT_EQ(record_.nLinkJobDone.Load(), dead ? 1 : -1);
      }
      link_->Disconnect();
    }
  }
}

TEST_F(TransfersTest, TheRecordersMemoriesOutliveThePower) {
  const std::string scenario = "parameter EOL2 5 0x80";
  ConnectAndRead(scenario);
  for (const char* command : {"drive 30", "lateral 0.5", "press demand 20"})
    link_->Command(command);
  link_->Advance(20);
  link_->Command("reset");
  Link next(scenario);
  ASSERT_TRUE(next.Restore(link_->State()));
  EXPECT_EQ(next.State(), link_->State());
  const RecorderMemory& kept = next.TheTrailer().Recorded();
  EXPECT_EQ(kept.starts, 1u);
  EXPECT_GT(kept.trip_km, 0.1);
  EXPECT_GT(kept.braking_seconds, 5);
  EXPECT_GT(kept.seconds_at_speed[6], 5);
  EXPECT_EQ(kept.events, link_->TheTrailer().Recorded().events);
  EXPECT_GE(kept.events.size(), 2u);
}

TEST_F(TransfersTest, BadPlansAreRefusedAndChangeNothing) {
  ConnectAndRead();
  for (const char* bad : {"transfer size 0", "transfer size x", "transfer size 1 2",
                          "transfer speed 1", "transfer stall_at", "transfer restart_at 5 x",
                          "transfer restart_at 5 none", "export end_at 0", "export stall_step 10",
                          "export end", "export no_end 1", "transfer well 1"})
    EXPECT_NE(link_->Command(bad), "") << bad;
  ASSERT_EQ(Upload(file_), kDone);
  link_->Advance(16.1);
  EXPECT_EQ(record_.dBytesRemaining.Load(), 4096);
  EXPECT_EQ(Upload(""), kDone);
  link_->Advance(16.1);
  EXPECT_TRUE(ReadMemoryFile(file_));
}

TEST_F(TransfersTest, AWellPlanIsAsItWas) {
  ConnectAndRead("transfer size 256\ntransfer stall_at 100\nexport stall_step 1");
  EXPECT_EQ(link_->Command("transfer well"), "");
  EXPECT_EQ(link_->Command("export well"), "");
  EXPECT_EQ(link_->World().upload.size, 8192);
  EXPECT_FALSE(link_->World().upload.stall_at);
  EXPECT_FALSE(link_->World().exporting.stall_step);
}

}  // namespace
}  // namespace lorimet::simulator
