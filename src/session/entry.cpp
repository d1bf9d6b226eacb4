#include "session/entry.h"

#include "platform/desktop.h"
#include "platform/process.h"
#include "session/frmZeltMain.h"
#include "session/link_messages.h"
#include "support/dictionary.h"
#include "support/error_report.h"
#include "support/frmErr.h"

namespace lorimet {

EntryResult Main(const EntryParts& parts) {
  return WithErrorReport(parts.desktop, [&] {
    if (!parts.process.ClaimSingleInstance()) return EntryResult::kEnded;
    if (!parts.messages.RegisterMessages()) {
      parts.dictionary.ShowMessageBox(
          parts.dictionary.Translate("Failed to register user defined messages."),
          parts.dictionary.Translate("Serious Error"), BoxKind::kError, kBoxOk, 0);
      return EntryResult::kEnded;
    }
    parts.main_form.SetMousePointer(MousePointer::kHourglass);
    parts.main_form.Load();
    // The user can have closed the window while the first connection was made.
    if (!parts.desktop.life.Open()) return EntryResult::kEnded;
    parts.err.Load();
    parts.main_form.Show();
    parts.main_form.SetMousePointer(MousePointer::kArrow);
    parts.desktop.life.Run();
    return EntryResult::kRunning;
  });
}

}  // namespace lorimet
