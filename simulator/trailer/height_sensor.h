// The height sensor of mechanical suspension: counts that follow its lever.
#pragma once

#include <cstdint>
#include <optional>

namespace lorimet::simulator {

class HeightSensor {
 public:
  static constexpr int kHorizontal = 1310;
  static constexpr double kCountsPerDegree = 11.5;
  static constexpr int kCalibrationLow = 1141;  // the range that permits a calibration
  static constexpr int kCalibrationHigh = 1486;

  // Counts that stand whatever the lever does.
  void SetCounts(std::uint16_t counts) {
    counts_ = counts;
    connected_ = true;
  }
  void Disconnect() { connected_ = false; }
  // The lever's angle from the horizontal on the unladen trailer, by hand.
  void SetLever(double degrees) {
    degrees_ = degrees;
    counts_.reset();
    connected_ = true;
  }
  // travel: degrees by which the load has moved the linkage. swing: the noise, -1 to 1. Nothing
  // while there is no sensor.
  std::optional<std::uint16_t> Counts(double travel, double swing) const;

 private:
  std::optional<std::uint16_t> counts_;
  double degrees_ = 0;
  bool connected_ = true;
};

// Degrees that a suspension path turns a lever, both in mm.
double LeverTravel(double path, double lever);

}  // namespace lorimet::simulator
