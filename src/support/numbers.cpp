#include "support/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr int kSignificantDigits = 15;

// A finite number as sign, digits and the place of the point counted from the first digit.
struct Decimal {
  bool negative = false;
  std::string digits;  // no leading zeros; empty for zero
  int point = 0;       // digits before the point; may be negative or beyond the digits
};

Decimal FromDouble(double value) {
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value,
                                 std::chars_format::scientific, kSignificantDigits - 1);
  std::string_view text(buffer, static_cast<std::size_t>(end.ptr - buffer));
  Decimal decimal;
  if (text.front() == '-') {
    decimal.negative = true;
    text.remove_prefix(1);
  }
  const std::size_t exponent_at = text.find('e');
  for (const char c : text.substr(0, exponent_at))
    if (c != '.') decimal.digits += c;
  std::string_view exponent = text.substr(exponent_at + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  int power = 0;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  decimal.point = power + 1;
  while (!decimal.digits.empty() && decimal.digits.back() == '0') decimal.digits.pop_back();
  if (decimal.digits.empty()) decimal.point = 0;
  return decimal;
}

// Half away from zero, to `places` digits behind the point.
void Round(Decimal& decimal, int places) {
  const int keep = decimal.point + places;
  if (keep >= static_cast<int>(decimal.digits.size())) return;
  const bool up = keep >= 0 && decimal.digits[static_cast<std::size_t>(keep)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (up) {
    int i = keep - 1;
    while (i >= 0 && decimal.digits[static_cast<std::size_t>(i)] == '9')
      decimal.digits[static_cast<std::size_t>(i--)] = '0';
    if (i >= 0) {
      ++decimal.digits[static_cast<std::size_t>(i)];
    } else {
      decimal.digits.insert(decimal.digits.begin(), '1');
      ++decimal.point;
    }
  }
  if (decimal.digits.find_first_not_of('0') == std::string::npos) decimal.digits.clear();
}

char DigitAt(const Decimal& decimal, int place) {
  const bool there = place >= 0 && place < static_cast<int>(decimal.digits.size());
  return there ? decimal.digits[static_cast<std::size_t>(place)] : '0';
}

struct Mask {
  std::string_view prefix, suffix;
  int integer_digits = 0;   // "0" placeholders before the point
  int decimals = 0;         // placeholders behind the point
  int decimals_always = 0;  // up to the last "0" behind the point
  bool point = false;
  bool thousands = false;
};

Mask Parse(std::string_view mask) {
  const std::size_t first = mask.find_first_of("#0");
  const std::size_t end = mask.find_first_not_of("#0,.", first);
  Mask parsed;
  parsed.prefix = mask.substr(0, first);
  if (end != std::string_view::npos) parsed.suffix = mask.substr(end);
  bool zeros = false;
  for (const char c : mask.substr(first, end - first)) {
    if (c == '.') {
      parsed.point = true;
    } else if (c == ',') {
      parsed.thousands = true;
    } else if (parsed.point) {
      ++parsed.decimals;
      if (c == '0') parsed.decimals_always = parsed.decimals;
    } else {
      zeros = zeros || c == '0';
      if (zeros) ++parsed.integer_digits;
    }
  }
  return parsed;
}

std::string Format(Decimal decimal, std::string_view mask_text) {
  if (mask_text.find_first_of("#0") == std::string_view::npos) return std::string(mask_text);
  const Mask mask = Parse(mask_text);
  Round(decimal, mask.decimals);
  const int integers = decimal.digits.empty() ? 0 : std::max(decimal.point, 0);
  std::string number;
  for (int i = std::max(integers, mask.integer_digits); i > 0; --i) {
    number += DigitAt(decimal, decimal.point - i);
    if (mask.thousands && i > 1 && i % 3 == 1) number += ',';
  }
  if (mask.point) {
    int shown = mask.decimals;
    while (shown > mask.decimals_always && DigitAt(decimal, decimal.point + shown - 1) == '0')
      --shown;
    number += '.';
    for (int i = 0; i < shown; ++i) number += DigitAt(decimal, decimal.point + i);
  }
  const bool minus = decimal.negative && !decimal.digits.empty();
  return (minus ? "-" : "") + std::string(mask.prefix) + number + std::string(mask.suffix);
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Reads blanks, sign, digits and one point from the front of `text` and removes them. False when
// there is no digit.
bool TakeNumber(std::string_view& text, double& value) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  std::string number;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    if (text.front() == '-') number += '-';
    text.remove_prefix(1);
  }
  bool digits = false;
  bool point = false;
  while (!text.empty() && (IsDigit(text.front()) || (text.front() == '.' && !point))) {
    digits = digits || IsDigit(text.front());
    point = point || text.front() == '.';
    number += text.front();
    text.remove_prefix(1);
  }
  value = 0;
  if (!digits) return false;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  // More digits than a double can hold: beyond every range that a caller may ask for. A fraction
  // too small for a double is 0.
  const bool whole_part = number.find_first_of("123456789") < number.find('.');
  if (result.ec == std::errc::result_out_of_range && whole_part)
    value = number.front() == '-' ? -std::numeric_limits<double>::infinity()
                                  : std::numeric_limits<double>::infinity();
  return true;
}

bool ReadStrict(std::string_view text, double& value) {
  if (!TakeNumber(text, value)) return false;
  return std::ranges::all_of(text, IsBlank);
}

template <typename T>
T RoundInto(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= double{std::numeric_limits<T>::min()} &&
        rounded <= double{std::numeric_limits<T>::max()}))
    throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<T>(rounded);
}

}  // namespace

std::string NumberText(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Inf" : "Inf";
  const Decimal decimal = FromDouble(value);
  if (decimal.digits.empty()) return "0";
  const int size = static_cast<int>(decimal.digits.size());
  std::string text = decimal.negative ? "-" : "";
  if (decimal.point > kSignificantDigits || decimal.point < -kSignificantDigits) {
    const int power = decimal.point - 1;
    text += decimal.digits.substr(0, 1);
    if (size > 1) text += "." + decimal.digits.substr(1);
    return text + "E" + (power < 0 ? "-" : "+") + std::to_string(std::abs(power));
  }
  text += decimal.point <= 0 ? "0" : "";
  for (int i = 0; i < decimal.point; ++i) text += DigitAt(decimal, i);
  if (size > decimal.point) {
    text += '.';
    for (int i = decimal.point; i < size; ++i) text += DigitAt(decimal, i);
  }
  return text;
}

std::string FormatNumber(double value, std::string_view mask) {
  if (!std::isfinite(value)) return NumberText(value);
  return Format(FromDouble(value), mask);
}

std::string FormatText(std::string_view text, std::string_view mask) {
  double value = 0;
  if (!ReadStrict(text, value) || std::isinf(value)) return std::string(text);
  return FormatNumber(value, mask);
}

double NumericValue(std::string_view text) {
  double value = 0;
  TakeNumber(text, value);
  return value;
}

double StrictNumber(std::string_view text) {
  double value = 0;
  if (!ReadStrict(text, value)) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return value;
}

bool IsStrictNumber(std::string_view text) {
  double value = 0;
  return ReadStrict(text, value);
}

std::uint8_t ToByte(double value) { return RoundInto<std::uint8_t>(value); }
std::int16_t ToInteger(double value) { return RoundInto<std::int16_t>(value); }
std::int32_t ToLong(double value) { return RoundInto<std::int32_t>(value); }

std::string HexText(std::uint32_t value) {
  char buffer[8];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, 16);
  std::string text(buffer, end.ptr);
  std::ranges::transform(text, text.begin(), [](char c) {
    return c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return text;
}

}  // namespace lorimet
