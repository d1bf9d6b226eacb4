// The program's screens as the tour's operator reads and works them, with the mouse.
#pragma once

#include <QString>
#include <functional>

#include "adapters/qt/qt_desktop.h"
#include "simulator/operator/form_screen.h"

class QAbstractButton;

namespace lorimet {

class OperatorScreen : public simulator::FormScreen {
 public:
  explicit OperatorScreen(QtDesktop& desktop) : FormScreen(desktop) {}
  // Comes with what he presses, and where.
  std::function<void(const QString& what)> on_press;

 protected:
  unsigned BoxButtons() const override;
  void AnswerBox(BoxButton answer) override;
  void Click(Button& button) override;

 private:
  void ClickSoon(QAbstractButton* button) const;
};

}  // namespace lorimet
