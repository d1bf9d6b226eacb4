// The byte map: which byte of which block of the parameter image means what.
#pragma once

#include "parameters/block_fields.h"

namespace lorimet::parameter {

inline constexpr BlockName kEOL1 = &ParameterImage::EOL1;
inline constexpr BlockName kEOL2 = &ParameterImage::EOL2;
inline constexpr BlockName kEOL3 = &ParameterImage::EOL3;
inline constexpr BlockName kEOL5 = &ParameterImage::EOL5;
inline constexpr BlockName kEOL7 = &ParameterImage::EOL7;
inline constexpr BlockName kEOL9 = &ParameterImage::EOL9;

// --- EOL1, the vehicle. Pressures count 0.1 bar, lengths 0.1 mm.

inline constexpr ByteField kVehicleType{kEOL1, 1, 0x03};  // 0 semi, 1 draw-bar, 2 single axle
inline constexpr ByteField kAbsSystem{kEOL1, 1, 0x1C};    // an item of optABSSystem
inline constexpr ByteField kMechanical{kEOL1, 1, 0x20};   // 1 mechanical suspension, 0 air
inline constexpr ByteField kMounting{kEOL1, 1, 0xC0};     // cleared before the next is set
inline constexpr ByteField kRearMounted{kEOL1, 1, 0x80};  // 0 facing forward

// Three axles have records, `a` is 0 to 2.
inline constexpr int kAxles = 3;
constexpr PairField AxleLoadUnladen(int a) { return {kEOL1, 3 + 6 * a}; }  // kg
constexpr PairField AxleLoadLaden(int a) { return {kEOL1, 5 + 6 * a}; }
constexpr ByteField AxleLift(int a) {
  return {kEOL1, 7 + 6 * a, 0x07};
}  // 1 lift axle 1, 3 the 2nd
constexpr ByteField AxleFlag(int a) { return {kEOL1, 7 + 6 * a, 0x08}; }     // kept as read
constexpr ByteField AxleSensors(int a) { return {kEOL1, 7 + 6 * a, 0x30}; }  // 1 c-d, 2 e-f, 3 both

inline constexpr ByteField kSuspensionUnladen{kEOL1, 33};
inline constexpr ByteField kSuspensionLaden{kEOL1, 34};
inline constexpr ByteField kControlPressure[] = {{kEOL1, 38}, {kEOL1, 39}, {kEOL1, 41}};
inline constexpr ByteField kBrakingLadenPmAn{kEOL1, 42};
inline constexpr ByteField kBrakingLadenPmK1{kEOL1, 43};
inline constexpr ByteField kBrakingLadenPmMax{kEOL1, 45};
inline constexpr ByteField kBrakingUnladen{kEOL1, 46};
inline constexpr ByteField kTyreSize[] = {{kEOL1, 55}, {kEOL1, 56}};  // axle c-d, axle e-f; 25 mm
inline constexpr ByteField kNumTeeth[] = {{kEOL1, 58}, {kEOL1, 59}};
inline constexpr ByteField kTwinTyres{kEOL1, 62, 0x01};
inline constexpr PairField kLeverLength{kEOL1, 64};
inline constexpr PairField kSuspensionPath{kEOL1, 68};

// --- EOL2, the Overturn Guard and which functions there are.

inline constexpr ByteField kSpeedSwitch{kEOL2, 1};
inline constexpr ByteField kSpeedSwitchBit{kEOL2, 1, 0x01};
inline constexpr ByteField kOutputOptions{kEOL2, 2};
inline constexpr ByteField kStopLightOption{kEOL2, 2, 0x20};
inline constexpr ByteField kSharedOutput{kEOL2, 2, 0x80};
inline constexpr ByteField kConstantPower{kEOL2, 3, 0x01};
inline constexpr ByteField kHydraulicSensor{kEOL2, 3, 0x40};  // and the height status with TIXA
inline constexpr ByteField kSpecialFunctions{kEOL2, 3, 0x41};
inline constexpr ByteField kSuspensionInputs{kEOL2, 3, 0xC0};
inline constexpr ByteField kPathSensing{kEOL2, 4, 0x03};     // 1 with mechanical suspension
inline constexpr ByteField kBellowsSensing{kEOL2, 5, 0x10};  // 1 with air suspension
inline constexpr ByteField kGuardOptions{kEOL2, 5};
inline constexpr ByteField kOverturnGuard{kEOL2, 5, 0x80};
inline constexpr ByteField kGioMask1{kEOL2, 7};
inline constexpr ByteField kGioMask2{kEOL2, 8};

// --- EOL3, values of the functions.

inline constexpr ByteField kTurnOnSpeed{kEOL3, 1};  // kph
inline constexpr ByteField kTurnOffSpeed{kEOL3, 2};
inline constexpr ByteField kSpeedSwitchMode{kEOL3, 3};  // 1 with the speed switch, 2 without
inline constexpr ByteField kSpeedSwitchKind{kEOL3, 5};
inline constexpr ByteField kStopLightMode{kEOL3, 33};  // 3 with the option, 7 without
// Values of the GIO functions without a name of their own.
constexpr ByteField GioValue(int index) { return {kEOL3, index}; }

// --- EOL5, what the connectors' pins carry, in the ECU's codes.

constexpr ByteField Connector(int index) { return {kEOL5, index}; }
inline constexpr ByteField kSpeedSwitchPin = Connector(1);
inline constexpr ByteField kStopLightPin = Connector(18);  // 177 Level 2 output, 65 cable, 0 none
inline constexpr ByteField kSharedPin = Connector(20);
inline constexpr ByteField kConstantPowerPin = Connector(21);
inline constexpr ByteField kHydraulicPin1 = Connector(30);
inline constexpr ByteField kHydraulicPin2 = Connector(31);
inline constexpr ByteField kSuspensionPin = Connector(34);
// The GIO functions' own, cleared before each choice.
inline constexpr int kFirstGioConnector = 85;
inline constexpr int kLastGioConnector = 108;

// --- EOL7, who the trailer is.

inline constexpr ByteField kProductionCentury{kEOL7, 1};  // packed decimal
inline constexpr ByteField kProductionYear{kEOL7, 2};
inline constexpr ByteField kProductionWeek{kEOL7, 3};
inline constexpr TextField kVehicleId{kEOL7, 4, 18};
inline constexpr TextField kManufacturer{kEOL7, 22, 20};
inline constexpr TextField kTrailerType{kEOL7, 42, 20};

// --- EOL9.

inline constexpr ByteField kStopLightInstalled{kEOL9, 2, 0x04};
inline constexpr ByteField kStopLightLetter{kEOL9, 15};

// --- FCF1 of the lift axle; 5120 counts are 14 psi.

inline constexpr PairField kLoweringPressure{&ParameterImage::FCF1, 16};
inline constexpr PairField kLiftingPressure{&ParameterImage::FCF1, 18};

}  // namespace lorimet::parameter
