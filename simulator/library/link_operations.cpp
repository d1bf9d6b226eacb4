#include "simulator/library/link.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "simulator/library/error_texts.h"
#include "simulator/library/files.h"

namespace lorimet::simulator {
namespace {

constexpr std::size_t kReadBuffer = 512;
constexpr std::size_t kFaultRecordSize = 24;
constexpr std::size_t kMonitorText = 150;
constexpr std::size_t kMonitorTiming = 25;

std::string Text(const char* text) { return text == nullptr ? std::string() : text; }

std::string Quoted(const char* text) { return "\"" + Text(text) + "\""; }

std::span<const std::uint8_t> Bytes(const std::uint8_t* data, std::uint8_t count) {
  if (data == nullptr) return {};
  return {data, count};
}

// Overwrites the head of a buffer that is `room` blanks long, and leaves the blanks behind it.
void PutText(char* buffer, std::size_t room, std::string_view text) {
  if (buffer != nullptr) std::memcpy(buffer, text.data(), std::min(text.size(), room));
}

// Replaces a text in a buffer of the contract's least size, its NUL included.
void PutWhole(char* buffer, std::string_view text) {
  constexpr std::size_t kLeastBuffer = 1024;
  if (buffer == nullptr) return;
  const std::size_t size = std::min(text.size(), kLeastBuffer - 1);
  std::memcpy(buffer, text.data(), size);
  buffer[size] = '\0';
}

void PutInt(std::uint8_t* at, std::int32_t value) { std::memcpy(at, &value, sizeof value); }

template <typename Record>
Record* Aligned(void* address) {
  const auto bits = reinterpret_cast<std::uintptr_t>(address);
  return bits % 4 == 0 ? static_cast<Record*>(address) : nullptr;
}

}  // namespace

std::optional<std::int32_t> Link::Disturb(const Request& request, const std::string& arguments,
                                          std::int32_t silent) {
  simulation_->log.Note(*request.operation, arguments);
  simulation_->schedule.NoteRequest(request);
  FailurePlan& failures = simulation_->failures;
  const auto wait = [&](double seconds) {
    if (waiter_)
      waiter_(seconds);
    else
      Advance(seconds);
  };
  if (const auto failure = failures.Strike(FailureMode::kNeverAnswer, request)) {
    wait(failure->value > 0 ? failure->value : 2);
    return silent;
  }
  if (const auto failure = failures.Strike(FailureMode::kAnswerLate, request))
    wait(failure->value > 0 ? failure->value : 0.5);
  if (const auto failure = simulation_->failures.Strike(FailureMode::kRefuse, request))
    return failure->value != 0 ? static_cast<std::int32_t>(failure->value) : kRejected;
  return std::nullopt;
}

template <typename Service>
std::int32_t Link::Answer(const Request& request, const std::string& arguments, Reach reach,
                          Service service) {
  if (const auto disturbed = Disturb(request, arguments, kNoAnswer)) return *disturbed;
  if (!Connected()) return kInvalidClient;
  FailurePlan& failures = simulation_->failures;
  if (const auto lost = failures.Strike(FailureMode::kCableOutAt, request))
    failures.Arm({.mode = FailureMode::kCableOut, .steps = lost->steps});
  if (reach == Reach::kEcu) {
    if (failures.Strike(FailureMode::kCableOut, request)) return kNoAnswer;
    if (!simulation_->adapter.present || !simulation_->trailer.Powered()) return kNoAnswer;
    if (simulation_->trailer.Restarting()) return kBusy;
  }
  const std::int32_t status = service();
  if (const auto failure = simulation_->failures.Strike(FailureMode::kAnswerStatus, request))
    return failure->value != 0 ? static_cast<std::int32_t>(failure->value) : kNoAnswer;
  return status;
}

template <typename Service>
std::int32_t Link::Serve(const Request& request, const std::string& arguments, Reach reach,
                         Service service) {
  const std::int32_t status = Answer(request, arguments, reach, service);
  if (reach == Reach::kEcu && Connected()) Exchange(status);
  asked_.clear();
  answered_.clear();
  if (const auto failure = simulation_->failures.Strike(FailureMode::kStatusAfter, request))
    Post(failure->value != 0 ? static_cast<std::int32_t>(failure->value) : kStatusLinkError);
  return status;
}

void Link::Asks(std::initializer_list<std::uint8_t> head, std::span<const std::uint8_t> data) {
  asked_.assign(head);
  asked_.insert(asked_.end(), data.begin(), data.end());
}

// A service and its answer on the bus. An adapter that has no cable to it sends nothing there.
void Link::Exchange(std::int32_t status) {
  constexpr std::uint8_t kTransfer = 0x36;  // of what has no bytes of its own here
  constexpr std::uint8_t kRefused = 0x7F;
  constexpr std::uint8_t kPositive = 0x40;  // more than the service
  if (!simulation_->adapter.present || simulation_->failures.Armed(FailureMode::kCableOut)) return;
  Bus& bus = simulation_->bus;
  const Noise& noise = simulation_->trailer.Measuring();
  if (asked_.empty()) asked_ = {kTransfer};
  SendEscape(bus, noise, kDiagnosticTool, kTrailerBrakes, asked_);
  if (status == kNoAnswer) return;
  std::vector<std::uint8_t> answer = {static_cast<std::uint8_t>(asked_[0] + kPositive)};
  answer.insert(answer.end(), answered_.begin(), answered_.end());
  if (status != kDone) answer = {kRefused, asked_[0], static_cast<std::uint8_t>(status)};
  SendEscape(bus, noise, kTrailerBrakes, kDiagnosticTool, answer);
}

// --- Connection ---------------------------------------------------------------------------------

std::int32_t Link::AdapterError(const char* protocol, const char* vendor, std::int32_t device) {
  FailurePlan& failures = simulation_->failures;
  const AdapterDemands& demands = simulation_->adapter;
  if (!scenario_error_.empty()) return kScenarioBroken;
  if (const auto failure = failures.Strike(FailureMode::kConnectAnswers))
    return static_cast<std::int32_t>(failure->value);
  if (!demands.present || failures.Strike(FailureMode::kNoAdapter)) return kHardwareSilent;
  if (failures.Strike(FailureMode::kWrongVendor)) return kNotInitialised;
  if (failures.Strike(FailureMode::kWrongDevice)) return kInvalidDevice;
  if (failures.Strike(FailureMode::kWrongProtocol)) return kInvalidProtocol;
  if (!demands.vendor.empty() && demands.vendor != Text(vendor)) return kNotInitialised;
  if (demands.device && *demands.device != device) return kInvalidDevice;
  if (!demands.protocol.empty() && demands.protocol != Text(protocol)) return kInvalidProtocol;
  return Connected() ? kAlreadyConnected : simulation_->client_id;
}

std::int32_t Link::Connect(char* protocol, std::uint32_t hWnd, char* vendor, std::int32_t deviceId,
                           std::int32_t family, std::uint8_t*, std::uint8_t*, void* linkStatus,
                           void* ecuData, std::uint8_t*, std::uint8_t*, std::uint8_t*,
                           std::uint32_t*) {
  const std::string arguments = Quoted(protocol) + ", " + Quoted(vendor) + ", " +
                                std::to_string(deviceId) + ", " + std::to_string(family);
  if (const auto disturbed =
          Disturb(Request{.operation = Operation::Connect}, arguments, kHardwareSilent))
    return *disturbed == kRejected ? kHardwareSilent : *disturbed;
  const std::int32_t result = AdapterError(protocol, vendor, deviceId);
  if (simulation_->answered_vendor) PutWhole(vendor, *simulation_->answered_vendor);
  if (simulation_->answered_protocol) PutWhole(protocol, *simulation_->answered_protocol);
  if (result < 0 || result > 127) return result;
  simulation_->connected = true;
  attained_ = false;
  handle_ = hWnd;
  link_status_ = Aligned<LinkStatus>(linkStatus);
  if (link_status_ != nullptr) link_status_->bLinkAttained.Store(0);
  writer_.Attach(Aligned<ECUData>(ecuData));
  writer_.WriteNothingKnown();
  connected_for_ = 0;
  until_reading_ = static_cast<std::int64_t>(kFirstReadingSeconds * 1e6);
  silence_ = 0;
  until_link_error_ = 0;
  until_healthy_ = 0;
  until_lost_ = 0;
  forgiven_ = 0;
  vehicle_due_ = false;
  static_known_ = false;
  return result;
}

std::int32_t Link::Disconnect() {
  return Serve(Operation::Disconnect, "", Reach::kLibrary, [&] {
    simulation_->connected = false;
    EndStuckRead();
    fault_locked_ = false;
    link_status_ = nullptr;
    EndTransfers();
    writer_.Attach(nullptr);
    monitor_.Close();
    log_.Stop();
    simulation_->recording = false;
    simulation_->monitored = 0;
    return kDone;
  });
}

std::int32_t Link::GetErrorText(std::int32_t code, char* buffer, std::int32_t length) {
  simulation_->log.Note(Operation::GetErrorText,
                        std::to_string(code) + ", " + std::to_string(length));
  if (buffer == nullptr || length <= 0) return kDone;
  const auto room = static_cast<std::size_t>(length);
  FailurePlan& failures = simulation_->failures;
  if (failures.Strike(FailureMode::kErrorTextUnknown)) return kDone;
  if (failures.Strike(FailureMode::kErrorTextEmpty)) {
    buffer[0] = '\0';
    return kDone;
  }
  std::string text(ErrorText(code));
  if (code == kScenarioBroken && !scenario_error_.empty()) text = "Scenario: " + scenario_error_;
  if (failures.Strike(FailureMode::kErrorTextUnterminated)) {
    text += '.';
    for (std::size_t i = 0; i <= room; ++i) buffer[i] = text[i % text.size()];
    return kDone;
  }
  PutText(buffer, room, text);
  return kDone;
}

// --- The ECU as a whole -------------------------------------------------------------------------

std::int32_t Link::ResetECU() {
  Asks({0x11, 0x01});
  return Serve(Operation::ResetECU, "", Reach::kEcu, [&]() -> Status {
    if (simulation_->failures.Strike(FailureMode::kResetRefused)) return kConditionsNotCorrect;
    simulation_->trailer.Reset();
    fault_locked_ = false;
    forgiven_ = static_cast<std::int64_t>(kResetSilenceSeconds * 1e6);
    return kDone;
  });
}

std::int32_t Link::Trailer_ABS_QOR_ReadStaticData() {
  return Serve(Operation::Trailer_ABS_QOR_ReadStaticData, "", Reach::kLibrary, [&] {
    EndStuckRead();
    reading_job_ = true;
    job_left_ = static_cast<std::int64_t>(kStaticReadSeconds * 1e6);
    job_gives_up_in_ = static_cast<std::int64_t>(kStaticGiveUpSeconds * 1e6);
    writer_.WriteJobDone(0);
    return kDone;
  });
}

// --- Faults -------------------------------------------------------------------------------------

std::int32_t Link::ClearAllFaults() {
  Asks({0x14, 0xFF, 0xFF});
  return Serve(Operation::ClearAllFaults, "", Reach::kEcu, [&]() -> Status {
    FailurePlan& failures = simulation_->failures;
    if (failures.Strike(FailureMode::kClearRefused)) return kConditionsNotCorrect;
    if (!failures.Strike(FailureMode::kClearIneffective)) simulation_->trailer.ClearFaults();
    return kDone;
  });
}

std::int32_t Link::FaultLock() {
  Asks({0x18, 0x00, 0xFF, 0xFF});
  return Serve(Operation::FaultLock, "", Reach::kEcu, [&]() -> Status {
    if (fault_locked_) return kBusy;
    if (simulation_->failures.Strike(FailureMode::kFaultLockRefused)) return kConditionsNotCorrect;
    fault_locked_ = true;
    told_faults_ = 0;
    locked_faults_ = simulation_->trailer.Faults().Faults();
    return kDone;
  });
}

std::int32_t Link::FaultGetCount() {
  told_faults_ = 0;
  // An answer that never comes counts nothing.
  if (const auto disturbed = Disturb(Request{.operation = Operation::FaultGetCount}, "", 0))
    return *disturbed;
  if (!Connected()) return 0;
  const auto held = static_cast<std::int32_t>(fault_locked_ ? locked_faults_.size() : 0);
  const auto failure = simulation_->failures.Strike(FailureMode::kFaultCountIs);
  const std::int32_t count = failure ? static_cast<std::int32_t>(failure->value) : held;
  told_faults_ = static_cast<std::size_t>(std::clamp(count, 0, held));
  return count;
}

std::int32_t Link::FaultGetData(void* firstRecord) {
  return Serve(Operation::FaultGetData, "", Reach::kLibrary, [&]() -> Status {
    FailurePlan& failures = simulation_->failures;
    if (!fault_locked_ || firstRecord == nullptr) return kConditionsNotCorrect;
    if (failures.Strike(FailureMode::kFaultReadRefused)) return kRejected;
    std::vector<std::uint8_t> bytes(told_faults_ * kFaultRecordSize, 0);
    for (std::size_t i = 0; i < told_faults_; ++i) {
      std::uint8_t* record = bytes.data() + i * kFaultRecordSize;
      PutInt(record + 4, locked_faults_[i].sid);
      PutInt(record + 8, locked_faults_[i].fmi);
      PutInt(record + 16, locked_faults_[i].status);
      PutInt(record + 20, locked_faults_[i].times);
    }
    if (failures.Strike(FailureMode::kFaultRecordsShort))
      bytes.resize(bytes.size() - std::min(bytes.size(), kFaultRecordSize + 12));
    if (!bytes.empty()) std::memcpy(firstRecord, bytes.data(), bytes.size());
    return kDone;
  });
}

std::int32_t Link::FaultUnlock() {
  return Serve(Operation::FaultUnlock, "", Reach::kLibrary, [&]() -> Status {
    if (!fault_locked_) return kConditionsNotCorrect;
    fault_locked_ = false;
    return kDone;
  });
}

// --- Bus monitor --------------------------------------------------------------------------------

std::int32_t Link::BusMonitorOpen() {
  return Serve(Operation::BusMonitorOpen, "", Reach::kLibrary, [&] {
    monitor_.Open(simulation_->bus.Now());
    return kDone;
  });
}

std::int32_t Link::BusMonitorClose() {
  return Serve(Operation::BusMonitorClose, "", Reach::kLibrary, [&] {
    monitor_.Close();
    simulation_->monitored = 0;
    return kDone;
  });
}

// What the monitor's text is when a failure strikes; the buffer goes on behind the field.
std::string Link::SpoilText(std::string text) {
  FailurePlan& failures = simulation_->failures;
  const auto filled = [&text](std::size_t length) {
    std::string long_text;
    while (long_text.size() < length) long_text += text + " ";
    return long_text.substr(0, length);
  };
  if (failures.Strike(FailureMode::kMonitorLong)) return filled(2 * kMonitorText);
  if (failures.Strike(FailureMode::kMonitorFull)) return filled(kMonitorText + 1);
  if (failures.Strike(FailureMode::kMonitorControl)) return "\x07" + text + "\r\n\t\x7F";
  return text;
}

std::int32_t Link::BusMonitorGetData(char* text, char* timing, std::int32_t showIdleTime,
                                     std::int32_t showTimestamp) {
  const std::string arguments = std::to_string(showIdleTime) + ", " + std::to_string(showTimestamp);
  return Serve(Operation::BusMonitorGetData, arguments, Reach::kLibrary, [&]() -> Status {
    BusMessage message;
    if (!monitor_.IsOpen()) return kConditionsNotCorrect;
    if (!monitor_.Take(message)) {
      if (!simulation_->bus.Flood()) return kDone;
      message = Bus::Filler(++flooded_);
      message.start = simulation_->bus.Now();
    }
    simulation_->monitored = monitor_.Size();
    const std::string words = SpoilText(TextOf(message));
    PutText(text, words.size(), words);
    std::string times;
    if (showIdleTime != 0) times += " " + SecondsOf(message.idle);
    if (showTimestamp != 0) times += " " + monitor_.StampOf(message);
    PutText(timing, kMonitorTiming, times);
    return kDone;
  });
}

std::string Link::Moment() const {
  if (calendar_) return calendar_();
  const std::int64_t seconds = simulation_->time / 1'000'000;
  char text[40];
  std::snprintf(text, sizeof text, "2000-01-01 %02d:%02d:%02d",
                static_cast<int>(seconds / 3600 % 24), static_cast<int>(seconds / 60 % 60),
                static_cast<int>(seconds % 60));
  return text;
}

Status Link::StartRecord(char* file, char* comments) {
  if (log_.Running()) return kBusy;
  const auto& renamed = simulation_->recording_renamed;
  const std::string name = renamed ? renamed->first : Text(file);
  std::string head = renamed ? renamed->second : Text(comments);
  if (!head.empty() && !head.ends_with('\n')) head += "\r\n";
  const SystemFacts& system = FactsOf(simulation_->trailer.Setup().system);
  head += "---- " + Moment() + " " + std::string(system.name) + "\r\n";
  if (name.empty() || !log_.Start(PathOf(name), head, simulation_->bus.Now())) return kOutOfRange;
  if (renamed) {
    PutWhole(file, renamed->first);
    PutWhole(comments, renamed->second);
  }
  return kDone;
}

std::int32_t Link::BusMonitorStartRecord(char* file, char* comments, std::int32_t zero) {
  return Serve(Operation::BusMonitorStartRecord,
               Quoted(file) + ", " + Quoted(comments) + ", " + std::to_string(zero),
               Reach::kLibrary, [&] {
                 const Status status = StartRecord(file, comments);
                 simulation_->recording = log_.Running();
                 return status;
               });
}

std::int32_t Link::BusMonitorStopRecord() {
  return Serve(Operation::BusMonitorStopRecord, "", Reach::kLibrary, [&]() -> Status {
    if (!log_.Running()) return kConditionsNotCorrect;
    // What the disk does not take is not given up as long as somebody can make room on it.
    if (!log_.Write()) return kOutOfRange;
    log_.Stop();
    simulation_->recording = false;
    return kDone;
  });
}

// --- Recorder and memory -------------------------------------------------------------------------

std::int32_t Link::Trailer_ABS_QOR_DeleteODRData(std::uint8_t selector) {
  Asks({0x31, 0x99, selector});
  return Serve(Operation::Trailer_ABS_QOR_DeleteODRData, HexByte(selector), Reach::kEcu,
               [&] { return simulation_->trailer.DeleteRecorderData(selector); });
}

// An upload can be aborted whether the ECU answers or not.
std::int32_t Link::Trailer_OVG_UploadData(char* text) {
  const bool aborts = Text(text) == kAbortUpload;
  return Serve(Operation::Trailer_OVG_UploadData, Quoted(text),
               aborts ? Reach::kLibrary : Reach::kEcu, [&] { return Upload(Text(text)); });
}

std::int32_t Link::Trailer_OVG_UploadODRData(std::uint8_t step, std::uint8_t code,
                                             std::int32_t zero) {
  return Serve(Operation::Trailer_OVG_UploadODRData,
               std::to_string(step) + ", " + HexByte(code) + ", " + std::to_string(zero),
               Reach::kEcu, [&] { return export_.Fetch(step, code); });
}

std::int32_t Link::Trailer_OVG_ExportODRData(char* file) {
  return Serve(Operation::Trailer_OVG_ExportODRData, Quoted(file), Reach::kEcu, [&] {
    const Status status = Export(Text(file));
    const auto& renamed = simulation_->exporting.renames;
    if (status == kDone && renamed) PutWhole(file, *renamed);
    return status;
  });
}

// --- Session and services -----------------------------------------------------------------------

std::int32_t Link::Trailer_ABS_KWP_StartSession(std::uint8_t session) {
  Asks({0x10, session});
  return Serve(Operation::Trailer_ABS_KWP_StartSession, HexByte(session), Reach::kEcu,
               [&] { return simulation_->trailer.Diagnosis().Start(session); });
}

std::int32_t Link::Trailer_ABS_KWP_StopSession() {
  Asks({0x20});
  return Serve(Operation::Trailer_ABS_KWP_StopSession, "", Reach::kEcu, [&] {
    simulation_->trailer.Diagnosis().Stop();
    return kDone;
  });
}

std::int32_t Link::Trailer_ABS_KWP_Password() {
  Asks({0x27, 0x02});
  return Serve(Operation::Trailer_ABS_KWP_Password, "", Reach::kEcu,
               [&] { return simulation_->trailer.Diagnosis().Password(); });
}

std::int32_t Link::Trailer_ABS_KWP_SwitchDiagMode(std::uint8_t mode) {
  Asks({0x10, 0x80, mode});
  return Serve(Operation::Trailer_ABS_KWP_SwitchDiagMode, HexByte(mode), Reach::kEcu,
               [&] { return simulation_->trailer.Diagnosis().Permit(false); });
}

std::int32_t Link::Trailer_ABS_KWP_StartRoutineByLocId(std::uint8_t id, std::uint8_t count,
                                                       std::uint8_t* data) {
  constexpr std::uint8_t kFinish = 0x05;
  constexpr std::uint8_t kSetPressure = 0x06;
  constexpr std::uint8_t kSelectBrakeMode = 0x37;
  const auto bytes = Bytes(data, count);
  Request request{.operation = Operation::Trailer_ABS_KWP_StartRoutineByLocId, .routine = id};
  Asks({0x31, id}, bytes);
  if (id == kSetPressure && !bytes.empty()) request.channel = bytes[0];
  if (id == kSelectBrakeMode && bytes.size() > 2) request.mode = bytes[2];
  return Serve(request, HexByte(id) + ", " + std::to_string(count) + ", " + HexBytes(bytes),
               Reach::kEcu, [&]() -> Status {
                 Trailer& trailer = simulation_->trailer;
                 if (id == kFinish && simulation_->failures.Strike(FailureMode::kChecksumsFail))
                   return trailer.Diagnosis().Permit(false);
                 return trailer.StartRoutine(id, bytes);
               });
}

std::int32_t Link::Trailer_ABS_KWP_WriteMemoryByLocId(std::uint8_t id, std::uint8_t count,
                                                      std::uint8_t* data) {
  const auto bytes = Bytes(data, count);
  const Request request{.operation = Operation::Trailer_ABS_KWP_WriteMemoryByLocId, .block = id};
  Asks({0x3B, id}, bytes);
  return Serve(request, HexByte(id) + ", " + std::to_string(count) + ", " + HexBytes(bytes),
               Reach::kEcu, [&]() -> Status {
                 FailurePlan& failures = simulation_->failures;
                 if (failures.Strike(FailureMode::kWriteRefused, request)) return kRejected;
                 if (failures.Strike(FailureMode::kWriteDropped, request)) return kDone;
                 return simulation_->trailer.WriteBlock(id, bytes);
               });
}

std::int32_t Link::Trailer_ABS_KWP_WriteMemoryByAddress(std::uint8_t high, std::uint8_t middle,
                                                        std::uint8_t low, std::uint8_t count,
                                                        std::uint8_t* data) {
  const auto bytes = Bytes(data, count);
  const std::uint32_t address = Address(high, middle, low);
  const Request request{.operation = Operation::Trailer_ABS_KWP_WriteMemoryByAddress,
                        .address = address};
  Asks({0x3D, high, middle, low, count}, bytes);
  return Serve(request,
               HexByte(high) + ", " + HexByte(middle) + ", " + HexByte(low) + ", " +
                   std::to_string(count) + ", " + HexBytes(bytes),
               Reach::kEcu, [&] { return simulation_->trailer.WriteWord(address, bytes); });
}

std::int32_t Link::Trailer_ABS_KWP_ReadMemoryByAddress(std::uint8_t high, std::uint8_t middle,
                                                       std::uint8_t low, std::uint8_t* wordHigh,
                                                       std::uint8_t* wordLow) {
  const std::uint32_t address = Address(high, middle, low);
  const Request request{.operation = Operation::Trailer_ABS_KWP_ReadMemoryByAddress,
                        .address = address};
  Asks({0x23, high, middle, low, 2});
  return Serve(request, HexByte(high) + ", " + HexByte(middle) + ", " + HexByte(low), Reach::kEcu,
               [&]() -> Status {
                 FailurePlan& failures = simulation_->failures;
                 if (failures.Strike(FailureMode::kReadRefused, request)) return kRejected;
                 const std::uint16_t word = simulation_->trailer.ReadWord(address);
                 const bool stale = failures.Strike(FailureMode::kAnswerStale, request).has_value();
                 const std::uint16_t told = stale ? last_word_ : word;
                 std::uint8_t bytes[] = {static_cast<std::uint8_t>(told >> 8),
                                         static_cast<std::uint8_t>(told & 0xFF)};
                 if (failures.Strike(FailureMode::kAnswerGarbage, request)) Garble(bytes);
                 last_word_ = word;
                 answered_.assign(std::begin(bytes), std::end(bytes));
                 if (wordHigh != nullptr) *wordHigh = bytes[0];
                 if (wordLow != nullptr) *wordLow = bytes[1];
                 return kDone;
               });
}

std::int32_t Link::Trailer_ABS_KWP_IOControlByLocId(std::uint8_t id, std::uint8_t count,
                                                    std::uint8_t* data) {
  // The buffer takes the answer, which is longer than the request's count.
  constexpr std::size_t kAnswer = 4;
  const Request request{.operation = Operation::Trailer_ABS_KWP_IOControlByLocId};
  Asks({0x30, id}, Bytes(data, count));
  return Serve(request,
               HexByte(id) + ", " + std::to_string(count) + ", " + HexBytes(Bytes(data, count)),
               Reach::kEcu, [&]() -> Status {
                 FailurePlan& failures = simulation_->failures;
                 if (data == nullptr) return kSubfunctionNotSupported;
                 if (failures.Strike(FailureMode::kIoControlShort, request))
                   return simulation_->trailer.Diagnosis().Permit(false);
                 const Status status = simulation_->trailer.IoControl(id, std::span(data, kAnswer));
                 if (const auto failure = failures.Strike(FailureMode::kIoControlStatus, request))
                   return failure->value != 0 ? static_cast<Status>(failure->value) : kNoAnswer;
                 return status;
               });
}

void Link::Garble(std::span<std::uint8_t> bytes) {
  const Noise& noise = simulation_->trailer.Measuring();
  for (std::uint8_t& byte : bytes)
    byte = static_cast<std::uint8_t>(noise.Bits(NoiseField::kGarbage, ++garbled_) & 0xFF);
}

std::int32_t Link::ReadBlock(const Request& request, std::uint8_t* count, std::uint8_t* data) {
  FailurePlan& failures = simulation_->failures;
  const auto id = static_cast<std::uint8_t>(*request.block);
  if (count == nullptr || data == nullptr) return kSubfunctionNotSupported;
  if (failures.Strike(FailureMode::kReadRefused, request)) return kRejected;
  std::uint8_t asked = id;
  if (const auto failure = failures.Strike(FailureMode::kOtherBlock, request))
    asked = failure->value != 0 ? static_cast<std::uint8_t>(failure->value) : kEol7;
  std::vector<std::uint8_t> bytes;
  const Status status = simulation_->trailer.ReadBlock(asked, bytes);
  if (status != kDone) return status;
  const bool stale = failures.Strike(FailureMode::kAnswerStale, request).has_value();
  if (stale) std::swap(bytes, last_block_);
  if (!stale) last_block_ = bytes;
  if (failures.Strike(FailureMode::kAnswerGarbage, request)) Garble(bytes);
  if (const auto failure = failures.Strike(FailureMode::kAnswerShort, request)) {
    const auto wanted = static_cast<std::size_t>(failure->value);
    bytes.resize(std::min(bytes.size(), failure->value != 0 ? wanted : bytes.size() / 2));
  }
  if (failures.Strike(FailureMode::kAnswerLong, request)) bytes.resize(kReadBuffer, 0xEE);
  std::copy(bytes.begin(), bytes.end(), data);
  answered_ = bytes;
  *count = static_cast<std::uint8_t>(std::min<std::size_t>(bytes.size(), 255));
  // The library learns the vehicle from these parameters, too.
  if (bytes == simulation_->trailer.Parameters().Read(kEol1)) writer_.WriteVehicleAndSystem();
  return kDone;
}

std::int32_t Link::Trailer_OVG_ReadDataByLocId(std::uint8_t id, std::uint8_t* count,
                                               std::uint8_t* data) {
  const Request request{.operation = Operation::Trailer_OVG_ReadDataByLocId, .block = id};
  Asks({0x21, id});
  return Serve(request, HexByte(id), Reach::kEcu, [&] { return ReadBlock(request, count, data); });
}

std::int32_t Link::Trailer_OVG_StopLightActivation(std::int32_t trailer, std::int32_t state) {
  Asks({0x31, 0x98, static_cast<std::uint8_t>(trailer), static_cast<std::uint8_t>(state)});
  return Serve(Operation::Trailer_OVG_StopLightActivation,
               std::to_string(trailer) + ", " + std::to_string(state), Reach::kEcu, [&] {
                 simulation_->trailer.ActivateStopLights(trailer, state);
                 return kDone;
               });
}

}  // namespace lorimet::simulator
