// Faults that the ECU finds by itself, power, driving and the recorder.
#include <set>
#include <string>
#include <utility>

#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

class OwnFaultsTest : public LinkFixture {
 protected:
  std::string Fault(int sid, int fmi) {
    return link_->Get("fault " + std::to_string(sid) + " " + std::to_string(fmi));
  }
  double Number(const std::string& name) { return std::stod(link_->Get(name)); }
  // Lets time pass until a fault is there; seconds, or -1 when it does not come within the limit.
  double SecondsUntil(int sid, int fmi, double limit) {
    for (int step = 1; step <= static_cast<int>(limit * 100 + 0.5); ++step) {
      link_->Advance(0.01);
      if (Fault(sid, fmi).starts_with("active")) return step * 0.01;
    }
    return -1;
  }
};

struct CauseRow {
  const char* scenario;  // what has to be there before
  const char* cause;
  const char* mended;
  int sid, fmi;
  double seconds;
};

const CauseRow kRows[] = {
    {"", "defect sensor c open", "repair sensor", 3, 5, 0.2},
    {"", "defect sensor d short", "repair sensor", 4, 4, 0.2},
    {"", "defect sensor e short_12v", "repair sensor", 5, 3, 0.2},
    {"", "defect sensor f open", "repair sensor", 6, 5, 0.2},
    {"drive 20", "defect sensor c gap=0.5", "repair sensor", 3, 1, 3},
    {"drive 20", "defect sensor f dead", "repair sensor", 6, 9, 3},
    {"drive 20", "defect sensor e erratic", "repair sensor", 5, 7, 3},
    {"", "defect modulator H1 dead", "repair modulator", 10, 5, 0.5},
    {"", "defect modulator H2 dead", "repair modulator", 9, 5, 0.5},
    {"", "defect pressure_sensor H1 none", "repair pressure_sensor", 62, 4, 0.5},
    {"", "defect pressure_sensor H2 high", "repair pressure_sensor", 62, 3, 0.5},
    {"load laden\npress demand 60", "defect modulator H2 weak=0.7", "repair modulator", 62, 0, 2},
    {"", "defect modulator H1 residual=16", "repair modulator", 62, 11, 5},
    {"drive 20", "defect modulator H2 residual=8", "repair modulator", 62, 15, 5},
    {"", "defect control_sensor none", "repair control_sensor", 77, 5, 0.5},
    {"", "defect control_sensor high", "repair control_sensor", 77, 3, 0.5},
    {"", "defect control_residual 4", "repair control_residual", 143, 15, 30},
    {"", "defect supply_sensor none", "repair supply_sensor", 144, 4, 0.5},
    {"", "defect supply_sensor high", "repair supply_sensor", 144, 3, 0.5},
    {"drive 20\ncompressor off", "supply 60", "supply 90", 144, 1, 1},
    {"", "defect bellows_sensor none", "repair bellows_sensor", 69, 5, 0.5},
    {"", "defect bellows_sensor high", "repair bellows_sensor", 69, 3, 0.5},
    {"drive 20", "defect bellows burst", "repair bellows", 69, 12, 10},
    {"suspension mechanical", "defect height_sensor open", "repair height_sensor", 120, 5, 0.5},
    {"", "voltage 9.4", "voltage 12", 251, 12, 2},
    {"", "voltage 16.1", "voltage 12", 251, 3, 2},
    {"", "voltage_source stop_light", "voltage_source permanent", 251, 2, 5},
    {"", "bus noise 0.02", "bus noise 0", 220, 9, 5},
};

TEST_F(OwnFaultsTest, EachCauseIsFoundAfterItsTimeStoredWhenGoneAndCountedWhenItComesAgain) {
  for (const CauseRow& row : kRows) {
    ConnectAndRead(row.scenario);
    link_->Advance(8);
    ASSERT_EQ(link_->Get("faults"), "0") << row.cause;
    ASSERT_EQ(link_->Command(row.cause), "");
    EXPECT_NEAR(SecondsUntil(row.sid, row.fmi, row.seconds + 3), row.seconds, 0.15) << row.cause;
    EXPECT_EQ(Fault(row.sid, row.fmi), "active 1") << row.cause;
    EXPECT_EQ(link_->Get("lamp output"), "on") << row.cause;
    ASSERT_EQ(link_->Command(row.mended), "");
    link_->Advance(2);
    EXPECT_EQ(Fault(row.sid, row.fmi), "stored 1") << row.cause;
    ASSERT_EQ(link_->Command(row.cause), "");
    link_->Advance(row.seconds + 3);
    EXPECT_EQ(Fault(row.sid, row.fmi), "active 2") << row.cause;
  }
}

TEST_F(OwnFaultsTest, WhatStandsIsBackAfterClearingByTheSameRule) {
  for (const CauseRow& row : kRows) {
    ConnectAndRead(row.scenario);
    link_->Advance(8);
    link_->Command(row.cause);
    link_->Advance(row.seconds + 3);
    ASSERT_EQ(link_->ClearAllFaults(), 0);
    EXPECT_EQ(Fault(row.sid, row.fmi), "none") << row.cause;
    EXPECT_NEAR(SecondsUntil(row.sid, row.fmi, row.seconds + 3), row.seconds, 0.4) << row.cause;
    EXPECT_EQ(Fault(row.sid, row.fmi), "active 1") << row.cause;
  }
}

TEST_F(OwnFaultsTest, AResetFindsElectricalCausesAtOnceAndOthersInTheirTime) {
  std::set<std::pair<int, int>> electrical;
  for (const CauseFacts& facts : CauseTable())
    if (facts.kind == CauseKind::kElectrical) electrical.insert({facts.sid, facts.fmi});
  for (const CauseRow& row : kRows) {
    ConnectAndRead(row.scenario);
    link_->Advance(8);
    link_->Command(row.cause);
    link_->Advance(row.seconds + 3);
    ASSERT_EQ(link_->ClearAllFaults(), 0);
    ASSERT_EQ(link_->ResetECU(), 0);
    const bool at_once = electrical.contains({row.sid, row.fmi});
    EXPECT_EQ(Fault(row.sid, row.fmi), at_once ? "active 1" : "none") << row.cause;
  }
  EXPECT_EQ(electrical.size(), 23u);
}

TEST_F(OwnFaultsTest, EveryCauseOfTheTableHasARowHereOrComesAtTheStart) {
  std::set<std::pair<int, int>> rows;
  for (const CauseRow& row : kRows) rows.insert({row.sid, row.fmi});
  // The sensors' causes stand once each above, for one sensor.
  for (const CauseFacts& facts : CauseTable()) {
    if (facts.kind == CauseKind::kStart) continue;
    bool found = rows.contains({facts.sid, facts.fmi});
    if (facts.sid >= 3 && facts.sid <= 6)
      for (int sid = 3; sid <= 6; ++sid) found = found || rows.contains({sid, facts.fmi});
    EXPECT_TRUE(found) << facts.sid << "/" << facts.fmi;
  }
}

TEST_F(OwnFaultsTest, EachSensorHasItsOwnNumber) {
  const std::pair<char, int> rows[] = {{'c', 3}, {'d', 4}, {'e', 5}, {'f', 6}};
  for (const auto& [letter, sid] : rows) {
    ConnectAndRead(std::string("defect sensor ") + letter + " open");
    for (int other = 3; other <= 6; ++other)
      EXPECT_EQ(Fault(other, 5), other == sid ? "active 1" : "none") << letter;
  }
}

TEST_F(OwnFaultsTest, SomeCausesAreLookedAtWhenTheEcuStarts) {
  struct Row {
    const char* cause;
    int fmi, sid;
  };
  const Row rows[] = {{"checksum EOL3 wrong", 12, 253},
                      {"parameter_error 10-4 on", 2, 253},
                      {"start_up required", 14, 253},
                      {"calibration open", 13, 120}};
  for (const Row& row : rows) {
    ConnectAndRead("suspension mechanical");
    ASSERT_EQ(link_->Command(row.cause), "");
    link_->Advance(10);
    EXPECT_EQ(Fault(row.sid, row.fmi), "none") << row.cause;
    ASSERT_EQ(link_->ResetECU(), 0);
    EXPECT_EQ(Fault(row.sid, row.fmi), "active 1") << row.cause;
    EXPECT_EQ(link_->Get("faults"), "1") << row.cause;
    ConnectAndRead(std::string("suspension mechanical\n") + row.cause);
    EXPECT_EQ(Fault(row.sid, row.fmi), "active 1") << row.cause << " from the beginning";
  }
  ConnectAndRead("start_up required\nflag 1");
  EXPECT_EQ(Fault(253, 14), "none");
}

TEST_F(OwnFaultsTest, ACalibrationHealsTheMissingOne) {
  ConnectAndRead("suspension mechanical\ncalibration open");
  EXPECT_EQ(Fault(120, 13), "active 1");
  OpenParameters();
  ASSERT_EQ(Routine(0x3C, {1}), 0);
  EXPECT_EQ(Fault(120, 13), "stored 1");
  EXPECT_EQ(link_->Get("calibrated"), "yes");
}

TEST_F(OwnFaultsTest, WhatTheEcuCannotKnowIsNoFault) {
  for (const char* defect :
       {"wire c d", "lines_swapped", "brake_lines crossed", "lamp dead", "stop_lights dead",
        "redundancy H1 blocked", "wheel 1 no_brake", "mode_ignored 2", "load_ignored"}) {
    if (std::string_view(defect) == "lines_swapped") continue;  // air stands in the control port
    ConnectAndRead(std::string("defect ") + defect);
    link_->Advance(40);
    EXPECT_EQ(link_->Get("faults"), "0") << defect;
  }
}

TEST_F(OwnFaultsTest, ALampThatIsDeadOrShortedDiffersFromItsOutput) {
  ConnectAndRead("defect lamp dead\nfault 3 5 active");
  EXPECT_EQ(link_->Get("lamp output"), "on");
  EXPECT_EQ(link_->Get("lamp lit"), "off");
  EXPECT_EQ(record_.nWarningLamp.Load(), 1);
  ConnectAndRead("defect lamp shorted");
  EXPECT_EQ(link_->Get("lamp output"), "off");
  EXPECT_EQ(link_->Get("lamp lit"), "on");
  EXPECT_EQ(record_.nWarningLamp.Load(), 0);
}

// --- Power --------------------------------------------------------------------------------------

using PowerTest = OwnFaultsTest;

TEST_F(PowerTest, TheEcuGoesOutBelowEightVoltsAndComesBackAboveNineAsAtPowerOn) {
  ConnectAndRead();
  OpenParameters();
  ASSERT_EQ(Routine(0x37, {0, 0, 2}), 0);
  link_->Command("voltage 8.0");
  link_->Advance(0.5);
  EXPECT_EQ(link_->Get("ecu"), "on");
  link_->Command("voltage 7.9");
  link_->Advance(0.5);
  EXPECT_EQ(link_->Get("ecu"), "off");
  EXPECT_EQ(link_->FaultLock(), kNoAnswer);
  EXPECT_EQ(link_->Get("mode"), "normal");
  EXPECT_EQ(link_->Get("lamp lit"), "off");
  link_->Command("voltage 9.0");
  link_->Advance(2);
  EXPECT_EQ(link_->Get("ecu"), "off");
  EXPECT_EQ(statuses_.back(), -100);
  link_->Command("voltage 9.1");
  link_->Advance(0.5);
  EXPECT_EQ(link_->Get("ecu"), "restarting");
  EXPECT_EQ(link_->Get("lamp lit"), "on");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("ecu"), "on");
  EXPECT_EQ(link_->Get("session"), "closed");
}

TEST_F(PowerTest, TheStopLightCircuitKeepsTheEcuAliveWhileTheBrakeIsApplied) {
  ConnectAndRead();
  link_->Command("power off");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("ecu"), "off");
  link_->Command("press demand 30");
  link_->Advance(2);
  EXPECT_EQ(link_->Get("ecu"), "on");
  EXPECT_EQ(record_.dVoltageSource.Load(), 0);
  link_->Command("stop_light_power off");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("ecu"), "off");
  link_->Command("power on");
  link_->Advance(2);
  EXPECT_EQ(record_.dVoltageSource.Load(), 1);
}

TEST_F(PowerTest, ValvesAndLampPullTheVoltageDown) {
  ConnectAndRead("noise off");
  EXPECT_NEAR(record_.dPrimaryVolts.Load(), 1260, 0.01);
  link_->Command("fault 3 5 active");
  link_->Advance(0.2);
  EXPECT_NEAR(record_.dPrimaryVolts.Load(), 1235, 0.01);
}

// --- Driving and the recorder -------------------------------------------------------------------

using DrivingTest = OwnFaultsTest;

TEST_F(DrivingTest, TheVehicleGainsItsSpeedHoldsItAndStops) {
  ConnectAndRead();
  link_->Command("drive 20");
  link_->Advance(2.5);
  EXPECT_NEAR(Number("speed"), 10, 0.1);
  link_->Advance(20);
  EXPECT_EQ(link_->Get("speed"), "20");
  for (std::size_t i = 2; i < 6; ++i) EXPECT_NEAR(record_.dWheelSpeed[i].Load(), 20, 0.1);
  link_->Command("drive stop");
  link_->Advance(5);
  EXPECT_EQ(link_->Get("speed"), "0");
  EXPECT_EQ(record_.dWheelSpeed[2].Load(), 0);
}

TEST_F(DrivingTest, TheOdometerCountsDrivingAndNoHand) {
  ConnectAndRead("distance odometer 100");
  link_->Command("spin 2 20");
  link_->Advance(5);
  EXPECT_EQ(link_->Get("distance odometer"), "100");
  link_->Command("drive 36");
  link_->Advance(109);  // 9 s to gain the speed, 100 s at 36 mph: a mile
  EXPECT_NEAR(Number("distance odometer"), 100 + 1.609 * (1 + 0.045), 0.01);
}

TEST_F(DrivingTest, ASlippingWheelCountsAndLosesItsBrake) {
  ConnectAndRead("load laden");
  link_->Command("drive 30");
  link_->Advance(10);
  link_->Command("press demand 60");
  link_->Advance(3);
  EXPECT_EQ(link_->Get("odr abs"), "0") << "a dry road holds";
  link_->Command("press demand 0");
  link_->Advance(2);
  link_->Command("surface ice");
  link_->Command("press demand 60");
  link_->Advance(3);
  EXPECT_GT(Number("odr abs"), 0);
  std::uint8_t high = 0;
  std::uint8_t low = 0;
  ASSERT_EQ(link_->Trailer_ABS_KWP_ReadMemoryByAddress(2, 0x3A, 7, &high, &low), 0);
  EXPECT_EQ(high * 256 + low, static_cast<int>(Number("odr abs")));
}

TEST_F(DrivingTest, LeaningCountsItsLevelsWithOverturnGuardAboveTwelveMph) {
  const auto levels = [&](const char* scenario, const char* mph, const char* g, double seconds) {
    ConnectAndRead(scenario);
    link_->Command(std::string("drive ") + mph);
    link_->Advance(10);
    link_->Command(std::string("lateral ") + g);
    link_->Advance(seconds);
    link_->Command("lateral 0");
    link_->Advance(1);
    return link_->Get("odr level1") + " " + link_->Get("odr level2");
  };
  EXPECT_EQ(levels("", "20", "0.30", 1), "0 0");
  EXPECT_EQ(levels("", "20", "0.31", 1), "1 0");
  EXPECT_EQ(levels("", "20", "0.41", 1), "1 1");
  EXPECT_EQ(levels("", "20", "0.41", 0.25), "0 0") << "too short";
  EXPECT_EQ(levels("", "12", "0.41", 1), "0 0") << "too slow";
  EXPECT_EQ(levels("parameter EOL2 5 0x30", "20", "0.41", 1), "0 0") << "Overturn Guard off";
}

TEST_F(DrivingTest, EachRiseOfTheStopLightCircuitCounts) {
  ConnectAndRead();
  for (int i = 0; i < 3; ++i) {
    link_->Command("press demand 5");
    link_->Advance(1);
    link_->Command("press demand 0");
    link_->Advance(1);
  }
  link_->Command("press demand 4");
  link_->Advance(1);
  EXPECT_EQ(link_->Get("odr stop_light"), "3");
}

TEST_F(DrivingTest, EachSelectorEmptiesItsCounters) {
  const auto counters = [&] {
    return link_->Get("odr abs") + link_->Get("odr stop_light") + link_->Get("odr level1") +
           link_->Get("odr level2");
  };
  const std::pair<int, const char*> rows[] = {
      {3, "1034"}, {5, "1234"}, {6, "0234"}, {7, "1200"}, {8, "1234"}};
  for (const auto& [selector, left] : rows) {
    ConnectAndRead();
    RecorderCounters& recorder = link_->TheTrailer().Recorder();
    recorder.Set(RecorderCounter::kAbs, 1);
    recorder.Set(RecorderCounter::kStopLight, 2);
    recorder.Set(RecorderCounter::kLevel1, 3);
    recorder.Set(RecorderCounter::kLevel2, 4);
    EXPECT_EQ(link_->Trailer_ABS_QOR_DeleteODRData(static_cast<std::uint8_t>(selector)), 0);
    EXPECT_EQ(counters(), left) << selector;
  }
  EXPECT_EQ(link_->Trailer_ABS_QOR_DeleteODRData(4), kSubfunctionNotSupported);
}

TEST_F(DrivingTest, ACounterStopsAtItsMost) {
  RecorderCounters recorder;
  recorder.Set(RecorderCounter::kAbs, 32766);
  recorder.Count(RecorderCounter::kAbs);
  recorder.Count(RecorderCounter::kAbs);
  EXPECT_EQ(recorder.Value(RecorderCounter::kAbs), 32767);
}

TEST_F(DrivingTest, WhatWasDrivenCountedCalibratedAndWrittenOutlivesThePower) {
  constexpr char kScenario[] = "suspension mechanical\ncalibration open";
  Link link(kScenario);
  link.Command("drive 50");
  link.Advance(120.37);
  link.Command("press demand 20");
  link.Advance(2);
  link.Command("calibration done");
  link.Command("word 2 7 0x10 0xABCD");
  const std::string odometer = link.Get("distance odometer");
  Link next(kScenario);
  EXPECT_NE(next.Get("distance odometer"), odometer);
  ASSERT_TRUE(next.Restore(link.State()));
  EXPECT_EQ(next.Get("distance odometer"), odometer);
  EXPECT_EQ(next.Get("distance trip"), link.Get("distance trip"));
  EXPECT_EQ(next.Get("distance next_service"), link.Get("distance next_service"));
  EXPECT_EQ(next.Get("odr stop_light"), "1");
  EXPECT_EQ(next.Get("calibrated"), "yes");
  EXPECT_EQ(next.TheTrailer().ReadWord(0x020710), 0xABCD);
  EXPECT_EQ(next.State(), link.State()) << "to the last bit";
}

}  // namespace
}  // namespace lorimet::simulator
