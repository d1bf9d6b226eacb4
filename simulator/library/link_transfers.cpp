// The link's part in the transfers of the ECU's memory: what is told of them, and when.
#include "simulator/library/error_texts.h"
#include "simulator/library/link.h"

namespace lorimet::simulator {

// A path begins an upload, an empty text resumes it.
Status Link::Upload(std::string_view text) {
  if (text == kAbortUpload) {
    const bool ran = upload_.Runs();
    upload_.Abort();
    simulation_->transfer = "none";
    if (!ran) return kDone;
    writer_.WriteBytesRemaining(kNoValue);
    writer_.WriteJobDone(1);
    return kDone;
  }
  if (text.empty()) return upload_.Resume();
  return export_.Runs() ? kBusy : upload_.Begin(*simulation_, text);
}

// The step stands before the program can look at it: 0 would tell it that all is done.
Status Link::Export(std::string_view path) {
  const Status status = upload_.Runs() ? kBusy : export_.Begin(path);
  if (status != kDone) return status;
  writer_.WriteUploadStep(static_cast<std::int16_t>(export_.StepNumber()));
  Post(kStatusRecorderStep);
  return kDone;
}

// What a transfer brings shows that the ECU answers.
void Link::StepTransfers() {
  if ((upload_.Runs() || export_.Runs()) && Reachable()) silence_ = 0;
  StepUpload();
  StepExport();
}

void Link::StepUpload() {
  if (!upload_.Runs()) return;
  const EepromUpload::Sign sign = upload_.Step(*simulation_, Reachable());
  simulation_->transfer = upload_.Runs() ? "eeprom " + std::to_string(upload_.Remaining()) : "none";
  if (sign == EepromUpload::Sign::kNone) return;
  writer_.WriteBytesRemaining(upload_.Remaining());
  writer_.WriteJobDone(sign == EepromUpload::Sign::kResumeWanted ? -1 : 1);
}

void Link::StepExport() {
  if (!export_.Runs()) return;
  const RecorderExport::Sign sign = export_.Step(*simulation_, Reachable());
  simulation_->transfer = export_.Runs() ? "odr " + std::to_string(export_.StepNumber()) : "none";
  if (sign == RecorderExport::Sign::kEnded) Post(kStatusRecorderEnded);
  if (sign != RecorderExport::Sign::kStep) return;
  writer_.WriteUploadStep(static_cast<std::int16_t>(export_.StepNumber()));
  Post(kStatusRecorderStep);
}

void Link::EndTransfers() {
  upload_.Abort();
  export_.Abort();
  simulation_->transfer = "none";
}

}  // namespace lorimet::simulator
