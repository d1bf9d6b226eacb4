// The signs of a translation: blanks, marks, figures and short names.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "autotests/places.h"
#include "autotests/translations/translation_rows.h"

namespace lorimet::testing_support {
namespace {

const std::string kNoBreakBlank = "\u00A0";

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

// The signs before which French has a blank, unless the sign repeats the one before it.
bool LacksFrenchBlank(const std::string& text, const std::string& blank) {
  for (const std::string sign : {":", ";", "?", "!", "»"}) {
    for (std::size_t at = text.find(sign); at != std::string::npos; at = text.find(sign, at + 1)) {
      const std::string before = text.substr(0, at);
      const bool repeated = before.ends_with('!') || before.ends_with('?');
      if (!before.empty() && !repeated && !before.ends_with(blank)) return true;
    }
  }
  for (std::size_t at = text.find("«"); at != std::string::npos; at = text.find("«", at + 1))
    if (text.compare(at + std::string("«").size(), blank.size(), blank) != 0) return true;
  return false;
}

TEST(Typography, FrenchTextsOfTheProgramHaveOrdinaryBlanksBeforeTheSigns) {
  for (const TranslationRow& row : RowsOf("fr"))
    EXPECT_FALSE(LacksFrenchBlank(row.text, " ")) << row.text;
}

TEST(Typography, FrenchHelpHasNoBreakBlanksBeforeTheSigns) {
  const std::vector<HelpText> texts = HelpTextsOf("fr");
  EXPECT_GT(texts.size(), 400u) << "the help was not found";
  for (const HelpText& piece : texts)
    EXPECT_FALSE(LacksFrenchBlank(piece.text, kNoBreakBlank)) << piece.page << ": " << piece.text;
}

TEST(Typography, OnlyTheFrenchHelpHasNoBreakBlanks) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_FALSE(Contains(row.text, kNoBreakBlank)) << language << ": " << row.text;
  for (const HelpText& piece : HelpTextsOf("es"))
    EXPECT_FALSE(Contains(piece.text, kNoBreakBlank)) << piece.page << ": " << piece.text;
}

void ExpectSpanishMarks(const std::string& text, const std::string& where) {
  EXPECT_EQ(Count(text, "?"), Count(text, "¿")) << where << ": " << text;
  EXPECT_EQ(Count(text, "!"), Count(text, "¡")) << where << ": " << text;
  EXPECT_EQ(Count(text, "«"), Count(text, "»")) << where << ": " << text;
  for (const char* parted : {" :", " ;", " ?", " !", "« ", " »"})
    EXPECT_FALSE(Contains(text, parted)) << where << ": " << text;
}

// The labels of a printed report stand in a column of colons in every language.
bool IsLabelOfAReport(const std::string& key) { return key.ends_with(" : "); }

TEST(Typography, SpanishOpensItsMarksAndKeepsThemClose) {
  for (const TranslationRow& row : RowsOf("es"))
    if (!IsLabelOfAReport(row.key)) ExpectSpanishMarks(row.text, row.key);
  for (const HelpText& piece : HelpTextsOf("es")) ExpectSpanishMarks(piece.text, piece.page);
}

std::multiset<std::string> Figures(const std::string& text) {
  static const std::regex separator("([0-9]),([0-9]{3})");
  static const std::regex figure(R"([0-9]+(?:\.[0-9]+)?)");
  const std::string plain = std::regex_replace(text, separator, "$1$2");
  std::multiset<std::string> figures;
  for (std::sregex_iterator at(plain.begin(), plain.end(), figure), end; at != end; ++at)
    figures.insert(at->str());
  return figures;
}

TEST(Typography, FiguresAreThoseOfTheEnglish) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_EQ(Figures(row.text), Figures(row.key)) << language << ": " << row.text;
}

TEST(Typography, ThousandsAreNotParted) {
  static const std::regex parted("[0-9][., ][0-9]{3}(?![0-9])");
  static const std::regex part_number("310 662 517 0");
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_FALSE(std::regex_search(std::regex_replace(row.text, part_number, ""), parted))
          << language << ": " << row.text;
}

// Names of things and of sides: what a reader looks for on the trailer and on the plug.
TEST(Typography, ShortNamesStay) {
  static const std::regex mnemonic("&");
  static const std::regex name(
      R"(\b(?:ECU|OVG|ABS|EBS|GIO(?: [0-9])?|ODR|EOL[0-9]?|LSV|SID|FMI|FCF|PM|SLEV|KRN|TPMX|TIXA|VIN|)"
      R"(EEPROM|CAN|QOR|RP1210A|J1708|J2497|[0-9]S/[0-9]M|H[12]|CD|psi|mph|mm|kg|[cdef]-[cdef])\b)");
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      for (std::sregex_iterator at(row.key.begin(), row.key.end(), name), end; at != end; ++at)
        EXPECT_TRUE(Contains(std::regex_replace(row.text, mnemonic, ""), at->str()))
            << language << ": \"" << row.text << "\" lacks " << at->str();
}

TEST(Typography, BlanksAreDoubledOnlyWhereTheEnglishDoublesThem) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_TRUE(Contains(row.key, "  ") || !Contains(row.text, "  ")) << row.text;
}

TEST(Typography, ABlankStandsBeforeALineBreakWhereTheEnglishHasOne) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_EQ(Count(row.text, " \r\n"), Count(row.key, " \r\n")) << row.text;
}

// One language's words in its own order.
TEST(Typography, TheHelpsGlossaryIsSorted) {
  static const std::regex first_cell("<tr><td>([^<]*)</td>");
  for (const std::string language : {"en", "fr", "es"}) {
    const std::string page = ReadFile(InSource("help/") + language + "/glossary.html");
    const std::string table = page.substr(0, page.find("</table>"));
    std::vector<std::string> terms;
    for (std::sregex_iterator at(table.begin(), table.end(), first_cell), end; at != end; ++at)
      terms.push_back(Folded(at->str(1)));
    EXPECT_GT(terms.size(), 20u);
    const auto wrong = std::ranges::is_sorted_until(terms);
    EXPECT_TRUE(wrong == terms.end()) << language << ": " << *wrong;
  }
}

}  // namespace
}  // namespace lorimet::testing_support
