#include "monitor/bus_monitor.h"

#include "platform/process.h"
#include "session/library_text.h"
#include "session/link_library.h"
#include "support/text.h"

namespace lorimet {
void BusMonitor::SetDatalogInfo(const std::string& file, const std::string& comments) {
  strDatalogFile_ = file;
  strDatalogComments_ = comments;
}

bool BusMonitor::MonitorStartRecord() {
  if (strDatalogFile_.empty())
    SetDatalogInfo(process_.ProgramFolder() + kPathSeparator + "Default.txt", "");
  LibraryText file(strDatalogFile_);
  LibraryText comments(strDatalogComments_);
  const std::int32_t result = link_.BusMonitorStartRecord(file.Data(), comments.Data(), 0);
  strDatalogFile_ = file.Text();
  strDatalogComments_ = comments.Text();
  return result != 0;
}

bool BusMonitor::MonitorStopRecord() { return link_.BusMonitorStopRecord() != 0; }

}  // namespace lorimet
