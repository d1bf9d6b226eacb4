// The plan of the trailer: what stands where.
#include "session/trailer_plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "autotests/session/panel_fixture.h"

namespace lorimet {
namespace {

const Shape* Find(const Drawing& drawing, const std::string& words) {
  const auto found = std::ranges::find(drawing.shapes, words, &Shape::words);
  return found == drawing.shapes.end() ? nullptr : &*found;
}

TrailerPlan ThreeAxles() {
  TrailerPlan plan;
  plan.axles = 3;
  plan.sensors = {1, 0, 2};
  for (int i = 2; i <= 5; ++i) plan.speeds[static_cast<std::size_t>(i)] = {"v" + std::to_string(i)};
  plan.supply = {"Supply  112.4"};
  plan.side2 = {"Side 2  86"};
  return plan;
}

TEST(TrailerPlan, SensorsStandOnTheSideThatTheMountingSays) {
  TrailerPlan plan = ThreeAxles();
  for (const int mounting : {0, 1}) {
    plan.mounting = mounting;
    const Drawing drawing = DrawTrailerPlan(plan);
    for (const auto& [one, other, value] :
         {std::tuple{"d", "c", "v2"}, std::tuple{"f", "e", "v4"}}) {
      ASSERT_NE(Find(drawing, one), nullptr);
      ASSERT_NE(Find(drawing, other), nullptr);
      EXPECT_EQ(Find(drawing, one)->x < Find(drawing, other)->x, mounting == 0);
      EXPECT_EQ(Find(drawing, value)->x < drawing.width / 2, mounting == 0);
    }
  }
}

TEST(TrailerPlan, AxlesStandFromTheFrontInTheirOrder) {
  const Drawing drawing = DrawTrailerPlan(ThreeAxles());
  EXPECT_LT(Find(drawing, "d")->y, Find(drawing, "f")->y);
  EXPECT_EQ(Find(drawing, "d")->y, Find(drawing, "c")->y);
}

TEST(TrailerPlan, AMountingOrANumberOfAxlesThatIsUnknownShowsNoSide) {
  TrailerPlan plan = ThreeAxles();
  plan.mounting = 2;
  EXPECT_EQ(Find(DrawTrailerPlan(plan), "v2"), nullptr);
  plan = ThreeAxles();
  plan.axles = 5;
  EXPECT_EQ(Find(DrawTrailerPlan(plan), "d"), nullptr);
  EXPECT_NE(Find(DrawTrailerPlan(plan), "Supply  112.4"), nullptr);
}

TEST(TrailerPlan, ValuesHaveTheGroundOfTheirFields) {
  TrailerPlan plan = ThreeAxles();
  plan.speeds[4].ground = kColorOrange;
  EXPECT_EQ(Find(DrawTrailerPlan(plan), "v4")->fill, kColorOrange);
  EXPECT_EQ(Find(DrawTrailerPlan(plan), "v2")->fill, kColorWhite);
}

TEST(TrailerPlan, EachPressureHasTheGroundOfItsOwnField) {
  TrailerPlan plan = ThreeAxles();
  plan.demand = {"demand", 1};
  plan.supply = {"supply", 2};
  plan.side1 = {"one", 3};
  plan.side2 = {"two", 4};
  const Drawing drawing = DrawTrailerPlan(plan);
  Color expected = 0;
  for (const char* words : {"demand", "supply", "one", "two"}) {
    ASSERT_NE(Find(drawing, words), nullptr) << words;
    EXPECT_EQ(Find(drawing, words)->fill, ++expected) << words;
  }
}

TEST(TrailerPlan, AnAxleWithoutSensorsHasTyresWithoutLettersAndValues) {
  TrailerPlan plan = ThreeAxles();
  plan.speeds[0] = {"v0"};
  EXPECT_EQ(Find(DrawTrailerPlan(plan), "v0"), nullptr);
}

TEST(TrailerPlan, NothingIsDrawnBeyondItsEdges) {
  const Drawing drawing = DrawTrailerPlan(ThreeAxles());
  for (const Shape& shape : drawing.shapes) {
    EXPECT_GE(shape.x, 0);
    EXPECT_GE(shape.y, 0);
    EXPECT_LE(shape.x + shape.width, drawing.width) << shape.words;
    EXPECT_LE(shape.y + shape.height, drawing.height) << shape.words;
  }
}

class PanelPlanTest : public testing_support::PanelTest {
 protected:
  PanelPlanTest() {
    Ecu().nMounting.Store(0);
    Ecu().nNumAxles.Store(3);
    Ecu().nAxleSensors[0].Store(2);
    Ecu().nAxleSensors[2].Store(1);
    for (std::size_t i = 2; i <= 5; ++i) Ecu().dWheelSpeed[i].Store(30.0 + static_cast<double>(i));
  }
  Drawing Plan() { return Main().picPlan.Drawing(); }
  bool OnTheLeft(const std::string& words) {
    const Drawing plan = Plan();
    const Shape* shape = Find(plan, words);
    EXPECT_NE(shape, nullptr) << words;
    return shape != nullptr && shape->x < plan.width / 2;
  }
  int HeightOf(const std::string& words) {
    const Drawing plan = Plan();
    const Shape* shape = Find(plan, words);
    EXPECT_NE(shape, nullptr) << words;
    return shape == nullptr ? -1 : shape->y;
  }
};

TEST_F(PanelPlanTest, ShowsTheRecordWhereItBelongs) {
  Start();
  Pass();
  for (const char* words :
       {"Service Brake Demand  35.5", "Supply  118.3", "Brake Side 1  30", "Brake Side 2  31",
        "Bellows - Main Axle  56", "Bellows - Steering Axle  40"})
    EXPECT_NE(Find(Plan(), words), nullptr) << words;
  EXPECT_TRUE(OnTheLeft("32.0"));
  EXPECT_FALSE(OnTheLeft("33.0"));
  EXPECT_LT(HeightOf("34.0"), HeightOf("32.0"));  // e-f are on the first axle here
}

TEST_F(PanelPlanTest, FollowsTheMountingAndTheAxles) {
  Ecu().nMounting.Store(1);
  Start();
  Pass();
  EXPECT_FALSE(OnTheLeft("32.0"));
  Ecu().nNumAxles.Store(1);
  Pass();
  EXPECT_NE(Find(Plan(), "34.0"), nullptr);
  EXPECT_EQ(Find(Plan(), "32.0"), nullptr);
}

TEST_F(PanelPlanTest, BellowsOfSteeringThatAreMissingAreNotDrawnInAnyLanguage) {
  SetLanguage(kFrench);
  Start();
  Ecu().dSteerBellows.Store(-1.0);
  Pass();
  const auto steer = [this] {
    for (const Shape& shape : Plan().shapes)
      if (shape.words.find(Main().lblSteerBellows.Caption()) != std::string::npos) return true;
    return false;
  };
  EXPECT_FALSE(steer());
  Main().ClearStatusPanel();
  EXPECT_FALSE(steer());
  Ecu().dSteerBellows.Store(40.0);
  Pass();
  EXPECT_TRUE(steer());
}

TEST_F(PanelPlanTest, IsClearedWithThePanel) {
  Start();
  Pass();
  EXPECT_NE(Find(Plan(), "33.0"), nullptr);
  Main().ClearStatusPanel();
  EXPECT_EQ(Find(Plan(), "33.0"), nullptr);
  EXPECT_NE(Find(Plan(), "Supply  N/A"), nullptr);
}

TEST_F(PanelPlanTest, TheGroundOfAMissingSpeedIsThatOfItsField) {
  Start();
  Pass();
  Ecu().dWheelSpeed[2].Store(-1.0);
  Pass();
  EXPECT_EQ(Main().txtSpeed[2].BackColor(), kColorOrange);
  EXPECT_EQ(Find(Plan(), "N/A")->fill, kColorOrange);
}

}  // namespace
}  // namespace lorimet
