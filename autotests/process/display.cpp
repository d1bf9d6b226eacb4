#include "autotests/process/display.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <iostream>
#include <sstream>

#include "autotests/platform/native_fixture.h"

namespace lorimet {
namespace {

constexpr int kPatience = 60'000;  // milliseconds

// The display's libraries are not built with that sanitizer, which takes their locks for none.
#ifdef __SANITIZE_THREAD__
constexpr bool kThreadsAreWatched = true;
#else
constexpr bool kThreadsAreWatched = false;
#endif

bool IsInstalled(const std::string& program) {
  const char* path = getenv("PATH");
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');)
    if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
  return false;
}

// A child that ends with this process and runs words[0].
pid_t Start(std::vector<std::string> words, const std::string& output,
            const std::function<void()>& prepare) {
  const pid_t parent = getpid();
  const pid_t child = fork();
  if (child != 0) return child;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (getppid() != parent) _exit(127);
  prepare();
  const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  dup2(file, STDOUT_FILENO);
  dup2(file, STDERR_FILENO);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

// The line that comes through a pipe; empty when none comes.
std::string ReadLine(int pipe) {
  std::string line;
  pollfd readable = {pipe, POLLIN, 0};
  char byte = 0;
  while (poll(&readable, 1, kPatience) == 1 && read(pipe, &byte, 1) == 1 && byte != '\n')
    line += byte;
  return line;
}

}  // namespace

std::unique_ptr<Display> Display::Open(const std::string& output) {
  const auto without = [](const std::string& reason) {
    std::cout << reason << ": the windows are moved by events from within, without a display.\n";
    return nullptr;
  };
  if (kThreadsAreWatched) return without("The thread sanitizer does not know the display");
  for (const char* program : {"Xvfb", "xdotool"})
    if (!IsInstalled(program)) return without("There is no " + std::string(program) + " here");
  std::unique_ptr<Display> display(new Display());
  display->output_ = output;
  int ends[2] = {};
  if (pipe2(ends, O_CLOEXEC) != 0) return nullptr;
  const int told = ends[1];
  display->server_ = Start({"Xvfb", "-displayfd", std::to_string(told), "-screen", "0",
                            "1366x768x24", "-nolisten", "tcp", "-noreset"},
                           display->output_, [told] { fcntl(told, F_SETFD, 0); });
  close(ends[1]);
  display->name_ = ":" + ReadLine(ends[0]);
  close(ends[0]);
  EXPECT_GT(display->name_.size(), 1u)
      << "the display does not open; " << ReadFile(display->output_);
  return display;
}

Display::~Display() {
  if (server_ < 0) return;
  kill(server_, SIGTERM);  // it takes its lock file away
  waitpid(server_, nullptr, 0);
}

void Display::Raise(const std::string& title) const {
  Robot({"search", "--onlyvisible", "--name", title, "windowraise"});
}

void Display::Click(const std::string& place) const {
  const std::size_t blank = place.find(' ');
  Robot({"mousemove", place.substr(0, blank), place.substr(blank + 1), "click", "1"});
}

void Display::Key(const std::string& key) const { Robot({"key", key}); }

void Display::KeyTo(const std::string& title, const std::string& key) const {
  Robot({"search", "--onlyvisible", "--name", title, "windowfocus", "key", key});
}

void Display::Robot(const std::vector<std::string>& words) const {
  std::vector<std::string> all = {"xdotool"};
  all.insert(all.end(), words.begin(), words.end());
  const std::string name = name_;
  const pid_t robot = Start(all, output_, [name] { setenv("DISPLAY", name.c_str(), 1); });
  int status = 0;
  waitpid(robot, &status, 0);
  EXPECT_EQ(status, 0) << words[0] << ": " << ReadFile(output_);
}

}  // namespace lorimet
