// The report file of trailers with faults of every kind, as it is saved from the main screen.
#include <gtest/gtest.h>

#include <string>

#include "autotests/common/operated_program.h"
#include "session/session_part.h"

namespace lorimet::testing_support {
namespace {

// The report, or nothing when none was saved.
std::string Report(OperatedProgram& stand) {
  stand.Main().actions.save_report();
  return stand.text_files.files.empty() ? "" : stand.text_files.files.begin()->second;
}

struct FaultRow {
  const char* scenario;
  const char* lines;  // that the report holds
};

const FaultRow kFaultRows[] = {
    {"", "No Faults Detected - System OK\r\n"},
    {"fault 3 5 active\nfailure fault_lock_refused", "No Faults Detected - System OK\r\n"},
    // A description of 38 and of 39 characters, and longer ones that wrap.
    {"fault 7 6 active 12",
     "  1      ABS relay valve - short to 12V or grnd Active    7    6    12 \r\n"},
    {"fault 62 12 stored 3",
     "  1      Pressure sensor - pressure differentialStored    62   12   3 \r\n"},
    {"fault 59 3 stored 100",
     "  1      EBS relay/Pressure sensor - short to 12V\r\n"
     "                                                Stored    59   3    100 \r\n"},
    {"fault 59 11 stored 2",
     "  1      EBS relay/Pressure sensor - defective valve or cable\r\n"
     "                                                Stored    59   11   2 \r\n"},
    {"fault 5 7 2 4", "Stored    5    7    4 \r\n"},
    {"fault 13 2 stored -1", "(No Description Available)             Stored    13   2   -1 \r\n"},
    {"fault 4 5 stored 0", "Stored    4    5   N/A\r\n"},
    {"fault 99 31 active", "(No Description Available)             Active    99   31"},
};

TEST(ReportRows, AFaultOfTheScenarioStandsInItsColumns) {
  for (const FaultRow& row : kFaultRows) {
    OperatedProgram stand(row.scenario);
    EXPECT_NE(Report(stand).find(row.lines), std::string::npos) << row.scenario;
  }
}

// What the ECU finds by itself on a broken trailer.
TEST(ReportRows, ACauseThatStandsIsTheFaultOfTheReport) {
  const FaultRow rows[] = {
      {"defect sensor c open", "Active    3    5    1 "},
      {"defect sensor d short", "Active    4    4    1 "},
      {"defect sensor e short_12v", "Active    5    3    1 "},
      {"drive 20\ndefect sensor c gap=0.5", "Active    3    1    1 "},
      {"drive 20\ndefect sensor f dead", "Active    6    9    1 "},
      {"drive 20\ndefect sensor e erratic", "Active    5    7    1 "},
      {"defect modulator H1 dead", "Active    10   5    1 "},
      {"defect modulator H2 dead", "Active    9    5    1 "},
      {"defect pressure_sensor H1 none", "Active    62   4    1 "},
      {"defect pressure_sensor H2 high", "Active    62   3    1 "},
      {"load laden\npress demand 60\ndefect modulator H2 weak=0.7", "Active    62   0    1 "},
      {"defect modulator H1 residual=16", "Active    62   11   1 "},
      {"drive 20\ndefect modulator H2 residual=8", "Active    62   15   1 "},
      {"defect control_sensor none", "Active    77   5    1 "},
      {"defect control_sensor high", "Active    77   3    1 "},
      {"defect control_residual 4", "Active    143  15   1 "},
      {"defect supply_sensor none", "Active    144  4    1 "},
      {"defect supply_sensor high", "Active    144  3    1 "},
      {"drive 20\ncompressor off\nsupply 60", "Active    144  1    1 "},
      {"defect bellows_sensor none", "Active    69   5    1 "},
      {"defect bellows_sensor high", "Active    69   3    1 "},
      {"drive 20\ndefect bellows burst", "Active    69   12   1 "},
      {"suspension mechanical\ndefect height_sensor open", "Active    120  5    1 "},
      {"suspension mechanical\ncalibration open", "Active    120  13   1 "},
      {"voltage 9.4", "Active    251  12   1 "},
      {"voltage 16.1", "Active    251  3    1 "},
      {"voltage_source stop_light", "Active    251  2    1 "},
      {"checksum EOL3 wrong", "Active    253  12   1 "},
      {"parameter_error 2-1 on", "Active    253  2    1 "},
      {"start_up required\nflag 2", "Active    253  14   1 "},
  };
  for (const FaultRow& row : rows) {
    OperatedProgram stand(row.scenario);
    stand.desktop.Run(32'000);
    EXPECT_NE(Report(stand).find(row.lines), std::string::npos) << row.scenario << Report(stand);
  }
}

TEST(ReportRows, WhatIsExchangedOrDarkIsNoFaultOfTheEcu) {
  for (const char* scenario :
       {"defect wire c d", "defect brake_lines crossed", "defect lines_swapped", "defect lamp dead",
        "defect redundancy H1 blocked", "defect stop_lights dead"}) {
    OperatedProgram stand(scenario);
    stand.desktop.Run(20'000);
    EXPECT_NE(Report(stand).find("No Faults Detected"), std::string::npos) << scenario;
  }
}

TEST(ReportRows, TwoHundredFaultsStandInTheirOrder) {
  std::string scenario;
  for (int i = 0; i < 200; ++i)
    scenario += "fault " + std::to_string(i + 20) + " 31 stored " + std::to_string(i + 1) + "\n";
  OperatedProgram stand(scenario);
  const std::string report = Report(stand);
  EXPECT_NE(report.find("\r\n  1      (No"), std::string::npos);
  const auto last =
      report.find("\r\n  200    (No Description Available)             Stored    219");
  EXPECT_NE(last, std::string::npos);
  EXPECT_EQ(report.find("\r\n  201  "), std::string::npos);
}

struct IdentityRow {
  const char* scenario;
  const char* file;   // "" when nothing is saved
  const char* lines;  // that it holds
};

TEST(ReportRows, TheIdentityIsWrittenAsTheEcuHasIt) {
  const IdentityRow rows[] = {
      {"identity serial_number \"\"", "", ""},
      {"identity serial_number 4711", "4711.txt", "Serial Number        : 4711"},
      {"identity serial_number 0123456789ABC", "0123456789AB.txt",
       "Serial Number        : 0123456789ABC"},
      {"identity serial_number 0123456789ABCDEF", "0123456789AB.txt",
       "Serial Number        : 0123456789ABCDEF\r\n"},
      {"identity vehicle_id \"\"\nidentity serial_number 1", "1.txt",
       "VIN                  : \r\n"},  // eighteen blanks
      {"field VehicleId none\nidentity serial_number 1", "1.txt", "VIN                  : N/A\r\n"},
      {"identity vehicle_id ABCDEFGHIJKLMNOPQR\nidentity serial_number 1", "1.txt",
       "VIN                  : ABCDEFGHIJKLMNOPQR\r\n"},
      {"identity vehicle_id \"../\\xE4 \\\"x\\\"\"\nidentity serial_number 1", "1.txt",
       "VIN                  : ../\xE4 \"x\""},
      {"field bNumSensors 0\nidentity serial_number 1", "1.txt",
       "   Sensor               Max Speed (mph)\r\n\r\n\r\n   Lamp Test"},
      {"field bNumSensors 3\nfield bNumModulators 0\nidentity serial_number 1", "1.txt",
       "ABS System Config    : 3S/M\r\n"},
      {"field bNumSensors 6\nfield bNumModulators 4\nidentity serial_number 1", "1.txt",
       "ABS System Config    : 6S/4M\r\n"},
      {"field bNumModulators 21\nidentity serial_number 1", "1.txt", "4S/21M\r\n"},
  };
  for (const IdentityRow& row : rows) {
    OperatedProgram stand(row.scenario);
    const std::string report = Report(stand);
    if (*row.file == '\0') {
      EXPECT_TRUE(stand.text_files.files.empty()) << row.scenario;
      EXPECT_EQ(stand.desktop.TakeBoxes().back().text,
                "Cannot save.\r\nThe ECU information has not been successfully read.");
      continue;
    }
    EXPECT_EQ(stand.text_files.files.begin()->first, stand.process.folder + "/" + row.file);
    EXPECT_NE(report.find(row.lines), std::string::npos) << row.scenario << report;
  }
}

}  // namespace
}  // namespace lorimet::testing_support
