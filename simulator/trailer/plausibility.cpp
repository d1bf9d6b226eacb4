#include "simulator/trailer/plausibility.h"

#include <algorithm>
#include <map>

#include "simulator/trailer/vehicle_parameters.h"

namespace lorimet::simulator {
namespace {

constexpr int kMaxLoad = 25000;           // kg
constexpr int kMaxSuspensionCount = 125;  // 181 psi
constexpr int kMaxBrakingCount = 100;     // 145 psi

constexpr int k2S2MCode = 0;
constexpr int k4S2MCode = 1;
constexpr int k4S3MCode = 2;
constexpr int k2M1MCode = 3;
constexpr int k2S1MCode = 4;
constexpr int kDrawbar = 1;

bool Outside(int value, int low, int high) { return value < low || value > high; }

struct Judge {
  const ParameterStore& store;
  const TrailerSetup& hardware;
  VehicleParameters vehicle;
  ErrorBytes& errors;

  void SetIf(bool wrong, int byte, int bit) const {
    if (wrong) errors.Set(byte, bit);
  }
  bool TwoSensors() const {
    return vehicle.SystemCode() == k2S2MCode || vehicle.SystemCode() == k2S1MCode;
  }
  int AxlesWith(int sensors) const {
    int count = 0;
    for (int a = 0; a < kAxles; ++a) count += (vehicle.Sensors(a) & sensors) != 0 ? 1 : 0;
    return count;
  }
};

void JudgeAxles(const Judge& j) {
  bool gap = false;
  bool any = false;
  bool missing = false;
  for (int a = 0; a < kAxles; ++a) {
    const int unladen = j.vehicle.UnladenLoad(a);
    const int laden = j.vehicle.LadenLoad(a);
    const bool lifted_cd = j.vehicle.Lift(a) != 0 && (j.vehicle.Sensors(a) & 1) != 0;
    j.SetIf((unladen == 0 && laden > 0) || unladen > laden || lifted_cd, 1, 1 + a);
    if (j.vehicle.HasLoads(a)) {
      any = true;
      gap = gap || missing;
    } else {
      missing = true;
    }
  }
  j.SetIf(!any, 1, 6);
  j.SetIf(gap, 1, 7);
}

void JudgeLoadSensing(const Judge& j) {
  const VehicleParameters& v = j.vehicle;
  if (!v.Mechanical())
    j.SetIf(v.UnladenSuspension() == 0 || v.LadenSuspension() == 0 ||
                v.UnladenSuspension() > v.LadenSuspension(),
            2, 1);
  j.SetIf(v.Control(0) >= v.Control(1) || v.Control(1) >= v.Control(2) ||
              v.LadenBraking(0) > v.LadenBraking(1) || v.LadenBraking(1) > v.LadenBraking(2),
          7, 1);
  j.SetIf(v.UnladenBraking() < v.LadenBraking(0) || v.UnladenBraking() > v.LadenBraking(2), 7, 2);
}

void JudgeSensors(const Judge& j) {
  const int cd = j.AxlesWith(1);
  const int ef = j.AxlesWith(2);
  const int code = j.vehicle.SystemCode();
  j.SetIf(cd == 0, 2, 7);
  j.SetIf(ef > 1 || (j.TwoSensors() && ef > 0) || (code == k4S3MCode && ef == 0), 3, 0);
  const bool drawbar = j.vehicle.VehicleType() == kDrawbar;
  j.SetIf(drawbar && code == k2M1MCode && ef == 0, 4, 3);
  bool sensed_lift = false;
  for (int a = 0; a < kAxles; ++a)
    sensed_lift = sensed_lift || (j.vehicle.Lift(a) != 0 && j.vehicle.Sensors(a) != 0);
  j.SetIf(drawbar && sensed_lift, 15, 6);
}

// What is parametrised against what is built.
void JudgeSystem(const Judge& j) {
  const int code = j.vehicle.SystemCode();
  const bool three_modulators = j.hardware.system == System::k4S3M;
  j.SetIf(j.vehicle.OverturnGuard() && !j.hardware.lateral_sensor, 2, 2);
  j.SetIf(code == k4S3MCode && !three_modulators, 4, 2);
  j.SetIf(code == k4S2MCode && three_modulators, 6, 6);
  j.SetIf(code == k2M1MCode && three_modulators, 6, 7);
  if (j.TwoSensors() && FactsOf(j.hardware.system).sensors == 4) {
    j.errors.Set(15, 4);
    j.errors.Set(15, 5);
  }
}

void JudgeRanges(const Judge& j) {
  const VehicleParameters& v = j.vehicle;
  bool system = v.VehicleType() > 2;
  if (v.Mechanical())
    system = system || Outside(v.LeverLength(), 500, 2000) || Outside(v.LadenPath(), 100, 4000);
  else
    system = system || v.UnladenSuspension() > kMaxSuspensionCount ||
             v.LadenSuspension() > kMaxSuspensionCount;
  j.SetIf(system, 13, 6);

  constexpr std::pair<int, int> kAxleSections[kAxles] = {{13, 7}, {14, 0}, {14, 1}};
  for (int a = 0; a < kAxles; ++a) {
    const int lift = v.Lift(a);
    j.SetIf(v.UnladenLoad(a) > kMaxLoad || v.LadenLoad(a) > kMaxLoad ||
                (lift != 0 && lift != 1 && lift != 3),
            kAxleSections[a].first, kAxleSections[a].second);
  }

  bool braking = v.UnladenBraking() > kMaxBrakingCount;
  for (int point = 0; point < 3; ++point)
    braking =
        braking || v.Control(point) > kMaxBrakingCount || v.LadenBraking(point) > kMaxBrakingCount;
  j.SetIf(braking, 14, 4);
  j.SetIf((j.store.Byte(kEol2, 4) & 3) > 1, 14, 7);
}

void JudgeTyres(const Judge& j) {
  bool range = j.vehicle.SystemCode() > k2S1MCode;
  bool ratio = false;
  for (int pair = 0; pair < (j.TwoSensors() ? 1 : 2); ++pair) {
    const int circumference = j.vehicle.Circumference(pair);
    const int teeth = j.vehicle.Teeth(pair);
    range = range || Outside(circumference, 1200, 5200) || Outside(teeth, 50, 130);
    // Millimetres that the wheel rolls from tooth to tooth.
    ratio = ratio || circumference < 23 * teeth || circumference > 39 * teeth;
  }
  j.SetIf(range, 14, 5);
  j.SetIf(ratio, 15, 7);
}

// 0 and 255 assign no pin; the pin of index 20 is meant to be shared.
void JudgePins(const Judge& j) {
  constexpr int kSharedOutput = 20;
  std::map<std::uint8_t, int> uses;
  for (int i = 1; i <= FindBlock(kEol5)->size; ++i)
    if (i != kSharedOutput) ++uses[j.store.Byte(kEol5, i)];
  uses.erase(0);
  uses.erase(255);
  j.SetIf(std::any_of(uses.begin(), uses.end(), [](const auto& use) { return use.second > 1; }), 13,
          1);
}

void JudgeFunctions(const Judge& j) {
  if (j.store.Byte(kEol3, 3) == 1) {
    const int on = j.store.Byte(kEol3, 1);
    const int off = j.store.Byte(kEol3, 2);
    j.SetIf(Outside(on, 2, 100) || Outside(off, 0, 100) || on - off < 2, 16, 1);
  }
  bool lift_axle = false;
  for (int a = 0; a < kAxles; ++a) lift_axle = lift_axle || j.vehicle.Lift(a) != 0;
  const bool lift_function =
      j.store.Byte(kFcf3, 1) != 0 && j.vehicle.Text(kFcf3, 51, 20).starts_with("Lift Axle");
  j.SetIf(lift_function && !lift_axle, 19, 3);
}

void JudgeChecksums(const Judge& j) {
  for (const BlockFacts& block : kBlocks)
    j.SetIf(!j.store.ChecksumRight(block.id), block.checksum_byte, block.checksum_bit);
}

}  // namespace

ErrorBytes JudgeParameters(const ParameterStore& store, const TrailerSetup& hardware) {
  ErrorBytes errors;
  const Judge judge{store, hardware, VehicleParameters(store), errors};
  JudgeAxles(judge);
  JudgeLoadSensing(judge);
  JudgeSensors(judge);
  JudgeSystem(judge);
  JudgeRanges(judge);
  JudgeTyres(judge);
  JudgePins(judge);
  JudgeFunctions(judge);
  JudgeChecksums(judge);
  return errors;
}

}  // namespace lorimet::simulator
