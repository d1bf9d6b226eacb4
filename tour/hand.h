// The hand at mouse and keyboard, on the window system's own road, and the eye that finds windows
// and widgets by their names.
#pragma once

#include <QApplication>
#include <QString>
#include <QWidget>

class QAction;

namespace lorimet {

// A visible window, or null.
QWidget* FindWindow(const QString& name);
template <typename T>
T* FindIn(const QString& window_name, const QString& name) {
  QWidget* window = FindWindow(window_name);
  return window == nullptr ? nullptr : window->findChild<T*>(name);
}
// What a field, a label, a button or a list shows as text; empty where there is no such widget.
QString TextIn(const QString& window, const QString& name);
// All visible windows and the Message Center, for a person to read.
QString StandingWindows();

// Presses and lets go of the left button in the middle of a widget, or at a place of it.
void ClickAt(QWidget& widget, const QPoint& place);
void Click(QWidget& widget);
void DoubleClick(QWidget& widget);
void PressKey(QWidget& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              const QString& text = {});
// Writes a text into a field in place of what it holds.
void TypeInto(QWidget& field, const QString& text);

}  // namespace lorimet
