// The whole record of the library field by field, and stores from two threads into one word.
#include "session/ecu_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace lorimet {
namespace {

// A record and its bytes as the library sees them.
class EcuRecordTest : public testing::Test {
 protected:
  std::vector<std::uint8_t> Bytes() const {
    std::vector<std::uint8_t> bytes(sizeof(ECUData));
    std::memcpy(bytes.data(), ecu.get(), bytes.size());
    return bytes;
  }
  void Fill(std::uint8_t byte) { std::memset(static_cast<void*>(ecu.get()), byte, 512); }
  void Put(std::size_t offset, const void* value, std::size_t size) {
    std::memcpy(reinterpret_cast<std::byte*>(ecu.get()) + offset, value, size);
  }
  // The bytes that differ from the filling, as the first and one past the last.
  std::pair<std::size_t, std::size_t> Touched(std::uint8_t filling) const {
    const std::vector<std::uint8_t> bytes = Bytes();
    std::size_t first = bytes.size();
    std::size_t last = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (bytes[i] == filling) continue;
      first = std::min(first, i);
      last = i + 1;
    }
    return {first, last};
  }

  std::unique_ptr<ECUData> ecu = std::make_unique<ECUData>();
};

TEST_F(EcuRecordTest, HasItsDoublesAtTheirOffsets) {
  struct Row {
    const char* name;
    EcuDouble& field;
    std::size_t offset;
  };
  // clang-format off
  const Row rows[] = {
      {"dPrimaryVolts",     ecu->dPrimaryVolts,     0},
      {"dVoltageSource",    ecu->dVoltageSource,    8},
      {"dWheelSpeed(0)",    ecu->dWheelSpeed[0],    16},
      {"dWheelSpeed(1)",    ecu->dWheelSpeed[1],    24},
      {"dWheelSpeed(2)",    ecu->dWheelSpeed[2],    32},
      {"dWheelSpeed(3)",    ecu->dWheelSpeed[3],    40},
      {"dWheelSpeed(4)",    ecu->dWheelSpeed[4],    48},
      {"dWheelSpeed(5)",    ecu->dWheelSpeed[5],    56},
      {"dOdometer",         ecu->dOdometer,         72},
      {"dNextService",      ecu->dNextService,      80},
      {"dTripReading",      ecu->dTripReading,      88},
      {"dSupplyPress",      ecu->dSupplyPress,      96},
      {"dSteerBellows",     ecu->dSteerBellows,     112},
      {"dBrake1Press",      ecu->dBrake1Press,      120},
      {"dBrake2Press",      ecu->dBrake2Press,      128},
      {"dMainBellows",      ecu->dMainBellows,      136},
      {"dServiceBrake",     ecu->dServiceBrake,     144},
      {"dControlPressure1", ecu->dControlPressure1, 152},
      {"dControlPressure2", ecu->dControlPressure2, 160},
      {"dTargetPressure1",  ecu->dTargetPressure1,  184},
      {"dTargetPressure2",  ecu->dTargetPressure2,  192},
      {"dLadenBellows",     ecu->dLadenBellows,     224},
      {"dUnladenBellows",   ecu->dUnladenBellows,   232},
      {"dLadenHeightValue", ecu->dLadenHeightValue, 240},
      {"dBytesRemaining",   ecu->dBytesRemaining,   396},  // 0x18C, no multiple of eight
  };
  // clang-format on
  for (const Row& row : rows) {
    Fill(0);
    const double value = -1234.5678;
    Put(row.offset, &value, sizeof value);
    EXPECT_EQ(row.field.Load(), value) << row.name;
    Fill(0xEE);
    row.field.Store(0.1);
    const double stored = 0.1;
    const std::vector<std::uint8_t> bytes = Bytes();
    EXPECT_EQ(std::memcmp(bytes.data() + row.offset, &stored, sizeof stored), 0) << row.name;
    EXPECT_EQ(Touched(0xEE), std::pair(row.offset, row.offset + 8)) << row.name;
  }
}

TEST_F(EcuRecordTest, HasItsShortsAtTheirOffsets) {
  struct Row {
    const char* name;
    EcuShort& field;
    std::size_t offset;
  };
  // clang-format off
  const Row rows[] = {
      {"nWarningLamp",          ecu->nWarningLamp,          0x0F8},
      {"nODRUploadStep",        ecu->nODRUploadStep,        0x0FA},
      {"nMechanicalSuspension", ecu->nMechanicalSuspension, 0x0FE},
      {"nMounting",             ecu->nMounting,             0x100},
      {"nVehicleType",          ecu->nVehicleType,          0x102},
      {"nAxleLift(0)",          ecu->nAxleLift[0],          0x104},
      {"nAxleLift(1)",          ecu->nAxleLift[1],          0x106},
      {"nAxleLift(2)",          ecu->nAxleLift[2],          0x108},
      {"nAxleFlag(0)",          ecu->nAxleFlag[0],          0x10A},
      {"nAxleFlag(1)",          ecu->nAxleFlag[1],          0x10C},
      {"nAxleFlag(2)",          ecu->nAxleFlag[2],          0x10E},
      {"nAxleSensors(0)",       ecu->nAxleSensors[0],       0x11A},
      {"nAxleSensors(1)",       ecu->nAxleSensors[1],       0x11C},
      {"nAxleSensors(2)",       ecu->nAxleSensors[2],       0x11E},
      {"nNumAxles",             ecu->nNumAxles,             0x188},
      {"nLinkJobDone",          ecu->nLinkJobDone,          0x18A},
  };
  // clang-format on
  for (const Row& row : rows) {
    for (const std::int16_t value : {std::int16_t{-1}, std::int16_t{-32768}, std::int16_t{258}}) {
      Fill(0);
      Put(row.offset, &value, sizeof value);
      EXPECT_EQ(row.field.Load(), value) << row.name;
    }
    Fill(0xEE);
    row.field.Store(-2);
    EXPECT_EQ(Bytes()[row.offset], 0xFE) << row.name;
    EXPECT_EQ(Bytes()[row.offset + 1], 0xFF) << row.name;
    EXPECT_EQ(Touched(0xEE), std::pair(row.offset, row.offset + 2)) << row.name;
  }
}

TEST_F(EcuRecordTest, HasItsBytesAtTheirOffsets) {
  struct Row {
    EcuByte& field;
    std::size_t offset;
  };
  const Row rows[] = {
      {ecu->bNumSensors, 0x194}, {ecu->bNumModulators, 0x195}, {ecu->bNumFaults, 0x196}};
  for (const Row& row : rows) {
    Fill(0);
    const std::uint8_t value = 0xA5;
    Put(row.offset, &value, 1);
    EXPECT_EQ(row.field.Load(), value);
    Fill(0xEE);
    row.field.Store(21);
    EXPECT_EQ(Bytes()[row.offset], 21);
    EXPECT_EQ(Touched(0xEE), std::pair(row.offset, row.offset + 1));
  }
}

template <std::size_t N>
void CheckText(EcuText<N>& field, ECUData& ecu, std::size_t offset, std::size_t size) {
  auto* bytes = reinterpret_cast<std::uint8_t*>(&ecu);
  EXPECT_EQ(N, size) << offset;
  std::memset(bytes, 0xEE, 512);
  field.Store("AB");
  std::string expected(512, '\xEE');
  expected.replace(offset, size, "AB" + std::string(size - 2, '\0'));
  EXPECT_EQ(std::string(reinterpret_cast<char*>(bytes), 512), expected) << offset;
  field.Store(std::string(100, 'x'));  // cut
  expected.replace(offset, size, std::string(size, 'x'));
  EXPECT_EQ(std::string(reinterpret_cast<char*>(bytes), 512), expected) << offset;
  EXPECT_EQ(field.Load(), std::string(size, 'x'));
  field.Store("A", ' ');
  EXPECT_EQ(field.Load(), "A" + std::string(size - 1, ' '));
  field.SetByteAt(size - 1, 0xE9);
  EXPECT_EQ(field.ByteAt(size - 1), 0xE9);
  EXPECT_EQ(bytes[offset + size - 1], 0xE9);
}

TEST_F(EcuRecordTest, HasItsTextsAtTheirOffsets) {
  // clang-format off
  CheckText(ecu->VehicleId,    *ecu, 0x120, 18);
  CheckText(ecu->Manufacturer, *ecu, 0x132, 22);
  CheckText(ecu->TrailerType,  *ecu, 0x148, 22);
  CheckText(ecu->PartNum,      *ecu, 0x198, 16);
  CheckText(ecu->MfgDate,      *ecu, 0x1A8, 12);
  CheckText(ecu->SWRev,        *ecu, 0x1B4, 12);
  CheckText(ecu->SerialNum,    *ecu, 0x1C0, 16);
  CheckText(ecu->DiagId,       *ecu, 0x1D0, 12);
  CheckText(ecu->SysName,      *ecu, 0x1DC, 18);
  // clang-format on
  EXPECT_EQ(sizeof(ECUData), 512u);
}

TEST_F(EcuRecordTest, KeepsNoValueAndEveryPatternOfADoubleExactly) {
  for (const double value : {-1.0, -1.5, 0.0, 1e-310, 1.7976931348623157e308}) {
    ecu->dBytesRemaining.Store(value);
    EXPECT_EQ(ecu->dBytesRemaining.Load(), value);
  }
  EXPECT_EQ(kNoValue, -1.0);
}

// Two threads store into neighbours of one word; each must find its own last value at every step.
template <typename Left, typename Right>
void StoreSideBySide(const Left& left, const Right& right) {
  constexpr int kRounds = 200'000;
  std::atomic<int> ready = 0;
  const auto run = [&](const auto& side, bool& kept) {
    ++ready;
    while (ready < 2) std::this_thread::yield();
    for (int i = 0; i < kRounds && kept; ++i) kept = side(i);
  };
  bool left_kept = true;
  bool right_kept = true;
  std::thread other([&] { run(right, right_kept); });
  run(left, left_kept);
  other.join();
  EXPECT_TRUE(left_kept);
  EXPECT_TRUE(right_kept);
}

template <typename Field>
auto Storing(Field& field) {
  return [&field](int i) {
    using Value = decltype(field.Load());
    const auto value = static_cast<Value>(i * 7 + 1);
    field.Store(value);
    return field.Load() == value;
  };
}

TEST_F(EcuRecordTest, LosesNoNeighbourThatIsStoredMeanwhile) {
  StoreSideBySide(Storing(ecu->bNumSensors), Storing(ecu->bNumModulators));
  StoreSideBySide(Storing(ecu->nWarningLamp), Storing(ecu->nODRUploadStep));
  StoreSideBySide(Storing(ecu->nNumAxles), Storing(ecu->nLinkJobDone));
  // The last text bytes of one field and the first of the next share a word.
  StoreSideBySide(
      [this](int i) {
        ecu->VehicleId.SetByteAt(17, static_cast<std::uint8_t>(i));
        return ecu->VehicleId.ByteAt(17) == static_cast<std::uint8_t>(i);
      },
      [this](int i) {
        ecu->Manufacturer.SetByteAt(0, static_cast<std::uint8_t>(i * 3));
        return ecu->Manufacturer.ByteAt(0) == static_cast<std::uint8_t>(i * 3);
      });
}

}  // namespace
}  // namespace lorimet
