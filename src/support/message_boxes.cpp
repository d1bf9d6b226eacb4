#include "support/message_boxes.h"

#include "platform/desktop.h"

namespace lorimet {

void ShowPlainBox(Desktop& desktop, const std::string& text, const std::string& title) {
  ShowPlainBox(desktop, text, title, BoxIcon::kNone);
}

void ShowPlainBox(Desktop& desktop, const std::string& text, const std::string& title,
                  BoxIcon icon) {
  MessageBox box;
  box.text = text;
  box.title = title;
  box.icon = icon;
  desktop.ShowMessageBox(box);
}

}  // namespace lorimet
