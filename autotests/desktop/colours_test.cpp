// The colours of the look, by day and by night: words can be read, and edges seen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPalette>
#include <QWidget>

#include <map>

#include "adapters/qt/qt_colors.h"
#include "adapters/qt/qt_pictures.h"
#include "adapters/qt/qt_style.h"

namespace lorimet {
namespace {

class ColoursTest : public testing::TestWithParam<Look> {
 protected:
  ColoursTest() { ApplyStyle(*qApp, GetParam()); }
  ~ColoursTest() override { ApplyStyle(*qApp, Look::kLight); }
  static double Between(QPalette::ColorRole one, QPalette::ColorRole other) {
    const QPalette palette = QApplication::palette();
    return Contrast(palette.color(one), palette.color(other));
  }
  // The colour at the left edge of a field, half-way down.
  static QColor EdgeOf(QLineEdit& field) {
    field.resize(80, 30);
    return field.grab().toImage().pixelColor(0, 15);
  }
};

TEST_P(ColoursTest, WordsAndEdgesStandOut) {
  EXPECT_GE(Between(QPalette::Text, QPalette::Base), 7.0);
  EXPECT_GE(Between(QPalette::WindowText, QPalette::Window), 7.0);
  EXPECT_GE(Between(QPalette::ButtonText, QPalette::Button), 7.0);
  EXPECT_GE(Between(QPalette::HighlightedText, QPalette::Highlight), 4.5);
  EXPECT_GE(Between(QPalette::PlaceholderText, QPalette::Base), 4.5);
  EXPECT_GE(Between(QPalette::Link, QPalette::Base), 4.5);
  for (const QPalette::ColorRole ground : {QPalette::Base, QPalette::Window, QPalette::Midlight})
    EXPECT_GE(Between(QPalette::Dark, ground), 3.0) << ground;
}

TEST_P(ColoursTest, AFieldHasItsEdgeAndOneThatOnlyShowsAnother) {
  QLineEdit field;
  QLineEdit shown;
  shown.setReadOnly(true);
  EXPECT_GE(Contrast(EdgeOf(field), QApplication::palette().color(QPalette::Base)), 3.0);
  EXPECT_NE(EdgeOf(field), EdgeOf(shown));
  EXPECT_NE(field.grab().toImage().pixelColor(5, 5), shown.grab().toImage().pixelColor(5, 5));
}

// What most of a picture's dots have that nothing shines through.
QColor LineOf(const char* picture) {
  const QImage image = LoadPicture(QLatin1String(picture), 1.0).toImage();
  std::map<QRgb, int> count;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y).alpha() == 255) ++count[image.pixel(x, y)];
  QRgb most = 0;
  for (const auto& [colour, dots] : count)
    if (dots > count[most]) most = colour;
  return QColor(most);
}

TEST_P(ColoursTest, PicturesStandOut) {
  for (const char* picture : {"print", "save", "restart", "faults", "help", "back", "link_error",
                              "box_information", "box_critical"})
    EXPECT_GE(Contrast(LineOf(picture), QApplication::palette().color(QPalette::Window)), 3.0)
        << picture;
}

INSTANTIATE_TEST_SUITE_P(, ColoursTest, testing::Values(Look::kLight, Look::kDark),
                         [](const auto& look) {
                           return look.param == Look::kDark ? "ByNight" : "ByDay";
                         });

}  // namespace
}  // namespace lorimet
