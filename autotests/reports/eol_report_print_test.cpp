// The printed reports: what stands where in which font, on the printer or in a file, and what
// happens when the printer fails.
#include <gtest/gtest.h>

#include <optional>

#include "autotests/reports/report_fixture.h"
#include "support/text.h"

namespace lorimet::testing_support {
namespace {

using Mark = RecordingPrinter::Mark;

const PrinterFont kTitle{"Arial", 14.0, true};
const PrinterFont kHeading{"Arial", 12.0, true};
const PrinterFont kBold{"Arial", 9.75, true};
const PrinterFont kPlain{"Arial", 9.75, false};

// Where a run of blanks of that font ends.
int Blanks(int count, const PrinterFont& font = kPlain) {
  RecordingPrinter ruler;
  ruler.SetFont(font);
  return ruler.TextWidth(std::string(static_cast<std::size_t>(count), ' '));
}

class ReportPrintTest : public ReportTest {
 protected:
  void SetUp() override {
    ReportTest::SetUp();
    program.support->dictionary.Open();
    program.support->dictionary.SetLanguage(kNative);
    process.folder = "/opt/lorimet";
    Ecu().bNumSensors.Store(4);
    Ecu().bNumModulators.Store(2);
  }

  const RecordingPrinter::Document& Printed(std::int16_t kind) {
    Print(kind);
    desktop.TakeBoxes();
    return printer.Documents().back();
  }

  // The texts of one line of the page, from left to right, that the text begins or stands in.
  std::vector<Mark> LineOf(const std::string& text, int which = 0) {
    const auto& marks = printer.Documents().back().marks;
    for (const Mark& mark : marks) {
      if (mark.text != text || which-- > 0) continue;
      std::vector<Mark> line;
      for (const Mark& other : marks)
        if (other.page == mark.page && other.y == mark.y && other.to_x < 0) line.push_back(other);
      return line;
    }
    ADD_FAILURE() << "not printed: " << text << "\n"
                  << RecordingPrinter::Transcript(printer.Documents().back());
    return {};
  }
  int YOf(const std::string& text) {
    const std::vector<Mark> line = LineOf(text);
    return line.empty() ? -1 : line.front().y;
  }
  static std::string Cells(const std::vector<Mark>& line) {
    std::string cells;
    for (const Mark& mark : line) cells += std::to_string(mark.x) + ":" + mark.text + "|";
    return cells;
  }
  static std::string Cell(int x, const std::string& text) {
    return std::to_string(x) + ":" + text + "|";
  }
};

TEST_F(ReportPrintTest, TitleNamesTheKindOfTheReport) {
  Printed(0);
  std::vector<Mark> line = LineOf("Norvick OVG Fault Report");
  ASSERT_EQ(line.size(), 1u);
  EXPECT_EQ(line[0].font, kTitle);
  EXPECT_EQ(line[0].y, 2 * 322) << "below two empty lines of the title's height";
  for (const std::int16_t kind : {-1, 1, 32767}) {
    Printed(kind);
    EXPECT_EQ(LineOf("Norvick End-of-Line Report").size(), 1u) << kind;
  }
}

TEST_F(ReportPrintTest, HeaderHasBoldLabelsAndItsValuesAtRunsOfBlanks) {
  Ecu().Manufacturer.Store("NORTHLEA");
  Ecu().VehicleId.Store("  1NL4S2M30A 45   ");
  Ecu().TrailerType.Store("CURTAIN SIDER");
  Ecu().SWRev.Store("3.07");
  Ecu().PartNum.Store("4005001230");
  Ecu().SerialNum.Store("000417723518");
  Ecu().MfgDate.Store("14/2024");
  Ecu().nMounting.Store(1);
  Printed(-1);
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"Date:", "November 21, 2026"},      {"Time:", "3:07 PM"},
      {"Manufacturer:", "NORTHLEA"},       {"VIN:", "1NL4S2M30A 45"},
      {"Trailer Type:", "CURTAIN SIDER"},  {"ABS System Config:", "4S/2M"},
      {"ECU Revision:", "3.07"},           {"Part Number:", "400-500-123-0"},
      {"Serial Number:", "000417723518"},  {"Date of Manufacture:", "14/2024"},
      {"ECU Orientation:", "Facing Rear"},
  };
  int y = 5 * 322;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::vector<Mark> line = LineOf(rows[i].first);
    ASSERT_EQ(line.size(), 2u) << rows[i].first;
    EXPECT_EQ(line[0].font, kBold) << rows[i].first;
    EXPECT_EQ(line[0].x, 0);
    EXPECT_EQ(line[0].y, y) << rows[i].first;
    EXPECT_EQ(line[1].font, kPlain) << rows[i].first;
    EXPECT_EQ(line[1].x, Blanks(i < 2 ? 20 : 50)) << rows[i].first;
    EXPECT_EQ(UntilNul(line[1].text), rows[i].second);
    y += i == 1 ? 3 * 224 : 224;
  }
}

TEST_F(ReportPrintTest, NumbersOfSensorsAndModulatorsAreGuarded) {
  const auto shown = [&](int sensors, int modulators) {
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Printed(-1);
    return LineOf("ABS System Config:").back().text;
  };
  EXPECT_EQ(shown(0, 0), "?S/?M");
  EXPECT_EQ(shown(1, 1), "1S/1M");
  EXPECT_EQ(shown(4, 3), "4S/3M");
  EXPECT_EQ(shown(5, 4), "?S/?M");
  EXPECT_EQ(shown(2, 21), "2S/?M");
}

TEST_F(ReportPrintTest, FaultTableHasItsColumnsAndARule) {
  Hold({{0, 5, 7, 0, 0, 4}, {0, 59, 11, 0, 1, -1}, {0, 4, 5, 0, 2, 0}, {0, 99, 31, 0, 0, 1}});
  Printed(0);
  EXPECT_EQ(Cells(LineOf("Fault #")),
            Cell(0, "Fault #") + Cell(Blanks(15, kBold), "Description") +
                Cell(Blanks(120, kBold), "Status") + Cell(Blanks(140, kBold), "SID") +
                Cell(Blanks(155, kBold), "FMI") + Cell(Blanks(165, kBold), "Count"));
  for (const Mark& mark : LineOf("Fault #")) EXPECT_EQ(mark.font, kBold);
  EXPECT_EQ(Cells(LineOf("    1")), Cell(0, "    1") +
                                        Cell(Blanks(15), "Sensor e tone wheel defect") +
                                        Cell(Blanks(120), "Active") + Cell(Blanks(140), "5") +
                                        Cell(Blanks(155), "7") + Cell(Blanks(165), " 4"));
  EXPECT_EQ(Cells(LineOf("    2")),
            Cell(0, "    2") +
                Cell(Blanks(15), "EBS relay/Pressure sensor - defective valve or cable") +
                Cell(Blanks(120), "Stored") + Cell(Blanks(140), "59") + Cell(Blanks(155), "11") +
                Cell(Blanks(165), "- 1"));
  EXPECT_EQ(Cells(LineOf("    3")), Cell(0, "    3") + Cell(Blanks(15), "Sensor d open circuit") +
                                        Cell(Blanks(120), "Stored") + Cell(Blanks(140), "4") +
                                        Cell(Blanks(155), "5") + Cell(Blanks(165), "N/A"));
  EXPECT_EQ(Cells(LineOf("    4")), Cell(0, "    4") + Cell(Blanks(120), "Active"))
      << "an unknown fault has its status alone";
  EXPECT_EQ(YOf("    2"), YOf("    1") + 224);
}

TEST_F(ReportPrintTest, TheRuleOfTheFaultTableSpansThePage) {
  const auto& marks = Printed(0).marks;
  const auto rule = std::ranges::find_if(marks, [](const Mark& mark) { return mark.to_x >= 0; });
  ASSERT_NE(rule, marks.end());
  EXPECT_EQ(rule->x, 0);
  EXPECT_EQ(rule->to_x, printer.page_width);
  EXPECT_EQ(rule->width, 5);
  EXPECT_EQ(rule->y, YOf("Fault #") + 224);
}

TEST_F(ReportPrintTest, EmptyStoreSaysThatTheSystemIsFine) {
  Printed(0);
  EXPECT_EQ(YOf("No Faults Detected - System OK"), YOf("Fault #") + 4 * 224);
  EXPECT_EQ(LineOf("No Faults Detected - System OK").front().font, kPlain);
}

TEST_F(ReportPrintTest, FaultReportHasNoTestsAndTheOtherNoFaults) {
  Hold({{0, 5, 7, 0, 0, 4}});
  EXPECT_EQ(RecordingPrinter::Transcript(Printed(0)).find("Test"), std::string::npos);
  link.TakeCalls();
  const std::string results = RecordingPrinter::Transcript(Printed(-1));
  EXPECT_EQ(results.find("Fault"), std::string::npos);
  EXPECT_TRUE(link.TakeCalls().empty()) << "nothing is asked of the ECU";
}

TEST_F(ReportPrintTest, ResultsStandInTheirRows) {
  Results().nPressureTest = kTestNotApplicable;
  Results().nRedundancyTest = kTestFailed;
  Results().nSensorTest = kTestPassed;
  Results().nHeightCalCD = kTestPassed;
  Results().nLampTest = kNotTested;
  Results().dMaxSpeed = {0.0, 0.0, 6.9, 7.05, 0.0, 12.0};
  Printed(-1);
  const std::vector<Mark> heading = LineOf("End-of-Line Test Results:");
  ASSERT_EQ(heading.size(), 1u);
  EXPECT_EQ(heading[0].font, kHeading);
  EXPECT_EQ(heading[0].y, YOf("ECU Orientation:") + 7 * 224) << "two and four empty lines";
  const auto row = [&](const std::string& label, const std::string& word) {
    const std::vector<Mark> line = LineOf(label);
    EXPECT_EQ(Cells(line), Cell(Blanks(8, kBold), label) + Cell(Blanks(48), word));
    EXPECT_EQ(line.front().font, kBold);
    EXPECT_EQ(line.back().font, kPlain);
    return line.front().y;
  };
  const int pressure = row("Pressure Test   : ", "Not Applicable");
  EXPECT_EQ(pressure, heading[0].y + 3 * 276);
  const int redundancy = row("Redundancy Test   : ", "Failed");
  EXPECT_EQ(redundancy, pressure + 3 * 224);
  const int sensor = row("Sensor Test   : ", "Passed");
  EXPECT_EQ(sensor, redundancy + 3 * 224);
  EXPECT_EQ(Cells(LineOf("Sensor")),
            Cell(Blanks(20), "Sensor") + Cell(Blanks(50), "Max Speed (mph)"));
  EXPECT_EQ(YOf("Sensor"), sensor + 2 * 224);
  EXPECT_EQ(Cells(LineOf("c")), Cell(Blanks(25), "c") + Cell(Blanks(55), "7.1"));
  EXPECT_EQ(Cells(LineOf("d")), Cell(Blanks(25), "d") + Cell(Blanks(55), "6.9"));
  EXPECT_EQ(Cells(LineOf("e")), Cell(Blanks(25), "e") + Cell(Blanks(55), "12.0"));
  EXPECT_EQ(Cells(LineOf("f")), Cell(Blanks(25), "f") + Cell(Blanks(55), "0.0"));
  EXPECT_EQ(YOf("c"), YOf("Sensor") + 224);
  EXPECT_EQ(YOf("f"), YOf("Sensor") + 4 * 224);
  const int height = row("Height Sensor CD : ", "Calibrated");
  EXPECT_EQ(height, YOf("f") + 3 * 224) << "whatever the suspension";
  EXPECT_EQ(row("Lamp Test : ", "Not Tested"), height + 3 * 224);
}

TEST_F(ReportPrintTest, TheRuleOfTheSensorTableHasItsOwnEnds) {
  const auto& marks = Printed(-1).marks;
  const auto rule = std::ranges::find_if(marks, [](const Mark& mark) { return mark.to_x >= 0; });
  ASSERT_NE(rule, marks.end());
  EXPECT_EQ(rule->x, 1000);
  EXPECT_EQ(rule->to_x, 4000);
  EXPECT_EQ(rule->width, 5);
  EXPECT_EQ(rule->y, YOf("Sensor") + 224);
}

TEST_F(ReportPrintTest, EachOutcomeHasItsWord) {
  const auto word = [&](std::int16_t TestResults::*field, std::int16_t result, const char* label) {
    Results().*field = result;
    Printed(-1);
    return LineOf(label).back().text;
  };
  constexpr const char* kPressure = "Pressure Test   : ";
  constexpr const char* kSensor = "Sensor Test   : ";
  constexpr const char* kHeight = "Height Sensor CD : ";
  EXPECT_EQ(word(&TestResults::nPressureTest, -1, kPressure), "Not Tested");
  EXPECT_EQ(word(&TestResults::nPressureTest, 0, kPressure), "Failed");
  EXPECT_EQ(word(&TestResults::nPressureTest, 1, kPressure), "Passed");
  EXPECT_EQ(word(&TestResults::nPressureTest, 2, kPressure), "Not Applicable");
  EXPECT_EQ(word(&TestResults::nPressureTest, 3, kPressure), "Failed");
  EXPECT_EQ(word(&TestResults::nSensorTest, 2, kSensor), "Failed");
  EXPECT_EQ(word(&TestResults::nHeightCalCD, -1, kHeight), "Not Calibrated");
  EXPECT_EQ(word(&TestResults::nHeightCalCD, 0, kHeight), "Calibration Failed");
  EXPECT_EQ(word(&TestResults::nHeightCalCD, 1, kHeight), "Calibrated");
  EXPECT_EQ(word(&TestResults::nHeightCalCD, 2, kHeight), "Calibration Failed");
}

TEST_F(ReportPrintTest, OneEmptyLineEndsTheResults) {
  Printed(-1);
  const int line = 224;
  const int behind = YOf("Lamp Test : ") + line;
  // A page that has room for it and for no other.
  printer.page_height = behind + line;
  EXPECT_EQ(Printed(-1).pages, 1);
  printer.page_height = behind + line - 1;
  EXPECT_EQ(Printed(-1).pages, 2);
}

TEST_F(ReportPrintTest, SensorsBeyondTheFourthPrintNothing) {
  Ecu().bNumSensors.Store(255);
  Printed(-1);
  EXPECT_EQ(YOf("Height Sensor CD : "), YOf("f") + 3 * 224);
  Ecu().bNumSensors.Store(0);
  Printed(-1);
  EXPECT_EQ(YOf("Height Sensor CD : "), YOf("Sensor") + 3 * 224);
}

TEST_F(ReportPrintTest, BlanksTheEndsOfTwoFieldsForGood) {
  Ecu().Manufacturer.Store("0123456789012345678901");
  Ecu().TrailerType.Store("0123456789012345678901");
  Printed(-1);
  EXPECT_EQ(Ecu().Manufacturer.Load(), "01234567890123456789  ");
  EXPECT_EQ(Ecu().TrailerType.Load(), "01234567890123456789  ");
  EXPECT_EQ(LineOf("Manufacturer:").back().text, "01234567890123456789  ");
}

TEST_F(ReportPrintTest, EndsTheDocumentAndTellsTheUser) {
  Main().SetMousePointer(MousePointer::kArrow);
  MousePointer meanwhile{};
  link.on_call = [&](const std::string&) { meanwhile = Main().Pointer(); };
  Print(0);
  EXPECT_EQ(meanwhile, MousePointer::kArrowHourglass);
  EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
  EXPECT_EQ(printer.Documents().back().state, RecordingPrinter::State::kEnded);
  EXPECT_EQ(printer.Documents().back().file, "");
  EXPECT_EQ(Main().txtError.Text(), "");
  EXPECT_EQ(desktop.TakeBoxes(),
            Boxes{DictionaryBox("Successfully sent the fault and test information to the printer.",
                                "Information", BoxIcon::kInformation)});
}

TEST_F(ReportPrintTest, WithoutAPrinterThePagesAreInAFileThatTheMessageCenterNames) {
  Start();
  printer.has_printer = false;
  WizardVin() = "VIN 7";
  Print(-1);
  EXPECT_EQ(desktop.TakeBoxes().size(), 1u);
  const std::string file = std::string("/opt/lorimet") + kPathSeparator + "VIN 7.pdf";
  EXPECT_EQ(printer.Documents().back().file, file);
  EXPECT_EQ(Main().txtError.Text(), "There is no printer here.  The pages are in " + file);
  process.files.insert(process.files.end(), file);
  Print(-1);
  desktop.TakeBoxes();
  EXPECT_EQ(printer.Documents().back().file,
            std::string("/opt/lorimet") + kPathSeparator + "VIN 7 2.pdf");
}

TEST_F(ReportPrintTest, AnUnknownTrailerHasAFileToo) {
  printer.has_printer = false;
  Print(0);
  desktop.TakeBoxes();
  EXPECT_EQ(printer.Documents().back().file,
            std::string("/opt/lorimet") + kPathSeparator + "End-of-Line Report.pdf");
}

TEST_F(ReportPrintTest, AProgramThatIsClosedBeforePrintsAndAsksNothing) {
  desktop.on_do_events = [this] { desktop.life.Close(); };
  Print(0);
  EXPECT_TRUE(printer.Documents().empty());
  EXPECT_TRUE(link.TakeCalls().empty());
}

TEST_F(ReportPrintTest, ANameThatLeavesItsFolderIsRefused) {
  printer.has_printer = false;
  WizardVin() = "a/b";
  Print(-1);
  EXPECT_EQ(
      desktop.TakeBoxes(),
      Boxes{DictionaryBox("An error occurred printing the faults:  52\nBad file name or number",
                          "Error", BoxIcon::kCritical)});
  EXPECT_TRUE(printer.Documents().empty());
  EXPECT_EQ(Main().txtError.Text(), "");
}

TEST_F(ReportPrintTest, AFailureAnywhereThrowsThePagesAway) {
  Hold({{0, 5, 7, 0, 0, 4}});
  for (const std::int16_t kind : {0, -1}) {
    int failures = 0;
    for (int call = 0;; ++call) {
      RecordingPrinter fresh;
      fresh.fails_at = call;
      Main().SetMousePointer(MousePointer::kArrow);
      const ReportParts& all = Parts();
      const ReportParts parts{
          all.desktop,     all.clock,        all.process,        all.text_files, fresh,
          all.dictionary,  all.main_form,    all.message_center, all.records,    all.faults,
          all.fault_table, all.test_results, all.strTrailerVIN};
      PrintEOLReport(parts, kind);
      EXPECT_EQ(Main().Pointer(), MousePointer::kArrow);
      const Boxes boxes = desktop.TakeBoxes();
      ASSERT_EQ(boxes.size(), 1u);
      if (boxes[0].icon == BoxIcon::kInformation) break;
      ++failures;
      EXPECT_EQ(boxes[0],
                DictionaryBox("An error occurred printing the faults:  482\nPrinter error", "Error",
                              BoxIcon::kCritical));
      EXPECT_EQ(fresh.Documents().back().state, RecordingPrinter::State::kCancelled);
    }
    EXPECT_GT(failures, 40) << "every call that prints was tried";
  }
}

}  // namespace
}  // namespace lorimet::testing_support
