#include "session/entry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class EntryTest : public ProgramTest {};

TEST_F(EntryTest, ASecondInstanceEndsAtOnceWithNoWindowAndNoWord) {
  process.single = false;
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(program.ExitStatus(), 0);
  EXPECT_EQ(hook.registered_name, "");
  EXPECT_TRUE(desktop.LoadedForms().empty());
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(process.started, Calls{});
}

TEST_F(EntryTest, TheMainFormStandsBeforeTheFirstConnectAndTheErrorDialogIsLoadedBehindIt) {
  link.on_connect = [&] {
    EXPECT_TRUE(Main().Visible());
    EXPECT_EQ(Main().Pointer(), MousePointer::kHourglass);
    EXPECT_TRUE(Main().Restarting());
    EXPECT_EQ(Main().tmrABS.Interval(), 0);
    EXPECT_EQ(desktop.LoadedForms(), std::vector<Form*>{&Main()});
    EXPECT_EQ(program.session->records.lECUFamily, 3);
  };
  EXPECT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(hook.registered_name, "NorvickABSError");
  EXPECT_EQ(desktop.LoadedForms(), (std::vector<Form*>{&Main(), &program.support->err}));
  EXPECT_TRUE(Main().Visible());
  EXPECT_FALSE(program.support->err.Visible());
  EXPECT_EQ(desktop.ModalForms(), Calls{});
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
  EXPECT_EQ(program.ExitStatus(), 0);
}

TEST_F(EntryTest, ARegistrationThatFailsDoesNotStopTheProgram) {
  hook.message_id = 0;
  EXPECT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(program.session->messages.MessageId(), 0u);
  EXPECT_TRUE(Main().bConnected);
}

TEST_F(EntryTest, TheMainFormStartsCentredWithItsHiddenMenuAndItsKeyPreview) {
  Start();
  EXPECT_EQ(Main().Left(), (desktop.ScreenWidth() - Main().Width()) / 2);
  EXPECT_EQ(Main().Top(), (desktop.ScreenHeight() - Main().Height()) / 2);
  EXPECT_GT(Main().Left(), 0);
  EXPECT_TRUE(Main().KeyPreview());
  EXPECT_FALSE(Main().mnuABS[7].Visible());
  EXPECT_FALSE(Main().mnuODR[1].Enabled());
  EXPECT_FALSE(Main().MenusDisabled());
}

TEST_F(EntryTest, TheResultsOfTheRunAreClearedBeforeTheFirstConnect) {
  program.tests->test_results.nPressureTest = 1;
  program.tests->test_results.bSensorOrder[4] = 9;
  program.parameters->image.strTrailerVIN = "VIN";
  program.parameters->image.bStopLightCable = true;
  link.on_connect = [&] {
    EXPECT_EQ(program.tests->test_results.nPressureTest, -1);
    EXPECT_EQ(program.tests->test_results.bSensorOrder[4], 0);
    EXPECT_EQ(program.parameters->image.strTrailerVIN, "");
    EXPECT_FALSE(program.parameters->image.bStopLightCable);
  };
  Start();
}

struct DeviceId {
  const char* text;
  const char* box;
};

class BadDeviceIdTest : public EntryTest, public testing::WithParamInterface<DeviceId> {};

TEST_P(BadDeviceIdTest, IsToldOnceAndEndsTheProgram) {
  registry.SetText(RegistryHive::kCurrentUser, kProductKey, "DeviceID", GetParam().text);
  EXPECT_EQ(program.Start(), EntryResult::kEnded);
  EXPECT_EQ(program.ExitStatus(), 1);
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox(GetParam().box, "Error")});
  EXPECT_EQ(link.TakeCalls(), Calls{"StopSession"});
  EXPECT_EQ(hook.Current(), hook.Original());
}

INSTANTIATE_TEST_SUITE_P(Settings, BadDeviceIdTest,
                         testing::Values(DeviceId{"USB", "13:  Type mismatch"},
                                         DeviceId{"1 2", "13:  Type mismatch"},
                                         DeviceId{"-", "13:  Type mismatch"},
                                         DeviceId{"32768", "6:  Overflow"},
                                         DeviceId{"-32769", "6:  Overflow"}));

TEST_F(EntryTest, ABadDeviceIdAtARestartEndsTheProgramWithTheOldConnectionClosed) {
  Start();
  registry.SetText(RegistryHive::kCurrentUser, kProductKey, "DeviceID", "USB");
  try {
    Main().mnuDiagnostics[2].UserClick();
    ADD_FAILURE() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), -2147221504);
    program.OnUnhandledError(error);
  }
  EXPECT_EQ(desktop.TakeBoxes(), Boxes{PlainBox("13:  Type mismatch", "Error")});
  EXPECT_EQ(link.TakeCalls(), (Calls{"Disconnect", "StopSession"}));
  EXPECT_EQ(program.ExitStatus(), 1);
}

struct LanguageSetting {
  const char* what;
  MemoryRegistry::Value value;
  int language;
  const char* no_data;
};

class LanguageSettingTest : public EntryTest,
                            public testing::WithParamInterface<LanguageSetting> {};

TEST_P(LanguageSettingTest, SelectsALanguageOrTheNativeOne) {
  registry.SetRaw(RegistryHive::kCurrentUser, kProductKey, "Language", GetParam().value);
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  EXPECT_EQ(program.support->dictionary.Language(), GetParam().language);
  EXPECT_EQ(Main().txtECUType.Text(), GetParam().no_data);
  EXPECT_EQ(program.support->help.HelpFile(), "/program/Trailer.hlp");
}

MemoryRegistry::Value Dword(const std::vector<std::uint8_t>& bytes) { return {kRegDword, bytes}; }
MemoryRegistry::Value Words(const std::string& text) {
  MemoryRegistry::Value value{kRegString, {text.begin(), text.end()}};
  value.data.push_back(0);
  return value;
}

INSTANTIATE_TEST_SUITE_P(
    Values, LanguageSettingTest,
    testing::Values(LanguageSetting{"native", Dword({0, 0, 0, 0}), 0, "N/A"},
                    LanguageSetting{"French", Dword({1, 0, 0, 0}), 1, "N/D"},
                    LanguageSetting{"English", Dword({2, 0, 0, 0}), 2, "N/A"},
                    LanguageSetting{"Spanish", Dword({3, 0, 0, 0}), 3, "N/D"},
                    LanguageSetting{"no column", Dword({4, 0, 0, 0}), 4, "N/A"},
                    LanguageSetting{"highest", Dword({10, 0, 0, 0}), 10, "N/A"},
                    LanguageSetting{"too high", Dword({11, 0, 0, 0}), 0, "N/A"},
                    LanguageSetting{"below 0", Dword({255, 255, 255, 255}), 0, "N/A"},
                    LanguageSetting{"no 16 bits", Dword({255, 255, 255, 127}), 0, "N/A"},
                    LanguageSetting{"one byte", Dword({3}), 3, "N/D"},
                    LanguageSetting{"nine bytes", Dword({9, 9, 9, 9, 9, 9, 9, 9, 9}), 0, "N/A"},
                    LanguageSetting{"no byte", Dword({}), 0, "N/A"},
                    LanguageSetting{"text", Words("3"), 3, "N/D"},
                    LanguageSetting{"empty text", Words(""), 0, "N/A"},
                    LanguageSetting{"words", Words("French"), 0, "N/A"},
                    LanguageSetting{"long text", Words(std::string(2000, '1')), 0, "N/A"},
                    LanguageSetting{"long number", Words(std::string(900, '1')), 0, "N/A"},
                    LanguageSetting{"binary", {kRegBinary, {1, 0, 0, 0}}, 0, "N/A"},
                    LanguageSetting{"unknown type", {77, {1}}, 0, "N/A"}),
    [](const auto& test) {
      std::string name = test.param.what;
      std::erase(name, ' ');
      return name;
    });

TEST_F(EntryTest, WithNoLanguageStoredTheProgramIsNative) {
  Start();
  EXPECT_EQ(program.support->dictionary.Language(), kNative);
}

TEST_F(EntryTest, AMissingDictionaryLeavesEveryTextNative) {
  translations.opens = false;
  SetLanguage(kFrench);
  Start();
  EXPECT_EQ(Main().txtECUType.Text(), "N/A");
  EXPECT_EQ(Main().mnuABS[7].Caption(), "&Utility");
  EXPECT_EQ(program.support->help.HelpFile(), "/program/Trailer.hlp");
  EXPECT_TRUE(Main().bConnected);
}

TEST_F(EntryTest, TheCaptionsOfTheMainFormAreTranslated) {
  SetLanguage(kSpanish);
  Start();
  EXPECT_EQ(Main().lblSupply.Caption(), translations.Rows(kSpanish).at("Supply"));
  EXPECT_NE(Main().lblSupply.Caption(), "Supply");
  EXPECT_EQ(Main().txtSpeed[2].Text(), "N/D");
}

TEST_F(EntryTest, TheChoiceOfALanguageIsStored) {
  Start();
  desktop.AnswerChoice(3);
  Main().SelectLanguage();
  EXPECT_EQ(program.support->dictionary.Language(), kSpanish);
  EXPECT_EQ(program.support->settings.GetLanguage(), 3);
  desktop.AnswerChoice(std::nullopt);
  Main().SelectLanguage();
  EXPECT_EQ(program.support->settings.GetLanguage(), 3);
}

}  // namespace
}  // namespace lorimet::testing_support
