// What all controls that are widgets have in common: enabled, visible, colour, tool tip and place.
#pragma once

#include "adapters/qt/qt_binding.h"

class QWidget;

namespace lorimet {

class WidgetBinding : public Binding {
 public:
  WidgetBinding(Control& control, QWidget* widget);

  QWidget* Widget() const override { return widget_; }
  ControlDesign Design() const override;
  void Mirror(unsigned changes) override;
  void Measure() override;

 private:
  void MirrorPlace();

  QWidget* widget_;
  int focus_policy_;  // the designer's
};

}  // namespace lorimet
