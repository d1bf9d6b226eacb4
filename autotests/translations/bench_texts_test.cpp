// Every text of the bench has its French and its Spanish, and they fit their English.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "autotests/places.h"
#include "autotests/translations/source_literals.h"
#include "autotests/translations/translation_rows.h"
#include "simulator/bench/model/ready.h"

namespace lorimet::testing_support {
namespace {

// What the developer and the trailer read: commands, their usage, style sheets, and names of
// failure modes, which are words of the command language.
bool IsNoText(const std::string& text) {
  static const std::regex kinds(
      R"((get|scenario|compressor|parking_brake|power|cable|adapter|load|press|repair|heal|lever|failure|defect|spin|fault|supply|wheel) .*| (active|gone)|%1[^]*(mph|psi)[^]*|%1 s   | mph|lamp lit|[^]*[{};][^]*|lorimet_bench_window[^]*|Norvick Lorimet Bench)");
  return std::regex_match(text, kinds);
}

bool HasTwoWords(const std::string& text) {
  static const std::regex two_words(R"([A-Za-z0-9.,:;!?] +[A-Za-z&(])");
  return std::regex_search(text, two_words);
}

std::set<std::string> BenchTexts() {
  std::set<std::string> texts;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(InSource("simulator/bench"))) {
    if (!entry.is_regular_file()) continue;
    for (const SourceLiteral& literal : LiteralReader(ReadFile(entry.path())).Read())
      if (literal.translated || (HasTwoWords(literal.text) && !IsNoText(literal.text)))
        texts.insert(literal.text);
  }
  for (const bench::Ready& row : bench::ReadyTrailers({InSource("simulator/scenarios")}))
    texts.insert(row.label);
  for (const bench::Ready& row : bench::ReadyDefects()) texts.insert(row.label);
  for (const bench::Ready& row : bench::ReadyFailures())
    if (HasTwoWords(row.label)) texts.insert(row.label);
  return texts;
}

class BenchTextsTest : public testing::TestWithParam<const char*> {};

TEST_P(BenchTextsTest, HaveARowEachAndNoOthers) {
  std::set<std::string> keys;
  for (const TranslationRow& row : RowsOf(GetParam(), "bench"))
    EXPECT_TRUE(keys.insert(row.key).second) << "twice: \"" << row.key << "\"";
  const std::set<std::string> texts = BenchTexts();
  EXPECT_GT(texts.size(), 100u) << "the texts were not found";
  for (const std::string& text : texts)
    EXPECT_TRUE(keys.contains(text)) << "no row: \"" << text << "\"";
  std::string sources;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(InSource("simulator/bench")))
    if (entry.is_regular_file())
      for (const SourceLiteral& literal : LiteralReader(ReadFile(entry.path())).Read())
        sources += "\n" + literal.text + "\n";
  for (const std::string& key : keys)
    EXPECT_NE(sources.find("\n" + key + "\n"), std::string::npos) << "unused: \"" << key << "\"";
}

TEST_P(BenchTextsTest, KeepTheFormOfTheirEnglish) {
  for (const TranslationRow& row : RowsOf(GetParam(), "bench")) {
    EXPECT_FALSE(row.unfinished) << row.key;
    EXPECT_NE(row.text, "") << row.key;
    EXPECT_EQ(std::ranges::count(row.text, '&'), std::ranges::count(row.key, '&')) << row.text;
    EXPECT_EQ(std::ranges::count(row.text, '%'), std::ranges::count(row.key, '%')) << row.text;
    EXPECT_EQ(row.text.ends_with('.'), row.key.ends_with('.')) << row.text;
  }
}

// The small letter, or what stands in its place, behind the sign of an access key; empty for none.
std::string AccessKey(const std::string& text) {
  const std::size_t sign = text.find('&');
  if (sign == std::string::npos) return {};
  const bool long_letter = static_cast<unsigned char>(text[sign + 1]) >= 0x80;
  std::string letter = text.substr(sign + 1, long_letter ? 2 : 1);
  if (!long_letter) letter[0] = static_cast<char>(std::tolower(letter[0]));
  return letter;
}

TEST_P(BenchTextsTest, HaveEachAccessKeyOnce) {
  std::set<std::string> english, own;
  for (const TranslationRow& row : RowsOf(GetParam(), "bench")) {
    if (AccessKey(row.key).empty()) continue;
    EXPECT_TRUE(english.insert(AccessKey(row.key)).second) << row.key;
    EXPECT_TRUE(own.insert(AccessKey(row.text)).second) << row.text;
  }
  EXPECT_GT(own.size(), 15u);
}

INSTANTIATE_TEST_SUITE_P(Languages, BenchTextsTest, testing::ValuesIn(kLanguages),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace lorimet::testing_support
