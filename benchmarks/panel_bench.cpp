// One pass of the live panel, the dictionary and the fault list, without a display.
#include <benchmark/benchmark.h>

#include "benchmarks/simulated_program.h"
#include "faults/faults_part.h"
#include "session/session_part.h"
#include "support/numbers.h"
#include "support/support_part.h"

namespace lorimet::benchmarks {
namespace {

// Aim: below 50 microseconds.
void LiveDataPassWithAllValuesChanged(benchmark::State& state) {
  HeadlessProgram headless;
  SimulatedProgram& simulated = headless.simulated;
  for (auto _ : state) {
    simulated.ChangeLiveValues();
    simulated.program.session->main_form.UpdateLiveData();
    headless.desktop.Flush();
  }
  const double supply = simulated.Ecu().dSupplyPress.Load();
  if (simulated.program.session->main_form.txtSupply.Text() != FormatNumber(supply, "##0.0"))
    state.SkipWithError("the panel does not follow");
}
BENCHMARK(LiveDataPassWithAllValuesChanged)->Unit(benchmark::kMicrosecond);

void LiveDataPassWithNothingChanged(benchmark::State& state) {
  HeadlessProgram headless;
  for (auto _ : state) {
    headless.simulated.program.session->main_form.UpdateLiveData();
    headless.desktop.Flush();
  }
}
BENCHMARK(LiveDataPassWithNothingChanged)->Unit(benchmark::kMicrosecond);

void Translate(benchmark::State& state, int language, const std::string& text, bool has_row) {
  HeadlessProgram headless;
  Dictionary& dictionary = headless.simulated.program.support->dictionary;
  dictionary.SetLanguage(language);
  if ((dictionary.Translate(text) != text) != has_row) state.SkipWithError("not that text's row");
  for (auto _ : state) benchmark::DoNotOptimize(dictionary.Translate(text));
}
BENCHMARK_CAPTURE(Translate, native, kNative, "Could not locate the Norvick Main executable.",
                  false);
BENCHMARK_CAPTURE(Translate, french, kFrench, "Could not locate the Norvick Main executable.",
                  true);
BENCHMARK_CAPTURE(Translate, french_miss, kFrench, "A text that has no row in the dictionary.",
                  false);

void ChangeOfLanguage(benchmark::State& state) {
  HeadlessProgram headless;
  Program& program = headless.simulated.program;
  int language = kNative;
  for (auto _ : state) {
    language = language == kFrench ? kSpanish : kFrench;
    program.support->dictionary.SetLanguage(language);
    program.support->dictionary.TranslateForm(program.session->main_form);
    headless.desktop.Flush();
  }
}
BENCHMARK(ChangeOfLanguage)->Unit(benchmark::kMicrosecond);

void FillFaultList(benchmark::State& state) {
  HeadlessProgram headless;
  frmFaults& list = headless.simulated.program.faults->fault_list;
  headless.simulated.SetFaults(static_cast<std::size_t>(state.range(0)));
  list.Show();
  for (auto _ : state) {
    list.cmdUpdate.UserClick();
    headless.desktop.Flush();
  }
  if (list.grdFaults.RowCount() != state.range(0)) state.SkipWithError("rows are missing");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(FillFaultList)->Arg(20)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
