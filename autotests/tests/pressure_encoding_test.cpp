// The two bytes of a pressure.
#include "tests/pressure_encoding.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

struct EncodingRow {
  double psi;
  double psi_per_bar;
  PressureWord word;  // low, high
};

TEST(PressureEncoding, GivesTheBytesOfKnownPressures) {
  constexpr EncodingRow kRows[] = {
      {0.0, 14.5, {0x00, 0x00}},    {14.5, 14.5, {0x00, 0x14}},  // 1 bar: 5120 counts
      {14.51, 14.5, {0x04, 0x14}},                               // 5123.5, rounded on its own
      {65.295, 14.5, {0x10, 0x5A}}, {10.157, 14.5, {0x02, 0x0E}},
      {80.0, 14.5, {0x58, 0x6E}},   {69.648, 14.4, {0xBC, 0x60}},  // the laden bellows alone
      {69.648, 14.5, {0x11, 0x60}}, {185.59, 14.5, {0xFC, 0xFF}},  // nearly all that fits
      {-0.001, 14.5, {0x00, 0x00}},                                // less than half a count below 0
  };
  for (const EncodingRow& row : kRows)
    EXPECT_EQ(EncodePressure(row.psi, row.psi_per_bar), row.word)
        << row.psi << ": " << int{row.word.low} << " " << int{row.word.high};
}

// With 5120 psi to the bar a psi is a count.
PressureWord OfCounts(double counts) { return EncodePressure(counts, 5120.0); }

TEST(PressureEncoding, RoundsAHalfToTheEvenNeighbour) {
  EXPECT_EQ(OfCounts(0.5), (PressureWord{0, 0}));
  EXPECT_EQ(OfCounts(1.5), (PressureWord{2, 0}));
  EXPECT_EQ(OfCounts(2.5), (PressureWord{2, 0}));
  EXPECT_EQ(OfCounts(254.5), (PressureWord{254, 0}));
  EXPECT_EQ(OfCounts(258.5), (PressureWord{2, 1}));
}

// The high byte comes from the rounded counts, the low byte from the others.
TEST(PressureEncoding, CarriesWhenTheRoundedCountsReachTheNextHighByte) {
  EXPECT_EQ(OfCounts(255.4), (PressureWord{255, 0}));
  EXPECT_EQ(OfCounts(255.5), (PressureWord{0, 1}));
  EXPECT_EQ(OfCounts(255.9), (PressureWord{0, 1}));
  EXPECT_EQ(OfCounts(256.4), (PressureWord{0, 1}));
  EXPECT_EQ(OfCounts(65535.4), (PressureWord{255, 255}));
}

TEST(PressureEncoding, DropsTheRemainderOfTheHighByte) {
  EXPECT_EQ(OfCounts(511), (PressureWord{255, 1}));
  EXPECT_EQ(OfCounts(384), (PressureWord{128, 1}));
}

TEST(PressureEncoding, OverflowsWhereAByteCannotHoldIt) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  for (const double psi :
       {185.6, 218.0, 400.0, 1e6, 1e308, kInfinity, -1.0, -0.01, -1e308, -kInfinity, kNaN}) {
    try {
      EncodePressure(psi);
      ADD_FAILURE() << psi << " was encoded";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 6) << psi;
    }
  }
}

}  // namespace
}  // namespace lorimet
