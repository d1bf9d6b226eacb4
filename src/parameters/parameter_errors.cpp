#include "parameters/parameter_errors.h"

#include <array>
#include <bit>
#include <cstddef>

namespace lorimet {
namespace {

constexpr int kBytes = 20;
constexpr int kBits = 8;

// Byte by byte, lowest bit first. The ECU's maker words them so; they are not ours to correct.
// clang-format off
constexpr std::array<std::string_view, kBytes * kBits> kParameterErrors{
    // Byte 1.
    "Parameter Error 1-0 : PARA_ERR_00_00",
    "Parameter Error 1-1 : Implausible parameter settings for axle 1; unladen axle load = 0 and "
    "laden axle load > 0 or unladen axle load is larger than laden axle load; axle 1 can be "
    "lifted and has c and d sensor",
    "Parameter Error 1-2 : Implausible parameter settings for axle 2; unladen axle load = 0 and "
    "laden axle load > 0 or unladen axle load is larger than laden axle load; axle 1 can be "
    "lifted and has c and d sensor",
    "Parameter Error 1-3 : Implausible parameter settings for axle 3; unladen axle load = 0 and "
    "laden axle load > 0 or unladen axle load is larger than laden axle load; axle 1 can be "
    "lifted and has c and d sensor",
    "Parameter Error 1-4 : Implausible parameter settings for axle 4; unladen axle load = 0 and "
    "laden axle load > 0 or unladen axle load is larger than laden axle load; axle 1 can be "
    "lifted and has c and d sensor",
    "Parameter Error 1-5 : Implausible parameter settings for axle 5; unladen axle load = 0 and "
    "laden axle load > 0 or unladen axle load is larger than laden axle load; axle 1 can be "
    "lifted and has c and d sensor",
    "Parameter Error 1-6 : No axle loads have been entered for any axle",
    "Parameter Error 1-7 : The axle loads are not defined consecutively, i.e. axle 1,2,3 but "
    "axle 1,empty,2,3",
    // Byte 2.
    "Parameter Error 2-0 : Within the installed axles, the combination EBS relay valve - trailer "
    "modulator - EBS relay valve, or trailer modulator - EBS relay valve - trailer modulator, "
    "occurred at least once",
    "Parameter Error 2-1 : Axle c-d: Bellows pressure unladen or laden = 0 bar or bag pressure "
    "unladen > bag pressure laden.",
    "Parameter Error 2-2 : OVG was activated, but there is no lateral acceleration sensor in the "
    "modulator",
    "Parameter Error 2-3 : A successful start-up test has not been completed yet",
    "Parameter Error 2-4 : A third modulator was parameterized for a 2M System or a third "
    "modulator was parameterized on more than 2 axles",
    "Parameter Error 2-5 : No EBS relay valve available in system.",
    "Parameter Error 2-6 : No axle was assigned to the modulator",
    "Parameter Error 2-7 : No c-d sensors have been assigned on any axle",
    // Byte 3.
    "Parameter Error 3-0 : Sensors e-f parameterized on more than one axle, or ABS-2S/2M system "
    "parameterized with sensors e,f, or ABS-4S/3M system parameterized without sensors e,f",
    "Parameter Error 3-1 : A bellows pressure sensor is parameterized for the axle e-f even "
    "though no third modulator was selected",
    "Parameter Error 3-2 : Incorrect checksum - GIO Actual System",
    "Parameter Error 3-3 : Incorrect checksum - Pulse width modulated pressure control",
    "Parameter Error 3-4 : Incorrect checksum - ABS parameter",
    "Parameter Error 3-5 : Incorrect checksum - GIO Hardware Max System (I/O options for generic "
    "functions)",
    "Parameter Error 3-6 : Incorrect checksum - GIO Max System (GIO functions which can be "
    "enabled/disabled)",
    "Parameter Error 3-7 : Incorrect checksum - Distance sensor calibration",
    // Byte 4.
    "Parameter Error 4-0 : Incorrect checksum - Device Number Specific parameters (hardware "
    "options for non-GIO functions)",
    "Parameter Error 4-1 : The supply pressure switch threshold is outside the valid range",
    "Parameter Error 4-2 : The ECU is parameterized for 4S/3M without a 4S/3M ABS system being "
    "present",
    "Parameter Error 4-3 : There are parameter settings for a drawbar trailer with 4S/2M+1M "
    "system without axle sensor for axle e-f",
    "Parameter Error 4-4 : A parameter in the SLEV section is outside the valid value range",
    "Parameter Error 4-5 : A sensor e-f is assigned to the trailer modulator",
    "Parameter Error 4-6 : A sensor c-d is assigned to the third modulator",
    "Parameter Error 4-7 : A sensed axle is parameterized as tag axle",
    // Byte 5.
    "Parameter Error 5-0 : Axle e-f: Bellows pressure unladen or laden = 0 bar or bag pressure "
    "unladen > bag pressure laden. ",
    "Parameter Error 5-1 : The value for the fault filter is less than 10",
    "Parameter Error 5-2 : PARA_ERR_02_02",
    "Parameter Error 5-3 : PARA_ERR_02_03",
    "Parameter Error 5-4 : PARA_ERR_02_04",
    "Parameter Error 5-5 : An address error occurred during initialization when loading the EEPROM",
    "Parameter Error 5-6 : PARA_ERR_02_06",
    "Parameter Error 5-7 : PARA_ERR_02_07",
    // Byte 6.
    "Parameter Error 6-0 : PARA_ERR_02_08",
    "Parameter Error 6-1 : PARA_ERR_02_09",
    "Parameter Error 6-2 : PARA_ERR_02_10",
    "Parameter Error 6-3 : PARA_ERR_02_11",
    "Parameter Error 6-4 : PARA_ERR_02_12",
    "Parameter Error 6-5 : PARA_ERR_02_13",
    "Parameter Error 6-6 : A 4S/3M system is connected, but only a 4S/2M is parameterized",
    "Parameter Error 6-7 : A 4S/3M system is connected, but only a 4S/2M+1M is parameterized",
    // Byte 7.
    "Parameter Error 7-0 : Implausible sensing of brake lining wear",
    "Parameter Error 7-1 : The points of the BFD characteristic are not parameterized in "
    "ascending order",
    "Parameter Error 7-2 : The braking pressure unladen is less than the application pressure or "
    "greater than braking pressure laden",
    "Parameter Error 7-3 : PARA_ERR_03_03",
    "Parameter Error 7-4 : PARA_ERR_03_04",
    "Parameter Error 7-5 : PARA_ERR_03_05",
    "Parameter Error 7-6 : PARA_ERR_03_06",
    "Parameter Error 7-7 : PARA_ERR_03_07",
    // Byte 8.
    "Parameter Error 8-0 : PARA_ERR_03_08",
    "Parameter Error 8-1 : PARA_ERR_03_09",
    "Parameter Error 8-2 : PARA_ERR_03_10",
    "Parameter Error 8-3 : PARA_ERR_03_11",
    "Parameter Error 8-4 : PARA_ERR_03_12",
    "Parameter Error 8-5 : PARA_ERR_03_13",
    "Parameter Error 8-6 : PARA_ERR_03_14",
    "Parameter Error 8-7 : PARA_ERR_03_15",
    // Byte 9.
    "Parameter Error 9-0 : PARA_ERR_04_00",
    "Parameter Error 9-1 : PARA_ERR_04_01",
    "Parameter Error 9-2 : PARA_ERR_04_02",
    "Parameter Error 9-3 : PARA_ERR_04_03",
    "Parameter Error 9-4 : PARA_ERR_04_04",
    "Parameter Error 9-5 : PARA_ERR_04_05",
    "Parameter Error 9-6 : PARA_ERR_04_06",
    "Parameter Error 9-7 : PARA_ERR_04_07",
    // Byte 10.
    "Parameter Error 10-0 : PARA_ERR_04_08",
    "Parameter Error 10-1 : PARA_ERR_04_09",
    "Parameter Error 10-2 : PARA_ERR_04_10",
    "Parameter Error 10-3 : PARA_ERR_04_11",
    "Parameter Error 10-4 : Incorrect ROM checksum",
    "Parameter Error 10-5 : No desired pressure sensor parameterized",
    "Parameter Error 10-6 : PARA_ERR_04_14",
    "Parameter Error 10-7 : PARA_ERR_04_15",
    // Byte 11.
    "Parameter Error 11-0 : PARA_ERR_05_00",
    "Parameter Error 11-1 : PARA_ERR_05_01",
    "Parameter Error 11-2 : PARA_ERR_05_02",
    "Parameter Error 11-3 : PARA_ERR_05_03",
    "Parameter Error 11-4 : PARA_ERR_05_04",
    "Parameter Error 11-5 : PARA_ERR_05_05",
    "Parameter Error 11-6 : PARA_ERR_05_06",
    "Parameter Error 11-7 : PARA_ERR_05_07",
    // Byte 12.
    "Parameter Error 12-0 : PARA_ERR_05_08",
    "Parameter Error 12-1 : PARA_ERR_05_09",
    "Parameter Error 12-2 : PARA_ERR_05_10",
    "Parameter Error 12-3 : PARA_ERR_05_11",
    "Parameter Error 12-4 : The electronic system has detected an unknown pin type",
    "Parameter Error 12-5 : The parameterized GIO Function us not supported by the electronic "
    "system",
    "Parameter Error 12-6 : Incorrect GIO parameter settings Violation of the function-exclusion "
    "table",
    "Parameter Error 12-7 : Incorrect GIO parameter settings Violation of the "
    "function-dependency table",
    // Byte 13.
    "Parameter Error 13-0 : Assigned pin is not compatible with GIO Function",
    "Parameter Error 13-1 : Multiple assignment on one plug pin, or GIO Functions are assigned "
    "on parallel pins",
    "Parameter Error 13-2 : Faulty initialization of the hardware driver",
    "Parameter Error 13-3 : Wrong parameter settings for the Parallel Pins",
    "Parameter Error 13-4 : VDU is connected but not parameterized",
    "Parameter Error 13-5 : A parameter in the outlet valve section is outside the valid value "
    "range",
    "Parameter Error 13-6 : A parameter in the EOL section is outside the valid value range",
    "Parameter Error 13-7 : A parameter in the EOL-Axle1 section is outside the valid value range",
    // Byte 14.
    "Parameter Error 14-0 : A parameter in the EOL-Axle2 section is outside the valid value range",
    "Parameter Error 14-1 : A parameter in the EOL-Axle3 section is outside the valid value range",
    "Parameter Error 14-2 : A parameter in the EOL-Axle4 section is outside the valid value range",
    "Parameter Error 14-3 : A parameter in the EOL-Axle5 section is outside the valid value range",
    "Parameter Error 14-4 : A parameter in the Brake Force Distribution section is outside the "
    "valid value range",
    "Parameter Error 14-5 : A parameter in the EOL-ABS section is outside the valid value range",
    "Parameter Error 14-6 : A parameter in the Function Hardware section is outside the valid "
    "value range",
    "Parameter Error 14-7 : A parameter in the OVG section is outside the valid value range",
    // Byte 15.
    "Parameter Error 15-0 : A parameter in the detailed EBS section is outside the valid value "
    "range",
    "Parameter Error 15-1 : A parameter in the ABS section is outside the valid value range",
    "Parameter Error 15-2 : A parameter in the P3 (maneuvering) section is outside the valid "
    "value range",
    "Parameter Error 15-3 : A filter parameter in the Distance Sensor section is outside the "
    "valid value range",
    "Parameter Error 15-4 : 2S/2M system parameterized, connected sensor f requires 4S parameter "
    "settings; change parameter settings and connect missing Z2 sensor or disconnect redundant "
    "sensor f",
    "Parameter Error 15-5 : 2S/2M system parameterized, connected sensor e requires 4S parameter "
    "settings; change parameter settings and connect missing sensor e or disconnect redundant "
    "sensor e",
    "Parameter Error 15-6 : A drawbar trailer with sensed lifting axle is parameterized",
    "Parameter Error 15-7 : The ratio of pole wheel tooth number and tire circumference is "
    "outside the valid range (23 to 39)",
    // Byte 16.
    "Parameter Error 16-0 : Wrong GIO parameter settings, refer to further fault notes",
    "Parameter Error 16-1 : Incorrect speed values for the VSW1 function",
    "Parameter Error 16-2 : Incorrect speed values for the VSW2 function",
    "Parameter Error 16-3 : A system stack overflow occurred",
    "Parameter Error 16-4 : A user stack overflow occurred",
    "Parameter Error 16-5 : A parameter in the EBS section is outside the valid value range",
    "Parameter Error 16-6 : A pressure sensor is on connector 3.  Modulator was detected, but "
    "has not been parameterized",
    "Parameter Error 16-7 : PARA_ERR_07_15",
    // Byte 17.
    "Parameter Error 17-0 : Incorrect customer end-of-line checksum",
    "Parameter Error 17-1 : Incorrect Norvick end-of-line checksum",
    "Parameter Error 17-2 : Incorrect function-parameter checksum",
    "Parameter Error 17-3 : Incorrect distance sensor calibration checksum",
    "Parameter Error 17-4 : Incorrect checksum for the front axle level sensor",
    "Parameter Error 17-5 : Incorrect checksum for the rear axle level sensor",
    "Parameter Error 17-6 : PARA_ERR_08_06",
    "Parameter Error 17-7 : PARA_ERR_08_07",
    // Byte 18.
    "Parameter Error 18-0 : Incorrect checksum for the Norvick Production Data section",
    "Parameter Error 18-1 : Incorrect checksum for the Bootloader Data 1 section",
    "Parameter Error 18-2 : Incorrect checksum for the Bootloader Data 2 section",
    "Parameter Error 18-3 : Incorrect checksum for the Bootloader Diagnostic Paramter section",
    "Parameter Error 18-4 : PARA_ERR_PARA_Levelling",
    "Parameter Error 18-5 : Incorrect checksum for the Drel section",
    "Parameter Error 18-6 : Incorrect checksum for the Axle Load Graph 1 section",
    "Parameter Error 18-7 : Incorrect checksum for the Axle Load Graph 2 section",
    // Byte 19.
    "Parameter Error 19-0 : Incorrect checksum for the Axle Load Graph 3 section",
    "Parameter Error 19-1 : Incorrect checksum for the Axle Load Graph 4 section",
    "Parameter Error 19-2 : GIO-Functions use a common pin.  The parameter settings for fault "
    "detection differ however.",
    "Parameter Error 19-3 : No axle, or too few axles, parameterized as lifting axle(s).",
    "Parameter Error 19-4 : Low-speed traction control is activated without the first axle being "
    "liftable, or without the electronic system controlling the lifting axle.",
    "Parameter Error 19-5 : Maneuver assistance is activated without the first axle being "
    "liftable, or without the electronic system controlling the lifting axle.",
    "Parameter Error 19-6 : Unknown Fault",
    "Parameter Error 19-7 : A parameter in the Norvick EOL section is outside the valid value "
    "range.",
    // Byte 20.
    "Parameter Error 20-0 : PARA_ERR_9_8",
    "Parameter Error 20-1 : PARA_ERR_9_9",
    "Parameter Error 20-2 : PARA_ERR_9_10",
    "Parameter Error 20-3 : PARA_ERR_9_11",
    "Parameter Error 20-4 : PARA_ERR_9_12",
    "Parameter Error 20-5 : PARA_ERR_9_13",
    "Parameter Error 20-6 : PARA_ERR_9_14",
    "Parameter Error 20-7 : PARA_ERR_9_15",
};
// clang-format on

}  // namespace

std::string_view ParameterErrorText(int n, std::uint8_t mask) {
  if (n < 1 || n > kBytes || !std::has_single_bit(mask)) return {};
  return kParameterErrors[static_cast<std::size_t>((n - 1) * kBits + std::countr_zero(mask))];
}

}  // namespace lorimet
