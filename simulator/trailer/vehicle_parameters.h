// The vehicle as its parameters tell it: the one place that knows which byte means what.
#pragma once

#include <string>

#include "simulator/trailer/parameter_store.h"

namespace lorimet::simulator {

constexpr double kPsiPerCount = 1.451;  // a pressure byte counts 0.1 bar
constexpr int kAxles = 3;               // axle records

class VehicleParameters {
 public:
  explicit VehicleParameters(const ParameterStore& store) : store_(store) {}

  int VehicleType() const { return Vehicle(1) & 3; }
  int SystemCode() const { return Vehicle(1) >> 2 & 7; }
  bool Mechanical() const { return (Vehicle(1) & 0x20) != 0; }
  bool RearMounted() const { return (Vehicle(1) & 0x80) != 0; }

  // Axle a from 0 to 2; loads in kg.
  int UnladenLoad(int a) const { return Pair(3 + 6 * a); }
  int LadenLoad(int a) const { return Pair(5 + 6 * a); }
  int Lift(int a) const { return Vehicle(7 + 6 * a) & 7; }  // 0 none, 1 and 3 the lift axles
  bool Flag(int a) const { return (Vehicle(7 + 6 * a) & 8) != 0; }
  int Sensors(int a) const { return Vehicle(7 + 6 * a) >> 4 & 3; }  // 1 c-d, 2 e-f, 3 both
  bool HasLoads(int a) const { return UnladenLoad(a) != 0 || LadenLoad(a) != 0; }
  int AxleCount() const {
    int count = 0;
    for (int a = 0; a < kAxles; ++a) count += HasLoads(a) ? 1 : 0;
    return count;
  }

  // Pressures in counts of 0.1 bar.
  int UnladenSuspension() const { return Vehicle(33); }
  int LadenSuspension() const { return Vehicle(34); }
  int Control(int point) const { return Vehicle(point == 0 ? 38 : point == 1 ? 39 : 41); }
  int LadenBraking(int point) const { return Vehicle(point == 0 ? 42 : point == 1 ? 43 : 45); }
  int UnladenBraking() const { return Vehicle(46); }

  // Pair 0 is c-d, 1 is e-f; circumference in mm.
  int Circumference(int pair) const { return Vehicle(55 + pair) * 25; }
  int Teeth(int pair) const { return Vehicle(58 + pair); }

  int LeverLength() const { return Pair(64); }  // 0.1 mm
  int LadenPath() const { return Pair(68); }    // 0.1 mm

  bool OverturnGuard() const { return (store_.Byte(kEol2, 5) & 0x80) != 0; }
  std::string VehicleId() const { return Text(kEol7, 4, 18); }
  std::string Manufacturer() const { return Text(kEol7, 22, 20); }
  std::string TrailerType() const { return Text(kEol7, 42, 20); }

  std::string Text(std::uint8_t id, int index, int width) const {
    std::string text;
    for (int i = 0; i < width; ++i) text += static_cast<char>(store_.Byte(id, index + i));
    return text;
  }

 private:
  int Vehicle(int index) const { return store_.Byte(kEol1, index); }
  int Pair(int index) const { return Vehicle(index) * 256 + Vehicle(index + 1); }

  const ParameterStore& store_;
};

}  // namespace lorimet::simulator
