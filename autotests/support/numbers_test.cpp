// Masks, rounding and the ways between numbers and texts.
#include "support/numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <optional>
#include <string>

#include "autotests/common/gestures.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FormatNumber, FollowsItsMask) {
  struct Row {
    double value;
    const char* mask;
    const char* text;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {1.25,           "##0.0",        "1.3"},
      {-1.25,          "##0.0",        "-1.3"},
      {-1,             "##0.0",        "-1.0"},
      {0,              "##0.0",        "0.0"},
      {-0.0,           "##0.0",        "0.0"},
      {-0.04,          "##0.0",        "0.0"},
      {-0.05,          "##0.0",        "-0.1"},
      {0.05,           "##0.0",        "0.1"},
      {0.95,           "##0.0",        "1.0"},
      {0.049999,       "##0.0",        "0.0"},
      {99.95,          "##0.0",        "100.0"},
      {1234.5,         "##0.0",        "1234.5"},
      {181.8,          "##0",          "182"},
      {0.5,            "##0",          "1"},
      {1.5,            "##0",          "2"},
      {2.5,            "##0",          "3"},
      {-2.5,           "##0",          "-3"},
      {0.4,            "##0",          "0"},
      {-0.4,           "##0",          "0"},
      {12,             "##0.0#",       "12.0"},
      {12.3,           "##0.0#",       "12.3"},
      {12.34,          "##0.0#",       "12.34"},
      {12.345,         "##0.0#",       "12.35"},
      {12.304,         "##0.0#",       "12.3"},
      {1234567.89,     "##,###,##0.0", "1,234,567.9"},
      {999,            "##,###,##0.0", "999.0"},
      {1000,           "##,###,##0.0", "1,000.0"},
      {999999.96,      "##,###,##0.0", "1,000,000.0"},
      {1234567890123,  "##,###,##0.0", "1,234,567,890,123.0"},
      {-1234.5,        "##,###,##0.0", "-1,234.5"},
      {0,              "##,###,##0",   "0"},
      {12345,          "##,###,##0",   "12,345"},
      {0,              "#S/",          "S/"},
      {4,              "#S/",          "4S/"},
      {12,             "#S/",          "12S/"},
      {0,              "#M",           "M"},
      {3,              "#M",           "3M"},
      {0,              "#0",           "0"},
      {7,              "#00",          "07"},
      {7,              "#000",         "007"},
      {1234,           "#000",         "1234"},
      {7,              "  ##0",        "  7"},
      {1234,           "  ##0",        "  1234"},
      {7,              "no digits",    "no digits"},
  };
  // clang-format on
  for (const Row& row : kRows)
    EXPECT_EQ(FormatNumber(row.value, row.mask), row.text) << row.value << " as " << row.mask;
}

TEST(FormatNumber, RoundsTheDecimalTextAndNotTheBinaryNumber) {
  // None of these has an exact binary form, and each lies a little below or above its half.
  // clang-format off
  EXPECT_EQ(FormatNumber(1.005,  "##0.00"), "1.01");
  EXPECT_EQ(FormatNumber(2.675,  "##0.00"), "2.68");
  EXPECT_EQ(FormatNumber(1.115,  "##0.00"), "1.12");
  EXPECT_EQ(FormatNumber(0.15,   "##0.0"),  "0.2");
  EXPECT_EQ(FormatNumber(0.35,   "##0.0"),  "0.4");
  EXPECT_EQ(FormatNumber(8.05,   "##0.0"),  "8.1");
  EXPECT_EQ(FormatNumber(-8.05,  "##0.0"),  "-8.1");
  EXPECT_EQ(FormatNumber(0.1 * 3 + 0.05, "##0.0"), "0.4");
  // The sixteenth digit does not count.
  EXPECT_EQ(FormatNumber(0.4999999999999999, "##0"), "1");
  EXPECT_EQ(FormatNumber(0.499999999999999,  "##0"), "0");
  // clang-format on
}

TEST(FormatNumber, ShowsWhatIsNoNumber) {
  EXPECT_EQ(FormatNumber(kInfinity, "##0.0"), NumberText(kInfinity));
  EXPECT_EQ(FormatNumber(kNaN, "##0.0"), NumberText(kNaN));
}

TEST(NumberText, HasFifteenSignificantDigits) {
  struct Row {
    double value;
    const char* text;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {0,                    "0"},
      {-0.0,                 "0"},
      {12,                   "12"},
      {100,                  "100"},
      {0.1,                  "0.1"},
      {-1.5,                 "-1.5"},
      {0.1 + 0.2,            "0.3"},
      {1.0 / 3,              "0.333333333333333"},
      {2.0 / 3,              "0.666666666666667"},
      {200.0 / 3,            "66.6666666666667"},
      {123456789012345.0,    "123456789012345"},
      {999999999999999.0,    "999999999999999"},
      {1e15,                 "1E+15"},
      {1e20,                 "1E+20"},
      {-1.25e20,             "-1.25E+20"},
      {9999999999999996.0,   "1E+16"},
      {0.00012,              "0.00012"},
      {1e-20,                "1E-20"},
      {2.5e-300,             "2.5E-300"},
      {32767,                "32767"},
      {-2147483648.0,        "-2147483648"},
  };
  // clang-format on
  for (const Row& row : kRows) EXPECT_EQ(NumberText(row.value), row.text);
}

TEST(NumericValue, IsTheLongestLeadingNumber) {
  const std::string many(400, '9');
  struct Row {
    std::string text;
    double value;
  };
  // clang-format off
  const Row kRows[] = {
      {"",              0},
      {"   ",           0},
      {"12",            12},
      {"  12",          12},
      {"\t12",          12},
      {"12 psi",        12},
      {"12psi",         12},
      {"1 2",           1},
      {"1.5",           1.5},
      {"1.5.7",         1.5},
      {"1,5",           1},
      {"1,234",         1},
      {".5",            0.5},
      {"-.5",           -0.5},
      {"5.",            5},
      {"+7",            7},
      {"-7",            -7},
      {"--7",           0},
      {"+-7",           0},
      {"- 7",           0},
      {".",             0},
      {"-",             0},
      {"abc",           0},
      {"x12",           0},
      {"007",           7},
      {"0.1",           0.1},
      {"12abc34",       12},
      {"NaN",           0},
      {"inf",           0},
      {"\xC2\xB2",      0},
      {many,            kInfinity},
      {"-" + many,      -kInfinity},
      {std::string(400, '0') + "5",               5},
      {"0." + std::string(400, '0') + "5",        0},
      {std::string(400, '0') + "." + std::string(400, '0') + "5", 0},
  };
  // clang-format on
  for (const Row& row : kRows) EXPECT_EQ(NumericValue(row.text), row.value) << row.text;
}

TEST(StrictNumber, IsTheWholeTextOrATypeMismatch) {
  struct Row {
    const char* text;
    std::optional<double> value;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {"0",        0},
      {"12",       12},
      {" 12 ",     12},
      {"\t12\t",   12},
      {"-1",       -1},
      {"+1",       1},
      {"1.25",     1.25},
      {".25",      0.25},
      {"3.",       3},
      {"",         std::nullopt},
      {" ",        std::nullopt},
      {".",        std::nullopt},
      {"-",        std::nullopt},
      {"12 psi",   std::nullopt},
      {"12x",      std::nullopt},
      {"x12",      std::nullopt},
      {"1 2",      std::nullopt},
      {"1,5",      std::nullopt},
      {"1.2.3",    std::nullopt},
      {"--1",      std::nullopt},
      {"- 1",      std::nullopt},
      {"1\n",      std::nullopt},
      {"0x10",     std::nullopt},
      {"nan",      std::nullopt},
  };
  // clang-format on
  for (const Row& row : kRows) {
    EXPECT_EQ(IsStrictNumber(row.text), row.value.has_value()) << '"' << row.text << '"';
    if (row.value) {
      EXPECT_EQ(StrictNumber(row.text), *row.value) << '"' << row.text << '"';
    } else {
      EXPECT_EQ(ErrorOf([&] { StrictNumber(row.text); }), 13) << '"' << row.text << '"';
    }
  }
  EXPECT_EQ(ErrorOf([&] { StrictNumber(std::string_view("1\0", 2)); }), 13);
}

TEST(StrictNumber, OfManyDigitsOverflowsOnlyWhereItIsNarrowed) {
  const std::string many(400, '9');
  EXPECT_TRUE(IsStrictNumber(many));
  EXPECT_EQ(ErrorOf([&] { ToByte(StrictNumber(many)); }), 6);
  EXPECT_EQ(ErrorOf([&] { ToLong(StrictNumber("-" + many)); }), 6);
}

TEST(FormatText, LeavesAloneWhatIsNoNumber) {
  const std::string many(400, '9');
  // clang-format off
  EXPECT_EQ(FormatText("1.25",  "##0.0"), "1.3");
  EXPECT_EQ(FormatText(" 7 ",   "#00"),   "07");
  EXPECT_EQ(FormatText("-0",    "##0.0"), "0.0");
  EXPECT_EQ(FormatText("",      "##0.0"), "");
  EXPECT_EQ(FormatText("N/A",   "##0.0"), "N/A");
  EXPECT_EQ(FormatText("12 kg", "##0.0"), "12 kg");
  EXPECT_EQ(FormatText("1,5",   "##0.0"), "1,5");
  EXPECT_EQ(FormatText(many,    "##0.0"), many);
  // clang-format on
}

TEST(Narrowing, RoundsHalfToEvenAndOverflowsOutOfRange) {
  constexpr int kOverflow = 1'000'000;  // stands for error 6
  struct Row {
    double value;
    int byte;
    int integer;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {0,         0,         0},
      {-0.0,      0,         0},
      {0.5,       0,         0},
      {1.5,       2,         2},
      {2.5,       2,         2},
      {2.5000001, 3,         3},
      {254.5,     254,       254},
      {255,       255,       255},
      {255.4,     255,       255},
      {255.5,     kOverflow, 256},
      {-0.5,      0,         0},
      {-0.51,     kOverflow, -1},
      {-1.5,      kOverflow, -2},
      {32766.5,   kOverflow, 32766},
      {32767.4,   kOverflow, 32767},
      {32767.5,   kOverflow, kOverflow},
      {-32768.5,  kOverflow, -32768},
      {-32768.6,  kOverflow, kOverflow},
      {1e300,     kOverflow, kOverflow},
      {kInfinity, kOverflow, kOverflow},
      {kNaN,      kOverflow, kOverflow},
  };
  // clang-format on
  for (const Row& row : kRows) {
    if (row.byte == kOverflow)
      EXPECT_EQ(ErrorOf([&] { ToByte(row.value); }), 6) << row.value;
    else
      EXPECT_EQ(ToByte(row.value), row.byte) << row.value;
    if (row.integer == kOverflow)
      EXPECT_EQ(ErrorOf([&] { ToInteger(row.value); }), 6) << row.value;
    else
      EXPECT_EQ(ToInteger(row.value), row.integer) << row.value;
  }
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_EQ(ToLong(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(ErrorOf([] { ToLong(2147483647.5); }), 6);
  EXPECT_EQ(ErrorOf([] { ToLong(-2147483648.6); }), 6);
  EXPECT_EQ(ErrorOf([] { ToLong(kNaN); }), 6);
}

TEST(HexText, IsUpperCaseWithoutLeadingZeros) {
  EXPECT_EQ(HexText(0), "0");
  EXPECT_EQ(HexText(10), "A");
  EXPECT_EQ(HexText(0x1F), "1F");
  EXPECT_EQ(HexText(0xDEADBEEF), "DEADBEEF");
}

// What streams make of numbers where a comma parts the decimals.
class DecimalComma : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Numbers, KeepThePointInALocaleWithAComma) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const std::locale streams_before =
      std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  // The C library's own locale too, where the system has one.
  for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "es_ES.UTF-8", "de_DE", "fr_FR"})
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  EXPECT_EQ(FormatNumber(1234.5, "##,###,##0.0"), "1,234.5");
  EXPECT_EQ(FormatNumber(0.5, "##0.0#"), "0.5");
  EXPECT_EQ(NumberText(12345.5), "12345.5");
  EXPECT_EQ(NumericValue("1.5"), 1.5);
  EXPECT_EQ(StrictNumber("1.5"), 1.5);
  EXPECT_FALSE(IsStrictNumber("1,5"));
  EXPECT_EQ(HexText(123456), "1E240");
  std::locale::global(streams_before);
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
}  // namespace lorimet
