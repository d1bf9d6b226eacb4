// The recorder's screens on the simulated trailer: what each way to fail shows on the screen, what
// stands on the disk afterwards, and what the counters have counted.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>

#include "autotests/common/boxes.h"
#include "autotests/common/memory_file_reader.h"
#include "autotests/common/operated_program.h"
#include "autotests/platform/native_fixture.h"
#include "reports/reports_part.h"
#include "session/session_part.h"
#include "support/dictionary.h"

namespace lorimet::testing_support {
namespace {

using Lines = std::vector<std::string>;

class RecorderTrailerTest : public testing::Test {
 protected:
  ~RecorderTrailerTest() override {
    if (program_ == nullptr) return;
    if (!HasFailure()) {
      EXPECT_EQ(Screens().TakeBoxes(), Boxes{}) << "a box that the test did not expect";
    }
  }
  void Start(const std::string& scenario = {}) {
    program_ = std::make_unique<OperatedProgram>(scenario);
    program_->operator_works = false;
    program_->process.folder = folder_.Path();
    Screens().at_box = nullptr;
    Screens().Run(2000);
  }
  HeadlessDesktop& Screens() { return program_->desktop; }
  simulator::Link& Trailer() { return program_->Trailer(); }
  ReportsPart& Reports() { return *program_->program.reports; }
  void Do(const Lines& commands) {
    for (const std::string& command : commands)
      EXPECT_EQ(Trailer().Command(command), "") << command;
  }
  // The link's own dialog may come once.
  void ExpectLinkError() {
    Screens().OnModal("frmErr", [](Form& form) { form.UserClose(); });
  }
  std::string Path(const std::string& name) const { return folder_ / name; }
  // What stands in the program's folder.
  Lines Files() const {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
      names.push_back(entry.path().filename().string());
    return names;
  }

  ScratchFolder folder_;
  std::unique_ptr<OperatedProgram> program_;
};

// --- The upload of the EEPROM -------------------------------------------------------------------

class UploadTrailerTest : public RecorderTrailerTest {
 protected:
  // Opens the screen, and closes it when `course` has ended.
  void Upload(const std::function<void()>& course) {
    Screens().AnswerFileDialog(Path("EEPROM.txt"));
    Screens().OnModal("frmSaveEEPROM", [&](Form&) {
      course();
      Reports().save_eeprom.cmdClose.UserClick();
    });
    program_->Main().mnuTools[0].UserClick();
    EXPECT_FALSE(Reports().save_eeprom.Loaded());
  }
  std::string Status() { return Reports().save_eeprom.txtStatus.Text(); }
  std::string Saved() const { return "EEPROM Data saved in \r\n" + Path("EEPROM.txt"); }
  int Uploads() { return Trailer().Requests("Trailer_OVG_UploadData"); }
};

TEST_F(UploadTrailerTest, CountsDownIsResumedOnceAndStandsOnTheDiskAfterHalfAMinute) {
  Start("parameter EOL1 34 48\nidentity serial_number 4711\nflag 1");
  Lines seen;
  double seconds = 0;
  Upload([&] {
    for (; seconds < 60 && Status() != Saved(); ++seconds) {
      seen.push_back(Status());
      Screens().Run(1000);
    }
  });
  EXPECT_NEAR(seconds, 34, 2);
  EXPECT_EQ(Uploads(), 2) << "the upload and one resume";
  EXPECT_EQ(seen.front(), "Saving EEPROM Data...");
  EXPECT_TRUE(std::ranges::is_sorted(
      seen.begin() + 3, seen.end(), std::greater<>(),
      [](const std::string& text) { return std::stoi(text.substr(text.rfind(' '))); }));
  EXPECT_EQ(Files(), Lines{"EEPROM.txt"});

  const auto file = ReadMemoryFile(Path("EEPROM.txt"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->kind, "eeprom");
  EXPECT_EQ(file->names, Lines{"eeprom"});
  EXPECT_EQ(file->sections.at("eeprom").size(), 8192u);
  EXPECT_EQ(file->Text("eeprom", 0, 16), "4711");
  EXPECT_EQ(file->Number("eeprom", 0x100 + 34, 1), 48u) << "EOL1(34)";
  EXPECT_EQ(file->Number("eeprom", 0x100, 1), 1u) << "its checksum is right";
  EXPECT_EQ(file->Number("eeprom", 0x900, 1), 1u) << "the end-of-line flag";
}

struct UploadRow {
  const char* name;
  Lines before;                  // commands to the trailer, as the screen opens
  Lines after_10_s, after_15_s;  // and later
  int seconds;                   // that the screen is looked at
  const char* status;            // what stands then; "saved" for the end
  int uploads;                   // calls of UploadData with that of Close
  bool link_error = false;
};

class UploadRowTest : public UploadTrailerTest, public testing::WithParamInterface<UploadRow> {};

TEST_P(UploadRowTest, ShowsWhatItIsSaidToShow) {
  const UploadRow& row = GetParam();
  Start();
  Do(row.before);
  if (row.link_error) ExpectLinkError();
  Upload([&] {
    Screens().Run(10000);
    Do(row.after_10_s);
    Screens().Run(5000);
    Do(row.after_15_s);
    Screens().Run(static_cast<std::uint32_t>(row.seconds - 15) * 1000);
    const bool saved = row.status == std::string("saved");
    EXPECT_EQ(Status(), saved ? Saved() : row.status);
    EXPECT_EQ(Files(), saved ? Lines{"EEPROM.txt"} : Files());
    if (saved) {
      EXPECT_TRUE(ReadMemoryFile(Path("EEPROM.txt")));
    }
  });
  EXPECT_EQ(Uploads(), row.uploads);
  if (row.status != std::string("saved")) {
    EXPECT_EQ(Files(), Lines{}) << "nothing of it stays";
  }
}

INSTANTIATE_TEST_SUITE_P(
    Ways, UploadRowTest,
    testing::Values(
        UploadRow{"healthy", {}, {}, {}, 40, "saved", 2},
        UploadRow{"three_refusals",
                  {"failure refuse operation=Trailer_OVG_UploadData times=3"},
                  {},
                  {},
                  40,
                  "saved",
                  5},
        UploadRow{"four_refusals",
                  {"failure refuse operation=Trailer_OVG_UploadData times=4"},
                  {},
                  {},
                  40,
                  "Save Failed.  Please Try Again.",
                  4},
        UploadRow{"access_refused", {"failure refuse routine=0x42"}, {}, {}, 40, "saved", 2},
        UploadRow{"stalls",
                  {"transfer stall_at 1000"},
                  {},
                  {},
                  60,
                  "Bytes Remaining To Transfer : 1000",
                  3},
        UploadRow{
            "cable_out_for_a_while", {}, {"failure cable_out for=4"}, {}, 50, "saved", 3, true},
        UploadRow{"cable_out_for_good",
                  {},
                  {"cable out"},
                  {},
                  60,
                  "Bytes Remaining To Transfer : 5632",
                  2,
                  true},
        UploadRow{
            "several_restarts", {"transfer restart_at 2000 6000 4000"}, {}, {}, 45, "saved", 4},
        UploadRow{"no_restart", {"transfer restart_at none"}, {}, {}, 40, "saved", 1},
        UploadRow{"resume_refused",
                  {"failure refuse operation=Trailer_OVG_UploadData skip=1 times=1"},
                  {},
                  {},
                  60,
                  "Bytes Remaining To Transfer : 4096",
                  3},
        UploadRow{"too_large",
                  {"transfer size 40000", "transfer stall_at 39000"},
                  {},
                  {},
                  16,
                  "Bytes Remaining To Transfer : 39000",
                  2},
        UploadRow{"backwards", {"transfer backwards_at 7168"}, {}, {}, 50, "saved", 2},
        UploadRow{"not_a_number",
                  {},
                  {"field dBytesRemaining nan"},
                  {"release dBytesRemaining"},
                  45,
                  "saved",
                  2},
        UploadRow{"ecu_reset", {}, {"reset"}, {}, 45, "saved", 3},
        UploadRow{"another_upload", {"transfer size 100"}, {}, {}, 16, "saved", 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(UploadTrailerTest, ATargetThatCannotBeWrittenFailsAtOnce) {
  Start();
  std::filesystem::create_directory(Path("EEPROM.txt"));
  Upload([&] { EXPECT_EQ(Status(), "Save Failed.  Please Try Again."); });
  EXPECT_EQ(Uploads(), 4);
}

TEST_F(UploadTrailerTest, TheNumberRunsBackwardsOnTheScreenToo) {
  Start("transfer backwards_at 7168");
  Upload([&] {
    Screens().Run(5000);
    const std::string before = Status();
    Screens().Run(2000);
    EXPECT_GT(Status(), before);
  });
}

TEST_F(UploadTrailerTest, MoreThanTheBarHoldsIsBelowItsRangeUntilItFits) {
  Start("transfer size 40000\ntransfer restart_at none");
  Upload([&] {
    Screens().Run(5000);
    EXPECT_LT(Reports().save_eeprom.Progress.Value(), 0);
    Screens().Run(60000);
    EXPECT_GT(Reports().save_eeprom.Progress.Value(), 0);
    Screens().Run(100000);
    EXPECT_EQ(Status(), Saved());
  });
  EXPECT_EQ(ReadMemoryFile(Path("EEPROM.txt"))->sections.at("eeprom").size(), 40000u);
}

TEST_F(UploadTrailerTest, ClosingAbortsLeavesNoFileAndTheNextUploadWorks) {
  Start();
  std::ofstream(Path("EEPROM.txt")) << "an earlier one";
  Upload([&] { Screens().Run(5000); });
  EXPECT_EQ(Trailer().Get("transfer"), "none");
  EXPECT_EQ(program_->Ecu().dBytesRemaining.Load(), -1.0);
  EXPECT_EQ(program_->Ecu().nLinkJobDone.Load(), 1);
  EXPECT_EQ(Files(), Lines{"EEPROM.txt"});
  EXPECT_FALSE(ReadMemoryFile(Path("EEPROM.txt"))) << "the earlier one stands";
  Upload([&] {
    Screens().Run(40000);
    EXPECT_EQ(Status(), Saved());
  });
  EXPECT_TRUE(ReadMemoryFile(Path("EEPROM.txt"))) << "and is replaced now";
}

// --- The export of the recorder -----------------------------------------------------------------

class ExportTrailerTest : public RecorderTrailerTest {
 protected:
  void Export(const std::function<void()>& course) {
    Screens().OnModal("frmSaveODR", [&](Form&) {
      course();
      Reports().save_odr.cmdClose.UserClick();
    });
    program_->Main().mnuODR[1].UserClick();
    EXPECT_FALSE(Reports().save_odr.Loaded());
  }
  std::string Status() { return Reports().save_odr.txtStatus.Text(); }
  static constexpr const char* kName = "1NL4S2M30A0012345.tso";
  std::string Saved() const { return "ODR Data saved in \r\n" + Path(kName); }
};

TEST_F(ExportTrailerTest, WalksThroughAllStepsAndStandsOnTheDisk) {
  Start();
  std::ofstream(Path(kName)) << "an earlier one";
  Lines texts;
  std::vector<int> bars;
  double seconds = 0;
  Export([&] {
    for (; seconds < 60 && Status() != Saved(); seconds += 0.5) {
      const std::string text = Status().substr(0, Status().find('.'));
      if (texts.empty() || texts.back() != text) texts.push_back(text);
      const int bar = Reports().save_odr.Progress.Value();
      if (bars.empty() || bars.back() != bar) bars.push_back(bar);
      Screens().Run(500);
    }
    EXPECT_EQ(Reports().save_odr.Progress.Value(), 9);
    EXPECT_EQ(program_->Ecu().nODRUploadStep.Load(), 0);
  });
  EXPECT_NEAR(seconds, 27, 1);
  EXPECT_EQ(texts,
            (Lines{"Exporting ODR Data", "Saving Long Term Memory", "Saving Lining Wear Memory",
                   "Saving Trip Memory", "Saving ABS Memory", "Saving OVG Memory",
                   "Saving Histogram Data", "Saving Event Recorder Data", "Saving Black Box Data",
                   "Saving SLEV Memory"}));
  EXPECT_EQ(bars, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(Trailer().Requests("Trailer_OVG_UploadODRData"), 9);
  const auto file = ReadMemoryFile(Path(kName));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->kind, "odr");
  EXPECT_EQ(file->names, (Lines{"long_term", "lining_wear", "trip", "abs", "ovg", "histogram",
                                "events", "black_box", "slev"}));
}

struct ExportRow {
  const char* name;
  Lines before, after_5_s;
  int seconds;
  const char* status;  // "saved" for the end
  bool has_file = false;
  bool link_error = false;
};

class ExportRowTest : public ExportTrailerTest, public testing::WithParamInterface<ExportRow> {};

TEST_P(ExportRowTest, ShowsWhatItIsSaidToShow) {
  const ExportRow& row = GetParam();
  Start();
  Do(row.before);
  if (row.link_error) ExpectLinkError();
  Export([&] {
    Screens().Run(5000);
    Do(row.after_5_s);
    Screens().Run(static_cast<std::uint32_t>(row.seconds - 5) * 1000);
    EXPECT_EQ(Status(), row.status == std::string("saved") ? Saved() : row.status);
  });
  EXPECT_EQ(ReadMemoryFile(Path(kName)).has_value(), row.has_file);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, ExportRowTest,
    testing::Values(
        ExportRow{"healthy", {}, {}, 30, "saved", true},
        ExportRow{"reads_refused",
                  {"failure refuse operation=Trailer_ABS_KWP_ReadMemoryByAddress"},
                  {},
                  30,
                  "saved",
                  true},
        ExportRow{"refused",
                  {"failure refuse operation=Trailer_OVG_ExportODRData"},
                  {},
                  20,
                  "ODR data not saved.  Please try again."},
        ExportRow{"stalls_in_a_step_without_dots",
                  {"export stall_step 2"},
                  {},
                  20,
                  "Saving Lining Wear Memory"},
        ExportRow{"stalls_in_a_step_with_dots",
                  {"export stall_step 3"},
                  {},
                  13,
                  "Saving Trip Memory..........."},
        ExportRow{"third_block_refused",
                  {"failure refuse operation=Trailer_OVG_UploadODRData skip=2"},
                  {},
                  13,
                  "Saving Trip Memory..........."},
        ExportRow{"no_end", {"export no_end"}, {}, 60, "Saving SLEV Memory"},
        ExportRow{"early_end", {"export end_at 4"}, {}, 20, "saved"},
        ExportRow{"step_is_0", {}, {"field nODRUploadStep 0"}, 10, "saved"},
        ExportRow{"end_out_of_nothing", {}, {"post -66"}, 7, "saved"},
        ExportRow{
            "cable_out_for_a_while", {}, {"failure cable_out for=4"}, 45, "saved", true, true},
        ExportRow{"cable_out_for_good",
                  {"export stall_step 4"},
                  {"cable out"},
                  12,
                  "Saving Trip Memory..........",
                  false,
                  true},
        ExportRow{"ecu_reset", {}, {"reset"}, 40, "saved", true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ExportTrailerTest, StepsBeyondTheTableMoveTheBarOrAreDropped) {
  Start("export stall_step 1");
  Export([&] {
    Screens().Run(1000);
    for (const int step : {10, -5, 4, 2}) {
      Do({"field nODRUploadStep " + std::to_string(step)});
      Screens().Run(600);
      Do({"post -67"});
      Screens().Run(100);
      if (step > 0) {
        EXPECT_EQ(Reports().save_odr.Progress.Value(), step);
      }
    }
    EXPECT_EQ(Status(), "Saving Lining Wear Memory") << "backwards as the library says";
  });
}

TEST_F(ExportTrailerTest, AStepWithNoScreenOpensNone) {
  Start();
  Do({"post -67", "post -66"});
  Screens().Run(3000);
  EXPECT_FALSE(Reports().save_odr.Loaded());
  EXPECT_EQ(Files(), Lines{});
}

TEST_F(ExportTrailerTest, WithoutAnyNameItCannotSave) {
  Start("identity vehicle_id \"\"\nidentity serial_number \"\"");
  Export([&] {
    const Boxes boxes = Screens().TakeBoxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(boxes[0].text.starts_with("Cannot save."));
  });
  EXPECT_EQ(Trailer().Requests("Trailer_OVG_ExportODRData"), 0);
}

TEST_F(ExportTrailerTest, AFolderThatHasVanishedIsTold) {
  Start();
  program_->process.folder = Path("vanished");
  Export([&] { EXPECT_EQ(Status(), "ODR data not saved.  Please try again."); });
}

TEST_F(ExportTrailerTest, ShowsTheOtherPathThatTheLibraryGivesBack) {
  Start("export renames \"elsewhere.tso\"");
  Export([&] {
    Screens().Run(30000);
    EXPECT_EQ(Status(), "ODR Data saved in \r\nelsewhere.tso");
  });
}

TEST_F(ExportTrailerTest, GoesOnBehindAClosedScreenAndASecondOneIsBusy) {
  Start();
  Export([&] { Screens().Run(5000); });
  Export([&] { EXPECT_EQ(Status(), "ODR data not saved.  Please try again."); });
  Screens().Run(30000);
  EXPECT_TRUE(ReadMemoryFile(Path(kName)));
}

TEST_F(ExportTrailerTest, OneTransferAtATimeAndARestartEndsIt) {
  Start();
  Export([&] { Screens().Run(5000); });
  Screens().AnswerFileDialog(Path("EEPROM.txt"));
  Screens().OnModal("frmSaveEEPROM", [&](Form& form) {
    EXPECT_EQ(Reports().save_eeprom.txtStatus.Text(), "Save Failed.  Please Try Again.");
    form.UserClose();
  });
  program_->Main().mnuTools[0].UserClick();
  program_->Main().RestartECU();
  EXPECT_EQ(Trailer().Get("transfer"), "none");
  EXPECT_EQ(Files(), Lines{});
}

// --- The overview and the deleting --------------------------------------------------------------

class CounterTrailerTest : public RecorderTrailerTest {
 protected:
  // The four counters on the screen: ABS, stop light, level 1, level 2.
  Lines Shown() {
    frmODRView& screen = Reports().odr_view;
    Lines shown;
    Screens().OnModal("frmODRView", [&](Form&) {
      shown = {screen.txtABSCount.Text(), screen.txtStoplightCount.Text(),
               screen.txtLatAccel1.Text(), screen.txtLatAccel2.Text()};
      screen.cmdClose.UserClick();
    });
    program_->Main().mnuODR[0].UserClick();
    return shown;
  }
  void Click(std::initializer_list<int> boxes) {
    Screens().OnModal("frmODRDelete", [&](Form& form) {
      for (const int box : boxes) Reports().odr_delete.chkODRDel[box].UserClick();
      form.UserClose();
    });
    program_->Main().mnuUtility[5].UserClick();
  }
  // Brakes on ice at speed, and leans for a while.
  void Drive() {
    Do({"parameter EOL2 5 0x80", "drive 30"});
    Screens().Run(10000);
    Do({"lateral 0.35"});
    Screens().Run(1000);
    Do({"lateral 0"});
    Screens().Run(1000);
    Do({"lateral 0.45"});
    Screens().Run(1000);
    Do({"lateral 0", "surface ice", "press demand 60"});
    Screens().Run(3000);
    Do({"press demand 0", "drive stop", "surface dry"});
    Screens().Run(10000);
  }
};

TEST_F(CounterTrailerTest, ShowsWhatHasHappenedToTheTrailer) {
  Start();
  EXPECT_EQ(Shown(), (Lines{" 0", " 0", " 0", " 0"}));
  Drive();
  const Lines shown = Shown();
  EXPECT_EQ(shown[0], " " + Trailer().Get("odr abs"));
  EXPECT_NE(shown[0], " 0");
  EXPECT_EQ(Lines(shown.begin() + 1, shown.end()), (Lines{" 1", " 2", " 1"}));
}

TEST_F(CounterTrailerTest, EachBoxEmptiesItsOwn) {
  Start();
  Do({"word 2 0x3A 7 100", "word 2 0x20 0x30 200", "word 2 0x20 0x2C 300", "word 2 0x20 0x2A 400"});
  EXPECT_EQ(Shown(), (Lines{" 100", " 200", " 300", " 400"}));
  Click({1});
  EXPECT_EQ(Shown(), (Lines{" 0", " 200", " 300", " 400"}));
  Click({0});
  EXPECT_EQ(Shown(), (Lines{" 0", " 0", " 300", " 400"}));
  Click({2});
  EXPECT_EQ(Shown(), (Lines{" 0", " 0", " 0", " 0"}));
  EXPECT_EQ(Trailer().Requests("Trailer_ABS_QOR_DeleteODRData"), 5);
}

TEST_F(CounterTrailerTest, OneThatCannotBeReadIsMissingAndTheOthersAreShown) {
  Start();
  Do({"failure read_refused address=0x02202C"});
  EXPECT_EQ(Shown(), (Lines{" 0", " 0", "N/A", " 0"}));
  Do({"cable out"});
  EXPECT_EQ(Shown(), (Lines{"N/A", "N/A", "N/A", "N/A"}));
}

TEST_F(CounterTrailerTest, AWordThatIsNoPositiveNumberEndsTheProgramWithError6) {
  Start();
  Do({"word 2 0x3A 7 0x8000"});
  program_->Main().mnuODR[0].UserClick();
  const Boxes boxes = Screens().TakeBoxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_EQ(program_->program.ExitStatus(), 1);
}

TEST_F(CounterTrailerTest, ARefusedDeleteDeletesNothingAndSaysNothing) {
  Start();
  Do({"word 2 0x3A 7 100", "failure refuse operation=Trailer_ABS_QOR_DeleteODRData"});
  Click({0, 1, 2});
  EXPECT_EQ(Shown()[0], " 100");
}

TEST_F(CounterTrailerTest, OutlivesThePowerAndStandsInTheExportAndTheEeprom) {
  Start();
  Drive();
  Do({"power off"});
  Screens().OnModal("frmErr", [](Form& form) { form.UserClose(); });
  Screens().Run(3000);
  Do({"power on"});
  Screens().Run(3000);
  const Lines shown = Shown();
  EXPECT_EQ(Lines(shown.begin() + 1, shown.end()), (Lines{" 1", " 2", " 1"}));

  Screens().OnModal("frmSaveODR", [&](Form& form) {
    Screens().Run(30000);
    form.UserClose();
  });
  program_->Main().mnuODR[1].UserClick();
  auto file = ReadMemoryFile(Path("1NL4S2M30A0012345.tso"));
  ASSERT_TRUE(file);
  EXPECT_EQ(" " + std::to_string(file->Number("abs", 0, 2)), shown[0]);
  EXPECT_EQ(file->Number("long_term", 0, 2), 1u);
  EXPECT_EQ(file->Number("long_term", 2, 4), 1u) << "starts";
  EXPECT_EQ(file->Number("ovg", 0, 2), 2u);
  EXPECT_EQ(file->Number("ovg", 2, 2), 1u);
  EXPECT_GT(file->Number("trip", 0, 4), 0u);
  EXPECT_GT(file->Number("histogram", 4 * 6, 4), 0u) << "30 to 35 mph";
  EXPECT_EQ(file->Number("events", 0, 1), static_cast<unsigned>(std::stoi(shown[0])) + 4);

  Click({0});
  Screens().OnModal("frmSaveODR", [&](Form& form) {
    Screens().Run(30000);
    form.UserClose();
  });
  program_->Main().mnuODR[1].UserClick();
  file = ReadMemoryFile(Path("1NL4S2M30A0012345.tso"));
  ASSERT_TRUE(file);
  for (const char* section : {"long_term", "trip", "histogram"})
    for (const std::uint8_t byte : file->sections.at(section)) EXPECT_EQ(byte, 0) << section;
  EXPECT_EQ(" " + std::to_string(file->Number("abs", 0, 2)), shown[0]) << "the others stand";
}

}  // namespace
}  // namespace lorimet::testing_support
