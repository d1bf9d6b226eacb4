// Text files: what holds on the disk and in the memory of the tests, and what the disk does to
// them.
#include "platform/text_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "adapters/headless/headless_files.h"
#include "adapters/posix/posix_text_file.h"
#include "autotests/common/gestures.h"
#include "autotests/platform/file_faults.h"
#include "autotests/platform/native_fixture.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;

namespace fs = std::filesystem;

void WriteText(TextFiles& files, const std::string& path, const std::string& bytes) {
  const auto file = files.OpenForOutput(path);
  file->Write(bytes);
  file->Close();
}

using MakeFiles = std::unique_ptr<TextFiles> (*)();

class TextFilesContract : public testing::TestWithParam<MakeFiles> {
 protected:
  ScratchFolder folder_;
  std::string path_ = folder_ / "AB1234.txt";
  std::unique_ptr<TextFiles> files_ = GetParam()();
};

INSTANTIATE_TEST_SUITE_P(
    Sides, TextFilesContract,
    testing::Values(
        []() -> std::unique_ptr<TextFiles> { return std::make_unique<PosixTextFiles>(); },
        []() -> std::unique_ptr<TextFiles> { return std::make_unique<MemoryTextFiles>(); }),
    [](const auto& info) { return info.index == 0 ? "Posix" : "Memory"; });

TEST_P(TextFilesContract, BytesComeBackAsTheyWereGiven) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  const auto file = files_->OpenForOutput(path_);
  file->Write("line\r\n");
  file->Write("");
  file->Write(all);
  file->Write("\nend");
  file->Close();
  EXPECT_EQ(files_->ReadWhole(path_), "line\r\n" + all + "\nend");
}

TEST_P(TextFilesContract, NothingStandsBeforeTheEnd) {
  const auto file = files_->OpenForOutput(path_);
  file->Write("x");
  EXPECT_EQ(ErrorOf([&] { files_->ReadWhole(path_); }), 53);
  file->Close();
  EXPECT_EQ(files_->ReadWhole(path_), "x");
}

TEST_P(TextFilesContract, AnEarlierFileIsReplacedAsAWhole) {
  WriteText(*files_, path_, "a longer text");
  WriteText(*files_, path_, "new");
  EXPECT_EQ(files_->ReadWhole(path_), "new");
  WriteText(*files_, path_, "");
  EXPECT_EQ(files_->ReadWhole(path_), "");
}

TEST_P(TextFilesContract, WhatIsNotClosedLeavesTheOldFile) {
  WriteText(*files_, path_, "old");
  files_->OpenForOutput(path_)->Write("half");
  EXPECT_EQ(files_->ReadWhole(path_), "old");
}

TEST_P(TextFilesContract, MissingFilesAndBadNamesHaveTheirNumbers) {
  EXPECT_EQ(ErrorOf([&] { files_->ReadWhole(path_); }), 53);
  EXPECT_EQ(ErrorOf([&] { files_->ReadWhole(""); }), 52);
  EXPECT_EQ(ErrorOf([&] { files_->OpenForOutput(""); }), 52);
}

class PosixTextFileTest : public testing::Test {
 protected:
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()));
  }
  static unsigned ModeOf(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
  }
  int NumberOfWriting(const std::string& path, TextFiles& files) {
    return ErrorOf([&] { WriteText(files, path, "new"); });
  }
  int NumberOfWriting(const std::string& path) { return NumberOfWriting(path, files_); }

  ScratchFolder folder_;
  std::string path_ = folder_ / "AB1234.txt";
  PosixTextFiles files_;
};

TEST_F(PosixTextFileTest, NoTemporaryFileIsLeft) {
  WriteText(files_, path_, "x");
  EXPECT_EQ(FilesInFolder(), 1U);
  {
    const auto file = files_.OpenForOutput(path_);
    file->Write("half");
    EXPECT_EQ(FilesInFolder(), 2U);
  }
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(PosixTextFileTest, AMissingFolderIsError76AndNoneIsMade) {
  EXPECT_EQ(NumberOfWriting(folder_ / "none/AB.txt"), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(folder_ / "none/AB.txt"); }), 76);
  WriteText(files_, path_, "x");
  EXPECT_EQ(NumberOfWriting(path_ + "/AB.txt"), 76);
  EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(path_ + "/AB.txt"); }), 76);
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(PosixTextFileTest, WhatIsNoFileIsError75) {
  const std::string pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {folder_.Path(), pipe}) {
    EXPECT_EQ(NumberOfWriting(path), 75) << path;
    EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(path); }), 75) << path;
  }
  EXPECT_EQ(ErrorOf([&] { files_.ReadWhole("/dev/zero"); }), 75);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(PosixTextFileTest, ANameThatCannotBeOneIsError52) {
  const std::string nul("A\0B", 3);
  for (const std::string& name : {folder_ / nul, folder_ / std::string(300, 'n')}) {
    EXPECT_EQ(NumberOfWriting(name), 52);
    EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(name); }), 52);
  }
  EXPECT_EQ(FilesInFolder(), 0U);
}

TEST_F(PosixTextFileTest, WhatTheUserMayNotWriteIsError75) {
  const std::string closed = folder_ / "closed";
  fs::create_directory(closed);
  WriteFile(path_, "old");
  WriteFile(folder_ / "secret.txt", "old");
  fs::permissions(folder_.Path(), fs::perms::all);
  fs::permissions(closed, fs::perms(0555));
  fs::permissions(path_, fs::perms(0444));
  fs::permissions(folder_ / "secret.txt", fs::perms(0222));
  {
    const OrdinaryUser user;
    EXPECT_EQ(NumberOfWriting(path_), 75);
    EXPECT_EQ(NumberOfWriting(closed + "/AB.txt"), 75);
    EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(folder_ / "secret.txt"); }), 75);
    EXPECT_EQ(NumberOfWriting(folder_ / "free.txt"), 0);
  }
  EXPECT_EQ(ReadFile(path_), "old");
}

TEST_F(PosixTextFileTest, EachFaultOfTheDiskHasItsNumberAndLeavesTheOldFile) {
  struct Row {
    FileCall call;
    int error;
    int number;
  };
  constexpr Row kRows[] = {
      {FileCall::kWrite, ENOSPC, 61}, {FileCall::kWrite, EDQUOT, 61},
      {FileCall::kWrite, EFBIG, 61},  {FileCall::kWrite, EIO, 57},
      {FileCall::kSync, ENOSPC, 61},  {FileCall::kSync, EIO, 57},
      {FileCall::kRename, EIO, 57},   {FileCall::kRename, EROFS, 70},
      {FileCall::kRename, EBUSY, 70}, {FileCall::kRename, EACCES, 75},
      {FileCall::kRename, EPERM, 75}, {FileCall::kRename, ENOENT, 76},
  };
  WriteFile(path_, "old");
  for (const Row& row : kRows) {
    PosixTextFiles files(FailingCalls(row.call, row.error));
    EXPECT_EQ(NumberOfWriting(path_, files), row.number) << row.error;
    EXPECT_EQ(ReadFile(path_), "old");
    EXPECT_EQ(FilesInFolder(), 1U);
  }
  PosixTextFiles broken(FailingCalls(FileCall::kRead, EIO));
  EXPECT_EQ(ErrorOf([&] { broken.ReadWhole(path_); }), 57);
}

TEST_F(PosixTextFileTest, AWriteThatMovesNothingIsError57AndEnds) {
  FileCalls calls;
  calls.write = [](int, const void*, std::size_t) { return ssize_t{0}; };
  PosixTextFiles files(calls);
  EXPECT_EQ(NumberOfWriting(path_, files), 57);
  EXPECT_EQ(FilesInFolder(), 0U);
}

TEST_F(PosixTextFileTest, ShortAndInterruptedCallsLoseNothing) {
  PosixTextFiles files(StutteringCalls());
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes += static_cast<char>(i * 31);
  WriteText(files, path_, bytes);
  EXPECT_EQ(ReadFile(path_), bytes);
  EXPECT_EQ(files.ReadWhole(path_), bytes);
}

TEST_F(PosixTextFileTest, AFileBeyondAllReasonIsNotRead) {
  WriteFile(path_, "x");
  ASSERT_EQ(truncate(path_.c_str(), (64 << 20) + 1), 0);
  EXPECT_EQ(ErrorOf([&] { files_.ReadWhole(path_); }), 57);
  ASSERT_EQ(truncate(path_.c_str(), 64 << 20), 0);
  EXPECT_EQ(files_.ReadWhole(path_).size(), std::size_t{64} << 20);
}

TEST_F(PosixTextFileTest, RightsAndLinksAreKept) {
  WriteFile(folder_ / "real.txt", "old");
  fs::permissions(folder_ / "real.txt", fs::perms(0640));
  fs::create_symlink("real.txt", path_);
  WriteText(files_, path_, "new");
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(ReadFile(folder_ / "real.txt"), "new");
  EXPECT_EQ(ModeOf(folder_ / "real.txt"), 0640U);
  const mode_t mask = umask(027);
  WriteText(files_, folder_ / "fresh.txt", "x");
  umask(mask);
  EXPECT_EQ(ModeOf(folder_ / "fresh.txt"), 0640U);
}

TEST_F(PosixTextFileTest, AShareThatRefusesRightsAndOwnersTakesTheTextAndWidensNothing) {
  WriteFile(path_, "old");
  fs::permissions(path_, fs::perms(0600));
  PosixTextFiles share(ShareCalls());
  EXPECT_EQ(NumberOfWriting(path_, share), 0);
  EXPECT_EQ(ReadFile(path_), "new");
  EXPECT_EQ(ModeOf(path_), 0600U);
}

TEST(MemoryTextFilesTest, FailOnOrder) {
  struct Row {
    FileTrouble trouble;
    int opening;
    int closing;
    int reading;
  };
  constexpr Row kRows[] = {
      {FileTrouble::kNone, 0, 0, 0},
      {FileTrouble::kFull, 0, 61, 0},
      {FileTrouble::kDeviceFails, 0, 57, 57},
      {FileTrouble::kLocked, 70, 70, 70},
      {FileTrouble::kNoPermission, 75, 75, 75},
      {FileTrouble::kNoFolder, 76, 76, 76},
  };
  for (const Row& row : kRows) {
    MemoryTextFiles files;
    files.files["/AB.txt"] = "old";
    files.trouble = row.trouble;
    EXPECT_EQ(ErrorOf([&] { files.OpenForOutput("/AB.txt"); }), row.opening);
    EXPECT_EQ(ErrorOf([&] { files.ReadWhole("/AB.txt"); }), row.reading);
    files.trouble = FileTrouble::kNone;
    const auto file = files.OpenForOutput("/AB.txt");
    EXPECT_EQ(files.open_files, 1);
    file->Write("new");
    files.trouble = row.trouble;
    EXPECT_EQ(ErrorOf([&] { file->Close(); }), row.closing);
    EXPECT_EQ(files.files["/AB.txt"], row.closing == 0 ? "new" : "old");
  }
}

}  // namespace
}  // namespace lorimet
