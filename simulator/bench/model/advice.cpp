#include "simulator/bench/model/advice.h"

#include <array>
#include <cmath>
#include <utility>

namespace lorimet::bench {
namespace {

// psi, as the program's tests ask for them.
constexpr double kReleased = 2.9;
constexpr double kSupplyToBegin = 72.5;
constexpr double kBellows = 2.17;
constexpr double kSupplyToBrake = 80.0;
constexpr double kControlToBrake = 80.0;
constexpr double kSupplyToCompare = 79.75;
constexpr double kControlToCompare = 75.4;
// Counts between which the height sensor can be calibrated.
constexpr int kHeightLow = 1141;
constexpr int kHeightHigh = 1486;

// Seconds.
constexpr double kQuiet = 1.6;  // without a request: a test that sends again and again has ended
constexpr double kBeginning = 2.5;     // from the session to the first request of a test
constexpr double kComparing = 9.5;     // from the switch to redundancy to the end of its test
constexpr double kWritingFlag = 10.5;  // from the flag to the end of what follows it
constexpr double kWatching = 6;        // of a lamp that does not blink

constexpr int kLampRises = 2;   // that make it blink
constexpr double kRolling = 4;  // mph that a sensor's test takes for a spin
constexpr std::array<int, 6> kSpinOrder = {1, 2, 3, 6, 5, 4};

Advice Say(std::string waits, std::string next, Deed deed = Deed::kNothing) {
  return {{std::move(waits), {}}, {std::move(next), {}}, deed, 0};
}

Advice Fill(std::string waits) { return Say(std::move(waits), "Fill the reservoir.", Deed::kFill); }

Advice ReadScreen(std::string waits) {
  return Say(std::move(waits), "Read its screen and go on there.");
}

Advice WhenIdle(const Sight& sight) {
  if (sight.flag == 1)
    return Say("The trailer is signed off.", "Choose another trailer, or try what you like.");
  const std::string waits = "The program is connected and waits for you.";
  if (sight.control_line >= kReleased)
    return Say(waits, "Release the pedal before you sign the trailer off.", Deed::kReleasePedal);
  if (sight.supply <= kSupplyToBrake)
    return Say(waits, "Fill the reservoir before you sign the trailer off.", Deed::kFill);
  if (sight.load > 0)
    return Say(waits, "Unload the trailer before you sign it off.", Deed::kUnload);
  return Say(waits, "Choose Sign-off, Begin Sign-off Procedure there.");
}

Advice WhenPrepared(const Bench& bench) {
  const Sight& sight = bench.Seen();
  const double age = sight.time - bench.Told().Since();
  if (sight.Modulators() > 1) {
    if (sight.air && sight.control_line >= kReleased && sight.control_line <= kControlToBrake)
      return Say("The program waits until there is no control pressure (below 2.9 psi).",
                 "Release the pedal.", Deed::kReleasePedal);
    if (sight.supply <= kSupplyToBegin)
      return Fill("The program waits for supply pressure above 72.5 psi.");
    if (age > kBeginning && sight.air && sight.bellows <= kBellows)
      return Say("The program waits for bellows pressure above 2.17 psi.",
                 "The bellows have no air: mend the defect.");
    if (age > kBeginning)
      return Say("The program waits for you, or for control pressure above 80 psi.",
                 "Read its screen; in the redundancy test press the pedal to 90 psi.");
  }
  return ReadScreen("The program has prepared the ECU for its work.");
}

Advice WhenPressures(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (sight.time - bench.Told().Last() < kQuiet)
    return Say("The program tests the brake pressures.", "Leave the pedal alone and wait.");
  if (sight.supply <= kSupplyToBrake)
    return Fill("The brake pressures are tested; the redundancy test wants supply above 80 psi.");
  if (sight.control_line <= kControlToBrake)
    return Say(
        "The brake pressures are tested; the redundancy test wants control pressure "
        "above 80 psi.",
        "Press the pedal to 90 psi and hold it.", Deed::kPressPedal);
  return ReadScreen("The brake pressures are tested.");
}

Advice WhenRedundancy(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (sight.time - bench.Told().Since() < kComparing) {
    if (sight.supply <= kSupplyToCompare)
      return Fill("The redundancy test waits for supply pressure above 79.75 psi.");
    if (sight.control_line <= kControlToCompare)
      return Say("The redundancy test waits for control pressure above 75.4 psi.",
                 "Press the pedal to 90 psi and hold it.", Deed::kPressPedal);
    return Say("The program compares the brake pressures with the pedal's.",
               "Keep the pedal pressed until its screen has closed.");
  }
  if (sight.pedal > 0)
    return Say("The redundancy test has ended.",
               "Release the pedal, then read the program's message.", Deed::kReleasePedal);
  if (sight.supply <= kSupplyToBegin)
    return Fill("The sensor test wants supply pressure above 72.5 psi.");
  return Say("The redundancy test has ended.", "Read the program's message and press OK.");
}

Advice WhenWheels(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (sight.parking_brake)
    return Say("The sensor test waits for a wheel, and the parking brake holds them all.",
               "Release the parking brake.", Deed::kReleaseParkingBrake);
  const int wheel = NextWheel(bench);
  if (wheel == 0 || !bench.Told().WheelFree())
    return Say("The program brakes and frees the wheels.", "Wait until a letter is yellow there.");
  const WheelSight& next = sight.Wheel(wheel);
  if (next.speed > kRolling) return Say("The wheel turns.", "Watch the program's screen.");
  if (!next.turnable) return Say("The program frees a wheel.", "Wait until it can be turned.");
  Advice advice = Say("The sensor test waits for the wheel of the yellow letter.",
                      "Spin wheel %1 (sensor %2): click it, or press %1.", Deed::kSpin);
  advice.next.arguments = {std::to_string(wheel), std::string(1, next.sensor)};
  advice.wheel = wheel;
  return advice;
}

Advice WhenLamp(const Bench& bench) {
  const Story& story = bench.Told();
  const double now = bench.Seen().time;
  if (now - story.Last() > kQuiet) return ReadScreen("The lamp test has ended.");
  const std::string waits = "The program blinks the warning lamp and asks whether you see it.";
  if (bench.LampRises() >= kLampRises) return Say(waits, "It blinks here: answer Yes.");
  if (now - story.Since() > kWatching) return Say(waits, "It does not blink here: answer No.");
  return Say(waits, "Watch the lamp.");
}

Advice WhenHeight(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (sight.time - bench.Told().Last() > kQuiet) return ReadScreen("The calibration has ended.");
  const std::string waits = "The program waits for the height sensor's calibration.";
  if (!sight.height) return Say(waits, "The sensor tells nothing: plug it in.");
  if (sight.load > 0) return Say(waits, "Unload the trailer.", Deed::kUnload);
  if (*sight.height < kHeightLow || *sight.height > kHeightHigh)
    return Say(waits, "Bring the lever to the horizontal.", Deed::kLevel);
  return Say(waits, "Press Calibrate height sensor c-d there.");
}

Advice WhenFlag(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (sight.time - bench.Told().Since() < kWritingFlag)
    return Say("The program writes the end-of-line flag and restarts the ECU.",
               "Wait: this takes ten seconds.");
  if (sight.flag == 1)
    return Say("The trailer is signed off.", "Save and print its report in the program.");
  return ReadScreen("The end-of-line flag says that the trailer has not passed.");
}

Advice ByActivity(const Bench& bench) {
  switch (bench.Told().Now()) {
    case Activity::kNothing:
    case Activity::kConnected:
      return WhenIdle(bench.Seen());
    case Activity::kPrepared:
      return WhenPrepared(bench);
    case Activity::kParameters:
      return ReadScreen("The program has read the parameters.");
    case Activity::kWriting:
      return ReadScreen("The program writes the parameters.");
    case Activity::kTakingOver:
      return Say("The program takes over the brakes.", "Wait.");
    case Activity::kPressures:
      return WhenPressures(bench);
    case Activity::kRedundancy:
      return WhenRedundancy(bench);
    case Activity::kWheels:
      return WhenWheels(bench);
    case Activity::kWheelsDone:
      return ReadScreen("The sensor test has ended.");
    case Activity::kLamp:
      return WhenLamp(bench);
    case Activity::kHeight:
      return WhenHeight(bench);
    case Activity::kHeightDone:
      return ReadScreen("The height sensor's calibration was commanded.");
    case Activity::kStopLights:
      return Say("The program switches the stop lights.", "Watch them here.");
    case Activity::kFlag:
      return WhenFlag(bench);
    case Activity::kRecorder:
      return ReadScreen("The program works with the recorder's data.");
  }
  return {};
}

}  // namespace

int NextWheel(const Bench& bench) {
  int before = bench.Told().WheelsAnswered();
  for (const int position : kSpinOrder)
    if (bench.Seen().Wheel(position).sensor != 0 && before-- == 0) return position;
  return 0;
}

Advice AdviceFor(const Bench& bench) {
  const Sight& sight = bench.Seen();
  if (bench.Where() == Presence::kTaken)
    return Say("Somebody else has this trailer.",
               "Close the other bench; this one takes over by itself.");
  if (bench.Where() == Presence::kAbsent)
    return Say("There is no simulated trailer.",
               "Start the program; the bench finds its trailer by itself.");
  if (!sight.adapter)
    return Say("The adapter is switched off.", "Switch it on.", Deed::kSwitchAdapter);
  if (!sight.connection)
    return Say("No program is connected to the trailer.",
               "Choose Restart ECU Communications there.");
  if (!sight.cable) return Say("The diagnostic cable is pulled.", "Plug it in.", Deed::kPlugCable);
  if (sight.ecu == "off")
    return Say("The ECU has no power.", "Switch the power on.", Deed::kSwitchPower);
  return ByActivity(bench);
}

}  // namespace lorimet::bench
