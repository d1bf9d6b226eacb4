#include "autotests/signoff/screen_notes.h"

#include <algorithm>

#include "tests/tests_part.h"

namespace lorimet::testing_support {

void ScreenNotes::Look() {
  faults = std::max(faults, std::stoi(stand_.Trailer().Get("faults")));
  const std::string name = stand_.screen.Name();
  if (name == "msgBox" || name == "frmErr") return;
  if (name.empty()) return name_.clear();
  const double now = static_cast<double>(stand_.clock.Milliseconds()) / 1000;
  if (name != name_) arrived_ = now;
  name_ = name;
  seconds = now - arrived_;
  status = stand_.screen.Status();
  if (statuses.empty() || statuses.back() != status) statuses.push_back(status);
  if (name == "frmPressureTest") LookAtPressureTest();
  if (name == "frmRedundancyTest") LookAtRedundancyTest();
  if (name == "frmSensorOrientation") LookAtSensorTest();
  if (name == "frmSuspensionCal") {
    counts = stand_.Tests().suspension_calibration.txtHeightCD.Text();
    could_calibrate = stand_.screen.CanPress("cmdCalHgtSensor_0");
  }
}

void ScreenNotes::LookAtPressureTest() {
  frmPressureTest& test = stand_.Tests().pressure_test;
  for (int i = 0; i < 10; ++i) {
    rows[static_cast<std::size_t>(i)] = test.lblStatus[i].Caption();
    actual[static_cast<std::size_t>(i)] = test.txtActual[i].Text();
  }
}

void ScreenNotes::LookAtRedundancyTest() {
  frmRedundancyTest& test = stand_.Tests().redundancy_test;
  h1 = test.lblStatusH1.Caption();
  h2 = test.lblStatusH2.Caption();
  target = test.txtH1TargetPressure.Text();
  actual_h1 = test.txtH1ActualPressure.Text();
  actual_h2 = test.txtH2ActualPressure.Text();
}

void ScreenNotes::LookAtSensorTest() {
  frmSensorOrientation& test = stand_.Tests().sensor_test;
  const int tire = stand_.screen.YellowTire();
  if (tire != 0 && (tires.empty() || tires.back() != tire)) tires.push_back(tire);
  bool any_red = false;
  for (int row = 1; row <= 4; ++row) {
    const auto i = static_cast<std::size_t>(row - 1);
    seen[i] = test.textOrder[row].Text();
    green[i] = test.textOrder[row].BackColor() == 0x00FF00;
    any_red = any_red || test.textOrder[row].BackColor() == kColorRed;
  }
  red = red || any_red;
  if (any_red && (red_from.empty() || red_from.back() != tire)) red_from.push_back(tire);
}

}  // namespace lorimet::testing_support
