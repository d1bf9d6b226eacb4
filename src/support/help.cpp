#include "support/help.h"

#include "platform/desktop.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"
#include "support/dictionary.h"
#include "support/message_boxes.h"
#include "support/settings.h"
#include "support/text.h"

namespace lorimet {

void Help::BuildPath() {
  HelpFile_ = settings_.GetHelpDir();
  const auto separated = [](char c) { return c == '\\' || c == kPathSeparator; };
  if (!HelpFile_.empty() && !separated(HelpFile_.back())) HelpFile_ += kPathSeparator;
  if (HelpFile_.empty()) HelpFile_ = process_.ProgramFolder() + kPathSeparator;
  HelpFile_ += "Trailer.hlp";
}

void Help::ShowPage(const Form& form) {
  if (form.help_page.empty()) return ShowContents(form.Caption());
  Show(form.Caption(), HelpCommand::kPage, form.help_page);
}

void Help::Show(const std::string& title, HelpCommand command, const std::string& key) {
  if (HelpFile_.empty()) {
    dictionary_.ShowMessageBox(
        dictionary_.Translate("Unable to display Help Contents. There is no Help associated with "
                              "this project."),
        title, BoxKind::kInformation, kBoxOk, 0);
    return;
  }
  try {
    viewer_.Show(HelpFile_, command, key);
  } catch (const RuntimeError& error) {
    ShowPlainBox(desktop_, error.Description(), "");
  }
}

}  // namespace lorimet
