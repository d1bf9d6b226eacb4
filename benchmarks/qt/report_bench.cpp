// What the printed report costs as a PDF file.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>

#include "adapters/qt/qt_page_printer.h"
#include "benchmarks/qt/application.h"
#include "benchmarks/report_program.h"

namespace lorimet::benchmarks {
namespace {

// Pages for a machine without a printer, whatever this one has.
class PdfPrinter : public QtPagePrinter {
 public:
  bool HasPrinter() override { return false; }
};

void ReportPdf(benchmark::State& state, std::int16_t kind) {
  Application();
  ReportProgram program(static_cast<std::size_t>(state.range(0)));
  PdfPrinter printer;
  const ReportParts parts = program.With(program.headless.simulated.text_files, printer);
  for (auto _ : state) PrintEOLReport(parts, kind);
  program.Check(state);
}
BENCHMARK_CAPTURE(ReportPdf, of_the_tests, -1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReportPdf, of_faults, 0)->Arg(0)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lorimet::benchmarks
