// The connected program with its live panel, and the record behind it filled by name.
#pragma once

#include <string>

#include "autotests/common/program_fixture.h"
#include "session/session_part.h"

namespace lorimet::testing_support {

class PanelTest : public ProgramTest {
 protected:
  // A healthy 4S/2M trailer that has sent everything.
  PanelTest() {
    ECUData& ecu = Ecu();
    ecu.bNumSensors.Store(4);
    ecu.bNumModulators.Store(2);
    ecu.dPrimaryVolts.Store(1234.0);
    ecu.dVoltageSource.Store(1.0);
    for (auto& speed : ecu.dWheelSpeed) speed.Store(30.0);
    ecu.dOdometer.Store(1234567.89);
    ecu.dTripReading.Store(1609.0);
    ecu.dNextService.Store(16090.0);
    ecu.dSupplyPress.Store(118.25);
    ecu.dServiceBrake.Store(35.5);
    ecu.dBrake1Press.Store(30.4);
    ecu.dBrake2Press.Store(30.6);
    ecu.dMainBellows.Store(55.5);
    ecu.dSteerBellows.Store(40.0);
  }

  // One pass of the refresh.
  void Pass() { Main().tmrABS.Tick(); }
};

// What a field shows, and on which colour.
struct Shown {
  std::string text;
  Color color;
  bool operator==(const Shown&) const = default;
};
inline Shown ShownIn(const TextBox& box) { return {box.Text(), box.BackColor()}; }
inline void PrintTo(const Shown& shown, std::ostream* stream) {
  *stream << '"' << shown.text << "\" on " << std::hex << shown.color << std::dec;
}

}  // namespace lorimet::testing_support
