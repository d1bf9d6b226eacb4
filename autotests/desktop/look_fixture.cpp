#include "autotests/desktop/look_fixture.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <vector>

#include "adapters/qt/qt_text.h"
#include "autotests/desktop/window_inspection.h"

namespace lorimet {
namespace {

constexpr const char* kVariable = "LORIMET_LOOK_SCREEN";
constexpr int kPatience = 200'000;  // ms
constexpr const char* kNames[] = {"en", "fr", "es"};
constexpr int kLanguages[] = {kEnglish, kFrench, kSpanish};

}  // namespace

LookTest::LookTest() {
  if (OnScreen()) ApplyStyle(*qApp, GetParam().look);
}

LookTest::~LookTest() {
  if (OnScreen()) ApplyStyle(*qApp, lorimet::Look::kLight);
}

bool LookTest::OnScreen() { return qEnvironmentVariableIsSet(kVariable); }

void LookTest::RunOnScreen() {
  const QTemporaryDir folder;
  QFile file(folder.filePath("screen.json"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QString(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2,
                         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                 .arg(GetParam().pixels.width())
                 .arg(GetParam().pixels.height())
                 .toUtf8());
  file.close();
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName());
  environment.insert("QT_SCALE_FACTOR", GetParam().scale);
  environment.insert(kVariable, GetParam().name);
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  process.start(QCoreApplication::applicationFilePath(),
                {QString("--gtest_filter=%1.%2").arg(test->test_suite_name(), test->name())});
  ASSERT_TRUE(process.waitForFinished(kPatience));
  EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

void LookTest::Open() {
  link.always["FaultGetCount"] = 3;
  link.fault_data = [](void* first) {
    const std::vector<FaultRecord> records = {
        {0, 5, 7, 0, 0, 0}, {0, 7, 3, 0, 1, 2}, {0, 13, 2, 0, 1, 1}};
    std::ranges::copy(records, static_cast<FaultRecord*>(first));
  };
  Start();
  FillRecord();
}

void LookTest::FillRecord() {
  ECUData& ecu = Ecu();
  ecu.bNumSensors.Store(4);
  ecu.bNumModulators.Store(2);
  ecu.nNumAxles.Store(3);
  ecu.nAxleSensors[0].Store(1);
  ecu.nAxleSensors[2].Store(2);
  ecu.dSupplyPress.Store(112.4);
  ecu.dMainBellows.Store(61.0);
  ecu.dBrake1Press.Store(87.0);
  ecu.dBrake2Press.Store(86.0);
  ecu.dServiceBrake.Store(88.2);
  ecu.dPrimaryVolts.Store(1240.0);
  ecu.dOdometer.Store(123456.7);
  ecu.SysName.Store("Trailer ABS/EBS");
  ecu.SerialNum.Store("NV-1001");
}

void LookTest::Speak(std::size_t language) {
  language_ = language;
  Dictionary& dictionary = program.support->dictionary;
  dictionary.SetLanguage(kLanguages[language]);
  toolkit_.SetLanguage(kLanguages[language]);
  dictionary.TranslateForm(program.session->main_form);
  for (std::size_t i = 2; i <= 5; ++i)
    Ecu().dWheelSpeed[i].Store(12.3 + static_cast<double>(10 * language + i));
  program.session->main_form.DisplayCompId();
  program.session->main_form.UpdateLiveData();
}

void LookTest::Inspect(Form& form, const std::string& state) {
  if (!state.empty() && !looked_.insert(form.Name() + state + kNames[language_]).second) return;
  inspecting_ = true;
  Pump();
  QWidget* window = desktop.Window(form);
  window->activateWindow();
  seen.insert(form.Name());
  Inspect(*window, state);
  inspecting_ = true;
  if (state.empty()) CheckHelp(form);
  inspecting_ = false;
}

void LookTest::Inspect(QWidget& window, const std::string& state) {
  inspecting_ = true;
  Pump();
  Keep(window, state);
  Inspection inspection(window);
  inspection.walks_focus = language_ == 0 && state.empty();
  inspection.translate = [this](const QString& text) {
    // Of the pressure test's rows, and over the message of a file that is saved: English for all.
    if (text == QLatin1String("OK") || text == QLatin1String("Information")) return text;
    return ToQString(program.support->dictionary.Translate(FromQString(text)));
  };
  for (const QString& complaint : inspection.Run())
    ADD_FAILURE() << window.objectName().toStdString() << " " << kNames[language_] << " " << state
                  << " " << complaint.toStdString();
  inspecting_ = false;
}

// F1 opens the screen's page, and there is one in the language that is spoken.
void LookTest::CheckHelp(Form& form) {
  help_viewer.calls.clear();
  Key(form, Qt::Key_F1);
  ASSERT_EQ(help_viewer.calls.size(), 1U) << form.Name() << " " << kNames[language_];
  EXPECT_EQ(help_viewer.calls.front().key, form.help_page) << form.Name();
  EXPECT_TRUE(QFile::exists(QString::fromStdString(InSource("help/") + kNames[language_] + "/" +
                                                   help_viewer.calls.front().key)))
      << form.Name();
}

void LookTest::Keep(QWidget& window, const std::string& state) const {
  const QString folder = qEnvironmentVariable("LORIMET_LOOK_PICTURES");
  if (folder.isEmpty()) return;
  window.grab().save(QString("%1/%2%3-%4-%5.png")
                         .arg(folder, window.objectName(),
                              state.empty() ? QString() : "-" + QString::fromStdString(state),
                              kNames[language_], GetParam().name));
}

}  // namespace lorimet
