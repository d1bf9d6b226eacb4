// The access keys of a menu, and those of a window, differ in every language.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/ui_design.h"
#include "autotests/translations/translation_rows.h"

namespace lorimet::testing_support {
namespace {

using Captions = std::vector<std::string>;

// What a caption becomes while the program runs.
const std::multimap<std::string, std::string>& LaterCaptions() {
  static const std::multimap<std::string, std::string> captions = {
      {"Start Data&log Only", "Start &Datalog Only"},
      {"Start Data&log Only", "Stop &Datalog Only"},
      {"St&art Record", "St&op Record"},
  };
  return captions;
}

// English captions that share a letter.
bool IsPermitted(const std::string& language, const std::string& one, const std::string& other) {
  static const std::set<std::set<std::string>> permitted = {
      {"&Tests", "&Tools"},
      {"St&art Record", "&Options"},  // the one reads St&op Record while the other is grey
      {"Start Data&log Only", "&Disable Broadcast"},  // once the first reads Start &Datalog Only
  };
  return language == "en" && permitted.contains({one, other});
}

// The captions that are on view together: a window's with its menu bar's, and each menu's.
std::map<std::string, Captions> CaptionsOnViewTogether() {
  std::map<std::string, Captions> places;
  for (const std::string& form : UiFormNames()) {
    for (const auto& [name, control] : ReadUiDesign(form).controls) {
      const std::string caption = control.design.caption.value_or("");
      if (caption.find('&') == std::string::npos) continue;
      const bool menu_item = control.widget_class == "QAction";
      const std::string place = menu_item ? form + "." + name.substr(0, name.find('_')) : form;
      places[place].push_back(caption);
    }
  }
  return places;
}

std::string InLanguage(const std::string& language, const std::string& key) {
  static std::map<std::string, std::map<std::string, std::string>> dictionaries;
  if (language == "en") return key;
  std::map<std::string, std::string>& dictionary = dictionaries[language];
  if (dictionary.empty())
    for (const TranslationRow& row : RowsOf(language)) dictionary[row.key] = row.text;
  return dictionary[key];
}

char AccessKey(const std::string& caption) {
  const std::string text = Folded(caption.substr(caption.find('&') + 1));
  return text.empty() ? '\0' : text.front();
}

void CheckPlace(const std::string& place, const Captions& keys, const std::string& language) {
  std::map<char, std::string> taken;
  for (const std::string& key : keys) {
    Captions wordings = {key};
    const auto [first, last] = LaterCaptions().equal_range(key);
    for (auto later = first; later != last; ++later) wordings.push_back(later->second);
    for (const std::string& wording : wordings) {
      const std::string caption = InLanguage(language, wording);
      const auto [other, free] = taken.try_emplace(AccessKey(caption), key);
      EXPECT_TRUE(free || other->second == key || IsPermitted(language, key, other->second))
          << place << " in " << language << ": \"" << caption << "\" and \""
          << InLanguage(language, other->second) << "\" have one access key";
    }
  }
}

TEST(AccessKeys, DifferInEachWindowAndMenu) {
  const std::map<std::string, Captions> places = CaptionsOnViewTogether();
  EXPECT_GE(places.size(), 14u) << "the menus and windows were not found";
  for (const auto& [place, keys] : places)
    for (const char* language : {"en", "fr", "es"}) CheckPlace(place, keys, language);
}

// A keyboard that has the letter only with a dead key would not reach it.
TEST(AccessKeys, AreLettersWithoutAccents) {
  for (const char* language : kLanguages) {
    for (const TranslationRow& row : RowsOf(language)) {
      const std::size_t mark = row.text.find('&');
      if (mark == std::string::npos) continue;
      const unsigned char next = mark + 1 < row.text.size() ? row.text[mark + 1] : ' ';
      EXPECT_TRUE(std::isalnum(next) && next < 0x80) << language << ": " << row.text;
    }
  }
}

}  // namespace
}  // namespace lorimet::testing_support
