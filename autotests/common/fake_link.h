// A link library for the tests: records every call and answers what it is told to.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "session/link_library.h"

namespace lorimet::testing_support {

class FakeLink : public LinkLibrary {
 public:
  // "StartSession 83", in order.
  std::vector<std::string> calls;
  // The same with the sleeps of a SequenceClock among them, "sleep 1500", for waits whose place in
  // the sequence matters.
  std::vector<std::string> sequence;
  // Answers by operation, used up one by one; then 0.
  std::map<std::string, std::deque<std::int32_t>> answers;
  // Answers that stay.
  std::map<std::string, std::int32_t> always;
  // What GetErrorText writes; nothing leaves the buffer as it is.
  std::function<void(std::int32_t code, char* buffer, std::int32_t length)> error_text;
  // Fills an answer by local id: gives the bytes, index 0 included.
  std::function<std::int32_t(std::uint8_t id, std::uint8_t* count, std::uint8_t* data)> read_block;
  // What happens while a call runs, by its entry in `calls`.
  std::function<void(const std::string& call)> on_call;
  std::deque<std::string> bus_messages;  // that the monitor gets, one a call
  std::function<void()> on_connect;
  std::function<void()> on_disconnect;
  std::function<void()> on_static_read;
  std::function<void(void* first)> fault_data;
  std::function<std::int32_t(int address, std::uint8_t* high, std::uint8_t* low)> read_word;
  // Writes the answer of an input or output over the request.
  std::function<void(std::uint8_t id, std::uint8_t* data)> io_control;

  // The arguments of the last Connect.
  std::string protocol, vendor;
  std::int32_t device_id = 0;
  std::int32_t family = 0;
  std::uint32_t window = 0;
  void* ecu_data = nullptr;
  void* link_status = nullptr;
  std::vector<void*> variables;
  // What Connect writes back into the two texts; empty leaves them. A text of the buffers' whole
  // size leaves no room for its terminator.
  std::string protocol_out, vendor_out;
  // What ExportODRData writes back into its path; empty leaves it.
  std::string export_out;
  static constexpr std::size_t kTextBufferSize = 1024;

  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }
  std::vector<std::string> TakeSequence() { return std::exchange(sequence, {}); }

  std::int32_t Connect(char* p, std::uint32_t hWnd, char* v, std::int32_t deviceId,
                       std::int32_t ecu_family, std::uint8_t* before2, std::uint8_t* before1,
                       void* status, void* ecu, std::uint8_t* after1, std::uint8_t* after2,
                       std::uint8_t* after3, std::uint32_t* afterWord) override {
    protocol = p;
    vendor = v;
    device_id = deviceId;
    family = ecu_family;
    window = hWnd;
    ecu_data = ecu;
    link_status = status;
    variables = {before2, before1, after1, after2, after3, afterWord};
    WriteBack(protocol_out, p);
    WriteBack(vendor_out, v);
    if (on_connect) on_connect();
    return Answer("Connect");
  }
  std::int32_t Disconnect() override {
    if (on_disconnect) on_disconnect();
    return Answer("Disconnect");
  }
  std::int32_t GetErrorText(std::int32_t code, char* buffer, std::int32_t length) override {
    if (error_text) error_text(code, buffer, length);
    return Answer("GetErrorText", std::to_string(code) + " " + std::to_string(length));
  }
  std::int32_t ResetECU() override { return Answer("ResetECU"); }
  std::int32_t ClearAllFaults() override { return Answer("ClearAllFaults"); }
  std::int32_t FaultLock() override { return Answer("FaultLock"); }
  std::int32_t FaultGetCount() override { return Answer("FaultGetCount"); }
  std::int32_t FaultGetData(void* first) override {
    if (fault_data) fault_data(first);
    return Answer("FaultGetData");
  }
  std::int32_t FaultUnlock() override { return Answer("FaultUnlock"); }
  std::int32_t BusMonitorOpen() override { return Answer("BusMonitorOpen"); }
  std::int32_t BusMonitorClose() override { return Answer("BusMonitorClose"); }
  std::int32_t BusMonitorGetData(char* text, char*, std::int32_t, std::int32_t) override {
    if (bus_messages.empty()) return Answer("BusMonitorGetData");
    std::memcpy(text, bus_messages.front().data(), bus_messages.front().size());
    bus_messages.pop_front();
    return 0;
  }
  std::int32_t BusMonitorStartRecord(char* file, char* comments, std::int32_t zero) override {
    return Answer("BusMonitorStartRecord",
                  std::string(file) + "|" + comments + "|" + std::to_string(zero));
  }
  std::int32_t BusMonitorStopRecord() override { return Answer("BusMonitorStopRecord"); }
  std::int32_t Trailer_ABS_QOR_ReadStaticData() override {
    if (on_static_read) on_static_read();
    return Answer("ReadStaticData");
  }
  std::int32_t Trailer_ABS_QOR_DeleteODRData(std::uint8_t selector) override {
    return Answer("DeleteODRData", Hex(&selector, 1));
  }
  std::int32_t Trailer_ABS_KWP_StartSession(std::uint8_t session) override {
    return Answer("StartSession", Hex(&session, 1));
  }
  std::int32_t Trailer_ABS_KWP_StopSession() override { return Answer("StopSession"); }
  std::int32_t Trailer_ABS_KWP_Password() override { return Answer("Password"); }
  std::int32_t Trailer_ABS_KWP_SwitchDiagMode(std::uint8_t mode) override {
    return Answer("SwitchDiagMode", Hex(&mode, 1));
  }
  std::int32_t Trailer_ABS_KWP_StartRoutineByLocId(std::uint8_t id, std::uint8_t count,
                                                   std::uint8_t* data) override {
    return Answer("StartRoutine", Hex(&id, 1) + ":" + Hex(data, count));
  }
  std::int32_t Trailer_ABS_KWP_WriteMemoryByLocId(std::uint8_t id, std::uint8_t count,
                                                  std::uint8_t* data) override {
    written[id].assign(data, data + count);
    return Answer("WriteMemory", Hex(&id, 1) + ":" + std::to_string(count));
  }
  std::int32_t Trailer_ABS_KWP_WriteMemoryByAddress(std::uint8_t, std::uint8_t, std::uint8_t,
                                                    std::uint8_t, std::uint8_t*) override {
    return Answer("WriteMemoryByAddress");
  }
  std::int32_t Trailer_ABS_KWP_ReadMemoryByAddress(std::uint8_t high, std::uint8_t middle,
                                                   std::uint8_t low, std::uint8_t* word_high,
                                                   std::uint8_t* word_low) override {
    const std::uint8_t address[] = {high, middle, low};
    if (read_word) read_word(high << 16 | middle << 8 | low, word_high, word_low);
    return Answer("ReadMemory", Hex(address, 3));
  }
  std::int32_t Trailer_ABS_KWP_IOControlByLocId(std::uint8_t id, std::uint8_t count,
                                                std::uint8_t* data) override {
    const std::string request = Hex(&id, 1) + ":" + Hex(data, count);
    if (io_control) io_control(id, data);
    return Answer("IOControl", request);
  }
  std::int32_t Trailer_OVG_ReadDataByLocId(std::uint8_t id, std::uint8_t* count,
                                           std::uint8_t* data) override {
    const std::string arguments = Hex(&id, 1);
    if (read_block) {
      Note("ReadData " + arguments);
      return read_block(id, count, data);
    }
    return Answer("ReadData", arguments);
  }
  std::int32_t Trailer_OVG_UploadData(char* text) override { return Answer("UploadData", text); }
  std::int32_t Trailer_OVG_UploadODRData(std::uint8_t step, std::uint8_t code,
                                         std::int32_t zero) override {
    const std::uint8_t bytes[] = {step, code};
    return Answer("UploadODRData", Hex(bytes, 2) + " " + std::to_string(zero));
  }
  std::int32_t Trailer_OVG_ExportODRData(char* file) override {
    const std::string path = file;
    WriteBack(export_out, file);
    return Answer("ExportODRData", path);
  }
  std::int32_t Trailer_OVG_StopLightActivation(std::int32_t trailer, std::int32_t state) override {
    return Answer("StopLightActivation", std::to_string(trailer) + " " + std::to_string(state));
  }

  // The bytes last written by local id.
  std::map<int, std::vector<std::uint8_t>> written;

 private:
  static std::string Hex(const std::uint8_t* bytes, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
      char buffer[4];
      std::snprintf(buffer, sizeof buffer, "%02X", bytes[i]);
      text += buffer;
    }
    return text;
  }

  static void WriteBack(const std::string& text, char* buffer) {
    if (text.empty()) return;
    std::memcpy(buffer, text.c_str(), std::min(text.size() + 1, kTextBufferSize));
  }

  void Note(const std::string& call) {
    calls.push_back(call);
    sequence.push_back(call);
  }

  std::int32_t Answer(const std::string& operation, const std::string& arguments = {}) {
    const std::string call = arguments.empty() ? operation : operation + " " + arguments;
    Note(call);
    if (on_call) on_call(call);
    auto& queue = answers[operation];
    if (!queue.empty()) {
      const std::int32_t answer = queue.front();
      queue.pop_front();
      return answer;
    }
    const auto fixed = always.find(operation);
    return fixed == always.end() ? 0 : fixed->second;
  }
};

// Notes its sleeps in the sequence of a link.
class SequenceClock : public VirtualClock {
 public:
  explicit SequenceClock(FakeLink& link) : link_(link) {}
  void Sleep(std::uint32_t milliseconds) override {
    link_.sequence.push_back("sleep " + std::to_string(milliseconds));
    VirtualClock::Sleep(milliseconds);
  }

 private:
  FakeLink& link_;
};

}  // namespace lorimet::testing_support
