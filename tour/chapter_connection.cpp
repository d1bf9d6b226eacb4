#include "tour/chapters.h"
#include "tour/hand.h"
#include "tour/script.h"

namespace lorimet {

void ShowConnection(Script& script) {
  script.Chapter("Connection");
  script.UntilText("frmZeltMain", "txtOdom",
                   [](const QString& text) { return text.contains('.'); });
  script.Do([] { FindWindow("frmZeltMain")->resize(1000, 640); });
  script.Pause(2.5);  // the lamp check ends, the pressure settles
  script.Picture("frmZeltMain", "main", "The main window, connected to a healthy trailer");
  script.Tell("Connected: identity and live values are there");

  script.AtTrailer("cable out");
  script.Picture("frmErr", "link-lost", "The cable has been pulled");
  script.Press("frmErr", "cmdOK");
  script.Picture("frmZeltMain", "main-link-lost", "The message stays until the link is back",
                 Content::kError);
  script.AtTrailer("cable in");
  script.UntilText("frmZeltMain", "txtError",
                   [](const QString& text) { return text.trimmed().isEmpty(); });
  script.Tell("The link was lost and has come back");
}

}  // namespace lorimet
