// The one place of the conversions between a parameter byte and what the screen shows.
//
// The screen shows psi, the bytes count 0.1 bar, and 14.51 psi are taken for a bar. Forward and
// back do not invert exactly: a value can drift by a count when it passes a page unchanged.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "parameters/block_fields.h"

namespace lorimet {

// --- To the screen.

// psi of a 0.1 bar byte.
double Psi(std::uint8_t byte);
// mm of a pair that counts 0.1 mm.
double Millimetres(const BytePair& pair);
// psi of a 0.1 bar byte, as a whole number.
std::string PressureText(std::uint8_t byte);
// The same by another order of the products, for the braking pressure Pm_AN.
std::string PressureTextPmAn(std::uint8_t byte);
// The same in steps, for the control pressures.
std::string ControlPressureText(std::uint8_t byte);
// mm of a pair that counts 0.1 mm, with its tenths where there are any.
std::string LengthText(const BytePair& pair);
// kg of an axle load pair.
std::string AxleLoadText(const BytePair& pair);
// mm of a tyre byte, which counts 25 mm.
std::string TyreText(std::uint8_t byte);
// Two packed decimal digits; the hexadecimal text where they are none.
std::string PackedText(std::uint8_t byte);
// Single-byte characters of a block as text, to the first NUL, blanks kept.
std::string BlockText(const ParmBlock& block, int first, int count);
std::string BlockText(const ParameterImage& image, const TextField& field);

// --- From the screen. Error 13 for a text that is no number where a strict one is asked for,
// error 6 for what does not fit the byte; all rounded with ties to even.

// The unladen suspension pressure from psi by the text's numeric value: times 0.69, which is not
// the inverse of the way there.
std::uint8_t UnladenSuspensionByte(std::string_view psi);
// Every other pressure from psi (strict): tenfold, rendered to text, read back, divided by 14.51.
std::uint8_t PressureByte(std::string_view psi);
// By the text's numeric value, both.
std::uint8_t TyreByte(std::string_view mm);
std::uint8_t TeethByte(std::string_view teeth);

// From mm (strict): tenfold, rendered to text and read back.
BytePair LengthPair(std::string_view mm);
// From kg by the text's numeric value.
BytePair AxleLoadPair(std::string_view kg);
// One byte of two digits by their numeric values; what is no digit counts as 0.
std::uint8_t PackedByte(std::string_view first, std::string_view second);

// Copies single-byte characters (code page 1252) into a block, filled up with blanks to `count`.
void StoreBlockText(ParmBlock& block, int first, int count, std::string_view bytes);
void StoreBlockText(ParameterImage& image, const TextField& field, std::string_view bytes);

}  // namespace lorimet
