// Whatever the record holds, at whatever moment, and whatever the user does: the screens stay
// usable, and the one error that may come is the overflow that the program reports.
#include <functional>
#include <random>

#include "autotests/tests/test_screen_fixture.h"
#include "platform/runtime_error.h"
#include "tests/frmLampTest.h"
#include "tests/frmPressureTest.h"
#include "tests/frmRedundancyTest.h"
#include "tests/frmSensorOrientation.h"
#include "tests/frmSuspensionCal.h"

namespace lorimet::testing_support {
namespace {

constexpr int kTicks = 3000;

class BadInputTest : public TestScreenTest {
 protected:
  ~BadInputTest() override { desktop.TakeBoxes(); }

  template <typename T>
  T OneOf(std::initializer_list<T> values) {
    return *(values.begin() +
             std::uniform_int_distribution<std::size_t>(0, values.size() - 1)(random));
  }
  double AnyDouble() {
    return OneOf({-1.0, 0.0, 2.9, 4.0, 4.1, 5.0, 5.1, 11.608, 58.04, 72.6, 80.1, 90.0, 181.9, 182.0,
                  1e308, -1e308, kNaN, kInfinity, -kInfinity});
  }
  // Now and then a healthy record, so that every state is reached.
  void Disturb() {
    const bool healthy = OneOf({true, true, false});
    for (EcuDouble* field :
         {&ecu.dSupplyPress, &ecu.dBrake1Press, &ecu.dBrake2Press, &ecu.dMainBellows,
          &ecu.dServiceBrake, &ecu.dTargetPressure1, &ecu.dTargetPressure2})
      field->Store(healthy ? 90.0 : AnyDouble());
    if (healthy) ecu.dServiceBrake.Store(OneOf({0.0, 90.0}));
    for (EcuDouble* field : {&ecu.dControlPressure1, &ecu.dControlPressure2, &ecu.dLadenBellows,
                             &ecu.dUnladenBellows, &ecu.dLadenHeightValue})
      field->Store(healthy ? 60.0 : AnyDouble());
    for (EcuDouble& speed : ecu.dWheelSpeed) speed.Store(OneOf({0.0, 0.0, AnyDouble()}));
    for (EcuShort* field : {&ecu.nMechanicalSuspension, &ecu.nMounting, &ecu.nNumAxles,
                            &ecu.nAxleSensors[0], &ecu.nAxleSensors[1], &ecu.nAxleSensors[2]})
      field->Store(OneOf<std::int16_t>({0, 1, 2, 3, 4, -1, 32767, -32768}));
    ecu.bNumSensors.Store(OneOf<std::uint8_t>({0, 1, 2, 4, 4, 5, 6, 7, 128, 255}));
    ecu.bNumModulators.Store(OneOf<std::uint8_t>({0, 1, 2, 2, 3, 21, 255}));
  }
  // Counts the ticks that ended in an overflow.
  int Live(Form& screen, Timer& timer, const std::vector<Button*>& buttons) {
    clock.on_advance = [this](std::uint32_t) {
      if (OneOf({0, 0, 0, 0, 0, 0, 0, 0, 0, 1}) == 1) Disturb();
    };
    int overflows = 0;
    for (int tick = 0; tick < kTicks; ++tick) {
      Disturb();
      link.always["StartRoutine"] = OneOf({0, 0, 1, -1, 0x80});
      screen.Load();
      try {
        timer.Tick();
      } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
        ++overflows;
        screen.Unload();
      }
      if (!screen.Loaded() || tick % 23 != 0) continue;
      Button& button = *buttons[static_cast<std::size_t>(tick / 23) % buttons.size()];
      if (button.Enabled()) button.UserClick();
      if (tick % 5 == 0) screen.UserClose();
    }
    clock.on_advance = nullptr;
    screen.Unload();
    sequence.Take();
    return overflows;
  }

  std::mt19937 random{20240611};
};

TEST_F(BadInputTest, ThePressureTestOverflowsAtTheWorst) {
  frmPressureTest screen{Parts()};
  const int overflows =
      Live(screen, screen.Timer1, {&screen.cmdStart, &screen.cmdCancel, &screen.cmdOK});
  EXPECT_GT(overflows, 0) << "the measuring states were not reached";
  EXPECT_LT(overflows, kTicks);
}

TEST_F(BadInputTest, TheRedundancyTestOverflowsAtTheWorst) {
  frmRedundancyTest screen{Parts()};
  const int overflows =
      Live(screen, screen.Timer1, {&screen.cmdStart, &screen.cmdStop, &screen.cmdClose});
  EXPECT_LT(overflows, kTicks / 10);
}

TEST_F(BadInputTest, TheSensorTestNeverFailsItself) {
  frmSensorOrientation screen{Parts()};
  EXPECT_EQ(
      Live(screen, screen.Timer1, {&screen.StartButton, &screen.StopButton, &screen.CloseButton}),
      0);
}

TEST_F(BadInputTest, TheLampTestNeverFailsItself) {
  frmLampTest screen{Parts()};
  EXPECT_EQ(Live(screen, screen.Timer1, {&screen.cmdNo, &screen.cmdYes}), 0);
}

TEST_F(BadInputTest, TheCalibrationTellsItsOverflowAndGoesOn) {
  struct AnyCounts : FakeLink {
    std::int32_t Trailer_ABS_KWP_IOControlByLocId(std::uint8_t, std::uint8_t,
                                                  std::uint8_t* data) override {
      for (std::size_t i = 0; i < 512; ++i) data[i] = static_cast<std::uint8_t>(random());
      return static_cast<std::int32_t>(random());
    }
    std::mt19937 random{7};
  } any;
  Faults any_faults{any, desktop, dictionary, table};
  frmSuspensionCal screen{{desktop, clock, dictionary, any, ecu, results}, any_faults};
  EXPECT_EQ(Live(screen, screen.Timer1, {&screen.cmdCalHgtSensor[0], &screen.cmdClose}), 0);
  EXPECT_FALSE(desktop.TakeBoxes().empty());
}

}  // namespace
}  // namespace lorimet::testing_support
