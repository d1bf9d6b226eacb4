#include "monitor/bus_monitor.h"

#include <algorithm>
#include <vector>

#include "platform/process.h"
#include "session/link_library.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::size_t kTextBufferSize = 1024;

std::vector<char> BufferOf(const std::string& text) {
  const std::string bytes = ToCp1252(text);
  std::vector<char> buffer(std::max(bytes.size() + 1, kTextBufferSize), '\0');
  std::ranges::copy(bytes, buffer.begin());
  return buffer;
}

std::string TextOf(const std::vector<char>& buffer) {
  return FromCp1252(UntilNul(std::string_view(buffer.data(), buffer.size())));
}

}  // namespace

void BusMonitor::SetDatalogInfo(const std::string& file, const std::string& comments) {
  strDatalogFile_ = file;
  strDatalogComments_ = comments;
}

bool BusMonitor::MonitorStartRecord() {
  if (strDatalogFile_.empty())
    SetDatalogInfo(process_.ProgramFolder() + kPathSeparator + "Default.txt", "");
  std::vector<char> file = BufferOf(strDatalogFile_);
  std::vector<char> comments = BufferOf(strDatalogComments_);
  const std::int32_t result = link_.BusMonitorStartRecord(file.data(), comments.data(), 0);
  strDatalogFile_ = TextOf(file);
  strDatalogComments_ = TextOf(comments);
  return result != 0;
}

bool BusMonitor::MonitorStopRecord() { return link_.BusMonitorStopRecord() != 0; }

}  // namespace lorimet
