// What the simulated trailer costs: an hour of its time, and a command that looks.
#include <benchmark/benchmark.h>

#include "session/ecu_data.h"
#include "simulator/library/link.h"

namespace lorimet::benchmarks {
namespace {

void Connect(simulator::Link& link, ECUData& record, LinkStatus& status) {
  link.Connect(nullptr, 0, nullptr, -1, 3, nullptr, nullptr, &status, &record, nullptr, nullptr,
               nullptr, nullptr);
}

// Aim: below half a second.
void AnHourOfTrailerTime(benchmark::State& state, const char* scenario) {
  ECUData record = {};
  LinkStatus status = {};
  simulator::Link link(scenario);
  Connect(link, record, status);
  for (auto _ : state) link.Advance(3600);
  if (link.Get("time") == "0") state.SkipWithError("time stands still");
}
BENCHMARK_CAPTURE(AnHourOfTrailerTime, standing, "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AnHourOfTrailerTime, driving, "drive 50\nconfiguration 4S/3M")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AnHourOfTrailerTime, waiting,
                  "when h1 > 500 reset\nwhen wheel 2 speed > 900 reset")
    ->Unit(benchmark::kMillisecond);

void ACommandThatLooks(benchmark::State& state) {
  simulator::Link link;
  for (auto _ : state) benchmark::DoNotOptimize(link.Get("wheel 2 speed"));
}
BENCHMARK(ACommandThatLooks)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
