// The report as a text file.
#include <memory>
#include <optional>

#include "faults/fault_table.h"
#include "faults/faults.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/process.h"
#include "platform/runtime_error.h"
#include "platform/text_file.h"
#include "reports/eol_report.h"
#include "reports/report_values.h"
#include "reports/text_form.h"
#include "session/session_state.h"
#include "support/dictionary.h"
#include "support/file_names.h"
#include "support/message_boxes.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/test_results.h"

namespace lorimet {
namespace {

// What follows each label of the header, so that the English colons make one column.
constexpr std::array<const char*, 9> kPadding = {
    "         : ",           // Manufacturer
    "                  : ",  // VIN
    "         : ",           // Trailer Type
    "    : ",                // ABS System Config
    "         : ",           // ECU Revision
    "          : ",          // Part Number
    "        : ",            // Serial Number
    "  : ",                  // Date of Manufacture
    "      : ",              // ECU Orientation
};

// The columns of the fault block.
constexpr int kNameColumn = 10;
constexpr int kStatusColumn = 49;
constexpr int kSidColumn = 58;
constexpr int kFmiColumn = 63;
constexpr int kTimesColumn = 68;
// The columns of the sensor block.
constexpr int kLetterColumn = 6;
constexpr int kSpeedColumn = 25;

class ReportFile {
 public:
  ReportFile(const ReportParts& parts, const std::tm& now) : parts_(parts), now_(now) {}

  const std::string& Write() {
    WriteHeader();
    WriteFaults();
    WriteResults();
    return form_.Contents();
  }

 private:
  std::string Translate(const char* text) const { return parts_.dictionary.Translate(text); }
  void Words(const char* text) { form_.Text(Translate(text)); }

  void WriteHeader();
  void WriteFaultHead();
  void WriteFaults();
  void WriteFault(std::size_t index);
  void WriteResults();
  void WriteResult(const char* label, const char* word);
  void WriteSensors();

  const ReportParts& parts_;
  const std::tm now_;
  TextForm form_;
};

void ReportFile::WriteHeader() {
  form_.EmptyLines(2);
  form_.Line(Translate("Norvick OVG End-of-Line Report"));
  form_.EmptyLines(2);
  form_.Line(Translate("Date :") + " " + ReportDate(now_, parts_.dictionary));
  form_.Line(Translate("Time :") + " " + ReportTime(now_));
  form_.EmptyLines(2);
  const auto header =
      ReportHeader(parts_.records.ecu_data, ConfigurationRule::kAsItStands, parts_.dictionary);
  for (std::size_t i = 0; i < header.size(); ++i) {
    Words(header[i].label);
    form_.Text(kPadding[i]);
    form_.Bytes(header[i].value);
    form_.EndLine();
  }
  form_.EmptyLines(4);
}

void ReportFile::WriteFaultHead() {
  Words("Fault");
  form_.Text(" #  ");
  Words("Description");
  form_.Spc(27);
  form_.Text(" ");
  Words("Status");
  form_.Text("    ");
  Words("SID");
  form_.Text(" ");
  Words("FMI");
  form_.Text(" ");
  Words("Count");
  form_.EndLine();
  form_.EndLine();
}

void ReportFile::WriteFaults() {
  WriteFaultHead();
  if (parts_.faults.GetFaultCount() < 1) {
    form_.EmptyLines(2);
    form_.Line(Translate("No Faults Detected - System OK"));
    form_.EmptyLines(1);
    return;
  }
  // The element behind the last fault is never shown.
  for (std::size_t i = 0; i + 1 < parts_.faults.FaultData().size(); ++i) WriteFault(i);
  form_.EmptyLines(1);
}

// A name that is longer than its column pushes the rest of the row to the next line.
void ReportFile::WriteFault(std::size_t index) {
  const FaultRecord& fault = parts_.faults.FaultData()[index];
  const std::size_t found = parts_.fault_table.Find(fault.Sid, fault.Fmi);
  form_.Text(FormatNumber(static_cast<double>(index + 1), "  ##0"));
  form_.Tab(kNameColumn);
  form_.Text(found < parts_.fault_table.Size() ? parts_.fault_table[found].Name
                                               : Translate("(No Description Available)"));
  form_.Tab(kStatusColumn);
  Words(fault.Status == kFaultActive ? "Active" : "Stored");
  form_.Text("   ");
  form_.Tab(kSidColumn);
  form_.Number(fault.Sid);
  form_.Tab(kFmiColumn);
  form_.Number(fault.Fmi);
  form_.Tab(kTimesColumn);
  if (fault.Times == 0)
    Words("N/A");
  else
    form_.Number(fault.Times);
  form_.EndLine();
}

void ReportFile::WriteResult(const char* label, const char* word) {
  Words(label);
  form_.Line(std::string(": ") + word);
}

void ReportFile::WriteResults() {
  const TestResults& results = parts_.test_results;
  form_.EmptyLines(3);
  form_.Line(Translate("End-of-Line Test Results") + ": ");
  form_.EmptyLines(1);
  WriteResult("   Pressure Test   ", PressureWord(results.nPressureTest));
  form_.EmptyLines(1);
  WriteResult("   Redundancy Test ", PressureWord(results.nRedundancyTest));
  form_.EmptyLines(1);
  WriteResult("   Sensor Test     ", SensorWord(results.nSensorTest));
  form_.EmptyLines(1);
  Words("   Sensor");
  form_.Tab(kSpeedColumn);
  form_.Line(Translate("Max Speed (mph)"));
  form_.EmptyLines(1);
  WriteSensors();
  form_.EndLine();
  if (parts_.records.ecu_data.nMechanicalSuspension.Load() == 1) {
    WriteResult("   Height Sensor CD", HeightWord(results.nHeightCalCD));
    form_.EmptyLines(2);
  }
  WriteResult("   Lamp Test       ", SensorWord(results.nLampTest));
  form_.EmptyLines(2);
}

// The line of the last sensor stays open.
void ReportFile::WriteSensors() {
  const std::size_t count = parts_.records.ecu_data.bNumSensors.Load();
  for (std::size_t i = 0; i < count; ++i) {
    form_.Tab(kLetterColumn);
    if (i >= kReportSensors.size()) continue;
    Words(kReportSensors[i].letter);
    form_.Tab(kSpeedColumn);
    form_.Text(FormatNumber(parts_.test_results.dMaxSpeed[kReportSensors[i].index], "##0.0"));
  }
}

void ShowSaveError(Dictionary& dictionary, const RuntimeError& error) {
  dictionary.ShowMessageBox(dictionary.Translate("An error occurred while saving") + ":  " +
                                std::to_string(error.Number()) + kCrLf + error.Description(),
                            "Error", BoxKind::kError, kBoxOk, 0);
}

}  // namespace

void SaveEOLReport(const ReportParts& parts) {
  const std::tm now = parts.clock.Now();
  parts.desktop.DoEvents();
  // The program may have been closed meanwhile.
  if (!parts.desktop.life.Open()) return;
  if (parts.records.lECUFamily != kTrailerFamily) return;
  const MousePointer pointer = parts.main_form.Pointer();
  parts.main_form.SetMousePointer(MousePointer::kHourglass);
  const std::optional<std::string> stem = ReportStem(parts.strTrailerVIN, parts.records.ecu_data);
  if (!stem) {
    ShowPlainBox(
        parts.desktop,
        std::string("Cannot save.") + kCrLf + "The ECU information has not been successfully read.",
        "Information", BoxIcon::kWarning);
    return;
  }
  const std::string path = parts.process.ProgramFolder() + kPathSeparator + *stem + ".txt";
  try {
    CheckFileName(*stem + ".txt");
    const std::unique_ptr<TextFile> file = parts.text_files.OpenForOutput(path);
    file->Write(ReportFile(parts, now).Write());
    file->Close();
  } catch (const RuntimeError& error) {
    parts.main_form.SetMousePointer(pointer);
    ShowSaveError(parts.dictionary, error);
    return;
  }
  parts.main_form.SetMousePointer(pointer);
  parts.dictionary.ShowMessageBox(parts.dictionary.Translate("File saved successfully in " + path),
                                  parts.dictionary.Translate("Information"), BoxKind::kInformation,
                                  kBoxOk, 0);
}

}  // namespace lorimet
