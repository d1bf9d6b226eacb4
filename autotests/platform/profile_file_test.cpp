#include "adapters/posix/posix_profile_file.h"

#include "autotests/platform/file_faults.h"
#include "fuzz/profile_file_model.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lorimet {
namespace {

namespace fs = std::filesystem;
constexpr std::size_t kRoom = 1024;

class ProfileFileTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = testing::TempDir() + "profile_file_XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
    path_ = Path("trailer.ecu");
  }
  void TearDown() override {
    fs::permissions(folder_, fs::perms::owner_all);
    fs::remove_all(folder_);
  }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  static void Put(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  }
  static std::optional<std::string> OnDisk(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  static ino_t Inode(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
  }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }
  std::string Get(const std::string& key) { return file_.GetString("a", key, "d", kRoom, path_); }
  bool Set(const std::string& key, const std::string& value) {
    return file_.WriteString("a", key, value, path_);
  }

  fs::path folder_;
  std::string path_;
  PosixProfileFile file_;
};

// Bytes that this process has read from files, by the kernel's count.
std::optional<std::uint64_t> BytesRead() {
  std::ifstream io("/proc/self/io");
  std::string name;
  std::uint64_t count = 0;
  if (io >> name >> count && name == "rchar:") return count;
  return {};
}

// No file may grow beyond `bytes` while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST_F(ProfileFileTest, AFileThatStandsIsReadOnce) {
  const std::string big(1 << 20, 'x');
  Put(path_, "[a]\r\nk=1\r\n;" + big);
  if (!BytesRead()) GTEST_SKIP() << "the kernel does not count";
  // A file that was changed this very moment may change again under the same time stamp, so it is
  // read again until its stamp has settled.
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  std::uint64_t read = big.size();
  while (read >= big.size() && std::chrono::steady_clock::now() < deadline) {
    const std::uint64_t before = *BytesRead();
    for (int i = 0; i < 20; ++i) EXPECT_EQ(Get("k"), "1");
    read = *BytesRead() - before;
  }
  EXPECT_LT(read, big.size());
  Put(path_, "[a]\r\nk=2\r\n;" + big);
  EXPECT_EQ(Get("k"), "2");
  fs::remove(path_);
  EXPECT_EQ(Get("k"), "d");
}

TEST_F(ProfileFileTest, AnEditFromOutsideShowsAtOnceThoughTheSizeStands) {
  for (int i = 100; i < 400; ++i) {
    Put(path_, "[a]\r\nk=" + std::to_string(i) + "\r\n");
    ASSERT_EQ(Get("k"), std::to_string(i));
  }
}

TEST_F(ProfileFileTest, AReplacedFileShowsAtOnceThoughItsTimeStampIsForged) {
  const timespec times[2] = {{1'000'000'000, 5}, {1'000'000'000, 5}};
  for (int i = 100; i < 200; ++i) {
    Put(Path("new"), "[a]\r\nk=" + std::to_string(i) + "\r\n");
    utimensat(AT_FDCWD, Path("new").c_str(), times, 0);
    fs::rename(Path("new"), path_);
    ASSERT_EQ(Get("k"), std::to_string(i));
  }
}

TEST_F(ProfileFileTest, AFileThatComesAndGoesIsFollowed) {
  EXPECT_EQ(Get("k"), "d");
  Put(path_, "[a]\r\nk=1\r\n");
  EXPECT_EQ(Get("k"), "1");
  fs::remove(path_);
  EXPECT_EQ(Get("k"), "d");
  fs::create_directory(path_);
  EXPECT_EQ(Get("k"), "d");
  EXPECT_FALSE(Set("k", "1"));
  fs::remove(path_);
  EXPECT_TRUE(Set("k", "2"));
  EXPECT_EQ(Get("k"), "2");
}

TEST_F(ProfileFileTest, WritesAreReadBackAtOnceAndReachTheDiskAtFlush) {
  Put(path_, "[a]\r\nk=1\r\n");
  const ino_t before = Inode(path_);
  for (int i = 0; i < 50; ++i) {
    ASSERT_TRUE(Set("k", std::to_string(i)));
    ASSERT_TRUE(Set("l" + std::to_string(i), "x"));
    ASSERT_EQ(Get("k"), std::to_string(i));
  }
  EXPECT_EQ(Get("l49"), "x");
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=1\r\n");
  EXPECT_EQ(Inode(path_), before);
  EXPECT_EQ(FilesInFolder(), 1u);
  EXPECT_TRUE(file_.Flush());
  EXPECT_NE(Inode(path_), before) << "a new file takes the old one's place";
  EXPECT_TRUE(OnDisk(path_)->starts_with("[a]\r\nk=49\r\nl0=x\r\nl1=x\r\n"));
  EXPECT_EQ(FilesInFolder(), 1u) << "a temporary file was left";
}

TEST_F(ProfileFileTest, AFlushWithNothingPendingTouchesNothing) {
  EXPECT_TRUE(file_.Flush());
  Put(path_, "[a]\nk=1\n");
  const ino_t before = Inode(path_);
  EXPECT_TRUE(Set("k", "1"));
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(Inode(path_), before);
  Set("k", "2");
  Set("k", "1");
  Set("l", "3");
  Put(path_, "[a]\r\nk=1\r\nl=3\r\n");
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(Inode(path_), before) << "the edit from outside had made the same of it";
  Set("k", "2");
  EXPECT_TRUE(file_.Flush());
  const ino_t after = Inode(path_);
  EXPECT_NE(after, before);
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(Inode(path_), after);
}

TEST_F(ProfileFileTest, AWriteThatChangesNothingIsNotPending) {
  for (const std::string& value : {std::string("v"), std::string(" v ")}) {
    Put(path_, "[a]\r\nk=" + value + "\r\n");
    EXPECT_TRUE(Set("k", value));
    fs::remove(path_);
    EXPECT_TRUE(file_.Flush());
    EXPECT_EQ(OnDisk(path_), std::nullopt);
  }
}

TEST_F(ProfileFileTest, AnotherFileIsWrittenOutFirst) {
  const std::string other = Path("other.ecu");
  Set("k", "1");
  EXPECT_EQ(file_.GetString("a", "k", "d", kRoom, other), "d");
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=1\r\n");
  EXPECT_TRUE(file_.WriteString("a", "k", "2", other));
  EXPECT_EQ(Get("k"), "1");
  EXPECT_EQ(OnDisk(other), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileFileTest, TheEndWritesOut) {
  {
    PosixProfileFile file;
    file.WriteString("a", "k", "1", path_);
    EXPECT_EQ(OnDisk(path_), std::nullopt);
  }
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=1\r\n");
}

TEST_F(ProfileFileTest, WhatARunReachedBeforeItsErrorIsKept) {
  for (int i = 1; i <= 3; ++i) EXPECT_TRUE(Set("P_00" + std::to_string(i), "255"));
  // Here the caller meets its error and ends the run.
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(OnDisk(path_), "[a]\r\nP_001=255\r\nP_002=255\r\nP_003=255\r\n");
}

TEST_F(ProfileFileTest, PendingWritesAreMadeAgainOnAnEditFromOutside) {
  Put(path_, "[a]\r\nk=1\r\n");
  Set("k", "2");
  Set("n", "3");
  Put(path_, "; edited\n[a]\nk=8\nl=9\n");
  EXPECT_EQ(Get("l"), "9");
  EXPECT_EQ(Get("k"), "2");
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(OnDisk(path_), "; edited\n[a]\nk=2\r\nl=9\nn=3\r\n");
  Set("k", "4");
  fs::remove(path_);
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=4\r\n");
}

TEST_F(ProfileFileTest, NoFolderIsMade) {
  const std::string path = Path("none/trailer.ecu");
  EXPECT_EQ(file_.GetString("a", "k", "d", kRoom, path), "d");
  EXPECT_FALSE(file_.WriteString("a", "k", "1", path));
  EXPECT_TRUE(file_.Flush());
  EXPECT_FALSE(fs::exists(Path("none")));
}

// Nothing outside the test's own folder is written to, lest a broken build replace a device.
TEST_F(ProfileFileTest, WhatIsNoRegularFileReadsAsMissingAndCannotBeWritten) {
  const std::string pipe = Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Put(path_, "[a]\r\nk=1\r\n");
  std::vector<std::string> paths{pipe,
                                 folder_.string(),
                                 std::string(),
                                 path_ + "/below",
                                 path_ + std::string("\0x", 2),
                                 Path(std::string(300, 'n'))};
  // Only root can make a device, here one that reads as empty.
  const std::string device = Path("device");
  if (mknod(device.c_str(), S_IFCHR | 0600, makedev(1, 3)) == 0) paths.push_back(device);
  const std::size_t files = FilesInFolder();
  for (const std::string& path : paths) {
    SCOPED_TRACE(path);
    EXPECT_EQ(file_.GetString("a", "k", "d", kRoom, path), "d");
    EXPECT_FALSE(file_.WriteString("a", "k", "1", path));
    EXPECT_TRUE(file_.Flush());
  }
  EXPECT_EQ(file_.GetString("a", "k", "d", kRoom, "/dev/zero"), "d");
  EXPECT_EQ(FilesInFolder(), files);
  EXPECT_FALSE(fs::is_regular_file(pipe));
  EXPECT_FALSE(fs::is_regular_file(device));
}

TEST_F(ProfileFileTest, AFileBeyondAllReasonReadsAsMissing) {
  Put(path_, "[a]\r\nk=1\r\n");
  ASSERT_EQ(truncate(path_.c_str(), PosixProfileFile::kMaxBytes + 1), 0);
  EXPECT_EQ(Get("k"), "d");
  EXPECT_FALSE(Set("k", "2"));
  ASSERT_EQ(truncate(path_.c_str(), 8), 0);
  EXPECT_EQ(Get("k"), "1");
}

TEST_F(ProfileFileTest, AFullDiskLeavesTheOldFileWhole) {
  const std::string old = "[a]\r\nk=1\r\n";
  Put(path_, old);
  const ino_t before = Inode(path_);
  {
    const FileSizeLimit limit(1000);
    EXPECT_TRUE(Set("k", std::string(5000, 'x')));
    EXPECT_FALSE(file_.Flush());
    EXPECT_EQ(Get("k"), "1") << "what could not be written is dropped";
    EXPECT_TRUE(file_.Flush());
  }
  EXPECT_EQ(OnDisk(path_), old);
  EXPECT_EQ(Inode(path_), before);
  EXPECT_EQ(FilesInFolder(), 1u) << "a temporary file was left";
  EXPECT_TRUE(Set("k", "2"));
  EXPECT_TRUE(file_.Flush());
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileFileTest, AnEarlierFilesFailureIsToldAtTheNextFlush) {
  Put(path_, "[a]\r\nk=1\r\n");
  {
    const FileSizeLimit limit(1000);
    Set("k", std::string(5000, 'x'));
    EXPECT_TRUE(file_.WriteString("a", "k", "2", Path("other.ecu")));
    EXPECT_FALSE(file_.Flush());
    EXPECT_TRUE(file_.Flush());
  }
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=1\r\n");
  EXPECT_EQ(OnDisk(Path("other.ecu")), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileFileTest, AFileThatMayNotBeWrittenRefusesEveryWrite) {
  Put(path_, "[a]\r\nk=1\r\n");
  fs::permissions(folder_, fs::perms::all);
  fs::permissions(path_, fs::perms(0444));
  const OrdinaryUser user;
  EXPECT_FALSE(Set("k", "2"));
  EXPECT_FALSE(Set("k", "1")) << "though nothing would change";
  EXPECT_EQ(Get("k"), "1");
  EXPECT_TRUE(file_.WriteString("a", "k", "2", Path("other.ecu")));
  EXPECT_TRUE(file_.Flush());
}

TEST_F(ProfileFileTest, AFolderThatMayNotBeWrittenRefusesEveryWrite) {
  Put(path_, "[a]\r\nk=1\r\n");
  fs::permissions(path_, fs::perms(0666));
  fs::permissions(folder_, fs::perms(0555));
  const OrdinaryUser user;
  EXPECT_FALSE(Set("k", "2"));
  EXPECT_FALSE(file_.WriteString("a", "k", "2", Path("other.ecu")));
  EXPECT_EQ(Get("k"), "1");
  EXPECT_TRUE(file_.Flush());
}

TEST_F(ProfileFileTest, AFolderThatIsClosedBeforeTheFlushFailsIt) {
  fs::permissions(folder_, fs::perms::all);
  Put(path_, "[a]\r\nk=1\r\n");
  fs::permissions(path_, fs::perms(0666));
  {
    const OrdinaryUser user;
    EXPECT_TRUE(Set("k", "2"));
  }
  fs::permissions(folder_, fs::perms(0555));
  {
    const OrdinaryUser user;
    EXPECT_FALSE(file_.Flush());
    EXPECT_EQ(Get("k"), "1");
  }
}

TEST_F(ProfileFileTest, AFileThatMayNotBeReadReadsAsMissingAndIsNotWritten) {
  Put(path_, "[a]\r\nk=1\r\n");
  fs::permissions(folder_, fs::perms::all);
  fs::permissions(path_, fs::perms(0222));
  const OrdinaryUser user;
  EXPECT_EQ(Get("k"), "d");
  EXPECT_FALSE(Set("k", "2"));
}

TEST_F(ProfileFileTest, PermissionsAreKept) {
  Put(path_, "[a]\r\nk=1\r\n");
  for (const auto perms : {0640, 0600, 0664, 0755}) {
    fs::permissions(path_, fs::perms(perms));
    Set("k", std::to_string(perms));
    EXPECT_TRUE(file_.Flush());
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms(perms));
  }
  const mode_t mask = umask(027);
  file_.WriteString("a", "k", "1", Path("new.ecu"));
  EXPECT_TRUE(file_.Flush());
  umask(mask);
  EXPECT_EQ(fs::status(Path("new.ecu")).permissions(), fs::perms(0640));
}

TEST_F(ProfileFileTest, ASymbolicLinkStaysOne) {
  fs::create_directory(Path("real"));
  Put(Path("real/trailer.ecu"), "[a]\r\nk=1\r\n");
  fs::create_symlink("real/trailer.ecu", path_);
  EXPECT_TRUE(Set("k", "2"));
  EXPECT_TRUE(file_.Flush());
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(OnDisk(Path("real/trailer.ecu")), "[a]\r\nk=2\r\n");
}

TEST_F(ProfileFileTest, AShareThatRefusesRightsAndOwnersTakesTheWrite) {
  Put(path_, "[a]\r\nk=1\r\n");
  fs::permissions(path_, fs::perms(0600));
  PosixProfileFile share(ShareCalls());
  EXPECT_TRUE(share.WriteString("a", "k", "2", path_));
  EXPECT_TRUE(share.Flush());
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=2\r\n");
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms(0600));
}

TEST_F(ProfileFileTest, ShortAndInterruptedCallsLoseNothing) {
  const std::string long_value(1000, 'v');
  Put(path_, "[a]\r\nk=" + long_value + "\r\n");
  PosixProfileFile file(StutteringCalls());
  EXPECT_EQ(file.GetString("a", "k", "d", kRoom, path_), long_value);
  EXPECT_TRUE(file.WriteString("a", "l", "2", path_));
  EXPECT_TRUE(file.Flush());
  EXPECT_EQ(OnDisk(path_), "[a]\r\nk=" + long_value + "\r\nl=2\r\n");
}

TEST_F(ProfileFileTest, AFileThatCannotBeReadToItsEndReadsAsMissing) {
  Put(path_, "[a]\r\nk=1\r\n");
  PosixProfileFile file(FailingCalls(FileCall::kRead, EIO));
  EXPECT_EQ(file.GetString("a", "k", "d", kRoom, path_), "d");
  EXPECT_FALSE(file.WriteString("a", "k", "2", path_));
  EXPECT_EQ(file.LastError(), ErrorNumber::kDeviceIoError);
}

TEST_F(ProfileFileTest, AFlushThatFailsTellsWhy) {
  struct Row {
    FileCall call;
    int error;
    ErrorNumber number;
  };
  constexpr Row kRows[] = {
      {FileCall::kWrite, ENOSPC, ErrorNumber::kDiskFull},
      {FileCall::kSync, EIO, ErrorNumber::kDeviceIoError},
      {FileCall::kRename, EROFS, ErrorNumber::kPermissionDenied},
      {FileCall::kRename, EACCES, ErrorNumber::kPathFileAccessError},
  };
  Put(path_, "[a]\r\nk=1\r\n");
  for (const Row& row : kRows) {
    PosixProfileFile file(FailingCalls(row.call, row.error));
    EXPECT_TRUE(file.WriteString("a", "k", "2", path_));
    EXPECT_FALSE(file.Flush());
    EXPECT_EQ(file.LastError(), row.number);
    EXPECT_EQ(OnDisk(path_), "[a]\r\nk=1\r\n");
    EXPECT_EQ(FilesInFolder(), 1u) << "a temporary file was left";
  }
}

TEST_F(ProfileFileTest, AWriteThatIsRefusedTellsWhy) {
  const auto refused = [this](const std::string& path) {
    EXPECT_FALSE(file_.WriteString("a", "k", "1", path)) << path;
    return file_.LastError();
  };
  EXPECT_EQ(refused(""), ErrorNumber::kBadFileNameOrNumber);
  EXPECT_EQ(refused(Path(std::string(300, 'n'))), ErrorNumber::kBadFileNameOrNumber);
  EXPECT_EQ(refused(folder_.string()), ErrorNumber::kPathFileAccessError);
  EXPECT_EQ(refused(Path("none/trailer.ecu")), ErrorNumber::kPathNotFound);
  Put(path_, "[a]\r\nk=1\r\n");
  EXPECT_EQ(refused(path_ + "/below"), ErrorNumber::kPathNotFound);
  fs::permissions(folder_, fs::perms(0555));
  fs::permissions(path_, fs::perms(0444));
  const OrdinaryUser user;
  EXPECT_EQ(refused(path_), ErrorNumber::kPathFileAccessError);
  EXPECT_EQ(refused(Path("other.ecu")), ErrorNumber::kPathFileAccessError);
}

// A child writes two versions in turn until it is killed; whole is what one of them wrote.
TEST_F(ProfileFileTest, AKilledWriterLeavesOneVersionWhole) {
  const std::string values[] = {std::string(300'000, 'x'), std::string(200'000, 'y')};
  Put(path_, "[a]\r\nk=" + values[1] + "\r\n");
  for (int run = 0; run < 8; ++run) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      PosixProfileFile file;
      for (int i = 0;; ++i) {
        file.WriteString("a", "k", values[i % 2], path_);
        if (!file.Flush() || write(ends[1], "", 1) != 1) _exit(1);
      }
    }
    close(ends[1]);
    char byte = 0;
    for (int i = 0; i <= run; ++i) ASSERT_EQ(read(ends[0], &byte, 1), 1);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    close(ends[0]);
    ASSERT_TRUE(WIFSIGNALED(status));
    const auto bytes = OnDisk(path_);
    ASSERT_TRUE(bytes == "[a]\r\nk=" + values[0] + "\r\n" ||
                bytes == "[a]\r\nk=" + values[1] + "\r\n");
  }
}

TEST_F(ProfileFileTest, AFileCutAnywhereReadsAsFarAsItGoesAndTakesAWrite) {
  const std::string ansi = ";c\r\n[b]\r\nx=1\r\n\r\n[a]\r\n k = \"value\" \r\nl=2";
  std::string unicode = "\xFF\xFE";
  for (const char c : ansi) unicode += std::string{c, '\0'};
  for (const std::string& whole : {ansi, unicode}) {
    for (std::size_t length = 0; length <= whole.size(); ++length) {
      SCOPED_TRACE(length);
      const std::string cut = whole.substr(0, length);
      Put(path_, cut);
      ASSERT_EQ(Get("k"), model::Read(cut, "a", "k", "d", kRoom));
      ASSERT_TRUE(Set("k", "new"));
      ASSERT_EQ(Get("k"), "new");
      ASSERT_TRUE(file_.Flush());
      ASSERT_EQ(OnDisk(path_), model::Write(cut, "a", "k", "new"));
    }
  }
}

TEST_F(ProfileFileTest, TenThousandKeysAndMegabyteKeysAreReadAndWritten) {
  constexpr int kKeys = 10'000;
  for (int i = 0; i < kKeys; ++i) {
    ASSERT_TRUE(Set("key" + std::to_string(i), std::to_string(i)));
    ASSERT_TRUE(file_.WriteString("s" + std::to_string(i), "k", "v", path_));
  }
  const std::string megabyte(1 << 20, 'm');
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(Set(megabyte + std::to_string(i), megabyte));
  ASSERT_TRUE(file_.Flush());
  PosixProfileFile afresh;
  for (int i = 0; i < kKeys; ++i) {
    const std::string number = std::to_string(i);
    ASSERT_EQ(afresh.GetString("a", "KEY" + number, "d", kRoom, path_), number);
    ASSERT_EQ(afresh.GetString("S" + number, "k", "d", kRoom, path_), "v");
  }
  EXPECT_EQ(afresh.GetString("a", megabyte + "9", "d", 1 << 21, path_).size(),
            ProfileText::kMaxValue);
}

TEST_F(ProfileFileTest, ManyLinesOfNothingAreReadInOneSweep) {
  for (const std::string& filler : {std::string("\n"), std::string("[a]\n"), std::string("k=\n"),
                                    std::string("=\r"), std::string("\0", 1), std::string("[")}) {
    std::string bytes;
    while (bytes.size() < (4 << 20)) bytes += filler;
    Put(path_, bytes + "\r\n[z]\r\nk=1\r\n");
    EXPECT_EQ(file_.GetString("z", "k", "d", kRoom, path_), "1");
    EXPECT_TRUE(file_.WriteString("z", "k", "2", path_));
    EXPECT_TRUE(file_.Flush());
    EXPECT_EQ(OnDisk(path_)->size(), bytes.size() + 12);
  }
}

TEST_F(ProfileFileTest, RandomCallsOnRandomTextsGiveWhatThePlainModelGives) {
  std::mt19937 random(20060417);
  const auto pick = [&](const std::string& from, std::size_t most) {
    std::string text;
    for (std::size_t i = random() % (most + 1); i > 0; --i) text += from[random() % from.size()];
    return text;
  };
  const std::string letters("aAk[]=; \t\"'\r\n\n\n\xE9\xC9\x80\0", 19);
  for (int run = 0; run < 300; ++run) {
    SCOPED_TRACE(run);
    std::string expected = pick(letters, 60);
    if (random() % 4 == 0) expected.insert(0, "\xFF\xFE");
    Put(path_, expected);
    for (int call = 0; call < 20; ++call) {
      const std::string section = pick(letters, 2);
      const std::string key = pick(letters, 2);
      const std::string text = pick(letters, 4);
      if (random() % 2 == 0) {
        ASSERT_EQ(file_.GetString(section, key, text, 1 + random() % 20, path_).size() < 20, true);
        ASSERT_EQ(file_.GetString(section, key, text, kRoom, path_),
                  model::Read(expected, section, key, text, kRoom));
      } else {
        ASSERT_TRUE(file_.WriteString(section, key, text, path_));
        expected = model::Write(expected, section, key, text);
      }
    }
    ASSERT_TRUE(file_.Flush());
    ASSERT_EQ(OnDisk(path_), expected);
  }
}

}  // namespace
}  // namespace lorimet
