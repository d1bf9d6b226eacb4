// The rows of the translation files and the texts of the help pages, as the tests of the words read
// them.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::testing_support {

struct TranslationRow {
  std::string key, text;
  bool unfinished = false;
};

constexpr std::array<const char*, 2> kLanguages = {"fr", "es"};

std::string ReadFile(const std::filesystem::path& path);
// program: "lorimet", or "bench" for the window beside it.
std::vector<TranslationRow> RowsOf(const std::string& language,
                                   const std::string& program = "lorimet");

// The paragraphs of the help, headings and cells among them. A name in bold stands in brackets; a
// name in code is left out, but for a letter that keeps its place.
struct HelpText {
  std::string page, text;
};
std::vector<HelpText> HelpTextsOf(const std::string& language);

// Small letters without accents, blanks and line breaks run together, no mnemonics: what a list of
// forbidden forms is compared with.
std::string Folded(std::string_view text);

}  // namespace lorimet::testing_support
