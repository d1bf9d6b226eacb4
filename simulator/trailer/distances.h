// Odometer, trip and the distance to the next service, in km.
#pragma once

namespace lorimet::simulator {

struct Distances {
  double odometer = 84213.6;
  double trip = 412.3;
  double next_service = 15786.0;

  void Advance(double seconds, double mph) {
    const double km = mph * 1.609 * seconds / 3600;
    odometer += km;
    trip += km;
    next_service -= km;
  }
};

}  // namespace lorimet::simulator
