// The transfers of the ECU's memory in virtual time, through the program's own screens.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <string>

#include "benchmarks/simulated_program.h"
#include "reports/reports_part.h"

namespace lorimet::benchmarks {
namespace {

// The program in a folder of its own, with the statuses of the trailer on their way to it.
struct TransferProgram {
  TransferProgram() {
    std::string name = (std::filesystem::temp_directory_path() / "lorimet-bench-XXXXXX").string();
    folder = mkdtemp(name.data());
    SimulatedProgram& simulated = headless.simulated;
    simulated.process.folder = folder;
    simulated.link.link.SetStatusSink(
        [this](std::int32_t status) { headless.simulated.hook.Post(status); });
    headless.desktop.on_do_events = [this] { headless.simulated.hook.Deliver(); };
  }
  ~TransferProgram() {
    std::error_code error;
    std::filesystem::remove_all(folder, error);
  }
  // Lets time pass until the screen says so; the seconds that it took.
  double RunUntil(const TextBox& status, const char* end) {
    const std::uint64_t begin = headless.clock.Milliseconds();
    while (!status.Text().starts_with(end) && headless.clock.Milliseconds() - begin < 600'000)
      headless.desktop.Run(1000);
    return static_cast<double>(headless.clock.Milliseconds() - begin) / 1000;
  }

  HeadlessProgram headless;
  std::string folder;
};

void EepromUpload(benchmark::State& state) {
  TransferProgram transfer;
  frmSaveEEPROM& screen = transfer.headless.simulated.program.reports->save_eeprom;
  double seconds = 0;
  for (auto _ : state) {
    transfer.headless.desktop.AnswerFileDialog(transfer.folder + "/EEPROM.txt");
    screen.Load();
    seconds = transfer.RunUntil(screen.txtStatus, "EEPROM Data saved in ");
    screen.cmdClose.UserClick();
  }
  if (!std::filesystem::exists(transfer.folder + "/EEPROM.txt")) state.SkipWithError("no file");
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
  if (std::filesystem::is_empty(transfer.folder)) state.SkipWithError("no file");
  state.counters["trailer_seconds"] = seconds;
}
BENCHMARK(RecorderExport)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lorimet::benchmarks
