// The bench beside the program: the hands and eyes of the person at the simulated trailer.
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <cstdio>
#include <filesystem>

#include "adapters/qt/qt_style.h"
#include "simulator/bench/bench_window.h"
#include "simulator/bench/single_bench.h"

namespace {

using lorimet::bench::BenchWindow;
using lorimet::bench::ReadyTrailers;
using lorimet::bench::SingleBench;

constexpr char kUsage[] =
    "lorimet_bench_window [--language en|fr|es] [--control FILE]\n"
    "  The window of the simulated trailer. FILE is what LORIMET32_CONTROL names for the program;\n"
    "  without it, and without that variable, the bench starts the program with a file of its "
    "own.\n";

struct Options {
  QString control;
  QString language = QLocale::system().name().left(2);
  bool usage = false;
};

// The launcher's argument of a program that ends, NO, is one among others that are passed over.
Options ReadOptions(const QStringList& words) {
  Options options;
  options.control = qEnvironmentVariable("LORIMET32_CONTROL");
  for (qsizetype i = 1; i < words.size(); ++i) {
    const bool more = i + 1 < words.size();
    if (words[i] == QLatin1String("--control") && more)
      options.control = words[++i];
    else if (words[i] == QLatin1String("--language") && more)
      options.language = words[++i];
    else if (words[i].startsWith(QLatin1Char('-')))
      options.usage = true;
  }
  return options;
}

QString OwnControlFile() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) folder = QDir::tempPath();
  folder += QStringLiteral("/norvick-lorimet");
  QDir().mkpath(folder);
  return folder + QStringLiteral("/trailer");
}

std::vector<std::filesystem::path> ScenarioFolders() {
  const std::filesystem::path folder = QApplication::applicationDirPath().toStdString();
  return {folder / "scenarios", folder / "../share/norvick-lorimet/scenarios"};
}

// Nothing where no program lies beside the bench.
std::function<void()> ProgramStarter(const QString& control) {
  const QString program = QApplication::applicationDirPath() + QStringLiteral("/lorimet");
  if (!QFileInfo(program).isExecutable()) return nullptr;
  return [program, control] {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LORIMET32_CONTROL"), control);
    QProcess process;
    process.setProgram(program);
    process.setArguments({QStringLiteral("-qwindowgeometry"), QStringLiteral("+0+0")});
    process.setProcessEnvironment(environment);
    process.startDetached();
  };
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Norvick Lorimet Bench"));
  QApplication::setDesktopFileName(QStringLiteral("norvick-lorimet-bench"));
  Options options = ReadOptions(QApplication::arguments());
  if (options.usage) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  if (options.control.isEmpty()) options.control = OwnControlFile();
  options.control = QFileInfo(options.control).absoluteFilePath();
  SingleBench single(options.control + QStringLiteral(".bench"));
  if (single.CallTheOther()) return 0;
  lorimet::ApplyStyle(application);
  BenchWindow window(options.control + QStringLiteral(".socket"), ReadyTrailers(ScenarioFolders()),
                     options.language, ProgramStarter(options.control));
  single.Stand([&window] { window.ComeForward(); });
  window.StandBesideTheProgram();
  window.show();
  return QApplication::exec();
}
