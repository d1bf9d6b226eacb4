// The upload of the EEPROM, with a library that does what the test says.
#include <gtest/gtest.h>

#include <limits>

#include "autotests/reports/recorder_fixture.h"

namespace lorimet::testing_support {
namespace {

const std::string kPath = "/home/user/EEPROM.txt";
const std::string kSaved = "EEPROM Data saved in \r\n" + kPath;

class SaveEepromTest : public RecorderTest {
 protected:
  frmSaveEEPROM& Screen() { return program.reports->save_eeprom; }
  std::string Status() { return Screen().txtStatus.Text(); }
  // Opens the screen with a name chosen; its transfer is under way.
  void Open() {
    desktop.AnswerFileDialog(kPath);
    Screen().Load();
    ExpectCalls(kAccessOn + Calls{"UploadData " + kPath});
  }
  void Remaining(double bytes) {
    Ecu().dBytesRemaining.Store(bytes);
    desktop.Run(1000);
  }
};

TEST_F(SaveEepromTest, AsksForTheNameFirst) {
  std::vector<std::string> seen;
  desktop.AnswerFileDialog(kPath);
  Screen().Load();
  const auto dialogs = desktop.TakeFileDialogs();
  ASSERT_EQ(dialogs.size(), 1u);
  EXPECT_EQ(dialogs[0].kind, FileDialog::Kind::kSave);
  EXPECT_EQ(dialogs[0].default_extension, ".txt");
  EXPECT_EQ(dialogs[0].file_name, "EEPROM");
  EXPECT_EQ(dialogs[0].initial_directory, "/opt/lorimet");
  EXPECT_EQ(dialogs[0].filter, "Text (*.txt)|*.txt|All Files (*.*)|*.*");
  EXPECT_TRUE(dialogs[0].path_must_exist);
  EXPECT_EQ(Screen().Caption(), "Save EEPROM Data");
}

TEST_F(SaveEepromTest, PreparesTheRecordBeforeTheTransferAndShowsItself) {
  Ecu().nLinkJobDone.Store(-1);
  Ecu().dBytesRemaining.Store(17);
  int uploads = 0;
  link.on_call = [&](const std::string& call) {
    if (!call.starts_with("UploadData")) return;
    ++uploads;
    EXPECT_EQ(Ecu().nLinkJobDone.Load(), 0);
    EXPECT_EQ(Ecu().dBytesRemaining.Load(), -1.0);
    EXPECT_TRUE(Screen().Visible());
    EXPECT_EQ(Status(), "Saving EEPROM Data...");
    EXPECT_TRUE(Screen().Progress.Visible());
    EXPECT_EQ(Screen().Progress.Value(), 0);
    EXPECT_EQ(Screen().Progress.Max(), 32767);
    EXPECT_TRUE(Screen().Timer1.Enabled());
    EXPECT_EQ(Screen().Timer1.Interval(), 1000);
  };
  Open();
  EXPECT_EQ(uploads, 1);
  EXPECT_GT(desktop.Repaints(), 0) << "the screen is there before a call that may take long";
}

TEST_F(SaveEepromTest, ItsCommandShowsItModallyUntilItIsClosed) {
  desktop.AnswerFileDialog(kPath);
  desktop.OnModal("frmSaveEEPROM", [&](Form&) {
    Remaining(4096);
    EXPECT_EQ(Status(), "Bytes Remaining To Transfer : 4096");
    Remaining(0);
    EXPECT_EQ(Status(), kSaved);
    Screen().cmdClose.UserClick();
  });
  Main().mnuTools[0].UserClick();
  EXPECT_FALSE(Screen().Loaded());
  EXPECT_EQ(desktop.ModalForms().back(), "frmSaveEEPROM");
  ExpectCalls(kAccessOn + Calls{"UploadData " + kPath} + kAccessOff);
}

TEST_F(SaveEepromTest, ACancelledDialogLeavesTheScreenWithItsWordsAndCallsNothing) {
  desktop.AnswerFileDialog(std::nullopt);
  Screen().Load();
  EXPECT_TRUE(Screen().Visible());
  EXPECT_EQ(Status(), "EEPROM data not saved.  Please try again.");
  EXPECT_FALSE(Screen().Timer1.Enabled());
  EXPECT_FALSE(Screen().Progress.Visible());
  ExpectCalls({});
  Screen().cmdClose.UserClick();
  ExpectCalls(kAccessOff);
}

TEST_F(SaveEepromTest, AnEmptyNameStopsAndLeavesTheScreenAsItIs) {
  desktop.AnswerFileDialog("");
  Screen().Load();
  EXPECT_EQ(Status(), "");
  EXPECT_FALSE(Screen().Timer1.Enabled());
  ExpectCalls({});
}

TEST_F(SaveEepromTest, ANameThatTheLibraryWouldReadAsAnotherIsRefused) {
  desktop.AnswerFileDialog("/home/user/\xD0\x96.txt");
  Screen().Load();
  EXPECT_EQ(Status(), "EEPROM data not saved.  Please try again.");
  ExpectCalls({});
}

TEST_F(SaveEepromTest, ThreeRefusalsChangeNothingAndFourAreAFailure) {
  link.answers["UploadData"] = {1, 0x31, 1, 0};
  desktop.AnswerFileDialog(kPath);
  Screen().Load();
  ExpectCalls(kAccessOn + Times(4, "UploadData " + kPath));
  EXPECT_EQ(Status(), "Saving EEPROM Data...");
  EXPECT_TRUE(Screen().Timer1.Enabled());
  Screen().cmdClose.UserClick();
  link.TakeCalls();

  link.answers["UploadData"] = {1, 1, 1, 0x10};
  desktop.AnswerFileDialog(kPath);
  Screen().Load();
  ExpectCalls(kAccessOn + Times(4, "UploadData " + kPath));
  EXPECT_EQ(Status(), "Save Failed.  Please Try Again.");
  EXPECT_FALSE(Screen().Timer1.Enabled());
  Ecu().dBytesRemaining.Store(100);
  desktop.Run(5000);
  EXPECT_EQ(Status(), "Save Failed.  Please Try Again.");
}

TEST_F(SaveEepromTest, ARefusedAccessDoesNotMatter) {
  link.always["StartRoutine"] = 0x80;
  desktop.AnswerFileDialog(kPath);
  Screen().Load();
  ExpectCalls(Times(4, kAccessOn[0]) + Calls{"UploadData " + kPath});
}

TEST_F(SaveEepromTest, ShowsWhatRemainsAndTheBarFills) {
  Open();
  desktop.Run(3000);
  EXPECT_EQ(Status(), "Saving EEPROM Data...") << "nothing is told yet";
  struct Row {
    double bytes;
    const char* text;
    int bar;
  };
  const Row rows[] = {{8192, "8192", 24575},   {32767, "32767", 0},     {0.5, "0.5", 32766},
                      {1, "1", 32766},         {40000, "40000", -7233}, {8191.5, "8191.5", 24576},
                      {2e5, "200000", -167233}};
  for (const Row& row : rows) {
    Remaining(row.bytes);
    EXPECT_EQ(Status(), std::string("Bytes Remaining To Transfer : ") + row.text);
    EXPECT_EQ(Screen().Progress.Value(), row.bar) << row.text;
  }
  ExpectCalls({});
}

TEST_F(SaveEepromTest, NumbersBeyondReasonHarmNothing) {
  Open();
  for (const double bytes : {1e300, std::numeric_limits<double>::infinity()}) {
    Remaining(bytes);
    EXPECT_LT(Screen().Progress.Value(), 0);
  }
  Remaining(4096);
  const std::string text = Status();
  for (const double bytes : {-1.0, -0.5, -1e300, -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    Remaining(bytes);
    EXPECT_EQ(Status(), text) << bytes;
    EXPECT_EQ(Screen().Progress.Value(), 32767 - 4096);
  }
}

TEST_F(SaveEepromTest, TheEndIsToldAgainAtEveryTickAndNotAborted) {
  Open();
  Remaining(256);
  Ecu().nLinkJobDone.Store(1);
  Remaining(0);
  EXPECT_EQ(Status(), kSaved);
  EXPECT_TRUE(Screen().Timer1.Enabled());
  Screen().txtStatus.SetText("?");
  desktop.Run(1000);
  EXPECT_EQ(Status(), kSaved);
  Screen().cmdClose.UserClick();
  ExpectCalls(kAccessOff);
}

TEST_F(SaveEepromTest, ARestartRequestIsAnsweredWithAnEmptyTextAndTheCountGoesOn) {
  Open();
  Remaining(4096);
  Ecu().nLinkJobDone.Store(-1);
  link.always["UploadData"] = 0x22;  // not looked at
  Remaining(4000);
  ExpectCalls({"UploadData"});
  EXPECT_EQ(Ecu().nLinkJobDone.Load(), 0);
  EXPECT_EQ(Status(), "Bytes Remaining To Transfer : 4096") << "that tick only resumes";
  Remaining(3900);
  EXPECT_EQ(Status(), "Bytes Remaining To Transfer : 3900");
  for (int request = 0; request < 3; ++request) {
    Ecu().nLinkJobDone.Store(-1);
    desktop.Run(1000);
    ExpectCalls({"UploadData"});
  }
  desktop.Run(3000);
  ExpectCalls({});
}

TEST_F(SaveEepromTest, AnyOtherJobResultGoesOn) {
  Open();
  for (const int done : {1, 2, -2, 32767, -32768}) {
    Ecu().nLinkJobDone.Store(static_cast<std::int16_t>(done));
    Remaining(1000 + done);
    EXPECT_EQ(Ecu().nLinkJobDone.Load(), done);
  }
  ExpectCalls({});
}

TEST_F(SaveEepromTest, ClosingWhileBytesRemainAbortsByButtonAndByCloseBox) {
  for (const bool by_button : {true, false}) {
    for (const double bytes : {512.0, 0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
      Open();
      Remaining(bytes);
      by_button ? Screen().cmdClose.UserClick() : Screen().UserClose();
      EXPECT_FALSE(Screen().Loaded());
      ExpectCalls((bytes > 0 ? Calls{"UploadData Abort"} : Calls{}) + kAccessOff);
      desktop.Run(3000);
      ExpectCalls({});
    }
  }
}

TEST_F(SaveEepromTest, ClosedWithinATickItTouchesNothingAnyMore) {
  Open();
  Ecu().dBytesRemaining.Store(512);
  desktop.on_do_events = [&] {
    if (Screen().Loaded() && Status().starts_with("Bytes")) Screen().cmdClose.UserClick();
  };
  desktop.Run(2000);
  EXPECT_FALSE(Screen().Loaded());
  ExpectCalls(Calls{"UploadData Abort"} + kAccessOff);
}

TEST_F(SaveEepromTest, TheProgramsEndSendsNothingToALinkThatIsClosed) {
  Open();
  Remaining(512);
  Main().UserClose();
  EXPECT_FALSE(Screen().Loaded());
  EXPECT_EQ(std::ranges::count(link.TakeCalls(), "UploadData Abort"), 0);
}

TEST_F(SaveEepromTest, SpeaksTheUsersLanguage) {
  Speak(kFrench);
  desktop.AnswerFileDialog(kPath);
  Screen().Load();
  EXPECT_EQ(Screen().Caption(), "Enregistrer les données EEPROM");
  EXPECT_EQ(Status(), "Enregistrement des données EEPROM...");
  Remaining(4096);
  EXPECT_EQ(Status(), "Octets restant à transférer : 4096");
  Remaining(0);
  EXPECT_EQ(Status(), "Données EEPROM enregistrées dans \r\n" + kPath);
}

}  // namespace
}  // namespace lorimet::testing_support
