#include "tests/frmSuspensionCal.h"

#include "faults/faults.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/error_report.h"
#include "support/message_boxes.h"
#include "support/numbers.h"
#include "tests/test_results.h"
#include "tests/test_routines.h"

namespace lorimet {
namespace {

constexpr int kInterval = 500;  // ms
// The counts between which the ECU may take a position as its zero, both included.
constexpr std::int16_t kLowestCounts = 1141;
constexpr std::int16_t kHighestCounts = 1486;
constexpr std::uint8_t kNoReading = 0xFF;  // in both bytes

}  // namespace

frmSuspensionCal::frmSuspensionCal(const TestParts& parts, Faults& faults)
    : Form(parts.desktop, "frmSuspensionCal"), parts_(parts), faults_(faults) {
  help_page = "suspension_calibration.html";
  cmdCalHgtSensor.OnClick([this](int index) { Calibrate(index); });
  cmdClose.on_click = [this] { Close(); };
  Timer1.on_tick = [this] { OnTick(); };
}

void frmSuspensionCal::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  overflow_reported_ = false;
  parts_.results.nHeightCalCD = kTestFailed;
  parts_.results.nHeightCalEF = kTestFailed;
  cmdCalHgtSensor[0].SetEnabled(false);
  Timer1.SetInterval(kInterval);
  Timer1.SetEnabled(true);
}

void frmSuspensionCal::OnTick() {
  try {
    ShowCounts();
  } catch (const RuntimeError& error) {
    // Once a visit: the ticks go on, and so may the reading.
    if (overflow_reported_) return;
    overflow_reported_ = true;
    ShowErrorReport(parts_.desktop, error);
  }
}

void frmSuspensionCal::ShowCounts() {
  const HeightReading reading = ReadHeightSensor(parts_.link);
  if (reading.high == kNoReading && reading.low == kNoReading) {
    txtHeightCD.SetText(parts_.dictionary.Translate("n/a"));
    return cmdCalHgtSensor[0].SetEnabled(false);
  }
  // Error 6 from 0x80 in the high byte on.
  const std::int16_t counts = ToInteger(reading.high * 256.0 + reading.low);
  txtHeightCD.SetText(std::to_string(counts));
  cmdCalHgtSensor[0].SetEnabled(counts >= kLowestCounts && counts <= kHighestCounts);
}

void frmSuspensionCal::Calibrate(int index) {
  SetMousePointer(MousePointer::kHourglass);
  parts_.desktop.Repaint();
  StartEcuSession(parts_.link);
  const std::int16_t status = RunHeightCalibration(parts_.link, parts_.desktop, index + 1);
  if (status == 0)
    (index == 0 ? parts_.results.nHeightCalCD : parts_.results.nHeightCalEF) = kTestPassed;
  faults_.ClearFaults();
  faults_.EmptyFaultData();
  SetMousePointer(MousePointer::kArrow);
  const Dictionary& dictionary = parts_.dictionary;
  ShowPlainBox(parts_.desktop,
               status == 0 ? dictionary.Translate("Height Sensor Calibration Successful.")
                           : dictionary.Translate("Height Sensor Calibration Failed!!"),
               dictionary.Translate("Height Sensor Calibration"));
  // The program may have been closed while the box stood.
  if (Loaded()) Close();
}

void frmSuspensionCal::Close() {
  Timer1.SetEnabled(false);
  Hide();
  Unload();
}

}  // namespace lorimet
