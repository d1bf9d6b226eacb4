// The tour: the program goes through its screens by itself on the simulated trailer, with a
// scripted operator, in the trailer's time. It leaves a folder with pictures, the files that the
// program wrote, a transcript and a page that shows them, and fails when a step does not end as it
// should.
//
//     lorimet_tour FOLDER [en|fr|es] [--slow] [--trailer COMMAND]...
//
// LORIMET32 names the simulated trailer's library. Settings and files lie in the folder, so the
// user's own are left alone. --slow keeps to the speed of a hand, for a person who watches.
// --trailer does something at the trailer before the program starts, such as "adapter off", which
// a tour does not survive.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "adapters/qt/qt_style.h"
#include "desktop_program.h"
#include "tour/album.h"
#include "tour/chapters.h"
#include "tour/driven_time.h"
#include "tour/operator_screen.h"
#include "tour/script.h"
#include "tour/simulated_trailer.h"

namespace lorimet {
namespace {

constexpr double kSlow = 4;  // times faster than the clock
constexpr char kControl[] = "trailer.control";

// Its folder is the tour's.
class TourProcess : public PosixProcess {
 public:
  explicit TourProcess(std::string folder) : folder_(std::move(folder)) {}
  std::string ProgramFolder() override { return folder_; }

 private:
  std::string folder_;
};

// Whatever printers the machine has, the pages go to a file.
class FilePrinter : public QtPagePrinter {
 public:
  bool HasPrinter() override { return false; }
};

struct Arguments {
  QString folder;
  QString language = "en";
  bool slow = false;
  std::vector<std::string> commands;  // at the trailer
};

// Nothing when they are not to be understood.
std::optional<Arguments> ArgumentsOf(const QStringList& words) {
  Arguments arguments;
  for (qsizetype i = 0; i < words.size(); ++i) {
    const QString& word = words[i];
    if (word == "--slow")
      arguments.slow = true;
    else if (word == "--trailer" && i + 1 < words.size())
      arguments.commands.push_back(words[++i].toStdString());
    else if (arguments.folder.isEmpty() && !word.startsWith('-'))
      arguments.folder = QDir(word).absolutePath();
    else if (word == "en" || word == "fr" || word == "es")
      arguments.language = word;
    else
      return {};
  }
  if (arguments.folder.isEmpty()) return {};
  return arguments;
}

// As the settings store it.
int LanguageIndex(const QString& code) {
  if (code == "fr") return kFrench;
  if (code == "es") return kSpanish;
  return kNative;
}

// The screen of the platform without a display has 800 pixels a side, too few for the pages of the
// wizard. It gets those of a laptop.
bool MakeRoom() {
  if (qgetenv("QT_QPA_PLATFORM") != "offscreen") return true;
  QFile screen("screen.json");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screen.json");
  return screen.open(QIODevice::WriteOnly) &&
         screen.write(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": 1366,)"
                      R"( "height": 768, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})") > 0;
}

// The folder becomes the working directory.
bool Prepare(const Arguments& arguments) {
  const QString& folder = arguments.folder;
  const QString settings = folder + "/config/norvick-lorimet";
  if (!QDir().mkpath(settings) || !QDir().mkpath(folder + "/files")) return false;
  QFile registry(settings + "/registry.reg");
  if (!registry.open(QIODevice::WriteOnly)) return false;
  registry.write(QString("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\%1]\r\n\"Language\"=dword:%2\r\n")
                     .arg(kProductKey)
                     .arg(LanguageIndex(arguments.language), 8, 16, QChar('0'))
                     .toUtf8());
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  qputenv("XDG_CONFIG_HOME", (folder + "/config").toUtf8());
  qputenv("XDG_RUNTIME_DIR", folder.toUtf8());  // the tour may run beside the program itself
  qputenv("LORIMET32_STATE", "none");
  qputenv("LORIMET32_CONTROL", kControl);
  qunsetenv("LORIMET32_SCENARIO");
  qputenv("QT_NO_GLIB", "1");  // the toolkit's own event loop tells when it has nothing to do
  return QDir::setCurrent(folder) && MakeRoom();
}

void Plan(Script& script) {
  script.AtTrailer("log on");
  ShowConnection(script);
  ShowFaults(script);
  ShowVehicleTests(script);
  // Before the parameters: the vehicle id that their screens accept names all later reports.
  ShowSignOffs(script);
  ShowRecorder(script);
  ShowMonitor(script);
  ShowParameters(script);
  ShowHelp(script);
  script.AtTrailer("report");
  ShowTheEnd(script);
}

[[noreturn]] void FailEarly(const std::string& why) {
  std::fprintf(stderr, "    %s\n", why.c_str());
  std::fflush(nullptr);
  std::_Exit(1);
}

int RunTour(const Arguments& arguments) {
  std::function<void(const std::string&)> fail = FailEarly;
  SimulatedTrailer trailer([&fail](const std::string& why) { fail(why); });
  trailer.Load(PosixLibraryLoader().LinkLibraryPath(), std::string(kControl) + ".socket");
  for (const std::string& command : arguments.commands) trailer.Do(command);
  DrivenTime time([&trailer](std::int32_t milliseconds) { trailer.Advance(milliseconds); });
  if (arguments.slow) time.fastest = kSlow;
  const QString files = arguments.folder + "/files";
  TourProcess process(files.toStdString());
  FilePrinter printer;
  // Never deleted, as in the program itself.
  static auto* const desktop_program = new DesktopProgram({&time, &process, &printer});
  time.Drive(desktop_program->desktop);

  Album album(arguments.folder, arguments.language);
  OperatorScreen screen(desktop_program->desktop);
  simulator::ScriptedOperator hand(screen, trailer);
  Script script(desktop_program->desktop, time, trailer, hand, album, files,
                [](const std::string& text) {
                  return desktop_program->program.support->dictionary.Translate(text);
                });
  fail = [&script](const std::string& why) { script.Fail(QString::fromStdString(why)); };
  screen.on_press = [&](const QString& what) {
    album.Note(script.Seconds(), QStringLiteral("the operator presses ") + what);
  };
  time.on_idle = [&script] { return script.Look(); };
  time.on_passed = [&script] { script.CheckPatience(); };
  Plan(script);
  const int status = desktop_program->Run();
  if (status != 0 || !script.Done()) fail("The program ended before the tour did");
  album.Tell(script.Seconds(), "The link is closed, and the program has ended");
  if (!QFile::rename(QString(kControl) + ".report", "requests.txt"))
    fail("The simulated trailer has not told what was asked of it");
  album.Show("requests.txt", "what the program asked of the ECU, how often and in which order");
  if (!album.Close("Every step ended as it should.")) fail("The page cannot be written");
  return status;
}

}  // namespace
}  // namespace lorimet

int main(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
  const auto arguments = lorimet::ArgumentsOf(words);
  if (!arguments) {
    std::fprintf(stderr, "lorimet_tour FOLDER [en|fr|es] [--slow] [--trailer COMMAND]...\n");
    return 2;
  }
  if (!lorimet::Prepare(*arguments)) {
    std::fprintf(stderr, "The folder %s cannot be written.\n", qPrintable(arguments->folder));
    return 1;
  }
  std::signal(SIGPIPE, SIG_IGN);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  lorimet::ApplyStyle(application);
  return lorimet::RunTour(*arguments);
}
