#include "session/connection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/frmRP1210Err.h"
#include "support/settings.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const Calls kConnectCalls = {"Connect", "ReadStaticData", "StartSession 83", "Password"};

class ConnectionTest : public ProgramTest {
 protected:
  void Setting(const char* name, const std::string& bytes) {
    registry.SetText(RegistryHive::kCurrentUser, kProductKey, name, bytes);
  }
};

TEST_F(ConnectionTest, TheFirstConnectionReadsTheIdentityAndStartsTheRefresh) {
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(link.TakeCalls(), kConnectCalls);
  EXPECT_TRUE(Main().bConnected);
  EXPECT_FALSE(Main().Restarting());
  EXPECT_EQ(Main().nECUType, 2);
  EXPECT_EQ(Main().tmrABS.Interval(), 300);
  EXPECT_TRUE(Main().tmrABS.Running());
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

TEST_F(ConnectionTest, WithNoSettingsTheLibraryIsToldTheDefaults) {
  Start();
  EXPECT_EQ(link.protocol, "-1");
  EXPECT_EQ(link.vendor, "");
  EXPECT_EQ(link.device_id, -1);
  EXPECT_EQ(link.family, 3);
  EXPECT_EQ(link.window, static_cast<std::uint32_t>(HeadlessMessageHook::kWindow));
}

TEST_F(ConnectionTest, EachArgumentHasItsPlaceAndItsAddressLivesOnInTheRecords) {
  Setting("Protocol", "J1708");
  Setting("Vendor", "V\xE9nd");
  Setting("DeviceID", "7");
  Start();
  SessionRecords& records = program.session->records;
  EXPECT_EQ(link.protocol, "J1708");
  EXPECT_EQ(link.vendor, "V\xE9nd");
  EXPECT_EQ(link.device_id, 7);
  EXPECT_EQ(link.ecu_data, &records.ecu_data);
  EXPECT_EQ(link.link_status, &records.link_status);
  EXPECT_EQ(link.variables,
            (std::vector<void*>{&records.before_2, &records.before_1, &records.after_1,
                                &records.after_2, &records.after_3, &records.after_word}));
}

TEST_F(ConnectionTest, TheTextsThatTheLibraryLeavesAreKeptAndTheSettingsAreReadAnewEachTime) {
  Setting("Protocol", "J1708");
  link.protocol_out = "J1708:Baud";
  link.vendor_out = "Adapter";
  Start();
  EXPECT_EQ(program.session->records.protocol, "J1708:Baud");
  EXPECT_EQ(program.session->records.vendor, "Adapter");
  Setting("Protocol", "J2497");
  Setting("DeviceID", "3");
  Main().RestartECU();
  EXPECT_EQ(link.protocol, "J2497");
  EXPECT_EQ(link.vendor, "");
  EXPECT_EQ(link.device_id, 3);
}

TEST_F(ConnectionTest, TextsWithoutTheirEndAreCutAtTheBuffersSize) {
  link.protocol_out = std::string(2000, 'p');
  link.vendor_out = std::string(2000, 'v');
  Setting("Vendor", std::string(1023, 'x'));  // the longest that the store gives
  Start();
  EXPECT_EQ(link.vendor, std::string(1023, 'x'));
  EXPECT_EQ(program.session->records.protocol, std::string(1024, 'p'));
  EXPECT_EQ(program.session->records.vendor, std::string(1024, 'v'));
}

TEST_F(ConnectionTest, EveryClientIdentifierFrom0To127IsASuccess) {
  Start();
  for (int id = 0; id <= 127; ++id) {
    link.answers["Connect"] = {id};
    Main().RestartECU();
    EXPECT_TRUE(Main().bConnected) << id;
    EXPECT_EQ(Main().txtError.Text(), "") << id;
  }
  EXPECT_EQ(desktop.ModalForms(), Calls{});
}

class FailedConnectTest : public ConnectionTest,
                          public testing::WithParamInterface<std::int32_t> {};

TEST_P(FailedConnectTest, IsShownWithItsFullNumberAndThenAdvised) {
  const std::string number = std::to_string(GetParam());
  link.answers["Connect"] = {GetParam()};
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
    std::copy_n("The driver is busy.", 19, buffer);
  };
  Calls order;
  desktop.OnModal("frmRP1210Err", [&](Form& form) {
    order.push_back("dialog");
    const auto& dialog = static_cast<frmRP1210Err&>(form);
    EXPECT_EQ(dialog.lblRP1210ErrNum.Caption(), "Number: " + number);
    EXPECT_EQ(dialog.lblRP1210ErrDesc.Caption(), "Description: The driver is busy.");
    EXPECT_EQ(dialog.lngRP1210Err, GetParam());
    form.Unload();
  });
  desktop.OnBox([&](const MessageBox&) { order.push_back("box"); });
  EXPECT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(order, (Calls{"dialog", "box"}));
  EXPECT_EQ(link.TakeCalls(), (Calls{"Connect", "GetErrorText " + number + " 1024"}));
  EXPECT_EQ(Main().txtError.Text(), "RP1210A Error: " + number + "\r\nThe driver is busy." +
                                        std::string(1024 - 19, ' ') + "\r\n");
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{DictionaryBox("Please check to make sure the device drivers and libraries are "
                                "correctly installed.",
                                "ERROR: Unable to connect to the device", BoxIcon::kCritical)});
  EXPECT_FALSE(Main().bConnected);
  EXPECT_FALSE(Main().Restarting());
  EXPECT_EQ(Main().nECUType, 0);
  EXPECT_FALSE(Main().tmrABS.Running());
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
}

INSTANTIATE_TEST_SUITE_P(Results, FailedConnectTest,
                         testing::Values(128, 129, 142, 255, 256, 32767, 32768, 65535, 65536,
                                         65536 + 5, INT32_MAX, -1, -32768, -65536, INT32_MIN));

class FailureTest : public ConnectionTest {
 protected:
  // Answers the failed connect that comes next, and takes its box.
  void Fail(const std::function<void()>& attempt) {
    link.answers["Connect"] = {130};
    desktop.OnModal("frmRP1210Err", [](Form& form) { form.Unload(); });
    attempt();
    EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
    EXPECT_FALSE(Main().bConnected);
    link.TakeCalls();
  }
};

TEST_F(FailureTest, TheLibrarysTextIsTranslatedAndKeepsItsFixedLength) {
  SetLanguage(kFrench);
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
    std::copy_n("Yes", 3, buffer);  // a text that the dictionary has
  };
  desktop.OnModal("frmRP1210Err", [](Form& form) {
    const auto& dialog = static_cast<frmRP1210Err&>(form);
    EXPECT_EQ(dialog.lblRP1210ErrNum.Caption(), "Numéro : 130");
    EXPECT_EQ(dialog.lblRP1210ErrDesc.Caption(), "Description : Oui");
    form.Unload();
  });
  link.answers["Connect"] = {130};
  program.Start();
  EXPECT_EQ(Main().txtError.Text(),
            "Erreur RP1210A : 130\r\nOui" + std::string(1024 - 3, ' ') + "\r\n");
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
}

TEST_F(FailureTest, ACodeWithNoTextShowsTheBlanks) {
  Fail([&] { program.Start(); });
  EXPECT_EQ(Main().txtError.Text(), "RP1210A Error: 130\r\n" + std::string(1024, ' ') + "\r\n");
}

TEST_F(FailureTest, ATextThatBeginsWithANulIsEmpty) {
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) { buffer[0] = '\0'; };
  Fail([&] { program.Start(); });
  EXPECT_EQ(Main().txtError.Text(), "RP1210A Error: 130\r\n\r\n");
}

TEST_F(FailureTest, ATextWithoutItsEndFillsTheFixedLength) {
  link.error_text = [](std::int32_t, char* buffer, std::int32_t length) {
    std::fill_n(buffer, length + 1, 'x');  // over the terminator too
  };
  Fail([&] { program.Start(); });
  EXPECT_EQ(Main().txtError.Text(), "RP1210A Error: 130\r\n" + std::string(1024, 'x') + "\r\n");
}

TEST_F(FailureTest, TheHookStaysAndStatusesAreHandledOnce) {
  Fail([&] { program.Start(); });
  Main().txtError.SetText("");
  EXPECT_EQ(hook.Current(), &program.session->messages);
  hook.Post(-500);
  desktop.DoEvents();
  EXPECT_EQ(desktop.Beeps(), 1);
  EXPECT_EQ(Main().txtError.Text(), "LOST A MESSAGE!!!");
}

TEST_F(FailureTest, ARestartHooksOnTopOfTheHookAndMessagesStillReachTheWindow) {
  Fail([&] { program.Start(); });
  EXPECT_EQ(program.session->messages.PreviousProcedure(), hook.Original());
  Main().RestartECU();
  EXPECT_TRUE(Main().bConnected);
  EXPECT_EQ(link.TakeCalls(), kConnectCalls);  // no Disconnect before it
  EXPECT_EQ(program.session->messages.PreviousProcedure(), &program.session->messages);
  EXPECT_EQ(hook.Send(0x0010, 0, 41), 42);
  EXPECT_EQ(hook.ReachedOriginal(), (std::vector<std::uint32_t>{0x0010}));
  hook.Post(-500);
  desktop.DoEvents();
  EXPECT_EQ(desktop.Beeps(), 1);
  // The removal puts the window's procedure back, and messages still reach the window.
  Main().RestartECU();
  EXPECT_EQ(hook.Send(0x0011, 0, 1), 2);
  EXPECT_EQ(hook.ReachedOriginal(), (std::vector<std::uint32_t>{0x0010, 0x0011}));
}

TEST_F(FailureTest, StatusesOfAClosingLibraryAreDroppedEvenUnderAHookThatStays) {
  Fail([&] { program.Start(); });
  Main().RestartECU();
  link.on_disconnect = [&] { hook.Post(-500); };
  Main().RestartECU();
  EXPECT_EQ(hook.Pending(), 0u);
  EXPECT_EQ(desktop.Beeps(), 0);
}

TEST_F(FailureTest, AfterAFailedRestartTheTimerGoesOnPaintingTheLastValues) {
  Start();
  Fail([&] { Main().RestartECU(); });
  EXPECT_TRUE(Main().tmrABS.Running());
  Ecu().dServiceBrake.Store(12.5);
  desktop.Run(300);
  EXPECT_EQ(Main().txtServiceBrake.Text(), "12.5");
}

TEST_F(FailureTest, ASuccessEmptiesTheMessageCenter) {
  Fail([&] { program.Start(); });
  EXPECT_NE(Main().txtError.Text(), "");
  Main().RestartECU();
  EXPECT_EQ(Main().txtError.Text(), "");
}

struct Tries {
  std::vector<std::int32_t> session;
  std::vector<std::int32_t> password;
  int sessions;
  int passwords;
};

class SessionTriesTest : public ConnectionTest, public testing::WithParamInterface<Tries> {};

TEST_P(SessionTriesTest, EachServiceIsTriedUpToFourTimesAndNothingIsReported) {
  const Tries& tries = GetParam();
  link.answers["StartSession"] = {tries.session.begin(), tries.session.end()};
  link.answers["Password"] = {tries.password.begin(), tries.password.end()};
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  Calls expected = {"Connect", "ReadStaticData"};
  expected.insert(expected.end(), static_cast<std::size_t>(tries.sessions), "StartSession 83");
  expected.insert(expected.end(), static_cast<std::size_t>(tries.passwords), "Password");
  EXPECT_EQ(link.TakeCalls(), expected);
  EXPECT_EQ(clock.sleeps, std::vector<std::uint32_t>{});
  EXPECT_TRUE(Main().bConnected);
}

INSTANTIATE_TEST_SUITE_P(Answers, SessionTriesTest,
                         testing::Values(Tries{{}, {}, 1, 1},            //
                                         Tries{{-1}, {}, 2, 1},          //
                                         Tries{{1, 2, 3}, {}, 4, 1},     //
                                         Tries{{1, 2, 3, 4}, {}, 4, 1},  //
                                         Tries{{}, {7, 7, 7}, 1, 4},     //
                                         Tries{{1, 1, 1, 1, 1}, {1, 1, 1, 1, 1}, 4, 4}));

}  // namespace
}  // namespace lorimet::testing_support
