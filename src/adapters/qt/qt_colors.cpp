#include "adapters/qt/qt_colors.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace lorimet {
namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

}  // namespace

QColor ToQColor(Color color) {
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                static_cast<int>((color >> 16) & 0xFF));
}

double Contrast(const QColor& one, const QColor& other) {
  const double lighter = std::max(Luminance(one), Luminance(other));
  const double darker = std::min(Luminance(one), Luminance(other));
  return (lighter + 0.05) / (darker + 0.05);
}

QColor TextColorOn(const QColor& background) {
  const bool black = Contrast(Qt::black, background) >= Contrast(Qt::white, background);
  return black ? Qt::black : Qt::white;
}

QString BackColorRule(Color color, const QString& object_name) {
  if (color == kColorDefault) return {};
  // By its name, so that the rule is stronger than the look's and ends at this widget.
  if (color == kColorButtonFace)
    return QStringLiteral("#%1 { background-color: palette(window); }").arg(object_name);
  const QColor background = ToQColor(color);
  return QStringLiteral("#%1 { background-color: %2; color: %3; }")
      .arg(object_name, background.name(), TextColorOn(background).name());
}

}  // namespace lorimet
