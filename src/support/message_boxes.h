// Boxes beside the dictionary's: plain ones, whose texts are as they are to be shown.
#pragma once

#include <string>

namespace lorimet {

class Desktop;
enum class BoxIcon;

// One button, in the desktop's own words; returns when it has been pressed.
void ShowPlainBox(Desktop& desktop, const std::string& text, const std::string& title);
void ShowPlainBox(Desktop& desktop, const std::string& text, const std::string& title,
                  BoxIcon icon);

}  // namespace lorimet
