#include "reports/frmODRDelete.h"

#include <array>
#include <cstdint>
#include <vector>

#include "session/link_library.h"
#include "support/dictionary.h"

namespace lorimet {

frmODRDelete::frmODRDelete(Desktop& desktop, Dictionary& dictionary, LinkLibrary& link)
    : Form(desktop, "frmODRDelete"), dictionary_(dictionary) {
  help_page = "odr_delete.html";
  cmdClose.on_click = [this] { Unload(); };
  // Ticking and unticking delete alike, and nobody is told how it went.
  chkODRDel.OnClick([&link](int box) {
    static const std::array<std::vector<std::uint8_t>, 3> kSelectors = {{
        {3, 5, 8},  // overview, histogram, trip accumulator
        {6},        // ABS accumulator
        {7},        // OVG accumulator
    }};
    for (const std::uint8_t selector : kSelectors[static_cast<std::size_t>(box)])
      link.Trailer_ABS_QOR_DeleteODRData(selector);
  });
}

void frmODRDelete::OnLoad() {
  dictionary_.TranslateForm(*this);
  CenterOnScreen();
  // Where a key that is pressed by habit deletes nothing.
  cmdClose.SetFocus();
}

}  // namespace lorimet
