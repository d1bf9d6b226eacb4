#include "adapters/qt/qt_desktop.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <thread>

#include "adapters/qt/qt_dialogs.h"
#include "adapters/qt/qt_form_view.h"
#include "adapters/qt/qt_text.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr int kDoEventsMilliseconds = 50;
constexpr std::uint32_t kShortestWait = 100;  // ms, for which nobody's hand is quick enough
constexpr std::uint32_t kLongWait = 1000;     // ms, from which on the pointer says so
constexpr std::chrono::milliseconds kRepaintEvery{10};

std::int64_t Microseconds() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

// The pointer of waiting, over all windows, for as long as one stands.
class WaitPointer {
 public:
  explicit WaitPointer(bool on) : on_(on) {
    if (on_) QApplication::setOverrideCursor(Qt::WaitCursor);
  }
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;
  ~WaitPointer() {
    if (on_) QApplication::restoreOverrideCursor();
  }

 private:
  const bool on_;
};

// While one stands, what the user does reaches no window and is gone; what is in a pipe stays.
class InputGate : public QObject {
 public:
  InputGate() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (!IsKeptOut(*event)) return false;
    event->ignore();
    return true;
  }

 private:
  static bool IsKeptOut(const QEvent& event) {
    switch (event.type()) {
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
      case QEvent::ShortcutOverride:
      case QEvent::Shortcut:
      case QEvent::InputMethod:
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseMove:
      case QEvent::Wheel:
      case QEvent::TabletPress:
      case QEvent::TabletRelease:
      case QEvent::TabletMove:
      case QEvent::TouchBegin:
      case QEvent::TouchUpdate:
      case QEvent::TouchEnd:
      case QEvent::TouchCancel:
      case QEvent::ContextMenu:
      case QEvent::DragEnter:
      case QEvent::Drop:
      // Not every event loop can leave these out by itself.
      case QEvent::SockAct:
        return true;
      case QEvent::Close:
        return event.spontaneous();
      default:
        return false;
    }
  }
};

}  // namespace

QtDesktop::QtDesktop(const std::map<std::string, ViewFactory>& factories)
    : factories_(factories), lifetime_(std::make_unique<QObject>()) {
  // The program ends when its forms do, whatever windows come and go.
  QApplication::setQuitOnLastWindowClosed(false);
  on_unhandled_error = [](const RuntimeError& error) {
    qFatal("Run-time error '%d': %s", static_cast<int>(error.Number()), error.what());
  };
  QObject::connect(qApp, &QApplication::focusChanged, lifetime_.get(),
                   [this](QWidget*, QWidget* now) { FocusChanged(now); });
}

QtDesktop::~QtDesktop() = default;

// --- Windows -----------------------------------------------------------------------------------

std::unique_ptr<FormView> QtDesktop::CreateView(Form& form) {
  const auto factory = factories_.find(form.Name());
  if (factory == factories_.end()) qFatal("There is no window for form %s.", form.Name().c_str());
  ViewHost& host = *this;
  auto view = std::make_unique<QtFormView>(host, form, factory->second(nullptr));
  views_.push_back(view.get());
  return view;
}

void QtDesktop::ViewDropped(QtFormView& view) {
  std::erase(views_, &view);
  if (!views_.empty()) return;
  QMetaObject::invokeMethod(
      lifetime_.get(),
      [this] {
        if (running_ && LoadedForms().empty()) QCoreApplication::exit();
      },
      Qt::QueuedConnection);
}

QtFormView* QtDesktop::ViewOf(const QWidget* window) const {
  const auto found = std::ranges::find(views_, window, &QtFormView::Window);
  return found == views_.end() ? nullptr : *found;
}

QWidget* QtDesktop::Window(const Form& form) const {
  for (const QtFormView* view : views_)
    if (&view->GetForm() == &form) return view->Window();
  return nullptr;
}

QWidget* QtDesktop::TopWindow(const QWidget* except) const {
  // Whatever is modal already, a box among them: the new one blocks it.
  QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal != except && modal->isVisible()) return modal;
  for (const QtFormView* view : views_)
    if (view->Window() != except && view->Window() != nullptr && view->Window()->isVisible())
      return view->Window();
  return nullptr;
}

std::uintptr_t QtDesktop::NativeWindow(Form& form) {
  form.Load();
  QWidget* window = Window(form);
  return window == nullptr ? 0 : static_cast<std::uintptr_t>(window->winId());
}

// --- Loops -------------------------------------------------------------------------------------

void QtDesktop::Run() {
  if (LoadedForms().empty()) return;
  RunLoop(Loop::kStanding, [this] {
    running_ = true;
    QCoreApplication::exec();
    running_ = false;
  });
}

void QtDesktop::RunModal(Form& form) {
  RunLoop(Loop::kStanding, [&] {
    QEventLoop loop;
    modal_loops_.push_back({&form, &loop});
    // A form that is hidden and shown again goes on; an application that quits ends all loops.
    while (form.Visible() && !life.Failed() && loop.exec() != -1) {
    }
    modal_loops_.pop_back();
  });
}

void QtDesktop::FormHidden(const Form& form) {
  for (const ModalLoop& modal : modal_loops_)
    if (modal.form == &form) modal.loop->quit();
}

void QtDesktop::EndLoops() {
  for (const ModalLoop& modal : modal_loops_) modal.loop->quit();
  for (QWidget* window : QApplication::topLevelWidgets())
    if (auto* dialog = qobject_cast<QDialog*>(window);
        dialog != nullptr && ViewOf(window) == nullptr)
      dialog->reject();
}

void QtDesktop::DoEvents() {
  RunLoop(Loop::kPassing, [this] {
    const std::int64_t start = Microseconds();
    QCoreApplication::processEvents(QEventLoop::AllEvents, kDoEventsMilliseconds);
    const std::int64_t end = Microseconds();
    // A loop that waits by calling this again and again leaves the processor to others meanwhile.
    constexpr std::int64_t kAtOnce = 200;
    if (end - start < kAtOnce && start - last_idle_ < kAtOnce)
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    last_idle_ = Microseconds();
  });
}

void QtDesktop::Wait(std::uint32_t milliseconds) {
  const std::chrono::milliseconds whole(milliseconds);
  if (milliseconds < kShortestWait) return std::this_thread::sleep_for(whole);
  const auto end = std::chrono::steady_clock::now() + whole;
  auto left = whole;
  const WaitPointer pointer(milliseconds >= kLongWait);
  WaitWhile([&] {
    std::this_thread::sleep_for(std::min(left, kRepaintEvery));
    left = std::chrono::duration_cast<std::chrono::milliseconds>(end -
                                                                 std::chrono::steady_clock::now());
    return left.count() > 0;
  });
}

void QtDesktop::WaitWhile(const std::function<bool()>& goes_on) {
  {
    const CountScope waiting(waiting_);
    const InputGate gate;
    bool more = true;
    while (more) {
      more = goes_on();
      QCoreApplication::processEvents();
    }
  }
  TellHeldBack();
}

void QtDesktop::Repaint() {
  Flush();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
  for (const QtFormView* view : views_)
    if (view->Window() != nullptr && view->Window()->isVisible()) view->Window()->repaint();
  // Asking the window system for an answer makes it take in all that has been drawn.
  QCursor::pos();
}

void QtDesktop::Beep() { QApplication::beep(); }

int QtDesktop::ScreenWidth() const {
  return QGuiApplication::primaryScreen()->availableGeometry().width() * kTwipsPerPixel;
}

int QtDesktop::ScreenHeight() const {
  return QGuiApplication::primaryScreen()->availableGeometry().height() * kTwipsPerPixel;
}

// --- Events ------------------------------------------------------------------------------------

void QtDesktop::Dispatch(const std::function<void()>& event) {
  if (mirroring_ > 0 || waiting_ > 0) return;
  // Nothing is thrown through the toolkit.
  try {
    RunEvent(event);
  } catch (...) {
    carried_ = std::current_exception();
  }
}

void QtDesktop::RethrowCarried() {
  if (carried_ != nullptr) std::rethrow_exception(std::exchange(carried_, nullptr));
}

void QtDesktop::TickPosted() {
  if (std::exchange(tick_event_posted_, true)) return;
  QMetaObject::invokeMethod(
      lifetime_.get(),
      [this] {
        tick_event_posted_ = false;
        if (waiting_ == 0) RunTicks();
      },
      Qt::QueuedConnection);
}

void QtDesktop::FocusChanged(QWidget* now) {
  // A focus that has left the program's forms comes back to where it was; that is no event.
  if (now == nullptr) return;
  if (waiting_ > 0) {
    focus_pending_ = true;
  } else if (quiet_ > 0) {
    if (!std::exchange(focus_pending_, true)) TellFocusLater();
  } else if (QtFormView* view = ViewOf(now->window())) {
    view->FocusMoved(now);
  }
}

void QtDesktop::TellFocusLater() {
  QMetaObject::invokeMethod(
      lifetime_.get(),
      [this] {
        if (waiting_ > 0) return;
        focus_pending_ = false;
        if (QWidget* now = QApplication::focusWidget()) FocusChanged(now);
      },
      Qt::QueuedConnection);
}

void QtDesktop::TellHeldBack() {
  if (waiting_ > 0) return;
  if (focus_pending_) TellFocusLater();
  for (QtFormView* view : views_) view->ReportHeldBack();
  TickPosted();
}

// --- Dialogs -----------------------------------------------------------------------------------

BoxButton QtDesktop::ShowMessageBox(const MessageBox& box) {
  BoxButton answer = kBoxCancel;
  RunLoop(Loop::kStanding, [&] { answer = RunMessageBox(box, TopWindow(nullptr)); });
  return answer;
}

std::optional<std::string> QtDesktop::ShowFileDialog(const FileDialog& dialog) {
  std::optional<std::string> path;
  RunLoop(Loop::kStanding, [&] { path = RunFileDialog(dialog, TopWindow(nullptr)); });
  return path;
}

std::optional<int> QtDesktop::ChooseFromList(const std::string& title,
                                             const std::vector<std::string>& items, int selected) {
  std::optional<int> choice;
  RunLoop(Loop::kStanding,
          [&] { choice = RunListDialog(title, items, selected, TopWindow(nullptr)); });
  return choice;
}

}  // namespace lorimet
