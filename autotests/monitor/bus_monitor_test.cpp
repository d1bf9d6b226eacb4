// The monitor's calls to the library: the data log, the buffers of a message, the options.
#include "monitor/bus_monitor.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "autotests/common/fake_link.h"
#include "platform/runtime_error.h"
#include "support/text.h"

namespace lorimet {
namespace {

using Calls = std::vector<std::string>;

// A library that leaves something in the two buffers.
class WritingLink : public testing_support::FakeLink {
 public:
  std::string file_out, comments_out, text_out, timing_out;
  bool raises = false;
  // What the library was given for a message.
  std::string text_in, timing_in;
  std::int32_t BusMonitorStartRecord(char* file, char* comments, std::int32_t zero) override {
    const std::int32_t result = FakeLink::BusMonitorStartRecord(file, comments, zero);
    if (!file_out.empty()) std::memcpy(file, file_out.data(), file_out.size());
    if (!comments_out.empty()) std::memcpy(comments, comments_out.data(), comments_out.size());
    return result;
  }
  std::int32_t BusMonitorGetData(char* text, char* timing, std::int32_t idle,
                                 std::int32_t stamp) override {
    if (raises) throw RuntimeError(ErrorNumber::kDeviceIoError);
    text_in = text;
    timing_in = timing;
    std::memcpy(text, text_out.data(), text_out.size());
    std::memcpy(timing, timing_out.data(), timing_out.size());
    calls.push_back("BusMonitorGetData " + std::to_string(idle) + " " + std::to_string(stamp));
    return always["BusMonitorGetData"];
  }
};

class BusMonitorTest : public testing::Test {
 protected:
  WritingLink link;
  HeadlessProcess process;
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  BusMonitor monitor{desktop, link, process};
};

TEST_F(BusMonitorTest, LogsIntoTheProgramsFolderAtFirst) {
  process.folder = "/program";
  const std::string path = std::string("/program") + kPathSeparator + "Default.txt";
  EXPECT_FALSE(monitor.MonitorStartRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord " + path + "||0"});
  EXPECT_EQ(monitor.GetDatalogInfo().file, path);
}

TEST_F(BusMonitorTest, LogsIntoTheChosenFileWithItsComments) {
  monitor.SetDatalogInfo({"/logs/trailer.txt", "two\r\nlines"});
  EXPECT_FALSE(monitor.MonitorStartRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/trailer.txt|two\r\nlines|0"});
}

TEST_F(BusMonitorTest, DropsTheCommentsOfANamelessFile) {
  process.folder = "/program";
  monitor.SetDatalogInfo({"", "comments"});
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{std::string("BusMonitorStartRecord /program") + kPathSeparator +
                                    "Default.txt||0"});
}

TEST_F(BusMonitorTest, SpeaksCodePage1252WithTheLibrary) {
  monitor.SetDatalogInfo({"/logs/été.txt", "10 €, Ω"});
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/\xE9t\xE9.txt|10 \x80, ?|0"});
  EXPECT_EQ(monitor.GetDatalogInfo().file, "/logs/été.txt");
}

TEST_F(BusMonitorTest, TakesWhatTheLibraryLeftInTheBuffers) {
  monitor.SetDatalogInfo({"/logs/a.txt", "comments"});
  link.file_out = std::string("/logs/\xE9.txt\0", 12);
  link.comments_out = std::string("\0", 1);
  monitor.MonitorStartRecord();
  EXPECT_EQ(monitor.GetDatalogInfo().file, "/logs/é.txt");
  link.TakeCalls();
  monitor.MonitorStartRecord();
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStartRecord /logs/\xE9.txt||0"});
}

TEST_F(BusMonitorTest, CutsAnAnswerWithoutANulAtTheBuffer) {
  monitor.SetDatalogInfo({"/logs/a.txt", ""});
  link.file_out = std::string(1024, 'x');
  monitor.MonitorStartRecord();
  EXPECT_EQ(monitor.GetDatalogInfo().file, std::string(1024, 'x'));
}

TEST_F(BusMonitorTest, HandsLongCommentsOverWhole) {
  const std::string comments(5000, 'c');
  monitor.SetDatalogInfo({"/logs/a.txt", comments});
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

TEST_F(BusMonitorTest, FirstOpeningOfARunSetsTheDefaultsAndALaterOneKeepsWhatIsSet) {
  process.folder = "/program";
  monitor.SetDisplayOptions(1, 1);
  EXPECT_FALSE(monitor.MonitorOpen());
  EXPECT_EQ(monitor.GetDatalogInfo().file,
            std::string("/program") + kPathSeparator + "Default.txt");
  EXPECT_EQ(monitor.GetDisplayOptions().idle_time, 0);
  EXPECT_EQ(monitor.GetDisplayOptions().timestamp, 0);
  monitor.SetDatalogInfo({"/logs/mine.txt", "mine"});
  monitor.SetDisplayOptions(1, 0);
  link.always["BusMonitorOpen"] = 5;
  EXPECT_TRUE(monitor.MonitorOpen());
  EXPECT_EQ(monitor.GetDatalogInfo().file, "/logs/mine.txt");
  EXPECT_EQ(monitor.GetDatalogInfo().comments, "mine");
  EXPECT_EQ(monitor.GetDisplayOptions().idle_time, 1);
  EXPECT_EQ(monitor.GetDisplayOptions().timestamp, 0);
  EXPECT_EQ(link.TakeCalls(), (Calls{"BusMonitorOpen", "BusMonitorOpen"}));
}

TEST_F(BusMonitorTest, GivesTheLibraryTwoFieldsOfBlanks) {
  monitor.SetDisplayOptions(-3, 1);
  std::string text = "old", timing = "old";
  EXPECT_FALSE(monitor.MonitorGetData(text, timing));
  EXPECT_EQ(link.text_in, std::string(150, ' '));
  EXPECT_EQ(link.timing_in, std::string(25, ' '));
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorGetData -3 1"}) << "widened with its sign";
  EXPECT_EQ(text, std::string(150, ' '));
  EXPECT_EQ(timing, std::string(25, ' '));
}

TEST_F(BusMonitorTest, TakesWhatComesBackInItsFieldsWhateverElseTheLibraryWrote) {
  struct Row {
    std::string text_out, timing_out, text, timing;
  };
  const std::string blanks(150, ' ');
  const Row rows[] = {
      {"137 116 3", " 0.020", "137 116 3" + blanks.substr(9), " 0.020" + blanks.substr(0, 19)},
      {std::string(400, 'x'), std::string(90, '1'), std::string(150, 'x'), std::string(25, '1')},
      {std::string(1023, 'x'), std::string(1023, '1'), std::string(150, 'x'), std::string(25, '1')},
      {std::string("abc\0def", 7), std::string("\0", 1), "abc", ""},
      {"10 \x80", "\xE9", "10 €" + blanks.substr(4), "é" + blanks.substr(0, 24)},
  };
  for (const Row& row : rows) {
    link.text_out = row.text_out;
    link.timing_out = row.timing_out;
    std::string text, timing;
    EXPECT_FALSE(monitor.MonitorGetData(text, timing));
    EXPECT_EQ(text, row.text);
    EXPECT_EQ(timing, row.timing);
  }
}

TEST_F(BusMonitorTest, ARunTimeErrorIsShownAndIsAFailure) {
  link.raises = true;
  std::string text, timing;
  EXPECT_TRUE(monitor.MonitorGetData(text, timing));
  EXPECT_EQ(text, std::string(150, ' ')) << "no message";
  const auto boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Error");
  EXPECT_EQ(boxes[0].text.substr(0, 5), "57:  ");
}

TEST_F(BusMonitorTest, OpenAndCloseTellOfAFailure) {
  EXPECT_FALSE(monitor.MonitorClose());
  link.always["BusMonitorClose"] = -1;
  EXPECT_TRUE(monitor.MonitorClose());
  EXPECT_EQ(link.TakeCalls(), (Calls{"BusMonitorClose", "BusMonitorClose"}));
}

TEST_F(BusMonitorTest, StopsWithOneCall) {
  EXPECT_FALSE(monitor.MonitorStopRecord());
  EXPECT_EQ(link.TakeCalls(), Calls{"BusMonitorStopRecord"});
}

}  // namespace
}  // namespace lorimet
