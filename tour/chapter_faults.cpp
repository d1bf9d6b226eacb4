#include <QMessageBox>
#include <QTableWidget>

#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"
#include "tour/simulated_trailer.h"

namespace lorimet {
namespace {

int Rows() {
  const auto* grid = FindIn<QTableWidget>("frmFaults", "grdFaults");
  return grid == nullptr ? -1 : grid->rowCount();
}

}  // namespace

void ShowFaults(Script& script) {
  script.Chapter("Faults");
  script.AtTrailer("fault 5 7 active 3");
  script.AtTrailer("fault 59 12 stored 1");
  script.AtTrailer("fault 106 11 stored 0");
  script.AtTrailer("fault 13 2 stored 4");
  script.UntilText("frmZeltMain", "txtExistingFaults", [&script](const QString& text) {
    return text == QString::fromStdString(script.Translate("Yes"));
  });
  script.Picture("frmZeltMain", "main-faults", "The panel tells of four faults, the lamp is on");
  script.Command("tbrABS_faults");
  script.Until("four faults in the list", [] { return Rows() == 4; });
  script.Do([] {
    auto* grid = FindIn<QTableWidget>("frmFaults", "grdFaults");
    ClickAt(*grid->viewport(), grid->visualItemRect(grid->item(1, 0)).center());
  });
  script.UntilText("frmFaults", "txtRepair", [](const QString& text) { return !text.isEmpty(); });
  script.Picture("frmFaults", "faults", "The faults, and what to do about the chosen one");
  script.Tell("Four faults read, with their repair instructions");
  script.AtTrailer("fault 5 7 gone");
  script.Press("frmFaults", "cmdClearAll");
  script.Until("an empty list", [] { return Rows() == 0; });
  script.Picture("frmFaults", "faults-cleared", "Cleared, and none has come back",
                 Content::kPerhapsNone);
  script.Press("frmFaults", "cmdExit");
  script.UntilGone("frmFaults");
  script.Check([&script] {
    return script.Trailer().See("faults") == "0" ? QString()
                                                 : QStringLiteral("The ECU still holds faults");
  });
  script.Tell("All faults cleared");
}

}  // namespace lorimet
