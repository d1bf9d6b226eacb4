// What stands around the tests of the menu, the stop light activation and the flag's screen, on a
// trailer that answers, refuses or is gone.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "autotests/signoff/screen_notes.h"
#include "session/session_part.h"
#include "tests/test_results.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

const Calls kOpening = {"StartSession(0x83)", "Password()", "StartRoutine(0x42, 4, [00 00 01 00])"};
constexpr const char* kAccessBack = "StartRoutine(0x42, 4, [00 00 00 00])";

Calls Repeat(const char* call, std::size_t times) { return Calls(times, call); }
Calls Join(std::initializer_list<Calls> parts) {
  Calls all;
  for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

TEST(TestFrame, AccessAndBroadcastAreSwitchedAroundATest) {
  OperatedProgram stand("");
  stand.on_look = [&] {
    if (stand.screen.Name() != "frmLampTest") return;
    EXPECT_EQ(stand.Trailer().Get("access"), "on");
    EXPECT_EQ(stand.Trailer().Get("broadcast"), "off");
  };
  stand.TakeSequence();
  stand.RunTest(3);
  EXPECT_EQ(stand.Trailer().Get("access"), "off");
  EXPECT_EQ(stand.Trailer().Get("broadcast"), "on");
  const Calls lamp = {"StartRoutine(0x07, 3, [01 E8 03])", "StartRoutine(0x07, 3, [00 E8 03])"};
  EXPECT_EQ(stand.TakeSequence(), Join({kOpening, lamp, lamp, {lamp[0]}, {kAccessBack}}));
}

TEST(TestFrame, TheToolbarsLampTestAsksForNoAccess) {
  OperatedProgram stand("");
  stand.TakeSequence();
  stand.Tests().commands.RunLampTestFromToolbar();
  const Calls calls = stand.TakeSequence();
  ASSERT_GE(calls.size(), 3u);
  EXPECT_EQ(Calls(calls.begin(), calls.begin() + 3),
            (Calls{"StartSession(0x83)", "Password()", "StartRoutine(0x07, 3, [01 E8 03])"}));
  EXPECT_EQ(stand.Results().nLampTest, 1);
}

// The access meets an ECU that restarts: four refusals are right on a healthy trailer.
TEST(TestFrame, ACalibrationResetsTheEcuWhichThenRefusesTheAccessFourTimes) {
  OperatedProgram stand("suspension mechanical");
  stand.TakeSequence();
  stand.RunTest(4);
  EXPECT_EQ(stand.TakeSequence(),
            Join({kOpening,
                  {"IOControl(0x05, 1, [01])", "StartSession(0x83)", "Password()",
                   "StartRoutine(0x3C, 1, [01])", "StartRoutine(0x05, 0, [])", "ClearAllFaults()",
                   // The sensor is looked at while the message stands.
                   "IOControl(0x05, 1, [01])", "ResetECU()", "sleep 200"},
                  Repeat(kAccessBack, 4)}));
  EXPECT_EQ(stand.Trailer().Get("access"), "off");
}

TEST(TestFrame, OneRefusalOfThatResetIsEnoughToLeaveTheEcuAsItIs) {
  OperatedProgram stand("suspension mechanical\nfailure reset_refused times=1");
  stand.RunTest(4);
  EXPECT_EQ(stand.Trailer().Get("ecu"), "on");
  EXPECT_EQ(stand.Results().nHeightCalCD, 1);
}

TEST(TestFrame, TheMainScreenOwnsTheFirstFourTests) {
  OperatedProgram stand("", {.closes_early = true});
  const std::pair<const char*, const char*> forms[] = {{"frmPressureTest", "frmZeltMain"},
                                                       {"frmRedundancyTest", "frmZeltMain"},
                                                       {"frmSensorOrientation", "frmZeltMain"},
                                                       {"frmLampTest", "frmZeltMain"},
                                                       {"frmSuspensionCal", ""},
                                                       {"frmStopLight", ""}};
  for (int index = 0; index <= 5; ++index) {
    const auto& [form, owner] = forms[index];
    stand.desktop.OnModal(form, [](Form& screen) { screen.UserClose(); });
    stand.RunTest(index);
    EXPECT_EQ(stand.desktop.ModalForms().back(), form);
    EXPECT_EQ(stand.desktop.OwnerOf(form), owner) << form;
  }
}

// --- Stop lights -------------------------------------------------------------------------------

struct LightRow {
  std::string scenario;
  bool lit;
};

// The parameters that give the trailer the option.
const std::string kOption =
    "stop_lights present\nparameter EOL5 18 1\nparameter EOL2 2 0x20\nparameter EOL3 33 3\n"
    "parameter EOL9 2 4\nparameter EOL9 15 73\n";

TEST(StopLightRows, LightWhereEverythingIsThereAlone) {
  const LightRow rows[] = {
      {kOption, true},
      {kOption + "stop_lights missing", false},
      {kOption + "defect stop_lights dead", false},
      {"stop_lights present", false},
      {kOption + "when access = on cable out", false},
  };
  for (const LightRow& row : rows) {
    OperatedProgram stand(row.scenario);
    bool lit = false;
    stand.operator_works = false;
    stand.desktop.After(100, [&] { stand.screen.Press("cmdTrl1On"); });
    stand.desktop.After(1500, [&] { lit = stand.Trailer().Get("stop_lights") == "on"; });
    stand.desktop.After(1600, [&] { stand.screen.Press("cmdTrl1Off"); });
    stand.desktop.After(2300, [&] { EXPECT_EQ(stand.Trailer().Get("stop_lights"), "off"); });
    stand.desktop.After(2400, [&] { stand.screen.Press("cmdOK"); });  // of a lost link
    stand.desktop.After(2500, [&] { stand.screen.Press("Command1"); });
    for (std::uint32_t at = 3000; at < 30'000; at += 500)
      stand.desktop.After(at, [&] {
        for (const char* button : {"ok", "cmdOK"}) stand.screen.Press(button);
      });
    stand.RunTest(5);
    EXPECT_EQ(lit, row.lit) << row.scenario;
    stand.desktop.TakeBoxes();
  }
}

TEST(StopLightRows, EveryTickRepeatsTheStateAndTheConnectionBeginsAnewBehindIt) {
  OperatedProgram stand(kOption);
  stand.operator_works = false;
  stand.desktop.After(100, [&] { stand.screen.Press("cmdTrl1On"); });
  stand.desktop.After(1200, [&] { stand.screen.Press("cmdTrl1Off"); });
  stand.desktop.After(1800, [&] { stand.screen.Press("cmdTrl1On"); });
  stand.desktop.After(2200, [&] { stand.screen.Press("Command1"); });
  stand.TakeSequence();
  stand.RunTest(5);
  const char* on = "StopLightActivation(137, 1)";
  const char* off = "StopLightActivation(137, 0)";
  EXPECT_EQ(stand.TakeSequence(),
            Join({kOpening,
                  {on, on, off, on, off, "Disconnect()", "Connect(\"-1\", \"\", -1, 3)",
                   "ReadStaticData()", "StartSession(0x83)", "Password()", "sleep 30 x 27",
                   kAccessBack}}));
  EXPECT_TRUE(stand.Main().bConnected);
  EXPECT_EQ(stand.Trailer().Get("stop_lights"), "off");
}

// --- The flag's screen -------------------------------------------------------------------------

struct FlagRow {
  const char* scenario;
  const char* at_load;
  const char* set_to_pass;
  const char* set_to_fail;
};

constexpr FlagRow kFlagRows[] = {
    {"flag 1", "EOL Test Passed", "EOL Test Passed", "EOL Test Not Passed"},
    {"flag 2", "EOL Test Not Passed", "EOL Test Passed", "EOL Test Not Passed"},
    {"flag 7", "Unknown", "EOL Test Passed", "EOL Test Not Passed"},
    {"flag 0", "Unknown", "EOL Test Passed", "EOL Test Not Passed"},
    {"flag 2\nfailure write_dropped block=0x2A", "EOL Test Not Passed", "EOL Test Not Passed",
     "EOL Test Not Passed"},
    {"flag 1\nfailure write_refused block=0x2A", "EOL Test Passed", "EOL Test Passed",
     "EOL Test Passed"},
    {"flag 1\nfailure read_refused block=0x2A", "Unknown", "Unknown", "Unknown"},
    {"flag 1\nfailure read_refused block=0x2A times=3", "EOL Test Passed", "EOL Test Passed",
     "EOL Test Not Passed"},
    {"flag 1\nfailure answer_status block=0x2A value=1", "Error", "Error", "Error"},
    {"flag 1\nfailure answer_status block=0x2A value=0x22", "EOL Test Passed", "EOL Test Passed",
     "EOL Test Not Passed"},
    {"flag 1\nat 1.0 cable out", "Error", "Error", "Error"},
    {"flag 1\nfailure reset_refused times=3", "EOL Test Passed", "EOL Test Passed",
     "EOL Test Not Passed"},
    {"flag 1\nfailure clear_refused", "EOL Test Passed", "EOL Test Passed", "EOL Test Not Passed"},
};

TEST(FlagRows, TheScreenShowsWhatTheReadingGives) {
  for (const FlagRow& row : kFlagRows) {
    OperatedProgram stand(row.scenario);
    stand.desktop.Run(1000);
    stand.operator_works = false;
    const auto dismiss = [&] {
      if (stand.screen.Name() == "frmErr") stand.screen.Press("cmdOK");
    };
    frmSetEOLBit& screen = stand.Tests().eol_bit;
    stand.desktop.OnModal("frmSetEOLBit", [&](Form&) {
      EXPECT_EQ(screen.txtStatus.Text(), row.at_load) << row.scenario;
      screen.cmdSetStatusFlag.UserClick();
      EXPECT_EQ(screen.txtStatus.Text(), row.set_to_pass) << row.scenario;
      screen.cmdClearStatusFlag.UserClick();
      EXPECT_EQ(screen.txtStatus.Text(), row.set_to_fail) << row.scenario;
      screen.cmdClose.UserClick();
    });
    stand.on_look = dismiss;
    screen.Show(Modality::kModal);
    EXPECT_FALSE(screen.Visible());
  }
}

TEST(FlagRows, ARefusedResetLeavesTheModeAsItWas) {
  for (const int times : {3, 4}) {
    OperatedProgram stand("failure reset_refused times=" + std::to_string(times));
    stand.RunTest(1);
    ASSERT_EQ(stand.Trailer().Get("mode"), "redundancy");
    stand.desktop.OnModal("frmSetEOLBit", [&](Form& form) {
      static_cast<frmSetEOLBit&>(form).cmdSetStatusFlag.UserClick();
      form.UserClose();
    });
    stand.Tests().eol_bit.Show(Modality::kModal);
    EXPECT_EQ(stand.Trailer().Get("mode"), times == 3 ? "normal" : "redundancy");
    EXPECT_EQ(stand.Trailer().Get("flag"), "1");
  }
}

}  // namespace
}  // namespace lorimet::testing_support
