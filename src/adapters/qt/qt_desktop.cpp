#include "adapters/qt/qt_desktop.h"

#include <QApplication>
#include <QCursor>
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

namespace lorimet {
namespace {

constexpr int kDoEventsMilliseconds = 50;
constexpr std::int32_t kInternalError = 51;

std::int64_t Microseconds() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

}  // namespace

QtDesktop::QtDesktop(const std::map<std::string, ViewFactory>& factories)
    : factories_(factories), lifetime_(std::make_unique<QObject>()) {
  // The program ends when its forms do, whatever windows come and go.
  QApplication::setQuitOnLastWindowClosed(false);
  QObject::connect(qApp, &QApplication::focusChanged, lifetime_.get(),
                   [this](QWidget*, QWidget* now) { FocusChanged(now); });
}

QtDesktop::~QtDesktop() = default;

// --- Windows -----------------------------------------------------------------------------------

std::unique_ptr<FormView> QtDesktop::CreateView(Form& form) {
  const auto factory = factories_.find(form.Name());
  if (factory == factories_.end()) qFatal("There is no window for form %s.", form.Name().c_str());
  auto view = std::make_unique<QtFormView>(*this, form, factory->second(nullptr));
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
  for (auto loop = modal_loops_.rbegin(); loop != modal_loops_.rend(); ++loop) {
    QWidget* window = Window(*loop->form);
    if (window != nullptr && window != except && window->isVisible()) return window;
  }
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
  const LoopScope scope(*this);
  running_ = true;
  QCoreApplication::exec();
  running_ = false;
}

void QtDesktop::RunModal(Form& form) {
  const LoopScope scope(*this);
  QEventLoop loop;
  modal_loops_.push_back({&form, &loop});
  // A form that is hidden and shown again goes on; an application that quits ends all loops.
  while (form.Visible() && loop.exec() != -1) {
  }
  modal_loops_.pop_back();
}

void QtDesktop::FormHidden(const Form& form) {
  for (const ModalLoop& modal : modal_loops_)
    if (modal.form == &form) modal.loop->quit();
}

void QtDesktop::DoEvents() {
  const LoopScope scope(*this);
  const std::int64_t start = Microseconds();
  QCoreApplication::processEvents(QEventLoop::AllEvents, kDoEventsMilliseconds);
  const std::int64_t end = Microseconds();
  // A loop that waits by calling this again and again leaves the processor to others meanwhile.
  constexpr std::int64_t kAtOnce = 200;
  if (end - start < kAtOnce && start - last_idle_ < kAtOnce)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  last_idle_ = Microseconds();
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

void QtDesktop::RunEvent(const std::function<void()>& handler) {
  // An event that code raises within another one is part of it.
  const CountScope depth(event_depth_);
  try {
    handler();
    if (event_depth_ == 1) Flush();
  } catch (const RuntimeError& error) {
    Fail(error);
  } catch (const std::exception& error) {
    Fail(RuntimeError(kInternalError, error.what()));
  }
}

void QtDesktop::Fail(const RuntimeError& error) {
  if (failed_) return;
  failed_ = true;
  if (!on_unhandled_error)
    qFatal("Run-time error '%d': %s", static_cast<int>(error.Number()), error.what());
  on_unhandled_error(error);
}

void QtDesktop::Dispatch(const std::function<void()>& event) {
  if (mirroring_ > 0 || failed_) return;
  RunEvent(event);
}

void QtDesktop::FocusChanged(QWidget* now) {
  // A focus that has left the program's forms comes back to where it was; that is no event.
  if (now == nullptr) return;
  if (quiet_ == 0) {
    if (QtFormView* view = ViewOf(now->window())) view->FocusMoved(now);
    return;
  }
  if (std::exchange(focus_pending_, true)) return;
  QMetaObject::invokeMethod(
      lifetime_.get(), [this] { TellFocus(); }, Qt::QueuedConnection);
}

void QtDesktop::TellFocus() {
  focus_pending_ = false;
  if (QWidget* now = QApplication::focusWidget()) FocusChanged(now);
}

// --- Dialogs -----------------------------------------------------------------------------------

BoxButton QtDesktop::ShowMessageBox(const MessageBox& box) {
  const LoopScope scope(*this);
  return RunMessageBox(box, TopWindow());
}

std::optional<std::string> QtDesktop::ShowFileDialog(const FileDialog& dialog) {
  const LoopScope scope(*this);
  return RunFileDialog(dialog, TopWindow());
}

std::optional<int> QtDesktop::ChooseFromList(const std::string& title,
                                             const std::vector<std::string>& items, int selected) {
  const LoopScope scope(*this);
  return RunListDialog(title, items, selected, TopWindow());
}

}  // namespace lorimet
