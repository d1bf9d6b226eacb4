// The help file's path, the two help commands, the about box and the reserved manual link.
#include "support/help.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_ports.h"
#include "autotests/common/program_fixture.h"
#include "session/session_part.h"
#include "support/support_part.h"
#include "support/text.h"

namespace lorimet {
namespace {

using testing_support::Boxes;
using testing_support::PlainBox;

class HelpTest : public testing_support::ProgramTest {
 protected:
  std::string PathFor(const std::string& folder) {
    registry.SetText(RegistryHive::kLocalMachine, kProductKey, "HelpDir", folder);
    program.support->help.BuildPath();
    return program.support->help.HelpFile();
  }
};

TEST_F(HelpTest, LiesInTheFolderOfTheSetting) {
  const std::string separator(1, kPathSeparator);
  // clang-format off
  EXPECT_EQ(PathFor(R"(C:\help\)"),      R"(C:\help\Trailer.hlp)");
  EXPECT_EQ(PathFor("/opt/help"),        "/opt/help" + separator + "Trailer.hlp");
  EXPECT_EQ(PathFor("/opt/help" + separator), "/opt/help" + separator + "Trailer.hlp");
  EXPECT_EQ(PathFor("help"),             "help" + separator + "Trailer.hlp");
  // clang-format on
}

TEST_F(HelpTest, LiesInTheProgramsFolderWithoutASetting) {
  process.folder = "/program";
  const std::string expected = std::string("/program") + kPathSeparator + "Trailer.hlp";
  EXPECT_EQ(PathFor(""), expected);
  registry.Remove(RegistryHive::kLocalMachine, kProductKey, "HelpDir");
  program.support->help.BuildPath();
  EXPECT_EQ(program.support->help.HelpFile(), expected);
  // The current user's value is nobody's.
  registry.SetText(RegistryHive::kCurrentUser, kProductKey, "HelpDir", "/elsewhere");
  program.support->help.BuildPath();
  EXPECT_EQ(program.support->help.HelpFile(), expected);
}

TEST_F(HelpTest, IsBuiltAnewWithTheLanguage) {
  Start();
  registry.SetText(RegistryHive::kLocalMachine, kProductKey, "HelpDir", "/new/");
  EXPECT_NE(program.support->help.HelpFile(), "/new/Trailer.hlp");
  program.support->dictionary.SetLanguage(kFrench);
  EXPECT_EQ(program.support->help.HelpFile(), "/new/Trailer.hlp");
}

TEST_F(HelpTest, OpensAtItsContentsOrAtTheSearch) {
  const std::string file = PathFor("/opt/help/");
  program.support->help.ShowContents("Title");
  program.support->help.ShowSearch("Title");
  const std::vector<RecordingHelpViewer::Call> expected = {{file, HelpCommand::kContents, ""},
                                                           {file, HelpCommand::kPartialKey, ""}};
  EXPECT_EQ(help_viewer.calls, expected);
  EXPECT_EQ(static_cast<int>(HelpCommand::kContents), 3);
  EXPECT_EQ(static_cast<int>(HelpCommand::kPartialKey), 261);
}

TEST_F(HelpTest, TellsThatThereIsNoneBeforeItsPathIsBuilt) {
  program.support->help.ShowContents("Title");
  program.support->help.ShowSearch("Other");
  const std::string text =
      "Unable to display Help Contents. There is no Help associated with this project.";
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{testing_support::DictionaryBox(text, "Title", BoxIcon::kInformation),
                   testing_support::DictionaryBox(text, "Other", BoxIcon::kInformation)}));
  EXPECT_TRUE(help_viewer.calls.empty());
}

TEST_F(HelpTest, TellsThatThereIsNoneInTheUsersLanguage) {
  program.support->dictionary.Open();
  program.support->dictionary.on_language_changed.clear();
  program.support->dictionary.SetLanguage(kFrench);
  program.support->help.ShowContents("Titre");
  const auto boxes = desktop.TakeBoxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text,
            "Impossible d'afficher le sommaire de l'aide. Aucune aide n'est associée à ce projet.");
}

TEST_F(HelpTest, ShowsTheErrorOfTheViewer) {
  PathFor("/opt/help/");
  help_viewer.fails_with = 53;
  program.support->help.ShowContents("Title");
  program.support->help.ShowSearch("Title");
  EXPECT_EQ(desktop.TakeBoxes(),
            (Boxes{PlainBox("File not found", ""), PlainBox("File not found", "")}));
}

TEST_F(HelpTest, IsReachedFromTheMenuUnderTheMainFormsTitle) {
  Start();
  Main().mnuHelp[0].UserClick();
  Main().mnuHelp[1].UserClick();
  Main().tbrABS_help.UserClick();
  ASSERT_EQ(help_viewer.calls.size(), 3u);
  EXPECT_EQ(help_viewer.calls[0].command, HelpCommand::kContents);
  EXPECT_EQ(help_viewer.calls[1].command, HelpCommand::kPartialKey);
  EXPECT_EQ(help_viewer.calls[2].command, HelpCommand::kContents);
}

// --- The about box.

TEST_F(HelpTest, AboutBoxNamesTheProgramAndItsVersion) {
  frmAbout& about = program.support->about;
  about.Load();
  EXPECT_EQ(about.Caption(), "About Lorimet");
  EXPECT_EQ(about.lblTitle.Caption(), "Norvick Lorimet");
  EXPECT_EQ(about.lblVersion.Caption(), "Version " + std::to_string(LORIMET_VERSION_MAJOR) + "." +
                                            std::to_string(LORIMET_VERSION_MINOR) + "." +
                                            std::to_string(LORIMET_VERSION_REVISION));
  EXPECT_EQ(about.lblDescription.Caption(),
            "Diagnostics and end-of-line tests for trailer brake ECUs");
  EXPECT_GT(about.lblDisclaimer.Caption().size(), 100u);
  EXPECT_EQ(about.Left(), (desktop.ScreenWidth() - about.Width()) / 2);
  EXPECT_EQ(about.Top(), (desktop.ScreenHeight() - about.Height()) / 2);
  about.cmdOK.UserClick();
  EXPECT_FALSE(about.Loaded());
}

TEST_F(HelpTest, AboutBoxSpeaksTheLanguage) {
  program.support->dictionary.Open();
  frmAbout& about = program.support->about;
  about.Load();
  const std::string description = about.lblDescription.Caption();
  const std::string disclaimer = about.lblDisclaimer.Caption();
  about.Unload();
  for (const int language : {kFrench, kSpanish}) {
    program.support->dictionary.SetLanguage(language);
    about.Load();
    EXPECT_EQ(about.Caption(), program.support->dictionary.Translate("About Lorimet"));
    EXPECT_NE(about.Caption(), "About Lorimet");
    EXPECT_NE(about.lblDescription.Caption(), description);
    EXPECT_NE(about.lblDisclaimer.Caption(), disclaimer);
    about.Unload();
  }
}

}  // namespace
}  // namespace lorimet
