// Texts between UTF-8 and code page 1252, and their blanks.
#include "support/text.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace lorimet {
namespace {

// The upper half of the code page as a reader would write it down, 16 a row; the five codes without
// a character hold the control character of their number.
constexpr const char* kUpperHalf =
    "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
    "\u0090‘’“”•–—˜™š›œ\u009DžŸ"
    "\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    "°±²³´µ¶·¸¹º»¼½¾¿"
    "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    "ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    "àáâãäåæçèéêëìíîï"
    "ðñòóôõö÷øùúûüýþÿ";

std::string LowerHalf() {
  std::string text;
  for (int code = 0; code < 128; ++code) text += static_cast<char>(code);
  return text;
}

std::string AllBytes() {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  return bytes;
}

TEST(CodePage, HasACharacterForEveryByte) {
  EXPECT_EQ(FromCp1252(AllBytes()), LowerHalf() + kUpperHalf);
}

TEST(CodePage, HasEveryCharacterBack) { EXPECT_EQ(ToCp1252(LowerHalf() + kUpperHalf), AllBytes()); }

TEST(CodePage, TurnsACharacterWithoutACodeIntoOneQuestionMark) {
  // clang-format off
  EXPECT_EQ(ToCp1252("Ωhm"),           "?hm");
  EXPECT_EQ(ToCp1252("a→b"),           "a?b");
  EXPECT_EQ(ToCp1252("\U0001F69A"),    "?");
  EXPECT_EQ(ToCp1252("\u0080"),        "?");
  EXPECT_EQ(ToCp1252("e\u0301"),       "e?");
  EXPECT_EQ(ToCp1252("\uFFFD"),        "?");
  EXPECT_EQ(ToCp1252("\U0010FFFF"),    "?");
  EXPECT_EQ(ToCp1252(""),              "");
  // clang-format on
}

// The first and the last character of each length, and of each lead byte at a border.
TEST(CodePage, TakesTheBytesOfACharacterTogether) {
  for (const char* character :
       {"\u0100", "\u07FF", "\u0800", "\u0E01", "\u0FFF", "\u1000", "\uD7FF", "\uE000", "\uFFFF",
        "\U00010000", "\U0003FFFF", "\U00040000", "\U0010FFFF"})
    EXPECT_EQ(ToCp1252(std::string("a") + character + "z"), "a?z") << character;
}

TEST(CodePage, HasSmallLetters) {
  constexpr const char* kSmall =
      "€\u0081‚ƒ„…†‡ˆ‰š‹œ\u008Dž\u008F"
      "\u0090‘’“”•–—˜™š›œ\u009Džÿ"
      "\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
      "°±²³´µ¶·¸¹º»¼½¾¿"
      "àáâãäåæçèéêëìíîï"
      "ðñòóôõö×øùúûüýþß"
      "àáâãäåæçèéêëìíîï"
      "ðñòóôõö÷øùúûüýþÿ";
  EXPECT_EQ(FromCp1252(ToLowerCp1252(ToCp1252(kUpperHalf))), kSmall);
  EXPECT_EQ(ToLowerCp1252("AZ@[`az{09"), "az@[`az{09");
  EXPECT_EQ(SmallLetterOf(0x0391), 0x0391U) << "a Greek letter is not the page's";
}

TEST(CodePage, TurnsEachByteOfMalformedUtf8IntoAQuestionMark) {
  struct Row {
    const char* what;
    std::string utf8;
    std::string bytes;
  };
  // clang-format off
  const Row kRows[] = {
      {"a lone continuation",        "a\x80z",             "a?z"},
      {"a lead at the end",          "a\xC3",              "a?"},
      {"a lead before a letter",     "\xC3z",              "?z"},
      {"two thirds of a character",  "\xE2\x82z",          "??z"},
      {"two thirds at the end",      "\xE2\x82",           "??"},
      {"three quarters",             "\xF0\x9F\x9A",       "???"},
      {"a byte of code page 1252",   "caf\xE9 noir",       "caf? noir"},
      {"bytes that never occur",     "\xFE\xFF",           "??"},
      {"a lead that never occurs",   "\xC0\xAF",           "??"},
      {"an overlong separator",      "\xE0\x80\xAF",       "???"},
      {"an overlong separator of 4", "\xF0\x80\x80\xAF",   "????"},
      {"an overlong e acute",        "\xE0\x83\xA9",       "???"},
      {"half a surrogate pair",      "\xED\xA0\x80",       "???"},
      {"beyond the last plane",      "\xF4\x90\x80\x80",   "????"},
      {"a good one behind a bad one","\xE2é",              "?\xE9"},
  };
  // clang-format on
  for (const Row& row : kRows) EXPECT_EQ(ToCp1252(row.utf8), row.bytes) << row.what;
}

TEST(UntilNul, CutsAtTheFirstNul) {
  EXPECT_EQ(UntilNul(std::string_view("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(UntilNul(std::string_view("\0ab", 3)), "");
  EXPECT_EQ(UntilNul("ab"), "ab");
  EXPECT_EQ(UntilNul(""), "");
}

TEST(Trim, CutsBlanksOnly) {
  // clang-format off
  EXPECT_EQ(Trim("  a b  "),  "a b");
  EXPECT_EQ(Trim("a"),        "a");
  EXPECT_EQ(Trim("   "),      "");
  EXPECT_EQ(Trim(""),         "");
  EXPECT_EQ(Trim(" \ta\n "),  "\ta\n");
  EXPECT_EQ(TrimRight("  a  "), "  a");
  EXPECT_EQ(TrimRight("a\t "),  "a\t");
  EXPECT_EQ(TrimRight("   "),   "");
  EXPECT_EQ(TrimRight(""),      "");
  // clang-format on
  EXPECT_EQ(Trim(std::string_view(" \0 ", 3)), std::string(1, '\0'));
}

TEST(PadRight, CountsCharactersAndNotBytes) {
  EXPECT_EQ(PadRight("ab", 4), "ab  ");
  EXPECT_EQ(PadRight("é€", 4), "é€  ");
  EXPECT_EQ(PadRight("abcd", 4), "abcd");
  EXPECT_EQ(PadRight("abcde", 4), "abcde");
  EXPECT_EQ(PadRight("", 2), "  ");
  EXPECT_EQ(PadRight("", 0), "");
}

}  // namespace
}  // namespace lorimet
