// The dictionary: translation of texts and forms, its message box, and the choice of a language.
#include "support/dictionary.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/program_fixture.h"
#include "faults/faults_part.h"
#include "platform/forms.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet {
namespace {

class FewTexts : public TranslationSource {
 public:
  bool Open() override {
    ++opened;
    return opens;
  }
  std::string Lookup(int language, const std::string& key) override {
    asked.emplace_back(language, key);
    const auto row = rows.find({language, key});
    return row == rows.end() ? std::string() : row->second;
  }
  bool opens = true;
  int opened = 0;
  std::vector<std::pair<int, std::string>> asked;
  std::map<std::pair<int, std::string>, std::string> rows = {
      {{kFrench, "Save"}, "Enregistrer"},
      {{kSpanish, "Save"}, "Guardar"},
      {{kFrench, "  Complete"}, "Terminé"},
      {{kFrench, "one\r\ntwo"}, "un\r\ndeux"},
      {{kFrench, "Only French"}, "En français"},
      {{kFrench, "Yes"}, "Oui"},
      {{kFrench, "No"}, "Non"},
      {{kFrench, "OK"}, "D'accord"},
      {{kFrench, "Cancel"}, "Annuler"},
      {{kFrench, "Language"}, "Langue"},
      {{kFrench, "A form"}, "Un formulaire"},
      {{kFrench, "A tip"}, "Une astuce"},
  };
};

// A form whose designer gave it words, without a file.
class WordyForm : public Form {
 public:
  explicit WordyForm(Desktop& desktop) : Form(desktop, "WordyForm") {}
  Label label{*this, "label"};
  Label bare{*this, "bare"};
  Button button{*this, "button"};
  CheckBox check{*this, "check"};
  OptionButton option{*this, "option"};
  Frame frame{*this, "frame"};
  MenuItem item{*this, "item"};
  TextBox box{*this, "box"};
  TextBox empty_box{*this, "empty_box"};

 protected:
  void OnLoad() override {
    ImportDesign("A form", 100, 100);
    ControlDesign words;
    words.caption = "Save";
    words.tool_tip = "A tip";
    for (Control* control : {static_cast<Control*>(&label), static_cast<Control*>(&button),
                             static_cast<Control*>(&check), static_cast<Control*>(&option),
                             static_cast<Control*>(&frame), static_cast<Control*>(&item)})
      control->ImportDesign(words);
    ControlDesign text;
    text.text = "Save";
    box.ImportDesign(text);
  }
};

class DictionaryTest : public testing::Test {
 protected:
  DictionaryTest() {
    dictionary.on_language_changed.push_back([this] { ++changes; });
  }
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  FewTexts source;
  Dictionary dictionary{source, desktop};
  WordyForm form{desktop};
  int changes = 0;
};

TEST_F(DictionaryTest, TranslatesExactKeysOnly) {
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  // clang-format off
  EXPECT_EQ(dictionary.Translate("Save"),        "Enregistrer");
  EXPECT_EQ(dictionary.Translate("save"),        "save");
  EXPECT_EQ(dictionary.Translate(" Save"),       " Save");
  EXPECT_EQ(dictionary.Translate("Save "),       "Save ");
  EXPECT_EQ(dictionary.Translate("  Complete"),  "Terminé");
  EXPECT_EQ(dictionary.Translate("Complete"),    "Complete");
  EXPECT_EQ(dictionary.Translate("one\r\ntwo"),  "un\r\ndeux");
  EXPECT_EQ(dictionary.Translate("one\ntwo"),    "one\ntwo");
  EXPECT_EQ(dictionary.Translate("Restart"),     "Restart");
  EXPECT_EQ(dictionary.Translate(""),            "");
  // clang-format on
}

TEST_F(DictionaryTest, TranslatesByTheLanguagesThatHaveAColumn) {
  dictionary.Open();
  for (int language = -1; language <= 10; ++language) {
    dictionary.SetLanguage(language);
    const std::string expected = language == kFrench    ? "Enregistrer"
                                 : language == kSpanish ? "Guardar"
                                                        : "Save";
    EXPECT_EQ(dictionary.Translate("Save"), expected) << language;
    EXPECT_EQ(dictionary.Language(), language);
  }
  for (const auto& [language, key] : source.asked)
    EXPECT_TRUE(language >= kFrench && language <= kSpanish) << "asked for " << language;
}

TEST_F(DictionaryTest, LeavesATextAloneWhoseCellIsEmpty) {
  dictionary.Open();
  dictionary.SetLanguage(kSpanish);
  EXPECT_EQ(dictionary.Translate("Only French"), "Only French");
}

TEST_F(DictionaryTest, IsNativeUntilItIsOpenAndWhenItCannotBeOpened) {
  dictionary.SetLanguage(kFrench);
  EXPECT_FALSE(dictionary.IsOpen());
  EXPECT_EQ(dictionary.Translate("Save"), "Save");
  dictionary.Open();
  dictionary.Open();
  EXPECT_TRUE(dictionary.IsOpen());
  EXPECT_EQ(source.opened, 1);
  EXPECT_EQ(dictionary.Translate("Save"), "Enregistrer");

  FewTexts closed;
  closed.opens = false;
  Dictionary without(closed, desktop);
  without.SetLanguage(kFrench);
  without.Open();
  EXPECT_TRUE(without.IsOpen());
  EXPECT_EQ(without.Translate("Save"), "Save");
  EXPECT_TRUE(closed.asked.empty());
}

TEST_F(DictionaryTest, RaisesTheChangeOnceWithTheFirstTranslationOfAFormAtTheStart) {
  dictionary.SetLanguage(kFrench);
  dictionary.Open();
  EXPECT_EQ(changes, 0);
  dictionary.TranslateForm(form);
  EXPECT_EQ(changes, 1);
  dictionary.TranslateForm(form);
  EXPECT_EQ(changes, 1);
}

TEST_F(DictionaryTest, RaisesTheChangeAtOnceWhenItIsOpen) {
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  EXPECT_EQ(changes, 1);
  dictionary.TranslateForm(form);
  EXPECT_EQ(changes, 1);
  dictionary.SetLanguage(kFrench);  // writing it raises it, the same language too
  EXPECT_EQ(changes, 2);
}

TEST_F(DictionaryTest, HasTheNewLanguageWhenTheChangeIsRaised) {
  dictionary.Open();
  std::string seen;
  dictionary.on_language_changed.push_back([&] { seen = dictionary.Translate("Save"); });
  dictionary.SetLanguage(kSpanish);
  EXPECT_EQ(seen, "Guardar");
}

TEST_F(DictionaryTest, TranslatesTheWordsThatTheDesignerGaveAForm) {
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  form.Load();
  form.bare.SetCaption("Save");  // the program's words are not the designer's
  form.empty_box.SetText("Save");
  form.label.SetCaption("Restart");
  dictionary.TranslateForm(form);
  EXPECT_EQ(form.Caption(), "Un formulaire");
  EXPECT_EQ(form.label.Caption(), "Enregistrer");
  EXPECT_EQ(form.button.Caption(), "Enregistrer");
  EXPECT_EQ(form.check.Caption(), "Enregistrer");
  EXPECT_EQ(form.option.Caption(), "Enregistrer");
  EXPECT_EQ(form.frame.Caption(), "Enregistrer");
  EXPECT_EQ(form.item.Caption(), "Enregistrer");
  EXPECT_EQ(form.box.Text(), "Enregistrer");
  EXPECT_EQ(form.button.ToolTipText(), "Une astuce");
  EXPECT_EQ(form.bare.Caption(), "Save");
  EXPECT_EQ(form.empty_box.Text(), "Save");
}

TEST_F(DictionaryTest, TranslatesAFormBackAndForth) {
  dictionary.Open();
  form.Load();
  for (const auto& [language, text] : std::vector<std::pair<int, std::string>>{
           {kFrench, "Enregistrer"}, {kSpanish, "Guardar"}, {kEnglish, "Save"}, {7, "Save"}}) {
    dictionary.SetLanguage(language);
    dictionary.TranslateForm(form);
    EXPECT_EQ(form.label.Caption(), text) << language;
  }
}

TEST_F(DictionaryTest, ShowsABoxOfEachKind) {
  dictionary.Open();
  for (const auto& [kind, icon] :
       std::vector<std::pair<BoxKind, BoxIcon>>{{BoxKind::kWarning, BoxIcon::kWarning},
                                                {BoxKind::kError, BoxIcon::kCritical},
                                                {BoxKind::kInformation, BoxIcon::kInformation},
                                                {BoxKind::kConfirmation, BoxIcon::kQuestion}}) {
    dictionary.ShowMessageBox("Text", "Title", kind, kBoxOk, 0);
    MessageBox expected{"Text", "Title", icon, kBoxOk, "", "", "OK", ""};
    EXPECT_EQ(desktop.TakeBoxes(), std::vector{expected});
  }
  // The numbers are those that the calls are written with.
  EXPECT_EQ(static_cast<int>(BoxKind::kWarning), 0);
  EXPECT_EQ(static_cast<int>(BoxKind::kError), 1);
  EXPECT_EQ(static_cast<int>(BoxKind::kInformation), 2);
  EXPECT_EQ(static_cast<int>(BoxKind::kConfirmation), 3);
  EXPECT_EQ(kBoxYes | kBoxNo << 8 | kBoxOk << 16 | kBoxCancel << 24, 0x08040201u);
}

TEST_F(DictionaryTest, TranslatesTheButtonsOfABoxAndNotItsTexts) {
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  desktop.AnswerBox(kBoxNo);
  EXPECT_EQ(dictionary.ShowMessageBox("Save", "Save", BoxKind::kConfirmation,
                                      kBoxYes | kBoxNo | kBoxOk | kBoxCancel, 0),
            kBoxNo);
  dictionary.ShowMessageBox("Save", "", BoxKind::kConfirmation, kBoxYes | kBoxNo, 0);
  const MessageBox four{"Save", "Save", BoxIcon::kQuestion, 15,
                        "Oui",  "Non",  "D'accord",         "Annuler"};
  const MessageBox two{"Save", "", BoxIcon::kQuestion, 3, "Oui", "Non", "", ""};
  EXPECT_EQ(desktop.TakeBoxes(), (std::vector{four, two}));
}

TEST_F(DictionaryTest, OffersTheLanguagesInTheirOwnWords) {
  dictionary.Open();
  dictionary.SetLanguage(kFrench);
  desktop.AnswerChoice(3);
  EXPECT_EQ(dictionary.ChooseLanguage(), 3);
  desktop.AnswerChoice(std::nullopt);
  EXPECT_EQ(dictionary.ChooseLanguage(), std::nullopt);
  const auto lists = desktop.TakeLists();
  ASSERT_EQ(lists.size(), 2u);
  EXPECT_EQ(lists[0].title, "Langue");
  EXPECT_EQ(lists[0].items, (std::vector<std::string>{"Native", "français", "English", "Español"}));
  EXPECT_EQ(lists[0].selected, 1);
  EXPECT_EQ(dictionary.Language(), kFrench);  // choosing alone changes nothing
}

TEST_F(DictionaryTest, OffersTheNativeWordsFirstWhereTheLanguageHasNoColumn) {
  dictionary.Open();
  dictionary.SetLanguage(7);
  dictionary.ChooseLanguage();
  EXPECT_EQ(desktop.TakeLists().at(0).selected, 0);
}

// --- The choice as the main form makes it.

using SelectLanguageTest = testing_support::ProgramTest;

TEST_F(SelectLanguageTest, StoresTheChoice) {
  Start();
  const std::string english = program.faults->fault_table[1].Name;
  desktop.AnswerChoice(kSpanish);
  Main().SelectLanguage();
  EXPECT_EQ(program.support->dictionary.Language(), kSpanish);
  EXPECT_EQ(program.support->settings.GetLanguage(), kSpanish);
  EXPECT_NE(program.faults->fault_table[1].Name, english);
}

TEST_F(SelectLanguageTest, StoresNothingOnACancel) {
  SetLanguage(kFrench);
  Start();
  registry.Remove(RegistryHive::kCurrentUser, kProductKey, "Language");
  desktop.AnswerChoice(std::nullopt);
  Main().SelectLanguage();
  EXPECT_EQ(program.support->dictionary.Language(), kFrench);
  EXPECT_EQ(program.support->settings.GetLanguage(), -1);
}

TEST_F(SelectLanguageTest, OpensTheDictionaryFirst) {
  desktop.AnswerChoice(std::nullopt);
  Main().SelectLanguage();
  EXPECT_TRUE(program.support->dictionary.IsOpen());
}

class StartLanguageTest : public SelectLanguageTest, public testing::WithParamInterface<int> {};

TEST_P(StartLanguageTest, IsTheStoredOneOrNative) {
  const int stored = GetParam();
  SetLanguage(stored);
  Main().Load();
  EXPECT_EQ(program.support->dictionary.Language(), stored <= 10 ? stored : 0);
}

INSTANTIATE_TEST_SUITE_P(Stored, StartLanguageTest, testing::Values(0, 1, 2, 3, 4, 10, 11, 255));

TEST_F(SelectLanguageTest, StartsNativeWithNothingStored) {
  Main().Load();
  EXPECT_EQ(program.support->dictionary.Language(), 0);
}

}  // namespace
}  // namespace lorimet
