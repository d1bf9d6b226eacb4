// The monitor's screens in the whole program, on the simulated trailer and its data link: what can
// go wrong there, row by row, and what the user sees of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/scratch_folder.h"
#include "autotests/common/simulated_link.h"
#include "autotests/common/stand_ins.h"
#include "monitor/monitor_part.h"
#include "program.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

// One run of the program on one trailer.
class Bench : public StandIns {
 public:
  explicit Bench(const std::string& scenario, const std::filesystem::path& folder)
      : link(scenario) {
    process.folder = folder.string();
    Drive(link.link, clock);
    desktop.on_do_events = [this] { hook.Deliver(); };
    desktop.on_lay_out = [](Form& form) {
      if (form.Name() != "frmBusMonitor") return;
      form.ViewResized(12000, 8000);
      form.FindControl("txtMonitor")->ViewMeasured({0, 0, 11000, 7200, 10});  // 31 lines
    };
    program.Start();
    desktop.Run(3000);
    program.monitor->screen.Show();
  }
  ~Bench() {
    for (int i = 0; i < 20; ++i) desktop.OnModal("frmErr", [](Form& form) { form.Hide(); });
    program.session->main_form.Unload();
    clock.on_advance = nullptr;
  }

  frmBusMonitor& Screen() { return program.monitor->screen; }
  frmZeltMain& Main() { return program.session->main_form; }
  std::string Error() { return Main().txtError.Text(); }
  void Command(const std::string& line) { EXPECT_EQ(link.link.Command(line), "") << line; }
  // The lines of the box, without the two blanks in front.
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    std::istringstream all(Screen().txtMonitor.Text());
    for (std::string line; std::getline(all, line);)
      lines.push_back(line.substr(2, line.size() - 3));
    return lines;
  }
  // The senders of all messages that the next seconds show.
  std::set<std::string> SendersOf(int seconds) {
    std::set<std::string> senders;
    Screen().txtMonitor.on_change = [&] {
      const auto lines = Lines();
      if (!lines.empty()) senders.insert(lines.back().substr(0, 3));
    };
    desktop.Run(static_cast<std::uint32_t>(seconds) * 1000);
    Screen().txtMonitor.on_change = nullptr;
    return senders;
  }
  int Asked() const { return link.link.Requests("BusMonitorGetData"); }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  SimulatedLink link;
  Program program{With(desktop, clock, link)};
};

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class SimulatedBusTest : public testing::Test {
 protected:
  Bench& On(const std::string& scenario) {
    bench_.reset();
    bench_ = std::make_unique<Bench>(scenario, folder_);
    return *bench_;
  }

  ScratchFolder scratch_;
  const std::filesystem::path folder_ = scratch_.Path();

 private:
  std::unique_ptr<Bench> bench_;  // whose recording is closed before its folder goes
};

TEST_F(SimulatedBusTest, ShowsTheTrafficOfAHealthyTrailer) {
  Bench& bench = On("");
  EXPECT_EQ(bench.SendersOf(12), (std::set<std::string>{"128", "136", "137", "140", "172"}));
  EXPECT_EQ(bench.Lines().size(), 31U);
  const auto lines = bench.Lines();
  EXPECT_EQ(lines[29], lines[30]) << "the newest stands twice";
  EXPECT_EQ(bench.Error(), "");
}

// --- Silence -----------------------------------------------------------------------------------

TEST_F(SimulatedBusTest, ShowsWhoIsStillThere) {
  struct Row {
    const char* name;
    std::vector<const char*> commands;
    bool disable_broadcast;
    std::set<std::string> senders;
    bool link_error;
  };
  const std::vector<Row> rows = {
      {"cable out", {"cable out"}, false, {}, true},
      {"adapter off", {"adapter off"}, false, {}, true},
      {"towing vehicle off", {"towing_vehicle off"}, false, {"137", "172"}, false},
      {"power off", {"power off"}, false, {"128", "136", "140"}, true},
      {"broadcast off", {}, true, {"128", "136", "137", "140", "172"}, false},
      {"both off", {"towing_vehicle off"}, true, {"137", "172"}, false},
      {"power and towing vehicle off", {"power off", "towing_vehicle off"}, false, {}, true},
  };
  for (const Row& row : rows) {
    Bench& bench = On("");
    for (int i = 0; i < 5; ++i) bench.desktop.OnModal("frmErr", [](Form& form) { form.Hide(); });
    if (row.disable_broadcast) bench.Main().mnuUtility[3].UserClick();
    for (const char* command : row.commands) bench.Command(command);
    bench.desktop.Run(2000);
    EXPECT_EQ(bench.SendersOf(12), row.senders) << row.name;
    EXPECT_EQ(bench.Error().starts_with("Error:  -100"), row.link_error) << row.name;
    if (row.disable_broadcast) {
      for (const std::string& line : bench.Lines())
        EXPECT_TRUE(!line.starts_with("137") || line.starts_with("137 254")) << line;
      bench.Main().mnuUtility[4].UserClick();
      bench.desktop.Run(1500);
      const auto lines = bench.Lines();
      EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("137") && !line.starts_with("137 254");
      })) << "and it comes back";
    }
  }
}

// --- Too much ----------------------------------------------------------------------------------

TEST_F(SimulatedBusTest, AMinimizedWindowLosesMessagesAndSaysSo) {
  struct Row {
    const char* scenario;
    std::uint32_t well, lost;  // ms
  };
  for (const Row& row : {Row{"", 17000, 25000}, Row{"bus_load full", 4800, 7500}}) {
    Bench& bench = On(row.scenario);
    bench.Screen().ViewMinimized(true);
    bench.Screen().UserResize();
    const int asked = bench.Asked();
    bench.desktop.Run(row.well);
    EXPECT_EQ(bench.Error(), "") << row.scenario;
    bench.desktop.Run(row.lost - row.well);
    EXPECT_EQ(bench.Error(), "LOST A MESSAGE!!!") << row.scenario;
    EXPECT_EQ(bench.Asked(), asked) << "nothing is read meanwhile";
    EXPECT_EQ(bench.link.link.Get("bus monitored"), "1000");
    bench.Screen().ViewMinimized(false);
    bench.Screen().UserResize();
    bench.desktop.Run(8000);
    EXPECT_LT(std::stoi(bench.link.link.Get("bus monitored")), 1000);
  }
}

TEST_F(SimulatedBusTest, AtFullLoadTheScreenKeepsUpAndAFloodTakes101ATick) {
  Bench& full = On("bus_load full");
  full.desktop.Run(20000);
  EXPECT_LE(std::stoi(full.link.link.Get("bus monitored")), 100);
  EXPECT_EQ(full.Error(), "");
  Bench& flood = On("bus flood");
  flood.desktop.Run(1000);
  const int asked = flood.Asked();
  flood.desktop.Run(10000);
  EXPECT_EQ(flood.Asked() - asked, 20 * 101);
  EXPECT_EQ(flood.Lines().size(), 31U);
}

// --- Wrong -------------------------------------------------------------------------------------

TEST_F(SimulatedBusTest, NoiseIsMarkedAtTheEndOfItsLines) {
  Bench& bench = On("bus noise 0.3");
  int doubtful = 0, lines = 0;
  bench.Screen().txtMonitor.on_change = [&] {
    ++lines;
    const std::string& text = bench.Screen().txtMonitor.Text();
    doubtful += text.ends_with(" ?\r\n") ? 1 : 0;
  };
  bench.desktop.Run(20000);
  bench.Screen().txtMonitor.on_change = nullptr;
  EXPECT_NEAR(static_cast<double>(doubtful) / lines, 0.3, 0.08);
}

TEST_F(SimulatedBusTest, WhateverTheLibraryWritesIsOneLineOf150Characters) {
  for (const char* failure : {"monitor_long", "monitor_control", "monitor_full"}) {
    Bench& bench = On(std::string("failure ") + failure);
    bench.desktop.Run(5000);
    const auto lines = bench.Lines();
    EXPECT_EQ(lines.size(), 31U) << failure;
    for (const std::string& line : lines) {
      EXPECT_LE(line.size(), 150U) << failure;
      EXPECT_TRUE(std::none_of(line.begin(), line.end(), [](unsigned char c) { return c < 0x20; }))
          << failure;
      EXPECT_EQ(line.find('?') != std::string::npos, failure == std::string("monitor_control"));
    }
  }
}

TEST_F(SimulatedBusTest, WhatIsRefusedLeavesAnEmptyScreenOrAnUnchangedOne) {
  struct Row {
    const char* operation;
    bool shows;    // messages
    bool records;  // the start of a recording
    bool stops;    // its end
  };
  const Row rows[] = {
      {"BusMonitorOpen", false, true, true},       {"BusMonitorGetData", false, true, true},
      {"BusMonitorClose", true, true, true},       {"BusMonitorStartRecord", true, false, false},
      {"BusMonitorStopRecord", true, true, false},
  };
  for (const Row& row : rows) {
    Bench& bench = On(std::string("failure refuse operation=") + row.operation);
    bench.desktop.Run(3000);
    EXPECT_EQ(!bench.Lines().empty(), row.shows) << row.operation;
    bench.Screen().cmdDatalog.UserClick();
    EXPECT_EQ(bench.Screen().cmdDatalog.Caption(), row.records ? "St&op Record" : "St&art Record")
        << row.operation;
    EXPECT_EQ(bench.link.link.Get("recording"), row.records ? "on" : "off");
    if (!row.records) continue;
    bench.Screen().cmdDatalog.UserClick();
    EXPECT_EQ(bench.Screen().cmdDatalog.Caption(), row.stops ? "St&art Record" : "St&op Record")
        << row.operation;
    bench.Screen().cmdExit.UserClick();
    EXPECT_FALSE(bench.Screen().Loaded());
    EXPECT_TRUE(bench.desktop.TakeBoxes().empty()) << "this form shows no message";
  }
}

// --- The data log ------------------------------------------------------------------------------

TEST_F(SimulatedBusTest, RecordsIntoTheProgramsFolderAndTheFileHasWhatTheScreenHad) {
  Bench& bench = On("");
  bench.program.monitor->bus_monitor.SetDatalogInfo(
      {bench.program.monitor->bus_monitor.GetDatalogInfo().file, "Remorque n° 7\r\nété"});
  bench.Screen().cmdDatalog.UserClick();
  EXPECT_EQ(bench.Screen().Caption(), "Bus Monitor: " + (folder_ / "Default.txt").string());
  bench.desktop.Run(10000);
  const std::string newest = bench.Lines().back();
  bench.Screen().cmdDatalog.UserClick();
  const std::string log = ReadAll(folder_ / "Default.txt");
  EXPECT_TRUE(log.starts_with("Remorque n\xB0 7\r\n\xE9t\xE9\r\n---- ")) << log.substr(0, 60);
  EXPECT_NE(log.find(" 4S/2M\r\n"), std::string::npos);
  EXPECT_NE(log.find("  " + newest + "\r\n"), std::string::npos) << newest;
  EXPECT_GT(std::count(log.begin(), log.end(), '\n'), 400);
}

TEST_F(SimulatedBusTest, ARecordingThatIsRenamedShowsItsNewName) {
  Bench& bench = On("");
  const std::string other = (folder_ / "other.txt").string();
  bench.Command("record renames \"" + other + "\" \"other words\"");
  bench.Screen().cmdDatalog.UserClick();
  EXPECT_EQ(bench.Screen().Caption(), "Bus Monitor: " + other);
  const DatalogInfo& info = bench.program.monitor->bus_monitor.GetDatalogInfo();
  EXPECT_EQ(info.file, other);
  EXPECT_EQ(info.comments, "other words");
}

TEST_F(SimulatedBusTest, AFolderThatHasVanishedLeavesTheButtonAsItIs) {
  Bench& bench = On("");
  bench.program.monitor->bus_monitor.SetDatalogInfo({(folder_ / "gone" / "log.txt").string(), ""});
  bench.Screen().cmdDatalog.UserClick();
  EXPECT_EQ(bench.Screen().cmdDatalog.Caption(), "St&art Record");
  EXPECT_TRUE(bench.Screen().cmdOptions.Enabled());
  std::filesystem::create_directories(folder_ / "gone");
  bench.Screen().cmdDatalog.UserClick();
  EXPECT_EQ(bench.Screen().cmdDatalog.Caption(), "St&op Record");
}

TEST_F(SimulatedBusTest, TheMenusLogRunsWithoutTheScreenAndItsFirstUseStops) {
  Bench& bench = On("");
  bench.Screen().cmdExit.UserClick();
  MenuItem& item = bench.Main().mnuUtility[2];
  item.UserClick();
  EXPECT_EQ(item.Caption(), "Start &Datalog Only");
  EXPECT_EQ(bench.link.link.Get("recording"), "off");
  item.UserClick();
  EXPECT_EQ(item.Caption(), "Stop &Datalog Only");
  EXPECT_EQ(bench.link.link.Get("recording"), "on");
  bench.desktop.Run(3000);
  item.UserClick();
  EXPECT_EQ(item.Caption(), "Start &Datalog Only");
  EXPECT_EQ(bench.link.link.Get("recording"), "off");
  const std::string log = ReadAll(folder_ / "Default.txt");
  EXPECT_GT(std::count(log.begin(), log.end(), '\n'), 100);
  EXPECT_EQ(bench.Asked(), 0);
}

TEST_F(SimulatedBusTest, TheMenusCaptionChangesThoughTheStartFails) {
  Bench& bench = On("failure refuse operation=BusMonitorStartRecord");
  MenuItem& item = bench.Main().mnuUtility[2];
  item.UserClick();
  item.UserClick();
  EXPECT_EQ(item.Caption(), "Stop &Datalog Only");
  EXPECT_EQ(bench.link.link.Get("recording"), "off");
}

TEST_F(SimulatedBusTest, TheCloseDownStopsTheRecordingOnceAndBeforeTheDisconnect) {
  for (const bool connected : {true, false}) {
    Bench& bench = On("");
    bench.Screen().cmdDatalog.UserClick();
    bench.desktop.Run(1000);
    if (!connected) bench.Main().bConnected = false;
    bench.Command("log on");
    bench.Main().Unload();
    const auto& lines = bench.link.link.Log().Lines();
    std::vector<std::string> names;
    for (const std::string& line : lines) names.push_back(line.substr(0, line.find('(')));
    const auto stops = std::count_if(names.begin(), names.end(), [](const std::string& name) {
      return name.starts_with("BusMonitorStopRecord");
    });
    const auto closes = std::count_if(names.begin(), names.end(), [](const std::string& name) {
      return name.starts_with("BusMonitorClose");
    });
    EXPECT_EQ(stops, connected ? 1 : 0);
    EXPECT_EQ(closes, 0);
    if (connected) {
      ASSERT_GE(names.size(), 2U);
      EXPECT_TRUE(names[0].starts_with("BusMonitorStopRecord")) << names[0];
      EXPECT_TRUE(names[1].starts_with("Disconnect")) << names[1];
    }
    EXPECT_TRUE(ReadAll(folder_ / "Default.txt").ends_with("\r\n"));
  }
}

TEST_F(SimulatedBusTest, BehindAWizardThatWasClosedTheTrailerIsSilent) {
  Bench& bench = On("");
  bench.Screen().cmdExit.UserClick();
  bench.desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
  bench.Main().mnuSystem[0].UserClick();
  bench.desktop.TakeBoxes();
  EXPECT_EQ(bench.link.link.Get("broadcast"), "off");
  bench.Screen().Show();
  bench.desktop.Run(10000);
  ASSERT_FALSE(bench.Lines().empty());
  for (const std::string& line : bench.Lines())
    EXPECT_TRUE(!line.starts_with("137") || line.starts_with("137 254")) << line;
}

}  // namespace
}  // namespace lorimet::testing_support
