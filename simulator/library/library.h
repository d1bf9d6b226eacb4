// The link library as it is loaded: one Link in real time, on a thread of its own.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <thread>
#include <vector>

#include "simulator/library/control_socket.h"
#include "simulator/library/files.h"
#include "simulator/library/link.h"
#include "simulator/library/status_channel.h"

namespace lorimet::simulator {

class Library {
 public:
  // Reads the scenario and the state that the environment names, and starts the trailer's time.
  Library();
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  // Ends the thread and keeps the state.
  ~Library();

  // Lets so much of the trailer's time pass, and takes in what has been commanded. From the first
  // call on no other time passes.
  void Advance(double seconds);

  // Runs an operation. Once the call that ends a connection has returned, nothing is posted or
  // written any more.
  template <typename Call>
  std::int32_t Do(Call call) {
    std::unique_lock lock(mutex_);
    const bool was_connected = link_.Connected();
    if (!was_connected) PollControl();
    calling_ = &lock;
    const std::int32_t result = call(link_);
    calling_ = nullptr;
    KeepState();
    if (link_.Connected() != was_connected) SwitchChannel();
    return result;
  }

 private:
  using TimePoint = std::chrono::steady_clock::time_point;

  static constexpr std::chrono::milliseconds kTick{20};
  static constexpr std::chrono::milliseconds kControlPeriod{50};

  void Loop();
  void Tick(TimePoint now);  // with the mutex held, as what follows
  void Wait(double seconds);
  void Pass(double seconds);
  void SwitchChannel();
  void PollControl();
  CommandAnswer Run(const std::string& line);
  CommandAnswer Report();
  void KeepState();

  std::mutex mutex_;
  std::condition_variable wake_;
  bool ending_ = false;
  bool is_driven_ = false;  // the trailer's time passes by Advance alone
  std::thread thread_;
  std::unique_lock<std::mutex>* calling_ = nullptr;  // of the operation that runs

  std::filesystem::path scenario_path_ = ScenarioPath();
  std::filesystem::path state_path_ = StatePath();
  ControlFile control_{ControlPath()};
  ControlSocket socket_{ControlSocketPath()};
  Link link_;
  StatusChannel channel_;
  std::vector<std::int32_t> posted_;  // waits for the thread to send it
  std::uint64_t kept_revision_ = 0;
  TimePoint last_tick_;
  TimePoint last_control_;
};

}  // namespace lorimet::simulator
