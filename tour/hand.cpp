#include "tour/hand.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>
#include <QWindow>

// How the toolkit's platforms hand over what the window system tells, and ask for shortcuts first.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text,
                                               bool autorepeat, ushort count);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text,
                                    bool autorepeat, ushort count);
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
QT_END_NAMESPACE

namespace lorimet {
namespace {

constexpr int kNoDoubleClick = 2000;   // ms between two clicks
constexpr int kCheckBoxIndicator = 8;  // pixels from its left edge

// The moment of the next click, as the window system tells it.
int NextClick() {
  static int time = 0;
  return time += kNoDoubleClick;
}

void ClickAtTime(QWidget& widget, const QPoint& place, int time) {
  const QPointer<QWidget> window(widget.window());
  if (window->windowHandle() == nullptr) return;
  const QPointF global = widget.mapToGlobal(QPointF(place));
  const QPointF local = window->mapFromGlobal(global);
  qt_handleMouseEvent(window->windowHandle(), local, global, Qt::LeftButton, Qt::LeftButton,
                      QEvent::MouseButtonPress, Qt::NoModifier, time);
  if (window && window->windowHandle() != nullptr)
    qt_handleMouseEvent(window->windowHandle(), local, global, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, time + 10);
}

}  // namespace

QWidget* FindWindow(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == name && window->isVisible()) return window;
  return nullptr;
}

QString TextIn(const QString& window, const QString& name) {
  const auto* widget = FindIn<QWidget>(window, name);
  if (const auto* field = qobject_cast<const QLineEdit*>(widget)) return field->text();
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
  if (const auto* lines = qobject_cast<const QPlainTextEdit*>(widget)) return lines->toPlainText();
  if (const auto* page = qobject_cast<const QTextEdit*>(widget)) return page->toPlainText();
  return {};
}

QString StandingWindows() {
  QStringList names;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || window->objectName().isEmpty()) continue;
    const auto* box = qobject_cast<const QMessageBox*>(window);
    names << (box == nullptr
                  ? window->objectName()
                  : QStringLiteral("a box that says \"%1\"").arg(box->text().simplified()));
  }
  names.sort();
  const QString message = TextIn(QStringLiteral("frmZeltMain"), QStringLiteral("txtError"));
  if (!message.trimmed().isEmpty())
    names << QStringLiteral("the message \"%1\"").arg(message.simplified());
  return names.join(QStringLiteral(", "));
}

void ClickAt(QWidget& widget, const QPoint& place) { ClickAtTime(widget, place, NextClick()); }

void Click(QWidget& widget) {
  QPoint place = widget.rect().center();
  // Behind its words a check box does not feel the mouse.
  if (qobject_cast<QCheckBox*>(&widget) != nullptr) place.setX(kCheckBoxIndicator);
  ClickAt(widget, place);
}

void DoubleClick(QWidget& widget) {
  const QPointer<QWidget> alive(&widget);
  const int time = NextClick();
  ClickAtTime(widget, widget.rect().center(), time);
  if (alive) ClickAtTime(widget, widget.rect().center(), time + 50);
}

void PressKey(QWidget& window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QPointer<QWidget> alive(window.window());
  if (alive->windowHandle() == nullptr) return;
  if (qt_sendShortcutOverrideEvent(alive->windowHandle(), 0, key, modifiers, text, false, 1))
    return;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    if (alive && alive->windowHandle() != nullptr)
      qt_handleKeyEvent(alive->windowHandle(), type, key, modifiers, text, false, 1);
}

void TypeInto(QWidget& field, const QString& text) {
  Click(field);
  PressKey(field, Qt::Key_A, Qt::ControlModifier);
  for (const QChar character : text)
    PressKey(field, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

}  // namespace lorimet
