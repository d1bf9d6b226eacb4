// The transfers of the ECU's memory in virtual time, through the program's own screens.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "autotests/common/scratch_folder.h"
#include "benchmarks/simulated_program.h"
#include "reports/reports_part.h"

namespace lorimet::benchmarks {
namespace {

// The program in a folder of its own, with the statuses of the trailer on their way to it.
struct TransferProgram {
  TransferProgram() {
    headless.simulated.process.folder = folder.Path();
    headless.desktop.on_do_events = [this] { headless.simulated.hook.Deliver(); };
  }
  // Lets time pass until the screen says so; the seconds that it took.
  double RunUntil(const TextBox& status, const char* end) {
    const std::uint64_t begin = headless.clock.Milliseconds();
    while (!status.Text().starts_with(end) && headless.clock.Milliseconds() - begin < 600'000)
      headless.desktop.Run(1000);
    return static_cast<double>(headless.clock.Milliseconds() - begin) / 1000;
  }

  HeadlessProgram headless;
  ScratchFolder folder;
};

void EepromUpload(benchmark::State& state) {
  TransferProgram transfer;
  frmSaveEEPROM& screen = transfer.headless.simulated.program.reports->save_eeprom;
  double seconds = 0;
  for (auto _ : state) {
    transfer.headless.desktop.AnswerFileDialog(transfer.folder / "EEPROM.txt");
    screen.Load();
    seconds = transfer.RunUntil(screen.txtStatus, "EEPROM Data saved in ");
    screen.cmdClose.UserClick();
  }
  if (!std::filesystem::exists(transfer.folder / "EEPROM.txt")) state.SkipWithError("no file");
  state.counters["trailer_seconds"] = seconds;
}
BENCHMARK(EepromUpload)->Unit(benchmark::kMillisecond);

void RecorderExport(benchmark::State& state) {
  TransferProgram transfer;
  frmSaveODR& screen = transfer.headless.simulated.program.reports->save_odr;
  double seconds = 0;
  for (auto _ : state) {
    screen.Load();
    seconds = transfer.RunUntil(screen.txtStatus, "ODR Data saved in ");
    screen.cmdClose.UserClick();
  }
  if (std::filesystem::is_empty(transfer.folder.Path())) state.SkipWithError("no file");
  state.counters["trailer_seconds"] = seconds;
}
BENCHMARK(RecorderExport)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lorimet::benchmarks
