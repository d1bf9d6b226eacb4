// What the printed report costs as a PDF file.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "adapters/qt/qt_page_printer.h"
#include "benchmarks/qt/application.h"
#include "benchmarks/simulated_program.h"
#include "reports/reports_part.h"

namespace lorimet::benchmarks {
namespace {

// Pages for a machine without a printer, whatever this one has.
class PdfPrinter : public QtPagePrinter {
 public:
  bool HasPrinter() override { return false; }
};

void ReportPdf(benchmark::State& state, std::int16_t kind) {
  Application();
  HeadlessProgram headless;
  SimulatedProgram& simulated = headless.simulated;
  simulated.SetFaults(static_cast<std::size_t>(state.range(0)));
  std::string folder = std::filesystem::temp_directory_path() / "lorimet_report_XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::abort();
  HeadlessProcess process;
  process.folder = folder;
  PdfPrinter printer;
  const ReportParts& all = simulated.program.reports->report;
  const ReportParts parts{all.desktop,      all.clock,      process,         all.text_files,
                          printer,          all.dictionary, all.main_form,   all.message_center,
                          all.records,      all.faults,     all.fault_table, all.test_results,
                          all.strTrailerVIN};
  for (auto _ : state) PrintEOLReport(parts, kind);
  for (const MessageBox& box : headless.desktop.TakeBoxes())
    if (box.icon != BoxIcon::kInformation) state.SkipWithError("not printed");
  if (std::filesystem::is_empty(folder)) state.SkipWithError("no file");
  std::filesystem::remove_all(folder);
}
BENCHMARK_CAPTURE(ReportPdf, of_the_tests, -1)->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReportPdf, of_faults, 0)->Arg(0)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lorimet::benchmarks
