#include "adapters/posix/posix_process.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>
#include <vector>

#include "adapters/posix/user_folders.h"

namespace lorimet {

namespace {

constexpr char kDocumentsSubfolder[] = "Norvick Lorimet";

bool IsFolder(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// True for a folder, no link to one, that belongs to this user and that nobody else can write to.
bool IsPrivateFolder(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == getuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

std::string UserNumber() { return std::to_string(static_cast<unsigned long>(getuid())); }

// The folder that lasts as long as the user is logged on; empty when there is none. A start that
// was not told of it, by su or cron, finds the one that the others have.
std::string RuntimeFolder(const std::string& runtime_root) {
  const char* named = std::getenv("XDG_RUNTIME_DIR");
  if (named != nullptr && named[0] == '/' && IsPrivateFolder(named)) {
    return named;
  }
  const std::string folder = runtime_root + "/" + UserNumber();
  return IsPrivateFolder(folder) ? folder : std::string();
}

// This machine's own file in a folder that machines may share.
std::string MachineFile(const std::string& folder) {
  std::array<char, 256> host{};
  gethostname(host.data(), host.size() - 1);
  return folder + "/instance-" + host.data() + ".lock";
}

// Where the locks lie; the claim needs all of them. A folder that somebody else prepared does not
// count. Another user can take the name in the temporary folder at any time, and so the user's own
// folder has a lock too.
std::vector<std::string> LockFiles(const std::string& temporary_folder,
                                   const std::string& runtime_root) {
  const std::string runtime = RuntimeFolder(runtime_root);
  if (!runtime.empty()) {
    return {runtime + "/norvick-lorimet.lock"};
  }
  std::vector<std::string> files;
  const std::string temporary = temporary_folder + "/norvick-lorimet-" + UserNumber();
  mkdir(temporary.c_str(), 0700);
  if (IsPrivateFolder(temporary)) {
    files.push_back(temporary + "/lock");
  }
  const std::string own = ConfigFolder() + "/norvick-lorimet";
  if (MakeFolder(own) && IsPrivateFolder(own)) {
    files.push_back(MachineFile(own));
  }
  return files;
}

std::vector<std::string> SplitAtBlanks(const std::string& text) {
  std::vector<std::string> words;
  std::size_t start = text.find_first_not_of(' ');
  while (start != std::string::npos) {
    const std::size_t end = text.find(' ', start);
    words.push_back(text.substr(start, end - start));
    start = text.find_first_not_of(' ', end);
  }
  return words;
}

bool IsUnderSystemPrefix(const std::string& folder) {
  if (!folder.ends_with("/bin")) {
    return false;
  }
  const std::string prefix = FolderOf(folder);
  const bool system = prefix == "/usr" || prefix == "/usr/local" || prefix.starts_with("/opt/");
  return system && IsFolder(prefix + "/share");
}

// The grandchild's side: leaves the session, gives up what is not the program's, and becomes the
// program. Only calls that are safe behind a fork of a threaded process. Tells an error by
// `report`.
[[noreturn]] void BecomeProgram(char* const* argv, int report) {
  setsid();
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  std::signal(SIGPIPE, SIG_DFL);
  close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
  execv(argv[0], argv);
  const int error = errno;
  [[maybe_unused]] const ssize_t written = write(report, &error, sizeof error);
  _exit(127);
}

// True when nothing came through the pipe before its last writer was gone: the program runs.
bool EndsSilent(int descriptor) {
  int error = 0;
  ssize_t count = 0;
  do {
    count = read(descriptor, &error, sizeof error);
  } while (count < 0 && errno == EINTR);
  return count == 0;
}

void Reap(pid_t child) {
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace

PosixProcess::PosixProcess(std::string temporary_folder, std::string runtime_root)
    : temporary_folder_(std::move(temporary_folder)),
      runtime_root_(std::move(runtime_root)),
      executable_(ExecutablePath()) {}

bool PosixProcess::ClaimSingleInstance() {
  if (!instance_locks_.empty()) {
    return true;
  }
  std::vector<FileDescriptor> locks;
  for (const std::string& file : LockFiles(temporary_folder_, runtime_root_)) {
    FileDescriptor lock(open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!lock.IsOpen()) {
      continue;
    }
    if (flock(lock.Get(), LOCK_EX | LOCK_NB) == 0) {
      locks.push_back(std::move(lock));
    } else if (errno == EWOULDBLOCK) {
      return false;
    }
  }
  instance_locks_ = std::move(locks);
  return true;
}

bool PosixProcess::FileExists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool PosixProcess::Start(const std::string& path, const std::string& arguments) {
  std::vector<std::string> words = SplitAtBlanks(arguments);
  words.insert(words.begin(), path);
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) {
    argv.push_back(word.data());
  }
  argv.push_back(nullptr);

  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) {
    return false;
  }
  const FileDescriptor reading(ends[0]);
  FileDescriptor writing(ends[1]);
  const pid_t child = fork();
  if (child == 0) {
    // The one between ends at once, so that the system adopts and reaps the program.
    const pid_t grandchild = fork();
    if (grandchild == 0) {
      BecomeProgram(argv.data(), writing.Get());
    }
    const int error = errno;
    if (grandchild < 0) {
      [[maybe_unused]] const ssize_t written = write(writing.Get(), &error, sizeof error);
    }
    _exit(0);
  }
  writing.Close();
  if (child < 0) {
    return false;
  }
  Reap(child);
  return EndsSilent(reading.Get());
}

std::string PosixProcess::ProgramFolder() {
  std::string folder = ProgramFolderOf(executable_);
  MakeFolder(folder);
  return folder;
}

std::string ProgramFolderOf(const std::string& executable) {
  std::string folder = FolderOf(executable);
  if (IsUnderSystemPrefix(folder)) {
    folder = DocumentsFolder() + "/" + kDocumentsSubfolder;
  }
  return folder;
}

}  // namespace lorimet
