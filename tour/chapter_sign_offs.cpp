#include <QFile>

#include "tour/chapters.h"
#include "tour/script.h"
#include "tour/simulated_trailer.h"
#include "tour/trailers.h"

namespace lorimet {
namespace {

constexpr TrailerRow kTrailers[] = {
    // clang-format off
    {"4S/2M", "air",        3, "semi",        "forward", ""},
    {"4S/2M", "mechanical", 3, "semi",        "rear",    ""},
    {"2S/1M", "air",        1, "single_axle", "forward", ""},
    {"2S/1M", "mechanical", 1, "single_axle", "forward", ""},
    {"2S/2M", "air",        2, "semi",        "forward", ""},
    {"2S/2M", "mechanical", 2, "semi",        "rear",    ""},
    {"4S/3M", "air",        3, "semi",        "forward", ""},
    {"4S/3M", "mechanical", 3, "semi",        "forward", ""},
    {"2M+1M", "air",        3, "drawbar",     "forward", ""},
    {"2M+1M", "mechanical", 3, "drawbar",     "forward", ""},
    // clang-format on
};

// What the operator sees on the way through the first sign-off.
void ShowScreens(Script& script) {
  script.OperateUntilText("frmPressureTest", "lblStatus_5", "OK");
  script.Picture("frmPressureTest", "pressure-test", "Pressure test: all laden rows have passed");
  script.OperateUntilText("frmRedundancyTest", "txtStatus", "CONTROL PRESSURE");
  script.Picture("frmRedundancyTest", "redundancy-test", "Redundancy test: the pedal is asked for");
  script.OperateUntilText("frmSensorOrientation", "txtStatus",
                          "Now Spin Tire 2 as shown on the diagram...");
  script.Picture("frmSensorOrientation", "sensor-test",
                 "Sensor test: the second wheel is asked for");
  script.OperateUntilShown("frmLampTest");
  script.Picture("frmLampTest", "lamp-test", "Lamp test: does it blink?");
  script.OperateUntilBox("All tests passed.  End-of-line bit set.");
  script.Picture("msgBox", "signed-off", "Signed off; the report is offered");
}

QString WrongWithReport(const QString& path, const QString& name) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return path + QStringLiteral(" is not there");
  const QByteArray text = file.readAll();
  if (!text.contains(name.toLatin1())) return path + QStringLiteral(" does not name its trailer");
  return {};
}

void SignOff(Script& script, const TrailerRow& row, bool shown) {
  const QString name = NameOf(row);
  ChangeTrailer(script, row);
  script.Command("mnuSignOff_0");
  if (shown) ShowScreens(script);
  script.Operate("the end of the sign-off");
  script.Check([&script, name] {
    if (script.Trailer().See("flag") != "1") return name + QStringLiteral(": no end-of-line flag");
    if (script.Trailer().See("faults") != "0") return name + QStringLiteral(": faults are left");
    return WrongWithReport(script.Files() + '/' + name + ".txt", name);
  });
  script.CheckFile(name + ".txt", "the report");
  script.CheckFile(name + ".pdf", "the report's pages");
  script.Tell(QStringLiteral("%1, %2: signed off, with report and pages")
                  .arg(row.configuration, row.suspension));
}

}  // namespace

void ShowSignOffs(Script& script) {
  script.Chapter("Sign-off of every configuration");
  bool shown = true;
  for (const TrailerRow& row : kTrailers) {
    SignOff(script, row, shown);
    if (shown)
      script.Picture("frmZeltMain", "main-signed-off", "The panel after the first sign-off");
    shown = false;
  }
}

}  // namespace lorimet
