#include <algorithm>
#include <cmath>
#include <cstdio>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using LiveValuesTest = LinkFixture;

TEST_F(LiveValuesTest, AHealthyTrailerStandsStillWithAirAndNoDemand) {
  ConnectAndRead("noise off");
  EXPECT_EQ(record_.dServiceBrake.Load(), 0);
  EXPECT_EQ(record_.dBrake1Press.Load(), 0);
  EXPECT_EQ(record_.dBrake2Press.Load(), 0);
  EXPECT_GT(record_.dSupplyPress.Load(), 100);
  EXPECT_NEAR(record_.dPrimaryVolts.Load(), 1260, 6);
  EXPECT_EQ(record_.dVoltageSource.Load(), 1);
  EXPECT_NEAR(record_.dMainBellows.Load(), 7 * 1.451, 1e-9);
  for (std::size_t i = 2; i < 6; ++i) EXPECT_EQ(record_.dWheelSpeed[i].Load(), 0) << i;
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
  EXPECT_EQ(record_.bNumFaults.Load(), 0);
}

TEST_F(LiveValuesTest, OnlySensorsThatAreThereTellASpeed) {
  ConnectAndRead("configuration 2S/2M");
  EXPECT_EQ(record_.dWheelSpeed[0].Load(), -1);
  EXPECT_EQ(record_.dWheelSpeed[1].Load(), -1);
  EXPECT_EQ(record_.dWheelSpeed[2].Load(), 0);
  EXPECT_EQ(record_.dWheelSpeed[3].Load(), 0);
  EXPECT_EQ(record_.dWheelSpeed[4].Load(), -1);
  EXPECT_EQ(record_.dWheelSpeed[5].Load(), -1);
}

TEST_F(LiveValuesTest, ASingleModulatorHasNoSecondSideAndNoSupplySensor) {
  ConnectAndRead("configuration 2S/1M");
  EXPECT_EQ(record_.dSupplyPress.Load(), -1);
  EXPECT_EQ(record_.dBrake2Press.Load(), -1);
  EXPECT_EQ(record_.dBrake1Press.Load(), 0);
}

TEST_F(LiveValuesTest, OnlyAThirdModulatorMeasuresASteeringBellows) {
  ConnectAndRead();
  EXPECT_GT(record_.dSteerBellows.Load(), 181.9);
  ConnectAndRead("configuration 2M+1M\nnoise off");
  EXPECT_EQ(record_.dSteerBellows.Load(), record_.dMainBellows.Load());
}

TEST_F(LiveValuesTest, BellowsFollowTheLoadBetweenTheParametersPressuresInTheirTime) {
  ConnectAndRead("noise off");
  link_->Command("load laden");
  link_->Advance(6);  // one time constant
  const double unladen = 7 * 1.451;
  const double laden = 48 * 1.451;
  EXPECT_NEAR(record_.dMainBellows.Load(), unladen + (laden - unladen) * 0.632, 1);
  link_->Advance(60);
  EXPECT_NEAR(record_.dMainBellows.Load(), laden, 0.01);
  link_->Command("load 0.5");
  link_->Advance(60);
  EXPECT_NEAR(record_.dMainBellows.Load(), 27.5 * 1.451, 0.01);
}

TEST_F(LiveValuesTest, ALoadOfTheScenarioHasSettledWhenTheTrailerIsFound) {
  ConnectAndRead("noise off\nload laden");
  EXPECT_NEAR(record_.dMainBellows.Load(), 48 * 1.451, 1e-9);
}

TEST_F(LiveValuesTest, TheSupplyLeaksAndIsPumpedBetweenCutInAndCutOut) {
  ConnectAndRead();
  link_->Command("supply 101");
  double lowest = 200;
  double highest = 0;
  for (int second = 0; second < 300; ++second) {
    link_->Advance(1);
    lowest = std::min(lowest, record_.dSupplyPress.Load());
    highest = std::max(highest, record_.dSupplyPress.Load());
  }
  EXPECT_GT(lowest, 99);
  EXPECT_NEAR(highest, 120, 0.3);
  link_->Command("compressor off");
  const double before = record_.dSupplyPress.Load();
  link_->Advance(100);
  EXPECT_NEAR(record_.dSupplyPress.Load(), before - 2, 0.1);
}

TEST_F(LiveValuesTest, ASpunWheelCoastsDownAlone) {
  ConnectAndRead();
  link_->Command("spin c 12");
  link_->Advance(0.1);
  EXPECT_GT(record_.dWheelSpeed[3].Load(), 11);
  EXPECT_EQ(record_.dWheelSpeed[2].Load(), 0);
  link_->Advance(4);
  EXPECT_NEAR(record_.dWheelSpeed[3].Load(), 12 - 1.2 * 4.1, 0.2);
  link_->Advance(6);
  EXPECT_EQ(record_.dWheelSpeed[3].Load(), 0);
}

TEST_F(LiveValuesTest, EveryLetterSpinsItsOwnSensor) {
  const std::pair<const char*, std::size_t> rows[] = {
      {"spin d 9", 2}, {"spin c 9", 3}, {"spin f 9", 4}, {"spin e 9", 5}};
  for (const auto& [command, index] : rows) {
    ConnectAndRead();
    ASSERT_EQ(link_->Command(command), "");
    link_->Advance(0.1);
    for (std::size_t i = 2; i < 6; ++i)
      EXPECT_EQ(record_.dWheelSpeed[i].Load() > 4, i == index) << command << " " << i;
  }
}

TEST_F(LiveValuesTest, ABrakedWheelDoesNotTurn) {
  ConnectAndRead("load laden");
  link_->Command("press demand 90");
  link_->Advance(1);
  link_->Command("spin all 15");
  link_->Advance(0.1);
  for (std::size_t i = 2; i < 6; ++i) EXPECT_EQ(record_.dWheelSpeed[i].Load(), 0) << i;
}

TEST_F(LiveValuesTest, BrakePressureFollowsTheDemandByTheLoad) {
  ConnectAndRead("load laden\nnoise off");
  link_->Command("press demand 65.295");  // the second control point, 4.5 bar
  link_->Advance(1.5);
  EXPECT_EQ(record_.dServiceBrake.Load(), 65.295);
  EXPECT_NEAR(record_.dBrake1Press.Load(), 40 * 1.451, 0.9);
  EXPECT_NEAR(record_.dBrake2Press.Load(), 40 * 1.451, 1.2);
  link_->Command("load unladen");
  link_->Advance(40);
  EXPECT_LT(record_.dBrake1Press.Load(), 24 * 1.451);
  link_->Command("press demand 0");
  link_->Advance(2);
  EXPECT_EQ(record_.dBrake1Press.Load(), 0);
}

TEST_F(LiveValuesTest, NoBrakePressureExceedsTheSupply) {
  ConnectAndRead("load laden\ncompressor off\nsupply 30");
  link_->Command("press demand 94");
  link_->Advance(2);
  EXPECT_LE(record_.dBrake1Press.Load(), 30);
  EXPECT_GT(record_.dBrake1Press.Load(), 20);
}

TEST_F(LiveValuesTest, DistancesGrowWithTheWheels) {
  ConnectAndRead("distance odometer 100\ndistance trip 10\ndistance next_service 50");
  const double before = record_.dOdometer.Load();
  EXPECT_EQ(before, 100);
  link_->Command("spin all 100");
  link_->Advance(30);
  EXPECT_GT(record_.dOdometer.Load(), 100.5);
  EXPECT_NEAR(record_.dTripReading.Load() - 10, record_.dOdometer.Load() - 100, 1e-9);
  EXPECT_NEAR(50 - record_.dNextService.Load(), record_.dOdometer.Load() - 100, 1e-9);
}

TEST_F(LiveValuesTest, TheLampIsCheckedAtPowerOnAndAtEveryReset) {
  Start("");
  ASSERT_EQ(Connect(), 0);
  link_->Advance(1);
  EXPECT_EQ(record_.nWarningLamp.Load(), 1);
  link_->Advance(1.2);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
  ASSERT_EQ(link_->ResetECU(), 0);
  link_->Advance(1.5);
  EXPECT_EQ(record_.nWarningLamp.Load(), 1);
  link_->Advance(1);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
}

TEST_F(LiveValuesTest, TheLampStaysOnForAnActiveFaultOnly) {
  ConnectAndRead("fault 7 3 stored");
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
  link_->Command("fault 3 5 active");
  link_->Advance(0.2);
  EXPECT_EQ(record_.nWarningLamp.Load(), 1);
  EXPECT_EQ(record_.bNumFaults.Load(), 2);
  link_->Command("fault 3 5 gone");
  link_->Advance(0.2);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
}

TEST_F(LiveValuesTest, VoltageAndItsSourceAreThePersonsToSet) {
  ConnectAndRead("voltage 11\nvoltage_source stop_light");
  EXPECT_NEAR(record_.dPrimaryVolts.Load(), 1100, 4);
  EXPECT_EQ(record_.dVoltageSource.Load(), 0);
}

// --- The test routines --------------------------------------------------------------------------

TEST_F(LiveValuesTest, TheTestModeDeliversThePromiseOfTheParametersAtEveryPoint) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  const auto set = [&](std::uint8_t channel, double psi) {
    const auto counts = static_cast<unsigned>(std::lround(psi / 14.5 * 5120));
    const auto low = static_cast<std::uint8_t>(counts & 0xFF);
    const auto high = static_cast<std::uint8_t>(counts >> 8);
    EXPECT_EQ(Routine(0x06, {channel, low, high, low, high, 0xE8, 0x03}), 0);
  };
  struct Row {
    double bellows, control, target;
  };
  const double laden = record_.dLadenBellows.Load();
  const double unladen = record_.dUnladenBellows.Load();
  const double control1 = record_.dControlPressure1.Load();
  const double target1 = record_.dTargetPressure1.Load();
  const Row rows[] = {{laden, 0, 0},
                      {laden, control1, target1},
                      {laden, record_.dControlPressure2.Load(), record_.dTargetPressure2.Load()},
                      {unladen, 0, 0},
                      {unladen, control1, target1}};
  for (const Row& row : rows) {
    set(4, row.bellows);
    set(0, row.control);
    link_->Advance(0.85);
    EXPECT_NEAR(record_.dBrake1Press.Load(), row.target, 2.9);
    EXPECT_NEAR(record_.dBrake2Press.Load(), row.target, 2.9);
  }
}

TEST_F(LiveValuesTest, ATestRoutineFreesOneModulatorAndBrakesTheOther) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  ASSERT_EQ(Routine(0x06, {0, 0, 0x44, 0, 0x44, 0xE8, 3}), 0);
  ASSERT_EQ(Routine(0x06, {2, 0, 0x44, 0, 0x44, 0xE8, 3}), 0);
  ASSERT_EQ(Routine(0x06, {1, 0, 0, 0, 0, 0xE8, 3}), 0);
  link_->Advance(0.5);
  link_->Command("spin all 10");
  link_->Advance(0.1);
  EXPECT_GT(record_.dWheelSpeed[2].Load(), 4);  // d and f stand on modulator 1
  EXPECT_GT(record_.dWheelSpeed[4].Load(), 4);
  EXPECT_EQ(record_.dWheelSpeed[3].Load(), 0);
  EXPECT_EQ(record_.dWheelSpeed[5].Load(), 0);
  EXPECT_EQ(Routine(0x06, {9, 0, 0, 0, 0, 0xE8, 3}), kOutOfRange);
  EXPECT_EQ(Routine(0x06, {1, 0}), kSubfunctionNotSupported);
}

TEST_F(LiveValuesTest, RedundancyDeliversTheLowerOfSupplyAndDemandLessItsPredominance) {
  ConnectAndRead("noise off");
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 1}), 0);
  link_->Command("press demand 85");
  link_->Advance(3);
  EXPECT_NEAR(record_.dBrake1Press.Load(), 84, 0.05);
  EXPECT_NEAR(record_.dBrake2Press.Load(), 83.6, 0.05);
  link_->Command("compressor off");
  link_->Command("supply 70");
  link_->Advance(3);
  const double supply = record_.dSupplyPress.Load();
  EXPECT_NEAR(record_.dBrake1Press.Load(), supply - 1.0, 0.05);
  EXPECT_NEAR(record_.dBrake2Press.Load(), supply - 1.4, 0.05);
}

TEST_F(LiveValuesTest, TheLampRoutineHoldsForTheTimeThatItIsGiven) {
  ConnectAndRead("fault 3 5 active");
  OpenParameters();
  ASSERT_EQ(Routine(0x07, {0, 0xE8, 3}), 0);
  link_->Advance(0.9);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0) << "the command wins over the fault";
  link_->Advance(0.3);
  EXPECT_EQ(record_.nWarningLamp.Load(), 1) << "after a second the lamp tells the truth";
  link_->Command("fault 3 5 gone");
  ASSERT_EQ(Routine(0x07, {1, 0xE8, 3}), 0);
  link_->Advance(0.9);
  EXPECT_EQ(record_.nWarningLamp.Load(), 1);
  link_->Advance(0.3);
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
  EXPECT_EQ(Routine(0x07, {1}), kSubfunctionNotSupported);
}

TEST_F(LiveValuesTest, TheHeightSensorIsReadOnMechanicalSuspensionAlone) {
  std::array<std::uint8_t, 11> data = {1, 0, 0xFF, 0xFF};
  ConnectAndRead("suspension mechanical\nheight 1310");
  EXPECT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()), kNoSession);
  EXPECT_EQ(data[2] * 256 + data[3], 0xFFFF) << "a refused one leaves the buffer as it was";
  OpenParameters();
  ASSERT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()), 0);
  EXPECT_EQ(data[2] * 256 + data[3], 1310);
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(5, 1, data.data()), 0);
  EXPECT_EQ(data[2] * 256 + data[3], 0xFFFF);
  EXPECT_EQ(link_->Trailer_ABS_KWP_IOControlByLocId(6, 1, data.data()), kServiceNotSupported);
}

TEST_F(LiveValuesTest, CalibrationNeedsTheLeverInItsRange) {
  ConnectAndRead("suspension mechanical");
  OpenParameters();
  const std::pair<const char*, Status> rows[] = {{"height 1140", kConditionsNotCorrect},
                                                 {"height 1141", kDone},
                                                 {"height 1486", kDone},
                                                 {"height 1487", kConditionsNotCorrect}};
  for (const auto& [command, status] : rows) {
    link_->Command(command);
    EXPECT_EQ(Routine(0x3C, {1}), status) << command;
  }
  EXPECT_EQ(Routine(0x3C, {3}), kSubfunctionNotSupported);
}

constexpr char kStopLightOption[] =
    "parameter EOL5 18 65\nparameter EOL2 2 0x20\nparameter EOL3 33 3\n"
    "parameter EOL9 2 4\nparameter EOL9 15 73\n";

TEST_F(LiveValuesTest, StopLightsFollowTheirActivationForAWhile) {
  ConnectAndRead(kStopLightOption);
  ASSERT_EQ(link_->Trailer_OVG_StopLightActivation(0x89, 1), 0);
  EXPECT_EQ(link_->Get("stop_lights"), "on");
  ASSERT_EQ(link_->Trailer_OVG_StopLightActivation(0x89, 0), 0);
  EXPECT_EQ(link_->Get("stop_lights"), "off");
  ASSERT_EQ(link_->Trailer_OVG_StopLightActivation(0x8A, 1), 0) << "another trailer";
  EXPECT_EQ(link_->Get("stop_lights"), "off");
  ASSERT_EQ(link_->Trailer_OVG_StopLightActivation(0x89, 1), 0);
  link_->Advance(1.4);
  EXPECT_EQ(link_->Get("stop_lights"), "on");
  link_->Advance(0.2);
  EXPECT_EQ(link_->Get("stop_lights"), "off") << "a command that is not repeated";
  EXPECT_EQ(link_->Get("last Trailer_OVG_StopLightActivation"), "(137, 1)");
}

TEST_F(LiveValuesTest, StopLightsNeedTheOptionInEveryByteAndLamps) {
  for (const char* wrong :
       {"parameter EOL5 18 0", "parameter EOL2 2 0x80", "parameter EOL3 33 7", "parameter EOL9 2 0",
        "parameter EOL9 15 0", "stop_lights missing", "defect stop_lights dead"}) {
    ConnectAndRead(kStopLightOption);
    ASSERT_EQ(link_->Command(wrong), "");
    EXPECT_EQ(link_->Trailer_OVG_StopLightActivation(0x89, 1), 0) << wrong;
    EXPECT_EQ(link_->Get("stop_lights"), "off") << wrong;
  }
}

}  // namespace
}  // namespace lorimet::simulator
