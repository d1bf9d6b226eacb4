#include <QMessageBox>

#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"
#include "tour/simulated_trailer.h"
#include "tour/trailers.h"

namespace lorimet {
namespace {

// A trailer that has something for every test: a height sensor, and stop lights that the ECU
// lights.
constexpr TrailerRow kTrailer = {"4S/2M",
                                 "mechanical",
                                 3,
                                 "semi",
                                 "rear",
                                 "parameter EOL5 18 65\nparameter EOL2 2 0x20\n"
                                 "parameter EOL3 33 3\nparameter EOL9 2 4\n"
                                 "parameter EOL9 15 73\n"};

void Expect(Script& script, const std::string& name, const std::string& value) {
  script.Check([&script, name, value] {
    const std::string seen = script.Trailer().See(name);
    if (seen == value) return QString();
    return QStringLiteral("At the trailer, %1 is \"%2\" and not \"%3\"")
        .arg(QString::fromStdString(name), QString::fromStdString(seen),
             QString::fromStdString(value));
  });
}

// A test whose outcome the program tells.
void TellTest(Script& script, const QString& command, const char* passed) {
  script.Command(command);
  script.OperateUntilBox(passed);
  script.Answer(passed, QMessageBox::Ok);
  script.UntilGone("msgBox");
  script.Tell(QString(passed));
}

void SetFlagByHand(Script& script) {
  script.Do([] {
    PressKey(*FindWindow("frmZeltMain"), Qt::Key_F9,
             Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  });
  script.Command("mnuUtility_0");
  script.Press("frmSetEOLBit", "cmdSetStatusFlag");
  script.Until("the end-of-line flag", [&script] { return script.Trailer().See("flag") == "1"; });
  script.UntilText("frmSetEOLBit", "txtStatus", [&script](const QString& text) {
    return text == QString::fromStdString(script.Translate("EOL Test Passed"));
  });
  script.Picture("frmSetEOLBit", "flag", "The end-of-line flag, set by hand");
  script.Press("frmSetEOLBit", "cmdClearStatusFlag");
  script.Until("the end-of-line flag", [&script] { return script.Trailer().See("flag") == "2"; });
  script.Press("frmSetEOLBit", "cmdClose");
  script.UntilGone("frmSetEOLBit");
  script.Tell("The end-of-line flag was set and taken back by hand");
}

}  // namespace

void ShowVehicleTests(Script& script) {
  script.Chapter("The end-of-line tests");
  ChangeTrailer(script, kTrailer);
  TellTest(script, "mnuTests_0", "Pressure Test Passed.");
  TellTest(script, "mnuTests_1", "Redundancy Test Passed.");
  TellTest(script, "mnuTests_2", "Sensor Test Passed.");

  script.Command("mnuTests_3");
  script.Operate("the end of the lamp test");
  script.Tell("The lamp was seen blinking");

  script.Command("mnuTests_4");
  script.UntilText("frmSuspensionCal", "txtHeightCD",
                   [](const QString& text) { return !text.isEmpty(); });
  script.Picture("frmSuspensionCal", "height-calibration", "The height sensor's counts");
  script.Operate("the end of the calibration");
  Expect(script, "calibrated", "yes");
  script.Tell("The height sensor is calibrated");

  script.Command("mnuTests_5");
  script.Press("frmStopLight", "cmdTrl1On");
  // The ECU starts anew after the calibration.
  script.Until("lit stop lights",
               [&script] { return script.Trailer().See("stop_lights") == "on"; });
  script.Picture("frmStopLight", "stop-lights", "The stop lights are lit");
  script.Press("frmStopLight", "Command1");
  script.UntilGone("frmStopLight");
  script.UntilText("frmZeltMain", "txtOdom",
                   [](const QString& text) { return text.contains('.'); });
  Expect(script, "stop_lights", "off");
  script.Tell("The stop lights were lit and are out again");
  SetFlagByHand(script);
}

}  // namespace lorimet
