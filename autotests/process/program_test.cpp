// The program as a process: what it shows, what it asks of the library, and how it ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "autotests/process/running_program.h"

namespace lorimet {
namespace {

using testing::AssertionResult;
using Operations = std::vector<std::string>;

const Operations kStartOperations = {
    "Connect",
    "Trailer_ABS_QOR_ReadStaticData",
    "Trailer_ABS_KWP_StartSession",
    "Trailer_ABS_KWP_Password",
};

class ProgramProcessTest : public ProcessTest {
 protected:
  // The panel of a trailer that is connected and whose identity has been read.
  static AssertionResult IsConnected(const Run& run) {
    return run.Shows("frmZeltMain", "txtECUType", "text", "TRAILER OVG 4S/2M");
  }
};

using ProgramStartTest = ProgramProcessTest;
using ProgramLinkTest = ProgramProcessTest;
using ProgramEndTest = ProgramProcessTest;

TEST_F(ProgramStartTest, ShowsTheIdentityAndTheLiveValues) {
  Trailer("field dSupplyPress 101.25");
  Trailer("distance odometer 1234567.89");
  Run run(*this, "run");
  EXPECT_TRUE(IsConnected(run));
  EXPECT_EQ(run.Get("frmZeltMain", "txtConfig", "text"), "4S/2M");
  EXPECT_EQ(run.Get("frmZeltMain", "txtSerialNum", "text"), "000417723518");
  EXPECT_TRUE(run.Shows("frmZeltMain", "txtSupply", "text", "101.3"));
  EXPECT_TRUE(run.Shows("frmZeltMain", "txtOdom", "text", "1,234,567.9"));
  Trailer("field dSupplyPress 42");
  EXPECT_TRUE(run.Shows("frmZeltMain", "txtSupply", "text", "42.0"));
  EXPECT_EQ(run.Ask("windows"), "frmZeltMain");
  auto requests = Requests();
  for (const std::string& operation : kStartOperations) EXPECT_EQ(requests[operation], 1);
  EXPECT_EQ(requests["Disconnect"], 0);
}

TEST_F(ProgramStartTest, GivesTheStoredSettingsToTheLibrary) {
  StoreSetting("\"Vendor\"=\"NLDLA32\"");
  StoreSetting("\"DeviceID\"=\"7\"");
  StoreSetting("\"Protocol\"=\"J1708\"");
  Trailer("adapter vendor NLDLA32");
  Trailer("adapter device 7");
  Trailer("adapter protocol J1708");
  Run run(*this, "run");
  EXPECT_TRUE(IsConnected(run));
  EXPECT_FALSE(std::filesystem::exists(folder / "control.errors"));
}

TEST_F(ProgramStartTest, ASecondInstanceEndsAtOnceAndTheFirstStands) {
  Run first(*this, "first");
  ASSERT_TRUE(IsConnected(first));
  const auto before = Requests();
  Run second(*this, "second");
  EXPECT_EQ(second.ExitStatus(), 0);
  EXPECT_TRUE(first.Stands());
  EXPECT_TRUE(IsConnected(first));
  EXPECT_EQ(Requests(), before);
}

TEST_F(ProgramStartTest, StartsAgainAfterItWasKilled) {
  Run first(*this, "first");
  ASSERT_TRUE(IsConnected(first));
  first.Kill();
  Run second(*this, "second");
  EXPECT_TRUE(IsConnected(second));
  EXPECT_TRUE(second.Stands());
}

TEST_F(ProgramStartTest, TwoUsersRunOneInstanceEach) {
  Run first(*this, "first");
  ASSERT_TRUE(IsConnected(first));
  std::filesystem::create_directory(folder / "other");
  environment["XDG_RUNTIME_DIR"] = folder / "other";
  std::filesystem::permissions(folder / "other", std::filesystem::perms::owner_all);
  Run second(*this, "second");
  EXPECT_TRUE(IsConnected(second));
  EXPECT_TRUE(first.Stands());
}

TEST_F(ProgramStartTest, ALibraryFileThatIsMissingIsToldInTwoDialogsAndTheProgramStands) {
  const std::string missing = folder / "nowhere/libLorimet32.so";
  environment["LORIMET32"] = missing;
  Run run(*this, "run");
  ASSERT_TRUE(run.ShowsWindow("frmRP1210Err"));
  ASSERT_TRUE(run.Tell("click frmRP1210Err cmdDetails"));
  ASSERT_TRUE(run.Shows("frmRP1210Err", "lblRP1210ErrDesc", "visible", "true"));
  EXPECT_NE(run.Get("frmRP1210Err", "lblRP1210ErrDesc", "text").find(missing), std::string::npos)
      << run.Get("frmRP1210Err", "lblRP1210ErrDesc", "text");
  ASSERT_TRUE(run.Tell("click frmRP1210Err cmdOK"));
  ASSERT_TRUE(run.ShowsWindow("msgBox"));
  EXPECT_EQ(run.Get("msgBox", ".", "windowTitle"), "ERROR: Unable to connect to the device");
  EXPECT_EQ(run.Get("msgBox", ".", "text"),
            "Please check to make sure the device drivers and libraries are correctly installed.");
  ASSERT_TRUE(run.Tell("click msgBox ."));
  ASSERT_TRUE(run.ShowsNoWindow("msgBox"));
  EXPECT_EQ(run.Get("frmZeltMain", "txtECUType", "text"), "");
  EXPECT_NE(run.Get("frmZeltMain", "txtError", "plainText").find(missing), std::string::npos);
  EXPECT_TRUE(run.Stands());

  ASSERT_TRUE(run.Tell("trigger frmZeltMain tbrABS_restart"));
  EXPECT_TRUE(run.ShowsWindow("frmRP1210Err")) << "a restart tries again";
}

TEST_F(ProgramStartTest, ADeviceThatIsNoNumberIsToldAndEndsTheProgramWithAStatus) {
  StoreSetting("\"DeviceID\"=\"COM1\"");
  Run run(*this, "run");
  ASSERT_TRUE(run.ShowsWindow("msgBox"));
  EXPECT_EQ(run.Get("msgBox", ".", "windowTitle"), "Error");
  EXPECT_EQ(run.Get("msgBox", ".", "text"), "13:  Type mismatch");
  ASSERT_TRUE(run.Tell("click msgBox ."));
  EXPECT_GT(run.ExitStatus(), 0);
}

TEST_F(ProgramLinkTest, ALostLinkIsToldAndTheMessageGoesWithItsReturn) {
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  EXPECT_EQ(run.Get("frmZeltMain", "txtError", "plainText"), "");
  Trailer("cable out");
  ASSERT_TRUE(run.ShowsWindow("frmErr"));
  EXPECT_TRUE(run.Shows("frmErr", "lblErr", "text",
                        "Successful connection was attained but has since been lost.\n"
                        "Please check connection between the PC and ECU."));
  EXPECT_TRUE(run.Get("frmZeltMain", "txtError", "plainText").starts_with("Error:  -100\n"))
      << run.Get("frmZeltMain", "txtError", "plainText");
  Trailer("cable in");
  EXPECT_TRUE(run.Shows("frmZeltMain", "txtError", "plainText", "")) << "while the dialog stands";
  ASSERT_TRUE(run.Tell("click frmErr cmdOK"));
  EXPECT_TRUE(run.ShowsNoWindow("frmErr"));
  EXPECT_EQ(run.Get("frmZeltMain", "txtError", "plainText"), "");
}

TEST_F(ProgramLinkTest, ARestartDisconnectsAndReadsAnew) {
  environment["LORIMET32"] = kRecorder;
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  EXPECT_EQ(Record(), kStartOperations);
  Trailer("identity system_name \"TRAILER ANEW\"");
  ASSERT_TRUE(run.Tell("trigger frmZeltMain tbrABS_restart"));
  EXPECT_TRUE(run.Shows("frmZeltMain", "txtECUType", "text", "TRAILER ANEW"));
  Operations wanted = kStartOperations;
  wanted.emplace_back("Disconnect");
  wanted.insert(wanted.end(), kStartOperations.begin(), kStartOperations.end());
  EXPECT_EQ(Record(), wanted);
  EXPECT_EQ(Requests()["Disconnect"], 1);
}

// A data log as its description says: comments, a head, and a line for each message.
struct DataLog {
  std::string comments;
  int messages = 0;
  int wrong = 0;  // whose bytes do not add up to 0
};

DataLog ReadDataLog(const std::filesystem::path& path) {
  DataLog log;
  std::istringstream lines(ReadFile(path));
  bool in_head = true;
  for (std::string line; std::getline(lines, line);) {
    if (in_head && !line.starts_with("---- ")) log.comments += line + "\n";
    if (!std::exchange(in_head, in_head && !line.starts_with("---- "))) {
      std::istringstream words(line);
      double stamp = -1, idle = -1;
      words >> stamp >> idle;
      int sum = 0, bytes = 0;
      for (int byte = 0; words >> byte; ++bytes) sum += byte;
      ++log.messages;
      log.wrong += sum % 256 != 0 || bytes < 3 || stamp < 0 || idle < 0.001 ? 1 : 0;
    }
  }
  return log;
}

TEST_F(ProgramLinkTest, MonitorsTheDataLinkAndRecordsItIntoAFileThatReadsBack) {
  const std::string path = folder / "log.txt";
  Trailer("record renames \"" + path + "\" \"from the yard\"");
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  ASSERT_TRUE(run.Tell("trigger frmZeltMain mnuUtility_1"));
  ASSERT_TRUE(run.ShowsWindow("frmBusMonitor"));
  ASSERT_TRUE(run.Tell("click frmBusMonitor cmdDatalog"));
  EXPECT_TRUE(run.Shows("frmBusMonitor", ".", "windowTitle", "Bus Monitor: " + path));
  EXPECT_EQ(run.Get("frmBusMonitor", "cmdOptions", "enabled"), "false");
  EXPECT_TRUE(Eventually([&] { return ReadDataLog(path).messages >= 60; }));
  const std::string shown = run.Get("frmBusMonitor", "txtMonitor", "plainText");
  EXPECT_NE(shown.find("  128 190 "), std::string::npos) << shown;
  ASSERT_TRUE(run.Tell("click frmBusMonitor cmdDatalog"));
  EXPECT_TRUE(run.Shows("frmBusMonitor", ".", "windowTitle", "Bus Monitor"));
  const DataLog log = ReadDataLog(path);
  EXPECT_EQ(log.comments, "from the yard\r\n");
  EXPECT_GE(log.messages, 60);
  EXPECT_EQ(log.wrong, 0);
  ASSERT_TRUE(run.Tell("click frmBusMonitor cmdExit"));
  ASSERT_TRUE(run.ShowsNoWindow("frmBusMonitor"));
  auto requests = Requests();
  EXPECT_EQ(requests["BusMonitorOpen"], 1);
  EXPECT_EQ(requests["BusMonitorStartRecord"], 1);
  EXPECT_EQ(requests["BusMonitorStopRecord"], 1);
  EXPECT_EQ(requests["BusMonitorClose"], 1);
  EXPECT_GE(requests["BusMonitorGetData"], 5);
}

TEST_F(ProgramEndTest, DisconnectsStopsTheSessionAndReturnsToTheLauncher) {
  InstallLauncher();
  environment["LORIMET32"] = kRecorder;
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  ASSERT_TRUE(run.Tell("trigger frmZeltMain tbrABS_exit"));
  EXPECT_EQ(run.ExitStatus(), 0);
  Operations wanted = kStartOperations;
  wanted.insert(wanted.end(),
                {"BusMonitorStopRecord", "Disconnect", "Trailer_ABS_KWP_StopSession"});
  EXPECT_EQ(Record(), wanted);
  EXPECT_TRUE(Eventually([this] { return std::filesystem::exists(folder / "launched"); }));
  EXPECT_EQ(ReadFile(folder / "launched"), "[NO]");
}

TEST_F(ProgramEndTest, SaysThatThereIsNoLauncherAndEnds) {
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  ASSERT_TRUE(run.Tell("close frmZeltMain"));
  ASSERT_TRUE(run.ShowsWindow("msgBox"));
  EXPECT_EQ(run.Get("msgBox", ".", "text"), "Could not locate the Norvick Main executable.");
  EXPECT_TRUE(run.Stands());
  ASSERT_TRUE(run.Tell("click msgBox ."));
  EXPECT_EQ(run.ExitStatus(), 0);
}

TEST_F(ProgramEndTest, EndsWhenItsWindowIsClosedInAStaticReadThatNeverEnds) {
  InstallLauncher();
  environment["LORIMET32"] = kRecorder;
  Trailer("failure static_read_never_ends");
  Run run(*this, "run");
  ASSERT_TRUE(Eventually([this] { return Record() == kStartOperations; }));
  ASSERT_TRUE(run.ShowsWindow("frmZeltMain"));
  EXPECT_EQ(run.Get("frmZeltMain", "txtECUType", "text"), "");
  ASSERT_TRUE(run.Tell("close frmZeltMain"));
  EXPECT_EQ(run.ExitStatus(), 0);
  EXPECT_EQ(Record().back(), "Trailer_ABS_KWP_StopSession");
  EXPECT_TRUE(Eventually([this] { return std::filesystem::exists(folder / "launched"); }));
}

using ProgramTerminationTest = ProgramProcessTest;

const Operations kLinkClosed = {"BusMonitorStopRecord", "Disconnect",
                                "Trailer_ABS_KWP_StopSession"};

Operations operator+(Operations operations, const Operations& more) {
  operations.insert(operations.end(), more.begin(), more.end());
  return operations;
}

TEST_F(ProgramTerminationTest, ClosesTheLinkInOrderAndStartsNothing) {
  InstallLauncher();
  environment["LORIMET32"] = kRecorder;
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  run.Terminate();
  EXPECT_EQ(run.ExitStatus(), 0);
  EXPECT_EQ(Record(), kStartOperations + kLinkClosed);
  EXPECT_FALSE(std::filesystem::exists(folder / "launched"));
}

TEST_F(ProgramTerminationTest, ClosesTheLinkInTheMidstOfTheStaticRead) {
  environment["LORIMET32"] = kRecorder;
  Trailer("failure static_read_never_ends");
  Run run(*this, "run");
  ASSERT_TRUE(Eventually([this] { return Record() == kStartOperations; }));
  run.Terminate();
  EXPECT_EQ(run.ExitStatus(), 0);
  EXPECT_EQ(Record(), kStartOperations + kLinkClosed);
}

TEST_F(ProgramTerminationTest, ClosesTheLinkBehindAScreen) {
  environment["LORIMET32"] = kRecorder;
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  ASSERT_TRUE(run.Tell("trigger frmZeltMain mnuHelp_3"));
  ASSERT_TRUE(run.ShowsWindow("frmAbout"));
  run.Terminate();
  EXPECT_EQ(run.ExitStatus(), 0);
  EXPECT_EQ(Record(), kStartOperations + kLinkClosed);
}

TEST_F(ProgramTerminationTest, TheEndOfTheApplicationClosesTheLinkToo) {
  environment["LORIMET32"] = kRecorder;
  Run run(*this, "run");
  ASSERT_TRUE(IsConnected(run));
  ASSERT_TRUE(run.Tell("exit"));
  EXPECT_EQ(run.ExitStatus(), 0);
  EXPECT_EQ(Record(), kStartOperations + kLinkClosed);
}

class StubbornLibraryTest : public ProgramProcessTest {
 protected:
  StubbornLibraryTest() { environment["LORIMET32"] = kStubborn; }
  bool HasPosted() const {
    const Operations record = Record();
    return std::ranges::find(record, "posted") != record.end();
  }
  // Closes the window and answers that there is no launcher, while the statuses come in.
  void CloseUnderFire(Run& run) {
    ASSERT_TRUE(run.Tell("close frmZeltMain"));
    ASSERT_TRUE(run.ShowsWindow("msgBox"));
    ASSERT_TRUE(Eventually([this] { return HasPosted(); }));
    EXPECT_EQ(run.Ask("windows"), "frmZeltMain\nmsgBox");
    ASSERT_TRUE(run.Tell("click msgBox ."));
    EXPECT_EQ(run.ExitStatus(), 0);
    std::filesystem::remove(folder / "record");
  }
};

TEST_F(StubbornLibraryTest, ThatRefusesToDisconnectDoesNotKeepTheProgramNorCrashIt) {
  for (const char* name : {"first", "second", "third"}) {
    Run run(*this, name);
    ASSERT_TRUE(run.Shows("frmZeltMain", "txtECUType", "text", "N/A")) << name;
    CloseUnderFire(run);
  }
}

TEST_F(StubbornLibraryTest, ThatRefusedToConnectDoesNotKeepTheProgramNorCrashIt) {
  environment["LORIMET_STUBBORN"] = "connect";
  for (const char* name : {"first", "second"}) {
    Run run(*this, name);
    ASSERT_TRUE(run.ShowsWindow("frmRP1210Err")) << name;
    ASSERT_TRUE(run.Tell("click frmRP1210Err cmdOK"));
    ASSERT_TRUE(run.ShowsWindow("msgBox"));
    ASSERT_TRUE(run.Tell("click msgBox ."));
    ASSERT_TRUE(run.ShowsNoWindow("msgBox"));
    CloseUnderFire(run);
  }
}

TEST_F(StubbornLibraryTest, IsLeftByATerminationToo) {
  Run run(*this, "run");
  ASSERT_TRUE(run.Shows("frmZeltMain", "txtECUType", "text", "N/A"));
  run.Terminate();
  EXPECT_EQ(run.ExitStatus(), 0);
}

}  // namespace
}  // namespace lorimet
