// The plan of the trailer: what stands where.
#include "session/trailer_plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

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

TEST(TrailerPlan, NothingIsDrawnBeyondItsEdges) {
  const Drawing drawing = DrawTrailerPlan(ThreeAxles());
  for (const Shape& shape : drawing.shapes) {
    EXPECT_GE(shape.x, 0);
    EXPECT_GE(shape.y, 0);
    EXPECT_LE(shape.x + shape.width, drawing.width) << shape.words;
    EXPECT_LE(shape.y + shape.height, drawing.height) << shape.words;
  }
}

}  // namespace
}  // namespace lorimet
