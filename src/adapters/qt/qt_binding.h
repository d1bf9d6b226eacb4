// The tie between one control and what shows it.
#pragma once

#include <QString>

#include <functional>

#include "platform/controls.h"

class QKeyEvent;
class QObject;
class QWidget;

namespace lorimet {

// Runs what the user did, unless the widgets are just being brought into line with the controls.
using EventDispatcher = std::function<void(const std::function<void()>&)>;

struct BindingSite {
  QWidget* window = nullptr;
  QObject* lifetime = nullptr;  // connections end with it
  EventDispatcher dispatch;
  bool timers_tick = true;  // in the machine's time
};

// Owned by the form's view. The destructor touches neither the control nor the widget: both may be
// gone before it.
class Binding {
 public:
  explicit Binding(Control& control) : control_(control) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;
  virtual ~Binding() = default;

  Control& GetControl() const { return control_; }
  // Null for what is no widget: actions, menus and timers.
  virtual QWidget* Widget() const { return nullptr; }
  // What the designer drew.
  virtual ControlDesign Design() const { return {}; }
  // Brings the widget into line with the control, for these bits of Control::Change.
  virtual void Mirror(unsigned changes) = 0;
  // Called when the widget has got its size.
  virtual void Measure() {}
  // The left mouse button was released over the widget.
  virtual void MouseReleased() {}
  // A key that the form let pass, before the widget gets it; true when it is done with.
  virtual bool HandleKey(const QKeyEvent& key) {
    static_cast<void>(key);
    return false;
  }
  // What is copied of a widget that only shows: what is selected, or all of it. Empty where the
  // toolkit copies by itself.
  virtual QString CopyText() const { return {}; }
  // True when the keyboard focus can stand on this control.
  virtual bool TakesFocus() const { return true; }

 private:
  Control& control_;
};

}  // namespace lorimet
