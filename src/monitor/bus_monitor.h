// The data log of the bus monitor.
#pragma once

#include <string>

namespace lorimet {

class LinkLibrary;
class Process;

class BusMonitor {
 public:
  BusMonitor(LinkLibrary& link, Process& process) : link_(link), process_(process) {}

  // Starts the log, by default in "Default.txt" of the program's folder. True on failure.
  bool MonitorStartRecord();
  // True on failure.
  bool MonitorStopRecord();

  const std::string& DatalogFile() const { return strDatalogFile_; }
  void SetDatalogInfo(const std::string& file, const std::string& comments);

 private:
  LinkLibrary& link_;
  Process& process_;
  std::string strDatalogFile_;
  std::string strDatalogComments_;
};

}  // namespace lorimet
