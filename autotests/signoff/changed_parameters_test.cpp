// A set of parameters that the wizard has written, and the pressure test right behind it.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "autotests/common/operated_program.h"
#include "autotests/parameters/road_fixture.h"
#include "tests/tests_part.h"

namespace lorimet::testing_support {
namespace {

class ChangedParameters : public RoadFixture<testing::Test> {};

// The ECU's new test points stand in the record without another connection.
TEST_F(ChangedParameters, ANewSuspensionPressureIsTestedWithoutARestart) {
  Begin(Scenario("4S/2M"));
  link->link.Log().Keep(true);
  Walk(
      [](Form& page) {
        if (page.Name() != "frmOVGParm2") return;
        auto& loads = static_cast<frmOVGParm2&>(page);
        for (int axle = 0; axle < 3; ++axle) loads.txtSuspensionPressLaden[axle].UserType("101.6");
      },
      &frmOVGParm3::cmdSaveToECU);
  EXPECT_EQ(Complaints(), std::vector<std::string>{});
  EXPECT_EQ(Stored().at(0x03)[34], 70);
  EXPECT_NEAR(Ecu().dLadenBellows.Load(), 70 * 1.451, 0.01);

  HeadlessScreen screen(desktop);
  simulator::LinkYard yard(link->link);
  simulator::ScriptedOperator hand(screen, yard);
  const std::function<void()> look = [&] {
    desktop.After(10, look);
    hand.Step(0.01);
  };
  look();
  program->session->main_form.mnuTests[0].UserClick();
  EXPECT_EQ(program->tests->test_results.nPressureTest, 1);
}

}  // namespace
}  // namespace lorimet::testing_support
