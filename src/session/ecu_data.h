// The two records that the link library fills, with every field at the offset that the library
// fixes.
//
// The library writes them from its own thread while this side reads them, with no lock. To keep
// that defined behaviour, every access of both sides has one granularity: the aligned 32-bit word,
// through a relaxed atomic. A double is two words and may therefore be torn across them, which is
// accepted; a short or a byte is taken out of its word, and stored by exchanging the whole word, so
// that a neighbour that the other side stores meanwhile is never lost.
#pragma once

#include <array>
#include <atomic>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lorimet {

static_assert(std::endian::native == std::endian::little,
              "the library's records are little-endian");

// What a 64-bit float field holds exactly while no value has been received.
constexpr double kNoValue = -1.0;

namespace ecu_record {

#if defined(LORIMET_RACY_RECORD)
// The positive control of the thread sanitizer: plain accesses, which it must report.
inline std::uint32_t LoadWord(const void* address) {
  return *static_cast<const volatile std::uint32_t*>(address);
}
inline void StoreBits(void* address, std::uint32_t mask, std::uint32_t bits) {
  auto* word = static_cast<volatile std::uint32_t*>(address);
  *word = (*word & ~mask) | bits;
}
#else
inline std::uint32_t LoadWord(const void* address) {
  auto* word = static_cast<std::uint32_t*>(const_cast<void*>(address));
  return std::atomic_ref<std::uint32_t>(*word).load(std::memory_order_relaxed);
}
// Replaces the bits of `mask` by those of `bits` and leaves the others alone.
inline void StoreBits(void* address, std::uint32_t mask, std::uint32_t bits) {
  std::atomic_ref<std::uint32_t> word(*static_cast<std::uint32_t*>(address));
  if (mask == 0xFFFFFFFFu) {
    word.store(bits, std::memory_order_relaxed);
    return;
  }
  std::uint32_t old = word.load(std::memory_order_relaxed);
  while (!word.compare_exchange_weak(old, (old & ~mask) | bits, std::memory_order_relaxed)) {
  }
}
#endif

inline const std::byte* WordOf(const std::byte* at) {
  return at - (reinterpret_cast<std::uintptr_t>(at) & 3u);
}
inline unsigned ShiftOf(const std::byte* at) {
  return 8u * static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(at) & 3u);
}
inline std::uint8_t LoadByte(const std::byte* at) {
  return static_cast<std::uint8_t>(LoadWord(WordOf(at)) >> ShiftOf(at));
}
inline void StoreByte(std::byte* at, std::uint8_t value) {
  StoreBits(const_cast<std::byte*>(WordOf(at)), 0xFFu << ShiftOf(at),
            std::uint32_t{value} << ShiftOf(at));
}

}  // namespace ecu_record

// A 64-bit float; two words, so a multiple of four is enough for its place.
class EcuDouble {
 public:
  double Load() const {
    const std::uint64_t low = ecu_record::LoadWord(bytes_);
    const std::uint64_t high = ecu_record::LoadWord(bytes_ + 4);
    return std::bit_cast<double>(high << 32 | low);
  }
  void Store(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    ecu_record::StoreBits(bytes_, 0xFFFFFFFFu, static_cast<std::uint32_t>(bits));
    ecu_record::StoreBits(bytes_ + 4, 0xFFFFFFFFu, static_cast<std::uint32_t>(bits >> 32));
  }

 private:
  std::byte bytes_[8];
};

// A 16-bit signed number at an even offset.
class EcuShort {
 public:
  std::int16_t Load() const {
    return static_cast<std::int16_t>(ecu_record::LoadWord(ecu_record::WordOf(bytes_)) >>
                                     ecu_record::ShiftOf(bytes_));
  }
  void Store(std::int16_t value) {
    const unsigned shift = ecu_record::ShiftOf(bytes_);
    ecu_record::StoreBits(const_cast<std::byte*>(ecu_record::WordOf(bytes_)), 0xFFFFu << shift,
                          std::uint32_t{static_cast<std::uint16_t>(value)} << shift);
  }

 private:
  std::byte bytes_[2];
};

class EcuByte {
 public:
  std::uint8_t Load() const { return ecu_record::LoadByte(bytes_); }
  void Store(std::uint8_t value) { ecu_record::StoreByte(bytes_, value); }

 private:
  std::byte bytes_[1];
};

// N bytes of code page 1252 text, zero-filled or blank-padded as its owner says.
template <std::size_t N>
class EcuText {
 public:
  static constexpr std::size_t kSize = N;

  std::uint8_t ByteAt(std::size_t i) const { return ecu_record::LoadByte(bytes_ + i); }
  void SetByteAt(std::size_t i, std::uint8_t value) { ecu_record::StoreByte(bytes_ + i, value); }

  // All N bytes unchanged, NULs included.
  std::string Load() const {
    std::string bytes(N, '\0');
    for (std::size_t i = 0; i < N; ++i) bytes[i] = static_cast<char>(ByteAt(i));
    return bytes;
  }
  // Stores the first N bytes of `bytes`, filled up with `fill`.
  void Store(std::string_view bytes, char fill = '\0') {
    for (std::size_t i = 0; i < N; ++i)
      SetByteAt(i, static_cast<std::uint8_t>(i < bytes.size() ? bytes[i] : fill));
  }

 private:
  std::byte bytes_[N];
};

// Live values, identity, job progress and test points of the connected ECU. Pressures in psi,
// speeds in mph, distances in km unless said otherwise; texts in code page 1252.
struct alignas(8) ECUData {
  EcuDouble dPrimaryVolts;               // supply voltage, hundredths of a volt
  EcuDouble dVoltageSource;              // 0 stop light, 1 permanent
  std::array<EcuDouble, 6> dWheelSpeed;  // index 3 "c", 2 "d", 5 "e", 4 "f"
  std::byte reserved_040[0x048 - 0x040];
  EcuDouble dOdometer;     // shown unchanged
  EcuDouble dNextService;  // distance to next service, km
  EcuDouble dTripReading;  // km
  EcuDouble dSupplyPress;
  std::byte reserved_068[0x070 - 0x068];
  EcuDouble dSteerBellows;
  EcuDouble dBrake1Press;
  EcuDouble dBrake2Press;
  EcuDouble dMainBellows;
  EcuDouble dServiceBrake;      // demand
  EcuDouble dControlPressure1;  // of the two load-sensing test points
  EcuDouble dControlPressure2;
  std::byte reserved_0A8[0x0B8 - 0x0A8];
  EcuDouble dTargetPressure1;  // expected at those points
  EcuDouble dTargetPressure2;
  std::byte reserved_0C8[0x0E0 - 0x0C8];
  EcuDouble dLadenBellows;  // to simulate for the laden and unladen test
  EcuDouble dUnladenBellows;
  EcuDouble dLadenHeightValue;  // mm, suspension path to simulate
  EcuShort nWarningLamp;        // above 0 while the lamp is on
  EcuShort nODRUploadStep;      // 1 to 9
  std::byte reserved_0FC[0x0FE - 0x0FC];
  EcuShort nMechanicalSuspension;     // 1 mechanical, 0 air
  EcuShort nMounting;                 // 0 forward, 1 rear
  EcuShort nVehicleType;              // 0 semi trailer, 1 draw-bar, 2 single axle
  std::array<EcuShort, 3> nAxleLift;  // 0 none, 1 lift axle 1, 3 lift axle 2
  std::array<EcuShort, 3> nAxleFlag;  // as read from the ECU
  std::byte reserved_110[0x11A - 0x110];
  std::array<EcuShort, 3> nAxleSensors;  // 0 none, 1 c-d, 2 e-f, 3 both
  EcuText<18> VehicleId;
  EcuText<22> Manufacturer;
  EcuText<22> TrailerType;
  std::byte reserved_15E[0x188 - 0x15E];
  EcuShort nNumAxles;
  EcuShort nLinkJobDone;      // 0 while a library job runs
  EcuDouble dBytesRemaining;  // of a transfer
  EcuByte bNumSensors;
  EcuByte bNumModulators;  // 21 means the 2M + 1M system
  EcuByte bNumFaults;
  std::byte reserved_197[0x198 - 0x197];
  EcuText<16> PartNum;  // identity: first byte 0 means not known
  EcuText<12> MfgDate;
  EcuText<12> SWRev;
  EcuText<16> SerialNum;
  EcuText<12> DiagId;
  EcuText<18> SysName;
  std::byte reserved_1EE[0x200 - 0x1EE];
};

static_assert(sizeof(ECUData) == 512);
static_assert(std::is_standard_layout_v<ECUData>);
static_assert(std::is_trivially_copyable_v<ECUData>);
static_assert(offsetof(ECUData, dPrimaryVolts) == 0x000);
static_assert(offsetof(ECUData, dVoltageSource) == 0x008);
static_assert(offsetof(ECUData, dWheelSpeed) == 0x010);
static_assert(offsetof(ECUData, dOdometer) == 0x048);
static_assert(offsetof(ECUData, dNextService) == 0x050);
static_assert(offsetof(ECUData, dTripReading) == 0x058);
static_assert(offsetof(ECUData, dSupplyPress) == 0x060);
static_assert(offsetof(ECUData, dSteerBellows) == 0x070);
static_assert(offsetof(ECUData, dBrake1Press) == 0x078);
static_assert(offsetof(ECUData, dBrake2Press) == 0x080);
static_assert(offsetof(ECUData, dMainBellows) == 0x088);
static_assert(offsetof(ECUData, dServiceBrake) == 0x090);
static_assert(offsetof(ECUData, dControlPressure1) == 0x098);
static_assert(offsetof(ECUData, dControlPressure2) == 0x0A0);
static_assert(offsetof(ECUData, dTargetPressure1) == 0x0B8);
static_assert(offsetof(ECUData, dTargetPressure2) == 0x0C0);
static_assert(offsetof(ECUData, dLadenBellows) == 0x0E0);
static_assert(offsetof(ECUData, dUnladenBellows) == 0x0E8);
static_assert(offsetof(ECUData, dLadenHeightValue) == 0x0F0);
static_assert(offsetof(ECUData, nWarningLamp) == 0x0F8);
static_assert(offsetof(ECUData, nODRUploadStep) == 0x0FA);
static_assert(offsetof(ECUData, nMechanicalSuspension) == 0x0FE);
static_assert(offsetof(ECUData, nMounting) == 0x100);
static_assert(offsetof(ECUData, nVehicleType) == 0x102);
static_assert(offsetof(ECUData, nAxleLift) == 0x104);
static_assert(offsetof(ECUData, nAxleFlag) == 0x10A);
static_assert(offsetof(ECUData, nAxleSensors) == 0x11A);
static_assert(offsetof(ECUData, VehicleId) == 0x120);
static_assert(offsetof(ECUData, Manufacturer) == 0x132);
static_assert(offsetof(ECUData, TrailerType) == 0x148);
static_assert(offsetof(ECUData, nNumAxles) == 0x188);
static_assert(offsetof(ECUData, nLinkJobDone) == 0x18A);
static_assert(offsetof(ECUData, dBytesRemaining) == 0x18C);
static_assert(offsetof(ECUData, bNumSensors) == 0x194);
static_assert(offsetof(ECUData, bNumModulators) == 0x195);
static_assert(offsetof(ECUData, bNumFaults) == 0x196);
static_assert(offsetof(ECUData, PartNum) == 0x198);
static_assert(offsetof(ECUData, MfgDate) == 0x1A8);
static_assert(offsetof(ECUData, SWRev) == 0x1B4);
static_assert(offsetof(ECUData, SerialNum) == 0x1C0);
static_assert(offsetof(ECUData, DiagId) == 0x1D0);
static_assert(offsetof(ECUData, SysName) == 0x1DC);

// The block of link state that Connect is given; opaque but for one byte.
struct alignas(4) LinkStatus {
  std::byte reserved_00[0x83];
  EcuByte bLinkAttained;  // non-zero once a connection has been attained
  std::byte reserved_84[149 - 0x84];
  std::byte padding[3];  // not the library's: makes the last word whole
};

constexpr std::size_t kLinkStatusSize = 149;  // bytes that the library knows of
static_assert(sizeof(LinkStatus) == 152);
static_assert(offsetof(LinkStatus, bLinkAttained) == 0x83);

}  // namespace lorimet
