// What the floors above plug into the commands of the main form.
#pragma once

#include <functional>

namespace lorimet {

// A screen is shown modally and the call returns when it has closed. Which control leads to which
// action, and when it is refused, is the table in frmZeltMain_commands.cpp.
struct CommandActions {
  // faults
  std::function<void()> show_faults;
  // parameters
  std::function<void()> edit_parameters_from_ecu;
  std::function<void()> edit_parameters_from_file;
  // monitor
  std::function<void()> show_bus_monitor;
  std::function<void()> start_recording;
  std::function<void()> stop_recording;
  // tests
  std::function<void()> sign_off;
  std::function<void()> pressure_test;
  std::function<void()> redundancy_test;
  std::function<void()> sensor_test;
  std::function<void()> lamp_test;
  std::function<void()> suspension_calibration;
  std::function<void()> stop_light_activation;
  std::function<void()> toolbar_lamp_test;
  std::function<void()> toolbar_sensor_test;
  std::function<void()> panel_redundancy_test;
  std::function<void()> set_end_of_line_bit;
  // reports
  std::function<void()> save_report;
  std::function<void()> print_report;
  std::function<void()> save_eeprom;
  std::function<void()> show_odr_overview;
  std::function<void()> export_odr;
  std::function<void()> delete_odr;
  // support
  std::function<void()> show_about;
};

}  // namespace lorimet
