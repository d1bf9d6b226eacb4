// The simulated trailer in the library that the program loads: its time, its yard.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "simulator/operator/screen.h"

namespace lorimet {

class SimulatedTrailer : public simulator::Yard {
 public:
  // What is wrong goes to `on_failure`, which does not return: a library that cannot be loaded or
  // is no simulated trailer, a command that it refuses.
  explicit SimulatedTrailer(std::function<void(const std::string&)> on_failure)
      : on_failure_(std::move(on_failure)) {}
  SimulatedTrailer(const SimulatedTrailer&) = delete;
  SimulatedTrailer& operator=(const SimulatedTrailer&) = delete;
  ~SimulatedTrailer() override;

  // Loads the library and takes its time over; it stays loaded. `socket` is where it listens.
  void Load(const std::string& library, const std::string& socket);
  void Advance(std::int32_t milliseconds) { advance_(milliseconds); }

  void Do(const std::string& command) override { Ask(command); }
  std::string See(const std::string& name) override { return Ask("get " + name); }

 private:
  std::string Ask(const std::string& line);
  std::string Answer();

  std::function<void(const std::string&)> on_failure_;
  void (*advance_)(std::int32_t milliseconds) = nullptr;
  int socket_ = -1;
};

}  // namespace lorimet
