// A plugin of the toolkit that tells when the first window of a program has been painted: it writes
// the monotonic time in nanoseconds, as text, to the descriptor that LORIMET_FIRST_PAINT names.
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>
#include <ctime>
#include <string>

namespace {

class FirstPaint : public QObject {
 public:
  FirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && qobject_cast<QWidget*>(object) != nullptr) {
      QCoreApplication::instance()->removeEventFilter(this);
      // All that is painted with the window comes before the next event.
      QTimer::singleShot(0, this, &FirstPaint::Tell);
    }
    return false;
  }

 private:
  static void Tell() {
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const std::string text = std::to_string(now.tv_sec * 1'000'000'000LL + now.tv_nsec) + "\n";
    const int descriptor = qEnvironmentVariableIntValue("LORIMET_FIRST_PAINT");
    if (write(descriptor, text.data(), text.size()) < 0) qWarning("Nobody waits for the paint.");
    close(descriptor);
  }
};

class FirstPaintPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint.json")

 public:
  QObject* create(const QString&, const QString&) override { return new FirstPaint; }
};

}  // namespace

#include "first_paint.moc"
