#include "tests/frmSetEOLBit.h"

#include "platform/desktop.h"
#include "session/link_library.h"
#include "support/dictionary.h"

namespace lorimet {
namespace {

constexpr std::int32_t kNoAnswer = 1;  // of an ECU that does not answer

}  // namespace

frmSetEOLBit::frmSetEOLBit(Desktop& desktop, Dictionary& dictionary, const EolFlagParts& parts)
    : Form(desktop, "frmSetEOLBit"), dictionary_(dictionary), parts_(parts) {
  help_page = "eol_flag.html";
  cmdSetStatusFlag.on_click = [this] { Set(1); };
  cmdClearStatusFlag.on_click = [this] { Set(0); };
  cmdClose.on_click = [this] { Unload(); };
}

void frmSetEOLBit::OnLoad() {
  dictionary_.TranslateForm(*this);
  CenterOnScreen();
  ShowFlag();
}

void frmSetEOLBit::Set(std::int16_t bPass) {
  SetMousePointer(MousePointer::kHourglass);
  // The pointer is the only sign of the ten seconds to come, which the screen has told of before.
  GetDesktop().Repaint();
  StartEcuSession(parts_.link);
  SetEOLFlag(parts_, bPass);
  ShowFlag();
  SetMousePointer(MousePointer::kArrow);
}

// A failure other than no answer shows what the buffer holds.
void frmSetEOLBit::ShowFlag() {
  const EolFlagReading reading = ReadEOLFlag(parts_.link);
  nEOLStatus_ = reading.value;
  if (reading.result == kNoAnswer)
    txtStatus.SetText(dictionary_.Translate("Error"));
  else if (nEOLStatus_ == kEolPassed)
    txtStatus.SetText(dictionary_.Translate("EOL Test Passed"));
  else if (nEOLStatus_ == kEolNotPassed)
    txtStatus.SetText(dictionary_.Translate("EOL Test Not Passed"));
  else
    txtStatus.SetText(dictionary_.Translate("Unknown"));
}

}  // namespace lorimet
