// What the operator sees of the program's screens, and how he works at them.
#include "simulator/operator/form_screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "autotests/common/operated_program.h"

namespace lorimet::testing_support {
namespace {

TEST(FormScreen, ShowsTheTestOnTopAndItsButtons) {
  OperatedProgram stand("");
  stand.operator_works = false;
  EXPECT_EQ(stand.screen.Name(), "") << "the main screen is no test";
  EXPECT_EQ(stand.screen.Status(), "");
  EXPECT_FALSE(stand.screen.CanPress("cmdClose"));
  bool seen = false;
  stand.desktop.After(1000, [&] {
    seen = true;
    EXPECT_EQ(stand.screen.Name(), "frmRedundancyTest");
    EXPECT_EQ(stand.screen.Status(), "Waiting for CONTROL PRESSURE to reach 80 psi...");
    EXPECT_EQ(stand.screen.YellowTire(), 0);
    EXPECT_TRUE(stand.screen.CanPress("cmdStop"));
    EXPECT_FALSE(stand.screen.CanPress("cmdStart")) << "disabled while the test runs";
    EXPECT_FALSE(stand.screen.CanPress("txtStatus")) << "no button";
    EXPECT_FALSE(stand.screen.CanPress("ok")) << "no box stands";
    stand.screen.Press("cmdStart");
    stand.screen.Press("cmdClose");
  });
  stand.desktop.After(1100, [&] {
    EXPECT_EQ(stand.screen.Name(), "msgBox");
    EXPECT_TRUE(stand.screen.CanPress("ok"));
    EXPECT_FALSE(stand.screen.CanPress("yes"));
    EXPECT_FALSE(stand.screen.CanPress("cmdClose")) << "the box stands over everything";
    stand.screen.Press("yes");
    stand.screen.Press("ok");
  });
  stand.RunTest(1);
  EXPECT_TRUE(seen);
  EXPECT_EQ(stand.desktop.TakeBoxes().at(0).title, "Test Failed!");
}

TEST(FormScreen, TellsTheYellowTyre) {
  OperatedProgram stand("configuration 4S/2M\naxles 2");
  stand.operator_works = false;
  stand.desktop.After(100, [&] { stand.screen.Press("ok"); });
  stand.desktop.After(2000, [&] {
    EXPECT_EQ(stand.screen.YellowTire(), 2);
    stand.screen.Press("CloseButton");
  });
  stand.desktop.After(2100, [&] { stand.screen.Press("ok"); });
  stand.RunTest(2);
}

TEST(FormScreen, ALinkErrorStandsOverTheTestAndIsReadWithoutLeavingIt) {
  OperatedProgram stand("compressor off\nsupply 60\nafter 6 cable out");
  std::vector<std::string> names;
  for (std::uint32_t at = 100; at < 30'000; at += 100)
    stand.desktop.After(at, [&] {
      if (names.empty() || names.back() != stand.screen.Name())
        names.push_back(stand.screen.Name());
    });
  stand.RunTest(0);
  EXPECT_EQ(names, (std::vector<std::string>{"frmPressureTest", "frmErr", "frmPressureTest",
                                             "msgBox", ""}));
  EXPECT_EQ(stand.hand.GivenUp(), 1);
}

}  // namespace
}  // namespace lorimet::testing_support
