// The dictionary: every text that the user sees is English in the program and passes through here
// at the moment it is shown.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/translation_source.h"

namespace lorimet {

class Form;

// Kinds of the dictionary's message box.
enum class BoxKind { kWarning = 0, kError = 1, kInformation = 2, kConfirmation = 3 };

class Dictionary {
 public:
  Dictionary(TranslationSource& source, Desktop& desktop) : source_(source), desktop_(desktop) {}

  bool IsOpen() const { return open_; }
  // Opens the table. A table that cannot be opened counts as one with no rows.
  void Open();

  int Language() const { return language_; }
  // Raises on_language_changed, at once when the table is open and with the next translation of a
  // form otherwise. An index without a column leaves every text native.
  void SetLanguage(int language);

  // The text in the current language, or the text itself where there is none.
  std::string Translate(const std::string& text) const;
  // Puts the form's caption, the captions, texts and tool tips that its designer gave its controls
  // into the current language.
  void TranslateForm(Form& form);
  // A box with texts that are translated already. `buttons` are BoxButton bits.
  BoxButton ShowMessageBox(const std::string& text, const std::string& title, BoxKind kind,
                           unsigned buttons, int help_context);
  // Shows the list of languages; nothing when the user cancels.
  std::optional<int> ChooseLanguage();

  // Called in this order at each change of language.
  std::vector<std::function<void()>> on_language_changed;

 private:
  void RaiseLanguageChanged();

  TranslationSource& source_;
  Desktop& desktop_;
  int language_ = kNative;
  bool open_ = false;
  bool usable_ = false;
  bool change_pending_ = false;
};

}  // namespace lorimet
