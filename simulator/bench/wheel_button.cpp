#include "simulator/bench/wheel_button.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "simulator/bench/colors.h"

namespace lorimet::bench {
namespace {

constexpr double kStripesPerMile = 0.9;  // a second, for each mph
constexpr double kStripe = 14;           // percent of the wheel's height
constexpr double kBraked = 4;            // psi from which a wheel is braked down

}  // namespace

WheelButton::WheelButton(int position, const Texts& texts, QWidget* parent)
    : QAbstractButton(parent), position_(position), texts_(texts) {
  setObjectName(QStringLiteral("wheel_%1").arg(position));
  setShortcut(QKeySequence(QString::number(position)));
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setVisible(false);
}

void WheelButton::Show(const WheelSight& wheel, bool advised) {
  if (wheel == wheel_ && advised == advised_) return;
  wheel_ = wheel;
  advised_ = advised;
  setVisible(wheel.present);
  Name();
  update();
}

void WheelButton::Name() {
  const QString sensor = wheel_.sensor == 0
                             ? texts_.Translate("no sensor")
                             : texts_.Translate("sensor %1").arg(QLatin1Char(wheel_.sensor));
  const QString state =
      wheel_.turnable ? texts_.Translate("can be turned") : texts_.Translate("held by the brake");
  const QString name = texts_.Translate("Wheel %1").arg(position_);
  setAccessibleName(QStringLiteral("%1, %2").arg(name, sensor));
  setAccessibleDescription(QStringLiteral("%1 mph, %2").arg(wheel_.speed, 0, 'f', 1).arg(state));
  setToolTip(QStringLiteral("%1\n%2 psi, %3 mph")
                 .arg(accessibleName())
                 .arg(wheel_.brake, 0, 'f', 1)
                 .arg(wheel_.speed, 0, 'f', 1));
}

void WheelButton::Turn(double seconds) {
  if (wheel_.speed <= 0) return;
  angle_ = std::fmod(angle_ + wheel_.speed * kStripesPerMile * seconds, 1.0);
  update();
}

void WheelButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const Colors colors(palette());
  const QRectF tyre = QRectF(rect()).adjusted(3.5, 3.5, -3.5, -3.5);
  const double round = tyre.width() * 0.28;
  if (advised_ || hasFocus()) {
    painter.setPen(QPen(advised_ ? colors.advised : colors.accent, 3));
    painter.setBrush(advised_ ? QBrush(colors.advised_ground) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), round + 3, round + 3);
  }
  QPainterPath shape;
  shape.addRoundedRect(tyre, round, round);
  painter.fillPath(shape, isDown() ? colors.tyre.lighter(130) : colors.tyre);
  if (colors.dark) painter.strokePath(shape, QPen(colors.line, 1));
  painter.setClipPath(shape);
  painter.setPen(QPen(colors.tread, std::max(1.0, tyre.height() * 0.03)));
  const double step = tyre.height() * kStripe / 100;
  for (double y = tyre.top() + angle_ * step - step; y < tyre.bottom() + step; y += step) {
    painter.drawLine(QPointF(tyre.left(), y), QPointF(tyre.left() + tyre.width() * 0.24, y));
    painter.drawLine(QPointF(tyre.right(), y), QPointF(tyre.right() - tyre.width() * 0.24, y));
  }
  painter.setClipping(false);
  if (wheel_.brake > kBraked) {  // the shoe that presses on it
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.Pressure(wheel_.brake));
    painter.drawRoundedRect(
        QRectF(tyre.left() + tyre.width() * 0.3, tyre.bottom() - tyre.height() * 0.16,
               tyre.width() * 0.4, tyre.height() * 0.1),
        2, 2);
  }
  QFont font = this->font();
  font.setPixelSize(
      std::max(8, static_cast<int>(std::min(tyre.height() * 0.32, tyre.width() * 0.46))));
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(colors.on_tyre);
  const QString label =
      wheel_.sensor == 0 ? QString::number(position_)
                         : QStringLiteral("%1 %2").arg(position_).arg(QLatin1Char(wheel_.sensor));
  painter.drawText(tyre, Qt::AlignCenter, label);
}

}  // namespace lorimet::bench
