#include "simulator/trailer/memory_image.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace lorimet::simulator {
namespace {

constexpr std::size_t kWhole = 8192;
constexpr std::uint8_t kErased = 0xFF;
// Places in the EEPROM.
constexpr std::size_t kSerialAt = 0x0000;
constexpr std::size_t kPartAt = 0x0010;
constexpr std::size_t kSoftwareAt = 0x0020;
constexpr std::size_t kBlocksAt = 0x0100;
constexpr std::size_t kBlockRoom = 0x0080;
constexpr std::size_t kFlagAt = 0x0900;
constexpr std::size_t kCalibratedAt = 0x0901;
constexpr std::size_t kCountersAt = 0x0910;
constexpr std::size_t kDistancesAt = 0x0920;
constexpr std::size_t kFaultsAt = 0x0A00;
constexpr std::size_t kMostFaults = 32;
constexpr std::size_t kIdentityWidth = 16;

// Numbers stand high byte first.
void Put(Bytes& bytes, std::uint64_t value, int count) {
  for (int i = count - 1; i >= 0; --i)
    bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i) & 0xFF));
}
void Put(Bytes& bytes, double value, int count) {
  Put(bytes, static_cast<std::uint64_t>(std::llround(std::max(0.0, value))), count);
}

void PutAt(Bytes& image, std::size_t at, const Bytes& bytes) {
  std::copy(bytes.begin(), bytes.end(), image.begin() + static_cast<std::ptrdiff_t>(at));
}
void PutAt(Bytes& image, std::size_t at, std::string_view text) {
  for (std::size_t i = 0; i < kIdentityWidth; ++i)
    image[at + i] = static_cast<std::uint8_t>(i < text.size() ? text[i] : 0);
}

std::uint16_t CounterWord(const Trailer& trailer, RecorderCounter counter) {
  return trailer.ReadWord(kRecorderCounters[static_cast<std::size_t>(counter)].address);
}

Bytes DistancesTold(const Trailer& trailer) {
  Bytes bytes;
  for (const double km :
       {trailer.Distance().odometer, trailer.Distance().trip, trailer.Distance().next_service})
    Put(bytes, km * 10, 4);
  return bytes;
}

Bytes Counters(const Trailer& trailer) {
  Bytes bytes;
  for (const RecorderCounterFacts& facts : kRecorderCounters)
    Put(bytes, std::uint64_t{CounterWord(trailer, facts.counter)}, 2);
  return bytes;
}

Bytes Faults(const Trailer& trailer) {
  const auto& faults = trailer.Faults().Faults();
  const std::size_t count = std::min(faults.size(), kMostFaults);
  Bytes bytes = {static_cast<std::uint8_t>(count)};
  for (std::size_t i = 0; i < count; ++i)
    for (const std::int32_t value :
         {faults[i].sid, faults[i].fmi, faults[i].status, faults[i].times})
      bytes.push_back(static_cast<std::uint8_t>(value & 0xFF));
  return bytes;
}

// --- The recorder.

Bytes LongTerm(const Trailer& trailer) {
  Bytes bytes;
  Put(bytes, std::uint64_t{CounterWord(trailer, RecorderCounter::kStopLight)}, 2);
  Put(bytes, std::uint64_t{trailer.Recorded().starts}, 4);
  return bytes;
}

Bytes LiningWear(const Trailer& trailer) {
  Bytes bytes;
  Put(bytes, trailer.Recorded().braking_seconds, 4);
  return bytes;
}

Bytes TripMemory(const Trailer& trailer) {
  Bytes bytes;
  Put(bytes, trailer.Recorded().trip_km * 10, 4);
  return bytes;
}

Bytes AbsMemory(const Trailer& trailer) {
  Bytes bytes;
  Put(bytes, std::uint64_t{CounterWord(trailer, RecorderCounter::kAbs)}, 2);
  return bytes;
}

Bytes OvgMemory(const Trailer& trailer) {
  Bytes bytes;
  Put(bytes, std::uint64_t{CounterWord(trailer, RecorderCounter::kLevel1)}, 2);
  Put(bytes, std::uint64_t{CounterWord(trailer, RecorderCounter::kLevel2)}, 2);
  return bytes;
}

Bytes Histogram(const Trailer& trailer) {
  Bytes bytes;
  for (const double seconds : trailer.Recorded().seconds_at_speed) Put(bytes, seconds, 4);
  return bytes;
}

Bytes Events(const Trailer& trailer) {
  const auto& events = trailer.Recorded().events;
  Bytes bytes = {static_cast<std::uint8_t>(events.size())};
  for (const RecorderEvent& event : events) {
    bytes.push_back(event.counter);
    Put(bytes, std::uint64_t{event.odometer}, 4);
  }
  return bytes;
}

Bytes BlackBox(const Trailer& trailer) {
  Bytes bytes;
  for (const double value :
       {trailer.Road().Speed(), trailer.Line().Pressure(), trailer.Brake().Delivered(1),
        trailer.Brake().Delivered(2), trailer.Supply().Pressure(), trailer.Electric().Volts()})
    Put(bytes, value * 10, 2);
  return bytes;
}

// This trailer has none.
Bytes Slev(const Trailer&) { return Bytes(16, kErased); }

}  // namespace

Bytes EepromImage(const Trailer& trailer, std::size_t size) {
  Bytes image(kWhole, kErased);
  const Identity& identity = trailer.Ident();
  PutAt(image, kSerialAt, identity.serial_number);
  PutAt(image, kPartAt, identity.part_number);
  PutAt(image, kSoftwareAt, identity.software);
  for (std::size_t i = 0; i < kBlocks.size(); ++i) {
    // In place of its echo, a block begins with whether its checksum is right.
    Bytes block = *trailer.Parameters().Read(kBlocks[i].id);
    block[0] = trailer.Parameters().ChecksumRight(kBlocks[i].id) ? 1 : 0;
    PutAt(image, kBlocksAt + i * kBlockRoom, block);
  }
  image[kFlagAt] = trailer.EndOfLineFlag();
  image[kCalibratedAt] = trailer.Calibrated() ? 1 : 0;
  PutAt(image, kCountersAt, Counters(trailer));
  PutAt(image, kDistancesAt, DistancesTold(trailer));
  PutAt(image, kFaultsAt, Faults(trailer));
  image.resize(size, kErased);
  return image;
}

const std::array<RecorderSection, 9>& RecorderSections() {
  static const std::array<RecorderSection, 9> sections = {{
      {"long_term", 2, LongTerm},
      {"lining_wear", 1, LiningWear},
      {"trip", 6, TripMemory},
      {"abs", 1.5, AbsMemory},
      {"ovg", 1.5, OvgMemory},
      {"histogram", 2, Histogram},
      {"events", 8, Events},
      {"black_box", 3, BlackBox},
      {"slev", 1, Slev},
  }};
  return sections;
}

}  // namespace lorimet::simulator
