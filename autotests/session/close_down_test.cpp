// The close-down of the main form: its order, and closing in the middle of something else.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/settings.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

// A screen whose end is noted among the calls of the library.
class NotedForm : public Form {
 public:
  NotedForm(Desktop& desktop, const std::string& name, Calls& notes)
      : Form(desktop, name), notes_(notes) {}
  std::function<void()> on_unload;

 protected:
  void OnUnload() override {
    notes_.push_back("unload " + Name());
    if (on_unload) on_unload();
  }

 private:
  Calls& notes_;
};

class CloseDownTest : public ProgramTest {
 protected:
  CloseDownTest() : first_(desktop, "first", link.calls), second_(desktop, "second", link.calls) {}

  void ExpectEndedInOrder() {
    EXPECT_FALSE(Main().Loaded());
    EXPECT_FALSE(Main().Visible());
    EXPECT_FALSE(Main().bConnected);
    EXPECT_TRUE(Main().Restarting());
    EXPECT_TRUE(desktop.LoadedForms().empty());
    EXPECT_EQ(process.started, Calls{"/opt/hubrest NO"});
  }

  NotedForm first_;
  NotedForm second_;
  const Calls kClose = {"BusMonitorStopRecord", "Disconnect", "StopSession"};
};

TEST_F(CloseDownTest, RunsInItsOrder) {
  Start();
  first_.Load();
  second_.Load();
  second_.on_unload = [&] { EXPECT_FALSE(Main().bConnected); };
  link.on_call = [&](const std::string& call) {
    EXPECT_TRUE(Main().Restarting()) << call;
    EXPECT_FALSE(Main().tmrABS.Running()) << call;
    EXPECT_TRUE(Main().Visible()) << call;
    EXPECT_EQ(Main().bConnected, call != "StopSession") << call;
    EXPECT_EQ(hook.Current() == hook.Original(), call != "BusMonitorStopRecord") << call;
    EXPECT_EQ(desktop.LoadedForms().size(), call == "StopSession" ? 1u : 4u) << call;
    EXPECT_EQ(process.started, Calls{}) << call;
  };
  Main().UserClose();
  EXPECT_EQ(link.TakeCalls(), (Calls{"BusMonitorStopRecord", "Disconnect", "unload second",
                                     "unload first", "StopSession"}));
  ExpectEndedInOrder();
  desktop.Run(1000);  // no timer is left
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(program.ExitStatus(), 0);
}

TEST_F(CloseDownTest, AFormThatUnloadsAnotherWithItselfIsNoHindrance) {
  Start();
  first_.Load();
  second_.Load();
  second_.on_unload = [&] { first_.Unload(); };
  Main().UserClose();
  EXPECT_EQ(link.TakeCalls(), (Calls{"BusMonitorStopRecord", "Disconnect", "unload second",
                                     "unload first", "StopSession"}));
  ExpectEndedInOrder();
}

TEST_F(CloseDownTest, TheExitButtonClosesAndIsRefusedWhileARestartRuns) {
  Start();
  link.on_connect = [&] { Main().tbrABS_exit.UserClick(); };
  Main().RestartECU();
  EXPECT_TRUE(Main().Loaded());
  link.TakeCalls();
  Main().tbrABS_exit.UserClick();
  EXPECT_EQ(link.TakeCalls(), kClose);
  ExpectEndedInOrder();
}

TEST_F(CloseDownTest, WithNoConnectionTheSessionIsStoppedAndTheLauncherStarted) {
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
  Start();
  desktop.TakeBoxes();
  Main().UserClose();
  EXPECT_EQ(link.TakeCalls(), Calls{"StopSession"});
  ExpectEndedInOrder();
  // The hook of the failed connect stays; what comes yet finds no form to write to.
  EXPECT_EQ(hook.Send(hook.message_id, 0, -500), 0);
  EXPECT_FALSE(Main().Loaded());
}

TEST_F(CloseDownTest, FailuresOfTheLibraryAreNotTold) {
  Start();
  link.always = {{"BusMonitorStopRecord", -1}, {"Disconnect", -1}, {"StopSession", -1}};
  Main().UserClose();
  EXPECT_EQ(link.TakeCalls(), kClose);
  ExpectEndedInOrder();
}

TEST_F(CloseDownTest, StatusesThatTheLibraryPostsWhileItClosesAreLost) {
  Start();
  link.on_disconnect = [&] { hook.Post(-500); };
  Main().UserClose();
  desktop.DoEvents();
  EXPECT_EQ(desktop.Beeps(), 0);
  ExpectEndedInOrder();
}

class MissingLauncherTest : public CloseDownTest {
 protected:
  void ExpectToldAtTheEnd() {
    Start();
    desktop.OnBox([&](const MessageBox&) {
      EXPECT_TRUE(Main().Visible());
      EXPECT_EQ(link.calls, kClose);
      Main().mnuTools[1].UserClick();  // refused
      Main().mnuSystem[0].UserClick();
      Main().mnuODR[1].UserClick();
      Main().tbrABS_exit.UserClick();
    });
    Main().UserClose();
    EXPECT_EQ(desktop.TakeBoxes(),
              Boxes{DictionaryBox("Could not locate the Norvick Main executable.", "",
                                  BoxIcon::kCritical)});
    EXPECT_EQ(link.TakeCalls(), kClose);
    EXPECT_FALSE(Main().Loaded());
    EXPECT_EQ(desktop.ModalForms(), Calls{});
  }
};

TEST_F(MissingLauncherTest, ThatDoesNotStartIsToldWhileTheMainFormStillStands) {
  process.starts = false;
  ExpectToldAtTheEnd();
}

TEST_F(MissingLauncherTest, WhoseFileIsGoneIsToldWhileTheMainFormStillStands) {
  process.files.clear();
  ExpectToldAtTheEnd();
}

TEST_F(MissingLauncherTest, ThatIsNotInstalledIsToldWhileTheMainFormStillStands) {
  registry.Remove(RegistryHive::kLocalMachine, std::string(kAppPathsKey) + "Hubrest.exe", "");
  ExpectToldAtTheEnd();
}

TEST_F(MissingLauncherTest, IsToldAloneWhenALibraryThatNeverConnectedPostsErrorsMeanwhile) {
  process.files.clear();
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
  Start();
  desktop.TakeBoxes();
  desktop.OnBox([&](const MessageBox&) {
    // The hook of the failed connect stands.
    for (const std::int32_t status : {0, -100, -500, -67}) hook.Post(status);
    desktop.DoEvents();
  });
  Main().UserClose();
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  EXPECT_EQ(link.TakeCalls(), Calls{"StopSession"});
  EXPECT_EQ(desktop.ModalForms(), Calls{"frmRP1210Err"});
  EXPECT_EQ(desktop.Beeps(), 0);
  EXPECT_TRUE(desktop.LoadedForms().empty());
}

TEST_F(CloseDownTest, ByTheSystemClosesTheLinkInOrderAndOnce) {
  program.End();
  EXPECT_EQ(link.TakeCalls(), Calls{});  // no connection was ever tried
  Start();
  program.End();
  EXPECT_EQ(link.TakeCalls(), kClose);
  EXPECT_EQ(process.started, Calls{});
  program.End();
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(program.ExitStatus(), 0);
}

TEST_F(CloseDownTest, BySystemAfterItsOwnDoesNothing) {
  Start();
  Main().UserClose();
  link.TakeCalls();
  program.End();
  EXPECT_EQ(link.TakeCalls(), Calls{});
}

TEST_F(CloseDownTest, LoadsNoFormBehindItself) {
  Start();
  link.on_call = [&](const std::string& call) {
    if (call == "StopSession") first_.Load();
  };
  Main().UserClose();
  second_.Show();
  EXPECT_FALSE(first_.Loaded());
  EXPECT_FALSE(second_.Loaded());
  ExpectEndedInOrder();
}

TEST_F(CloseDownTest, PaintsThePanelNoMore) {
  Start();
  desktop.life.Close();
  Ecu().dServiceBrake.Store(7.0);
  Main().tmrABS.Tick();
  EXPECT_NE(Main().txtServiceBrake.Text(), "7.0");
}

TEST_F(CloseDownTest, TheMissingLauncherIsToldInTheUsersLanguage) {
  SetLanguage(kSpanish);
  process.files.clear();
  Start();
  Main().UserClose();
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "No se encuentra el programa principal de Norvick.");
  EXPECT_EQ(boxes[0].ok, "Aceptar");
}

class ClosedInTheMiddleTest : public CloseDownTest {
 protected:
  // The user closes the window as soon as events run.
  void CloseSoon(std::uint32_t milliseconds = 0) {
    desktop.After(milliseconds, [&] { Main().UserClose(); });
  }
};

TEST_F(ClosedInTheMiddleTest, OfTheStaticReadEndsTheWaitAndTheProgram) {
  link.on_static_read = [&] { CloseSoon(100); };  // the read never ends
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(link.TakeCalls(), (Calls{"Connect", "ReadStaticData", "StartSession 83", "Password",
                                     "BusMonitorStopRecord", "Disconnect", "StopSession"}));
  EXPECT_EQ(clock.sleeps, (std::vector<std::uint32_t>{30, 30, 30, 30}));
  ExpectEndedInOrder();
  EXPECT_EQ(Main().nECUType, 0);
  EXPECT_EQ(program.ExitStatus(), 0);
}

TEST_F(ClosedInTheMiddleTest, OfTheLoadMakesNoConnection) {
  CloseSoon();
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(link.TakeCalls(), Calls{"StopSession"});
  ExpectEndedInOrder();
}

TEST_F(ClosedInTheMiddleTest, OfAConnectThatSucceededReadsNothing) {
  link.on_connect = [&] { CloseSoon(); };
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(link.TakeCalls(),
            (Calls{"Connect", "BusMonitorStopRecord", "Disconnect", "StopSession"}));
  ExpectEndedInOrder();
}

TEST_F(ClosedInTheMiddleTest, OfADisconnectDoesNotDisconnectAgain) {
  Start();
  link.on_disconnect = [&] { CloseSoon(); };
  Main().mnuDiagnostics[2].UserClick();
  EXPECT_EQ(link.TakeCalls(), (Calls{"Disconnect", "StopSession"}));
  ExpectEndedInOrder();
}

TEST_F(ClosedInTheMiddleTest, OfADisconnectThatFailsShowsNoBox) {
  Start();
  link.answers["Disconnect"] = {-1};
  link.on_disconnect = [&] { CloseSoon(); };
  Main().RestartECU();
  EXPECT_EQ(link.TakeCalls(), (Calls{"Disconnect", "StopSession"}));
  ExpectEndedInOrder();
}

TEST_F(ClosedInTheMiddleTest, OfTheConnectErrorShowsNoSecondBox) {
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [&](Form&) { Main().UserClose(); });
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(link.TakeCalls(), (Calls{"Connect", "GetErrorText 128 1024", "StopSession"}));
  ExpectEndedInOrder();
}

TEST_F(ClosedInTheMiddleTest, OfTheAdviceLeavesTheCommandsRefused) {
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
  desktop.OnBox([&](const MessageBox&) { Main().UserClose(); });
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  ExpectEndedInOrder();
}

}  // namespace
}  // namespace lorimet::testing_support
