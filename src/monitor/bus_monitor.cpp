#include "monitor/bus_monitor.h"

#include "platform/process.h"
#include "platform/runtime_error.h"
#include "session/library_text.h"
#include "session/link_library.h"
#include "support/error_report.h"
#include "support/text.h"

namespace lorimet {

// True when the call does not succeed.
bool BusMonitor::Fails(const std::function<std::int32_t()>& call) const {
  try {
    return call() != 0;
  } catch (const RuntimeError& error) {
    ShowErrorReport(desktop_, error);
    return true;
  }
}

void BusMonitor::SetDefaultLog() {
  SetDatalogInfo({process_.ProgramFolder() + kPathSeparator + "Default.txt", ""});
}

void BusMonitor::SetDisplayOptions(std::int16_t idle_time, std::int16_t timestamp) {
  nShowIdleTime_ = idle_time;
  nShowTimestamp_ = timestamp;
}

bool BusMonitor::MonitorOpen() {
  return Fails([this] {
    const std::int32_t result = link_.BusMonitorOpen();
    if (datalog_.file.empty()) {
      SetDefaultLog();
      SetDisplayOptions(0, 0);
    }
    return result;
  });
}

bool BusMonitor::MonitorClose() {
  return Fails([this] { return link_.BusMonitorClose(); });
}

bool BusMonitor::MonitorGetData(std::string& text, std::string& timing) {
  text.assign(kText, ' ');
  timing.assign(kTiming, ' ');
  return Fails([&] {
    LibraryText message = LibraryText::Blanks(kText);
    LibraryText time = LibraryText::Blanks(kTiming);
    const std::int32_t result =
        link_.BusMonitorGetData(message.Data(), time.Data(), nShowIdleTime_, nShowTimestamp_);
    text = message.Text(kText);
    timing = time.Text(kTiming);
    return result;
  });
}

bool BusMonitor::MonitorStartRecord() {
  return Fails([this] {
    if (datalog_.file.empty()) SetDefaultLog();
    LibraryText file(datalog_.file);
    LibraryText comments(datalog_.comments);
    const std::int32_t result = link_.BusMonitorStartRecord(file.Data(), comments.Data(), 0);
    datalog_ = {file.Text(), comments.Text()};
    return result;
  });
}

bool BusMonitor::MonitorStopRecord() {
  return Fails([this] { return link_.BusMonitorStopRecord(); });
}

}  // namespace lorimet
