#include "adapters/qt/qt_binder.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPicture>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <algorithm>

#include "adapters/qt/qt_colors.h"
#include "adapters/qt/qt_grid_binding.h"
#include "adapters/qt/qt_pictures.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/qt_text_binding.h"
#include "adapters/qt/qt_widget_binding.h"

namespace lorimet {
namespace {

class LabelBinding : public WidgetBinding {
 public:
  LabelBinding(Label& label, QLabel* widget)
      : WidgetBinding(label, widget), label_(label), widget_(widget) {
    // Words from a link library or a file are words, whatever they look like.
    if (widget->textFormat() == Qt::AutoText) widget->setTextFormat(Qt::PlainText);
  }
  ControlDesign Design() const override {
    ControlDesign design = WidgetBinding::Design();
    design.caption = FromWidgetText(widget_->text());
    return design;
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (changes & Control::kCaption) widget_->setText(ToWidgetText(label_.Caption()));
  }
  bool TakesFocus() const override { return false; }

 private:
  Label& label_;
  QLabel* widget_;
};

// A frame with a title, or any plain container.
class FrameBinding : public WidgetBinding {
 public:
  FrameBinding(Frame& frame, QWidget* widget)
      : WidgetBinding(frame, widget), frame_(frame), box_(qobject_cast<QGroupBox*>(widget)) {}
  ControlDesign Design() const override {
    ControlDesign design = WidgetBinding::Design();
    if (box_ != nullptr) design.caption = FromWidgetText(box_->title());
    return design;
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if ((changes & Control::kCaption) && box_ != nullptr)
      box_->setTitle(ToWidgetText(frame_.Caption()));
  }
  bool TakesFocus() const override { return false; }

 private:
  Frame& frame_;
  QGroupBox* box_;
};

// What push buttons, check boxes and option buttons share.
class AbstractButtonBinding : public WidgetBinding {
 public:
  AbstractButtonBinding(CaptionedControl& control, QAbstractButton* button)
      : WidgetBinding(control, button), captioned_(control), button_(button) {}
  ControlDesign Design() const override {
    ControlDesign design = WidgetBinding::Design();
    design.caption = FromWidgetText(button_->text());
    if (button_->isCheckable()) design.value = button_->isChecked();
    return design;
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (changes & Control::kCaption) button_->setText(ToWidgetText(captioned_.Caption()));
  }

 private:
  CaptionedControl& captioned_;
  QAbstractButton* button_;
};

class ButtonBinding : public AbstractButtonBinding {
 public:
  ButtonBinding(Button& button, QAbstractButton* widget, const BindingSite& site)
      : AbstractButtonBinding(button, widget), widget_(widget) {
    // A dialog makes no button its default that the designer has not made so; Enter presses the
    // button that has the focus, see HandleKey.
    if (auto* push = qobject_cast<QPushButton*>(widget); push != nullptr && !push->isDefault())
      push->setAutoDefault(false);
    QObject::connect(
        widget, &QAbstractButton::clicked, site.lifetime,
        [&button, dispatch = site.dispatch] { dispatch([&button] { button.UserClick(); }); });
  }
  bool HandleKey(const QKeyEvent& key) override {
    const bool is_enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!is_enter || key.isAutoRepeat()) return false;
    widget_->click();
    return true;
  }

 private:
  QAbstractButton* widget_;
};

class CheckBoxBinding : public AbstractButtonBinding {
 public:
  CheckBoxBinding(CheckBox& box, QCheckBox* widget, const BindingSite& site)
      : AbstractButtonBinding(box, widget), box_(box), widget_(widget) {
    QObject::connect(widget, &QCheckBox::toggled, site.lifetime,
                     [&box, dispatch = site.dispatch](bool checked) {
                       dispatch([&box, checked] { box.UserSet(checked); });
                     });
  }
  void Mirror(unsigned changes) override {
    AbstractButtonBinding::Mirror(changes);
    if (changes & Control::kValue) widget_->setChecked(box_.Value());
  }

 private:
  CheckBox& box_;
  QCheckBox* widget_;
};

// Keeps mouse and keyboard from a widget that only shows, whichever way they reach it; what it does
// not take goes on to the widgets around it.
class InputBarrier : public QObject {
 public:
  explicit InputBarrier(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::TouchBegin:
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::Shortcut:
        event->ignore();
        return true;
      default:
        return false;
    }
  }
};

// The option buttons of one array stand in one group of the toolkit's, so that the arrow keys walk
// through them. Which one is selected is the controls' business. Those that the designer gave no
// focus show a state and take no input.
class OptionBinding : public AbstractButtonBinding {
 public:
  OptionBinding(OptionButton& option, QRadioButton* widget, const BindingSite& site)
      : AbstractButtonBinding(option, widget),
        option_(option),
        widget_(widget),
        takes_input_(widget->focusPolicy() != Qt::NoFocus) {
    JoinGroup(site.window);
    SetEntry();
    if (!takes_input_) new InputBarrier(widget);
    QObject::connect(widget, &QRadioButton::toggled, site.lifetime,
                     [&option, dispatch = site.dispatch](bool checked) {
                       if (checked) dispatch([&option] { option.UserClick(); });
                     });
  }
  void Mirror(unsigned changes) override {
    AbstractButtonBinding::Mirror(changes);
    if (changes & Control::kValue) MirrorValue();
    if (changes & (Control::kValue | Control::kEnabled)) SetEntry();
  }
  bool TakesFocus() const override { return takes_input_; }

 private:
  void MirrorValue() {
    if (widget_->isChecked() == option_.Value()) return;
    // An exclusive group would not let its last selected button go.
    QButtonGroup* group = widget_->group();
    group->setExclusive(false);
    widget_->setChecked(option_.Value());
    group->setExclusive(true);
  }

  // The Tab key enters a group at its selected button, and anywhere while none is selected.
  void SetEntry() {
    if (!takes_input_) return;
    const QAbstractButton* selected = widget_->group()->checkedButton();
    if (selected != nullptr && !selected->isEnabled()) selected = nullptr;
    for (QAbstractButton* button : widget_->group()->buttons()) {
      const bool is_entry = selected == nullptr || button == selected;
      button->setFocusPolicy(is_entry ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }

  // Within a group the toolkit asks the group what excludes what; a screen reader asks the button.
  void JoinGroup(QWidget* window) {
    widget_->setAutoExclusive(true);
    if (widget_->group() != nullptr) widget_->group()->removeButton(widget_);
    QString name = ToQString(option_.Name());
    if (option_.Index() >= 0) name.truncate(name.lastIndexOf(QLatin1Char('_')));
    name += QStringLiteral("_group");
    auto* group = window->findChild<QButtonGroup*>(name);
    if (group == nullptr) {
      group = new QButtonGroup(window);
      group->setObjectName(name);
    }
    group->addButton(widget_);
  }

  OptionButton& option_;
  QRadioButton* widget_;
  const bool takes_input_;
};

class PictureBinding : public WidgetBinding {
 public:
  PictureBinding(Picture& picture, QWidget* widget)
      : WidgetBinding(picture, widget), picture_(picture), label_(qobject_cast<QLabel*>(widget)) {
    if (label_ != nullptr) design_ = label_->pixmap(Qt::ReturnByValue);
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (!(changes & Control::kContent) || label_ == nullptr) return;
    if (!picture_.Drawing().shapes.empty()) return label_->setPicture(Draw(picture_.Drawing()));
    label_->setPixmap(picture_.Image().empty()
                          ? design_
                          : LoadPicture(ToQString(picture_.Image()), label_->devicePixelRatioF()));
  }
  bool TakesFocus() const override { return false; }

 private:
  QPicture Draw(const Drawing& drawing) const {
    QPicture result;
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : drawing.shapes) DrawShape(shape, painter);
    painter.end();
    result.setBoundingRect(QRect(0, 0, drawing.width, drawing.height));
    return result;
  }

  void DrawShape(const Shape& shape, QPainter& painter) const {
    constexpr int kEdgeDarkness = 160;
    constexpr double kLineWidth = 2.0;
    constexpr double kCorner = 9.0;
    constexpr double kFilled = 0.92;  // of the width, by words
    const QRect place(shape.x, shape.y, shape.width, shape.height);
    const QColor fill = ToQColor(shape.fill);
    if (shape.kind == Shape::Kind::kLine) {
      painter.setPen(QPen(fill, kLineWidth));
      return painter.drawLine(place.topLeft(), place.topLeft() + QPoint(shape.width, shape.height));
    }
    painter.setPen(fill.darker(kEdgeDarkness));
    painter.setBrush(fill);
    if (shape.kind == Shape::Kind::kBox) painter.drawRect(place);
    if (shape.kind == Shape::Kind::kRound) painter.drawRoundedRect(place, kCorner, kCorner);
    if (shape.words.empty()) return;
    // As small as it takes for the words of each language to have room.
    QFont font = label_->font();
    const QString words = ToQString(shape.words);
    const double room = shape.width * kFilled / QFontMetricsF(font).horizontalAdvance(words);
    if (room < 1.0) font.setPointSizeF(font.pointSizeF() * room);
    painter.setFont(font);
    painter.setPen(TextColorOn(fill));
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, words);
  }

  Picture& picture_;
  QLabel* label_;
  QPixmap design_;
};

class ProgressBinding : public WidgetBinding {
 public:
  ProgressBinding(ProgressBar& bar, QProgressBar* widget)
      : WidgetBinding(bar, widget), bar_(bar), widget_(widget) {}
  ControlDesign Design() const override {
    ControlDesign design = WidgetBinding::Design();
    design.minimum = widget_->minimum();
    design.maximum = widget_->maximum();
    return design;
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (changes & Control::kRange) widget_->setRange(bar_.Min(), std::max(bar_.Min(), bar_.Max()));
    if (changes & (Control::kRange | Control::kValue))
      widget_->setValue(std::clamp(bar_.Value(), widget_->minimum(), widget_->maximum()));
  }
  bool TakesFocus() const override { return false; }

 private:
  ProgressBar& bar_;
  QProgressBar* widget_;
};

class TabBinding : public WidgetBinding {
 public:
  TabBinding(TabStrip& tabs, QTabBar* widget, const BindingSite& site)
      : WidgetBinding(tabs, widget), tabs_(tabs), widget_(widget) {
    QObject::connect(widget, &QTabBar::currentChanged, site.lifetime,
                     [&tabs, dispatch = site.dispatch](int tab) {
                       if (tab >= 0) dispatch([&tabs, tab] { tabs.UserClick(tab); });
                     });
  }
  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (changes & Control::kContent) MirrorTabs();
    if (changes & (Control::kContent | Control::kValue)) widget_->setCurrentIndex(tabs_.Selected());
  }

 private:
  void MirrorTabs() {
    const int count = static_cast<int>(tabs_.Tabs().size());
    while (widget_->count() > count) widget_->removeTab(widget_->count() - 1);
    for (int i = 0; i < count; ++i) {
      const QString caption = ToWidgetText(tabs_.Tabs()[static_cast<std::size_t>(i)]);
      if (i < widget_->count())
        widget_->setTabText(i, caption);
      else
        widget_->addTab(caption);
    }
    // A bar that is still hidden does not tell the layout.
    widget_->updateGeometry();
  }

  TabStrip& tabs_;
  QTabBar* widget_;
};

class TimerBinding : public Binding {
 public:
  TimerBinding(Timer& timer, const BindingSite& site)
      : Binding(timer),
        timer_(timer),
        ticker_(new QTimer(site.window)),
        ticks_by_itself_(site.timers_tick) {
    ticker_->setObjectName(ToQString(timer.Name()));
    QObject::connect(ticker_, &QTimer::timeout, site.lifetime,
                     [&timer] { timer.Owner().GetDesktop().PostTick(timer); });
  }
  void Mirror(unsigned changes) override {
    if (!ticks_by_itself_ || !(changes & (Control::kInterval | Control::kEnabled))) return;
    if (!timer_.Running())
      ticker_->stop();
    else if (!ticker_->isActive() || ticker_->interval() != timer_.Interval())
      ticker_->start(timer_.Interval());
  }
  bool TakesFocus() const override { return false; }

 private:
  Timer& timer_;
  QTimer* ticker_;
  bool ticks_by_itself_;
};

// An action of a menu or a toolbar, or the title of a menu.
class ActionBinding : public Binding {
 public:
  ActionBinding(MenuItem& item, QAction* action, const BindingSite& site)
      : Binding(item), item_(&item), action_(action) {
    QObject::connect(action, &QAction::triggered, site.lifetime, [&item, dispatch = site.dispatch] {
      dispatch([&item] { item.UserClick(); });
    });
  }
  ActionBinding(MenuItem& item, QMenu* menu, const BindingSite& site)
      : Binding(item), item_(&item), action_(menu->menuAction()) {
    QObject::connect(menu, &QMenu::aboutToShow, site.lifetime, [&item, dispatch = site.dispatch] {
      if (item.on_click) dispatch([&item] { item.UserClick(); });
    });
  }
  ActionBinding(ToolButton& button, QAction* action, const BindingSite& site)
      : Binding(button), action_(action) {
    QObject::connect(
        action, &QAction::triggered, site.lifetime,
        [&button, dispatch = site.dispatch] { dispatch([&button] { button.UserClick(); }); });
    NameButtons();
  }

  ControlDesign Design() const override {
    ControlDesign design;
    design.enabled = action_->isEnabled();
    design.visible = action_->isVisible();
    design.caption = FromWidgetText(action_->text());
    // The tool tip of a menu item is made of its caption.
    if (item_ == nullptr) design.tool_tip = FromWidgetText(action_->toolTip());
    return design;
  }
  void Mirror(unsigned changes) override {
    const Control& control = GetControl();
    if (changes & Control::kEnabled) action_->setEnabled(control.Enabled());
    if (changes & Control::kVisible) action_->setVisible(control.Visible());
    if ((changes & Control::kCaption) && item_ != nullptr)
      action_->setText(ToWidgetText(item_->Caption()));
    if (changes & Control::kToolTip) {
      action_->setToolTip(ToWidgetText(control.ToolTipText()));
      NameButtons();
    }
  }
  bool TakesFocus() const override { return false; }

 private:
  // A button with a picture alone is called by its tool tip.
  void NameButtons() {
    for (QObject* object : action_->associatedObjects())
      if (auto* toolbar = qobject_cast<QWidget*>(object))
        for (auto* button : toolbar->findChildren<QToolButton*>())
          if (button->defaultAction() == action_) button->setAccessibleName(action_->toolTip());
  }

  MenuItem* item_ = nullptr;
  QAction* action_;
};

template <typename Widget>
Widget* Find(const BindingSite& site, const Control& control) {
  return site.window->findChild<Widget*>(ToQString(control.Name()));
}

// A binding of one control to one kind of widget, null without such a widget.
template <typename BindingType, typename Widget, typename ControlType, typename... More>
std::unique_ptr<Binding> BindTo(Control& control, const BindingSite& site, const More&... more) {
  auto* widget = Find<Widget>(site, control);
  if (widget == nullptr) return nullptr;
  return std::make_unique<BindingType>(static_cast<ControlType&>(control), widget, more...);
}

std::unique_ptr<Binding> BindMenuItem(Control& control, const BindingSite& site) {
  if (auto binding = BindTo<ActionBinding, QMenu, MenuItem>(control, site, site)) return binding;
  return BindTo<ActionBinding, QAction, MenuItem>(control, site, site);
}

std::unique_ptr<Binding> BindText(Control& control, const BindingSite& site) {
  auto* widget = Find<QWidget>(site, control);
  return widget == nullptr ? nullptr : BindTextBox(static_cast<TextBox&>(control), widget, site);
}

const char* Wanted(ControlKind kind) {
  switch (kind) {
    case ControlKind::kTextBox:
      return "QLineEdit, QPlainTextEdit or QTextEdit";
    case ControlKind::kLabel:
      return "QLabel";
    case ControlKind::kFrame:
      return "QGroupBox or QFrame";
    case ControlKind::kButton:
      return "QPushButton";
    case ControlKind::kOptionButton:
      return "QRadioButton";
    case ControlKind::kCheckBox:
      return "QCheckBox";
    case ControlKind::kPicture:
      return "QLabel or QWidget";
    case ControlKind::kProgressBar:
      return "QProgressBar";
    case ControlKind::kTimer:
      return "";
    case ControlKind::kMenuItem:
      return "QMenu or QAction";
    case ControlKind::kToolButton:
      return "QAction";
    case ControlKind::kDataGrid:
      return "QTableWidget";
    case ControlKind::kTabStrip:
      return "QTabBar";
  }
  return "";
}

std::unique_ptr<Binding> BindByKind(Control& control, const BindingSite& site) {
  switch (control.Kind()) {
    case ControlKind::kTextBox:
      return BindText(control, site);
    case ControlKind::kLabel:
      return BindTo<LabelBinding, QLabel, Label>(control, site);
    case ControlKind::kFrame:
      return BindTo<FrameBinding, QWidget, Frame>(control, site);
    case ControlKind::kButton:
      return BindTo<ButtonBinding, QAbstractButton, Button>(control, site, site);
    case ControlKind::kOptionButton:
      return BindTo<OptionBinding, QRadioButton, OptionButton>(control, site, site);
    case ControlKind::kCheckBox:
      return BindTo<CheckBoxBinding, QCheckBox, CheckBox>(control, site, site);
    case ControlKind::kPicture:
      return BindTo<PictureBinding, QWidget, Picture>(control, site);
    case ControlKind::kProgressBar:
      return BindTo<ProgressBinding, QProgressBar, ProgressBar>(control, site);
    case ControlKind::kTimer:
      return std::make_unique<TimerBinding>(static_cast<Timer&>(control), site);
    case ControlKind::kMenuItem:
      return BindMenuItem(control, site);
    case ControlKind::kToolButton:
      return BindTo<ActionBinding, QAction, ToolButton>(control, site, site);
    case ControlKind::kDataGrid:
      return BindTo<GridBinding, QTableWidget, DataGrid>(control, site, site);
    case ControlKind::kTabStrip:
      return BindTo<TabBinding, QTabBar, TabStrip>(control, site, site);
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<Binding> Bind(Control& control, const BindingSite& site, QString& wanted) {
  auto binding = BindByKind(control, site);
  if (binding == nullptr) wanted = QString::fromLatin1(Wanted(control.Kind()));
  return binding;
}

}  // namespace lorimet
