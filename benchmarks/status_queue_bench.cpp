// The road of the link's statuses: written into the pipe, drained on the user-interface thread.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdint>

#include "adapters/posix/posix_message_hook.h"

namespace lorimet::benchmarks {
namespace {

class CountingProcedure : public WindowProcedure {
 public:
  std::intptr_t OnMessage(std::uintptr_t, std::uint32_t, std::uintptr_t,
                          std::intptr_t lparam) override {
    sum += lparam;
    return 0;
  }
  std::int64_t sum = 0;
};

// range(0): how many statuses wait when the queue is drained.
void StatusQueue(benchmark::State& state) {
  PosixMessageHook hook;
  hook.RegisterMessage("NorvickABSError");
  CountingProcedure procedure;
  hook.SetProcedure(hook.MainWindow(), &procedure);
  const int window = static_cast<int>(hook.MainWindow());
  const std::int32_t status = -1;
  for (auto _ : state) {
    for (std::int64_t i = 0; i < state.range(0); ++i)
      if (write(window, &status, sizeof status) != sizeof status)
        state.SkipWithError("the queue is full");
    hook.Drain();
  }
  if (procedure.sum != -state.iterations() * state.range(0))
    state.SkipWithError("statuses were lost");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(StatusQueue)->Arg(1)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
