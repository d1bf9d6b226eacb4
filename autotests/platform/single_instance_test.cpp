#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <optional>

#include "adapters/posix/posix_process.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() {
    std::filesystem::create_directory(folder_ / "run");
    chmod((folder_ / "run").c_str(), 0700);
    std::filesystem::create_directory(folder_ / "tmp");
    std::filesystem::create_directory(folder_ / "users");
    environment_.Set("XDG_RUNTIME_DIR", folder_ / "run");
    environment_.Set("XDG_CONFIG_HOME", folder_ / "config");
  }

  bool Claim() { return PosixProcess(folder_ / "tmp", folder_ / "users").ClaimSingleInstance(); }
  std::string Fallback() const {
    return folder_ / ("tmp/norvick-lorimet-" + std::to_string(getuid()));
  }

  ScratchFolder folder_;
  ScratchEnvironment environment_;
};

TEST_F(SingleInstanceTest, IsHeldByOneUntilItIsGone) {
  auto first = std::make_unique<PosixProcess>(folder_ / "tmp", folder_ / "users");
  EXPECT_TRUE(first->ClaimSingleInstance());
  EXPECT_TRUE(first->ClaimSingleInstance());
  EXPECT_FALSE(Claim());
  EXPECT_FALSE(Claim());
  first.reset();
  EXPECT_TRUE(Claim());
}

TEST_F(SingleInstanceTest, IsFreeAgainWhenItsHolderIsKilled) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t holder = fork();
  if (holder == 0) {
    PosixProcess process(folder_ / "tmp", folder_ / "users");
    const char claimed = process.ClaimSingleInstance() ? 'y' : 'n';
    if (write(ends[1], &claimed, 1) == 1) {
      pause();
    }
    _exit(0);
  }
  char claimed = 0;
  ASSERT_EQ(read(ends[0], &claimed, 1), 1);
  EXPECT_EQ(claimed, 'y');
  EXPECT_FALSE(Claim());
  kill(holder, SIGKILL);
  waitpid(holder, nullptr, 0);
  EXPECT_TRUE(Claim());
  close(ends[0]);
  close(ends[1]);
}

TEST_F(SingleInstanceTest, IsNotHeldOnByAProgramThatTheHolderStarted) {
  const std::string script = folder_ / "wait.sh";
  const std::string pipe_file = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe_file.c_str(), 0600), 0);
  WriteFile(script, "#!/bin/sh\nread line < " + pipe_file + "\n");
  chmod(script.c_str(), 0700);
  {
    PosixProcess holder(folder_ / "tmp", folder_ / "users");
    ASSERT_TRUE(holder.ClaimSingleInstance());
    ASSERT_TRUE(holder.Start(script, ""));
  }
  EXPECT_TRUE(Claim());
  WriteFile(pipe_file, "go\n");
}

TEST_F(SingleInstanceTest, UsesAFolderOfTheUsersOwnWhereThereIsNoRuntimeFolder) {
  for (const std::optional<std::string>& runtime :
       {std::optional<std::string>(), std::optional<std::string>("relative"),
        std::optional<std::string>(folder_ / "missing")}) {
    environment_.Set("XDG_RUNTIME_DIR", runtime);
    PosixProcess first(folder_ / "tmp", folder_ / "users");
    EXPECT_TRUE(first.ClaimSingleInstance());
    EXPECT_FALSE(Claim());
    struct stat status {};
    ASSERT_EQ(lstat(Fallback().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    EXPECT_TRUE(std::filesystem::exists(Fallback() + "/lock"));
  }
}

TEST_F(SingleInstanceTest, AStartThatWasNotToldOfTheRuntimeFolderFindsIt) {
  const std::string runtime = folder_ / ("users/" + std::to_string(getuid()));
  std::filesystem::create_directory(runtime);
  chmod(runtime.c_str(), 0700);
  environment_.Set("XDG_RUNTIME_DIR", runtime);
  PosixProcess told(folder_ / "tmp", folder_ / "users");
  ASSERT_TRUE(told.ClaimSingleInstance());
  environment_.Set("XDG_RUNTIME_DIR", std::nullopt);
  EXPECT_FALSE(Claim());
  EXPECT_FALSE(std::filesystem::exists(Fallback()));
}

TEST_F(SingleInstanceTest, ARuntimeFolderOpenToOthersIsNotTrusted) {
  const std::string runtime = folder_ / ("users/" + std::to_string(getuid()));
  std::filesystem::create_directory(runtime);
  chmod(runtime.c_str(), 0777);
  environment_.Set("XDG_RUNTIME_DIR", std::nullopt);
  EXPECT_TRUE(Claim());
  EXPECT_TRUE(std::filesystem::is_empty(runtime));
  EXPECT_TRUE(std::filesystem::exists(Fallback()));
}

// What another user can lay in the way, at any moment.
TEST_F(SingleInstanceTest, AFolderThatSomebodyElsePreparedDoesNotSwitchTheLockOff) {
  environment_.Set("XDG_RUNTIME_DIR", std::nullopt);
  const std::string elsewhere = folder_ / "elsewhere";
  std::filesystem::create_directory(elsewhere);
  PosixProcess first(folder_ / "tmp", folder_ / "users");
  std::filesystem::create_directory_symlink(elsewhere, Fallback());
  EXPECT_TRUE(first.ClaimSingleInstance());
  EXPECT_FALSE(Claim());
  EXPECT_TRUE(std::filesystem::is_empty(elsewhere));

  std::filesystem::remove(Fallback());
  EXPECT_FALSE(Claim()) << "the way is free again";

  chmod(Fallback().c_str(), 0777);
  EXPECT_FALSE(Claim());
}

TEST_F(SingleInstanceTest, ALockThatIsALinkIsNotFollowed) {
  environment_.Set("XDG_RUNTIME_DIR", std::nullopt);
  std::filesystem::create_directory(Fallback());
  chmod(Fallback().c_str(), 0700);
  WriteFile(folder_ / "victim", "");
  std::filesystem::create_symlink(folder_ / "victim", Fallback() + "/lock");
  const int victim = open((folder_ / "victim").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(flock(victim, LOCK_EX | LOCK_NB), 0);
  EXPECT_TRUE(Claim());
  close(victim);
}

TEST_F(SingleInstanceTest, IsGrantedWhereNoPlaceForTheLockCanBeHad) {
  environment_.Set("XDG_RUNTIME_DIR", std::nullopt);
  environment_.Set("XDG_CONFIG_HOME", folder_ / "file/config");
  WriteFile(folder_ / "file", "");
  WriteFile(Fallback(), "");
  EXPECT_TRUE(Claim());
  EXPECT_TRUE(Claim());
}

}  // namespace
}  // namespace lorimet
