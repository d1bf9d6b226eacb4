// The monitor's options: what is applied, what is dropped, the save dialog and the two pages.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "autotests/monitor/monitor_fixture.h"

namespace lorimet::testing_support {
namespace {

class Options : public MonitorTest {
 protected:
  void Open() {
    monitor.SetDatalogInfo({"/logs/bus.txt", "first\r\nsecond"});
    monitor.SetDisplayOptions(1, 0);
    options.Load();
  }
  // The four settings of the run, "file|comments|idle|stamp".
  std::string Stored() const {
    const DatalogInfo& log = monitor.GetDatalogInfo();
    const DisplayOptions display = monitor.GetDisplayOptions();
    return log.file + "|" + log.comments + "|" + std::to_string(display.idle_time) + "|" +
           std::to_string(display.timestamp);
  }
  void ChangeAll() {
    desktop.AnswerFileDialog("/logs/new.txt");
    options.cmdSaveAs.UserClick();
    options.txtDatalogComments.UserType("new");
    options.chkIdleTime.UserClick();
    options.chkTimestamp.UserClick();
  }
};

constexpr char kBefore[] = "/logs/bus.txt|first\r\nsecond|1|0";
constexpr char kAfter[] = "/logs/new.txt|new|0|1";

TEST_F(Options, ShowsTheSettingsOfTheRun) {
  Open();
  EXPECT_EQ(options.Caption(), "Options");
  EXPECT_EQ(options.lblDatalogFileName.Caption(), "/logs/bus.txt");
  EXPECT_EQ(options.txtDatalogComments.Text(), "first\r\nsecond");
  EXPECT_TRUE(options.chkIdleTime.Value());
  EXPECT_FALSE(options.chkTimestamp.Value());
  EXPECT_EQ(Stored(), kBefore);
}

TEST_F(Options, ApplyStoresAndStays) {
  Open();
  ChangeAll();
  EXPECT_EQ(Stored(), kBefore) << "the dialog works on its own copies";
  options.cmdApply.UserClick();
  EXPECT_TRUE(options.Loaded());
  EXPECT_EQ(Stored(), kAfter);
}

TEST_F(Options, OkStoresAndCloses) {
  Open();
  ChangeAll();
  options.cmdOK.UserClick();
  EXPECT_FALSE(options.Loaded());
  EXPECT_EQ(Stored(), kAfter);
}

TEST_F(Options, CancelDropsWhatTheFieldsHold) {
  Open();
  ChangeAll();
  options.cmdCancel.UserClick();
  EXPECT_FALSE(options.Loaded());
  EXPECT_EQ(Stored(), kBefore);
  options.Load();
  EXPECT_EQ(options.txtDatalogComments.Text(), "first\r\nsecond");
}

TEST_F(Options, WhatWasAppliedStaysBehindACancel) {
  Open();
  ChangeAll();
  options.cmdApply.UserClick();
  options.txtDatalogComments.UserType("newer");
  options.cmdCancel.UserClick();
  EXPECT_EQ(Stored(), kAfter);
}

TEST_F(Options, SaveAsAsksForATextFileInTheProgramsFolder) {
  Open();
  desktop.AnswerFileDialog("/elsewhere/log.txt");
  options.cmdSaveAs.UserClick();
  const auto dialogs = desktop.TakeFileDialogs();
  ASSERT_EQ(dialogs.size(), 1U);
  EXPECT_EQ(dialogs[0].kind, FileDialog::Kind::kSave);
  EXPECT_EQ(dialogs[0].file_name, "/logs/bus.txt");
  EXPECT_EQ(dialogs[0].initial_directory, "/program");
  EXPECT_EQ(dialogs[0].filter, "Text (*.txt)|*.txt|All Files (*.*)|*.*");
  EXPECT_TRUE(dialogs[0].path_must_exist);
  EXPECT_FALSE(dialogs[0].file_must_exist);
  EXPECT_EQ(dialogs[0].default_extension, "");
  EXPECT_EQ(options.lblDatalogFileName.Caption(), "/elsewhere/log.txt");
}

TEST_F(Options, ACancelledSaveDialogLeavesTheOldName) {
  Open();
  desktop.AnswerFileDialog(std::nullopt);
  options.cmdSaveAs.UserClick();
  EXPECT_EQ(options.lblDatalogFileName.Caption(), "/logs/bus.txt");
  options.cmdApply.UserClick();
  EXPECT_EQ(Stored(), kBefore);
}

TEST_F(Options, ANamelessLogKeepsTheTextOfTheLabelAndNoName) {
  monitor.SetDatalogInfo({"", ""});
  options.Load();
  options.lblDatalogFileName.SetCaption("what stood there");
  desktop.AnswerFileDialog(std::nullopt);
  options.cmdSaveAs.UserClick();
  desktop.AnswerFileDialog("");
  options.cmdSaveAs.UserClick();
  EXPECT_EQ(options.lblDatalogFileName.Caption(), "what stood there");
  options.cmdOK.UserClick();
  EXPECT_EQ(monitor.GetDatalogInfo().file, "");
}

TEST_F(Options, OnePageShowsAtATime) {
  Open();
  EXPECT_EQ(options.tbsOptions.Tabs(), (Calls{"Data Log", "Display"}));
  EXPECT_EQ(options.tbsOptions.Selected(), 0);
  for (const int tab : {1, 0, 1, 1, 0}) {
    options.tbsOptions.UserClick(tab);
    EXPECT_EQ(options.picOptions[0].Visible(), tab == 0);
    EXPECT_EQ(options.picOptions[1].Visible(), tab == 1);
  }
}

TEST_F(Options, LoadingAnewShowsTheFirstPage) {
  Open();
  options.tbsOptions.UserClick(1);
  options.cmdCancel.UserClick();
  options.Load();
  EXPECT_EQ(options.tbsOptions.Selected(), 0);
  EXPECT_TRUE(options.picOptions[0].Visible());
  EXPECT_FALSE(options.picOptions[1].Visible());
}

TEST_F(Options, CtrlTabGoesRound) {
  Open();
  for (const int tab : {1, 0, 1}) {
    EXPECT_FALSE(options.UserKeyDown(&options.cmdOK, {9, kCtrlMask})) << "swallowed";
    EXPECT_EQ(options.tbsOptions.Selected(), tab);
    EXPECT_EQ(options.picOptions[tab].Visible(), true);
    EXPECT_EQ(options.picOptions[1 - tab].Visible(), false);
  }
  for (const KeyEvent key : {KeyEvent{9, 0}, KeyEvent{9, kCtrlMask | kShiftMask},
                             KeyEvent{9, kAltMask}, KeyEvent{'T', kCtrlMask}}) {
    options.UserKeyDown(&options.cmdOK, key);
    EXPECT_EQ(options.tbsOptions.Selected(), 1) << key.code << " " << key.shift;
  }
}

TEST_F(Options, StandsInFrontOfTheMonitorAndItsMessagesGoOn) {
  MonitorTest::Open();
  desktop.OnModal("frmMonitorOptions", [this](Form&) {
    Send("meanwhile");
    Tick();
    EXPECT_EQ(Shown(), "  meanwhile\r\n");
    options.chkTimestamp.UserClick();
    options.cmdOK.UserClick();
  });
  screen.cmdOptions.UserClick();
  Tick();
  EXPECT_EQ(link.options, (std::pair<int, int>{0, 1}));
}

TEST_F(Options, SpeaksTheLanguage) {
  Language(kSpanish);
  Open();
  EXPECT_EQ(options.Caption(), "Opciones");
  EXPECT_EQ(options.tbsOptions.Tabs(), (Calls{"Registro de datos", "Visualización"}));
  options.cmdSaveAs.UserClick();
  EXPECT_EQ(desktop.TakeFileDialogs().at(0).filter,
            "Texto (*.txt)|*.txt|Todos los archivos (*.*)|*.*");
}

}  // namespace
}  // namespace lorimet::testing_support
