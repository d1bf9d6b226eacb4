#include "simulator/bench/trailer_picture.h"

#include <QPainter>
#include <algorithm>
#include <chrono>

namespace lorimet::bench {
namespace {

using namespace std::chrono_literals;

// The plan. The front is at the top, the positions 1 to 3 on the left.
constexpr QSizeF kPlan(520, 480);
constexpr QRectF kBody(110, 58, 300, 418);
constexpr double kMiddle = 260;
constexpr double kFirstAxle = 270;
constexpr double kBetweenAxles = 80;
constexpr QSizeF kWheel(60, 66);
constexpr double kWheelLeft = 44;  // its middle
constexpr double kWheelRight = 476;
constexpr QRectF kReservoir(170, 88, 180, 46);
constexpr QRectF kModulatorLeft(144, 190, 96, 46);
constexpr QRectF kModulatorRight(280, 190, 96, 46);
constexpr QRectF kModulatorMiddle(212, 190, 96, 46);
constexpr QRectF kModulatorThird(212, 139, 96, 44);
constexpr double kFullReservoir = 130;  // psi
constexpr int kSmall = 14;              // pixels of the plan, as all sizes of letters
constexpr int kLarge = 17;

constexpr auto kFrame = 33ms;

double AxleAt(int position) { return kFirstAxle + kBetweenAxles * ((position - 1) % 3); }
bool OnTheLeft(int position) { return position <= 3; }

void SetLetters(QPainter& painter, int pixels, bool bold) {
  QFont font = painter.font();
  font.setPixelSize(pixels);
  font.setBold(bold);
  painter.setFont(font);
}

QString Psi(double value) { return QStringLiteral("%1 psi").arg(value, 0, 'f', 1); }

QPen Pipe(const Colors& colors, double psi) {
  return {colors.Pressure(psi), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void DrawBox(QPainter& painter, const Colors& colors, const QRectF& box) {
  painter.setPen(QPen(colors.line, 1.5));
  painter.setBrush(colors.part);
  painter.drawRoundedRect(box, 7, 7);
}

}  // namespace

TrailerPicture::TrailerPicture(Texts& texts, QWidget* parent) : QWidget(parent), texts_(texts) {
  setObjectName(QStringLiteral("picTrailer"));
  // In the order in which the sensor test goes round the trailer.
  for (const int position : {1, 2, 3, 6, 5, 4}) {
    auto* wheel = new WheelButton(position, texts, this);
    wheels_[static_cast<std::size_t>(position - 1)] = wheel;
    connect(wheel, &QAbstractButton::clicked, this, [this, position] {
      if (on_spin) on_spin(position);
    });
  }
  connect(&turning_, &QTimer::timeout, this, [this] {
    const double seconds = static_cast<double>(since_turned_.restart()) / 1000;
    for (WheelButton* wheel : wheels_) wheel->Turn(seconds);
  });
  since_turned_.start();
  turning_.start(kFrame);
  texts_.Bind([this] {
    setAccessibleName(texts_.Translate("The trailer from above"));
    Describe();
    update();
  });
}

void TrailerPicture::Show(const Sight& sight, const Advice& advice, bool there) {
  sight_ = sight;
  there_ = there;
  for (int position = 1; position <= kWheels; ++position) {
    WheelSight wheel = sight.Wheel(position);
    wheel.present = wheel.present && there;
    wheels_[static_cast<std::size_t>(position - 1)]->Show(wheel, advice.wheel == position);
  }
  Describe();
  update();
}

void TrailerPicture::Describe() {
  QStringList told;
  if (there_) {
    told << texts_.Translate("Reservoir") + QLatin1Char(' ') + Psi(sight_.supply);
    told << texts_.Translate("Control line") + QLatin1Char(' ') + Psi(sight_.control_line);
    for (int i = 0; i < sight_.Modulators(); ++i)
      told << QStringLiteral("H%1 %2").arg(i + 1).arg(
          Psi(sight_.modulators[static_cast<std::size_t>(i)]));
    told << texts_.Translate(sight_.lamp ? "Warning lamp on" : "Warning lamp off");
    told << texts_.Translate(sight_.stop_lights ? "Stop lights on" : "Stop lights off");
  }
  setAccessibleDescription(told.join(QStringLiteral(", ")));
}

double TrailerPicture::Scale() const {
  return std::min(width() / kPlan.width(), height() / kPlan.height());
}

QRectF TrailerPicture::OnWidget(const QRectF& plan) const {
  const double scale = Scale();
  const double left = (width() - kPlan.width() * scale) / 2;
  const double top = (height() - kPlan.height() * scale) / 2;
  return {left + plan.x() * scale, top + plan.y() * scale, plan.width() * scale,
          plan.height() * scale};
}

void TrailerPicture::PlaceWheels() {
  for (int position = 1; position <= kWheels; ++position) {
    const double x = OnTheLeft(position) ? kWheelLeft : kWheelRight;
    const QRectF plan(x - kWheel.width() / 2, AxleAt(position) - kWheel.height() / 2,
                      kWheel.width(), kWheel.height());
    wheels_[static_cast<std::size_t>(position - 1)]->setGeometry(OnWidget(plan).toRect());
  }
}

void TrailerPicture::resizeEvent(QResizeEvent*) { PlaceWheels(); }

void TrailerPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const Colors colors(palette());
  const QRectF plan = OnWidget({{0, 0}, kPlan});
  painter.translate(plan.topLeft());
  painter.scale(Scale(), Scale());
  if (!there_) {
    painter.setOpacity(0.35);
    DrawBody(painter, colors);
    return;
  }
  DrawBody(painter, colors);
  DrawPipes(painter, colors);
  DrawHoses(painter, colors);
  DrawReservoir(painter, colors);
  DrawModulators(painter, colors);
  DrawSuspension(painter, colors);
  DrawLamps(painter, colors);
  DrawWheelTexts(painter, colors);
}

void TrailerPicture::DrawBody(QPainter& painter, const Colors& colors) const {
  painter.setPen(QPen(colors.line, 2));
  painter.setBrush(colors.body);
  painter.drawRoundedRect(kBody, 16, 16);
  if (sight_.load > 0 && there_) {  // what it carries
    QColor freight = colors.line;
    freight.setAlphaF(0.15 + 0.25 * sight_.load);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(freight, Qt::BDiagPattern));
    painter.drawRoundedRect(kBody.adjusted(8, 8, -8, -8), 10, 10);
  }
  painter.setPen(colors.faint);
  SetLetters(painter, kSmall, false);
  painter.drawText(QRectF(0, 0, kPlan.width(), 22), Qt::AlignHCenter | Qt::AlignVCenter,
                   texts_.Translate("Front"));
}

// The coupling heads, with the towing vehicle's pressures.
void TrailerPicture::DrawHoses(QPainter& painter, const Colors& colors) const {
  const auto head = [&](double x, const QString& name, double psi, double to) {
    painter.setPen(Pipe(colors, psi));
    painter.drawLine(QPointF(x, 34), QPointF(x, to));
    painter.setPen(QPen(colors.line, 1.5));
    painter.setBrush(colors.Pressure(psi));
    painter.drawEllipse(QPointF(x, 30), 12, 12);
    const bool left = x < kPlan.width() / 2;
    const QRectF text = left ? QRectF(0, 10, x - 20, 40) : QRectF(x + 20, 10, 200, 40);
    const auto side = left ? Qt::AlignRight : Qt::AlignLeft;
    SetLetters(painter, kSmall, false);
    painter.setPen(colors.words);
    painter.drawText(text, side | Qt::AlignTop, name);
    SetLetters(painter, kLarge, true);
    painter.drawText(text, side | Qt::AlignBottom, Psi(psi));
  };
  head(216, texts_.Translate("Control line"), sight_.control_line, 78);
  head(304, texts_.Translate("Supply"), sight_.supply, kReservoir.top());
}

void TrailerPicture::DrawReservoir(QPainter& painter, const Colors& colors) const {
  painter.setPen(QPen(colors.line, 1.5));
  painter.setBrush(colors.part);
  painter.drawRoundedRect(kReservoir, 23, 23);
  QRectF full = kReservoir.adjusted(3, 3, -3, -3);
  full.setWidth(full.width() * std::clamp(sight_.supply / kFullReservoir, 0.0, 1.0));
  painter.save();
  painter.setClipRect(full);
  painter.setPen(Qt::NoPen);
  QColor air = colors.Pressure(sight_.supply);
  air.setAlphaF(0.45);
  painter.setBrush(air);
  painter.drawRoundedRect(kReservoir.adjusted(3, 3, -3, -3), 20, 20);
  painter.restore();
  painter.setPen(colors.words);
  SetLetters(painter, kSmall, false);
  painter.drawText(kReservoir.adjusted(0, 3, 0, -24), Qt::AlignCenter,
                   texts_.Translate("Reservoir"));
  SetLetters(painter, kLarge, true);
  painter.drawText(kReservoir.adjusted(0, 20, 0, -2), Qt::AlignCenter, Psi(sight_.supply));
}

int TrailerPicture::ModulatorOf(int position) const {
  const int modulators = sight_.Modulators();
  if (modulators == 1) return 1;
  const char sensor = sight_.Wheel(position).sensor;
  if (modulators == 3 && (sensor == 'e' || sensor == 'f')) return 3;
  return OnTheLeft(position) != sight_.rear_mounted ? 1 : 2;
}

QRectF TrailerPicture::ModulatorAt(int modulator) const {
  if (sight_.Modulators() == 1) return kModulatorMiddle;
  if (modulator == 3) return kModulatorThird;
  return (modulator == 1) != sight_.rear_mounted ? kModulatorLeft : kModulatorRight;
}

// From the reservoir to the modulators, and from each of them to its wheels.
void TrailerPicture::DrawPipes(QPainter& painter, const Colors& colors) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Pipe(colors, sight_.supply));
  for (int modulator = 1; modulator <= sight_.Modulators(); ++modulator) {
    const QPointF to = ModulatorAt(modulator).center();
    painter.drawLine(QPointF(to.x(), kReservoir.bottom() - 6), to);
  }
  for (int position = 1; position <= kWheels; ++position) {
    if (!sight_.Wheel(position).present) continue;
    const int modulator = ModulatorOf(position);
    const bool left = OnTheLeft(position);
    const double axle = AxleAt(position);
    const QRectF from = ModulatorAt(modulator);
    double trunk = left ? 164 : 356;
    if (modulator == 3) trunk = left ? 130 : 390;
    const QPolygonF pipe = {from.center(), QPointF(trunk, from.center().y()), QPointF(trunk, axle),
                            QPointF(left ? kWheelLeft + 24 : kWheelRight - 24, axle)};
    painter.setPen(Pipe(colors, sight_.modulators[static_cast<std::size_t>(modulator - 1)]));
    painter.drawPolyline(pipe);
  }
}

void TrailerPicture::DrawModulators(QPainter& painter, const Colors& colors) const {
  for (int modulator = 1; modulator <= sight_.Modulators(); ++modulator) {
    const QRectF box = ModulatorAt(modulator);
    const double psi = sight_.modulators[static_cast<std::size_t>(modulator - 1)];
    DrawBox(painter, colors, box);
    painter.setPen(colors.words);
    SetLetters(painter, kSmall, false);
    painter.drawText(box.adjusted(0, 4, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                     QStringLiteral("H%1").arg(modulator));
    SetLetters(painter, kLarge, true);
    painter.drawText(box.adjusted(0, 0, 0, -4), Qt::AlignHCenter | Qt::AlignBottom, Psi(psi));
  }
}

void TrailerPicture::DrawLamps(QPainter& painter, const Colors& colors) const {
  const QRectF lamp(122, 72, 36, 36);
  if (sight_.lamp) {
    QColor glow = colors.lamp;
    glow.setAlphaF(0.35);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(lamp.adjusted(-9, -9, 9, 9));
  }
  painter.setPen(QPen(colors.line, 1.5));
  painter.setBrush(sight_.lamp ? colors.lamp : colors.out);
  painter.drawEllipse(lamp);
  SetLetters(painter, kSmall, true);
  painter.setPen(sight_.lamp ? QColor("#1b2733") : colors.words);
  painter.drawText(lamp, Qt::AlignCenter, QStringLiteral("ABS"));
  for (const double x : {126.0, 346.0}) {
    painter.setPen(QPen(colors.line, 1.5));
    painter.setBrush(sight_.stop_lights ? colors.stop_light : colors.out);
    painter.drawRoundedRect(QRectF(x, 456, 48, 14), 4, 4);
  }
  painter.setPen(colors.faint);
  SetLetters(painter, kSmall, false);
  painter.drawText(QRectF(176, 452, 168, 20), Qt::AlignCenter, texts_.Translate("Stop lights"));
}

// The bellows between the axles, or the height sensor with its lever.
void TrailerPicture::DrawSuspension(QPainter& painter, const Colors& colors) const {
  constexpr QRectF box(kMiddle - 68, 300, 136, 50);
  DrawBox(painter, colors, box);
  painter.setPen(colors.words);
  SetLetters(painter, kSmall, false);
  painter.drawText(box.adjusted(0, 4, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
                   texts_.Translate(sight_.air ? "Bellows" : "Height sensor"));
  SetLetters(painter, kLarge, true);
  QString value = Psi(sight_.bellows);
  if (!sight_.air) value = sight_.height ? QString::number(*sight_.height) : QStringLiteral("-");
  painter.drawText(box.adjusted(0, 0, 0, -4), Qt::AlignHCenter | Qt::AlignBottom, value);
  if (sight_.air || !sight_.height) return;
  constexpr int kHorizontal = 1310;
  constexpr double kCountsPerDegree = 11.5;
  painter.save();
  painter.translate(box.center().x(), box.bottom() + 34);
  painter.setPen(QPen(colors.line, 1, Qt::DashLine));
  painter.drawLine(-60, 0, 60, 0);
  painter.rotate(-std::clamp((*sight_.height - kHorizontal) / kCountsPerDegree, -80.0, 80.0));
  painter.setPen(QPen(colors.accent, 5, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(0, 0, 52, 0);
  painter.setBrush(colors.part);
  painter.drawEllipse(QPointF(0, 0), 6, 6);
  painter.restore();
}

void TrailerPicture::DrawWheelTexts(QPainter& painter, const Colors& colors) const {
  SetLetters(painter, kSmall, false);
  for (int position = 1; position <= kWheels; ++position) {
    const WheelSight& wheel = sight_.Wheel(position);
    if (!wheel.present || wheel.speed <= 0) continue;
    const double x = OnTheLeft(position) ? kWheelLeft : kWheelRight;
    painter.setPen(colors.words);
    painter.drawText(QRectF(x - 44, AxleAt(position) - 48, 88, 16), Qt::AlignCenter,
                     QStringLiteral("%1 mph").arg(wheel.speed, 0, 'f', 1));
  }
}

}  // namespace lorimet::bench
