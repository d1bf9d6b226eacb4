// What the screens look like at work: every command in every language, each test in each of its
// states, every message that stands on the way, and the help.
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "adapters/qt/qt_help_window.h"
#include "autotests/desktop/look_fixture.h"
#include "monitor/monitor_part.h"
#include "reports/reports_part.h"
#include "tests/tests_part.h"

namespace lorimet {
namespace {

constexpr double kSupply = 112.4;                        // psi
constexpr std::array<int, 4> kSpinOrder = {2, 4, 5, 3};  // sensors d, f, e, c

class EveryState : public LookTest {
 protected:
  EveryState() {
    desktop.LeaveTicksToOthers();
    at_work_ = {
        {"frmPressureTest", [this] { Pressure(); }},
        {"frmRedundancyTest", [this] { Redundancy(); }},
        {"frmSensorOrientation", [this] { Sensors(); }},
        {"frmLampTest", [this] { Lamp(); }},
        {"frmSuspensionCal", [this] { Calibration(); }},
        {"frmStopLight", [this] { Use(program.tests->stop_light.cmdTrl1On, "on"); }},
        {"frmSetEOLBit", [this] { Flag(); }},
        {"frmSaveEEPROM", [this] { Upload(); }},
        {"frmSaveODR", [this] { Export(); }},
        {"frmODRView", [this] { Overview(); }},
        {"frmODRDelete", [this] { Use(program.reports->odr_delete.chkODRDel[1], "ticked"); }},
        {"frmBusMonitor", [this] { Monitor(); }},
        {"frmMonitorOptions", [this] { Options(); }},
        {"frmFaults", [this] { Faults(); }},
        {"frmOVGParm1", [this] { SystemPage(); }},
        {"frmGIOSelection", [this] { Functions(); }},
        {"frmOVGParm2", [this] { program.parameters->load_sensing_page.cmdNext.UserClick(); }},
        {"frmOVGParm3", [this] { LastPage(); }},
    };
  }

  void Walk(std::size_t language) {
    Speak(language);
    places_.clear();
    walking_ = true;
    LookOut();
    frmZeltMain& main = program.session->main_form;
    Do(main.mnuDiagnostics[0]);
    Do(main.mnuSignOff[0]);
    for (int test = 0; test < 6; ++test) Do(main.mnuTests[test]);
    for (variant_ = 0; variant_ < 3; ++variant_) Do(main.mnuSystem[0]);
    Do(main.mnuSystem[1]);
    Do(main.mnuTools[0]);
    Do(main.mnuODR[0]);
    Do(main.mnuODR[1]);
    for (const int item : {0, 1, 5}) Do(main.mnuUtility[item]);
    Do(main.mnuHelp[3]);
    Do(main.tbrABS_print);
    Do(main.tbrABS_save);
    main.SelectLanguage();
    Inspect(main, "behind it");
    walking_ = false;
    Pump();
  }

 private:
  template <typename Control>
  void Do(Control& command) {
    FillRecord();
    main_is_mechanical_ = !main_is_mechanical_;
    Ecu().nMechanicalSuspension.Store(main_is_mechanical_ ? 1 : 0);
    Ecu().dTargetPressure1.Store(36.5);
    Ecu().dTargetPressure2.Store(91.2);
    Ecu().dControlPressure1.Store(29.0);
    Ecu().dControlPressure2.Store(94.3);
    command.UserClick();
    Pump();
  }

  // Also in the loops within what it leads to, where one timer does not come again.
  void LookOut() {
    QTimer::singleShot(0, qApp, [this] {
      if (!walking_) return;
      LookOut();
      OnModal();
    });
  }

  // Whatever stands on top of the program.
  void OnModal() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    if (auto* box = qobject_cast<QMessageBox*>(window)) return OnBox(*box);
    if (Inspecting()) return;
    if (auto* chooser = qobject_cast<QFileDialog*>(window)) {
      auto* dialog = static_cast<QDialog*>(window);
      chooser->setDirectory(folder_.path());
      return chooser->acceptMode() == QFileDialog::AcceptSave ? dialog->accept() : dialog->reject();
    }
    if (window->objectName() == "dlgChoose") {
      Inspect(*window, "language");
      return window->hide();
    }
    for (Form* form : std::vector<Form*>(desktop.LoadedForms()))
      if (desktop.Window(*form) == window && !at_.contains(form)) return Work(*form);
  }

  void OnBox(QMessageBox& box) {
    if (&box == inspected_) return;
    if (!Inspecting()) {
      inspected_ = &box;
      Inspect(box, "box" + std::to_string(++boxes));
      inspected_ = nullptr;
    }
    road::Key(&box, Qt::Key_Return, Qt::NoModifier, "\r");
  }

  void Work(Form& form) {
    at_.insert(&form);
    Inspect(form);
    Buttons(form);
    if (const auto work = at_work_.find(form.Name()); work != at_work_.end()) work->second();
    if (form.Visible()) form.Unload();
    at_.erase(&form);
  }

  // From step to step of the wizard a button stays where it is.
  void Buttons(const Form& form) {
    const QWidget* window = desktop.Window(form);
    if (window->findChild<QWidget*>("lblStep") == nullptr) return;
    for (const char* name : {"cmdPrev", "cmdClose"})
      if (const auto* button = window->findChild<QWidget*>(name)) {
        const QPoint place = button->mapTo(window, QPoint(0, 0));
        const QPoint before = places_.try_emplace(name, place).first->second;
        EXPECT_EQ(place, before) << form.Name() << " " << name;
      }
  }

  template <typename Control>
  void Use(Control& control, const std::string& state) {
    desktop.RunEvent([&] { control.UserClick(); });
    Inspect(static_cast<Form&>(control.Owner()), state);
  }
  void Tick(Form& form, Timer& timer, const std::string& state) {
    desktop.RunEvent([&] { timer.Tick(); });
    if (form.Loaded()) Inspect(form, state);
  }

  void Pressure() {
    frmPressureTest& test = program.tests->pressure_test;
    const auto tick = [&](const char* state) { Tick(test, test.Timer1, state); };
    if (!main_is_mechanical_) {
      tick("control pressure");
      Ecu().dServiceBrake.Store(kNoValue);
      tick("no reading");
    }
    Ecu().dServiceBrake.Store(0);
    tick("begun");
    Ecu().dSupplyPress.Store(50);
    tick("no supply");
    Ecu().dSupplyPress.Store(kSupply);
    tick("supply");
    if (!main_is_mechanical_) {
      Ecu().dMainBellows.Store(1);
      tick("low bellows");
      Ecu().dMainBellows.Store(61);
      tick("bellows");
    }
    tick("testing");
    for (int round = 0; round < 8 && test.Loaded(); ++round)
      for (const double psi : {0.0, 36.5, 91.2}) {
        Ecu().dBrake1Press.Store(psi);
        Ecu().dBrake2Press.Store(psi);
        if (test.Loaded()) tick("rows");
      }
    EXPECT_EQ(program.tests->test_results.nPressureTest, kTestPassed);
  }

  void Redundancy() {
    frmRedundancyTest& test = program.tests->redundancy_test;
    const auto tick = [&](const char* state) { Tick(test, test.Timer1, state); };
    Ecu().dSupplyPress.Store(50);
    tick("no supply");
    Ecu().dSupplyPress.Store(kSupply);
    Ecu().dServiceBrake.Store(10);
    tick("supply");
    tick("no control pressure");
    for (EcuDouble* pressure : {&Ecu().dServiceBrake, &Ecu().dBrake1Press, &Ecu().dBrake2Press})
      pressure->Store(95);
    for (const char* state : {"switched", "supply again", "control again", "compared"}) tick(state);
    while (test.Loaded()) tick("done");
    EXPECT_EQ(program.tests->test_results.nRedundancyTest, kTestPassed);
  }

  void Sensors() {
    frmSensorOrientation& test = program.tests->sensor_test;
    const auto tick = [&](const std::string& state) { Tick(test, test.Timer1, state); };
    Ecu().dSupplyPress.Store(50);
    tick("no supply");
    Ecu().dSupplyPress.Store(kSupply);
    tick("not at rest");
    for (const int sensor : kSpinOrder)
      Ecu().dWheelSpeed[static_cast<std::size_t>(sensor)].Store(0);
    tick("spin");
    Ecu().dWheelSpeed[4].Store(6.0);
    tick("wrong wheel");
    Ecu().dWheelSpeed[4].Store(0);
    for (const int sensor : kSpinOrder) {
      EcuDouble& speed = Ecu().dWheelSpeed[static_cast<std::size_t>(sensor)];
      speed.Store(7.2);
      tick("spinning");
      speed.Store(6.1);
      tick("rolling");
      speed.Store(0);
      for (int i = 0; i < 2 && test.Loaded(); ++i) tick("at rest " + std::to_string(sensor));
    }
    EXPECT_EQ(program.tests->test_results.nSensorTest, kTestPassed);
  }

  void Lamp() {
    frmLampTest& test = program.tests->lamp_test;
    Tick(test, test.Timer1, "lit");
    test.cmdYes.UserClick();
  }

  void Calibration() {
    frmSuspensionCal& test = program.tests->suspension_calibration;
    Tick(test, test.Timer1, "no reading");
    link.io_control = [](std::uint8_t, std::uint8_t* data) { data[2] = 5, data[3] = 20; };
    Tick(test, test.Timer1, "in range");
    test.cmdCalHgtSensor[0].UserClick();
    link.io_control = nullptr;
  }

  void Flag() {
    for (const std::uint8_t value : {1, 2}) {
      link.read_block = [value](std::uint8_t, std::uint8_t*, std::uint8_t* data) {
        data[1] = value;
        return 0;
      };
      Use(program.tests->eol_bit.cmdSetStatusFlag, "flag " + std::to_string(value));
    }
    link.read_block = nullptr;
  }

  void Upload() {
    frmSaveEEPROM& screen = program.reports->save_eeprom;
    Ecu().dBytesRemaining.Store(12345);
    Tick(screen, screen.Timer1, "under way");
    Ecu().dBytesRemaining.Store(0);
    Tick(screen, screen.Timer1, "saved");
  }

  void Export() {
    frmSaveODR& screen = program.reports->save_odr;
    Ecu().nODRUploadStep.Store(3);
    Tick(screen, screen.Timer1, "under way");
    Ecu().nODRUploadStep.Store(0);
    Tick(screen, screen.Timer1, "saved");
  }

  void Overview() {
    frmODRView& screen = program.reports->odr_view;
    printer.has_printer = false;
    screen.cmdSave.UserClick();
    screen.cmdPrint.UserClick();
    printer.has_printer = true;
    Inspect(program.session->main_form, "no printer");
  }

  void Monitor() {
    frmBusMonitor& screen = program.monitor->screen;
    for (int i = 0; i < 60; ++i)
      link.bus_messages.push_back("J1708   89 C2 06 3C 05 07 0" + std::to_string(i % 10));
    link.always["BusMonitorGetData"] = 1;
    Tick(screen, screen.tmrUpdateMonitor, "messages");
    screen.cmdOptions.UserClick();
    Use(screen.cmdDatalog, "recording");
  }

  void Options() {
    frmMonitorOptions& screen = program.monitor->options;
    desktop.RunEvent([&] { screen.tbsOptions.SetSelected(1); });
    screen.tbsOptions.on_click();
    desktop.Flush();
    Inspect(screen, "display");
  }

  void Faults() {
    link.always["FaultGetCount"] = 0;
    Use(program.faults->fault_list.cmdClearAll, "cleared");
    link.always["FaultGetCount"] = 3;
  }

  void SystemPage() {
    frmOVGParm1& page = program.parameters->system_page;
    if (variant_ == 1) Use(page.optSuspensionType[1], "mechanical");
    if (variant_ == 2) {
      Use(page.optVehicleType[2], "one axle");
      Use(page.optABSSystem[4], "one modulator");
    }
    page.cmdNext.UserClick();
  }

  void Functions() {
    frmGIOSelection& page = program.parameters->gio_page;
    if (variant_ == 0) {
      for (int item = 0; item < 9; ++item)
        if (page.chkGIO[item].Enabled()) Use(page.chkGIO[item], "item " + std::to_string(item));
    }
    page.cmdNext.UserClick();
  }

  void LastPage() {
    frmOVGParm3& page = program.parameters->overturn_guard_page;
    for (int i = 0; i < 2; ++i) {
      page.txtTireSize[i].SetText("3250");
      page.txtNumTeeth[i].SetText("100");
    }
    Use(page.optOVGStatus[2], "guard on");
    page.cmdSaveToECU.UserClick();
    page.cmdSaveToFile.UserClick();
  }

  std::map<std::string, std::function<void()>> at_work_;
  std::set<Form*> at_;
  std::map<std::string, QPoint> places_;
  const QTemporaryDir folder_;  // takes what is saved
  bool walking_ = false;
  const QMessageBox* inspected_ = nullptr;
  int variant_ = 0;
  bool main_is_mechanical_ = true;
};

TEST_P(EveryState, CanBeReadAndUsed) {
  if (!OnScreen()) return RunOnScreen();
  Open();
  for (std::size_t language = 0; language < kLanguageNumber; ++language) Walk(language);
  EXPECT_GE(boxes, 45) << "messages";
}

TEST_P(EveryState, OfTheHelpCanBeReadAndUsed) {
  if (!OnScreen()) return RunOnScreen();
  Open();
  const char* const folders[] = {"help/en", "help/fr", "help/es"};
  const char* const words[] = {"pressure", "pression", "presi"};
  for (std::size_t language = 0; language < kLanguageNumber; ++language) {
    Speak(language);
    HelpWindow help(
        [this](const std::string& text) { return program.support->dictionary.Translate(text); });
    help.Open({QString::fromStdString(InSource(folders[language]))});
    help.show();
    help.ShowPage("faults.html");
    Inspect(help, "page");
    help.ShowSearch(words[language]);
    Inspect(help, "search");
  }
}

INSTANTIATE_TEST_SUITE_P(, EveryState, testing::ValuesIn(kScreenSetups),
                         [](const auto& setup) { return setup.param.name; });

}  // namespace
}  // namespace lorimet
