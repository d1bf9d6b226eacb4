// A restart of the connection: its order, its refusals, and what can happen in its waits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class RestartTest : public ProgramTest {
 protected:
  const Calls kRestartCalls = {"Disconnect", "Connect", "ReadStaticData", "StartSession 83",
                               "Password"};
};

TEST_F(RestartTest, DisconnectsAndClearsThePanelBeforeTheNewAttempt) {
  Start();
  desktop.Run(300);
  link.on_disconnect = [&] {
    EXPECT_TRUE(Main().bConnected);
    EXPECT_TRUE(Main().Restarting());
    EXPECT_EQ(hook.Current(), hook.Original());
    EXPECT_EQ(Main().txtWarningLamp.Text(), "Off");  // not cleared yet
  };
  link.on_connect = [&] {
    EXPECT_FALSE(Main().bConnected);
    EXPECT_EQ(hook.Current(), &program.session->messages);
    EXPECT_EQ(Main().txtWarningLamp.Text(), "N/A");
  };
  Main().RestartECU();
  EXPECT_EQ(link.TakeCalls(), kRestartCalls);
  EXPECT_TRUE(Main().bConnected);
  EXPECT_EQ(Main().tmrABS.Interval(), 300);
}

TEST_F(RestartTest, TheSecondOfTwoQuickRestartsIsRefused) {
  Start();
  link.on_connect = [&] {
    Main().mnuDiagnostics[2].UserClick();
    Main().tbrABS_restart.UserClick();
    Main().SetMousePointer(MousePointer::kHourglass);
    Main().RestartECU();
    EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);  // all that a refused restart does
    EXPECT_TRUE(Main().Restarting());
  };
  Main().mnuDiagnostics[2].UserClick();
  EXPECT_EQ(link.TakeCalls(), kRestartCalls);
  EXPECT_FALSE(Main().Restarting());
}

TEST_F(RestartTest, ADisconnectThatFailsEndsTheRestartAndLeavesThePointer) {
  Start();
  Main().SetMousePointer(MousePointer::kHourglass);
  link.answers["Disconnect"] = {-1};
  desktop.OnBox([&](const MessageBox&) {
    EXPECT_FALSE(Main().bConnected);
    EXPECT_TRUE(Main().Restarting());
    EXPECT_EQ(Main().txtPrimaryVolts.Text(), "N/A");  // cleared already
  });
  Main().RestartECU();
  EXPECT_EQ(link.TakeCalls(), Calls{"Disconnect"});
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{DictionaryBox(
                "Please check the connection and make sure the cable is properly connected.  "
                "Click the \"Restart\" button to try again.",
                "ERROR: Unable to connect to the device", BoxIcon::kCritical)});
  EXPECT_FALSE(Main().bConnected);
  EXPECT_FALSE(Main().Restarting());
  EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
  // The next one has nothing to disconnect.
  Main().RestartECU();
  EXPECT_EQ(link.TakeCalls(), (Calls{"Connect", "ReadStaticData", "StartSession 83", "Password"}));
}

TEST_F(RestartTest, ThePointerIsTheHourglassFromTheConnectionToTheIdentity) {
  Start();
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
  link.on_connect = [&] { EXPECT_EQ(Main().Pointer(), MousePointer::kArrow); };
  link.on_static_read = [&] {
    EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
    Ecu().nLinkJobDone.Store(-1);
  };
  Main().RestartECU();
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
  link.on_connect = nullptr;
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
  Main().SetMousePointer(MousePointer::kHourglass);
  Main().RestartECU();
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
}

TEST_F(RestartTest, ItsErrorsAreToldInTheUsersLanguage) {
  SetLanguage(kFrench);
  Start();
  const auto& rows = translations.Rows(kFrench);
  link.answers["Disconnect"] = {-1};
  Main().RestartECU();
  link.answers["Connect"] = {128};
  desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
  Main().RestartECU();
  const Boxes boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text,
            rows.at("Please check the connection and make sure the cable is properly connected.  "
                    "Click the \"Restart\" button to try again."));
  EXPECT_EQ(boxes[1].text, rows.at("Please check to make sure the device drivers and libraries are "
                                   "correctly installed."));
  for (const MessageBox& box : boxes) {
    EXPECT_EQ(box.title, rows.at("ERROR: Unable to connect to the device"));
    EXPECT_NE(box.title, "ERROR: Unable to connect to the device");
  }
}

TEST_F(RestartTest, AnyResultOfTheDisconnectButZeroIsAFailure) {
  for (const std::int32_t result : {1, -1, 65536, INT32_MIN}) {
    Main().Load();
    Main().bConnected = true;
    link.answers["Disconnect"] = {result};
    link.TakeCalls();
    Main().RestartECU();
    EXPECT_EQ(link.TakeCalls(), Calls{"Disconnect"}) << result;
    EXPECT_EQ(desktop.TakeBoxes().size(), 1u) << result;
  }
}

TEST_F(RestartTest, AConnectionThatStandsAfterTheEventsEndsTheRestart) {
  Start();
  desktop.After(0, [&] {
    Main().bConnected = true;
    Main().SetMousePointer(MousePointer::kHourglass);
  });
  Main().bConnected = false;
  Main().RestartECU();
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_FALSE(Main().Restarting());
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

TEST_F(RestartTest, StatusesOnTheirWayWhenTheDisconnectReturnsAreDropped) {
  Start();
  link.on_disconnect = [&] {
    hook.Post(-500);
    hook.Post(-100);
  };
  Main().RestartECU();
  EXPECT_EQ(hook.Pending(), 0u);
  EXPECT_EQ(desktop.Beeps(), 0);
  EXPECT_EQ(Main().txtError.Text(), "");
  EXPECT_EQ(link.TakeCalls(), kRestartCalls);
}

TEST_F(RestartTest, TheStaticReadIsWaitedForIn30MillisecondSteps) {
  link.on_static_read = [&] {
    Ecu().nLinkJobDone.Store(0);
    desktop.After(100, [&] { Ecu().nLinkJobDone.Store(1); });
  };
  link.on_connect = [&] { EXPECT_EQ(Main().nECUType, 0); };
  Calls seen;
  desktop.After(60, [&] {
    seen.push_back(Main().Restarting() ? "refuses" : "open");
    EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
    EXPECT_TRUE(Main().bConnected);
    Main().mnuTools[1].UserClick();
    Main().tbrABS_restart.UserClick();
  });
  link.TakeSequence();
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(seen, Calls{"refuses"});
  EXPECT_EQ(link.TakeSequence(), (Calls{"Connect", "ReadStaticData", "StartSession 83", "Password",
                                        "sleep 30", "sleep 30", "sleep 30", "sleep 30"}));
  EXPECT_EQ(Main().nECUType, 2);
}

TEST_F(RestartTest, AJobThatHasEndedBeforeIsNotWaitedFor) {
  link.on_static_read = nullptr;
  Ecu().nLinkJobDone.Store(-1);
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(clock.sleeps, std::vector<std::uint32_t>{});
  EXPECT_EQ(Ecu().nLinkJobDone.Load(), -1);  // not cleared
}

TEST_F(RestartTest, AStatusInTheMiddleOfTheWaitIsHandled) {
  link.on_static_read = [&] {
    Ecu().nLinkJobDone.Store(0);
    desktop.After(50, [&] { hook.Post(-500); });
    desktop.After(100, [&] { Ecu().nLinkJobDone.Store(-1); });
  };
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(desktop.Beeps(), 1);
  EXPECT_EQ(Main().txtError.Text(), "LOST A MESSAGE!!!");
}

TEST_F(RestartTest, WithNoIdentityTheSessionStillStands) {
  Start();
  EXPECT_EQ(Main().txtECUType.Text(), "N/A");
  EXPECT_TRUE(Main().bConnected);
  EXPECT_TRUE(Main().tmrABS.Running());
}

TEST_F(RestartTest, TheNextPassPaintsEverySpeedAgain) {
  Ecu().bNumSensors.Store(4);
  Ecu().bNumModulators.Store(2);
  for (auto& speed : Ecu().dWheelSpeed) speed.Store(30.0);
  Start();
  desktop.Run(300);
  EXPECT_EQ(Main().txtSpeed[5].Text(), "30.0");
  Main().RestartECU();
  EXPECT_EQ(Main().txtSpeed[5].Text(), "N/A");
  desktop.Run(300);
  for (int i = 2; i <= 5; ++i) EXPECT_EQ(Main().txtSpeed[i].Text(), "30.0") << i;
}

TEST_F(RestartTest, AFaultCountOtherThanZeroRepaintsTheIdentityAfterARestart) {
  Ecu().bNumFaults.Store(3);
  Ecu().dOdometer.Store(1.0);
  Start();
  desktop.Run(600);
  EXPECT_EQ(Main().txtOdom.Text(), "1.0");
  Main().RestartECU();
  Ecu().dOdometer.Store(2.0);
  desktop.Run(300);
  EXPECT_EQ(Main().txtOdom.Text(), "1.0");  // the pass that found the count changed from 0
  desktop.Run(300);
  EXPECT_EQ(Main().txtOdom.Text(), "2.0");
}

TEST_F(RestartTest, ALinkThatWasOnceAttainedGivesTheDialogOtherWords) {
  Start();
  desktop.Run(300);
  const std::string loaded = program.support->err.lblErr.Caption();
  EXPECT_EQ(loaded.substr(0, 48), "Communications are only partially functioning.\r\n");
  program.session->records.link_status.bLinkAttained.Store(0xFF);
  desktop.Run(300);
  const std::string lost =
      "Successful connection was attained but has since been lost.\r\n"
      "Please check connection between the PC and ECU.";
  EXPECT_EQ(program.support->err.lblErr.Caption(), lost);
  EXPECT_FALSE(program.support->err.Visible());
  program.session->records.link_status.bLinkAttained.Store(0);
  desktop.Run(300);
  EXPECT_EQ(program.support->err.lblErr.Caption(), lost);  // never set back
}

}  // namespace
}  // namespace lorimet::testing_support
