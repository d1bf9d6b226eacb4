#include "adapters/qt/qt_widget_binding.h"

#include <QFontInfo>
#include <QLayout>
#include <QWidget>
#include <cmath>

#include "adapters/qt/qt_colors.h"
#include "adapters/qt/qt_text.h"

namespace lorimet {
namespace {

constexpr double kTwipsPerInch = 1440;

int ToTwips(int pixels, const QWidget& widget) {
  return static_cast<int>(std::lround(pixels * kTwipsPerInch / widget.logicalDpiY()));
}

int ToPixels(int twips, const QWidget& widget) {
  return static_cast<int>(std::lround(twips * widget.logicalDpiY() / kTwipsPerInch));
}

}  // namespace

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
  if (changes & Control::kPlacement) MirrorPlace();
}

// A layout would put its widgets back.
void WidgetBinding::MirrorPlace() {
  const Placement& place = GetControl().Place();
  for (QWidget* around = widget_->parentWidget(); around != nullptr;
       around = around->isWindow() ? nullptr : around->parentWidget())
    if (QLayout* layout = around->layout()) layout->setEnabled(false);
  QFont font = widget_->font();
  if (place.font_size > 0 && font.pointSizeF() != place.font_size) {
    font.setPointSizeF(place.font_size);
    widget_->setFont(font);
  }
  // What a layout would have kept to.
  widget_->setMinimumSize(0, 0);
  widget_->setGeometry(ToPixels(place.left, *widget_), ToPixels(place.top, *widget_),
                       ToPixels(place.width, *widget_), ToPixels(place.height, *widget_));
}

void WidgetBinding::Measure() {
  // Of what its form keeps in place, the form knows more exactly.
  const QWidget* around = widget_->parentWidget();
  if (around != nullptr && around->layout() != nullptr && !around->layout()->isEnabled()) return;
  GetControl().ViewMeasured({ToTwips(widget_->x(), *widget_), ToTwips(widget_->y(), *widget_),
                             ToTwips(widget_->width(), *widget_),
                             ToTwips(widget_->height(), *widget_),
                             QFontInfo(widget_->font()).pointSizeF()});
}

}  // namespace lorimet
