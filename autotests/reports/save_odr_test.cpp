// The export of the recorder, with a library that does what the test says.
#include <gtest/gtest.h>

#include "autotests/reports/recorder_fixture.h"

namespace lorimet::testing_support {
namespace {

const std::string kPath = "/opt/lorimet/1NL4S2M30A0012345.tso";
const Calls kReads = {"ReadMemory 042000", "ReadMemory 042004", "ReadMemory 04201A",
                      "ReadMemory 042022"};

class SaveOdrTest : public RecorderTest {
 protected:
  void SetUp() override {
    RecorderTest::SetUp();
    Ecu().VehicleId.Store("1NL4S2M30A0012345");
    // The library has begun before it answers.
    link.on_call = [this](const std::string& call) {
      if (call.starts_with("ExportODRData")) Ecu().nODRUploadStep.Store(1);
    };
  }
  frmSaveODR& Screen() { return program.reports->save_odr; }
  std::string Status() { return Screen().txtStatus.Text(); }
  void Open() {
    Screen().Load();
    ExpectCalls(kAccessOn + kReads + Calls{"ExportODRData " + kPath});
  }
  void Step(int step) {
    Ecu().nODRUploadStep.Store(static_cast<std::int16_t>(step));
    hook.Post(-67);
    desktop.DoEvents();
  }
};

TEST_F(SaveOdrTest, PreparesTheEcuAndBeginsInItsOrder) {
  Ecu().dBytesRemaining.Store(17);
  Ecu().nLinkJobDone.Store(1);
  std::vector<std::string> shown;
  desktop.on_do_events = [&] {
    hook.Deliver();
    if (Screen().Visible()) shown.push_back(Status());
  };
  link.TakeSequence();
  Screen().Load();
  EXPECT_EQ(link.TakeSequence(),
            kAccessOn + Calls{"sleep 100"} + kReads + Calls{"ExportODRData " + kPath});
  EXPECT_EQ(shown, (std::vector<std::string>{"Exporting ODR Data..."}));
  EXPECT_EQ(Ecu().dBytesRemaining.Load(), -1.0);
  EXPECT_EQ(Ecu().nLinkJobDone.Load(), 0);
  EXPECT_EQ(Screen().Pointer(), MousePointer::kArrow);
  EXPECT_TRUE(Screen().Progress.Visible());
  EXPECT_EQ(Screen().Progress.Value(), 0);
  EXPECT_EQ(Screen().Progress.Max(), 8);
  EXPECT_TRUE(Screen().Timer1.Enabled());
  EXPECT_EQ(Screen().Timer1.Interval(), 1000);
}

TEST_F(SaveOdrTest, FailedReadsAndARefusedAccessDoNotStopIt) {
  link.always["ReadMemory"] = 1;
  link.always["StartRoutine"] = 0x80;
  Screen().Load();
  Calls expected = Times(4, kAccessOn[0]);
  for (const std::string& read : kReads) expected = expected + Times(4, read);
  ExpectCalls(expected + Calls{"ExportODRData " + kPath});
  EXPECT_TRUE(Screen().Timer1.Enabled());
}

TEST_F(SaveOdrTest, IsNamedAfterTheVehicleOrTheSerialNumber) {
  for (const Naming& naming : Namings()) {
    if (naming.name.empty()) continue;
    Ecu().VehicleId.Store(naming.vehicle_id);
    Ecu().SerialNum.Store(naming.serial);
    Screen().Load();
    EXPECT_EQ(link.TakeCalls().back(),
              "ExportODRData " + ToCp1252("/opt/lorimet/" + naming.name + ".tso"));
    Screen().cmdClose.UserClick();
  }
}

TEST_F(SaveOdrTest, WithNothingToNameTheFileAfterItStopsAndStays) {
  Ecu().VehicleId.Store("");
  Ecu().SerialNum.Store("");
  Screen().Load();
  ExpectBox(PlainBox("Cannot save.\r\nThe ECU information has not been successfully read.",
                     "Information", BoxIcon::kWarning));
  ExpectCalls(kAccessOn);
  EXPECT_TRUE(Screen().Visible());
  EXPECT_EQ(Status(), "Exporting ODR Data...");
  EXPECT_FALSE(Screen().Timer1.Enabled());
  EXPECT_FALSE(Screen().Progress.Visible());
  Screen().cmdClose.UserClick();
  ExpectCalls(kAccessOff);
}

TEST_F(SaveOdrTest, ANameThatLeadsOutOfTheFolderNeverGetsToTheLibrary) {
  for (const char* id : {"A/B", "..\\B", "C:B", "NUL", "A\x01"}) {
    Ecu().VehicleId.Store(id);
    Screen().Load();
    ExpectCalls(kAccessOn + kReads);
    EXPECT_EQ(Status(), "ODR data not saved.  Please try again.") << id;
    EXPECT_FALSE(Screen().Timer1.Enabled());
    Screen().cmdClose.UserClick();
    ExpectCalls(kAccessOff);
  }
}

TEST_F(SaveOdrTest, ARefusedExportIsTriedOnceAndTold) {
  for (const int answer : {1, -1, 0x31}) {
    link.answers["ExportODRData"] = {answer};
    Open();
    EXPECT_EQ(Status(), "ODR data not saved.  Please try again.");
    EXPECT_FALSE(Screen().Timer1.Enabled());
    EXPECT_TRUE(Screen().Progress.Visible());
    Screen().cmdClose.UserClick();
    ExpectCalls(kAccessOff);
  }
}

TEST_F(SaveOdrTest, TheStepsMoveTextAndBarInEveryLanguageAlike) {
  const std::vector<std::string> texts = {
      "Saving Long Term Memory",    "Saving Lining Wear Memory", "Saving Trip Memory",
      "Saving ABS Memory",          "Saving OVG Memory",         "Saving Histogram Data",
      "Saving Event Recorder Data", "Saving Black Box Data",     "Saving SLEV Memory"};
  for (const int language : {kEnglish, kFrench, kSpanish}) {
    Speak(language);
    Open();
    for (int step = 1; step <= 9; ++step) {
      Step(step);
      EXPECT_EQ(Status(), texts[static_cast<std::size_t>(step) - 1]);
      EXPECT_EQ(Screen().Progress.Value(), step) << "9 exceeds the bar's range, and stands";
      ExpectCalls({"UploadODRData 0" + std::to_string(step) + "51 0"});
    }
    Screen().cmdClose.UserClick();
    link.TakeCalls();
  }
}

TEST_F(SaveOdrTest, AStepWithoutATextMovesTheBarAlone) {
  Open();
  Step(4);
  for (const int step : {0, 10, 200}) {
    Step(step);
    EXPECT_EQ(Status(), "Saving ABS Memory");
    EXPECT_EQ(Screen().Progress.Value(), step);
  }
}

TEST_F(SaveOdrTest, TheLongStepsGrowByADotASecond) {
  Open();
  for (int step = 1; step <= 9; ++step) {
    Step(step);
    const std::string text = Status();
    desktop.Run(3000);
    EXPECT_EQ(Status(), text + (step == 3 || step == 7 ? "..." : ""));
  }
  for (const int step : {-5, 10, 32767}) {
    Ecu().nODRUploadStep.Store(static_cast<std::int16_t>(step));
    desktop.Run(2000);
    EXPECT_EQ(Status(), "Saving SLEV Memory");
  }
}

TEST_F(SaveOdrTest, TheEndIsToldOnceAndStopsTheTimer) {
  Open();
  Step(9);
  hook.Post(-66);
  desktop.Run(1000);
  EXPECT_EQ(Status(), "ODR Data saved in \r\n" + kPath);
  EXPECT_FALSE(Screen().Timer1.Enabled());
  EXPECT_EQ(Screen().Progress.Value(), 9);
  Screen().txtStatus.SetText("?");
  desktop.Run(5000);
  EXPECT_EQ(Status(), "?");
  link.TakeCalls();
  Screen().cmdClose.UserClick();
  ExpectCalls(kAccessOff);
}

TEST_F(SaveOdrTest, ShowsThePathAsTheLibraryLeftIt) {
  const std::map<std::string, std::string> paths = {
      {ToCp1252("/elsewhere/GÖTE.tso"), "/elsewhere/GÖTE.tso"},
      {std::string(1024, 'x'), std::string(1024, 'x')},
      {"/with\ttab.tso", "/with\ttab.tso"},
  };
  for (const auto& [written, shown] : paths) {
    link.export_out = written;
    Screen().Load();
    Ecu().nODRUploadStep.Store(0);
    desktop.Run(1000);
    EXPECT_EQ(Status(), "ODR Data saved in \r\n" + shown);
    Screen().cmdClose.UserClick();
  }
}

TEST_F(SaveOdrTest, StepsAfterItIsClosedOpenNothingAndAreAskedFor) {
  Open();
  Step(2);
  Screen().UserClose();
  link.TakeCalls();
  Step(3);
  EXPECT_FALSE(Screen().Loaded());
  ExpectCalls({"UploadODRData 0351 0"});
}

TEST_F(SaveOdrTest, ClosedWhileItOpensItAsksNothingMoreOfTheEcu) {
  desktop.on_do_events = [&] {
    if (Screen().Visible()) Screen().cmdClose.UserClick();
  };
  Main().mnuODR[1].UserClick();
  EXPECT_FALSE(Screen().Loaded());
  EXPECT_TRUE(desktop.ModalForms().empty());
  ExpectCalls(kAccessOff);
}

TEST_F(SaveOdrTest, ItsCommandShowsItModallyUntilItIsClosed) {
  desktop.OnModal("frmSaveODR", [&](Form& form) {
    EXPECT_EQ(form.Caption(), "Save ODR Data");
    Step(3);
    desktop.Run(2000);
    EXPECT_EQ(Status(), "Saving Trip Memory..");
    Screen().cmdClose.UserClick();
  });
  Main().mnuODR[1].UserClick();
  EXPECT_FALSE(Screen().Loaded());
}

TEST_F(SaveOdrTest, SpeaksTheUsersLanguage) {
  Speak(kSpanish);
  Screen().Load();
  EXPECT_EQ(Screen().Caption(), "Guardar datos ODR");
  EXPECT_EQ(Status(), "Exportando los datos ODR...");
  Ecu().nODRUploadStep.Store(0);
  desktop.Run(1000);
  EXPECT_EQ(Status(), "Datos ODR guardados en \r\n" + kPath);
  Screen().cmdClose.UserClick();
  Ecu().VehicleId.Store("");
  Screen().Load();
  ExpectBox(PlainBox("No se puede guardar.\r\nNo se ha podido leer la información de la ECU.",
                     "Información", BoxIcon::kWarning));
}

}  // namespace
}  // namespace lorimet::testing_support
