// The same as the panel's measurements with real windows: what their drawing costs.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <map>
#include <string>

#include "adapters/qt/qt_desktop.h"
#include "adapters/qt/qt_translations.h"
#include "benchmarks/qt/application.h"
#include "benchmarks/simulated_program.h"
#include "faults/faults_part.h"
#include "monitor/monitor_part.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::benchmarks {
namespace {

class PaintCounter : public QObject {
 public:
  PaintCounter() { Application().installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
  int paints = 0;
};

struct QtProgram {
  // Posted events, layouts and repaints, without the rest that an idle loop takes.
  static void Draw() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // The paints that an action causes.
  template <typename Action>
  static int Paints(const Action& action) {
    PaintCounter counter;
    action();
    return counter.paints;
  }

  explicit QtProgram(const std::map<std::string, ViewFactory>& factories = ViewFactories())
      : desktop(factories) {}

  QApplication& application = Application();
  VirtualClock clock;
  QtDesktop desktop;
  QtTranslations translations;
  SimulatedProgram simulated{desktop, clock, translations};
};

// Aim: below 1 millisecond. `change` gives the record other values; `fields` is how many text boxes
// show them.
template <typename Change>
void LiveDataPass(benchmark::State& state, const Change& change, int fields) {
  QtProgram qt;
  SimulatedProgram& simulated = qt.simulated;
  simulated.program.session->main_form.tmrABS.SetEnabled(false);
  const auto pass = [&] {
    change(simulated);
    qt.desktop.RunEvent([&] { simulated.program.session->main_form.UpdateLiveData(); });
    QtProgram::Draw();
  };
  pass();
  if (QtProgram::Paints(pass) < fields) state.SkipWithError("the fields are not painted");
  for (auto _ : state) pass();
}

void LiveDataPassWithAllValuesRepainted(benchmark::State& state) {
  LiveDataPass(
      state, [](SimulatedProgram& simulated) { simulated.ChangeLiveValues(); }, 13);
}
BENCHMARK(LiveDataPassWithAllValuesRepainted)->Unit(benchmark::kMicrosecond);

void LiveDataPassWithThePressuresRepainted(benchmark::State& state) {
  const auto change = [](SimulatedProgram& simulated) {
    const double value = ++simulated.changes % 100;
    ECUData& ecu = simulated.Ecu();
    for (EcuDouble* field :
         {&ecu.dSupplyPress, &ecu.dServiceBrake, &ecu.dBrake1Press, &ecu.dBrake2Press})
      field->Store(value);
  };
  LiveDataPass(state, change, 4);
}
BENCHMARK(LiveDataPassWithThePressuresRepainted)->Unit(benchmark::kMicrosecond);

void MainWindowRepaintedAsAWhole(benchmark::State& state) {
  QtProgram qt;
  for (auto _ : state) qt.desktop.Repaint();
}
BENCHMARK(MainWindowRepaintedAsAWhole)->Unit(benchmark::kMicrosecond);

void FillFaultListRepainted(benchmark::State& state) {
  QtProgram qt;
  frmFaults& list = qt.simulated.program.faults->fault_list;
  qt.simulated.SetFaults(static_cast<std::size_t>(state.range(0)));
  list.Show();
  const auto pass = [&] {
    qt.desktop.RunEvent([&] { list.cmdUpdate.UserClick(); });
    QtProgram::Draw();
  };
  pass();
  if (QtProgram::Paints(pass) == 0) state.SkipWithError("the list is not painted");
  for (auto _ : state) pass();
  if (list.grdFaults.RowCount() != state.range(0)) state.SkipWithError("rows are missing");
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(FillFaultListRepainted)->Arg(20)->Arg(1000)->Unit(benchmark::kMicrosecond);

void ChangeOfLanguageRepainted(benchmark::State& state) {
  QtProgram qt;
  Program& program = qt.simulated.program;
  int language = kNative;
  for (auto _ : state) {
    language = language == kFrench ? kSpanish : kFrench;
    qt.desktop.RunEvent([&] {
      program.support->dictionary.SetLanguage(language);
      program.support->dictionary.TranslateForm(program.session->main_form);
    });
    QtProgram::Draw();
  }
}
BENCHMARK(ChangeOfLanguageRepainted)->Unit(benchmark::kMicrosecond);

// By the compiled translations that the program carries.
void TranslateCompiled(benchmark::State& state, int language, const std::string& text,
                       bool has_row) {
  QtProgram qt;
  Dictionary& dictionary = qt.simulated.program.support->dictionary;
  dictionary.SetLanguage(language);
  if ((dictionary.Translate(text) != text) != has_row) state.SkipWithError("not that text's row");
  for (auto _ : state) benchmark::DoNotOptimize(dictionary.Translate(text));
}
BENCHMARK_CAPTURE(TranslateCompiled, native, kNative,
                  "Could not locate the Norvick Main executable.", false);
BENCHMARK_CAPTURE(TranslateCompiled, french, kFrench,
                  "Could not locate the Norvick Main executable.", true);
BENCHMARK_CAPTURE(TranslateCompiled, french_miss, kFrench,
                  "A text that has no row in the dictionary.", false);

// The window's box is as high as so many lines.
std::map<std::string, ViewFactory> WithLinesInTheMonitor(int lines) {
  constexpr int kLine = 16;  // pixels
  std::map<std::string, ViewFactory> factories = ViewFactories();
  ViewFactory& factory = factories.at("frmBusMonitor");
  factory = [build = factory, lines](QWidget* parent) {
    QWidget* window = build(parent);
    window->setMinimumHeight(lines * kLine + 200);
    window->findChild<QWidget*>(QStringLiteral("txtMonitor"))->setFixedHeight(lines * kLine);
    return window;
  };
  return factories;
}

// A bus at its physical limit, seen by half seconds. The trailer's own time is not counted.
void MonitorTickAtFullLoadRepainted(benchmark::State& state) {
  const int lines = static_cast<int>(state.range(0));
  QtProgram qt(WithLinesInTheMonitor(lines));
  frmBusMonitor& screen = qt.simulated.program.monitor->screen;
  simulator::Link& link = qt.simulated.link.link;
  link.Command("bus_load full");
  screen.Show();
  screen.tmrUpdateMonitor.SetInterval(1'000'000);
  const auto pass = [&] {
    screen.tmrUpdateMonitor.Tick();
    QtProgram::Draw();
  };
  for (int i = 0; i < 4; ++i) {
    link.Advance(0.5);
    pass();
  }
  const auto shown = std::ranges::count(screen.txtMonitor.Text(), '\n');
  if (shown < lines || shown > lines * 11 / 10) state.SkipWithError("not as many lines");
  link.Advance(0.5);
  if (QtProgram::Paints(pass) == 0) state.SkipWithError("the monitor is not painted");
  for (auto _ : state) {
    state.PauseTiming();
    link.Advance(0.5);
    state.ResumeTiming();
    pass();
  }
  state.counters["share_of_a_core"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * 0.5,
                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(MonitorTickAtFullLoadRepainted)->Arg(40)->Arg(200)->Unit(benchmark::kMicrosecond);

// The most that one tick takes.
void MonitorTickOf101MessagesRepainted(benchmark::State& state) {
  QtProgram qt(WithLinesInTheMonitor(static_cast<int>(state.range(0))));
  frmBusMonitor& screen = qt.simulated.program.monitor->screen;
  qt.simulated.link.link.Command("bus flood");
  screen.Show();
  screen.tmrUpdateMonitor.SetInterval(1'000'000);
  for (auto _ : state) {
    screen.tmrUpdateMonitor.Tick();
    QtProgram::Draw();
  }
  state.SetItemsProcessed(state.iterations() * 101);
}
BENCHMARK(MonitorTickOf101MessagesRepainted)->Arg(40)->Arg(200)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lorimet::benchmarks
