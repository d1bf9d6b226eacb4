// The conversions between a parameter byte and the screen.
#include "parameters/conversions.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "autotests/common/gestures.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;

TEST(Conversions, PressuresAreShownInWholePsi) {
  EXPECT_EQ(PressureText(0), "0");
  EXPECT_EQ(PressureText(7), "10");     // 10.157
  EXPECT_EQ(PressureText(48), "70");    // 69.648
  EXPECT_EQ(PressureText(255), "370");  // 370.005
  EXPECT_EQ(PressureTextPmAn(255), "370");
  EXPECT_EQ(ControlPressureText(65), "94");  // 94.315
}

// An independent way to the same: exact thousandths, rounded half up.
TEST(Conversions, EveryByteShowsItsProductRounded) {
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string expected = std::to_string((byte * 1451 + 500) / 1000);
    const auto b = static_cast<std::uint8_t>(byte);
    EXPECT_EQ(PressureText(b), expected) << byte;
    EXPECT_EQ(PressureTextPmAn(b), expected) << byte;
    EXPECT_EQ(ControlPressureText(b), expected) << byte;
  }
}

TEST(Conversions, TheTwoWaysBackDiffer) {
  EXPECT_EQ(UnladenSuspensionByte("37"), 26);  // 25.53
  EXPECT_EQ(PressureByte("37"), 25);           // 25.499...
}

TEST(Conversions, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(TeethByte("2.5"), 2);
  EXPECT_EQ(TeethByte("3.5"), 4);
  EXPECT_EQ(TyreByte("62.5"), 2);
  EXPECT_EQ(TyreByte("87.5"), 4);
  EXPECT_EQ(UnladenSuspensionByte("50"), 34);    // 34.5
  EXPECT_EQ(UnladenSuspensionByte("150"), 103);  // 103.4999..., because 0.69 is no float
}

TEST(Conversions, OnlyTheUnladenSuspensionDriftsAndByOneCount) {
  const std::set<int> drifting = {163, 183, 192, 203, 212, 214, 223, 232, 234, 243, 252, 254};
  for (int byte = 0; byte <= 255; ++byte) {
    const auto b = static_cast<std::uint8_t>(byte);
    EXPECT_EQ(PressureByte(PressureText(b)), byte);
    EXPECT_EQ(PressureByte(PressureTextPmAn(b)), byte);
    EXPECT_EQ(UnladenSuspensionByte(PressureText(b)), drifting.contains(byte) ? byte + 1 : byte);
  }
}

TEST(Conversions, EveryTyreAndToothReadsBack) {
  for (int byte = 0; byte <= 255; ++byte) {
    EXPECT_EQ(TyreByte(TyreText(static_cast<std::uint8_t>(byte))), byte);
    EXPECT_EQ(TeethByte(std::to_string(byte)), byte);
  }
}

TEST(Conversions, TyresCountTwentyFiveMillimetres) {
  EXPECT_EQ(TyreText(130), "3250");
  EXPECT_EQ(TyreByte("3250"), 130);
  EXPECT_EQ(TyreByte("3260"), 130);
  EXPECT_EQ(TyreByte("3263"), 131);
}

TEST(Conversions, LengthsArePairsOfTenths) {
  EXPECT_EQ(LengthText({4, 210}), "123.4");
  EXPECT_EQ(LengthText({0, 0}), "0");
  EXPECT_EQ(LengthText({255, 255}), "6553.5");
  const BytePair pair = LengthPair("123.4");
  EXPECT_EQ(pair.high, 4);
  EXPECT_EQ(pair.low, 210);
  EXPECT_EQ(LengthPair("0.05").low, 0);  // half a tenth goes to the even one
  EXPECT_EQ(LengthPair("0.15").low, 2);
}

TEST(Conversions, EveryPairIsShownAndReadsBack) {
  for (int value = 0; value <= 65535; ++value) {
    const auto high = static_cast<std::uint8_t>(value / 256);
    const auto low = static_cast<std::uint8_t>(value % 256);
    std::string mm = std::to_string(value / 10);
    if (value % 10 != 0) mm += "." + std::to_string(value % 10);
    ASSERT_EQ(LengthText({high, low}), mm);
    ASSERT_EQ(AxleLoadText({high, low}), std::to_string(value));
    for (const BytePair& pair : {LengthPair(mm), AxleLoadPair(std::to_string(value))}) {
      ASSERT_EQ(pair.high, high) << value;
      ASSERT_EQ(pair.low, low) << value;
    }
  }
}

TEST(Conversions, AxleLoadsTakeTheLeadingNumberOfAText) {
  const std::vector<std::tuple<std::string, int, int>> rows = {
      {"9000", 35, 40},  {"", 0, 0},      {"abc", 0, 0},
      {" 256 kg", 1, 0}, {"4096", 16, 0}, {"25000", 97, 168},
  };
  for (const auto& [text, high, low] : rows) {
    const BytePair pair = AxleLoadPair(text);
    EXPECT_EQ(pair.high, high) << text;
    EXPECT_EQ(pair.low, low) << text;
  }
}

TEST(Conversions, WhatDoesNotFitIsAnOverflow) {
  EXPECT_EQ(ErrorOf([] { AxleLoadPair("255.5"); }), 6);  // the low byte rounds to 256
  EXPECT_EQ(ErrorOf([] { AxleLoadPair("-5"); }), 6);
  EXPECT_EQ(ErrorOf([] { AxleLoadPair("65536"); }), 6);
  EXPECT_EQ(ErrorOf([] { PressureByte("371"); }), 6);
  EXPECT_EQ(ErrorOf([] { PressureByte("-1"); }), 6);
  EXPECT_EQ(ErrorOf([] { TeethByte("256"); }), 6);
  EXPECT_EQ(ErrorOf([] { PressureByte(std::string(400, '9')); }), 6);
  EXPECT_EQ(ErrorOf([] { LengthPair(std::string(400, '9')); }), 6);
  EXPECT_EQ(ErrorOf([] { AxleLoadPair(std::string(400, '9')); }), 6);
}

TEST(Conversions, WhatIsNoNumberIsAMismatchWhereAStrictOneIsAskedFor) {
  for (const char* text : {"", " ", "abc", "12psi", "1,5", "1.2.3", "0x10", "1e2"}) {
    EXPECT_EQ(ErrorOf([&] { PressureByte(text); }), 13) << text;
    EXPECT_EQ(ErrorOf([&] { LengthPair(text); }), 13) << text;
  }
}

TEST(Conversions, OtherTextsCountByTheirLeadingNumber) {
  const std::vector<std::tuple<std::string, int, int, int>> rows = {
      {"", 0, 0, 0},       {"abc", 0, 0, 0},    {"100 psi", 69, 4, 100},
      {"75mm", 52, 3, 75}, {"75,9", 52, 3, 75}, {"1e2", 1, 0, 1},
  };
  for (const auto& [text, suspension, tyre, teeth] : rows) {
    EXPECT_EQ(UnladenSuspensionByte(text), suspension) << text;
    EXPECT_EQ(TyreByte(text), tyre) << text;
    EXPECT_EQ(TeethByte(text), teeth) << text;
  }
  EXPECT_EQ(TyreByte("3250 mm"), 130);
  for (const std::string& text : {std::string("-40"), std::string(400, '9')}) {
    EXPECT_EQ(ErrorOf([&] { UnladenSuspensionByte(text); }), 6) << text;
    EXPECT_EQ(ErrorOf([&] { TyreByte(text); }), 6) << text;
    EXPECT_EQ(ErrorOf([&] { TeethByte(text); }), 6) << text;
  }
}

TEST(Conversions, BlanksAtTheEndsAreNoPartOfANumber) {
  EXPECT_EQ(PressureByte("  58 "), 40);
  EXPECT_EQ(UnladenSuspensionByte(" 37 "), 26);
  EXPECT_EQ(LengthPair(" 123.4 ").low, 210);
  EXPECT_EQ(TyreByte(" 3250 "), 130);
  EXPECT_EQ(TeethByte(" 100 "), 100);
}

TEST(Conversions, HighBytesAreCutAndLowBytesRounded) {
  EXPECT_EQ(AxleLoadPair("511.4").high, 1);
  EXPECT_EQ(AxleLoadPair("511.4").low, 255);
  EXPECT_EQ(ErrorOf([] { AxleLoadPair("511.5"); }), 6);  // 1 and 255.5
  EXPECT_EQ(LengthPair("25.54").high, 0);
  EXPECT_EQ(LengthPair("25.54").low, 255);
  EXPECT_EQ(ErrorOf([] { LengthPair("25.55"); }), 6);
}

TEST(Conversions, PackedDigits) {
  EXPECT_EQ(PackedText(0x20), "20");
  EXPECT_EQ(PackedText(0x06), "06");
  EXPECT_EQ(PackedText(0x0A), "A");  // no number: left as it is
  EXPECT_EQ(PackedText(0xAB), "AB");
  EXPECT_EQ(PackedByte("2", "0"), 0x20);
  EXPECT_EQ(PackedByte("", ""), 0);
  EXPECT_EQ(PackedByte("x", "7"), 7);
  EXPECT_EQ(PackedByte("1", "234"), 250);
  EXPECT_EQ(ErrorOf([] { PackedByte("1", "240"); }), 6);
  EXPECT_EQ(ErrorOf([] { PackedByte("0", "-1"); }), 6);
}

TEST(Conversions, BlockTextsEndAtANul) {
  ParmBlock block;
  StoreBlockText(block, 4, 6, "AB");
  EXPECT_EQ(BlockText(block, 4, 6), "AB    ");
  block(6) = 0;
  EXPECT_EQ(BlockText(block, 4, 6), "AB");
  block(4) = 0xE9;
  EXPECT_EQ(BlockText(block, 4, 1), "é");
}

TEST(ParmBlock, KnowsItsBounds) {
  ParmBlock block;
  block(200) = 1;
  EXPECT_EQ(ErrorOf([&] { block(201) = 1; }), 9);
  EXPECT_EQ(ErrorOf([&] { block(-1) = 1; }), 9);
}

}  // namespace
}  // namespace lorimet
