// What both forms of the end-of-line report tell in the same words: identity, dates and outcomes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace lorimet {

class Dictionary;
struct ECUData;
struct TestResults;

// One line of the header: the English label and the value. Values are bytes of code page 1252, as
// fields of the ECU are given unchanged, NULs included.
struct ReportHeaderLine {
  const char* label;
  std::string value;
};

// How the number of sensors and modulators is shown.
enum class ConfigurationRule {
  kAsItStands,  // any number in its mask: "21M"
  kGuarded,     // sensors outside 1 to 4 are "?S/", modulators outside 1 to 3 "?M"
};

// "Manufacturer" to "ECU Orientation", in their order.
std::array<ReportHeaderLine, 9> ReportHeader(const ECUData& ecu_data, ConfigurationRule rule,
                                             const Dictionary& dictionary);

// "November 21, 2026", with the month in the words given.
std::string DateWords(const std::string& month, const std::tm& now);
// The same with the month translated, and "3:07 PM".
std::string ReportDate(const std::tm& now, const Dictionary& dictionary);
std::string ReportTime(const std::tm& now);

// The outcomes, which are shown in the program's native language.
const char* PressureWord(std::int16_t result);  // the redundancy test's too
const char* SensorWord(std::int16_t result);    // the lamp test's too
const char* HeightWord(std::int16_t result);

// The sensors in the order of the report: its letter and the place of its speed in the results.
struct ReportSensor {
  const char* letter;
  std::size_t index;
};
constexpr std::array<ReportSensor, 4> kReportSensors = {{
    {"c", 3},
    {"d", 2},
    {"e", 5},
    {"f", 4},
}};

// What the report's files are called, without folder and extension: the vehicle id of the wizard,
// or 12 characters of the ECU's serial number. Nothing when neither is known.
std::optional<std::string> ReportStem(const std::string& trailer_vin, const ECUData& ecu_data);

// "###-###-###-#" applied to a part number. The digits fill the mask from the right and its hyphens
// stay; a text that is no number comes out as it is.
std::string PartNumberText(const std::string& bytes);

}  // namespace lorimet
