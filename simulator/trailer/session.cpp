#include "simulator/trailer/session.h"

#include "simulator/trailer/time_grid.h"

namespace lorimet::simulator {

Status Session::Start(std::uint8_t session) {
  if (session != kDiagnosticSession) return kSubfunctionNotSupported;
  open_ = true;
  unlocked_ = false;
  idle_ = 0;
  return kDone;
}

void Session::Stop() {
  open_ = false;
  unlocked_ = false;
  parameter_access_ = false;
}

Status Session::Password() {
  if (!open_) return kNoSession;
  idle_ = 0;
  unlocked_ = true;
  return kDone;
}

Status Session::Permit(bool needs_parameter_access) {
  if (!open_) return kNoSession;
  idle_ = 0;
  if (!unlocked_ || (needs_parameter_access && !parameter_access_)) return kAccessDenied;
  return kDone;
}

Status Session::SetParameterAccess(bool open) {
  const Status permitted = Permit(false);
  if (permitted == kDone) parameter_access_ = open;
  return permitted;
}

void Session::Step() {
  if (!open_) return;
  idle_ += kStepSeconds;
  if (idle_ > (keep_alive_ ? kSilenceSeconds : timeout_)) Stop();
}

}  // namespace lorimet::simulator
