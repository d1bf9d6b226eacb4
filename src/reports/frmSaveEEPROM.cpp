#include "reports/frmSaveEEPROM.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "platform/process.h"
#include "session/ecu_data.h"
#include "session/library_text.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr int kInterval = 1000;             // ms
constexpr int kMostBytes = 32767;           // that the bar can show
constexpr std::int16_t kResumeWanted = -1;  // nLinkJobDone

// What the bar shows of so many bytes to come; below its range for more than it can show.
int BarValue(double bytes) {
  const double value = std::nearbyint(kMostBytes - bytes);
  return static_cast<int>(
      std::max(value, static_cast<double>(std::numeric_limits<std::int32_t>::min())));
}

}  // namespace

frmSaveEEPROM::frmSaveEEPROM(Desktop& desktop, Process& process, Dictionary& dictionary,
                             LinkLibrary& link, ECUData& ecu_data)
    : Form(desktop, "frmSaveEEPROM"),
      process_(process),
      dictionary_(dictionary),
      link_(link),
      ecu_data_(ecu_data) {
  help_page = "memory_upload.html";
  Timer1.on_tick = [this] { OnTick(); };
  cmdClose.on_click = [this] {
    Leave();
    Unload();
  };
}

void frmSaveEEPROM::OnLoad() {
  dictionary_.TranslateForm(*this);
  CenterOnScreen();
  Timer1.SetEnabled(false);
  Timer1.SetInterval(kInterval);
  file_name_.clear();
  if (!AskForName()) {
    txtStatus.SetText(dictionary_.Translate("EEPROM data not saved.  Please try again."));
    Show();
  } else if (!file_name_.empty()) {
    BeginUpload();
  }
}

bool frmSaveEEPROM::AskForName() {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.default_extension = ".txt";
  dialog.file_name = "EEPROM";
  dialog.initial_directory = process_.ProgramFolder();
  dialog.filter = dictionary_.Translate("Text (*.txt)|*.txt|All Files (*.*)|*.*");
  dialog.path_must_exist = true;
  const std::optional<std::string> path = GetDesktop().ShowFileDialog(dialog);
  // Nor is it one that the library would read as another.
  if (!path || FromCp1252(ToCp1252(*path)) != *path) return false;
  file_name_ = *path;
  return true;
}

void frmSaveEEPROM::BeginUpload() {
  SetParameterAccess(link_, 1);
  txtStatus.SetText(dictionary_.Translate("Saving EEPROM Data..."));
  Show();
  Progress.SetVisible(true);
  Progress.SetValue(0);
  Progress.SetMax(kMostBytes);
  GetDesktop().Repaint();
  ecu_data_.nLinkJobDone.Store(0);
  ecu_data_.dBytesRemaining.Store(kNoValue);
  Timer1.SetEnabled(true);
  if (TryLinkCall([this] { return Upload(file_name_); }) == 0) return;
  Timer1.SetEnabled(false);
  txtStatus.SetText(dictionary_.Translate("Save Failed.  Please Try Again."));
}

std::int32_t frmSaveEEPROM::Upload(const std::string& text) {
  LibraryText buffer(text);
  return link_.Trailer_OVG_UploadData(buffer.Data());
}

void frmSaveEEPROM::OnTick() {
  if (ecu_data_.nLinkJobDone.Load() == kResumeWanted) {
    Timer1.SetEnabled(false);
    ecu_data_.nLinkJobDone.Store(0);
    ResumeUpload();
  } else {
    ShowProgress();
  }
  GetDesktop().DoEvents();
}

void frmSaveEEPROM::ShowProgress() {
  const double remaining = ecu_data_.dBytesRemaining.Load();
  if (remaining > 0) {
    txtStatus.SetText(dictionary_.Translate("Bytes Remaining To Transfer : ") +
                      NumberText(remaining));
    Progress.SetValue(BarValue(remaining));
  } else if (remaining == 0) {
    txtStatus.SetText(dictionary_.Translate("EEPROM Data saved in ") + kCrLf + file_name_);
  }
}

void frmSaveEEPROM::ResumeUpload() {
  Timer1.SetEnabled(true);
  Upload("");
}

void frmSaveEEPROM::Leave() {
  if (ecu_data_.dBytesRemaining.Load() > 0) Upload("Abort");
  SetParameterAccess(link_, 0);
}

// The window's close box leaves no transfer and no access behind either.
void frmSaveEEPROM::OnQueryUnload(bool& cancel, UnloadMode mode) {
  static_cast<void>(cancel);
  if (mode == UnloadMode::kControlMenu) Leave();
}

}  // namespace lorimet
