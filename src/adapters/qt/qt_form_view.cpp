#include "adapters/qt/qt_form_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QShortcutEvent>
#include <QStringList>
#include <QWindow>
#include <algorithm>

#include "adapters/qt/qt_binder.h"
#include "adapters/qt/qt_keys.h"
#include "adapters/qt/qt_pictures.h"
#include "adapters/qt/qt_text.h"
#include "platform/forms.h"

namespace lorimet {
namespace {

QRect AvailableScreen() { return QGuiApplication::primaryScreen()->availableGeometry(); }

// What a window can have of the screen, below the title bar that it gets.
QSize RoomOnScreen() {
  constexpr int kTitleBar = 36;
  return AvailableScreen().size() - QSize(0, kTitleBar);
}

// What a title takes with the icon and the buttons beside it.
int TitleWidth(const QWidget& window) {
  constexpr int kBeside = 150;
  QFont font = window.font();
  font.setBold(true);
  return QFontMetrics(font).horizontalAdvance(window.windowTitle()) + kBeside;
}

// Menus are the platform's: no form sees a key on its way to one.
bool IsOfMenus(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (widget->inherits("QMenuBar") || widget->inherits("QMenu")) return true;
  return false;
}

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool HasManyLines(const Control& control, const QWidget* widget) {
  return control.Kind() == ControlKind::kTextBox && !widget->inherits("QLineEdit");
}

}  // namespace

QtFormView::QtFormView(ViewHost& host, Form& form, QWidget* window)
    : host_(host),
      form_(form),
      window_(window),
      field_names_(*window, form.GetDesktop().translate) {
  window_->setObjectName(ToQString(form.Name()));
  // The window's life is the form's; only the form ends it.
  window_->setAttribute(Qt::WA_DeleteOnClose, false);
  AdaptPictures(*window_);
  BindControls();
  field_names_.Refresh();
  ImportForm();
  WatchWidgets();
}

QtFormView::~QtFormView() {
  host_.ViewDropped(*this);
  if (window_ == nullptr) return;
  window_->removeEventFilter(this);
  window_->hide();
  // A handler of one of its widgets may be running.
  window_->deleteLater();
}

void QtFormView::BindControls() {
  const BindingSite site{window_, this,
                         [this](const std::function<void()>& event) { Dispatch(event); },
                         host_.ticks_by_itself_};
  QStringList missing;
  for (Control* control : form_.Controls()) {
    QString wanted;
    auto binding = Bind(*control, site, wanted);
    if (binding == nullptr) {
      missing << QStringLiteral("%1 (%2)").arg(ToQString(control->Name()), wanted);
      continue;
    }
    by_control_[control] = binding.get();
    if (binding->Widget() != nullptr) {
      by_widget_[binding->Widget()] = binding.get();
      const bool has_words = !binding->Design().caption.value_or("").empty();
      if (!has_words) field_names_.Add(*binding->Widget());
    }
    control->ImportDesign(binding->Design());
    bindings_.push_back(std::move(binding));
  }
  if (!missing.isEmpty())
    qFatal("The window of form %s lacks: %s.", form_.Name().c_str(),
           qPrintable(missing.join(QStringLiteral(", "))));
}

void QtFormView::ImportForm() {
  window_->ensurePolished();
  if (QLayout* layout = window_->layout()) layout->activate();
  QSize size = window_->sizeHint();
  if (window_->testAttribute(Qt::WA_Resized)) size = size.expandedTo(window_->size());
  window_->resize(size.boundedTo(RoomOnScreen()));
  form_.ImportDesign(FromWidgetText(window_->windowTitle()), window_->width() * kTwipsPerPixel,
                     window_->height() * kTwipsPerPixel);
  height_ = form_.Height();
  left_ = form_.Left();
  top_ = form_.Top();
  const bool many_lines = std::ranges::any_of(by_widget_, [](const auto& row) {
    return HasManyLines(row.second->GetControl(), row.first);
  });
  if (many_lines) MeasureHidden();
}

// Painting a hidden window lays its inner containers out.
void QtFormView::MeasureHidden() {
  window_->grab(QRect(0, 0, 1, 1));
  Measure();
}

void QtFormView::LayOut() {
  Flush();
  if (window_ == nullptr || window_->isVisible()) return;
  // What the style asks for is part of the widgets' sizes.
  for (QWidget* widget : window_->findChildren<QWidget*>()) widget->ensurePolished();
  FitToContents();
  MeasureHidden();
}

void QtFormView::WatchWidgets() {
  window_->installEventFilter(this);
  for (QWidget* widget : window_->findChildren<QWidget*>())
    if (!IsOfMenus(widget)) widget->installEventFilter(this);
}

Binding* QtFormView::BindingOf(const QWidget* widget) const {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto found = by_widget_.find(widget); found != by_widget_.end()) return found->second;
    if (widget == window_) break;
  }
  return nullptr;
}

Control* QtFormView::FocusTarget(const QWidget* widget) const {
  Binding* binding = BindingOf(widget);
  return binding != nullptr && binding->TakesFocus() ? &binding->GetControl() : nullptr;
}

// --- From the form to the window ---------------------------------------------------------------

void QtFormView::Changed(Control* control) {
  if (control == nullptr)
    form_changed_ = true;
  else
    changed_.push_back(control);
}

void QtFormView::Flush() {
  if (window_ == nullptr || (changed_.empty() && !form_changed_)) return;
  const CountScope mirroring(host_.mirroring_);
  const CountScope quiet(host_.quiet_);
  const std::vector<Control*> controls = std::exchange(changed_, {});
  bool words_changed = false;
  for (Control* control : controls) {
    const unsigned changes = control->TakeChanges();
    Binding& binding = *by_control_.at(control);
    binding.Mirror(changes);
    if ((changes & Control::kCaption) ||
        ((changes & Control::kText) && field_names_.Uses(binding.Widget())))
      words_changed = true;
  }
  if (words_changed) field_names_.Refresh();
  if (std::exchange(form_changed_, false)) MirrorForm();
}

void QtFormView::MirrorForm() {
  form_.TakeChanged();
  window_->setWindowTitle(ToWidgetText(form_.Caption()));
  MirrorPointer();
  MirrorGeometry();
}

void QtFormView::MirrorPointer() {
  const int pointer = static_cast<int>(form_.Pointer());
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  for (const auto& [widget, cursor] : std::exchange(own_cursors_, {}))
    if (widget != nullptr) widget->setCursor(cursor);
  if (form_.Pointer() == MousePointer::kDefault) {
    window_->unsetCursor();
  } else if (form_.Pointer() == MousePointer::kArrow) {
    window_->setCursor(Qt::ArrowCursor);
  } else {
    // Fields with a cursor of their own, such as the text cursor, show the hourglass too.
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
      if (!widget->testAttribute(Qt::WA_SetCursor)) continue;
      own_cursors_.emplace_back(widget, widget->cursor());
      widget->setCursor(Qt::WaitCursor);
    }
    window_->setCursor(Qt::WaitCursor);
  }
}

void QtFormView::MirrorGeometry() {
  if (form_.Height() != height_) {
    height_is_set_ = true;
    if (QLayout* layout = window_->layout()) layout->activate();
    window_->resize(window_->width(), form_.Height() / kTwipsPerPixel);
    height_ = form_.Height();
    const bool centred = IsCentred();
    if (window_->height() != form_.Height() / kTwipsPerPixel) ReportSize();
    if (centred) form_.CenterOnScreen();
  }
  if (form_.Left() != left_ || form_.Top() != top_) MoveWindow();
}

void QtFormView::MoveWindow() {
  left_ = form_.Left();
  top_ = form_.Top();
  window_->move(AvailableScreen().topLeft() +
                QPoint(left_ / kTwipsPerPixel, top_ / kTwipsPerPixel));
}

bool QtFormView::IsCentred() const {
  return form_.Left() == (form_.GetDesktop().ScreenWidth() - form_.Width()) / 2 &&
         form_.Top() == (form_.GetDesktop().ScreenHeight() - form_.Height()) / 2;
}

// Translated words may need more room than the designer's.
void QtFormView::FitToContents() {
  // The layout makes the window as large as its least size by itself.
  const bool centred = IsCentred();
  const QSize before = window_->size();
  if (QLayout* layout = window_->layout()) layout->activate();
  QSize wanted = window_->sizeHint();
  wanted.setWidth(std::max(wanted.width(), TitleWidth(*window_)));
  if (height_is_set_) wanted.setHeight(window_->height());
  const QSize size =
      window_->size().expandedTo(wanted).boundedTo(RoomOnScreen().expandedTo(window_->size()));
  if (size == before) return;
  window_->resize(size);
  ReportSize();
  if (centred) {
    form_.CenterOnScreen();
    MoveWindow();
  }
}

void QtFormView::Show(bool modal, Form* owner) {
  if (window_ == nullptr) return;
  const CountScope quiet(host_.quiet_);
  const QPointer<QtFormView> alive(this);
  const bool was_visible = window_->isVisible();
  if (!was_visible) {
    // Not modal to the application: the help can be read and closed whatever is open.
    window_->setWindowModality(modal ? Qt::WindowModal : Qt::NonModal);
    FitToContents();
    QWidget* parent = owner != nullptr ? host_.Window(*owner) : nullptr;
    if (modal) parent = host_.TopWindow(window_);
    // In front of its owner, but not owned by it: each window ends with its own form.
    window_->winId();
    window_->windowHandle()->setTransientParent(
        parent != nullptr && parent != window_ ? parent->windowHandle() : nullptr);
  }
  if (window_->isMinimized())
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  window_->show();
  if (!alive) return;
  // A window that is new on the screen is on top already.
  if (was_visible) window_->raise();
  window_->activateWindow();
  Measure();
  told_size_ = window_->size();
  host_.RethrowCarried();
}

void QtFormView::Hide() {
  const CountScope quiet(host_.quiet_);
  if (window_ != nullptr) window_->hide();
  host_.FormHidden(form_);
}

void QtFormView::SetFocus(Control& control) {
  QWidget* widget = by_control_.at(&control)->Widget();
  if (widget == nullptr || window_ == nullptr) return;
  // A field that has just been enabled or shown takes the focus only when its widget is, too.
  if (!widget->isEnabled() || !widget->isVisible()) Flush();
  const QPointer<QtFormView> alive(this);
  ViewHost& host = host_;
  widget->setFocus(Qt::OtherFocusReason);
  host.RethrowCarried();
  if (!alive) return;
  // A window that is not active, as right behind a box, gives the focus on when it is; the form has
  // it from now on.
  if (window_ == nullptr || window_->isActiveWindow()) return;
  const QWidget* taken = window_->focusWidget();
  if (taken != nullptr && (taken == widget || widget->isAncestorOf(taken)))
    form_.UserFocus(&control);
}

// --- From the window to the form ---------------------------------------------------------------

bool QtFormView::Dispatch(const std::function<void()>& event) {
  const QPointer<QtFormView> alive(this);
  host_.Dispatch(event);
  return alive != nullptr;
}

void QtFormView::FocusMoved(QWidget* widget) {
  // A menu that is open has the keyboard only for a while.
  if (qobject_cast<QMenuBar*>(widget) != nullptr) return;
  Control* target = FocusTarget(widget);
  Dispatch([&form = form_, target] { form.UserFocus(target); });
}

bool QtFormView::eventFilter(QObject* object, QEvent* event) {
  if (!object->isWidgetType() || window_ == nullptr) return false;
  auto& widget = static_cast<QWidget&>(*object);
  if (&widget == window_ && WindowEvent(*event)) return true;
  return WidgetEvent(widget, *event);
}

bool QtFormView::WindowEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      Dispatch([&form = form_] { form.UserClose(); });
      return true;
    case QEvent::Resize:
      ReportSizeLater();
      return false;
    case QEvent::Move:
      ReportPlace();
      return false;
    case QEvent::WindowStateChange:
      form_.ViewMinimized(window_->isMinimized());
      told_size_ = {};
      ReportSizeLater();
      return false;
    default:
      return false;
  }
}

bool QtFormView::WidgetEvent(QWidget& widget, QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress: {
      const auto& key = static_cast<QKeyEvent&>(event);
      return KeyPressed(widget, static_cast<QKeyEvent&>(event)) ||
             (&widget == window_ && PressDefaultButton(key));
    }
    case QEvent::Shortcut: {
      auto* button = qobject_cast<QAbstractButton*>(&widget);
      if (button == nullptr || static_cast<QShortcutEvent&>(event).isAmbiguous()) return false;
      PressButton(*button);
      return true;
    }
    case QEvent::MouseButtonPress:
      return event.spontaneous() && FocusRefused(widget);
    case QEvent::MouseButtonRelease: {
      const QPointer<QtFormView> alive(this);
      MouseReleased(widget, static_cast<QMouseEvent&>(event));
      return alive == nullptr;
    }
    case QEvent::ContextMenu:
      return ShowCopyMenu(widget, static_cast<QContextMenuEvent&>(event).globalPos());
    case QEvent::MouseButtonDblClick: {
      const bool is_left = static_cast<QMouseEvent&>(event).button() == Qt::LeftButton;
      Binding* binding = BindingOf(&widget);
      // What the inner widget ignores arrives here again for the one around it.
      if (!is_left || binding == nullptr || !binding->GetControl().on_double_click) return false;
      Control& control = binding->GetControl();
      Dispatch([&control] { control.UserDoubleClick(); });
      return true;
    }
    default:
      return false;
  }
}

// A key that a widget ignores is offered to the widgets around it; the form hears of it once.
bool QtFormView::IsFirstReceiver(QWidget& widget, const QKeyEvent& key) {
  const QWidget* focus = window_->focusWidget();
  const bool is_around_focus = focus != nullptr && focus->isVisible() && focus->isEnabled() &&
                               &widget != focus && widget.isAncestorOf(focus);
  const bool is_same_key = &key == last_key_ && last_key_receiver_ != nullptr &&
                           last_key_receiver_ != &widget && widget.isAncestorOf(last_key_receiver_);
  last_key_ = &key;
  if (!is_same_key) last_key_receiver_ = &widget;
  return !is_around_focus && !is_same_key;
}

bool QtFormView::KeyPressed(QWidget& widget, QKeyEvent& key) {
  if (!IsFirstReceiver(widget, key) || IsFocusKey(key)) return false;
  Control* target = FocusTarget(&widget);
  bool passed = true;
  // The view may end with the form's handler; the form does not.
  const bool alive = Dispatch([&form = form_, &key, &passed, target] {
    passed = form.UserKeyDown(target, TranslateKey(key));
    const int character = TypedCharacter(key);
    if (passed && character != 0 && form.Loaded()) passed = form.UserKeyPress(character);
  });
  // A field that takes no keys can still be copied.
  if (!alive || CopyByKey(widget, key)) return true;
  // These two close and confirm a dialog, wherever in it the focus is.
  const bool is_dialog_key =
      window_->inherits("QDialog") && (key.key() == Qt::Key_Escape || IsEnter(key));
  if (!passed && !is_dialog_key && !IsSystemKey(key)) {
    key.accept();
    return true;
  }
  return ActOnKey(widget, key);
}

bool QtFormView::CopyByKey(const QWidget& widget, const QKeyEvent& key) const {
  const Binding* binding = key.matches(QKeySequence::Copy) ? BindingOf(&widget) : nullptr;
  const QString text = binding != nullptr ? binding->CopyText() : QString();
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
  return !text.isEmpty();
}

bool QtFormView::ShowCopyMenu(const QWidget& widget, const QPoint& place) {
  const Binding* binding = BindingOf(&widget);
  const QString text = binding != nullptr ? binding->CopyText() : QString();
  if (text.isEmpty()) return false;
  auto* menu = new QMenu(window_);
  menu->setObjectName(QStringLiteral("mnuCopy"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  // In the toolkit's own words, as in the menus of the fields that can be typed in.
  QAction* copy = menu->addAction(QCoreApplication::translate("QWidgetTextControl", "&Copy"));
  copy->setShortcut(QKeySequence::Copy);
  connect(copy, &QAction::triggered, menu, [text] { QGuiApplication::clipboard()->setText(text); });
  menu->popup(place);
  return true;
}

bool QtFormView::ActOnKey(QWidget& widget, const QKeyEvent& key) {
  const bool is_plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (key.key() == Qt::Key_F10 && is_plain && window_->inherits("QMainWindow")) {
    OpenMenuBar();
    return true;
  }
  if (key.key() == Qt::Key_Escape && is_plain && window_->inherits("QDialog")) {
    // Never the dialog by itself: it would vanish without its form.
    if (form_.escape_closes) Dispatch([&form = form_] { form.UserClose(); });
    return true;
  }
  Binding* binding = BindingOf(&widget);
  return binding != nullptr && binding->HandleKey(key);
}

// As the Alt key alone, so that the menu bar gives the focus back when it is left; and the first
// menu opens.
void QtFormView::OpenMenuBar() {
  QMenuBar* bar = static_cast<QMainWindow*>(window_.data())->menuBar();
  QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(window_, &question);
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
  QCoreApplication::sendEvent(window_, &release);
  for (QAction* action : bar->actions()) {
    if (!action->isVisible() || !action->isEnabled() || action->isSeparator()) continue;
    bar->setActiveAction(action);
    return;
  }
}

// By its letter or as the default one. As with the mouse the focus goes there first, and where a
// field refuses to be left nothing is pressed.
void QtFormView::PressButton(QAbstractButton& button) {
  const QPointer<QtFormView> alive(this);
  const QPointer<QAbstractButton> pressed(&button);
  button.setFocus(Qt::ShortcutFocusReason);
  if (alive && pressed && window_ != nullptr && window_->focusWidget() == pressed) pressed->click();
}

bool QtFormView::PressDefaultButton(const QKeyEvent& key) {
  if (!IsEnter(key) || !window_->inherits("QDialog")) return false;
  for (QPushButton* button : window_->findChildren<QPushButton*>()) {
    if (!button->isDefault() || !button->isVisible()) continue;
    if (button->isEnabled() && !key.isAutoRepeat()) PressButton(*button);
    break;
  }
  return true;
}

// The press of the mouse has moved the focus here, and a handler has put it elsewhere: a field that
// may not be left keeps what a click on the next widget would do from happening.
bool QtFormView::FocusRefused(QWidget& widget) const {
  const QWidget* target = &widget;
  while (target->focusProxy() != nullptr) target = target->focusProxy();
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && target->isEnabled() && target->isActiveWindow() &&
         (target->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus && focus != target &&
         !target->isAncestorOf(focus) && !focus->isAncestorOf(target);
}

void QtFormView::MouseReleased(QWidget& widget, const QMouseEvent& mouse) {
  if (mouse.button() != Qt::LeftButton || !widget.rect().contains(mouse.position().toPoint()))
    return;
  if (Binding* binding = BindingOf(&widget)) Dispatch([binding] { binding->MouseReleased(); });
}

void QtFormView::Measure() {
  for (const auto& binding : bindings_) binding->Measure();
}

void QtFormView::ReportSize() {
  if (window_->width() == form_.Width() / kTwipsPerPixel &&
      window_->height() == form_.Height() / kTwipsPerPixel)
    return;
  height_ = window_->height() * kTwipsPerPixel;
  form_.ViewResized(window_->width() * kTwipsPerPixel, height_);
}

// The window has its new size before its layout passes it on to the fields.
void QtFormView::ReportSizeLater() {
  if (std::exchange(report_pending_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (!host_.Waiting()) TellSize();
      },
      Qt::QueuedConnection);
}

void QtFormView::ReportHeldBack() {
  if (std::exchange(report_pending_, false)) ReportSizeLater();
}

void QtFormView::TellSize() {
  report_pending_ = false;
  if (window_ == nullptr || !window_->isVisible()) return;
  Measure();
  ReportSize();
  if (std::exchange(told_size_, window_->size()) != window_->size())
    Dispatch([&form = form_] { form.UserResize(); });
}

void QtFormView::ReportPlace() {
  if (!window_->isVisible()) return;
  const QPoint place = window_->pos() - AvailableScreen().topLeft();
  if (place == QPoint(left_ / kTwipsPerPixel, top_ / kTwipsPerPixel)) return;
  left_ = place.x() * kTwipsPerPixel;
  top_ = place.y() * kTwipsPerPixel;
  form_.ViewMoved(left_, top_);
}

}  // namespace lorimet
