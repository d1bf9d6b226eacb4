// Sign-offs on which everything goes wrong that can: values that are no values, counts that no
// trailer has, a cable that is pulled, a window that is closed, a disk and a printer that fail. The
// sign-off ends, the program lives or ends in order, and no flag is set that was not earned.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "autotests/signoff/screen_notes.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {
namespace {

// Runs a sign-off that may end anyhow. False when the program has ended itself by an error 6.
bool EndsInOrder(OperatedProgram& stand, const std::string& what) {
  const std::uint64_t before = stand.clock.Milliseconds();
  stand.SignOff();
  EXPECT_LT(stand.clock.Milliseconds() - before, 300'000u) << what;
  const auto boxes = stand.desktop.TakeBoxes();
  const bool ended = stand.desktop.life.Failed();
  EXPECT_EQ(stand.program.ExitStatus(), ended ? 1 : 0) << what;
  if (ended) {
    EXPECT_EQ(boxes.back().text, "Run-time error '6':\r\n\r\nOverflow") << what;
    EXPECT_FALSE(stand.Trailer().Connected()) << what << ": the link is closed in order";
  }
  const TestResults& results = stand.Results();
  const bool earned = results.nSensorTest == 1 && results.nLampTest == 1 && !ended;
  if (!earned) {
    EXPECT_EQ(stand.Trailer().Get("flag"), "2") << what;
  }
  return !ended;
}

// --- The record --------------------------------------------------------------------------------

TEST(BadDay, NoValueInAnyLiveFieldEndsTheProgram) {
  for (const char* field : {"dSupplyPress", "dServiceBrake", "dMainBellows", "dBrake1Press",
                            "dBrake2Press", "dWheelSpeed", "dWheelSpeed(3)", "dPrimaryVolts"})
    for (const char* value : {"-1", "nan", "inf", "-inf", "1e308", "-1e308"}) {
      const std::string line = std::string("field ") + field + " " + value;
      OperatedProgram stand("flag 2\n" + line);
      EXPECT_TRUE(EndsInOrder(stand, line)) << line;
    }
}

TEST(BadDay, ATestPointThatNoPressureIsEndsTheProgramInOrder) {
  for (const char* field :
       {"dControlPressure1", "dControlPressure2", "dLadenBellows", "dUnladenBellows"})
    for (const char* value : {"-1", "nan", "inf", "1e308", "185.6"}) {
      const std::string line = std::string("field ") + field + " " + value;
      OperatedProgram stand("flag 2\n" + line);
      EXPECT_FALSE(EndsInOrder(stand, line)) << line;
    }
  for (const char* field : {"dTargetPressure1", "dTargetPressure2"})
    for (const char* value : {"-1", "nan", "inf", "1e308"}) {
      const std::string line = std::string("field ") + field + " " + value;
      OperatedProgram stand("flag 2\n" + line);
      EXPECT_TRUE(EndsInOrder(stand, line)) << line;
      EXPECT_EQ(stand.Results().nPressureTest, 0) << line;
    }
}

// A pressure of 40,000 psi is within the tolerance of itself, and no whole number of 16 bits.
TEST(BadDay, APressureThatNoResultHoldsEndsTheProgramInOrder) {
  OperatedProgram stand(
      "field dSupplyPress 40000\nfield dServiceBrake 40000\n"
      "field dBrake1Press 40000\nfield dBrake2Press 40000");
  stand.RunTest(1);
  EXPECT_TRUE(stand.desktop.life.Failed());
  EXPECT_EQ(stand.program.ExitStatus(), 1);
  EXPECT_EQ(stand.desktop.TakeBoxes().back().text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_EQ(stand.Results().nRedundancyTest, 0);
  EXPECT_FALSE(stand.Trailer().Connected());
}

TEST(BadDay, CountsThatNoTrailerHasEndInAResult) {
  for (const char* line : {"field bNumSensors 0",
                           "field bNumSensors 1",
                           "field bNumSensors 3",
                           "field bNumSensors 5",
                           "field bNumSensors 6",
                           "field bNumSensors 255",
                           "field bNumModulators 0",
                           "field bNumModulators 4",
                           "field bNumModulators 255",
                           "field nNumAxles -1",
                           "field nNumAxles 0",
                           "field nNumAxles 4",
                           "field nNumAxles 32767",
                           "field nAxleSensors 3",
                           "field nAxleSensors -1",
                           "field nAxleSensors 0",
                           "field nMounting 2",
                           "field nMounting -1",
                           "field nMechanicalSuspension -1",
                           "field nMechanicalSuspension 2"}) {
    OperatedProgram stand(std::string("flag 2\n") + line);
    EXPECT_TRUE(EndsInOrder(stand, line)) << line;
  }
}

// --- The link and the window -------------------------------------------------------------------

TEST(BadDay, ACablePulledAtAnyMomentEndsAtTheTestThatIsOn) {
  // Every 1.3 s of a sign-off of about 57 s, connection included.
  for (int tenths = 12; tenths < 600; tenths += 13) {
    const std::string at = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
    const std::string line = "at " + at + " cable out";
    OperatedProgram stand("flag 2\nsuspension mechanical\n" + line);
    EXPECT_TRUE(EndsInOrder(stand, line)) << line;
    const TestResults& results = stand.Results();
    // Nothing passes that a silent trailer had to answer, but the test that reads old values.
    if (tenths < 100) {
      EXPECT_NE(results.nSensorTest, 1) << line;
    }
  }
}

TEST(BadDay, ACablePulledForAMomentIsSurvived) {
  for (const int second : {2, 8, 20, 33, 45}) {
    const std::string line = "at " + std::to_string(second) + " cable out\nat " +
                             std::to_string(second + 3) + " cable in";
    OperatedProgram stand("flag 2\n" + line);
    EXPECT_TRUE(EndsInOrder(stand, line)) << line;
    stand.desktop.Run(5000);
    EXPECT_EQ(stand.Main().txtError.Text(), "")
        << line << ": the healthy link takes the error away";
  }
}

TEST(BadDay, TheProgramsWindowClosedAtAnyMomentEndsItInOrder) {
  for (std::uint32_t at = 300; at < 58'000; at += 2100) {
    OperatedProgram stand("flag 2\nsuspension mechanical");
    stand.desktop.After(at, [&] { stand.Main().UserClose(); });
    stand.TakeSequence();
    stand.SignOff();
    stand.desktop.Run(10'000);  // the last ones come behind it
    EXPECT_FALSE(stand.Main().Loaded()) << at;
    EXPECT_FALSE(stand.Trailer().Connected()) << at;
    const auto sequence = stand.TakeSequence();
    ASSERT_GE(sequence.size(), 2u) << at;
    EXPECT_EQ(sequence.back(), "StopSession()") << at << ": nothing is sent behind the close-down";
  }
}

TEST(BadDay, TheScreenOnTopClosedByItsBoxAtAnyMomentHasFailed) {
  for (std::uint32_t at = 300; at < 40'000; at += 1700) {
    OperatedProgram stand("flag 2\nsuspension mechanical");
    std::string closed;
    bool passed = false;  // between the result and the tick that closes it
    stand.desktop.After(at, [&] {
      for (Form* form : stand.desktop.LoadedForms())
        if (form->Visible() && form->Name() == stand.screen.Name()) {
          closed = form->Name();
          passed = (closed == "frmRedundancyTest" && stand.Results().nRedundancyTest == 1) ||
                   (closed == "frmSensorOrientation" && stand.Results().nSensorTest == 1);
          return form->UserClose();
        }
    });
    stand.SignOff();
    if (closed.empty() || passed) continue;
    EXPECT_EQ(stand.Trailer().Get("flag"), "2") << at << " " << closed;
    EXPECT_EQ(stand.desktop.TakeBoxes().back().icon, BoxIcon::kCritical) << at << " " << closed;
  }
}

// --- The report --------------------------------------------------------------------------------

struct DiskRow {
  FileTrouble trouble;
  const char* text;
};

TEST(BadDay, ADiskThatFailsIsToldAndThePageIsPrintedAllTheSame) {
  for (const DiskRow& row : {DiskRow{FileTrouble::kFull, "61\r\nDisk full"},
                             DiskRow{FileTrouble::kLocked, "70\r\nPermission denied"},
                             DiskRow{FileTrouble::kNoPermission, "75\r\nPath/File access error"},
                             DiskRow{FileTrouble::kNoFolder, "76\r\nPath not found"},
                             DiskRow{FileTrouble::kDeviceFails, "57\r\nDevice I/O error"}}) {
    OperatedProgram stand("configuration 2S/1M\naxles 1");
    stand.text_files.trouble = row.trouble;
    stand.SignOff();
    const auto boxes = stand.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 5u) << row.text;
    EXPECT_EQ(boxes[2].text, std::string("An error occurred while saving:  ") + row.text);
    EXPECT_EQ(boxes[3].text, "Do you want to print the data?");
    EXPECT_TRUE(stand.text_files.files.empty());
    EXPECT_EQ(stand.printer.Documents().size(), 1u);
    EXPECT_EQ(stand.Main().Pointer(), MousePointer::kArrow);
    EXPECT_EQ(stand.Trailer().Get("flag"), "1") << "the trailer is signed off all the same";
  }
}

TEST(BadDay, APrinterThatIsMissingOrFailsIsTold) {
  OperatedProgram missing("configuration 2S/1M\naxles 1\nidentity serial_number 4711");
  missing.printer.has_printer = false;
  missing.SignOff();
  EXPECT_EQ(missing.desktop.TakeBoxes().back().text,
            "Successfully sent the fault and test information to the printer.");
  ASSERT_EQ(missing.printer.Documents().size(), 1u);
  EXPECT_EQ(missing.printer.Documents()[0].file, missing.process.folder + "/4711.pdf");
  for (const int call : {0, 1, 30, 60}) {
    OperatedProgram failing("configuration 2S/1M\naxles 1");
    failing.printer.fails_at = call;
    failing.SignOff();
    EXPECT_EQ(failing.desktop.TakeBoxes().back().text,
              "An error occurred printing the faults:  482\nPrinter error")
        << call;
    EXPECT_EQ(failing.text_files.files.size(), 1u) << call;
    EXPECT_EQ(failing.Main().Pointer(), MousePointer::kArrow) << call;
  }
}

struct NameRow {
  const char* vehicle;  // as accepted in the wizard
  const char* file;     // "" for a name that is refused
  bool paged = true;    // whether the pages take it as well, where there is no printer
};

TEST(BadDay, NoVehicleIdWritesOutsideTheFolder) {
  const NameRow rows[] = {
      {"1NL4S2M30A0012345", "1NL4S2M30A0012345.txt"},
      {"AB.12..", "AB.12...txt"},
      {"..", "...txt", false},
      {".", "..txt", false},
      {"\"AB\" 'C'", "\"AB\" 'C'.txt"},
      {"Anh\xC3\xA4nger \xE2\x82\xAC", "Anh\xC3\xA4nger \xE2\x82\xAC.txt"},
      {"../../etc/x", ""},
      {"/etc/x", ""},
      {"a/b", ""},
      {"a\\b", ""},
      {"C:x", ""},
      {"CON", ""},
      {"nul.x", ""},
      {"Lpt1 ", ""},
      {"a\nb", ""},
  };
  for (const NameRow& row : rows) {
    OperatedProgram stand("configuration 2S/1M\naxles 1");
    stand.program.parameters->image.strTrailerVIN = row.vehicle;
    stand.printer.has_printer = false;
    stand.SignOff();
    const auto boxes = stand.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 5u) << row.vehicle;
    if (*row.file == '\0') {
      EXPECT_EQ(boxes[2].text, "An error occurred while saving:  52\r\nBad file name or number");
      EXPECT_EQ(boxes[4].text,
                "An error occurred printing the faults:  52\nBad file name or number");
      EXPECT_TRUE(stand.text_files.files.empty()) << row.vehicle;
      EXPECT_TRUE(stand.printer.Documents().empty()) << row.vehicle;
      continue;
    }
    ASSERT_EQ(stand.text_files.files.size(), 1u) << row.vehicle;
    EXPECT_EQ(stand.text_files.files.begin()->first, stand.process.folder + "/" + row.file);
    EXPECT_EQ(stand.printer.Documents().size(), row.paged ? 1u : 0u) << row.vehicle;
  }
}

}  // namespace
}  // namespace lorimet::testing_support
