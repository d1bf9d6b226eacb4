#include "simulator/trailer/bus_senders.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lorimet::simulator {
namespace {

constexpr std::uint8_t kEngine = 128;
constexpr std::uint8_t kTractorBrakes = 136;
constexpr std::uint8_t kInstruments = 140;
constexpr std::uint8_t kLampOn = 10;
constexpr std::uint8_t kLampOff = 11;

// Parameters. Below 128 they have one byte, below 192 two, from there a count stands in front.
constexpr std::uint8_t kRoadSpeed = 84;
constexpr std::uint8_t kThrottle = 91;
constexpr std::uint8_t kFuelLevel = 96;
constexpr std::uint8_t kOilPressure = 100;
constexpr std::uint8_t kCoolant = 110;
constexpr std::uint8_t kApplicationPressure = 116;
constexpr std::uint8_t kSupplyPressure = 117;
constexpr std::uint8_t kBrakeSwitch = 65;
constexpr std::uint8_t kTractorAbs = 49;
constexpr std::uint8_t kVolts = 168;
constexpr std::uint8_t kEngineSpeed = 190;
constexpr std::uint8_t kFaultCodes = 194;
constexpr std::uint8_t kTrailerAbs = 209;
constexpr std::uint8_t kDistance = 245;

constexpr double kPressureUnit = 0.6;  // psi
constexpr double kVoltsUnit = 0.05;
constexpr double kSpeedUnit = 0.5;       // mph
constexpr double kDistanceUnit = 0.161;  // km
constexpr double kEngineUnit = 0.25;     // revolutions a minute
constexpr double kPedalPressed = 4;      // psi at which the brake switch closes

constexpr int kSecond = StepsIn(1);
constexpr int kTenth = StepsIn(0.1);
constexpr int kFaultsPeriod = StepsIn(15);
constexpr std::size_t kMostFaults = 8;  // in one message

// Cut towards 0 and at the ends of 32 bits.
std::uint32_t Counts(double value, double unit) {
  return static_cast<std::uint32_t>(std::clamp(value / unit + 1e-9, 0.0, 4294967295.0));
}
std::uint8_t Byte(double value, double unit) {
  return static_cast<std::uint8_t>(std::min(Counts(value, unit), 255u));
}

double EngineSpeed(const Trailer& trailer) { return 650 + 22 * trailer.Road().Speed(); }

// What a sender tells again and again.
struct Periodic {
  std::uint8_t sender;
  std::uint8_t parameter;
  int steps;
  int priority;
  double unit;
  double (*value)(const Trailer&);
};

#define LORIMET32_TELLS(expression) \
  []([[maybe_unused]] const Trailer& t) -> double { return expression; }

constexpr Periodic kTrailerRows[] = {
    {kTrailerBrakes, kSupplyPressure, kSecond, 6, kPressureUnit,
     LORIMET32_TELLS(t.Supply().Pressure())},
    {kTrailerBrakes, kVolts, kSecond, 7, kVoltsUnit, LORIMET32_TELLS(t.Electric().Volts())},
    {kTrailerBrakes, kDistance, 10 * kSecond, 8, kDistanceUnit,
     LORIMET32_TELLS(t.Distance().odometer)},
};

constexpr Periodic kTowingRows[] = {
    {kEngine, kRoadSpeed, kTenth, 4, kSpeedUnit, LORIMET32_TELLS(t.Road().Speed())},
    {kEngine, kEngineSpeed, kTenth, 4, kEngineUnit, LORIMET32_TELLS(EngineSpeed(t))},
    {kEngine, kThrottle, kSecond, 5, 0.4, LORIMET32_TELLS(t.Road().Speed() > 0 ? 30 : 0)},
    {kEngine, kOilPressure, kSecond, 7, 0.5, LORIMET32_TELLS(EngineSpeed(t) / 40)},
    {kEngine, kCoolant, kSecond, 8, 1, LORIMET32_TELLS(t.Powered() ? 185 : 180)},
    {kEngine, kVolts, kSecond, 8, kVoltsUnit, LORIMET32_TELLS(t.Electric().Volts())},
    {kTractorBrakes, kTractorAbs, kSecond, 6, 1, LORIMET32_TELLS(t.Road().Speed() > 0 ? 1 : 0)},
    {kTractorBrakes, kBrakeSwitch, kSecond, 6, 1,
     LORIMET32_TELLS(t.Line().Pressure() > kPedalPressed ? 1 : 0)},
    {kInstruments, kFuelLevel, 10 * kSecond, 8, 0.5, LORIMET32_TELLS(62)},
    {kInstruments, kDistance, 10 * kSecond, 8, kDistanceUnit,
     LORIMET32_TELLS(1000 + t.Distance().odometer)},
};
#undef LORIMET32_TELLS

BusMessage MessageOf(const Periodic& row, const Trailer& trailer) {
  const std::uint32_t counts = Counts(row.value(trailer), row.unit);
  const auto byte = [counts](int shift) { return static_cast<std::uint8_t>(counts >> shift); };
  if (row.parameter < 128)
    return MakeMessage(row.priority, {row.sender, row.parameter,
                                      static_cast<std::uint8_t>(std::min(counts, 255u))});
  if (row.parameter < 192)
    return MakeMessage(row.priority, {row.sender, row.parameter, byte(0), byte(8)});
  return MakeMessage(row.priority,
                     {row.sender, row.parameter, 4, byte(0), byte(8), byte(16), byte(24)});
}

// The rows take turns, so that they do not all speak in one step.
void SendDue(std::span<const Periodic> rows, std::int64_t step, const Trailer& trailer, Bus& bus) {
  std::int64_t turn = 0;
  for (const Periodic& row : rows) {
    turn += 7;
    if ((step + turn) % row.steps == 0) bus.Send(MessageOf(row, trailer), trailer.Measuring());
  }
}

}  // namespace

void SendEscape(Bus& bus, const Noise& noise, std::uint8_t from, std::uint8_t to,
                std::span<const std::uint8_t> service) {
  constexpr std::size_t kMost = BusMessage::kMostBytes - 4;
  do {
    std::vector<std::uint8_t> bytes = {from, kDataLinkEscape, to};
    const std::size_t count = std::min(service.size(), kMost);
    bytes.insert(bytes.end(), service.begin(),
                 service.begin() + static_cast<std::ptrdiff_t>(count));
    bus.Send(MakeMessage(8, bytes), noise);
    service = service.subspan(count);
  } while (!service.empty());
}

void BusSenders::Step(std::int64_t step, const Trailer& trailer, Bus& bus) {
  StepLamp(trailer, bus);
  if (trailer.Answering() && !trailer.Diagnosis().ParameterAccess())
    StepTrailer(step, trailer, bus);
  if (towing_vehicle_) SendDue(kTowingRows, step, trailer, bus);
}

void BusSenders::StepTrailer(std::int64_t step, const Trailer& trailer, Bus& bus) {
  StepPressure(step, trailer, bus);
  StepFaults(step, trailer, bus);
  SendDue(kTrailerRows, step, trailer, bus);
  const auto status = static_cast<std::uint8_t>((trailer.LampOutput() ? 1 : 0) |
                                                (trailer.Faults().AnyActive() ? 4 : 0));
  if (status == status_ && step - status_sent_ < kSecond) return;
  status_ = status;
  status_sent_ = step;
  bus.Send(MakeMessage(5, {kTrailerBrakes, kTrailerAbs, 1, status}), trailer.Measuring());
}

// Ten times a second while it changes, else once.
void BusSenders::StepPressure(std::int64_t step, const Trailer& trailer, Bus& bus) {
  const std::uint8_t pressure = Byte(trailer.Line().Pressure(), kPressureUnit);
  if (step - pressure_sent_ < (pressure == pressure_ ? kSecond : kTenth)) return;
  pressure_ = pressure;
  pressure_sent_ = step;
  bus.Send(MakeMessage(3, {kTrailerBrakes, kApplicationPressure, pressure}), trailer.Measuring());
}

void BusSenders::StepFaults(std::int64_t step, const Trailer& trailer, Bus& bus) {
  const FaultStore& store = trailer.Faults();
  const bool changed = store.Revision() != faults_;
  if (!changed && (!store.AnyActive() || step - faults_sent_ < kFaultsPeriod)) return;
  faults_ = store.Revision();
  faults_sent_ = step;
  std::vector<std::uint8_t> bytes = {kTrailerBrakes, kFaultCodes, 0};
  for (const Fault& fault : store.Faults()) {
    if (bytes.size() >= 3 + 2 * kMostFaults) break;
    // A subsystem, a standard code; the bit above is for what is no longer there.
    const int kind = 0x30 | (fault.status == kFaultActive ? 0 : 0x40);
    bytes.push_back(static_cast<std::uint8_t>(fault.sid));
    bytes.push_back(static_cast<std::uint8_t>(kind | (fault.fmi & 0x0F)));
  }
  bytes[2] = static_cast<std::uint8_t>(bytes.size() - 3);
  bus.Send(MakeMessage(8, bytes), trailer.Measuring());
}

void BusSenders::StepLamp(const Trailer& trailer, Bus& bus) {
  if (!trailer.Answering()) return;
  const bool on = trailer.LampOutput();
  if (lamp_ == on) return;
  lamp_ = on;
  bus.Send(MakeMessage(1, {on ? kLampOn : kLampOff, 0}), trailer.Measuring());
}

}  // namespace lorimet::simulator
