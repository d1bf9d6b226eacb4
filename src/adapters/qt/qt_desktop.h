// The desktop on Qt Widgets: a window for each loaded form, bound to its controls by name.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/qt/views.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"

class QEventLoop;
class QObject;
class QWidget;

namespace lorimet {

class QtFormView;

// Needs a QApplication, made before it and ended after it, and outlives the forms.
class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(const std::map<std::string, ViewFactory>& factories = ViewFactories());
  ~QtDesktop() override;

  // Takes an error that an event left unhandled. When it returns, the user's later events are
  // dropped. Without it such an error ends the process with its words on the standard error output.
  std::function<void(const RuntimeError&)> on_unhandled_error;

  // Runs events until no form is loaded any more, or the application quits.
  void Run();
  // The window of a form as the window system knows it; loads the form.
  std::uintptr_t NativeWindow(Form& form);
  // Null when the form is not loaded.
  QWidget* Window(const Form& form) const;

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
  void RunEvent(const std::function<void()>& handler) override;

 private:
  friend class QtFormView;

  class CountScope {
   public:
    explicit CountScope(int& depth) : depth_(depth) { ++depth_; }
    ~CountScope() { --depth_; }
    CountScope(const CountScope&) = delete;
    CountScope& operator=(const CountScope&) = delete;

   private:
    int& depth_;
  };
  // While one stands, an event loop runs: what happens in it is an event of its own, whatever event
  // is waiting below.
  class LoopScope {
   public:
    explicit LoopScope(QtDesktop& desktop)
        : desktop_(desktop), depth_(std::exchange(desktop.event_depth_, 0)) {
      desktop.Flush();
    }
    ~LoopScope() { desktop_.event_depth_ = depth_; }
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;

   private:
    QtDesktop& desktop_;
    int depth_;
  };
  struct ModalLoop {
    const Form* form;
    QEventLoop* loop;
  };

  // Runs what the user or a timer did, unless it is an echo of the mirroring.
  void Dispatch(const std::function<void()>& event);
  void Fail(const RuntimeError& error);
  void FocusChanged(QWidget* now);
  void TellFocus();
  void FormHidden(const Form& form);
  void ViewDropped(QtFormView& view);
  QtFormView* ViewOf(const QWidget* window) const;
  // The window that a new one stands in front of: the last modal form's, else the first form's.
  QWidget* TopWindow(const QWidget* except = nullptr) const;

  std::map<std::string, ViewFactory> factories_;
  std::unique_ptr<QObject> lifetime_;
  std::vector<QtFormView*> views_;
  std::vector<ModalLoop> modal_loops_;
  int event_depth_ = 0;
  int mirroring_ = 0;
  // Above 0, changes of the focus are kept back until the event loop runs again: their handlers may
  // unload the very form that is being mirrored, shown or hidden.
  int quiet_ = 0;
  bool focus_pending_ = false;
  bool running_ = false;
  bool failed_ = false;
  std::int64_t last_idle_ = 0;
};

}  // namespace lorimet
