#include <QFile>

#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"

namespace lorimet {
namespace {

constexpr char kLog[] = "Default.txt";
constexpr char kComment[] = "Recorded by the tour";

}  // namespace

void ShowMonitor(Script& script) {
  script.Chapter("The bus monitor");
  script.Command("mnuUtility_1");
  script.Press("frmBusMonitor", "cmdOptions");
  script.Type("frmMonitorOptions", "txtDatalogComments", kComment);
  script.Picture("frmMonitorOptions", "monitor-options", "Where the log goes, and its comments");
  script.Press("frmMonitorOptions", "cmdOK");
  script.UntilGone("frmMonitorOptions");
  script.Press("frmBusMonitor", "cmdDatalog");
  script.Until("ten messages",
               [] { return TextIn("frmBusMonitor", "txtMonitor").count('\n') >= 10; });
  script.Pause(5);
  script.Picture("frmBusMonitor", "bus-monitor", "The traffic on the data link, and its recording");
  script.Press("frmBusMonitor", "cmdDatalog");
  script.Press("frmBusMonitor", "cmdExit");
  script.UntilGone("frmBusMonitor");
  script.CheckFile(kLog, "the log of the data link");
  script.Check([&script] {
    QFile log(script.Files() + '/' + kLog);
    if (log.open(QIODevice::ReadOnly) && log.readAll().contains(kComment)) return QString();
    return QStringLiteral("The log lacks its comment");
  });
  script.Tell("The data link watched and recorded");
}

}  // namespace lorimet
