// The two dialogs of link trouble.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

constexpr const char* kWords =
    "Communications are only partially functioning.\r\n"
    "Please check your connections between the PC\r\n"
    "     and the Norvick Trailer ABS ECU.";

class LinkErrorDialogTest : public ProgramTest {
 protected:
  void ExpectCentred(const Form& form) {
    EXPECT_EQ(form.Left(), (desktop.ScreenWidth() - form.Width()) / 2);
    EXPECT_EQ(form.Top(), (desktop.ScreenHeight() - form.Height()) / 2);
    EXPECT_GT(form.Width(), 0);
  }
};

TEST_F(LinkErrorDialogTest, IsLoadedWithItsWordsAtTheCentreOfTheScreen) {
  Start();
  const frmErr& err = program.support->err;
  EXPECT_EQ(err.Caption(), "Norvick Lorimet");
  EXPECT_EQ(err.lblErr.Caption(), kWords);
  EXPECT_EQ(err.cmdOK.Caption(), "OK");
  ExpectCentred(err);
}

TEST_F(LinkErrorDialogTest, SpeaksTheUsersLanguage) {
  SetLanguage(kSpanish);
  Start();
  const auto& rows = translations.Rows(kSpanish);
  EXPECT_EQ(program.support->err.lblErr.Caption(),
            "La comunicación solo funciona parcialmente.\r\n" +
                rows.at("Please check your connections between the PC") +
                "\r\n     y la ECU ABS de remolque Norvick.");
  EXPECT_EQ(program.support->err.cmdOK.Caption(), "Aceptar");
  program.session->records.link_status.bLinkAttained.Store(1);
  Main().tmrABS.Tick();
  EXPECT_EQ(program.support->err.lblErr.Caption(),
            rows.at("Successful connection was attained but has since been lost.") + "\r\n" +
                rows.at("Please check connection between the PC and ECU."));
}

TEST_F(LinkErrorDialogTest, IsHiddenByItsButtonAndKeepsChangedWords) {
  Start();
  program.support->err.lblErr.SetCaption("changed");
  desktop.OnModal("frmErr", [](Form& form) { static_cast<frmErr&>(form).cmdOK.UserClick(); });
  program.support->err.Show(Modality::kModal);
  EXPECT_FALSE(program.support->err.Visible());
  EXPECT_TRUE(program.support->err.Loaded());
  EXPECT_EQ(program.support->err.lblErr.Caption(), "changed");
}

TEST_F(LinkErrorDialogTest, IsHiddenByItsControlBoxAndUnloadedByCodeOnly) {
  Start();
  program.support->err.lblErr.SetCaption("changed");
  desktop.OnModal("frmErr", [](Form& form) { form.UserClose(); });
  program.support->err.Show(Modality::kModal);
  EXPECT_FALSE(program.support->err.Visible());
  EXPECT_TRUE(program.support->err.Loaded());
  EXPECT_EQ(program.support->err.lblErr.Caption(), "changed");
  EXPECT_TRUE(program.support->err.Unload());
  EXPECT_FALSE(program.support->err.Loaded());
}

TEST_F(LinkErrorDialogTest, ShowsTheWordsOfALostConnectionAtTheNextLinkError) {
  Start();
  program.session->records.link_status.bLinkAttained.Store(1);
  desktop.Run(300);
  std::string words;
  desktop.OnModal("frmErr", [&](Form& form) {
    words = static_cast<frmErr&>(form).lblErr.Caption();
    form.UserClose();
  });
  hook.Send(hook.message_id, 0, -100);
  EXPECT_EQ(words,
            "Successful connection was attained but has since been lost.\r\n"
            "Please check connection between the PC and ECU.");
}

class ConnectErrorDialogTest : public LinkErrorDialogTest {
 protected:
  // Shows the dialog and lets the user act on it.
  void Show(const std::function<void(frmRP1210Err&)>& action) {
    desktop.OnModal("frmRP1210Err", [&](Form& form) {
      action(static_cast<frmRP1210Err&>(form));
      if (form.Visible()) form.Unload();
    });
    program.support->rp1210_error.Show(Modality::kModal);
  }
};

TEST_F(ConnectErrorDialogTest, TellsTheNumberAndTheDescription) {
  Start();
  program.support->rp1210_error.lngRP1210Err = -2147483648;
  program.support->rp1210_error.strErrorText = "Device not found" + std::string(1008, ' ');
  Show([&](frmRP1210Err& dialog) {
    EXPECT_EQ(dialog.Caption(), "Norvick Lorimet");
    EXPECT_EQ(dialog.lblErr.Caption(),
              "Communications are not working, unable to connect to the data bus.");
    EXPECT_EQ(dialog.fraRP1210.Caption(), "RP1210A Error");
    EXPECT_EQ(dialog.lblRP1210ErrNum.Caption(), "Number: -2147483648");
    EXPECT_EQ(dialog.lblRP1210ErrDesc.Caption(), "Description: Device not found");
    EXPECT_EQ(dialog.cmdOK.Caption(), "OK");
    EXPECT_EQ(dialog.cmdDetails.Caption(), "&Details");
    EXPECT_EQ(dialog.Height(), 1812);
    ExpectCentred(dialog);
  });
}

TEST_F(ConnectErrorDialogTest, SpeaksTheUsersLanguageAndTranslatesTheLibrarysText) {
  SetLanguage(kFrench);
  Start();
  const auto& rows = translations.Rows(kFrench);
  program.support->rp1210_error.strErrorText = "None  ";
  Show([&](frmRP1210Err& dialog) {
    EXPECT_EQ(dialog.lblErr.Caption(),
              rows.at("Communications are not working, unable to connect to the data bus."));
    EXPECT_EQ(dialog.fraRP1210.Caption(), rows.at("RP1210A Error"));
    EXPECT_EQ(dialog.lblRP1210ErrDesc.Caption(), "Description : Aucun");
    EXPECT_EQ(dialog.cmdDetails.Caption(), rows.at("&Details"));
  });
}

TEST_F(ConnectErrorDialogTest, TheDetailsButtonTogglesTheHeightAndNothingElseMoves) {
  Start();
  Show([](frmRP1210Err& dialog) {
    const int left = dialog.Left();
    const int top = dialog.Top();
    EXPECT_FALSE(dialog.fraRP1210.Visible());
    for (int i = 0; i < 3; ++i) {
      dialog.cmdDetails.UserClick();
      EXPECT_EQ(dialog.Height(), 3732);
      EXPECT_TRUE(dialog.fraRP1210.Visible());
      dialog.cmdDetails.UserClick();
      EXPECT_EQ(dialog.Height(), 1812);
      EXPECT_FALSE(dialog.fraRP1210.Visible());
    }
    EXPECT_EQ(dialog.Left(), left);
    EXPECT_EQ(dialog.Top(), top);
  });
}

TEST_F(ConnectErrorDialogTest, IsBuiltAnewForEachFailure) {
  Start();
  program.support->rp1210_error.lngRP1210Err = 1;
  Show([](frmRP1210Err& dialog) {
    dialog.cmdDetails.UserClick();
    dialog.cmdOK.UserClick();
    EXPECT_FALSE(dialog.Loaded());
  });
  program.support->rp1210_error.lngRP1210Err = 2;
  Show([](frmRP1210Err& dialog) {
    EXPECT_EQ(dialog.Height(), 1812);
    EXPECT_EQ(dialog.lblRP1210ErrNum.Caption(), "Number: 2");
    dialog.cmdDetails.UserClick();
    EXPECT_EQ(dialog.Height(), 3732);  // the flag began anew too
    dialog.UserClose();
    EXPECT_FALSE(dialog.Loaded());
  });
}

}  // namespace
}  // namespace lorimet::testing_support
