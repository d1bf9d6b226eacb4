#include "reports/report_values.h"

#include <cmath>

#include "reports/vehicle_name.h"
#include "session/ecu_data.h"
#include "support/dates.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"
#include "tests/test_results.h"

namespace lorimet {
namespace {

constexpr std::string_view kPartNumberMask = "###-###-###-#";

// A field whose first byte is 0 is not known.
template <std::size_t N>
std::string FieldBytes(const EcuText<N>& field, const Dictionary& dictionary) {
  std::string bytes = field.Load();
  if (bytes.front() == '\0') return ToCp1252(dictionary.Translate("N/A"));
  return bytes;
}

std::string Configuration(const ECUData& ecu_data, ConfigurationRule rule) {
  const int sensors = ecu_data.bNumSensors.Load();
  const int modulators = ecu_data.bNumModulators.Load();
  const bool guarded = rule == ConfigurationRule::kGuarded;
  const bool no_sensors = guarded && (sensors < 1 || sensors > 4);
  const bool no_modulators = guarded && (modulators < 1 || modulators > 3);
  return (no_sensors ? "?S/" : FormatNumber(sensors, "#S/")) +
         (no_modulators ? "?M" : FormatNumber(modulators, "#M"));
}

const char* Orientation(std::int16_t nOrientation) {
  switch (nOrientation) {
    case 0:
      return "Facing Front";
    case 1:
      return "Facing Rear";
    case 2:
      return "Not Applicable";
    default:
      return "Not Available";
  }
}

}  // namespace

std::array<ReportHeaderLine, 9> ReportHeader(const ECUData& ecu_data, ConfigurationRule rule,
                                             const Dictionary& dictionary) {
  const bool has_part_number = ecu_data.PartNum.ByteAt(0) != 0;
  return {{
      {"Manufacturer", FieldBytes(ecu_data.Manufacturer, dictionary)},
      {"VIN", Trim(FieldBytes(ecu_data.VehicleId, dictionary))},
      {"Trailer Type", FieldBytes(ecu_data.TrailerType, dictionary)},
      {"ABS System Config", Configuration(ecu_data, rule)},
      {"ECU Revision", FieldBytes(ecu_data.SWRev, dictionary)},
      {"Part Number", has_part_number ? PartNumberText(ecu_data.PartNum.Load())
                                      : FieldBytes(ecu_data.PartNum, dictionary)},
      {"Serial Number", FieldBytes(ecu_data.SerialNum, dictionary)},
      {"Date of Manufacture", FieldBytes(ecu_data.MfgDate, dictionary)},
      {"ECU Orientation", ToCp1252(dictionary.Translate(Orientation(ecu_data.nMounting.Load())))},
  }};
}

std::string DateWords(const std::string& month, const std::tm& now) {
  return month + " " + std::to_string(now.tm_mday) + ", " +
         FormatNumber(now.tm_year + 1900, "0000");
}

std::string ReportDate(const std::tm& now, const Dictionary& dictionary) {
  return DateWords(dictionary.Translate(MonthName(now.tm_mon)), now);
}

std::string ReportTime(const std::tm& now) {
  const int hour = now.tm_hour % 12 == 0 ? 12 : now.tm_hour % 12;
  return std::to_string(hour) + ":" + FormatNumber(now.tm_min, "00") +
         (now.tm_hour < 12 ? " AM" : " PM");
}

const char* PressureWord(std::int16_t result) {
  return result == kTestNotApplicable ? "Not Applicable" : SensorWord(result);
}

const char* SensorWord(std::int16_t result) {
  if (result == kNotTested) return "Not Tested";
  return result == kTestPassed ? "Passed" : "Failed";
}

const char* HeightWord(std::int16_t result) {
  if (result == kNotTested) return "Not Calibrated";
  return result == kTestPassed ? "Calibrated" : "Calibration Failed";
}

std::optional<std::string> ReportStem(const std::string& trailer_vin, const ECUData& ecu_data) {
  const std::string vehicle = Trim(trailer_vin);
  if (!vehicle.empty()) return vehicle;
  return SerialName(ecu_data);
}

std::string PartNumberText(const std::string& bytes) {
  const std::string_view text = UntilNul(bytes);
  if (!IsStrictNumber(text)) return bytes;
  const double value = StrictNumber(text);
  std::string digits = FormatNumber(value < 0 ? -value : value, "#");
  if (!std::isfinite(value)) return bytes;
  std::string shown;
  for (std::size_t i = kPartNumberMask.size(); i-- > 0;) {
    if (kPartNumberMask[i] != '#') {
      shown.insert(shown.begin(), kPartNumberMask[i]);
    } else if (!digits.empty()) {
      shown.insert(shown.begin(), digits.back());
      digits.pop_back();
    }
  }
  // What the mask has no place for comes in front of it.
  return (value < 0 ? "-" : "") + digits + shown;
}

}  // namespace lorimet
