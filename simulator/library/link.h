// The link library without a thread: every operation as a method over the simulated trailer, in
// virtual time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "session/ecu_data.h"
#include "simulator/library/bus_monitor.h"
#include "simulator/library/data_log.h"
#include "simulator/library/eeprom_upload.h"
#include "simulator/library/record_writer.h"
#include "simulator/library/recorder_export.h"
#include "simulator/trailer/fault_store.h"
#include "simulator/trailer/scenario.h"

namespace lorimet::simulator {

class Link {
 public:
  using StatusSink = std::function<void(std::int32_t)>;
  // Lets `seconds` pass while an operation does not answer.
  using Waiter = std::function<void(double)>;

  static constexpr double kReadingSeconds = 0.1;          // from reading to reading
  static constexpr double kTransferReadingSeconds = 0.5;  // the same during a transfer
  static constexpr double kFirstReadingSeconds = 0.2;
  static constexpr double kSilenceSeconds = 1.0;  // until, and between, link errors
  static constexpr double kHealthySeconds = 1.0;  // between statuses of 0
  static constexpr double kStaticReadSeconds = 0.8;
  static constexpr double kStaticGiveUpSeconds = 5;  // with an ECU that stays silent
  static constexpr double kRepublishSeconds = 0.5;   // from the ECU's return to its test points
  // How long the silence of an ECU that the library itself has reset is no link error.
  static constexpr double kResetSilenceSeconds = 5;

  // scenario: the text of a scenario file, empty for the default trailer. In a broken one the
  // default trailer stands, and Connect answers kScenarioBroken.
  explicit Link(std::string_view scenario = {}, StatusSink sink = {});

  void SetStatusSink(StatusSink sink) { sink_ = std::move(sink); }
  // The moment that a data log tells at its head, "2026-11-22 02:30:00"; by default a day on which
  // the world began.
  void SetCalendar(std::function<std::string()> calendar) { calendar_ = std::move(calendar); }
  // By default an operation that does not answer lets virtual time pass.
  void SetWaiter(Waiter waiter) { waiter_ = std::move(waiter); }
  // Everything happens on a grid of 10 ms; what is less is carried over.
  void Advance(double seconds);

  // One line of the command language: what it tells, or what is wrong with it.
  Seen Ask(std::string_view line);
  // The result is empty or says what is wrong.
  std::string Command(std::string_view line) { return Ask(line).error; }
  // What `get` tells; empty for a name that it does not know.
  std::string Get(std::string_view name) { return Ask("get " + std::string(name)).value; }
  // What was wrong with commands that had waited, since it was last asked for.
  std::vector<std::string> TakeComplaints();
  const std::string& ScenarioError() const { return scenario_error_; }
  // A scenario that could not be found or read.
  void SetScenarioError(const std::string& error) { scenario_error_ = error; }

  Simulation& World() { return *simulation_; }
  Trailer& TheTrailer() { return simulation_->trailer; }
  FailurePlan& Failures() { return simulation_->failures; }
  RequestLog& Log() { return simulation_->log; }
  int Requests(std::string_view operation) const { return simulation_->log.Requests(operation); }
  bool Connected() const { return simulation_->connected; }
  // Where the statuses of the connection go: the window, or the pipe, given to Connect.
  std::uint32_t Handle() const { return handle_; }
  bool Attained() const { return attained_; }

  // What outlives the trailer's power, as text.
  std::string State() const;
  bool Restore(std::string_view state);
  std::uint64_t StateRevision() const { return simulation_->trailer.Revision(); }

  // The operations, as the contract tells them. Without a connection they answer kInvalidClient,
  // but for Connect, GetErrorText and FaultGetCount, whose answer is no status.
  std::int32_t Connect(char* protocol, std::uint32_t hWnd, char* vendor, std::int32_t deviceId,
                       std::int32_t family, std::uint8_t* before2, std::uint8_t* before1,
                       void* linkStatus, void* ecuData, std::uint8_t* after1, std::uint8_t* after2,
                       std::uint8_t* after3, std::uint32_t* afterWord);
  std::int32_t Disconnect();
  std::int32_t GetErrorText(std::int32_t code, char* buffer, std::int32_t length);
  std::int32_t ResetECU();
  std::int32_t ClearAllFaults();
  std::int32_t FaultLock();
  std::int32_t FaultGetCount();
  std::int32_t FaultGetData(void* firstRecord);
  std::int32_t FaultUnlock();
  std::int32_t BusMonitorOpen();
  std::int32_t BusMonitorClose();
  std::int32_t BusMonitorGetData(char* text, char* timing, std::int32_t showIdleTime,
                                 std::int32_t showTimestamp);
  std::int32_t BusMonitorStartRecord(char* file, char* comments, std::int32_t zero);
  std::int32_t BusMonitorStopRecord();
  std::int32_t Trailer_ABS_QOR_ReadStaticData();
  std::int32_t Trailer_ABS_QOR_DeleteODRData(std::uint8_t selector);
  std::int32_t Trailer_ABS_KWP_StartSession(std::uint8_t session);
  std::int32_t Trailer_ABS_KWP_StopSession();
  std::int32_t Trailer_ABS_KWP_Password();
  std::int32_t Trailer_ABS_KWP_SwitchDiagMode(std::uint8_t mode);
  std::int32_t Trailer_ABS_KWP_StartRoutineByLocId(std::uint8_t id, std::uint8_t count,
                                                   std::uint8_t* data);
  std::int32_t Trailer_ABS_KWP_WriteMemoryByLocId(std::uint8_t id, std::uint8_t count,
                                                  std::uint8_t* data);
  std::int32_t Trailer_ABS_KWP_WriteMemoryByAddress(std::uint8_t high, std::uint8_t middle,
                                                    std::uint8_t low, std::uint8_t count,
                                                    std::uint8_t* data);
  std::int32_t Trailer_ABS_KWP_ReadMemoryByAddress(std::uint8_t high, std::uint8_t middle,
                                                   std::uint8_t low, std::uint8_t* wordHigh,
                                                   std::uint8_t* wordLow);
  std::int32_t Trailer_ABS_KWP_IOControlByLocId(std::uint8_t id, std::uint8_t count,
                                                std::uint8_t* data);
  std::int32_t Trailer_OVG_ReadDataByLocId(std::uint8_t id, std::uint8_t* count,
                                           std::uint8_t* data);
  std::int32_t Trailer_OVG_UploadData(char* text);
  std::int32_t Trailer_OVG_UploadODRData(std::uint8_t step, std::uint8_t code, std::int32_t zero);
  std::int32_t Trailer_OVG_ExportODRData(char* file);
  std::int32_t Trailer_OVG_StopLightActivation(std::int32_t trailer, std::int32_t state);

 private:
  Link(std::string_view scenario, ScenarioResult built, StatusSink sink);

  static constexpr std::string_view kAbortUpload = "Abort";

  enum class Reach { kLibrary, kEcu };  // whether a service needs the ECU's answer

  // Notes a request and lets what is armed against every kind of operation strike; the answer to
  // give in its place, or nothing. `silent` is the answer of one that never comes.
  std::optional<std::int32_t> Disturb(const Request& request, const std::string& arguments,
                                      std::int32_t silent);
  // Runs a service with everything that can go wrong around it.
  template <typename Service>
  std::int32_t Serve(const Request& request, const std::string& arguments, Reach reach,
                     Service service);
  template <typename Service>
  std::int32_t Answer(const Request& request, const std::string& arguments, Reach reach,
                      Service service);
  template <typename Service>
  std::int32_t Serve(Operation operation, const std::string& arguments, Reach reach,
                     Service service) {
    return Serve(Request{.operation = operation}, arguments, reach, service);
  }
  std::int32_t AdapterError(const char* protocol, const char* vendor, std::int32_t device);
  // The bytes that the next service has on the bus; data is what follows its head.
  void Asks(std::initializer_list<std::uint8_t> head, std::span<const std::uint8_t> data = {});
  void Exchange(std::int32_t status);
  bool ExchangeReading();
  void LoseMessage();
  std::string SpoilText(std::string text);
  std::string Moment() const;
  Status StartRecord(char* file, char* comments);
  std::int32_t ReadBlock(const Request& request, std::uint8_t* count, std::uint8_t* data);
  void Garble(std::span<std::uint8_t> bytes);
  bool Reachable() const;
  void Post(std::int32_t status);
  void Step();
  void StepBus();
  void StepReading();
  void Read();
  void StepVehicle();
  void StepStatuses();
  void StepStaticRead();
  void EndStuckRead();
  void TakeNextScenario();
  Status Upload(std::string_view text);
  Status Export(std::string_view path);
  void StepTransfers();
  void StepUpload();
  void StepExport();
  void EndTransfers();

  std::string scenario_;
  std::string scenario_error_;
  std::unique_ptr<Simulation> simulation_;
  StatusSink sink_;
  Waiter waiter_;
  RecordWriter writer_;
  BusMonitorQueue monitor_;
  DataLog log_;
  std::function<std::string()> calendar_;
  std::vector<std::uint8_t> asked_;     // of a service, as on the bus
  std::vector<std::uint8_t> answered_;  // what its answer carries
  EepromUpload upload_;
  RecorderExport export_;

  bool attained_ = false;
  std::uint32_t handle_ = 0;
  LinkStatus* link_status_ = nullptr;
  std::int64_t carried_ = 0;  // microseconds, as all that follow
  std::int64_t connected_for_ = 0;
  std::int64_t until_reading_ = 0;
  std::int64_t silence_ = 0;
  std::int64_t until_link_error_ = 0;
  std::int64_t until_healthy_ = 0;
  std::int64_t until_lost_ = 0;  // until another lost message may be told
  std::int64_t forgiven_ = 0;    // of a silence that the library has caused
  std::int64_t until_vehicle_ = 0;
  bool vehicle_due_ = false;  // the ECU has started anew since its vehicle was told
  bool static_known_ = false;
  bool reading_job_ = false;
  std::int64_t job_left_ = 0;
  std::int64_t job_gives_up_in_ = 0;
  std::vector<std::uint8_t> last_block_;  // the answers before, for an ECU that repeats itself
  std::uint16_t last_word_ = 0;
  std::uint64_t garbled_ = 0;
  std::uint64_t flooded_ = 0;

  bool fault_locked_ = false;
  std::vector<Fault> locked_faults_;  // as they were at the lock
  std::size_t told_faults_ = 0;       // records that the caller has made room for
};

}  // namespace lorimet::simulator
