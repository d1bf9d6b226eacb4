// Everything that can go wrong with the link, by name, and the plan of what goes wrong when.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/trailer/request.h"

namespace lorimet::simulator {

enum class FailureMode {
  kNoAdapter,
  kWrongDevice,
  kWrongProtocol,
  kWrongVendor,
  kConnectAnswers,
  kErrorTextUnterminated,
  kErrorTextEmpty,
  kErrorTextUnknown,
  kCableOut,
  kLostMessage,
  kLinkNotAttained,
  kStaticReadNeverEnds,
  kRefuse,
  kAnswerLate,
  kNeverAnswer,
  kAnswerShort,
  kAnswerLong,
  kOtherBlock,
  kReadRefused,
  kWriteRefused,
  kWriteDropped,
  kChecksumsFail,
  kResetRefused,
  kClearRefused,
  kClearIneffective,
  kFaultLockRefused,
  kFaultReadRefused,
  kFaultCountIs,
  kFaultRecordsShort,
  kAnswerStatus,
  kAnswerStale,
  kAnswerGarbage,
  kCableOutAt,
  kStatusAfter,
  kIoControlShort,
  kIoControlStatus,
  kMonitorLong,
  kMonitorControl,
  kMonitorFull,
};

struct FailureFacts {
  FailureMode mode;
  std::string_view name;
  std::string_view meaning;
};

// One row a mode, in the order of the enumeration.
const std::vector<FailureFacts>& FailureTable();
const FailureFacts* FindFailure(std::string_view name);
const FailureFacts& FactsOf(FailureMode mode);

constexpr int kAlways = -1;

struct Failure {
  FailureMode mode = FailureMode::kRefuse;
  RequestFilter only = {};  // the requests that it strikes; empty: every one of its kind
  double value = 0;         // what the mode's meaning says; 0: the mode's own default
  int times = kAlways;      // how often it strikes
  int skip = 0;             // how often it lets pass before
  int steps = kAlways;      // of the time grid, until it is over by itself
};

class FailurePlan {
 public:
  void Arm(const Failure& failure) { armed_.push_back(failure); }
  void Heal(FailureMode mode);
  void HealAll() { armed_.clear(); }
  // Ends those whose time is over.
  void Step();

  // The first armed failure of that mode that fits, counted as one strike; nothing when none does.
  std::optional<Failure> Strike(FailureMode mode, const Request& request = {});
  // Whether one is armed that strikes whatever is asked for; no strike.
  bool Armed(FailureMode mode) const;
  // Whether one is armed at all.
  bool Stands(FailureMode mode) const;

 private:
  std::vector<Failure> armed_;
};

}  // namespace lorimet::simulator
