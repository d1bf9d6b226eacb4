// The chapters of the tour, in their order. Each adds its steps to the script.
#pragma once

namespace lorimet {

class Script;

// The first connection, and one that is lost and comes back.
void ShowConnection(Script& script);
// The fault list: read, explained, saved, printed, cleared.
void ShowFaults(Script& script);
// The parameters: edited and written to the ECU, saved to a file and loaded from it.
void ShowParameters(Script& script);
// Each end-of-line test from its command, and the flag by hand.
void ShowVehicleTests(Script& script);
// A whole sign-off for every configuration, each ending in a report and its pages.
void ShowSignOffs(Script& script);
// What the recorder holds, shown and exported; and the EEPROM. Its deletion has no command that is
// enabled.
void ShowRecorder(Script& script);
// The data link's traffic, and a log of it.
void ShowMonitor(Script& script);
void ShowHelp(Script& script);
// The end of the program.
void ShowTheEnd(Script& script);

}  // namespace lorimet
