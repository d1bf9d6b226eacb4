// The message boxes that tests expect.
#pragma once

#include <string>
#include <vector>

#include "platform/desktop.h"

namespace lorimet::testing_support {

using Boxes = std::vector<MessageBox>;

inline MessageBox PlainBox(const std::string& text, const std::string& title,
                           BoxIcon icon = BoxIcon::kNone) {
  MessageBox box;
  box.text = text;
  box.title = title;
  box.icon = icon;
  return box;
}

// A box of the dictionary with an OK button.
inline MessageBox DictionaryBox(const std::string& text, const std::string& title, BoxIcon icon) {
  MessageBox box = PlainBox(text, title, icon);
  box.ok = "OK";
  return box;
}

}  // namespace lorimet::testing_support
