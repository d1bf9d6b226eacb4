#include "simulator/trailer/failure_modes.h"

#include <algorithm>
#include <cstddef>

namespace lorimet::simulator {

const std::vector<FailureFacts>& FailureTable() {
  using enum FailureMode;
  static const std::vector<FailureFacts> table = {
      {kNoAdapter, "no_adapter", "Connect finds no adapter (142)"},
      {kWrongDevice, "wrong_device", "Connect does not know the device (134)"},
      {kWrongProtocol, "wrong_protocol", "Connect does not know the protocol (136)"},
      {kWrongVendor, "wrong_vendor", "Connect finds no driver of that vendor (128)"},
      {kConnectAnswers, "connect_answers", "Connect answers the value, whatever it is"},
      {kErrorTextUnterminated, "error_text_unterminated",
       "GetErrorText fills the buffer and the place of the NUL behind it"},
      {kErrorTextEmpty, "error_text_empty", "GetErrorText begins with a NUL"},
      {kErrorTextUnknown, "error_text_unknown", "GetErrorText leaves the buffer as it is"},
      {kCableOut, "cable_out", "the ECU cannot be reached"},
      {kLostMessage, "lost_message", "a reading is lost, and status -500 posted"},
      {kLinkNotAttained, "link_not_attained", "the link never says that it was attained"},
      {kStaticReadNeverEnds, "static_read_never_ends", "nLinkJobDone stays 0"},
      {kRefuse, "refuse", "the service answers the value (0x10)"},
      {kAnswerLate, "answer_late", "the service answers after value seconds (0.5)"},
      {kNeverAnswer, "never_answer", "the service gives up after value seconds (2) with status 1"},
      {kAnswerShort, "answer_short", "a block is read with value bytes (half of it)"},
      {kAnswerLong, "answer_long", "a block is read with 512 bytes, counted as 255"},
      {kOtherBlock, "other_block", "the block of the local id value (0x06) is read"},
      {kReadRefused, "read_refused", "a block is not read"},
      {kWriteRefused, "write_refused", "a block is not written"},
      {kWriteDropped, "write_dropped", "a block's write succeeds and changes nothing"},
      {kChecksumsFail, "checksums_fail", "routine 0x05 succeeds and rebuilds nothing"},
      {kResetRefused, "reset_refused", "ResetECU fails and nothing restarts"},
      {kClearRefused, "clear_refused", "ClearAllFaults fails and nothing is cleared"},
      {kClearIneffective, "clear_ineffective", "ClearAllFaults succeeds and nothing is cleared"},
      {kFaultLockRefused, "fault_lock_refused", "FaultLock fails"},
      {kFaultReadRefused, "fault_read_refused", "FaultGetData fails"},
      {kFaultCountIs, "fault_count_is", "FaultGetCount answers the value"},
      {kFaultRecordsShort, "fault_records_short",
       "FaultGetData leaves the last record out and cuts the one before"},
      {kAnswerStatus, "answer_status", "the service is done and answers the value (1)"},
      {kAnswerStale, "answer_stale", "a block or a word is read as the one before it was"},
      {kAnswerGarbage, "answer_garbage", "a block or a word is read with bytes of chance"},
      {kCableOutAt, "cable_out_at", "the link is lost within the call"},
      {kStatusAfter, "status_after", "the status value (-100) is posted when the call returns"},
      {kIoControlShort, "io_control_short", "IOControl writes nothing into the buffer"},
      {kIoControlStatus, "io_control_status", "IOControl is done and answers the value (1)"},
      {kMonitorLong, "monitor_long", "a monitored message is twice as long as its field"},
      {kMonitorControl, "monitor_control", "a monitored message has control characters"},
      {kMonitorFull, "monitor_full",
       "a monitored message fills its field and the place of the NUL behind it"},
  };
  return table;
}

const FailureFacts* FindFailure(std::string_view name) {
  for (const FailureFacts& facts : FailureTable())
    if (facts.name == name) return &facts;
  return nullptr;
}

const FailureFacts& FactsOf(FailureMode mode) {
  return FailureTable()[static_cast<std::size_t>(mode)];
}

void FailurePlan::Heal(FailureMode mode) {
  std::erase_if(armed_, [=](const Failure& failure) { return failure.mode == mode; });
}

void FailurePlan::Step() {
  if (armed_.empty()) return;
  std::erase_if(armed_, [](Failure& failure) {
    // The time of a loss within a call is how long the link stays lost.
    if (failure.mode == FailureMode::kCableOutAt || failure.steps == kAlways) return false;
    return --failure.steps < 0;
  });
}

std::optional<Failure> FailurePlan::Strike(FailureMode mode, const Request& request) {
  for (auto at = armed_.begin(); at != armed_.end(); ++at) {
    if (at->mode != mode || !Fits(at->only, request)) continue;
    if (at->skip > 0) {
      --at->skip;
      continue;
    }
    const Failure failure = *at;
    if (at->times != kAlways && --at->times <= 0) armed_.erase(at);
    return failure;
  }
  return std::nullopt;
}

bool FailurePlan::Stands(FailureMode mode) const {
  return std::any_of(armed_.begin(), armed_.end(),
                     [=](const Failure& failure) { return failure.mode == mode; });
}

bool FailurePlan::Armed(FailureMode mode) const {
  return std::any_of(armed_.begin(), armed_.end(), [=](const Failure& failure) {
    return failure.mode == mode && failure.skip <= 0 && Fits(failure.only, {});
  });
}

}  // namespace lorimet::simulator
