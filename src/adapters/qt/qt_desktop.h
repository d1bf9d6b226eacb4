// The desktop on Qt Widgets: a window for each loaded form, bound to its controls by name.
#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/qt/qt_view_host.h"
#include "adapters/qt/views.h"
#include "platform/desktop.h"

class QEventLoop;
class QObject;
class QWidget;

namespace lorimet {

class QtFormView;

// Needs a QApplication, made before it and ended after it, and outlives the forms. Without an
// on_unhandled_error an unhandled error ends the process with its words on the standard error.
class QtDesktop : public Desktop, private ViewHost {
 public:
  explicit QtDesktop(const std::map<std::string, ViewFactory>& factories = ViewFactories());
  ~QtDesktop() override;

  // Runs events until no form is loaded any more, or the application quits.
  void Run();
  // The blocking wait: windows repaint and nothing else happens; what is clicked or typed meanwhile
  // is dropped, ticks and messages come behind it. A pause of less than a tenth of a second, as
  // between two looks of a waiting loop, drops nothing.
  void Wait(std::uint32_t milliseconds);
  // The same until `goes_on`, which lets some of the wait pass, is false.
  void WaitWhile(const std::function<bool()>& goes_on);
  // From now on no timer of the forms ticks by itself: who drives the time posts the ticks.
  void LeaveTicksToOthers() { ticks_by_itself_ = false; }
  using ViewHost::Waiting;
  // The window of a form as the window system knows it; loads the form.
  std::uintptr_t NativeWindow(Form& form);
  QWidget* Window(const Form& form) const override;

  std::unique_ptr<FormView> CreateView(Form& form) override;
  void RunModal(Form& form) override;
  void DoEvents() override;
  void Repaint() override;
  void Beep() override;
  int ScreenWidth() const override;
  int ScreenHeight() const override;
  BoxButton ShowMessageBox(const MessageBox& box) override;
  std::optional<std::string> ShowFileDialog(const FileDialog& dialog) override;
  std::optional<int> ChooseFromList(const std::string& title, const std::vector<std::string>& items,
                                    int selected) override;

 private:
  struct ModalLoop {
    const Form* form;
    QEventLoop* loop;
  };

  void TickPosted() override;
  void EndLoops() override;

  void Dispatch(const std::function<void()>& event) override;
  void RethrowCarried() override;
  void FormHidden(const Form& form) override;
  void ViewDropped(QtFormView& view) override;
  QWidget* TopWindow(const QWidget* except) const override;

  void FocusChanged(QWidget* now);
  void TellFocusLater();
  void TellHeldBack();
  QtFormView* ViewOf(const QWidget* window) const;

  std::map<std::string, ViewFactory> factories_;
  std::unique_ptr<QObject> lifetime_;
  std::vector<QtFormView*> views_;
  std::vector<ModalLoop> modal_loops_;
  std::exception_ptr carried_;
  bool focus_pending_ = false;
  bool tick_event_posted_ = false;
  bool running_ = false;
  std::int64_t last_idle_ = 0;
};

}  // namespace lorimet
