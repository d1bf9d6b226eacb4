#include "session/link_messages.h"

#include <array>
#include <limits>

#include "platform/desktop.h"
#include "session/ecu_data.h"
#include "session/link_library.h"
#include "support/dictionary.h"
#include "support/frmErr.h"
#include "support/numbers.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::size_t kErrorTextLength = 256;
constexpr std::uint8_t kOdrStepCode = 0x51;

// The texts of the upload steps 1 to 9; shown untranslated.
constexpr std::array<const char*, 9> kUploadSteps = {
    "Saving Long Term Memory",     //
    "Saving Lining Wear Memory",   //
    "Saving Trip Memory",          //
    "Saving ABS Memory",           //
    "Saving OVG Memory",           //
    "Saving Histogram Data",       //
    "Saving Event Recorder Data",  //
    "Saving Black Box Data",       //
    "Saving SLEV Memory",          //
};

}  // namespace

bool LinkMessages::RegisterMessages() {
  lABSErrorMsg_ = hook_.RegisterMessage("NorvickABSError");
  return true;
}

void LinkMessages::SubclassMainWindow() {
  hMainWnd_ = hook_.MainWindow();
  lPrevWndProc_ = hook_.SetProcedure(hMainWnd_, this);
}

void LinkMessages::UnsubclassMainWindow() { hook_.SetProcedure(hMainWnd_, lPrevWndProc_); }

std::intptr_t LinkMessages::WindowProc(std::uintptr_t hwnd, std::uint32_t uMsg,
                                       std::uintptr_t wParam, std::intptr_t lParam) {
  if (uMsg != lABSErrorMsg_) return hook_.CallProcedure(lPrevWndProc_, hwnd, uMsg, wParam, lParam);
  OnStatus(static_cast<std::int32_t>(lParam));
  return 0;
}

void LinkMessages::OnStatus(std::int32_t status) {
  // A library that goes on posting while the program ends finds nobody to tell.
  if (!desktop_.life.Open() || ctlErrorText_ == nullptr || !ctlErrorText_->Owner().Loaded()) return;
  if (status == kStatusMessageLost) {
    ctlErrorText_->SetText(dictionary_.Translate("LOST A MESSAGE!!!"));
    desktop_.Beep();
  }
  if (ctlErrorText_->Text().empty() && status == kStatusLinkError) {
    ShowLinkError(status);
  } else if (status == kStatusHealthy) {
    if (lLastLinkError_ == kStatusLinkError) {
      lLastLinkError_ = 0;
      ctlErrorText_->SetText("");
    } else if (lLastLinkError_ != 0) {
      ctlErrorText_->SetText("");
      lLastLinkError_ = 0;
    }
  }
  // Also removes the texts that never set lLastLinkError_.
  if (status == kStatusHealthy && !ctlErrorText_->Text().empty()) {
    ctlErrorText_->SetText("");
    lLastLinkError_ = 0;
  }
  if (status == kStatusOdrStep) RunOdrStep();
  if (status == kStatusOdrEnded) ecu_data_.nODRUploadStep.Store(0);
}

void LinkMessages::ShowLinkError(std::int32_t status) {
  const std::string text = LinkErrorText(link_, status, kErrorTextLength);
  lLastLinkError_ = status;
  if (text.empty()) return;
  ctlErrorText_->SetText(dictionary_.Translate("Error:") + "  " + std::to_string(status) + kCrLf +
                         text);
  if (!frmErr_.Visible()) frmErr_.Show(Modality::kModal);
}

void LinkMessages::RunOdrStep() {
  const std::int16_t step = ecu_data_.nODRUploadStep.Load();
  // A step that the call cannot carry is no step; the status is dropped.
  if (step < 0 || step > std::numeric_limits<std::uint8_t>::max()) return;
  const bool named = step >= 1 && step <= static_cast<int>(kUploadSteps.size());
  if (show_upload_step)
    show_upload_step(named ? kUploadSteps[static_cast<std::size_t>(step) - 1] : "", step);
  link_.Trailer_OVG_UploadODRData(ToByte(step), kOdrStepCode, 0);
}

}  // namespace lorimet
