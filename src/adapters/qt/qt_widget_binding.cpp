#include "adapters/qt/qt_widget_binding.h"

#include <QWidget>

#include "adapters/qt/qt_colors.h"
#include "adapters/qt/qt_text.h"

namespace lorimet {

WidgetBinding::WidgetBinding(Control& control, QWidget* widget)
    : Binding(control), widget_(widget), focus_policy_(widget->focusPolicy()) {}

ControlDesign WidgetBinding::Design() const {
  ControlDesign design;
  design.tool_tip = FromWidgetText(widget_->toolTip());
  design.enabled = !widget_->testAttribute(Qt::WA_ForceDisabled);
  // A child that nobody has hidden shows with its window.
  design.visible = !(widget_->isHidden() && widget_->testAttribute(Qt::WA_WState_ExplicitShowHide));
  return design;
}

void WidgetBinding::Mirror(unsigned changes) {
  const Control& control = GetControl();
  if (changes & Control::kEnabled) widget_->setEnabled(control.Enabled());
  if (changes & Control::kVisible) widget_->setVisible(control.Visible());
  if (changes & Control::kTabStop) {
    const int policy = control.TabStop() ? focus_policy_ : focus_policy_ & ~Qt::TabFocus;
    widget_->setFocusPolicy(static_cast<Qt::FocusPolicy>(policy));
  }
  if (changes & Control::kToolTip) widget_->setToolTip(ToWidgetText(control.ToolTipText()));
  if (changes & Control::kBackColor) {
    const QString rule = BackColorRule(control.BackColor(), widget_->objectName());
    if (widget_->styleSheet() != rule) widget_->setStyleSheet(rule);
  }
}

}  // namespace lorimet
