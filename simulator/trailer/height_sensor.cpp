#include "simulator/trailer/height_sensor.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lorimet::simulator {

std::optional<std::uint16_t> HeightSensor::Counts(double travel, double swing) const {
  if (!connected_) return std::nullopt;
  if (counts_) return counts_;
  const double counts = kHorizontal + (degrees_ + travel) * kCountsPerDegree + swing;
  return static_cast<std::uint16_t>(std::clamp(std::round(counts), 0.0, 65534.0));
}

double LeverTravel(double path, double lever) {
  if (lever <= 0) return 0;
  return std::asin(std::clamp(path / lever, -1.0, 1.0)) * 180 / std::numbers::pi;
}

}  // namespace lorimet::simulator
