// The tour: the program goes through its screens by itself on the simulated trailer and leaves a
// picture of each, and the files that it wrote, in a folder. It fails at a screen in an error
// state.
//
//     lorimet_tour FOLDER [en|fr|es]
//
// LORIMET32 names the link library. The registry, the trailer's state and the commands of its
// operator lie in the folder, so the user's own are left alone.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableWidget>
#include <QTimer>
#include <cstdio>
#include <deque>
#include <functional>

#include "adapters/qt/qt_style.h"
#include "desktop_program.h"
#include "tour_check.h"

namespace {

constexpr int kLookInterval = 50;  // ms between two looks at what the tour waits for
constexpr int kPatience = 60'000;  // ms until a step that cannot go on fails the tour
constexpr int kSettle = 400;       // ms for a screen to be painted before its picture is taken

QWidget* Window(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == name && window->isVisible()) return window;
  return nullptr;
}

template <typename T>
T* Find(const QString& window_name, const QString& name) {
  QWidget* window = Window(window_name);
  return window == nullptr ? nullptr : window->findChild<T*>(name);
}

enum class Content { kSome, kPerhapsNone };

// One look at the program, and what is done once it shows what was waited for.
struct Step {
  QString what;
  std::function<bool()> ready;
  std::function<void()> act;
};

class Tour {
 public:
  using Translator = std::function<std::string(const std::string&)>;

  Tour(const lorimet::QtDesktop& desktop, QString folder, QString control, Translator translate)
      : desktop_(desktop),
        folder_(std::move(folder)),
        control_(std::move(control)),
        translate_(std::move(translate)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  }

  void Begin() {
    Plan();
    waited_.start();
    timer_.start(kLookInterval);
  }

 private:
  // --- The words of the plan.
  void When(const QString& what, std::function<bool()> ready, std::function<void()> act) {
    steps_.push_back({what, std::move(ready), std::move(act)});
  }
  void WhenShown(const QString& window, std::function<void()> act) {
    When(
        window, [window] { return Window(window) != nullptr; }, std::move(act));
  }
  // Takes a picture of a window once it has settled.
  void Picture(const QString& window, const QString& name, Content content = Content::kSome) {
    WhenShown(window, [] {});
    Pause(kSettle);
    WhenShown(window, [this, window, name, content] { Save(window, name, content); });
  }
  void Save(const QString& window, const QString& name, Content content = Content::kSome) {
    const QString file = QString("%1-%2.png").arg(++pictures_, 2, 10, QChar('0')).arg(name);
    if (!Window(window)->grab().save(folder_ + "/" + file)) Fail(file + " cannot be written");
    std::printf("    %s\n", qPrintable(file));
    std::fflush(stdout);
    const QString wrong = lorimet::WrongWith(*Window(window), content == Content::kPerhapsNone);
    if (!wrong.isEmpty())
      Fail(QString("%1 shows %2 in an error state: %3").arg(file, window, wrong));
  }
  [[noreturn]] static void Fail(const QString& why) {
    std::fprintf(stderr, "    %s\n", qPrintable(why));
    std::fflush(nullptr);
    std::_Exit(1);
  }
  void Pause(int milliseconds) {
    auto since = std::make_shared<QElapsedTimer>();
    When(
        "a pause",
        [since, milliseconds] {
          if (!since->isValid()) since->start();
          return since->elapsed() >= milliseconds;
        },
        [] {});
  }
  void Trigger(const QString& action) {
    When(
        action,
        [action] {
          auto* found = Find<QAction>("frmZeltMain", action);
          return found != nullptr && found->isEnabled();
        },
        [action] { Find<QAction>("frmZeltMain", action)->trigger(); });
  }
  void Press(const QString& window, const QString& button) {
    When(
        window + "." + button,
        [window, button] {
          auto* found = Find<QAbstractButton>(window, button);
          return found != nullptr && found->isEnabled();
        },
        [window, button] { Find<QAbstractButton>(window, button)->click(); });
  }
  // Answers a message box with its first button; one that does not say `text` is an error.
  void PressBox(const std::string& text) {
    WhenShown("msgBox", [this, text] {
      auto* box = qobject_cast<QMessageBox*>(Window("msgBox"));
      const QString said = box->text().simplified();
      const QString plain = QString::fromStdString(text);
      const QString translated = QString::fromStdString(translate_(text));
      if (!said.contains(plain) && !said.contains(translated))
        Fail(QString("A box says \"%1\" in place of \"%2\"").arg(said, translated));
      box->buttons().constFirst()->click();
    });
  }
  void WhenGone(const QString& window) {
    When(
        "the end of " + window, [window] { return Window(window) == nullptr; }, [] {});
  }
  void Operator(const QString& command) {
    When(
        command, [] { return true; },
        [this, command] {
          QFile file(control_);
          if (!file.open(QIODevice::Append)) Fail(control_ + " cannot be written");
          file.write(command.toUtf8() + "\n");
        });
  }
  void Text(const QString& box, const std::function<bool(const QString&)>& fits) {
    When(
        box,
        [box, fits] {
          auto* found = Find<QLineEdit>("frmZeltMain", box);
          return found != nullptr && fits(found->text());
        },
        [] {});
  }

  // --- The plan.
  void Plan() {
    Text("txtOdom", [](const QString& text) { return text.contains(QChar('.')); });
    WhenShown("frmZeltMain", [] { Window("frmZeltMain")->resize(1000, 640); });
    Pause(2500);  // the lamp check ends, the pressure settles
    Picture("frmZeltMain", "main");
    LinkTrouble();
    FaultList();
    Parameters();
    HelpAndAbout();
    Trigger("tbrABS_exit");
    PressBox("Could not locate the Norvick Main executable.");  // no launcher to return to
  }

  void LinkTrouble() {
    Operator("cable out");
    Picture("frmErr", "link-lost");
    Press("frmErr", "cmdOK");
    Picture("frmZeltMain", "main-link-lost");
    Operator("cable in");
    Pause(2500);
  }

  void FaultList() {
    Operator("fault 5 7 active 3");
    Operator("fault 59 12 stored 1");
    Operator("fault 106 11 stored 0");
    Operator("fault 13 2 stored 4");
    Pause(1500);
    Picture("frmZeltMain", "main-faults");
    Trigger("tbrABS_faults");
    Picture("frmFaults", "faults");
    Operator("fault 5 7 gone");
    Press("frmFaults", "cmdClearAll");
    Picture("frmFaults", "faults-cleared", Content::kPerhapsNone);
    Press("frmFaults", "cmdExit");
    WhenGone("frmFaults");
  }

  void Parameters() {
    Trigger("mnuSystem_0");
    Picture("frmOVGParm1", "parameters-system");
    Press("frmOVGParm1", "cmdNext");
    PassFunctions();
    Picture("frmOVGParm2", "parameters-load-sensing");
    Press("frmOVGParm2", "cmdNext");
    Picture("frmOVGParm3", "parameters-overturn-guard");
    Press("frmOVGParm3", "cmdSaveToFile");
    WhenShown("dlgFile", [this] {
      auto* dialog = qobject_cast<QFileDialog*>(Window("dlgFile"));
      dialog->findChild<QLineEdit*>()->setText(folder_ + "/trailer.ecu");
      QMetaObject::invokeMethod(dialog, "accept");
    });
    Picture("msgBox", "parameters-saved-to-file");
    PressBox("Write to file complete.");
    WhenGone("frmOVGParm3");
    Trigger("mnuSystem_0");
    Press("frmOVGParm1", "cmdNext");
    PassFunctions();
    Press("frmOVGParm2", "cmdNext");
    Press("frmOVGParm3", "cmdSaveToECU");
    Picture("msgBox", "parameters-saved-to-ecu");
    PressBox("The Parameter Data has been saved.");
    WhenGone("frmOVGParm3");
  }

  // A system with a single modulator has no page of functions.
  void PassFunctions() {
    When(
        "the page behind the system page",
        [] { return Window("frmGIOSelection") != nullptr || Window("frmOVGParm2") != nullptr; },
        [] {});
    Pause(kSettle);
    When(
        "the page of functions", [] { return true; },
        [this] {
          if (Window("frmGIOSelection") == nullptr) return;
          Save("frmGIOSelection", "parameters-functions");
          Find<QAbstractButton>("frmGIOSelection", "cmdNext")->click();
        });
  }

  void HelpAndAbout() {
    Trigger("mnuHelp_0");
    Picture("frmHelp", "help-contents");
    Trigger("mnuHelp_1");
    When(
        "the help's search", [] { return Find<QLineEdit>("frmHelp", "txtHelpSearch") != nullptr; },
        [] {
          auto* search = Find<QLineEdit>("frmHelp", "txtHelpSearch");
          search->setText("ABS");
          emit search->returnPressed();
        });
    Picture("frmHelp", "help-search");
    WhenShown("frmHelp", [] { Window("frmHelp")->close(); });
    Trigger("mnuHelp_3");
    Picture("frmAbout", "about");
    Press("frmAbout", "cmdOK");
    WhenGone("frmAbout");
  }

  // What a step does may run an event loop of its own, in which the steps behind it go on; so it is
  // done from a fresh event and not from the timer's.
  void Look() {
    // What a hand does while the program waits for the ECU is gone, and this one's too.
    if (desktop_.Waiting()) {
      waited_.restart();
      return;
    }
    if (steps_.empty()) {
      timer_.stop();
      return;
    }
    if (waited_.elapsed() > kPatience)
      Fail(QString("The tour cannot go on: it waits for ") + steps_.front().what);
    if (!steps_.front().ready()) return;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    waited_.restart();
    QTimer::singleShot(0, &timer_, step.act);
  }

  const lorimet::QtDesktop& desktop_;
  QString folder_;
  QString control_;
  Translator translate_;
  QTimer timer_;
  QElapsedTimer waited_;
  std::deque<Step> steps_;
  int pictures_ = 0;
};

// The language as the settings store it.
int LanguageIndex(const QString& code) {
  if (code == "fr") return lorimet::kFrench;
  if (code == "es") return lorimet::kSpanish;
  return lorimet::kNative;
}

bool Prepare(const QString& folder, const QString& language) {
  const QString settings = folder + "/config/norvick-lorimet";
  if (!QDir().mkpath(settings)) return false;
  QFile registry(settings + "/registry.reg");
  if (!registry.open(QIODevice::WriteOnly)) return false;
  registry.write(QString("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\%1]\r\n\"Language\"=dword:%2\r\n")
                     .arg(lorimet::kProductKey)
                     .arg(LanguageIndex(language), 8, 16, QChar('0'))
                     .toUtf8());
  qputenv("XDG_CONFIG_HOME", (folder + "/config").toUtf8());
  qputenv("XDG_RUNTIME_DIR", folder.toUtf8());  // the tour may run beside the program itself
  qputenv("LORIMET32_STATE", "none");
  qputenv("LORIMET32_CONTROL", (folder + "/operator.txt").toUtf8());
  QFile::remove(folder + "/operator.txt");
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "lorimet_tour FOLDER [en|fr|es]\n");
    return 2;
  }
  const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
  if (!Prepare(folder, argc > 2 ? QString::fromLocal8Bit(argv[2]) : "en")) {
    std::fprintf(stderr, "The folder %s cannot be written.\n", qPrintable(folder));
    return 1;
  }
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  lorimet::ApplyStyle(application);
  // Never deleted, as in the program itself.
  static auto* const desktop_program = new lorimet::DesktopProgram;
  Tour tour(desktop_program->desktop, folder, folder + "/operator.txt",
            [](const std::string& text) {
              return desktop_program->program.support->dictionary.Translate(text);
            });
  tour.Begin();
  return desktop_program->Run();
}
