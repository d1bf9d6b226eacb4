// The range checks of a form's text boxes: a value out of its range keeps the focus in its field.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lorimet {

class Dictionary;
class Form;
class TextBox;

// A message box without an icon, its two texts translated.
void ShowPlainMessage(const Form& form, const Dictionary& dictionary, const char* text,
                      const char* title);

// Made by the constructor of the form whose fields it watches. It takes the focus and key events of
// each watched field.
class RangeChecks {
 public:
  // Tells what is wrong with a field's numeric value (its leading number, 0 when there is none) by
  // a text to be translated; null while nothing is.
  using Rule = std::function<const char*(double value)>;

  RangeChecks(Form& form, const Dictionary& dictionary) : form_(form), dictionary_(dictionary) {}
  RangeChecks(const RangeChecks&) = delete;
  RangeChecks& operator=(const RangeChecks&) = delete;

  // The field selects its whole text on getting the focus. On losing it the value is checked; a
  // value that fails shows its complaint, titled "Range Limit Exceeded", and gets the focus back.
  void Watch(TextBox& field, Rule rule);
  // The same with fixed limits, both of which pass.
  void Watch(TextBox& field, double low, double high, const char* complaint);
  // A field that may hold anything, and only selects its text.
  void WatchFocus(TextBox& field);

  // Every button's handler asks first, and does nothing on false: the field that has the focus is
  // out of range. A button reaches its handler without taking the focus when it is pressed by its
  // mnemonic or as the default button; the complaint is shown here then. When the button has tried
  // to take the focus, the field's complaint has been shown already and is not repeated.
  bool Accept();

 private:
  struct Check {
    TextBox* field;
    Rule rule;
  };

  void LostFocus(const Check& check);
  // False, with the complaint shown, for a value out of range.
  bool Validate(const Check& check);

  Form& form_;
  const Dictionary& dictionary_;
  std::vector<Check> checks_;
  // The field that has just refused to lose the focus, until the user's next key in it.
  const TextBox* refused_ = nullptr;
  std::string refused_text_;
};

}  // namespace lorimet
