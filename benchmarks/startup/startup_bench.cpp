// How long the program takes from its start to its first painted window, and how much memory it
// needs at the most, beside an empty program of the same toolkit: medians of ten runs in turn.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kRuns = 10;
constexpr int kPatience = 30'000;                          // ms
constexpr auto kSettle = std::chrono::milliseconds(2500);  // connected, identity and values shown

struct Run {
  double first_paint_ms = 0;
  double peak_mb = 0;
};

struct Candidate {
  const char* title;
  const char* file;
  std::vector<Run> runs;
};

long long Now() {
  timespec now = {};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

[[noreturn]] void Fail(const char* what) {
  std::fprintf(stderr, "startup: %s\n", what);
  std::exit(1);
}

double PeakMegabytes(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  Fail("the process tells no peak memory");
}

// The text that the plugin wrote.
long long PaintTime(int reading) {
  pollfd readable = {reading, POLLIN, 0};
  std::array<char, 64> text = {};
  if (poll(&readable, 1, kPatience) != 1 || read(reading, text.data(), text.size() - 1) <= 0)
    Fail("no window was painted");
  return std::atoll(text.data());
}

Run Measure(const char* file) {
  int ends[2];
  if (pipe(ends) != 0) Fail("there is no pipe");
  setenv("LORIMET_FIRST_PAINT", std::to_string(ends[1]).c_str(), 1);
  const long long start = Now();
  const pid_t child = fork();
  if (child == 0) {
    close(ends[0]);
    execl(file, file, nullptr);
    _exit(127);
  }
  close(ends[1]);
  Run run;
  run.first_paint_ms = static_cast<double>(PaintTime(ends[0]) - start) / 1e6;
  close(ends[0]);
  std::this_thread::sleep_for(kSettle);
  run.peak_mb = PeakMegabytes(child);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  return run;
}

double Median(const std::vector<Run>& runs, double Run::*value) {
  std::vector<double> values;
  values.reserve(runs.size());
  for (const Run& run : runs) values.push_back(run.*value);
  std::ranges::sort(values);
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void SetEnvironment(const std::string& folder) {
  chmod(folder.c_str(), 0700);
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_STATE_HOME"})
    setenv(name, folder.c_str(), 1);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("QT_QPA_GENERIC_PLUGINS", "lorimet_first_paint", 1);
  setenv("QT_PLUGIN_PATH", LORIMET_BINARY_DIR "/benchmarks", 1);
  setenv("LORIMET32", LORIMET_BINARY_DIR "/libLorimet32.so", 1);
  setenv("LORIMET32_STATE", "none", 1);
  setenv("QT_LOGGING_RULES", "*.warning=false", 1);
}

void Print(const Candidate& candidate) {
  std::printf("%-28s %16.1f %16.1f\n", candidate.title,
              Median(candidate.runs, &Run::first_paint_ms), Median(candidate.runs, &Run::peak_mb));
}

}  // namespace

int main() {
  std::string folder = (std::filesystem::temp_directory_path() / "lorimet-bench-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) Fail("there is no temporary folder");
  SetEnvironment(folder);
  std::array<Candidate, 2> candidates = {{
      {"an empty program", LORIMET_BINARY_DIR "/benchmarks/empty_program", {}},
      {"lorimet", LORIMET_BINARY_DIR "/lorimet", {}},
  }};
  for (const Candidate& candidate : candidates) Measure(candidate.file);  // warms the caches
  for (int i = 0; i < kRuns; ++i)
    for (Candidate& candidate : candidates) candidate.runs.push_back(Measure(candidate.file));
  std::printf("%-28s %16s %16s\n", "Median of ten runs", "first paint, ms", "peak memory, MB");
  for (const Candidate& candidate : candidates) Print(candidate);
  std::filesystem::remove_all(folder);
}
