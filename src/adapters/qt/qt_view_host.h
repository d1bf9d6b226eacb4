// What the view of a form needs of the desktop that shows it.
#pragma once

#include <functional>

class QWidget;

namespace lorimet {

class Form;
class QtFormView;

// Counts the scopes that are open.
class CountScope {
 public:
  explicit CountScope(int& depth) : depth_(depth) { ++depth_; }
  ~CountScope() { --depth_; }
  CountScope(const CountScope&) = delete;
  CountScope& operator=(const CountScope&) = delete;

 private:
  int& depth_;
};

class ViewHost {
 public:
  // Runs what the user did, unless it is an echo of the mirroring.
  virtual void Dispatch(const std::function<void()>& event) = 0;
  // Throws what a handler threw while a call into the toolkit stood between it and this code.
  virtual void RethrowCarried() = 0;
  virtual void FormHidden(const Form& form) = 0;
  virtual void ViewDropped(QtFormView& view) = 0;
  // Null when the form is not loaded.
  virtual QWidget* Window(const Form& form) const = 0;
  // The window that a new one comes in front of.
  virtual QWidget* TopWindow(const QWidget* except) const = 0;
  // A handler blocks the user interface: windows repaint, and no event runs.
  bool Waiting() const { return waiting_ > 0; }

 protected:
  ~ViewHost() = default;

  friend class QtFormView;
  // Above 0, what widgets report is an echo.
  int mirroring_ = 0;
  // Above 0, changes of the focus are kept back until the event loop runs again: their handlers may
  // unload the very form that is being mirrored, shown or hidden.
  int quiet_ = 0;
  int waiting_ = 0;
  // Whether the timers of a form that is loaded now tick in the machine's time.
  bool ticks_by_itself_ = true;
};

}  // namespace lorimet
