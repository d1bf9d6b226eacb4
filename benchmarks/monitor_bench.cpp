// One tick of the bus monitor without a display: messages a second, and what a full bus costs.
#include <benchmark/benchmark.h>

#include "benchmarks/simulated_program.h"
#include "monitor/monitor_part.h"

namespace lorimet::benchmarks {
namespace {

constexpr int kLine = 240;  // twips of a line of ten points

// The monitor with a box of so many lines.
struct HeadlessMonitor {
  explicit HeadlessMonitor(int lines) {
    headless.desktop.on_lay_out = [lines](Form& form) {
      form.FindControl("txtMonitor")->ViewMeasured({0, 0, 11000, (lines - 1) * kLine, 10});
    };
    screen.Show();
  }

  HeadlessProgram headless;
  frmBusMonitor& screen = headless.simulated.program.monitor->screen;
};

// A library that always has a message. Aim: far more than the 202 messages a second that two ticks
// can show.
void MonitorTickOf101Messages(benchmark::State& state) {
  HeadlessMonitor monitor(static_cast<int>(state.range(0)));
  monitor.headless.simulated.link.link.Command("bus flood");
  for (auto _ : state) monitor.screen.tmrUpdateMonitor.Tick();
  state.SetItemsProcessed(state.iterations() * 101);
}
BENCHMARK(MonitorTickOf101Messages)->Arg(40)->Arg(200)->Unit(benchmark::kMicrosecond);

// Half a second of a bus at its physical limit; the trailer's own time is not counted.
void MonitorTickAtFullLoad(benchmark::State& state) {
  HeadlessMonitor monitor(static_cast<int>(state.range(0)));
  monitor.headless.simulated.link.link.Command("bus_load full");
  for (auto _ : state) {
    state.PauseTiming();
    monitor.headless.simulated.link.link.Advance(0.5);
    state.ResumeTiming();
    monitor.screen.tmrUpdateMonitor.Tick();
  }
  state.counters["share_of_a_core"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * 0.5,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(MonitorTickAtFullLoad)->Arg(40)->Arg(200)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
