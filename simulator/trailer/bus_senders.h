// Who talks on the data link by himself: the trailer's brakes and the towing vehicle.
#pragma once

#include <cstdint>
#include <optional>

#include "simulator/trailer/bus.h"
#include "simulator/trailer/trailer.h"

namespace lorimet::simulator {

constexpr std::uint8_t kTrailerBrakes = 137;
constexpr std::uint8_t kDiagnosticTool = 172;
constexpr std::uint8_t kDataLinkEscape = 254;

class BusSenders {
 public:
  void SetTowingVehicle(bool on) { towing_vehicle_ = on; }
  bool TowingVehicle() const { return towing_vehicle_; }

  // One step of the grid, the `step`th since the world began.
  void Step(std::int64_t step, const Trailer& trailer, Bus& bus);

 private:
  void StepTrailer(std::int64_t step, const Trailer& trailer, Bus& bus);
  void StepPressure(std::int64_t step, const Trailer& trailer, Bus& bus);
  void StepFaults(std::int64_t step, const Trailer& trailer, Bus& bus);
  void StepLamp(const Trailer& trailer, Bus& bus);

  bool towing_vehicle_ = true;
  std::int64_t pressure_sent_ = -1000;  // the steps of the last messages
  std::int64_t status_sent_ = -1000;
  std::int64_t faults_sent_ = 0;
  std::uint8_t pressure_ = 0;  // what they told
  std::uint8_t status_ = 0;
  std::uint64_t faults_ = 0;
  std::optional<bool> lamp_;
};

// One message of a service or its answer; what is longer than a message goes out in several.
void SendEscape(Bus& bus, const Noise& noise, std::uint8_t from, std::uint8_t to,
                std::span<const std::uint8_t> service);

}  // namespace lorimet::simulator
