// A hand and an eye inside the running program, for tests of the process: a plugin that the toolkit
// loads when QT_QPA_GENERIC_PLUGINS names it.
//
// It listens at the socket that LORIMET_WINDOW_PROBE names. Each connection carries one command, a
// line of words, and gets one answer back: "=" and what was asked for, or "!" and why not.
//
//     windows                      the names of the visible windows, a line each
//     get WINDOW NAME PROPERTY     a property as text; the name "." is the window itself
//     click WINDOW NAME            a button; of a message box "." is its only button
//     trigger WINDOW NAME          a menu item or toolbar button
//     choose WINDOW FILE           a file in a file dialog, by its whole path
//     close WINDOW                 the window's close box
//     press WINDOW NAME            the mouse on the middle of a widget, by the window system's road
//     key WINDOW KEY               a key, such as 3 or Return, by the same road
//     where WINDOW NAME            the middle of a widget, or of the item of a menu or toolbar that
//     is
//                                  in sight, on the screen: x and y
//     grab WINDOW FILE             a picture of the window, as PNG
//     exit                         the end of the application's event loop
//
// What a user could not reach, because it is hidden, disabled or behind a modal window, is refused.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QSocketNotifier>
#include <QStringList>
#include <QTimer>
#include <QToolBar>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "autotests/common/window_system.h"

namespace {

class Refused {
 public:
  explicit Refused(QString reason) : reason_(std::move(reason)) {}
  QString Reason() const { return reason_; }

 private:
  QString reason_;
};

QWidget* VisibleWindow(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isWindow() && window->isVisible() && window->objectName() == name) return window;
  throw Refused("there is no window " + name);
}

QString VisibleWindows() {
  QStringList names;
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && !window->objectName().isEmpty()) names << window->objectName();
  names.sort();
  return names.join('\n');
}

QWidget* ReachableWindow(const QString& name) {
  QWidget* window = VisibleWindow(name);
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != window) throw Refused(name + " is behind a modal window");
  return window;
}

template <typename Object>
Object* Named(QWidget* window, const QString& name) {
  auto* object = window->findChild<Object*>(name);
  if (object == nullptr) throw Refused(window->objectName() + " has no " + name);
  return object;
}

template <typename Object>
Object* Usable(Object* object) {
  if (!object->isEnabled() || !object->isVisible())
    throw Refused(object->objectName() + " is hidden or disabled");
  return object;
}

// From an event of its own, for it may run an event loop that lasts.
template <typename Object, typename Action>
QString Later(Object* object, Action action) {
  const QPointer<Object> alive(object);
  QTimer::singleShot(0, [alive, action] {
    if (alive) action(alive.data());
  });
  return {};
}

QAbstractButton* ButtonOf(QWidget* window, const QString& name) {
  if (name != ".") return Named<QAbstractButton>(window, name);
  auto* box = qobject_cast<QMessageBox*>(window);
  if (box == nullptr || box->buttons().size() != 1)
    throw Refused(window->objectName() + " is no message box of one button");
  return box->buttons().constFirst();
}

QString Get(const QStringList& words) {
  QWidget* window = VisibleWindow(words[1]);
  const QObject* object = words[2] == "." ? window : Named<QObject>(window, words[2]);
  const QVariant value = object->property(words[3].toUtf8().constData());
  if (!value.isValid()) throw Refused(words[2] + " has no property " + words[3]);
  return value.toString();
}

QPoint PlaceOf(QAction* action) {
  for (const QObject* place : action->associatedObjects()) {
    const auto* widget = qobject_cast<const QWidget*>(place);
    if (widget == nullptr || !widget->isVisible()) continue;
    if (const auto* bar = qobject_cast<const QMenuBar*>(place))
      return bar->mapToGlobal(bar->actionGeometry(action).center());
    if (const auto* menu = qobject_cast<const QMenu*>(place))
      return menu->mapToGlobal(menu->actionGeometry(action).center());
    if (const auto* bar = qobject_cast<const QToolBar*>(place)) {
      const QWidget* button = bar->widgetForAction(action);
      return button->mapToGlobal(button->rect().center());
    }
  }
  throw Refused(action->objectName() + " is not in sight");
}

QString Where(QWidget* window, const QString& name) {
  QPoint place;
  if (const auto* menu = window->findChild<QMenu*>(name)) {
    place = PlaceOf(Usable(menu->menuAction()));
  } else if (auto* action = window->findChild<QAction*>(name)) {
    place = PlaceOf(Usable(action));
  } else {
    const auto* widget = Usable(Named<QWidget>(window, name));
    if (!widget->visibleRegion().contains(widget->rect().center()))
      throw Refused(name + " is not in sight");
    place = widget->mapToGlobal(widget->rect().center());
  }
  return QStringLiteral("%1 %2").arg(place.x()).arg(place.y());
}

QString Press(QWidget* window, QWidget* target) {
  const QPointF local = target->mapTo(window, target->rect().center());
  const QPointF global = window->mapToGlobal(local);
  return Later(window, [local, global](QWidget* there) {
    QWindow* handle = there->windowHandle();
    qt_handleMouseEvent(handle, local, global, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, 0);
    qt_handleMouseEvent(handle, local, global, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, 0);
  });
}

QString Key(QWidget* window, const QString& name) {
  const QKeySequence keys(name);
  if (keys.isEmpty()) throw Refused("there is no key " + name);
  const int key = keys[0].key();
  const QString text = name.size() == 1 ? name : QString();
  return Later(window, [key, text](QWidget* there) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
      qt_handleKeyEvent(there->windowHandle(), type, key, Qt::NoModifier, text);
  });
}

QString Grab(QWidget* window, const QString& file) {
  if (!window->grab().save(file)) throw Refused(file + " cannot be written");
  return {};
}

QString Do(const QStringList& words) {
  if (words == QStringList{"windows"}) return VisibleWindows();
  if (words.size() == 4 && words[0] == "get") return Get(words);
  if (words.size() == 3 && words[0] == "click")
    return Later(Usable(ButtonOf(ReachableWindow(words[1]), words[2])),
                 [](QAbstractButton* button) { button->click(); });
  if (words.size() == 3 && words[0] == "trigger")
    return Later(Usable(Named<QAction>(ReachableWindow(words[1]), words[2])),
                 [](QAction* action) { action->trigger(); });
  if (words.size() == 3 && words[0] == "choose")
    return Later(ReachableWindow(words[1]), [file = words[2]](QWidget* window) {
      Named<QLineEdit>(window, "fileNameEdit")->setText(file);
      QMetaObject::invokeMethod(window, "accept");
    });
  if (words.size() == 2 && words[0] == "close")
    return Later(ReachableWindow(words[1]), [](QWidget* window) { window->close(); });
  if (words.size() == 3 && words[0] == "press") {
    QWidget* window = ReachableWindow(words[1]);
    return Press(window, Usable(Named<QWidget>(window, words[2])));
  }
  if (words.size() == 3 && words[0] == "where") return Where(ReachableWindow(words[1]), words[2]);
  if (words.size() == 3 && words[0] == "key") return Key(ReachableWindow(words[1]), words[2]);
  if (words.size() == 3 && words[0] == "grab") return Grab(VisibleWindow(words[1]), words[2]);
  if (words == QStringList{"exit"})
    return Later(qApp, [](QCoreApplication*) { QCoreApplication::exit(); });
  throw Refused("unknown command " + words.join(' '));
}

QByteArray Answer(const QByteArray& line) {
  try {
    return "=" + Do(QString::fromUtf8(line).split(' ')).toUtf8();
  } catch (const Refused& refused) {
    return "!" + refused.Reason().toUtf8();
  }
}

QByteArray ReadLine(int connection) {
  QByteArray line;
  char byte = 0;
  while (read(connection, &byte, 1) == 1 && byte != '\n') line += byte;
  return line;
}

class Probe : public QObject {
 public:
  explicit Probe(const QByteArray& path)
      : listening_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::copy_n(path.constData(), std::min<qsizetype>(path.size(), sizeof address.sun_path - 1),
                address.sun_path);
    unlink(address.sun_path);
    if (bind(listening_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(listening_, 8) != 0)
      qFatal("The window probe cannot listen at %s", address.sun_path);
    auto* notifier = new QSocketNotifier(listening_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { Serve(); });
  }
  ~Probe() override { close(listening_); }

 private:
  void Serve() const {
    const int connection = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    const QByteArray answer = Answer(ReadLine(connection));
    send(connection, answer.constData(), static_cast<std::size_t>(answer.size()), MSG_NOSIGNAL);
    close(connection);
  }

  int listening_;
};

class WindowProbePlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "window_probe.json")

 public:
  QObject* create(const QString&, const QString&) override {
    return new Probe(qgetenv("LORIMET_WINDOW_PROBE"));
  }
};

}  // namespace

#include "window_probe.moc"
