// The trailer seen from above: its air, its lines, its modulators, its lamps, and its wheels, which
// can be spun.
#pragma once

#include <QElapsedTimer>
#include <QRectF>
#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>

#include "simulator/bench/colors.h"
#include "simulator/bench/model/advice.h"
#include "simulator/bench/texts.h"
#include "simulator/bench/wheel_button.h"

namespace lorimet::bench {

class TrailerPicture : public QWidget {
 public:
  explicit TrailerPicture(Texts& texts, QWidget* parent = nullptr);

  // there: a trailer can be seen at all.
  void Show(const Sight& sight, const Advice& advice, bool there);

  std::function<void(int position)> on_spin;

  QSize sizeHint() const override { return {560, 480}; }
  QSize minimumSizeHint() const override { return {240, 220}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // Of the plan, 520 wide and 480 high, on the widget.
  double Scale() const;
  QRectF OnWidget(const QRectF& plan) const;
  void PlaceWheels();
  void Describe();

  void DrawBody(QPainter& painter, const Colors& colors) const;
  void DrawHoses(QPainter& painter, const Colors& colors) const;
  void DrawReservoir(QPainter& painter, const Colors& colors) const;
  void DrawPipes(QPainter& painter, const Colors& colors) const;
  void DrawModulators(QPainter& painter, const Colors& colors) const;
  void DrawLamps(QPainter& painter, const Colors& colors) const;
  void DrawSuspension(QPainter& painter, const Colors& colors) const;
  void DrawWheelTexts(QPainter& painter, const Colors& colors) const;
  // The modulator, 1 to 3, at whose pipe a wheel is drawn.
  int ModulatorOf(int position) const;
  QRectF ModulatorAt(int modulator) const;

  Texts& texts_;
  Sight sight_;
  bool there_ = false;
  std::array<WheelButton*, kWheels> wheels_ = {};
  QTimer turning_;
  QElapsedTimer since_turned_;
};

}  // namespace lorimet::bench
