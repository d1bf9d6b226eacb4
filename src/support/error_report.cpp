#include "support/error_report.h"

#include <string>

#include "support/message_boxes.h"
#include "support/text.h"

namespace lorimet {

void ShowErrorReport(Desktop& desktop, const RuntimeError& error) {
  if (error.Number() == kObjectError) return;
  ShowPlainBox(desktop, std::to_string(error.Number()) + ":  " + error.Description(), "Error");
}

MessageBox UnhandledErrorBox(const RuntimeError& error) {
  MessageBox box;
  box.title = "Norvick Lorimet";
  box.text = "Run-time error '" + std::to_string(error.Number()) + "':" + kCrLf + kCrLf +
             error.Description();
  box.icon = BoxIcon::kCritical;
  return box;
}

}  // namespace lorimet
