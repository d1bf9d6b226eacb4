// Columns, blanks and numbers of a text file that is written item by item.
#include "reports/text_form.h"

#include <gtest/gtest.h>

#include <limits>

namespace lorimet {
namespace {

TEST(TextForm, NumbersKeepThePlaceOfTheirSignAndOneBlankBehind) {
  TextForm form;
  form.Number(7);
  form.Number(-1);
  form.Number(0);
  form.Number(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(form.Contents(), " 7 -1  0 -2147483648 ");
}

TEST(TextForm, TabFillsWithBlanksUpToItsColumn) {
  TextForm form;
  form.Text("ab");
  form.Tab(6);
  form.Text("c");
  EXPECT_EQ(form.Contents(), "ab   c");
}

TEST(TextForm, TabStaysAtAColumnThatHasJustBeenReached) {
  TextForm form;
  form.Text("abcde");
  form.Tab(6);
  form.Text("f");
  EXPECT_EQ(form.Contents(), "abcdef");
}

TEST(TextForm, TabGoesToTheNextLineWhenTheColumnHasBeenPassed) {
  TextForm form;
  form.Text("abcdef");
  form.Tab(6);
  form.Text("g");
  EXPECT_EQ(form.Contents(), "abcdef\r\n     g");
}

TEST(TextForm, TabToTheFirstColumnOfAFreshLineDoesNothing) {
  TextForm form;
  form.Tab(1);
  form.EndLine();
  form.Tab(1);
  EXPECT_EQ(form.Contents(), "\r\n");
}

TEST(TextForm, EveryCharacterOfTheCodePageIsOneColumn) {
  TextForm form;
  form.Text("é€");
  form.Tab(4);
  form.Text("x");
  EXPECT_EQ(form.Contents(), "\xE9\x80 x");
}

TEST(TextForm, BytesStandAsTheyAre) {
  TextForm form;
  form.Bytes(std::string_view("a\0b", 3));
  form.Spc(2);
  form.Line("c");
  form.EmptyLines(2);
  EXPECT_EQ(form.Contents(), std::string("a\0b  c\r\n\r\n\r\n", 12));
}

}  // namespace
}  // namespace lorimet
