#include "simulator/trailer/failure_modes.h"

#include <algorithm>
#include <cstddef>

namespace lorimet::simulator {

const std::vector<FailureFacts>& FailureTable() {
  using enum FailureMode;
  using enum FailureTarget;
  static const std::vector<FailureFacts> table = {
      {kNoAdapter, "no_adapter", kNone, "Connect finds no adapter (142)"},
      {kWrongDevice, "wrong_device", kNone, "Connect does not know the device (134)"},
      {kWrongProtocol, "wrong_protocol", kNone, "Connect does not know the protocol (136)"},
      {kWrongVendor, "wrong_vendor", kNone, "Connect finds no driver of that vendor (128)"},
      {kConnectAnswers, "connect_answers", kValue, "Connect answers the value, whatever it is"},
      {kErrorTextUnterminated, "error_text_unterminated", kNone,
       "GetErrorText fills the buffer and the place of the NUL behind it"},
      {kErrorTextEmpty, "error_text_empty", kNone, "GetErrorText begins with a NUL"},
      {kErrorTextUnknown, "error_text_unknown", kNone, "GetErrorText leaves the buffer as it is"},
      {kCableOut, "cable_out", kNone, "the ECU cannot be reached"},
      {kLostMessage, "lost_message", kNone, "a reading is lost, and status -500 posted"},
      {kLinkNotAttained, "link_not_attained", kNone, "the link never says that it was attained"},
      {kStaticReadNeverEnds, "static_read_never_ends", kNone, "nLinkJobDone stays 0"},
      {kRefuse, "refuse", kOperation, "the service answers the value (0x10)"},
      {kAnswerLate, "answer_late", kOperation, "the service answers after value seconds (0.5)"},
      {kNeverAnswer, "never_answer", kOperation,
       "the service gives up after value seconds (2) with status 1"},
      {kAnswerShort, "answer_short", kBlock, "a block is read with value bytes (half of it)"},
      {kAnswerLong, "answer_long", kBlock, "a block is read with 512 bytes, counted as 255"},
      {kOtherBlock, "other_block", kBlock, "the block of the local id value (0x06) is read"},
      {kReadRefused, "read_refused", kBlock, "a block is not read"},
      {kWriteRefused, "write_refused", kBlock, "a block is not written"},
      {kWriteDropped, "write_dropped", kBlock, "a block's write succeeds and changes nothing"},
      {kChecksumsFail, "checksums_fail", kNone, "routine 0x05 succeeds and rebuilds nothing"},
      {kResetRefused, "reset_refused", kNone, "ResetECU fails and nothing restarts"},
      {kClearRefused, "clear_refused", kNone, "ClearAllFaults fails and nothing is cleared"},
      {kClearIneffective, "clear_ineffective", kNone,
       "ClearAllFaults succeeds and nothing is cleared"},
      {kFaultLockRefused, "fault_lock_refused", kNone, "FaultLock fails"},
      {kFaultReadRefused, "fault_read_refused", kNone, "FaultGetData fails"},
      {kFaultCountIs, "fault_count_is", kValue, "FaultGetCount answers the value"},
      {kFaultRecordsShort, "fault_records_short", kNone,
       "FaultGetData leaves the last record out and cuts the one before"},
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

std::optional<Failure> FailurePlan::Strike(FailureMode mode, std::optional<Operation> operation,
                                           std::optional<int> block) {
  const auto at = std::find_if(armed_.begin(), armed_.end(), [&](const Failure& failure) {
    return failure.mode == mode && (!failure.operation || failure.operation == operation) &&
           (!failure.block || failure.block == block);
  });
  if (at == armed_.end()) return std::nullopt;
  const Failure failure = *at;
  if (at->times != kAlways && --at->times <= 0) armed_.erase(at);
  return failure;
}

bool FailurePlan::Armed(FailureMode mode) const {
  return std::any_of(armed_.begin(), armed_.end(),
                     [=](const Failure& failure) { return failure.mode == mode; });
}

}  // namespace lorimet::simulator
