#include "platform/process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <ios>
#include <sstream>

#include "adapters/posix/posix_process.h"
#include "adapters/posix/user_folders.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

class ProcessTest : public testing::Test {
 protected:
  ProcessTest() { mkfifo(report_.c_str(), 0600); }

  std::string Script(const std::string& name, const std::string& body) {
    std::string path = folder_ / name;
    WriteFile(path, "#!/bin/sh\n" + body + "\n");
    chmod(path.c_str(), 0700);
    return path;
  }
  // What the started script writes to the report; waits for it.
  std::string Report() { return ReadFile(report_); }

  ScratchFolder folder_;
  std::string report_ = folder_ / "report";
  PosixProcess process_;
};

TEST_F(ProcessTest, StartsAProgramWithItsArguments) {
  struct Row {
    const char* arguments;
    const char* received;
  };
  constexpr Row kRows[] = {
      {"", "0:"},
      {"NO", "1:[NO]"},
      {"  one  two ", "2:[one][two]"},
      {"$HOME;ls *", "2:[$HOME;ls][*]"},
  };
  const std::string script = Script(
      "a program.sh",
      "{ printf '%s:' $#; for a in \"$@\"; do printf '[%s]' \"$a\"; done; } > '" + report_ + "'");
  for (const Row& row : kRows) {
    ASSERT_TRUE(process_.Start(script, row.arguments));
    EXPECT_EQ(Report(), row.received);
  }
}

TEST_F(ProcessTest, AProgramThatCannotBeStartedIsFalse) {
  EXPECT_FALSE(process_.Start(folder_ / "missing", "NO"));
  EXPECT_FALSE(process_.Start("", "NO"));
  EXPECT_FALSE(process_.Start(folder_.Path(), ""));
  WriteFile(folder_ / "text", "no program\n");
  EXPECT_FALSE(process_.Start(folder_ / "text", ""));
}

TEST_F(ProcessTest, AStartedProgramIsOnItsOwn) {
  const int inherited = open("/dev/null", O_RDONLY);
  ASSERT_GT(inherited, 2);
  const std::string script =
      Script("lone.sh",
             "{ read -r stat < /proc/$$/stat; set -- $stat; test $6 = $$; echo session $?; "
             "test -e /proc/self/fd/" +
                 std::to_string(inherited) + "; echo file $?; } > '" + report_ + "'");
  ASSERT_TRUE(process_.Start(script, ""));
  EXPECT_EQ(Report(), "session 0\nfile 1\n");
  close(inherited);
  // No child is left to wait for, neither a running one nor a dead one.
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST_F(ProcessTest, AStartedProgramHasTheUsualSignals) {
  auto* const handler = std::signal(SIGPIPE, SIG_IGN);
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  sigprocmask(SIG_BLOCK, &blocked, &before);
  const std::string script =
      Script("signals.sh", "exec grep -E '^Sig(Blk|Ign)' /proc/self/status > '" + report_ + "'");
  const bool started = process_.Start(script, "");
  sigprocmask(SIG_SETMASK, &before, nullptr);
  std::signal(SIGPIPE, handler);
  ASSERT_TRUE(started);
  std::istringstream lines(Report());
  std::string label;
  std::uint64_t blocked_bits = 1;
  std::uint64_t ignored_bits = 1;
  lines >> label >> std::hex >> blocked_bits >> label >> ignored_bits;
  EXPECT_EQ(blocked_bits & 1U << (SIGTERM - 1), 0U);
  EXPECT_EQ(ignored_bits & 1U << (SIGPIPE - 1), 0U);
}

TEST_F(ProcessTest, AFileExistsButAFolderIsNone) {
  WriteFile(folder_ / "a file", "");
  EXPECT_TRUE(process_.FileExists(folder_ / "a file"));
  EXPECT_FALSE(process_.FileExists(folder_.Path()));
  EXPECT_FALSE(process_.FileExists(folder_ / "missing"));
  EXPECT_FALSE(process_.FileExists(""));
  std::filesystem::create_symlink(folder_ / "missing", folder_ / "broken");
  EXPECT_FALSE(process_.FileExists(folder_ / "broken"));
}

TEST_F(ProcessTest, TheProgramsFolderIsTheExecutables) {
  const std::string executable = std::filesystem::read_symlink("/proc/self/exe").string();
  EXPECT_EQ(process_.ProgramFolder(), executable.substr(0, executable.rfind('/')));
}

TEST_F(ProcessTest, OnlyAProgramUnderASystemPrefixWorksInTheUsersDocuments) {
  ScratchEnvironment environment;
  environment.Set("HOME", folder_.Path());
  environment.Set("XDG_CONFIG_HOME", std::nullopt);
  ASSERT_TRUE(std::filesystem::is_directory("/usr/share"));
  ASSERT_TRUE(std::filesystem::is_directory("/usr/local/share"));
  const std::string documents = folder_ / "Documents/Norvick Lorimet";
  struct Row {
    std::string executable;
    std::string folder;
  };
  const Row rows[] = {
      {"/usr/bin/lorimet", documents},
      {"/usr/local/bin/lorimet", documents},
      {"/usr/lib/lorimet", "/usr/lib"},
      {"/usr/sbin/lorimet", "/usr/sbin"},
      {"/opt/no such product/bin/lorimet", "/opt/no such product/bin"},
      {"/home/me/lorimet/bin/lorimet", "/home/me/lorimet/bin"},
      {folder_ / "usr/bin/lorimet", folder_ / "usr/bin"},
      {"/bin/lorimet", "/bin"},
      {"/lorimet", ""},
  };
  std::filesystem::create_directories(folder_ / "usr/share");
  for (const Row& row : rows) {
    EXPECT_EQ(ProgramFolderOf(row.executable), row.folder) << row.executable;
  }
}

TEST_F(ProcessTest, TheDocumentsFolderIsTheOneThatTheUserChose) {
  ScratchEnvironment environment;
  environment.Set("HOME", "/home/me/");
  environment.Set("XDG_CONFIG_HOME", folder_.Path());
  EXPECT_EQ(DocumentsFolder(), "/home/me/Documents");
  struct Row {
    const char* file;
    const char* folder;
  };
  constexpr Row kRows[] = {
      {"XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n", "/home/me/Dokumente"},
      {"# remark\n  XDG_DOCUMENTS_DIR=\"/data/my docs/\"\n", "/data/my docs"},
      {"XDG_DOCUMENTS_DIR=\"/a\"\nXDG_DOCUMENTS_DIR=\"/b\"\n", "/b"},
      {"XDG_DOCUMENTS_DIR=\"/say \\\"x\\\"\"\n", "/say \"x\""},
      {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", "/home/me"},
      {"XDG_DOCUMENTS_DIR=\"$HOME\"\n", "/home/me"},
      {"XDG_DOCUMENTS_DIR=\"relative\"\n", "/home/me/Documents"},
      {"XDG_DOCUMENTS_DIR=\"$HOMELY/x\"\n", "/home/me/Documents"},
      {"XDG_DOCUMENTS_DIR=\n", "/home/me/Documents"},
      {"XDG_DOCUMENTS_DIR=/unquoted\n", "/home/me/Documents"},
      {"#XDG_DOCUMENTS_DIR=\"/x\"\nXDG_MUSIC_DIR=\"/m\"\n", "/home/me/Documents"},
  };
  for (const Row& row : kRows) {
    WriteFile(folder_ / "user-dirs.dirs", row.file);
    EXPECT_EQ(DocumentsFolder(), row.folder) << row.file;
  }
}

TEST_F(ProcessTest, MakesFoldersOnTheWay) {
  EXPECT_TRUE(MakeFolder(folder_ / "a/b/c d"));
  EXPECT_TRUE(std::filesystem::is_directory(folder_ / "a/b/c d"));
  EXPECT_TRUE(MakeFolder(folder_ / "a/b/c d"));
  WriteFile(folder_ / "file", "");
  EXPECT_FALSE(MakeFolder(folder_ / "file"));
  EXPECT_FALSE(MakeFolder(folder_ / "file/below"));
}

}  // namespace
}  // namespace lorimet
