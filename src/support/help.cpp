#include "support/help.h"

#include "platform/desktop.h"
#include "platform/process.h"
#include "platform/runtime_error.h"
#include "support/dictionary.h"
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

void Help::Show(const std::string& title, bool search) {
  if (HelpFile_.empty()) {
    dictionary_.ShowMessageBox(
        dictionary_.Translate("Unable to display Help Contents. There is no Help associated with "
                              "this project."),
        title, BoxKind::kInformation, kBoxOk, 0);
    return;
  }
  try {
    viewer_.Show(HelpFile_, search ? HelpCommand::kPartialKey : HelpCommand::kContents, "");
  } catch (const RuntimeError& error) {
    MessageBox box;
    box.text = error.Description();
    desktop_.ShowMessageBox(box);
  }
}

}  // namespace lorimet
