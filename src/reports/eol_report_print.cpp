// The report as pages for the printer.
#include <optional>

#include "faults/fault_table.h"
#include "faults/faults.h"
#include "platform/clock.h"
#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/page_printer.h"
#include "platform/runtime_error.h"
#include "reports/eol_report.h"
#include "reports/page_form.h"
#include "reports/report_values.h"
#include "session/session_state.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/printing.h"
#include "support/text.h"
#include "tests/test_results.h"

namespace lorimet {
namespace {

constexpr double kHeadingSize = 12;    // points
constexpr int kSensorLineFrom = 1000;  // twips
constexpr int kSensorLineTo = 4000;

// Places in runs of blanks of the font in force.
constexpr int kDateValue = 20;
constexpr int kHeaderValue = 50;
constexpr int kFaultName = 15;
constexpr int kFaultStatus = 120;
constexpr int kFaultSid = 140;
constexpr int kFaultFmi = 155;
constexpr int kFaultTimes = 165;
constexpr int kBehindUnknownFault = 180;
constexpr int kResultLabel = 8;
constexpr int kResultWord = 48;
constexpr int kSensorHead = 20;
constexpr int kSpeedHead = 50;
constexpr int kSensorLetter = 25;
constexpr int kSensorSpeed = 55;

// The two bytes that are blanked at the end of manufacturer and trailer type.
constexpr std::array<std::size_t, 2> kBlankedBytes = {20, 21};

class PrintedReport : private PageForm {
 public:
  PrintedReport(const ReportParts& parts, const std::tm& now, bool end_of_line)
      : PageForm(parts.printer), parts_(parts), now_(now), end_of_line_(end_of_line) {}

  void Print() {
    PrintTitle();
    PrintHeader();
    EmptyLines(2);
    if (end_of_line_)
      PrintResults();
    else
      PrintFaults();
    printer_.EndDocument();
  }

 private:
  std::string Translate(const char* text) const { return parts_.dictionary.Translate(text); }

  void PrintTitle();
  void PrintHeader();
  void PrintHeaderLine(const char* label, int blanks, const std::string& value);
  void PrintFaultHead();
  void PrintFaults();
  void PrintFault(std::size_t index);
  void PrintResults();
  void PrintResult(const char* label, const char* word, int empty_lines);
  void PrintSensors();

  const ReportParts& parts_;
  const std::tm now_;
  const bool end_of_line_;
};

void PrintedReport::PrintTitle() {
  SetFont(kTitleSize, true);
  EmptyLines(2);
  printer_.PrintLine(
      Translate(end_of_line_ ? "Norvick End-of-Line Report" : "Norvick OVG Fault Report"));
  EmptyLines(2);
}

void PrintedReport::PrintHeaderLine(const char* label, int blanks, const std::string& value) {
  SetBold(true);
  printer_.Print(Translate(label) + ":");
  SetBold(false);
  LineAt(blanks, value);
}

void PrintedReport::PrintHeader() {
  SetFont(kTextSize, true);
  PrintHeaderLine("Date", kDateValue, ReportDate(now_, parts_.dictionary));
  PrintHeaderLine("Time", kDateValue, ReportTime(now_));
  EmptyLines(2);
  for (const ReportHeaderLine& line :
       ReportHeader(parts_.records.ecu_data, ConfigurationRule::kGuarded, parts_.dictionary))
    PrintHeaderLine(line.label, kHeaderValue, FromCp1252(line.value));
}

void PrintedReport::PrintFaultHead() {
  SetFont(kTextSize, true);
  printer_.Print(Translate("Fault") + " #");
  PrintAt(kFaultName, Translate("Description"));
  PrintAt(kFaultStatus, Translate("Status"));
  PrintAt(kFaultSid, Translate("SID"));
  PrintAt(kFaultFmi, Translate("FMI"));
  LineAt(kFaultTimes, Translate("Count"));
  DrawAcross();
  SetBold(false);
  EmptyLines(1);
}

void PrintedReport::PrintFaults() {
  PrintFaultHead();
  if (parts_.faults.GetFaultCount() < 1) {
    EmptyLines(2);
    printer_.PrintLine(Translate("No Faults Detected - System OK"));
    EmptyLines(2);
  } else {
    // The element behind the last fault is never shown.
    for (std::size_t i = 0; i + 1 < parts_.faults.FaultData().size(); ++i) PrintFault(i);
  }
  EmptyLines(1);
}

void PrintedReport::PrintFault(std::size_t index) {
  const FaultRecord& fault = parts_.faults.FaultData()[index];
  const std::size_t found = parts_.fault_table.Find(fault.Sid, fault.Fmi);
  const std::string status = Translate(fault.Status == kFaultActive ? "Active" : "Stored");
  printer_.Print(FormatNumber(static_cast<double>(index + 1), "    ###"));
  if (found >= parts_.fault_table.Size()) {
    PrintAt(kFaultStatus, status);
    LineAt(kBehindUnknownFault, "");
    return;
  }
  const FaultDefinition& row = parts_.fault_table[found];
  PrintAt(kFaultName, row.Name);
  PrintAt(kFaultStatus, status);
  PrintAt(kFaultSid, FormatNumber(row.Sid, "##0"));
  PrintAt(kFaultFmi, FormatNumber(row.Fmi, "##0"));
  LineAt(kFaultTimes, fault.Times == 0 ? Translate("N/A") : FormatNumber(fault.Times, " ###0"));
}

void PrintedReport::PrintResult(const char* label, const char* word, int empty_lines) {
  SetBold(true);
  PrintAt(kResultLabel, Translate(label));
  SetBold(false);
  LineAt(kResultWord, word);
  EmptyLines(empty_lines);
}

void PrintedReport::PrintResults() {
  const TestResults& results = parts_.test_results;
  EmptyLines(4);
  SetFont(kHeadingSize, true);
  printer_.PrintLine(Translate("End-of-Line Test Results:"));
  EmptyLines(2);
  SetFont(kTextSize, true);
  PrintResult("Pressure Test   : ", PressureWord(results.nPressureTest), 2);
  PrintResult("Redundancy Test   : ", PressureWord(results.nRedundancyTest), 2);
  PrintResult("Sensor Test   : ", SensorWord(results.nSensorTest), 1);
  PrintSensors();
  PrintResult("Height Sensor CD : ", HeightWord(results.nHeightCalCD), 2);
  PrintResult("Lamp Test : ", SensorWord(results.nLampTest), 1);
}

void PrintedReport::PrintSensors() {
  PrintAt(kSensorHead, Translate("Sensor"));
  LineAt(kSpeedHead, Translate("Max Speed (mph)"));
  printer_.DrawLine(kSensorLineFrom, kSensorLineTo, kLineWidth);
  SetBold(false);
  const std::size_t count = parts_.records.ecu_data.bNumSensors.Load();
  for (std::size_t i = 0; i < count && i < kReportSensors.size(); ++i) {
    PrintAt(kSensorLetter, Translate(kReportSensors[i].letter));
    LineAt(kSensorSpeed,
           FormatNumber(parts_.test_results.dMaxSpeed[kReportSensors[i].index], "##0.0"));
  }
  EmptyLines(2);
}

// Blanks in the record itself, and they stay.
void BlankFieldEnds(ECUData& ecu_data) {
  for (const std::size_t i : kBlankedBytes) {
    ecu_data.Manufacturer.SetByteAt(i, ' ');
    ecu_data.TrailerType.SetByteAt(i, ' ');
  }
}

void ShowPrintError(const ReportParts& parts, const RuntimeError& error) {
  parts.dictionary.ShowMessageBox(
      parts.dictionary.Translate("An error occurred printing the faults") + ":  " +
          std::to_string(error.Number()) + "\n" + error.Description(),
      "Error", BoxKind::kError, kBoxOk, 0);
}

}  // namespace

void PrintEOLReport(const ReportParts& parts, std::int16_t nReportKind) {
  parts.desktop.DoEvents();
  // The program may have been closed meanwhile.
  if (!parts.desktop.life.Open()) return;
  const MousePointer pointer = parts.main_form.Pointer();
  parts.main_form.SetMousePointer(MousePointer::kArrowHourglass);
  std::string pdf;  // empty where there is a printer
  try {
    const std::tm now = parts.clock.Now();
    BlankFieldEnds(parts.records.ecu_data);
    const std::optional<std::string> stem = ReportStem(parts.strTrailerVIN, parts.records.ecu_data);
    pdf = SendToPrinterOrFile(parts.printer, parts.process, stem.value_or("End-of-Line Report"));
    PrintedReport(parts, now, nReportKind != 0).Print();
  } catch (const RuntimeError& error) {
    parts.printer.Cancel();
    parts.main_form.SetMousePointer(pointer);
    ShowPrintError(parts, error);
    return;
  }
  parts.main_form.SetMousePointer(pointer);
  parts.dictionary.ShowMessageBox(
      parts.dictionary.Translate(
          "Successfully sent the fault and test information to the printer."),
      parts.dictionary.Translate("Information"), BoxKind::kInformation, kBoxOk, 0);
  if (!pdf.empty())
    parts.message_center.SetText(
        parts.dictionary.Translate("There is no printer here.  The pages are in ") + pdf);
}

}  // namespace lorimet
