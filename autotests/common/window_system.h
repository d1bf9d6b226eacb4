// How keys and the mouse come from the window system: the toolkit exports these for its own tests.
#pragma once

#include <QEvent>
#include <QPointF>
#include <QString>

QT_BEGIN_NAMESPACE
class QWindow;
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers,
                                    const QString& text = QString(), bool autorepeat = false,
                                    ushort count = 1);
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
QT_END_NAMESPACE
