#include "parameters/conversions.h"

#include <charconv>
#include <cmath>

#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr double kPsiPerBar = 14.51;
constexpr double kPsiPerCount = 1.451;
constexpr double kUnladenCountsPerPsi = 0.69;
constexpr double kMillimetresPerCount = 0.1;
constexpr int kMillimetresPerTyreCount = 25;

// A number as it comes back from its own text.
double Rendered(double value) {
  if (!std::isfinite(value)) throw RuntimeError(ErrorNumber::kOverflow);
  const std::string text = NumberText(value);
  double read = 0;
  std::from_chars(text.data(), text.data() + text.size(), read);
  return read;
}

BytePair PairOf(double value) {
  BytePair pair;
  pair.high = ToByte(std::trunc(std::trunc(value) / 256));
  pair.low = ToByte(value - pair.high * 256.0);
  return pair;
}

}  // namespace

double Psi(std::uint8_t byte) { return byte * kPsiPerCount; }

double Millimetres(const BytePair& pair) {
  return (pair.high * 256 + pair.low) * kMillimetresPerCount;
}

std::string PressureText(std::uint8_t byte) { return FormatNumber(Psi(byte), "#0"); }

std::string PressureTextPmAn(std::uint8_t byte) {
  return FormatNumber(byte * kPsiPerBar / 10, "#0");
}

std::string ControlPressureText(std::uint8_t byte) {
  return FormatNumber(byte * 0.1 * kPsiPerBar, "#0");
}

std::string LengthText(const BytePair& pair) { return NumberText(Millimetres(pair)); }

std::string AxleLoadText(const BytePair& pair) {
  return std::to_string(pair.high * 256 + pair.low);
}

std::string TyreText(std::uint8_t byte) { return std::to_string(byte * kMillimetresPerTyreCount); }

std::string PackedText(std::uint8_t byte) { return FormatText(HexText(byte), "#00"); }

std::string BlockText(const ParmBlock& block, int first, int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(block(first + i));
  return FromCp1252(UntilNul(bytes));
}

std::string BlockText(const ParameterImage& image, const TextField& field) {
  return BlockText(image.*field.block, field.index, field.size);
}

std::uint8_t UnladenSuspensionByte(std::string_view psi) {
  return ToByte(NumericValue(psi) * kUnladenCountsPerPsi);
}

std::uint8_t PressureByte(std::string_view psi) {
  return ToByte(Rendered(StrictNumber(psi) * 10) / kPsiPerBar);
}

std::uint8_t TyreByte(std::string_view mm) {
  return ToByte(NumericValue(mm) / kMillimetresPerTyreCount);
}

std::uint8_t TeethByte(std::string_view teeth) { return ToByte(NumericValue(teeth)); }

BytePair LengthPair(std::string_view mm) { return PairOf(Rendered(StrictNumber(mm) * 10)); }

BytePair AxleLoadPair(std::string_view kg) { return PairOf(NumericValue(kg)); }

std::uint8_t PackedByte(std::string_view first, std::string_view second) {
  return ToByte(NumericValue(first) * 16 + NumericValue(second));
}

void StoreBlockText(ParmBlock& block, int first, int count, std::string_view bytes) {
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    block(first + i) = at < bytes.size() ? static_cast<std::uint8_t>(bytes[at]) : ' ';
  }
}

void StoreBlockText(ParameterImage& image, const TextField& field, std::string_view bytes) {
  StoreBlockText(image.*field.block, field.index, field.size, bytes);
}

}  // namespace lorimet
