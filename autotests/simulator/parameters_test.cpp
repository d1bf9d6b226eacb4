#include <algorithm>
#include <set>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using ParametersTest = LinkFixture;

TEST_F(ParametersTest, EveryBlockIsReadWithItsEchoAndItsLength) {
  const std::pair<int, int> rows[] = {{0x03, 81},  {0x3D, 11},  {0x27, 41},  {0x17, 21},
                                      {0x28, 111}, {0x05, 11},  {0x06, 123}, {0x42, 21},
                                      {0x37, 111}, {0x38, 111}, {0x39, 111}, {0x3A, 111},
                                      {0x3B, 111}, {0x3C, 111}, {0x44, 111}, {0x45, 111}};
  ConnectAndRead();
  OpenParameters();
  for (const auto& [id, count] : rows) {
    ASSERT_EQ(Read(static_cast<std::uint8_t>(id)), 0) << id;
    EXPECT_EQ(count_, count) << id;
    EXPECT_EQ(buffer_[0], id);
    EXPECT_EQ(buffer_[static_cast<std::size_t>(count)], 0xA5) << "nothing behind the answer";
  }
  EXPECT_EQ(Read(0x99), kOutOfRange);
}

TEST_F(ParametersTest, WhatIsWrittenIsReadFromIndexOneOn) {
  ConnectAndRead();
  OpenParameters();
  std::vector<std::uint8_t> data(122);
  for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<std::uint8_t>(i + 3);
  ASSERT_EQ(Write(0x06, data), 0);
  ASSERT_EQ(Read(0x06), 0);
  EXPECT_EQ(buffer_[0], 0x06);
  EXPECT_TRUE(std::equal(data.begin(), data.end(), buffer_.begin() + 1));
}

TEST_F(ParametersTest, AShortWriteChangesTheHeadOnlyAndALongOneNothing) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Write(0x27, {9, 8}), 0);
  ASSERT_EQ(Read(0x27), 0);
  EXPECT_EQ(buffer_[1], 9);
  EXPECT_EQ(buffer_[2], 8);
  EXPECT_EQ(buffer_[3], 2);
  EXPECT_EQ(Write(0x27, std::vector<std::uint8_t>(41, 1)), kOutOfRange);
  EXPECT_EQ(Write(0x27, {}), kOutOfRange);
  EXPECT_EQ(Write(0x99, {1}), kOutOfRange);
  EXPECT_EQ(link_->Trailer_ABS_KWP_WriteMemoryByLocId(0x27, 3, nullptr), kOutOfRange);
}

TEST_F(ParametersTest, WritingNeedsSessionPasswordAndAccess) {
  ConnectAndRead();
  EXPECT_EQ(Write(0x27, {9}), kNoSession);
  link_->Trailer_ABS_KWP_StartSession(0x83);
  link_->Trailer_ABS_KWP_Password();
  EXPECT_EQ(Write(0x27, {9}), kAccessDenied);
  EXPECT_EQ(Write(0x2A, {1, 0}), 0) << "the flag needs no parameter access";
}

TEST_F(ParametersTest, TheEndOfLineFlagIsNotPassedUntilItIsWritten) {
  ConnectAndRead();
  ASSERT_EQ(Read(0x2A), 0);
  EXPECT_EQ(buffer_[1], 2);
  OpenParameters();
  ASSERT_EQ(Write(0x2A, {1, 0}), 0);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1);
  ASSERT_EQ(Read(0x2A), 0);
  EXPECT_EQ(buffer_[1], 1);
}

TEST_F(ParametersTest, WrittenParametersDecideTheStaticReadAndTheBrake) {
  ConnectAndRead("load laden\nnoise off");
  OpenParameters();
  ASSERT_EQ(Read(0x03), 0);
  std::vector<std::uint8_t> data(buffer_.begin() + 1, buffer_.begin() + 81);
  data[43 - 1] = 50;  // second braking pressure: 5.0 bar
  data[1 - 1] = static_cast<std::uint8_t>((data[0] & ~0x1C) | 0 << 2 | 0x80);  // 2S/2M, rear
  ASSERT_EQ(Write(0x03, data), 0);
  ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
  link_->Command("press demand 65.295");
  link_->Advance(1.5);
  EXPECT_NEAR(record_.dTargetPressure2.Load(), 72.55, 1e-9);
  EXPECT_NEAR(record_.dBrake1Press.Load(), 72.55, 0.9);
  EXPECT_EQ(record_.bNumSensors.Load(), 2);
  EXPECT_EQ(record_.nMounting.Load(), 1);
}

TEST_F(ParametersTest, AnUnknownSystemInTheParametersTellsNoSensorsAndModulators) {
  ConnectAndRead("parameter EOL1 1 0x1C");
  EXPECT_EQ(record_.bNumSensors.Load(), 0);
  EXPECT_EQ(record_.bNumModulators.Load(), 0);
}

// --- Plausibility -------------------------------------------------------------------------------

using Bits = std::set<std::pair<int, int>>;

class PlausibilityTest : public LinkFixture {
 protected:
  Bits Errors() {
    Bits bits;
    EXPECT_EQ(Read(0x29), 0);
    EXPECT_EQ(count_, 21);
    EXPECT_EQ(buffer_[0], 0x29);
    for (int byte = 1; byte <= 20; ++byte)
      for (int bit = 0; bit < 8; ++bit)
        if ((buffer_[static_cast<std::size_t>(byte)] >> bit & 1) != 0) bits.insert({byte, bit});
    return bits;
  }
};

TEST_F(PlausibilityTest, AHealthyTrailerOfEveryConfigurationDrawsNoComplaint) {
  for (const char* system : {"2S/1M", "2S/2M", "4S/2M", "4S/3M", "2M+1M"})
    for (const char* suspension : {"air", "mechanical"})
      for (const char* vehicle : {"semi", "drawbar", "single_axle"})
        for (const char* axles : {"1", "2", "3"}) {
          const bool four_sensors = system[0] != '2' || system[1] == 'M';
          if (four_sensors && axles[0] == '1') continue;
          const std::string scenario = std::string("configuration ") + system + "\nsuspension " +
                                       suspension + "\nvehicle " + vehicle + "\naxles " + axles;
          Start(scenario);
          ASSERT_EQ(Connect(), 0);
          EXPECT_EQ(Errors(), Bits{}) << scenario;
        }
}

struct Complaint {
  const char* scenario;
  Bits bits;
};

TEST_F(PlausibilityTest, EveryRuleIsJudgedAtItsBounds) {
  const Complaint rows[] = {
      // axle loads
      {"parameter EOL1 3 0 0", {{1, 1}}},
      {"parameter EOL1 9 0x23 0x29", {{1, 2}}},  // 9001 unladen of 9000 laden
      {"parameter EOL1 9 0x23 0x28", {}},
      {"parameter EOL1 15 0 0 0 0", {}},  // two axles
      {"axles 2\nparameter EOL1 3 0 0 0 0", {{1, 7}}},
      {"configuration 2S/2M\naxles 1\nparameter EOL1 3 0 0 0 0", {{1, 6}}},
      {"parameter EOL1 13 0x11", {{1, 2}}},  // lifted with sensor c-d
      {"parameter EOL1 7 0x21", {}},         // lifted with sensor e-f
      {"parameter EOL1 19 1", {}},
      {"parameter EOL1 5 0x61 0xA9", {{13, 7}}},  // 25001 kg
      {"parameter EOL1 5 0x61 0xA8", {}},
      {"parameter EOL1 11 0x61 0xA9", {{14, 0}}},
      {"parameter EOL1 17 0x61 0xA9", {{14, 1}}},
      {"parameter EOL1 19 4", {{14, 1}}},  // both lift axles at once
      // suspension
      {"parameter EOL1 33 0", {{2, 1}}},
      {"parameter EOL1 34 0", {{2, 1}}},
      {"parameter EOL1 33 49", {{2, 1}}},
      {"parameter EOL1 33 48", {}},
      {"parameter EOL1 34 126", {{13, 6}}},
      {"parameter EOL1 34 125", {}},
      {"suspension mechanical\nparameter EOL1 33 9", {}},
      {"suspension mechanical\nparameter EOL1 64 1 0xF3", {{13, 6}}},  // 49.9 mm
      {"suspension mechanical\nparameter EOL1 64 1 0xF4", {}},
      {"suspension mechanical\nparameter EOL1 64 7 0xD1", {{13, 6}}},  // 200.1 mm
      {"suspension mechanical\nparameter EOL1 68 0 99", {{13, 6}}},
      {"suspension mechanical\nparameter EOL1 68 0x0F 0xA1", {{13, 6}}},
      // Overturn Guard
      {"lateral_sensor missing", {{2, 2}}},
      {"lateral_sensor missing\nparameter EOL2 5 0x30", {}},
      {"parameter EOL2 4 2", {{14, 7}}},
      // sensors against the system
      {"parameter EOL1 13 0", {{2, 7}}},
      {"parameter EOL1 19 0x20", {{3, 0}}},  // e-f on two axles
      {"configuration 2S/2M\nparameter EOL1 7 0x20", {{3, 0}}},
      {"configuration 2S/1M\nparameter EOL1 7 0x20", {{3, 0}}},
      {"configuration 4S/3M\nparameter EOL1 7 0", {{3, 0}}},
      {"parameter EOL1 7 0", {}},
      {"configuration 2M+1M\nvehicle drawbar\nparameter EOL1 7 0", {{4, 3}}},
      {"configuration 2M+1M\nparameter EOL1 7 0", {}},
      {"vehicle drawbar\nparameter EOL1 7 0x21", {{15, 6}}},
      {"vehicle drawbar\nparameter EOL1 19 1", {}},
      // parametrised against built
      {"parameter EOL1 1 0x08", {{4, 2}}},  // 4S/3M on 4S/2M
      {"configuration 4S/3M\nparameter EOL1 1 0x04", {{6, 6}}},
      {"configuration 4S/3M\nparameter EOL1 1 0x0C", {{6, 7}}},
      {"parameter EOL1 1 0\nparameter EOL1 7 0", {{15, 4}, {15, 5}}},
      {"parameter EOL1 1 0x10\nparameter EOL1 7 0", {{15, 4}, {15, 5}}},
      {"parameter EOL1 1 0x07", {{13, 6}}},  // vehicle type 3
      {"parameter EOL1 1 0x14", {{14, 5}}},  // system 5
      // braking
      {"parameter EOL1 46 7", {{7, 2}}},
      {"parameter EOL1 46 8", {}},
      {"parameter EOL1 46 63", {{7, 2}}},
      {"parameter EOL1 46 62", {}},
      {"parameter EOL1 38 45", {{7, 1}}},
      {"parameter EOL1 39 65", {{7, 1}}},
      {"parameter EOL1 42 41", {{7, 1}, {7, 2}}},
      {"parameter EOL1 43 63", {{7, 1}}},
      {"parameter EOL1 45 101", {{14, 4}}},
      {"parameter EOL1 45 100", {}},
      {"parameter EOL1 41 101", {{14, 4}}},
      // wheels
      {"parameter EOL1 58 49\nparameter EOL1 55 60", {{14, 5}}},
      {"parameter EOL1 58 50\nparameter EOL1 55 60", {}},
      {"parameter EOL1 58 131", {{14, 5}}},
      {"parameter EOL1 55 47\nparameter EOL1 58 50", {{14, 5}}},
      {"parameter EOL1 55 209\nparameter EOL1 58 130", {{14, 5}, {15, 7}}},
      {"parameter EOL1 55 156", {}},  // 39 mm a tooth
      {"parameter EOL1 55 157", {{15, 7}}},
      {"parameter EOL1 56 92", {}},  // 23 mm a tooth
      {"parameter EOL1 56 91", {{15, 7}}},
      {"configuration 2S/2M\nparameter EOL1 56 91", {}},  // nobody senses e-f
      // pins
      {"parameter EOL5 1 177\nparameter EOL5 18 177", {{13, 1}}},
      {"parameter EOL5 18 65", {}},  // the shared output
      {"parameter EOL5 21 161\nparameter EOL5 103 161", {{13, 1}}},
      {"parameter EOL5 83 255 255", {}},
      // functions
      {"parameter EOL3 1 21 0 1", {}},
      {"parameter EOL3 1 12 10 1", {}},
      {"parameter EOL3 1 11 10 1", {{16, 1}}},
      {"parameter EOL3 1 101 10 1", {{16, 1}}},
      {"parameter EOL3 1 1 0 1", {{16, 1}}},
      {"parameter EOL3 1 11 10 2", {}},
      {"parameter 0x39 1 4\nparameter 0x39 51 76 105 102 116 32 65 120 108 101", {{19, 3}}},
      {"parameter 0x39 1 4\nparameter 0x39 51 76 105 102 116 32 65 120 108 101\n"
       "parameter EOL1 19 1",
       {}},
      // checksums
      {"checksum EOL1 wrong", {{17, 0}}},
      {"checksum EOL7 wrong", {{17, 1}}},
      {"checksum EOL3 wrong", {{17, 2}}},
      {"checksum FCF8 wrong", {{17, 2}}},
      {"checksum EOL2 wrong", {{3, 6}}},
      {"checksum EOL4 wrong", {{3, 3}}},
      {"checksum EOL5 wrong", {{3, 5}}},
      {"checksum EOL6 wrong", {{4, 0}}},
      {"checksum EOL9 wrong", {{3, 2}}},
      // whatever the parameters say
      {"parameter_error 20-7 on", {{20, 7}}},
      {"parameter_error 1-0 on\nparameter_error 1-0 off", {}},
  };
  for (const Complaint& row : rows) {
    Start(row.scenario);
    ASSERT_EQ(link_->ScenarioError(), "") << row.scenario;
    ASSERT_EQ(Connect(), 0);
    EXPECT_EQ(Errors(), row.bits) << row.scenario;
  }
}

TEST_F(PlausibilityTest, AWriteSpoilsTheChecksumUntilTheRoutineRebuildsIt) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Read(0x3D), 0);
  ASSERT_EQ(Write(0x3D, {buffer_.begin() + 1, buffer_.begin() + 11}), 0);
  EXPECT_EQ(Errors(), (Bits{{3, 6}}));
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1);
  EXPECT_EQ(Errors(), (Bits{{3, 6}}));
  OpenParameters();
  ASSERT_EQ(Access(0), 0);
  ASSERT_EQ(Routine(0x05, {}), 0);
  EXPECT_EQ(Errors(), Bits{});
}

TEST_F(PlausibilityTest, ChecksumsCanFailToBeRebuilt) {
  ConnectAndRead("checksum EOL1 wrong\nfailure checksums_fail times=1");
  OpenParameters();
  EXPECT_EQ(Routine(0x05, {}), 0);
  EXPECT_EQ(Errors(), (Bits{{17, 0}}));
  EXPECT_EQ(Routine(0x05, {}), 0);
  EXPECT_EQ(Errors(), Bits{});
}

}  // namespace
}  // namespace lorimet::simulator
