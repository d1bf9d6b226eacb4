// The command tree: which command of the menu or the toolbar leads where, and when it is refused.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace lorimet {

// What the floors above plug into the commands. A screen is shown modally and the call returns when
// it has closed.
struct CommandActions {
  std::function<void()> show_faults;
  std::function<void()> sign_off;
  std::array<std::function<void()>, 6> show_test;  // by the index of mnuTests
  // The outcome flags of the pressure, redundancy and sensor tests, and of the calibration c-d.
  std::array<std::function<std::int16_t()>, 3> test_result;
  std::function<std::int16_t()> calibration_result;
  std::function<void()> read_parameters_from_ecu;
  std::function<bool()> read_parameters_from_file;  // false when there is nothing to edit
  std::function<void()> show_parameters;
  std::function<void()> save_eeprom;
  std::function<void()> show_odr_overview;
  std::function<void()> export_odr;
  std::function<void()> set_end_of_line_bit;
  std::function<void()> show_bus_monitor;
  std::function<void()> start_recording;
  std::function<void()> stop_recording;
  std::function<void()> delete_odr;
  std::function<void()> save_report;
  std::function<void()> print_report;
  std::function<void()> show_about;
};

enum class Command {
  kDisplayFaults,
  kClearFaults,
  kRestart,
  kSignOff,
  kPressureTest,
  kRedundancyTest,
  kSensorTest,
  kLampTest,
  kSuspensionCalibration,
  kStopLightActivation,
  kParametersFromEcu,
  kParametersFromFile,
  kSaveEeprom,
  kResetEcu,
  kOdrOverview,
  kExportOdr,
  kSetEolBit,
  kBusMonitor,
  kToggleDatalog,
  kDisableBroadcast,
  kEnableBroadcast,
  kDeleteOdr,
  kHelpContents,
  kHelpSearch,
  kAbout,
  kExit,
  kSaveReport,
  kPrintReport,
  kToolbarLampTest,
  kToolbarSensorTest,
  kNone,
};

// A row of the menu: the item, its command, and whether it is refused while a connect or close-down
// runs.
struct MenuCommand {
  std::string_view menu;
  int index;
  Command command;
  bool guarded;
};

constexpr std::array<MenuCommand, 25> kMenuCommands = {{
    {"mnuDiagnostics", 0, Command::kDisplayFaults, true},
    {"mnuDiagnostics", 1, Command::kClearFaults, true},
    {"mnuDiagnostics", 2, Command::kRestart, true},
    {"mnuSignOff", 0, Command::kSignOff, true},
    {"mnuTests", 0, Command::kPressureTest, true},
    {"mnuTests", 1, Command::kRedundancyTest, true},
    {"mnuTests", 2, Command::kSensorTest, true},
    {"mnuTests", 3, Command::kLampTest, true},
    {"mnuTests", 4, Command::kSuspensionCalibration, true},
    {"mnuTests", 5, Command::kStopLightActivation, true},
    {"mnuSystem", 0, Command::kParametersFromEcu, false},
    {"mnuSystem", 1, Command::kParametersFromFile, false},
    {"mnuTools", 0, Command::kSaveEeprom, true},
    {"mnuTools", 1, Command::kResetEcu, true},
    {"mnuODR", 0, Command::kOdrOverview, false},
    {"mnuODR", 1, Command::kExportOdr, false},
    {"mnuUtility", 0, Command::kSetEolBit, true},
    {"mnuUtility", 1, Command::kBusMonitor, true},
    {"mnuUtility", 2, Command::kToggleDatalog, true},
    {"mnuUtility", 3, Command::kDisableBroadcast, true},
    {"mnuUtility", 4, Command::kEnableBroadcast, true},
    {"mnuUtility", 5, Command::kDeleteOdr, true},
    {"mnuHelp", 0, Command::kHelpContents, true},
    {"mnuHelp", 1, Command::kHelpSearch, true},
    {"mnuHelp", 3, Command::kAbout, true},
}};

// A button of the toolbar; all are refused while a connect or close-down runs. The indices count
// the separators.
struct ToolbarCommand {
  int index;
  std::string_view key;
  Command command;
};

constexpr std::array<ToolbarCommand, 9> kToolbarCommands = {{
    {1, "exit", Command::kExit},
    {3, "print", Command::kPrintReport},
    {4, "save", Command::kSaveReport},
    {6, "restart", Command::kRestart},
    {7, "faults", Command::kDisplayFaults},
    {8, "valve", Command::kToolbarLampTest},
    {9, "sensor", Command::kToolbarSensorTest},
    {10, "notebook", Command::kNone},
    {12, "help", Command::kHelpContents},
}};

}  // namespace lorimet
