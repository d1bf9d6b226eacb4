// Colours, and drawings of plain shapes with words: what a picture shows beside its files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lorimet {

using Color = std::uint32_t;  // 0x00BBGGRR
constexpr Color kColorWhite = 0xFFFFFF;
constexpr Color kColorYellow = 0x00FFFF;
constexpr Color kColorOrange = 0x0080FF;
constexpr Color kColorRed = 0x0000FF;
constexpr Color kColorButtonFace = 0x8000000F;  // the system's own colour of button faces
constexpr Color kColorDefault = 0x80000005;     // the colour that the look gives the control

// Pixels at 100 %, from the drawing's upper left corner. A line goes from its place by its size;
// plain words have no ground. Words stand in the middle.
struct Shape {
  enum class Kind { kBox, kRound, kLine, kWords };
  Kind kind = Kind::kBox;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  Color fill = kColorWhite;
  std::string words;

  bool operator==(const Shape&) const = default;
};

struct Drawing {
  int width = 0;
  int height = 0;
  std::vector<Shape> shapes;

  bool operator==(const Drawing&) const = default;
};

}  // namespace lorimet
