// What the end-of-line tests cost: a whole sign-off, one tick of each test, the report as a file.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>

#include "adapters/posix/posix_text_file.h"
#include "autotests/common/operated_program.h"
#include "benchmarks/report_program.h"
#include "tests/tests_part.h"

namespace lorimet::benchmarks {
namespace {

// --- A whole sign-off, by the operator, in virtual time ------------------------------------------

void SignOff(benchmark::State& state, const char* scenario) {
  for (auto _ : state) {
    testing_support::OperatedProgram stand(scenario);
    stand.SignOff();
    if (stand.Trailer().Get("flag") != "1") state.SkipWithError("not signed off");
  }
  state.counters["signed off a second"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK_CAPTURE(SignOff, of_2s1m, "configuration 2S/1M\naxles 1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SignOff, of_4s2m, "configuration 4S/2M")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SignOff, of_4s3m_mechanical, "configuration 4S/3M\nsuspension mechanical")
    ->Unit(benchmark::kMillisecond);

// --- One tick ------------------------------------------------------------------------------------

// A screen that stays in its state; the trailer's own time is left out but for what the tick waits.
template <typename Screen>
void Tick(benchmark::State& state, Screen& screen, HeadlessProgram& headless,
          std::uint32_t until_there) {
  screen.Show();
  headless.desktop.Run(until_there);
  for (auto _ : state) {
    screen.Timer1.Tick();
    headless.desktop.Flush();
  }
  if (!screen.Loaded()) state.SkipWithError("the screen has closed");
  screen.Unload();
}

void TickOfThePressureTestThatWaits(benchmark::State& state) {
  HeadlessProgram headless;
  headless.simulated.link.link.Command("field dServiceBrake 20");
  headless.desktop.Run(500);
  Tick(state, headless.simulated.program.tests->pressure_test, headless, 1000);
}
BENCHMARK(TickOfThePressureTestThatWaits)->Unit(benchmark::kMicrosecond);

// With 400 ms of the trailer's time in it.
void TickOfThePressureTestThatMeasures(benchmark::State& state) {
  HeadlessProgram headless;
  headless.simulated.link.link.Command("field dBrake1Press 30");
  headless.desktop.Run(500);
  Tick(state, headless.simulated.program.tests->pressure_test, headless, 4000);
}
BENCHMARK(TickOfThePressureTestThatMeasures)->Unit(benchmark::kMicrosecond);

void TickOfTheRedundancyTest(benchmark::State& state) {
  HeadlessProgram headless;
  Tick(state, headless.simulated.program.tests->redundancy_test, headless, 2000);
}
BENCHMARK(TickOfTheRedundancyTest)->Unit(benchmark::kMicrosecond);

void TickOfTheSensorTest(benchmark::State& state) {
  HeadlessProgram headless;
  Tick(state, headless.simulated.program.tests->sensor_test, headless, 4000);
}
BENCHMARK(TickOfTheSensorTest)->Unit(benchmark::kMicrosecond);

void TickOfTheLampTest(benchmark::State& state) {
  HeadlessProgram headless;
  Tick(state, headless.simulated.program.tests->lamp_test, headless, 2000);
}
BENCHMARK(TickOfTheLampTest)->Unit(benchmark::kMicrosecond);

void TickOfTheCalibration(benchmark::State& state) {
  HeadlessProgram headless;
  Tick(state, headless.simulated.program.tests->suspension_calibration, headless, 2000);
}
BENCHMARK(TickOfTheCalibration)->Unit(benchmark::kMicrosecond);

// --- The report as a file on a disk --------------------------------------------------------------

void ReportFile(benchmark::State& state) {
  ReportProgram program(static_cast<std::size_t>(state.range(0)));
  PosixTextFiles files;
  const ReportParts parts = program.With(files, program.headless.simulated.printer);
  for (auto _ : state) SaveEOLReport(parts);
  program.Check(state);
}
BENCHMARK(ReportFile)->Arg(0)->Arg(200)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
