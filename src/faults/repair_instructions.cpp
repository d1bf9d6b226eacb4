#include "faults/repair_instructions.h"

#include "platform/controls.h"

#include <algorithm>
#include <array>

namespace lorimet {
namespace {

struct RepairRow {
  std::int16_t index;
  const char* text;
};

constexpr std::int16_t kNothingToShow = 100;
constexpr const char* kNotAvailable = "Repair instruction not available for the current fault.";

// clang-format off
constexpr std::array<RepairRow, 41> kRepairRows{{
    { 1, "Pressure measurement value too high. Check for kinked line.  Compare pressure gauge "
          "reading with Lorimet value of the pressure sensor."},
    { 2, "Pressure measurement value too low. Check for kinked line or blocked filter.  Compare "
          "pressure gauge reading with Lorimet value of the pressure sensor."},
    { 3, "The pressure in the support bellows of the air suspension is too low when driving."},
    { 4, "Deviation between the pneumatic control pressure and control pressure via CAN. Was "
          "the yellow coupling head connected the whole time? Check the towing vehicle."},
    { 5, "Open or short circuit is detected.  Cable or speed sensor is defective."},
    { 6, "Switch ignition off for 5 seconds."},
    { 7, "Push sensor into holding block for zero gap to tooth wheel.  Check tone ring for "
          "damaged teeth.  Check for excessive wheel bearing play."},
    { 8, "Impermissible modulator position.  Check the installation position.  Calibrate the "
          "installation position after changing the modulator angle."},
    { 9, "A component for which there are no parameter settings was detected at slot GIO In/Out."},
    {10, "Speed difference between axles c-d and e-f too high.  Check whether the number of "
          "tone wheel teeth and tire diameter are correct."},
    {11, "Calibrate the distance sensor."},
    {12, "There is a fault in the freely programmable function."},
    {13, "Check tone ring/hub for eccentricity. If tone ring/hub is eccentric, replace faulty "
          "part."},
    {14, "Check cable for pinch/cut and check connectors."},
    {15, "Check Axle Load Sensor cable for pinch/cut and check connectors."},
    {16, "Turn ignition off for 5 seconds."},
    {17, "The wear sensor or the cable between the modulator and the wear sensor is faulty."},
    {18, "At least one brake lining is worn.  Check linings and wear sensors and replace if "
          "necessary. It is also possible that the cable is not connected or is defective."},
    {19, "Braking with redundancy pressure - ABS still active."},
    {20, "Pressure differential > 30 psi between pressure sensors in the EBS RV and the "
          "modulator during the standstill function. Is a line kinked?  If the pneumatic system "
          "is OK, fit a new pressure sensor."},
    {21, "9.5 to 14.0 volts DC required to proceed.  Be sure to use a filtered power supply or "
          "battery.  DO NOT USE A BATTERY CHARGER!"},
    {22, "9.5 to 14.0 volts DC required to proceed. Be sure to use a filtered power supply or "
          "battery. DO NOT USE A BATTERY CHARGER!"},
    {23, "Does power supply have an adequate current rating? Check that all power and ground "
          "connections are solid. 9.5 to 14.0 volts DC required at ECU."},
    {24, "Call Norvick for customer support and return authorization number if problem persists."},
    {25, "Vehicle has not been put into operation.  Please run initial start-up routine."},
    {26, "Residual pressure > 7 psi at connection 2 of the EBS relay valve during motion with "
          "brakes released."},
    {27, "Pressure deviation between connections 2.1 and 2.2 of the modulator > 0.5 bar during "
          "braking. Is there a pressure leak through the leaking Ovalock brake actuator? Is the "
          "exhaust iced up? Fault condition: Pressure difference in EBS regulation right/left > ."},
    {28, "Residual pressure > 15 psi in the line to the brake cylinder.  If this fault can be "
          "ruled out: fit a new modulator."},
    {29, "Pressure differential > 2 bar between the two brake pressure sensors in the modulator "
          "during the standstill function.  Is there a severe leak on a brake cylinder? If the "
          "pneumatic system is OK, fit a new modulator."},
    {30, "Residual pressure > 7 psi at connection 2.1 or 2.2 of the modulator during motion "
          "with brakes released."},
    {31, "No axle load transmitted from the ECU."},
    {32, "The pressure in the support bellows of the air suspension is too low when driving."},
    {33, "GIO shorted to battery.  Call Norvick for customer support."},
    {34, "GIO shorted to ground.  Call Norvick for customer support."},
    {35, "GIO cable broken.  Call Norvick for customer support."},
    {36, "GIO logic failure.  Download the GIO parameter settings again and restart the ECU.  "
          "If fault persists, call Norvick for customer support."},
    {37, "The GIO sensor power supply voltage is either too high or too low.  Call Norvick for "
          "customer support."},
    {38, "The GIO sensor power supply is not on.  Call Norvick for customer support."},
    {39, "The pole wheel is eccentric.  Check the concentricity of the pole wheel and replace, "
          "if necessary."},
    {53, "System configuration error detected. An external valve or two sensors are not being "
          "detected. Connect them or reconfigure ECU using reconfigure option from menu."},
    {58, "Erase faults using menu option, power down, power up. If fault repeats, call Norvick "
          "customer support for technical support and return authorization claim number."},
}};
// clang-format on

}  // namespace

const char* RepairInstruction(std::int16_t index) {
  if (index == kNothingToShow) return "";
  const auto* const row = std::find_if(kRepairRows.begin(), kRepairRows.end(),
                                       [index](const RepairRow& r) { return r.index == index; });
  return row == kRepairRows.end() ? kNotAvailable : row->text;
}

void ShowRepairInstruction(std::int16_t RepairIndex, TextBox& Target,
                           const std::function<std::string(const std::string&)>& translate) {
  Target.SetText("");
  const std::string text = RepairInstruction(RepairIndex);
  if (!text.empty()) Target.SetText(translate(text));
}

}  // namespace lorimet
