// The parameters: their file, the wizard's pages, and the writing to the ECU.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "benchmarks/simulated_program.h"
#include "parameters/parameter_reading.h"
#include "parameters/parameter_writing.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::benchmarks {
namespace {

// Every section, 200 bytes each.
void FillImage(ParameterImage& image) {
  for (ParmBlock* block : {&image.EOL1, &image.EOL2, &image.EOL3, &image.EOL4, &image.EOL5,
                           &image.EOL6, &image.EOL7, &image.EOL9}) {
    block->bNumBytes = ParmBlock::kSize;
    for (int i = 1; i < ParmBlock::kSize; ++i) (*block)(i) = static_cast<std::uint8_t>(i % 100 + 1);
  }
  for (int i = 4; i < 62; ++i) image.EOL7(i) = 'X';
}

class ScratchFile {
 public:
  // Begins with `kilobytes` of sections that the program does not know.
  explicit ScratchFile(std::int64_t kilobytes)
      : path_(std::filesystem::temp_directory_path() /
              ("lorimet-bench-" + std::to_string(getpid()) + ".ecu")) {
    std::ofstream file(path_, std::ios::binary);
    for (int section = 0; file.tellp() < kilobytes * 1024; ++section) {
      file << "[OTHER_" << section << "]\r\n";
      for (int key = 0; key < 100; ++key) file << "P_" << 1000 + key << "=" << key << "\r\n";
    }
  }
  ~ScratchFile() { std::filesystem::remove(path_); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  std::string Path() const { return path_.string(); }
  std::int64_t Size() const { return static_cast<std::int64_t>(std::filesystem::file_size(path_)); }

 private:
  std::filesystem::path path_;
};

// Reads or writes by an adapter that has not seen the file yet; false when it fails.
bool Transfer(HeadlessProgram& headless, const std::string& path, bool writes) {
  SimulatedProgram& simulated = headless.simulated;
  PosixProfileFile profile_file;
  ParameterFile file(profile_file, headless.desktop, simulated.process, headless.clock,
                     simulated.Ecu(), simulated.program.parameters->image,
                     simulated.program.parameters->found);
  headless.desktop.AnswerFileDialog(path);
  const bool done = writes ? file.WriteParmsToFile() : file.ReadParmsFromFile();
  headless.desktop.TakeFileDialogs();
  return done;
}

// range(0): kilobytes of other sections in the file.
void ParameterFile(benchmark::State& state, bool writes) {
  HeadlessProgram headless;
  FillImage(headless.simulated.program.parameters->image);
  const ScratchFile file(state.range(0));
  if (!Transfer(headless, file.Path(), true)) state.SkipWithError("cannot write");
  for (auto _ : state)
    if (!Transfer(headless, file.Path(), writes)) state.SkipWithError("cannot read or write");
  state.counters["file_bytes"] = static_cast<double>(file.Size());
  state.SetComplexityN(file.Size());
}
BENCHMARK_CAPTURE(ParameterFile, read, false)
    ->Arg(0)
    ->Arg(64)
    ->Arg(256)
    ->Arg(1024)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ParameterFile, write, true)
    ->Arg(0)
    ->Arg(64)
    ->Arg(256)
    ->Arg(1024)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

void ReadImage(HeadlessProgram& headless) {
  SimulatedProgram& simulated = headless.simulated;
  Program& program = simulated.program;
  ReadParmsFromECU({simulated.link, headless.desktop, program.support->dictionary, simulated.Ecu(),
                    program.parameters->image, program.parameters->found,
                    program.session->main_form, program.session->main_form.txtError});
}

// Each page decodes the image when it loads and encodes it when it is left; the last one's encoding
// comes with the saving to a file, which is called off.
void WizardDecodesAndEncodesAllPages(benchmark::State& state) {
  HeadlessProgram headless;
  HeadlessDesktop& desktop = headless.desktop;
  Program& program = headless.simulated.program;
  ReadImage(headless);
  const std::size_t before = desktop.ModalForms().size();
  for (auto _ : state) {
    desktop.OnModal("frmOVGParm1",
                    [&](Form&) { program.parameters->system_page.cmdNext.UserClick(); });
    desktop.OnModal("frmGIOSelection",
                    [&](Form&) { program.parameters->gio_page.cmdNext.UserClick(); });
    desktop.OnModal("frmOVGParm2",
                    [&](Form&) { program.parameters->load_sensing_page.cmdNext.UserClick(); });
    desktop.OnModal("frmOVGParm3", [&](Form&) {
      desktop.AnswerFileDialog(std::nullopt);
      program.parameters->overturn_guard_page.cmdSaveToFile.UserClick();
      program.parameters->overturn_guard_page.cmdClose.UserClick();
    });
    program.parameters->system_page.Show(Modality::kModal, &program.session->main_form);
    desktop.TakeFileDialogs();
  }
  if (desktop.ModalForms().size() - before != 4 * static_cast<std::size_t>(state.iterations()))
    state.SkipWithError("the walk did not pass all pages");
}
BENCHMARK(WizardDecodesAndEncodesAllPages)->Unit(benchmark::kMicrosecond);

// On the simulated ECU; `virtual_s` is what a user waits for one writing.
void WriteToEcu(benchmark::State& state) {
  HeadlessProgram headless;
  SimulatedProgram& simulated = headless.simulated;
  Program& program = simulated.program;
  ReadImage(headless);
  frmOVGParm3& page = program.parameters->overturn_guard_page;
  page.Load();
  const std::uint64_t start = headless.clock.Milliseconds();
  for (auto _ : state) {
    WriteParmsToECU({simulated.link, headless.desktop, program.support->dictionary, headless.clock,
                     program.faults->faults, program.parameters->image, program.parameters->found,
                     page, page.txtStatus});
    if (headless.desktop.TakeBoxes().size() != 1) state.SkipWithError("the ECU complains");
    headless.clock.sleeps.clear();
  }
  state.counters["virtual_s"] =
      benchmark::Counter(static_cast<double>(headless.clock.Milliseconds() - start) / 1000,
                         benchmark::Counter::kAvgIterations);
}
BENCHMARK(WriteToEcu)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
