// The data log: where it goes and what the library is told.
#include "monitor/bus_monitor.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "adapters/headless/headless_ports.h"
#include "autotests/common/fake_link.h"
#include "support/text.h"

namespace lorimet {
namespace {

using Calls = std::vector<std::string>;

// A library that leaves something in the two buffers.
class WritingLink : public testing_support::FakeLink {
 public:
  std::string file_out, comments_out;
  std::int32_t BusMonitorStartRecord(char* file, char* comments, std::int32_t zero) override {
    const std::int32_t result = FakeLink::BusMonitorStartRecord(file, comments, zero);
    if (!file_out.empty()) std::memcpy(file, file_out.data(), file_out.size());
    if (!comments_out.empty()) std::memcpy(comments, comments_out.data(), comments_out.size());
    return result;
  }
};

class BusMonitorTest : public testing::Test {
 protected:
  WritingLink link;
  HeadlessProcess process;
  BusMonitor monitor{link, process};
};

TEST_F(BusMonitorTest, LogsIntoTheProgramsFolderAtFirst) {
  process.folder = "/program";
  const std::string path = std::string("/program") + kPathSeparator + "Default.txt";
  EXPECT_FALSE(monitor.MonitorStartRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord " + path + "||0"});
  EXPECT_EQ(monitor.DatalogFile(), path);
}

TEST_F(BusMonitorTest, LogsIntoTheChosenFileWithItsComments) {
  monitor.SetDatalogInfo("/logs/trailer.txt", "two\r\nlines");
  EXPECT_FALSE(monitor.MonitorStartRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/trailer.txt|two\r\nlines|0"});
}

TEST_F(BusMonitorTest, DropsTheCommentsOfANamelessFile) {
  process.folder = "/program";
  monitor.SetDatalogInfo("", "comments");
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{std::string("BusMonitorStartRecord /program") + kPathSeparator +
                                    "Default.txt||0"});
}

TEST_F(BusMonitorTest, SpeaksCodePage1252WithTheLibrary) {
  monitor.SetDatalogInfo("/logs/été.txt", "10 €, Ω");
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/\xE9t\xE9.txt|10 \x80, ?|0"});
  EXPECT_EQ(monitor.DatalogFile(), "/logs/été.txt");
}

TEST_F(BusMonitorTest, TakesWhatTheLibraryLeftInTheBuffers) {
  monitor.SetDatalogInfo("/logs/a.txt", "comments");
  link.file_out = std::string("/logs/\xE9.txt\0", 12);
  link.comments_out = std::string("\0", 1);
  monitor.MonitorStartRecord();
  EXPECT_EQ(monitor.DatalogFile(), "/logs/é.txt");
  link.TakeCalls();
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/\xE9.txt||0"});
}

TEST_F(BusMonitorTest, CutsAnAnswerWithoutANulAtTheBuffer) {
  monitor.SetDatalogInfo("/logs/a.txt", "");
  link.file_out = std::string(1024, 'x');
  monitor.MonitorStartRecord();
  EXPECT_EQ(monitor.DatalogFile(), std::string(1024, 'x'));
}

TEST_F(BusMonitorTest, HandsLongCommentsOverWhole) {
  const std::string comments(5000, 'c');
  monitor.SetDatalogInfo("/logs/a.txt", comments);
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/a.txt|" + comments + "|0"});
}

TEST_F(BusMonitorTest, TellsOfAFailure) {
  for (const std::int32_t result : {1, -1, 7}) {
    link.always["BusMonitorStartRecord"] = result;
    link.always["BusMonitorStopRecord"] = result;
    EXPECT_TRUE(monitor.MonitorStartRecord());
    EXPECT_TRUE(monitor.MonitorStopRecord());
  }
}

TEST_F(BusMonitorTest, StopsWithOneCall) {
  EXPECT_FALSE(monitor.MonitorStopRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStopRecord"});
}

}  // namespace
}  // namespace lorimet
