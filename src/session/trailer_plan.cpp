#include "session/trailer_plan.h"

#include <utility>

namespace lorimet {
namespace {

constexpr Color kBody = 0xF1EDE8;
constexpr Color kSteel = 0xB4A89C;
constexpr Color kTyre = 0x4A4038;
constexpr Color kSupplyRed = 0x3030C0;  // as the couplings of trailers are marked
constexpr Color kControlYellow = 0x20B0E0;

constexpr int kWidth = 286;
constexpr int kHeight = 268;
constexpr int kBodyLeft = 65;
constexpr int kBodyRight = 221;
constexpr int kBodyTop = 26;
constexpr int kMiddle = kWidth / 2;
constexpr int kFirstRow = 156;  // the middle of the foremost axle
constexpr int kRowGap = 42;
constexpr int kLineHeight = 20;

// The row of each axle from the front, by the number of axles: as in the diagram of the parameters.
constexpr int kRows[4][3] = {{-1, -1, -1}, {1, -1, -1}, {1, 2, -1}, {0, 1, 2}};

struct Wheels {
  int near;  // on the left, an index of the record's speeds
  int far;
};

// Which sensors an axle has at its two ends.
Wheels WheelsOf(int sensors, int mounting) {
  const Wheels forward = sensors == 1 ? Wheels{2, 3} : Wheels{4, 5};
  return mounting == 0 ? forward : Wheels{forward.far, forward.near};
}

const char* LetterOf(int speed) {
  constexpr const char* kLetters[] = {"", "", "d", "c", "f", "e"};
  return kLetters[speed];
}

class Plan {
 public:
  Drawing Take() { return std::move(drawing_); }

  void Box(int x, int y, int width, int height, Color fill, const std::string& words = {}) {
    drawing_.shapes.push_back({Shape::Kind::kBox, x, y, width, height, fill, words});
  }
  void Round(int x, int y, int width, int height, Color fill, const std::string& words) {
    drawing_.shapes.push_back({Shape::Kind::kRound, x, y, width, height, fill, words});
  }
  void Line(int x, int y, int width, int height, Color fill) {
    drawing_.shapes.push_back({Shape::Kind::kLine, x, y, width, height, fill, {}});
  }
  void Words(int x, int y, int width, const std::string& words) {
    drawing_.shapes.push_back({Shape::Kind::kWords, x, y, width, kLineHeight, kColorWhite, words});
  }

 private:
  Drawing drawing_{kWidth, kHeight, {}};
};

void DrawAir(const TrailerPlan& plan, Plan& drawing) {
  constexpr int kLeft = kBodyLeft + 4;
  constexpr int kInner = kBodyRight - kBodyLeft - 8;
  constexpr int kTop = 4;  // below what stands above the plan
  constexpr int kLines = kTop + kLineHeight;
  drawing.Box(kMiddle - 125, kTop, 250, kLineHeight, plan.demand.ground, plan.demand.words);
  drawing.Line(kLeft + 14, kLines, 0, kBodyTop + 10 - kLines, kSupplyRed);
  drawing.Line(kMiddle + 60, kLines, 0, 64 - kLines, kControlYellow);
  drawing.Round(kLeft, kBodyTop + 8, kInner - 26, kLineHeight + 2, plan.supply.ground,
                plan.supply.words);
  drawing.Box(kLeft, 64, kInner, kLineHeight, plan.side1.ground, plan.side1.words);
  drawing.Box(kLeft, 64 + kLineHeight, kInner, kLineHeight, plan.side2.ground, plan.side2.words);
  drawing.Words(kLeft, 110, kInner, plan.main_bellows.words);
  if (!plan.steer_bellows.words.empty())
    drawing.Words(kLeft, kHeight - kLineHeight - 2, kInner, plan.steer_bellows.words);
}

void DrawWheel(const TrailerPlan& plan, int speed, bool left, int middle, Plan& drawing) {
  constexpr int kTyreWidth = 16;
  constexpr int kTyreHeight = 34;
  constexpr int kValueWidth = 45;
  drawing.Box(left ? kBodyLeft - kTyreWidth - 1 : kBodyRight + 1, middle - kTyreHeight / 2,
              kTyreWidth, kTyreHeight, kTyre, LetterOf(speed));
  if (speed == 0) return;
  const PlanValue& value = plan.speeds[static_cast<std::size_t>(speed)];
  drawing.Box(left ? 0 : kWidth - kValueWidth, middle - kLineHeight / 2, kValueWidth, kLineHeight,
              value.ground, value.words);
}

void DrawAxles(const TrailerPlan& plan, Plan& drawing) {
  const int axles = plan.axles >= 1 && plan.axles <= 3 ? plan.axles : 0;
  for (int axle = 0; axle < axles; ++axle) {
    const int middle = kFirstRow + kRows[axles][axle] * kRowGap;
    drawing.Line(kBodyLeft, middle, kBodyRight - kBodyLeft, 0, kSteel);
    const int sensors = plan.sensors[static_cast<std::size_t>(axle)];
    const bool known = (sensors == 1 || sensors == 2) && (plan.mounting == 0 || plan.mounting == 1);
    const Wheels wheels = known ? WheelsOf(sensors, plan.mounting) : Wheels{0, 0};
    DrawWheel(plan, wheels.near, true, middle, drawing);
    DrawWheel(plan, wheels.far, false, middle, drawing);
  }
}

}  // namespace

Drawing DrawTrailerPlan(const TrailerPlan& plan) {
  Plan drawing;
  drawing.Box(kBodyLeft, kBodyTop, kBodyRight - kBodyLeft, kHeight - kBodyTop, kBody);
  DrawAxles(plan, drawing);
  DrawAir(plan, drawing);
  return drawing.Take();
}

}  // namespace lorimet
