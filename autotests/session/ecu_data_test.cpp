#include "session/ecu_data.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace lorimet {
namespace {

// The record as the library sees it: bytes at fixed offsets.
class EcuDataTest : public testing::Test {
 protected:
  template <typename T>
  T At(std::size_t offset) const {
    T value;
    std::memcpy(&value, reinterpret_cast<const std::byte*>(&ecu) + offset, sizeof value);
    return value;
  }
  template <typename T>
  void Put(std::size_t offset, T value) {
    std::memcpy(reinterpret_cast<std::byte*>(&ecu) + offset, &value, sizeof value);
  }
  // All bytes but `size` at `offset` are 0xA5 still.
  void ExpectNothingElse(std::size_t offset, std::size_t size) const {
    for (std::size_t i = 0; i < sizeof ecu; ++i) {
      if (i >= offset && i < offset + size) continue;
      EXPECT_EQ(At<std::uint8_t>(i), 0xA5) << i;
    }
  }

  EcuDataTest() { Fill(); }
  void Fill() { std::memset(static_cast<void*>(&ecu), 0xA5, sizeof ecu); }

  ECUData ecu{};
};

TEST_F(EcuDataTest, EachFloatLiesAtItsOffset) {
  const std::vector<std::pair<std::size_t, EcuDouble*>> kFields = {
      {0x000, &ecu.dPrimaryVolts},  {0x008, &ecu.dVoltageSource},  {0x010, &ecu.dWheelSpeed[0]},
      {0x038, &ecu.dWheelSpeed[5]}, {0x048, &ecu.dOdometer},       {0x050, &ecu.dNextService},
      {0x058, &ecu.dTripReading},   {0x060, &ecu.dSupplyPress},    {0x070, &ecu.dSteerBellows},
      {0x078, &ecu.dBrake1Press},   {0x080, &ecu.dBrake2Press},    {0x088, &ecu.dMainBellows},
      {0x090, &ecu.dServiceBrake},  {0x18C, &ecu.dBytesRemaining},
  };
  for (const auto& [offset, field] : kFields) {
    Fill();
    field->Store(-123.456);
    EXPECT_EQ(At<double>(offset), -123.456) << offset;
    ExpectNothingElse(offset, 8);
    Put(offset, -1.0);
    EXPECT_EQ(field->Load(), kNoValue) << offset;
  }
}

TEST_F(EcuDataTest, EachShortLiesAtItsOffset) {
  const std::vector<std::pair<std::size_t, EcuShort*>> kFields = {
      {0x0F8, &ecu.nWarningLamp},
      {0x0FA, &ecu.nODRUploadStep},
      {0x18A, &ecu.nLinkJobDone},
  };
  for (const auto& [offset, field] : kFields) {
    for (const std::int16_t value : {0, 1, -1, 32767, -32768}) {
      Fill();
      field->Store(value);
      EXPECT_EQ(At<std::int16_t>(offset), value) << offset;
      ExpectNothingElse(offset, 2);
      EXPECT_EQ(field->Load(), value) << offset;
    }
  }
}

TEST_F(EcuDataTest, EachByteLiesAtItsOffset) {
  const std::vector<std::pair<std::size_t, EcuByte*>> kFields = {
      {0x194, &ecu.bNumSensors},
      {0x195, &ecu.bNumModulators},
      {0x196, &ecu.bNumFaults},
  };
  for (const auto& [offset, field] : kFields) {
    Fill();
    field->Store(21);
    EXPECT_EQ(At<std::uint8_t>(offset), 21) << offset;
    ExpectNothingElse(offset, 1);
    Put<std::uint8_t>(offset, 255);
    EXPECT_EQ(field->Load(), 255) << offset;
  }
}

template <std::size_t N>
void ExpectText(ECUData& ecu, EcuText<N> ECUData::*field, std::size_t offset, std::size_t size) {
  EXPECT_EQ(N, size);
  (ecu.*field).Store("ab");
  const char* bytes = reinterpret_cast<const char*>(&ecu) + offset;
  EXPECT_EQ(std::string(bytes, size), "ab" + std::string(size - 2, '\0')) << offset;
  (ecu.*field).Store(std::string(40, 'x'));
  EXPECT_EQ(std::string(bytes, size), std::string(size, 'x')) << offset;
  EXPECT_EQ((ecu.*field).Load(), std::string(size, 'x')) << offset;
}

TEST_F(EcuDataTest, EachTextLiesAtItsOffsetAndIsFilledUpOrCut) {
  ExpectText(ecu, &ECUData::PartNum, 0x198, 16);
  ExpectText(ecu, &ECUData::MfgDate, 0x1A8, 12);
  ExpectText(ecu, &ECUData::SWRev, 0x1B4, 12);
  ExpectText(ecu, &ECUData::SerialNum, 0x1C0, 16);
  ExpectText(ecu, &ECUData::DiagId, 0x1D0, 12);
  ExpectText(ecu, &ECUData::SysName, 0x1DC, 18);
  EXPECT_EQ(At<std::uint8_t>(0x197), 0xA5);
  EXPECT_EQ(At<std::uint8_t>(0x1EE), 0xA5);
  ecu.DiagId.Store("z", ' ');
  EXPECT_EQ(ecu.DiagId.Load(), "z           ");
}

TEST(LinkStatusTest, HasTheLibrarysBytesAndTheMarkOfAnAttainedLink) {
  LinkStatus status{};
  EXPECT_GE(sizeof status, 149u);
  reinterpret_cast<std::uint8_t*>(&status)[0x83] = 7;
  EXPECT_EQ(status.bLinkAttained.Load(), 7);
}

}  // namespace
}  // namespace lorimet
