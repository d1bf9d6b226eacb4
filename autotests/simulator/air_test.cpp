#include <algorithm>
#include <cmath>
#include <string>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

class AirTest : public LinkFixture {
 protected:
  double Number(const std::string& name) { return std::stod(link_->Get(name)); }
  void Set(std::uint8_t channel, double psi) {
    const auto counts = static_cast<unsigned>(std::lround(psi / 14.5 * 5120));
    const auto low = static_cast<std::uint8_t>(counts & 0xFF);
    const auto high = static_cast<std::uint8_t>(counts >> 8);
    EXPECT_EQ(Routine(0x06, {channel, low, high, low, high, 0xE8, 0x03}), 0);
  }
  void TestMode(const std::string& scenario = "") {
    ConnectAndRead(scenario);
    OpenParameters();
    ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  }
};

TEST_F(AirTest, TheReservoirIsPumpedFromCutInToCutOut) {
  Start("supply 100.5");
  EXPECT_EQ(link_->Get("supply"), "100.5");
  link_->Advance(20);
  EXPECT_NEAR(Number("supply"), 100.5 - 0.4, 0.01) << "it leaks";
  link_->Command("supply 99.9");
  link_->Advance(5);
  EXPECT_NEAR(Number("supply"), 99.9 + 5 * 1.98, 0.05);
  link_->Advance(30);
  EXPECT_NEAR(Number("supply"), 120, 0.6);
  EXPECT_LE(Number("supply"), 120);
}

TEST_F(AirTest, ALeakIsStrongerThanTheCompressorAfterAMinute) {
  Start("defect supply_leak 2.5");
  link_->Advance(60);
  EXPECT_NEAR(Number("supply"), 71, 1.5);
}

TEST_F(AirTest, TheControlLineRampsWithThePedal) {
  Start("");
  link_->Command("press demand 60");
  link_->Advance(0.25);
  EXPECT_NEAR(Number("control_line"), 30, 0.01);
  link_->Advance(1);
  EXPECT_EQ(link_->Get("control_line"), "60");
  link_->Command("press demand 0");
  link_->Advance(0.1);
  EXPECT_NEAR(Number("control_line"), 35, 0.01);
  link_->Advance(1);
  EXPECT_EQ(link_->Get("control_line"), "0");
}

TEST_F(AirTest, BrakingTakesAirOutOfTheReservoir) {
  ConnectAndRead("compressor off\nload laden\nsupply 110");
  link_->Command("press demand 90");
  link_->Advance(2);
  const double delivered = Number("h1") + Number("h2");
  EXPECT_NEAR(Number("supply"), 110 - 0.05 - 0.03 * delivered - 0.04, 0.05);
}

TEST_F(AirTest, AModulatorWaitsItsDeadTimeThenFillsAndHolds) {
  TestMode();
  Set(1, 58);
  link_->Advance(0.04);
  EXPECT_EQ(link_->Get("h1"), "0");
  link_->Advance(0.01);
  EXPECT_GT(Number("h1"), 1);
  link_->Advance(0.35);
  EXPECT_NEAR(Number("h1"), 58 * 1.006, 0.75);
  link_->Advance(1);
  const double held = Number("h1");
  link_->Advance(10);
  EXPECT_NEAR(Number("h1"), held - 0.2, 0.02) << "it loses a little between its valves";
}

TEST_F(AirTest, TheModulatorsDifferByTheirTolerances) {
  TestMode();
  Set(1, 58);
  Set(2, 58);
  link_->Advance(2);
  EXPECT_NEAR(Number("h1"), 58 * 1.006, 0.75);
  EXPECT_NEAR(Number("h2"), 58 * 0.992, 0.75);
  EXPECT_GT(Number("h1"), Number("h2") + 0.2);
}

TEST_F(AirTest, EmptyingTakesLongerThanFilling) {
  TestMode();
  Set(1, 58);
  link_->Advance(1);
  Set(1, 0);
  link_->Advance(0.4);
  EXPECT_GT(Number("h1"), 9);
  EXPECT_LT(Number("h1"), 16);
  link_->Advance(1.5);
  EXPECT_EQ(link_->Get("h1"), "0");
}

TEST_F(AirTest, ASmallMoveOfTheTargetLeavesTheValvesAlone) {
  TestMode();
  Set(1, 30);
  link_->Advance(1);
  const double before = Number("h1");
  Set(1, 30.5);
  link_->Advance(0.5);
  EXPECT_NEAR(Number("h1"), before, 0.02);
  Set(1, 32);
  link_->Advance(0.5);
  EXPECT_GT(Number("h1"), before + 0.8);
}

TEST_F(AirTest, RedundancyOpensAtItsPressureAndTakesItsTime) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 1}), 0);
  link_->Command("press demand 3.9");
  link_->Advance(3);
  EXPECT_EQ(link_->Get("h1"), "0");
  link_->Command("press demand 50");
  link_->Advance(0.417);  // the line has reached 50
  const double reached = Number("h1");
  link_->Advance(0.25);
  EXPECT_NEAR(49 - Number("h1"), (49 - reached) / std::exp(1.0), 0.8);
}

TEST_F(AirTest, WithoutPowerTheBrakesAreInRedundancy) {
  ConnectAndRead("load unladen");
  link_->Command("press demand 60");
  link_->Advance(1);
  EXPECT_LT(Number("h1"), 30) << "by load";
  link_->Command("power off");
  link_->Command("stop_light_power off");
  link_->Advance(2);
  EXPECT_NEAR(Number("h1"), 59, 0.1);
}

TEST_F(AirTest, WhatTheRecordTellsOfPhysicalPressuresStaysPhysicalInTheTestMode) {
  TestMode("noise off");
  Set(0, 60);
  Set(4, 60);
  link_->Command("press demand 20");
  link_->Advance(1);
  EXPECT_NEAR(record_.dServiceBrake.Load(), 20, 0.01);
  EXPECT_NEAR(record_.dMainBellows.Load(), 7 * 1.451, 0.01);
  EXPECT_NEAR(record_.dBrake1Press.Load(), Number("h1"), 0.05);
}

}  // namespace
}  // namespace lorimet::simulator
