// The end-of-line report in its two forms: a text file, and pages for the printer. They are two
// documents, each with its own columns, masks and blocks.
#pragma once

#include <cstdint>
#include <string>

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class FaultTable;
class Faults;
class Form;
class PagePrinter;
class Process;
class TextBox;
class TextFiles;
struct SessionRecords;
struct TestResults;

// What the reports use of the rest of the program.
struct ReportParts {
  Desktop& desktop;
  Clock& clock;
  Process& process;
  TextFiles& text_files;
  PagePrinter& printer;
  Dictionary& dictionary;
  Form& main_form;  // shows the pointer of a report under way
  TextBox& message_center;
  SessionRecords& records;
  Faults& faults;
  const FaultTable& fault_table;
  const TestResults& test_results;
  const std::string& strTrailerVIN;
};

// Writes the report into the program's folder, named after the vehicle id or the serial number,
// over an earlier one of that name, and tells the user where it is. Without either name nothing is
// written, the user is told, and the pointer stays the hourglass. A run-time error is shown.
void SaveEOLReport(const ReportParts& parts);

// Prints the fault report (0) or the end-of-line report (any other kind) on the default printer.
// Where there is none, the pages go into a PDF file beside the report's text file, which the
// message center then names. A run-time error is shown, and what the printer has not got is thrown
// away.
void PrintEOLReport(const ReportParts& parts, std::int16_t nReportKind);

}  // namespace lorimet
