#include "autotests/process/running_program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <sstream>
#include <thread>
#include <utility>

#include "autotests/places.h"

namespace lorimet {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 40s;
constexpr auto kBetweenLooks = 10ms;
constexpr char kProductKey[] = "HKEY_CURRENT_USER\\SOFTWARE\\Norvick\\Norvick Lorimet";
constexpr char kLauncherKey[] =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Hubrest.exe";

std::string MakePrivate(const std::string& path) {
  std::filesystem::create_directories(path);
  chmod(path.c_str(), 0700);
  return path;
}

}  // namespace

bool Eventually(const std::function<bool()>& condition) {
  const auto limit = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limit) return false;
    std::this_thread::sleep_for(kBetweenLooks);
  }
  return true;
}

std::vector<pid_t> LivingChildren() {
  std::vector<pid_t> children;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    // NUMBER (NAME) STATE PARENT ...
    const std::string status = ReadFile(entry.path() / "stat");
    const std::size_t name_end = status.rfind(')');
    if (name_end == std::string::npos) continue;  // it has just ended
    std::istringstream words(status.substr(name_end + 1));
    std::string state;
    pid_t parent = 0;
    if (words >> state >> parent && parent == getpid() && state != "Z")
      children.push_back(std::stoi(name));
  }
  return children;
}

ProcessTest::ProcessTest() {
  prctl(PR_SET_CHILD_SUBREAPER, 1);  // whoever loses his parent becomes a child of this process
  environment = {
      {"XDG_CONFIG_HOME", MakePrivate(folder / "config")},
      {"XDG_RUNTIME_DIR", MakePrivate(folder / "run")},
      {"XDG_STATE_HOME", MakePrivate(folder / "state")},
      {"XDG_CACHE_HOME", MakePrivate(folder / "cache")},
      {"QT_QPA_PLATFORM", "offscreen"},
      {"QT_QPA_GENERIC_PLUGINS", "lorimet_window_probe"},
      {"QT_PLUGIN_PATH", InBuild("autotests")},
      {"LORIMET32", kLibrary},
      {"LORIMET32_CONTROL", folder / "control"},
      {"LORIMET_RECORDED_LIBRARY", kLibrary},
      {"LORIMET_RECORD", folder / "record"},
  };
}

ProcessTest::~ProcessTest() {
  for (auto left = LivingChildren(); !left.empty(); left = LivingChildren())
    for (const pid_t child : left) {
      kill(child, SIGKILL);
      waitpid(child, nullptr, 0);
    }
  while (waitpid(-1, nullptr, WNOHANG) > 0) continue;
}

void ProcessTest::InstallLauncher() {
  const std::string script = folder / "hubrest";
  const std::string launched = folder / "launched";
  WriteFile(script, "#!/bin/sh\nprintf '[%s]' \"$@\" > " + launched + ".new && mv " + launched +
                        ".new " + launched + "\n");
  chmod(script.c_str(), 0700);
  NameLauncher(script);
}

void ProcessTest::NameLauncher(const std::string& path) {
  machine_ = std::string("[") + kLauncherKey + "]\r\n@=\"" + path + "\"\r\n";
}

void ProcessTest::WriteSettings() const {
  MakePrivate(folder / "config/norvick-lorimet");
  WriteFile(
      folder / "config/norvick-lorimet/registry.reg",
      std::string("REGEDIT4\r\n\r\n[") + kProductKey + "]\r\n" + settings_ + "\r\n" + machine_);
}

void ProcessTest::Trailer(const std::string& command) {
  std::ofstream(folder / "control", std::ios::app) << command << '\n';
}

std::map<std::string, int> ProcessTest::Requests() {
  const std::string report = folder / "control.report";
  std::filesystem::remove(report);
  Trailer("report");
  EXPECT_TRUE(Eventually([&] { return std::filesystem::exists(report); }));
  std::map<std::string, int> requests;
  std::istringstream lines(ReadFile(report));
  std::string name;
  for (int count = 0; lines >> name >> count;) requests[name] = count;
  return requests;
}

std::vector<std::string> ProcessTest::Record() const {
  std::vector<std::string> names;
  std::istringstream lines(ReadFile(folder / "record"));
  for (std::string name; std::getline(lines, name);) names.push_back(name);
  return names;
}

ProcessTest::Run::Run(ProcessTest& test, const std::string& name, std::string program,
                      std::vector<std::string> arguments)
    : program_(std::move(program)),
      arguments_(std::move(arguments)),
      output_(test.folder / (name + ".output")),
      socket_(test.folder / (name + ".socket")) {
  test.WriteSettings();
  auto variables = test.environment;
  variables["LORIMET_WINDOW_PROBE"] = socket_;
  const pid_t parent = getpid();
  child_ = fork();
  if (child_ != 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(127);
  Become(variables);
}

void ProcessTest::Run::Become(const std::map<std::string, std::string>& variables) const {
  const int output = open(output_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  for (const char* name : {"LORIMET32_SCENARIO", "LORIMET32_STATE", "LC_ALL", "LANGUAGE"})
    unsetenv(name);
  for (const auto& [name, value] : variables) setenv(name.c_str(), value.c_str(), 1);
  std::vector<std::string> words = {program_};
  words.insert(words.end(), arguments_.begin(), arguments_.end());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  execv(InBuild(program_).c_str(), argv.data());
  _exit(127);
}

ProcessTest::Run::~Run() {
  Kill();
  EXPECT_EQ(Complaints(), "");
}

// Without what the offscreen platform says of itself.
std::string ProcessTest::Run::Complaints() const {
  std::string complaints;
  std::istringstream lines(ReadFile(output_));
  for (std::string line; std::getline(lines, line);)
    if (!line.starts_with("This plugin does not support ")) complaints += line + "\n";
  return complaints;
}

bool ProcessTest::Run::Reaped() {
  if (status_) return true;
  int status = 0;
  if (waitpid(child_, &status, WNOHANG) != child_) return false;
  status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return true;
}

bool ProcessTest::Run::Stands() { return !Reaped(); }

int ProcessTest::Run::ExitStatus() {
  EXPECT_TRUE(Eventually([this] { return Reaped(); }))
      << "the program does not end; " << Complaints();
  return status_.value_or(-1);
}

void ProcessTest::Run::Kill() {
  if (Reaped()) return;
  kill(child_, SIGKILL);
  waitpid(child_, nullptr, 0);
  status_ = -1;
}

void ProcessTest::Run::Terminate() const { kill(child_, SIGTERM); }

std::optional<std::string> ProcessTest::Run::Ask(const std::string& command) const {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  std::copy_n(socket_.c_str(), std::min(socket_.size(), sizeof address.sun_path - 1),
              address.sun_path);
  const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  std::string answer;
  const std::string line = command + "\n";
  if (connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
      send(connection, line.data(), line.size(), MSG_NOSIGNAL) ==
          static_cast<ssize_t>(line.size())) {
    constexpr int kMilliseconds = 5000;  // a program that is busy is asked again
    pollfd readable = {connection, POLLIN, 0};
    char bytes[4096];
    while (poll(&readable, 1, kMilliseconds) == 1) {
      const ssize_t count = read(connection, bytes, sizeof bytes);
      if (count <= 0) break;
      answer.append(bytes, static_cast<std::size_t>(count));
    }
  }
  close(connection);
  if (!answer.starts_with('=')) return std::nullopt;
  return answer.substr(1);
}

bool ProcessTest::Run::Tell(const std::string& command) const {
  return Eventually([&] { return Ask(command).has_value(); });
}

testing::AssertionResult ProcessTest::Run::Shows(const std::string& window, const std::string& name,
                                                 const std::string& property,
                                                 const std::string& value) const {
  std::string shown;
  const bool fits = Eventually([&] { return (shown = Get(window, name, property)) == value; });
  if (fits) return testing::AssertionSuccess();
  return testing::AssertionFailure() << window << "." << name << " shows \"" << shown
                                     << "\", not \"" << value << "\"; " << Complaints();
}

testing::AssertionResult ProcessTest::Run::ShowsWindow(const std::string& window) const {
  if (Tell("get " + window + " . objectName")) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "there is no window " << window << "; " << Complaints();
}

testing::AssertionResult ProcessTest::Run::ShowsNoWindow(const std::string& window) const {
  const std::string only = "\n" + window + "\n";
  const bool gone = Eventually([&] {
    const auto windows = Ask("windows");
    return windows && ("\n" + *windows + "\n").find(only) == std::string::npos;
  });
  if (gone) return testing::AssertionSuccess();
  return testing::AssertionFailure() << window << " still stands";
}

}  // namespace lorimet
