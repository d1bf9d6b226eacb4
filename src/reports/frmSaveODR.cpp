#include "reports/frmSaveODR.h"

#include <array>
#include <optional>

#include "parameters/memory_word.h"
#include "platform/clock.h"
#include "platform/process.h"
#include "reports/vehicle_name.h"
#include "session/ecu_data.h"
#include "session/library_text.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/file_names.h"
#include "support/message_boxes.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr int kInterval = 1000;              // ms
constexpr std::uint32_t kAccessPause = 100;  // ms from the access to the first read
// The bar's; the library's steps run to 9, so the last one exceeds it.
constexpr int kBarMost = 8;
// The long steps, in which the text grows.
constexpr std::int16_t kTripStep = 3;
constexpr std::int16_t kEventStep = 7;

// Read for their effect on the ECU.
constexpr std::array<MemoryAddress, 4> kPreparingWords = {{
    {0x04, 0x20, 0x00},
    {0x04, 0x20, 0x04},
    {0x04, 0x20, 0x1A},
    {0x04, 0x20, 0x22},
}};

}  // namespace

frmSaveODR::frmSaveODR(const SaveOdrParts& parts)
    : Form(parts.desktop, "frmSaveODR"), parts_(parts) {
  help_page = "odr_export.html";
  Timer1.on_tick = [this] { OnTick(); };
  cmdClose.on_click = [this] {
    SetParameterAccess(parts_.link, 0);
    Unload();
  };
}

void frmSaveODR::OnLoad() {
  parts_.dictionary.TranslateForm(*this);
  CenterOnScreen();
  Timer1.SetEnabled(false);
  Timer1.SetInterval(kInterval);
  parts_.ecu_data.dBytesRemaining.Store(kNoValue);
  parts_.ecu_data.nLinkJobDone.Store(0);
  txtStatus.SetText(parts_.dictionary.Translate("Exporting ODR Data..."));
  Show();
  parts_.desktop.DoEvents();
  // The user can have closed it meanwhile.
  if (!Loaded()) return;
  SetParameterAccess(parts_.link, 1);
  parts_.clock.Sleep(kAccessPause);
  if (!NameFile()) return;
  PrepareEcu();
  const std::int32_t result = Export();
  SetMousePointer(MousePointer::kArrow);
  Progress.SetVisible(true);
  Progress.SetValue(0);
  Progress.SetMax(kBarMost);
  if (result == 0)
    Timer1.SetEnabled(true);
  else
    txtStatus.SetText(parts_.dictionary.Translate("ODR data not saved.  Please try again."));
}

bool frmSaveODR::NameFile() {
  const std::optional<std::string> stem = VehicleName(parts_.ecu_data);
  if (!stem) {
    const Dictionary& dictionary = parts_.dictionary;
    ShowPlainBox(parts_.desktop,
                 dictionary.Translate("Cannot save.") + kCrLf +
                     dictionary.Translate("The ECU information has not been successfully read."),
                 dictionary.Translate("Information"), BoxIcon::kWarning);
    return false;
  }
  has_name_ = IsFileName(*stem + ".tso");
  strExportFile_ = parts_.process.ProgramFolder() + kPathSeparator + *stem + ".tso";
  return true;
}

void frmSaveODR::PrepareEcu() {
  for (const MemoryAddress& address : kPreparingWords) TryMemoryWord(parts_.link, address);
}

// A name that leads out of the program's folder never gets to the library.
std::int32_t frmSaveODR::Export() {
  if (!has_name_) return -1;
  LibraryText path(strExportFile_);
  const std::int32_t result = parts_.link.Trailer_OVG_ExportODRData(path.Data());
  strExportFile_ = path.Text();
  return result;
}

void frmSaveODR::ShowStep(const std::string& text, int step) {
  if (!Loaded()) return;
  if (!text.empty()) txtStatus.SetText(text);
  Progress.SetValue(step);
}

void frmSaveODR::OnTick() {
  const std::int16_t step = parts_.ecu_data.nODRUploadStep.Load();
  if (step == 0) {
    txtStatus.SetText(parts_.dictionary.Translate("ODR Data saved in ") + kCrLf + strExportFile_);
    Timer1.SetEnabled(false);
  } else if (step == kTripStep || step == kEventStep) {
    txtStatus.SetText(txtStatus.Text() + ".");
  }
  parts_.desktop.DoEvents();
}

// The window's close box leaves no access behind either.
void frmSaveODR::OnQueryUnload(bool& cancel, UnloadMode mode) {
  static_cast<void>(cancel);
  if (mode == UnloadMode::kControlMenu) SetParameterAccess(parts_.link, 0);
}

}  // namespace lorimet
