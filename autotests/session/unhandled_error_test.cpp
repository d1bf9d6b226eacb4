// A run-time error that no procedure handles: told once, the link closed in order, status 1.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "platform/runtime_error.h"
#include "session/session_part.h"
#include "support/settings.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class UnhandledErrorTest : public ProgramTest {
 protected:
  // What the top of the program does with an event that raises.
  void AtTheTop(const std::function<void()>& event) {
    try {
      event();
      ADD_FAILURE() << "nothing was raised";
    } catch (const RuntimeError& error) {
      program.OnUnhandledError(error);
    }
  }
  static void Raise() { throw RuntimeError(ErrorNumber::kOverflow); }

  const Boxes kOverflowBox = {
      PlainBox("Run-time error '6':\r\n\r\nOverflow", "Norvick Lorimet", BoxIcon::kCritical)};
  const Calls kClose = {"BusMonitorStopRecord", "Disconnect", "StopSession"};
};

TEST_F(UnhandledErrorTest, InACommandIsToldAndClosesTheLinkInOrder) {
  Start();
  Main().actions.sign_off = Raise;
  desktop.OnBox([&](const MessageBox&) { EXPECT_EQ(link.calls, Calls{}); });
  AtTheTop([&] { Main().mnuSignOff[0].UserClick(); });
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(link.TakeCalls(), kClose);
  EXPECT_EQ(hook.Current(), hook.Original());
  EXPECT_FALSE(Main().bConnected);
  EXPECT_FALSE(Main().tmrABS.Running());
  EXPECT_TRUE(Main().Restarting());
  EXPECT_EQ(program.ExitStatus(), 1);
  EXPECT_EQ(process.started, Calls{});  // no orderly exit: the launcher stays
}

TEST_F(UnhandledErrorTest, InAStatusIsToldLikewise) {
  Start();
  program.session->messages.show_upload_step = [](const std::string&, int) { Raise(); };
  AtTheTop([&] { hook.Send(hook.message_id, 0, -67); });
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(link.TakeCalls(), kClose);
}

TEST_F(UnhandledErrorTest, IsToldAloneWhateverTheLibraryPostsMeanwhile) {
  Start();
  desktop.OnBox([&](const MessageBox&) {
    for (const std::int32_t status : {-500, 0, -100}) hook.Post(status);
    desktop.DoEvents();
    Main().mnuSystem[0].UserClick();
    desktop.Run(300);
  });
  AtTheTop(Raise);
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(desktop.ModalForms(), Calls{});
  EXPECT_EQ(desktop.Beeps(), 0);
  EXPECT_EQ(link.TakeCalls(), kClose);
}

TEST_F(UnhandledErrorTest, OfAProcedureThatShowsItItselfIsToldAloneToo) {
  registry.SetText(RegistryHive::kCurrentUser, kProductKey, "DeviceID", "COM1");
  desktop.OnBox([&](const MessageBox&) {
    program.session->messages.SubclassMainWindow();
    hook.Post(-100);
    desktop.DoEvents();
  });
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox("13:  Type mismatch", "Error")});
  EXPECT_EQ(desktop.ModalForms(), Calls{});
  EXPECT_EQ(program.ExitStatus(), 1);
}

TEST_F(UnhandledErrorTest, ThatTheUserHasReadAlreadyShowsNoSecondBox) {
  Start();
  program.OnUnhandledError(RuntimeError(kObjectError, ""));
  EXPECT_EQ(link.TakeCalls(), kClose);
  EXPECT_EQ(program.ExitStatus(), 1);
}

TEST_F(UnhandledErrorTest, WithNoConnectionStillStopsTheSession) {
  program.OnUnhandledError(RuntimeError(ErrorNumber::kPermissionDenied));
  EXPECT_EQ(desktop.TakeBoxes(), (Boxes{PlainBox("Run-time error '70':\r\n\r\nPermission denied",
                                                 "Norvick Lorimet", BoxIcon::kCritical)}));
  EXPECT_EQ(link.TakeCalls(), Calls{"StopSession"});
  EXPECT_FALSE(Main().Loaded());
}

TEST_F(UnhandledErrorTest, WhenTheRecordingStopsInTheCloseDownStillClosesTheLink) {
  Start();
  Main().actions.stop_recording = Raise;
  AtTheTop([&] { Main().UserClose(); });
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(link.TakeCalls(), (Calls{"Disconnect", "StopSession"}));
  EXPECT_EQ(program.ExitStatus(), 1);
}

TEST_F(UnhandledErrorTest, AfterTheCloseDownDoesNothingTwice) {
  Start();
  Main().UserClose();
  link.TakeCalls();
  AtTheTop(Raise);
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_FALSE(Main().Loaded());
}

TEST_F(UnhandledErrorTest, InTheMiddleOfTheFirstConnectionEndsItsWait) {
  link.on_static_read = [&] {
    desktop.After(50, [&] { program.OnUnhandledError(RuntimeError(ErrorNumber::kOverflow)); });
  };
  program.Start();
  EXPECT_EQ(desktop.TakeBoxes(), kOverflowBox);
  EXPECT_EQ(link.TakeCalls(), (Calls{"Connect", "ReadStaticData", "StartSession 83", "Password",
                                     "BusMonitorStopRecord", "Disconnect", "StopSession"}));
  EXPECT_EQ(program.ExitStatus(), 1);
}

}  // namespace
}  // namespace lorimet::testing_support
