// A wheel of the trailer seen from above: it turns as the trailer's wheel does, and a click or a
// key spins it.
#pragma once

#include <QAbstractButton>

#include "simulator/bench/model/sight.h"
#include "simulator/bench/texts.h"

namespace lorimet::bench {

class WheelButton : public QAbstractButton {
 public:
  // position: 1 to 6, which is also the key that spins it.
  WheelButton(int position, const Texts& texts, QWidget* parent);

  // advised: the person is to spin this one.
  void Show(const WheelSight& wheel, bool advised);
  // Lets the tread move on.
  void Turn(double seconds);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Name();

  int position_;
  const Texts& texts_;
  WheelSight wheel_;
  bool advised_ = false;
  double angle_ = 0;  // of the tread, in widths of a stripe
};

}  // namespace lorimet::bench
