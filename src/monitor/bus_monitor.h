// The bus monitor's settings and its calls to the library; the data log with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace lorimet {

class Desktop;
class LinkLibrary;
class Process;

// Where the data log goes, and the text at its head.
struct DatalogInfo {
  std::string file;
  std::string comments;
};

// What each line of the monitor has behind its message; 0 or 1 each.
struct DisplayOptions {
  std::int16_t idle_time = 0;
  std::int16_t timestamp = 0;
};

// The operations that return a boolean give true on failure. A run-time error in one is reported
// in a box and is a failure, too.
class BusMonitor {
 public:
  // The fields that the library fills, in characters.
  static constexpr std::size_t kText = 150;
  static constexpr std::size_t kTiming = 25;

  BusMonitor(Desktop& desktop, LinkLibrary& link, Process& process)
      : desktop_(desktop), link_(link), process_(process) {}

  // The first opening of a run sets the data log and the display as they are by default.
  bool MonitorOpen();
  bool MonitorClose();
  // Asks for one message: the library's text and its timing, blanks included, each cut at its
  // field. A text of kText blanks is no message.
  bool MonitorGetData(std::string& text, std::string& timing);

  // Starts the log, by default in "Default.txt" of the program's folder.
  bool MonitorStartRecord();
  bool MonitorStopRecord();

  const DatalogInfo& GetDatalogInfo() const { return datalog_; }
  void SetDatalogInfo(const DatalogInfo& info) { datalog_ = info; }
  DisplayOptions GetDisplayOptions() const { return {nShowIdleTime_, nShowTimestamp_}; }
  void SetDisplayOptions(std::int16_t idle_time, std::int16_t timestamp);

 private:
  bool Fails(const std::function<std::int32_t()>& call) const;
  void SetDefaultLog();

  Desktop& desktop_;
  LinkLibrary& link_;
  Process& process_;
  DatalogInfo datalog_;
  std::int16_t nShowIdleTime_ = 0;
  std::int16_t nShowTimestamp_ = 0;
};

}  // namespace lorimet
