// Numbers and their texts: masks, rounding, and the two ways of reading a number from a text.
//
// The decimal sign is a point whatever the system's locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lorimet {

// The value as decimal text with at most 15 significant digits: 12, 0.1, -1.5, 1E+20.
std::string NumberText(double value);

// A mask has one run of placeholders ("#" digit if there is one, "0" digit always, "," thousands,
// "." decimal point); what comes before and behind the run is literal. The value is rounded half
// away from zero on its decimal text, and a negative zero is never shown. Masks in use: "##0.0",
// "##0", "##,###,##0.0", "#S/", "#M", "#0", "#00", "#000". Infinity and NaN show as NumberText
// gives them.
std::string FormatNumber(double value, std::string_view mask);
// A text that is a strict number is formatted; any other, and a number that is too long for a
// double, is returned as it is.
std::string FormatText(std::string_view text, std::string_view mask);

// The leading number of a text: blanks, a sign, digits with one point; 0 when there is none.
double NumericValue(std::string_view text);
// The whole text as a number, blanks allowed at both ends; error 13 for anything else.
double StrictNumber(std::string_view text);
bool IsStrictNumber(std::string_view text);

// Rounded to nearest, a half to the even neighbour; error 6 when out of range or not a number.
std::uint8_t ToByte(double value);
std::int16_t ToInteger(double value);  // 16 bits
std::int32_t ToLong(double value);     // 32 bits

// Upper-case hexadecimal without leading zeros.
std::string HexText(std::uint32_t value);

}  // namespace lorimet
