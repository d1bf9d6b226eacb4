#include "tour/trailers.h"

#include <QDir>
#include <QFile>

#include "tour/script.h"

namespace lorimet {
namespace {

QString ScenarioOf(const TrailerRow& row) {
  return QStringLiteral(
             "configuration %1\nsuspension %2\naxles %3\nvehicle %4\nmounting %5\n"
             "identity vehicle_id \"%6\"\nidentity serial_number \"%6\"\n%7")
      .arg(row.configuration, row.suspension)
      .arg(row.axles)
      .arg(row.vehicle, row.mounting, NameOf(row), row.more);
}

}  // namespace

QString NameOf(const TrailerRow& row) {
  QString configuration = row.configuration;
  configuration.remove('/').remove('+');
  return configuration + '-' + QString(row.suspension).left(4).toUpper();
}

void ChangeTrailer(Script& script, const TrailerRow& row) {
  const QString file = QStringLiteral("trailers/%1.scenario").arg(NameOf(row));
  script.Check([file, row] {
    QFile scenario(file);
    const bool written = QDir().mkpath("trailers") && scenario.open(QIODevice::WriteOnly) &&
                         scenario.write(ScenarioOf(row).toUtf8()) > 0;
    return written ? QString() : file + QStringLiteral(" cannot be written");
  });
  script.AtTrailer("scenario " + file);
  script.Command("tbrABS_restart");
  script.UntilText("frmZeltMain", "txtSerialNum",
                   [name = NameOf(row)](const QString& text) { return text.trimmed() == name; });
  script.UntilText("frmZeltMain", "txtOdom",
                   [](const QString& text) { return text.contains('.'); });
  script.Pause(2.5);  // the lamp check ends
}

}  // namespace lorimet
