// Every text that a user reads has its French and its Spanish, and they fit their English.
//
// A literal of the sources needs a row when it stands in a call of Translate, or when it has two
// words or more: sentences reach the dictionary through tables and helpers too, so each is either
// translated or named below as one that is not.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/ui_design.h"
#include "autotests/places.h"
#include "autotests/translations/source_literals.h"
#include "autotests/translations/translation_rows.h"
#include "faults/fault_catalogue.h"
#include "faults/repair_instructions.h"
#include "support/text.h"

namespace lorimet {
namespace {

using testing_support::kLanguages;
using testing_support::LiteralReader;
using testing_support::ReadFile;
using testing_support::RowsOf;
using testing_support::SourceLiteral;
using testing_support::TranslationRow;

std::set<std::string> KeysOf(const std::string& language) {
  std::set<std::string> keys;
  for (const TranslationRow& row : RowsOf(language)) keys.insert(row.key);
  return keys;
}

// --- The texts that are shown as they stand.

// Whole files: words for the ECU or of it, and words for a person who reports a failure.
const std::set<std::string>& UntranslatedFiles() {
  static const std::set<std::string> files = {
      "parameters/gio_functions.cpp",     // names that are written into the ECU
      "parameters/parameter_errors.cpp",  // complaints in the words of the ECU's maker
      "session/loaded_link_library.cpp",  // words of a library that cannot be loaded
      "support/error_report.cpp",         // run-time errors
      "tests/frmPressureTest.cpp",        // status lines, which stand in English
      "tests/frmRedundancyTest.cpp",      // the same
  };
  return files;
}

const std::set<std::string>& UntranslatedTexts() {
  static const std::set<std::string> texts = {
      // The end-of-line report: its outcomes, the name of a file, a box, and a text that is looked
      // up with the path behind it.
      "Not Tested",
      "Not Calibrated",
      "Calibration Failed",
      "End-of-Line Report",
      "Cannot save.",
      "The ECU information has not been successfully read.",
      "File saved successfully in ",
      // The recorder's file, which is English.
      "Norvick Brake Systems - ODR Data",
      "Data Extracted :  ",
      // The steps of an upload, in the link library's words.
      "Saving Long Term Memory",
      "Saving Lining Wear Memory",
      "Saving Trip Memory",
      "Saving ABS Memory",
      "Saving OVG Memory",
      "Saving Histogram Data",
      "Saving Event Recorder Data",
      "Saving Black Box Data",
      "Saving SLEV Memory",
      // The place of a run-time error, for a person who reports it.
      "Func: grdFaults_OnHyperLinkEditStartClick",
      // Plain boxes of the writing of parameters, which do not go through the dictionary.
      "Write Error",
      "Read Error",
      "Unable to read the Parameter Errors",
      "Parameter Error",
      "Parameter Data",
      "               The Parameter Data has been saved.",
      "It is highly recommended that the End of Line Test be run again.",
      "Write to file complete.",
      // The headings of a parameter file, which another program reads.
      "OVG Parameters",
      "OVG Version ",
      "Norvick Corbel Software / ",
  };
  return texts;
}

bool IsUntranslated(const std::string& text) {
  // Registry keys, filters of the file dialogs, the boxes of a block that cannot be written, and
  // what the compiler says.
  static const std::regex kinds(
      R"(SOFTWARE\\.*|.*\(\*\.[a-z*]+\)\|.*|Error Writing .* Parameters|the library's records .*)");
  return UntranslatedTexts().contains(text) || std::regex_match(text, kinds);
}

// --- The texts that need a row.

bool HasTwoWords(const std::string& text) {
  static const std::regex two_words(R"([A-Za-z.,:;!?] +[A-Za-z&(])");
  return std::regex_search(text, two_words);
}

struct NeededText {
  std::string text, where;
};

void CollectSources(std::vector<NeededText>& needed) {
  const std::filesystem::path root = InSource("src");
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string file = entry.path().lexically_relative(root).generic_string();
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    // Adapters speak to the developer, in English; what they show comes from the core.
    const bool adapter =
        file.starts_with("platform/") || file.starts_with("adapters/") || file == "main.cpp";
    for (const SourceLiteral& literal : LiteralReader(ReadFile(entry.path())).Read()) {
      const bool sentence =
          !adapter && !UntranslatedFiles().contains(file) && HasTwoWords(literal.text);
      if ((literal.translated || sentence) && !literal.text.empty())
        needed.push_back({literal.text, file});
    }
  }
}

std::vector<NeededText> AllTexts() {
  std::vector<NeededText> needed;
  CollectSources(needed);
  for (const std::string& form : UiFormNames())
    for (const std::string& text : ReadUiDesign(form).texts) needed.push_back({text, form + ".ui"});
  for (const FaultCatalogueRow& row : kFaultCatalogue) {
    needed.push_back({row.description, "the fault catalogue"});
    needed.push_back({RepairInstruction(row.repair_index), "the repair instructions"});
  }
  for (std::int16_t index = 0; index <= 120; ++index)
    needed.push_back({RepairInstruction(index), "the repair instructions"});
  std::erase_if(needed, [](const NeededText& text) {
    return text.text.find_first_not_of(" \r\n") == std::string::npos;
  });
  return needed;
}

TEST(Translations, HaveARowForEveryTextThatAUserReads) {
  const std::vector<NeededText> texts = AllTexts();
  EXPECT_GT(texts.size(), 500u) << "the texts were not found";
  std::set<std::string> told;
  for (const char* language : kLanguages) {
    const std::set<std::string> keys = KeysOf(language);
    for (const NeededText& needed : texts) {
      if (keys.contains(needed.text) || IsUntranslated(needed.text)) continue;
      if (!told.insert(std::string(language).append(needed.text)).second) continue;
      ADD_FAILURE() << needed.where << ": no " << language << " row for \"" << needed.text << "\"";
    }
  }
}

TEST(Translations, NameOnlyTextsThatStandUntranslatedSomewhere) {
  std::set<std::string> all;
  for (const NeededText& needed : AllTexts()) all.insert(needed.text);
  for (const std::string& text : UntranslatedTexts())
    EXPECT_TRUE(all.contains(text)) << "\"" << text << "\" stands nowhere";
  for (const std::string& file : UntranslatedFiles())
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(InSource("src")) / file)) << file;
}

TEST(Translations, HaveTheSameKeysInEveryLanguageEachOnce) {
  std::map<std::string, int> counts;
  for (const char* language : kLanguages) {
    std::set<std::string> seen;
    for (const TranslationRow& row : RowsOf(language)) {
      EXPECT_TRUE(seen.insert(row.key).second) << language << " twice: \"" << row.key << "\"";
      ++counts[row.key];
    }
  }
  for (const auto& [key, count] : counts)
    EXPECT_GE(count, 2) << "\"" << key << "\" stands in one file only";
}

std::string Blanks(const std::string& text, bool leading) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return text;
  return leading ? text.substr(0, first) : text.substr(text.find_last_not_of(' ') + 1);
}

std::string LineBreaks(const std::string& text) {
  std::string breaks;
  for (const char c : text)
    if (c == '\r' || c == '\n') breaks += c;
  return breaks;
}

std::multiset<std::string> Placeholders(const std::string& text) {
  static const std::regex placeholder(R"(%[0-9sdnL]|\{[0-9]*\})");
  std::multiset<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), placeholder), end; at != end; ++at)
    found.insert(at->str());
  return found;
}

TEST(Translations, KeepTheFormOfTheirEnglish) {
  for (const char* language : kLanguages) {
    for (const auto& [key, text, unfinished] : RowsOf(language)) {
      std::string row(language);
      row.append(" of \"").append(key).append("\": \"").append(text).append("\"");
      EXPECT_FALSE(unfinished) << row;
      EXPECT_NE(text.find_first_not_of(" \r\n"), std::string::npos) << "empty " << row;
      // This one stands in a table of its own and needs no distance there.
      if (key != "  Complete") {
        EXPECT_EQ(Blanks(text, true), Blanks(key, true)) << row;
        EXPECT_EQ(Blanks(text, false), Blanks(key, false)) << row;
      }
      EXPECT_EQ(std::ranges::count(text, '&'), std::ranges::count(key, '&')) << row;
      EXPECT_EQ(LineBreaks(text), LineBreaks(key)) << row;
      EXPECT_EQ(Placeholders(text), Placeholders(key)) << row;
    }
  }
}

TEST(Translations, HaveOnlyCharactersOfCodePage1252) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      for (const std::string& text : {row.key, row.text})
        EXPECT_EQ(FromCp1252(ToCp1252(text)), text) << language;
}

TEST(Translations, KeepTheTwoWordingsOfTheDataLogApart) {
  for (const char* language : kLanguages) {
    std::map<std::string, std::string> rows;
    for (const TranslationRow& row : RowsOf(language)) rows[row.key] = row.text;
    EXPECT_NE(rows["Start Data&log Only"], rows["Start &Datalog Only"]) << language;
    EXPECT_NE(rows["Start &Datalog Only"], rows["Stop &Datalog Only"]) << language;
  }
}

// The reader of the sources must not overlook a text.
TEST(SourceLiterals, AreFoundWhereverTheyStand) {
  const std::vector<SourceLiteral> found = LiteralReader(R"cpp(
#include "platform/forms.h"
                                             // "a comment" and /* "another" */ Translate("in a
                                             // comment")
                                             f(d.Translate("one"), "two");
                                             auto n = 10'000;
                                             char c = '"', q = '\'';
                                             f(Translate(a ? "three" : Name("four")) + "five");
                                             x = Translate(
                                                     "six "
                                                     "seven") +
                                                 "eight\r\n";
                                             y = R"(ra\w)";
                                             z = Translate(kKey) + "nine \"ten\"";
                                           )cpp")
                                               .Read();
  const std::vector<std::pair<std::string, bool>> expected = {
      {"one", true},        {"two", false},   {"three", true},
      {"four", false},      {"five", false},  {"six seven", true},
      {"eight\r\n", false}, {"ra\\w", false}, {"nine \"ten\"", false}};
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    EXPECT_EQ(found[i].text, expected[i].first);
    EXPECT_EQ(found[i].translated, expected[i].second) << found[i].text;
  }
}

}  // namespace
}  // namespace lorimet
