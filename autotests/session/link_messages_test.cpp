#include "session/link_messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "platform/runtime_error.h"
#include "session/ecu_data.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

using Calls = std::vector<std::string>;

class LinkMessagesTest : public ProgramTest {
 protected:
  LinkMessagesTest() {
    link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
      std::copy_n("Bus off", 7, buffer);
    };
  }
  void SetUp() override { Start(); }
  std::intptr_t Status(std::int32_t status) { return hook.Send(hook.message_id, 7, status); }
  std::string Center() { return Main().txtError.Text(); }
  std::int32_t LastError() { return program.session->messages.LastLinkError(); }
  // The user answers the next frmErr by its button.
  void AnswerErr() {
    desktop.OnModal("frmErr", [](Form& form) { static_cast<frmErr&>(form).cmdOK.UserClick(); });
  }
  static std::string Padded(const std::string& words, std::size_t length) {
    return words + std::string(length - words.size(), ' ');
  }
};

TEST_F(LinkMessagesTest, AHealthyLinkWithNothingShownChangesNothing) {
  EXPECT_EQ(Status(0), 0);
  EXPECT_EQ(Center(), "");
  EXPECT_EQ(LastError(), 0);
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(desktop.Beeps(), 0);
}

TEST_F(LinkMessagesTest, ALinkErrorWritesTheLibrarysTextWithItsBlanksAndOpensTheDialog) {
  AnswerErr();
  EXPECT_EQ(Status(-100), 0);
  EXPECT_EQ(Center(), "Error:  -100\r\n" + Padded("Bus off", 256));
  EXPECT_EQ(LastError(), -100);
  EXPECT_EQ(link.TakeCalls(), (Calls{"GetErrorText -100 256"}));
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmErr"}));
  EXPECT_FALSE(program.support->err.Visible());
}

TEST_F(LinkMessagesTest, TheWordsBeforeTheErrorNumberAreTranslatedAndTheLibrarysTextIsNot) {
  program.support->dictionary.SetLanguage(kFrench);
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
    std::copy_n("None", 4, buffer);
  };
  AnswerErr();
  Status(-100);
  EXPECT_EQ(Center(), "Erreur :  -100\r\n" + Padded("None", 256));
}

TEST_F(LinkMessagesTest, AHealthyLinkRemovesTheErrorAndTheNextErrorIsShownAgain) {
  AnswerErr();
  Status(-100);
  Status(0);
  EXPECT_EQ(Center(), "");
  EXPECT_EQ(LastError(), 0);
  AnswerErr();
  Status(-100);
  EXPECT_EQ(LastError(), -100);
  EXPECT_EQ(link.TakeCalls(), (Calls{"GetErrorText -100 256", "GetErrorText -100 256"}));
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmErr", "frmErr"}));
}

TEST_F(LinkMessagesTest, WhileAnErrorIsShownFurtherErrorsAreIgnored) {
  AnswerErr();
  Status(-100);
  const std::string shown = Center();
  link.TakeCalls();
  EXPECT_EQ(Status(-100), 0);
  EXPECT_EQ(Center(), shown);
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmErr"}));
}

TEST_F(LinkMessagesTest, AnErrorIsIgnoredWhileALostMessageIsShown) {
  Status(-500);
  EXPECT_EQ(Status(-100), 0);
  EXPECT_EQ(Center(), "LOST A MESSAGE!!!");
  EXPECT_EQ(LastError(), 0);
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(desktop.ModalForms(), Calls{});
}

TEST_F(LinkMessagesTest, EachLostMessageBeepsAndTheTextStaysUntilTheLinkIsHealthy) {
  Status(-500);
  Status(-500);
  EXPECT_EQ(desktop.Beeps(), 2);
  EXPECT_EQ(Center(), "LOST A MESSAGE!!!");
  Status(-66);
  Status(-99);
  EXPECT_EQ(Center(), "LOST A MESSAGE!!!");
  Status(0);
  EXPECT_EQ(Center(), "");
  EXPECT_EQ(LastError(), 0);
}

TEST_F(LinkMessagesTest, ALostMessageReplacesAnErrorInTheUsersLanguage) {
  AnswerErr();
  Status(-100);
  program.support->dictionary.SetLanguage(kSpanish);
  Status(-500);
  EXPECT_EQ(Center(), "¡¡¡MENSAJE PERDIDO!!!");
  EXPECT_EQ(LastError(), -100);
  Status(0);
  EXPECT_EQ(Center(), "");
  EXPECT_EQ(LastError(), 0);
}

TEST_F(LinkMessagesTest, ATextThatIsNoErrorOfTheLinkIsRemovedToo) {
  Main().txtError.SetText("RP1210A Error: 128");
  Status(0);
  EXPECT_EQ(Center(), "");
}

TEST_F(LinkMessagesTest, AnUnlistedStatusLeavesTheTextAndAnswersZero) {
  Main().txtError.SetText("stands");
  for (const std::int32_t status :
       {-99, -101, -1, 1, 100, 500, 66, 67, -65, -68, -499, -501, INT32_MAX, INT32_MIN}) {
    EXPECT_EQ(Status(status), 0) << status;
    EXPECT_EQ(Center(), "stands") << status;
  }
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(desktop.Beeps(), 0);
}

TEST_F(LinkMessagesTest, AnEmptyLibraryTextShowsNothingButIsRememberedUntilTheLinkIsHealthy) {
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) { buffer[0] = '\0'; };
  Status(-100);
  EXPECT_EQ(Center(), "");
  EXPECT_EQ(LastError(), -100);
  EXPECT_EQ(desktop.ModalForms(), Calls{});
  Status(0);
  EXPECT_EQ(LastError(), 0);
}

TEST_F(LinkMessagesTest, ACodeWithNoTextShowsTheBlanks) {
  link.error_text = nullptr;
  AnswerErr();
  Status(-100);
  EXPECT_EQ(Center(), "Error:  -100\r\n" + std::string(256, ' '));
}

TEST_F(LinkMessagesTest, ATextWithoutItsEndIsCutAtTheBuffersLength) {
  link.error_text = [](std::int32_t, char* buffer, std::int32_t) {
    std::fill_n(buffer, 1024, '\xE9');  // all that every text buffer has
  };
  AnswerErr();
  Status(-100);
  std::string expected = "Error:  -100\r\n";
  for (int i = 0; i < 256; ++i) expected += "é";
  EXPECT_EQ(Center(), expected);
}

TEST_F(LinkMessagesTest, MessagesGoOnWhileTheDialogStands) {
  desktop.OnModal("frmErr", [this](Form& form) {
    Status(-100);  // the text stands: no second dialog
    Status(0);
    EXPECT_EQ(Center(), "");
    Status(-100);  // a new text, under the dialog that stands already
    EXPECT_EQ(LastError(), -100);
    form.Hide();
  });
  Status(-100);
  EXPECT_EQ(Center(), "Error:  -100\r\n" + Padded("Bus off", 256));
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmErr"}));
  EXPECT_EQ(link.TakeCalls(), (Calls{"GetErrorText -100 256", "GetErrorText -100 256"}));
}

TEST_F(LinkMessagesTest, OtherMessagesReachTheWindowsOwnProcedureWithItsResult) {
  EXPECT_EQ(hook.Send(0x0010, 3, -100), -99);  // what the original procedure answers
  EXPECT_EQ(hook.ReachedOriginal(), (std::vector<std::uint32_t>{0x0010}));
  Status(0);
  EXPECT_EQ(hook.ReachedOriginal(), (std::vector<std::uint32_t>{0x0010}));
  EXPECT_EQ(Center(), "");
}

TEST_F(LinkMessagesTest, TheEndOfAnUploadResetsTheStep) {
  Ecu().nODRUploadStep.Store(9);
  EXPECT_EQ(Status(-66), 0);
  EXPECT_EQ(Ecu().nODRUploadStep.Load(), 0);
  EXPECT_EQ(link.TakeCalls(), Calls{});
}

struct UploadStep {
  std::int16_t step;
  const char* text;
  const char* call;
};

class UploadStepTest : public LinkMessagesTest, public testing::WithParamInterface<UploadStep> {};

TEST_P(UploadStepTest, IsShownUntranslatedAndAnsweredWithTheLibrarysNextStep) {
  program.support->dictionary.SetLanguage(kFrench);
  std::vector<std::pair<std::string, int>> shown;
  program.session->messages.show_upload_step = [&](const std::string& text, int step) {
    shown.emplace_back(text, step);
  };
  link.always["UploadODRData"] = -1;  // ignored
  Ecu().nODRUploadStep.Store(GetParam().step);
  EXPECT_EQ(Status(-67), 0);
  EXPECT_EQ(shown, (std::vector<std::pair<std::string, int>>{{GetParam().text, GetParam().step}}));
  EXPECT_EQ(link.TakeCalls(), (Calls{GetParam().call}));
  EXPECT_EQ(Center(), "");
}

TEST_F(LinkMessagesTest, AStepIsShownBeforeItIsAskedFor) {
  program.session->messages.show_upload_step = [&](const std::string&, int step) {
    link.calls.push_back("bar " + std::to_string(step));
  };
  Ecu().nODRUploadStep.Store(3);
  Status(-67);
  EXPECT_EQ(link.TakeCalls(), (Calls{"bar 3", "UploadODRData 0351 0"}));
}

TEST_F(LinkMessagesTest, AStepThatNoByteHoldsIsDroppedAndTheProgramGoesOn) {
  int shown = 0;
  program.session->messages.show_upload_step = [&](const std::string&, int) { ++shown; };
  for (const int step : {-1, 256, 32767, -32768}) {
    Ecu().nODRUploadStep.Store(static_cast<std::int16_t>(step));
    EXPECT_EQ(Status(-67), 0) << step;
  }
  EXPECT_EQ(link.TakeCalls(), Calls{});
  EXPECT_EQ(shown, 0);
  EXPECT_TRUE(desktop.life.Open());
}

INSTANTIATE_TEST_SUITE_P(
    Steps, UploadStepTest,
    testing::Values(UploadStep{0, "", "UploadODRData 0051 0"},
                    UploadStep{1, "Saving Long Term Memory", "UploadODRData 0151 0"},
                    UploadStep{2, "Saving Lining Wear Memory", "UploadODRData 0251 0"},
                    UploadStep{3, "Saving Trip Memory", "UploadODRData 0351 0"},
                    UploadStep{4, "Saving ABS Memory", "UploadODRData 0451 0"},
                    UploadStep{5, "Saving OVG Memory", "UploadODRData 0551 0"},
                    UploadStep{6, "Saving Histogram Data", "UploadODRData 0651 0"},
                    UploadStep{7, "Saving Event Recorder Data", "UploadODRData 0751 0"},
                    UploadStep{8, "Saving Black Box Data", "UploadODRData 0851 0"},
                    UploadStep{9, "Saving SLEV Memory", "UploadODRData 0951 0"},
                    UploadStep{10, "", "UploadODRData 0A51 0"},
                    UploadStep{255, "", "UploadODRData FF51 0"}));

TEST_F(LinkMessagesTest, AStepWhileTheUploadScreenIsClosedCallsTheLibraryAndLoadsNoForm) {
  program.session->messages.show_upload_step = nullptr;
  Ecu().nODRUploadStep.Store(4);
  const std::vector<Form*> loaded = desktop.LoadedForms();
  Status(-67);
  EXPECT_EQ(link.TakeCalls(), (Calls{"UploadODRData 0451 0"}));
  EXPECT_EQ(desktop.LoadedForms(), loaded);
}

TEST_F(LinkMessagesTest, StatusesAreHandledInTheirOrder) {
  AnswerErr();
  for (const std::int32_t status : {-500, 0, -100, 0, -100}) hook.Post(status);
  AnswerErr();
  desktop.DoEvents();
  EXPECT_EQ(desktop.Beeps(), 1);
  EXPECT_EQ(desktop.ModalForms(), (Calls{"frmErr", "frmErr"}));
  EXPECT_EQ(LastError(), -100);
}

}  // namespace
}  // namespace lorimet::testing_support
