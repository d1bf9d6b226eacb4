// The dictionary's port to the translated texts.
#pragma once

#include <string>

namespace lorimet {

// The languages of the dictionary, by index. Native is the English text of the program.
enum Language { kNative = 0, kFrench = 1, kEnglish = 2, kSpanish = 3 };
constexpr int kLanguageCount = 4;

class TranslationSource {
 public:
  virtual ~TranslationSource() = default;
  // False when the texts cannot be reached; the program then stays in its native language.
  virtual bool Open() = 0;
  // The text of an exact key, blanks, case and line ends included; empty when there is none.
  virtual std::string Lookup(int language, const std::string& key) = 0;
};

}  // namespace lorimet
