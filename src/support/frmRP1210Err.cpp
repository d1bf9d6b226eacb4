#include "support/frmRP1210Err.h"

#include "support/dictionary.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr int kHeightWithoutDetails = 1812;  // twips
constexpr int kHeightWithDetails = 3732;

}  // namespace

frmRP1210Err::frmRP1210Err(Desktop& desktop, Dictionary& dictionary)
    : Form(desktop, "frmRP1210Err"), dictionary_(dictionary) {
  escape_closes = true;
  help_page = "connection.html";
  cmdOK.on_click = [this] { Unload(); };
  cmdDetails.on_click = [this] { HideDetails(!details_hidden_); };
}

void frmRP1210Err::OnLoad() {
  dictionary_.TranslateForm(*this);
  SetCaption(dictionary_.Translate("Norvick Lorimet"));
  lblErr.SetCaption(
      dictionary_.Translate("Communications are not working, unable to connect to the data bus."));
  fraRP1210.SetCaption(dictionary_.Translate("RP1210A Error"));
  lblRP1210ErrNum.SetCaption(dictionary_.Translate("Number: ") + std::to_string(lngRP1210Err));
  lblRP1210ErrDesc.SetCaption(dictionary_.Translate("Description: ") +
                              dictionary_.Translate(TrimRight(strErrorText)));
  HideDetails(true);
  CenterOnScreen();
}

// The frame goes with the height, because a layout gives no room to what should not be seen.
void frmRP1210Err::HideDetails(bool hide) {
  details_hidden_ = hide;
  fraRP1210.SetVisible(!hide);
  SetHeight(hide ? kHeightWithoutDetails : kHeightWithDetails);
}

}  // namespace lorimet
