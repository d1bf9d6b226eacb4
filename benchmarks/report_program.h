// A program with a report to write, and a folder on the disk for it.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

#include "autotests/common/scratch_folder.h"
#include "benchmarks/simulated_program.h"
#include "reports/reports_part.h"

namespace lorimet::benchmarks {

struct ReportProgram {
  explicit ReportProgram(std::size_t faults) {
    headless.simulated.SetFaults(faults);
    headless.simulated.process.folder = folder.Path();
  }
  // What the report is made of, with the files and the printer that are measured.
  ReportParts With(TextFiles& files, PagePrinter& printer) {
    const ReportParts& all = headless.simulated.program.reports->report;
    return {all.desktop,     all.clock,        all.process,        files,       printer,
            all.dictionary,  all.main_form,    all.message_center, all.records, all.faults,
            all.fault_table, all.test_results, all.strTrailerVIN};
  }
  // Each report has told where it is, and nothing else.
  void Check(benchmark::State& state) {
    for (const MessageBox& box : headless.desktop.TakeBoxes())
      if (box.icon != BoxIcon::kInformation) state.SkipWithError("no report");
    if (std::filesystem::is_empty(folder.Path())) state.SkipWithError("no file");
  }

  HeadlessProgram headless;
  ScratchFolder folder;
};

}  // namespace lorimet::benchmarks
