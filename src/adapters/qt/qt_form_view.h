// The window of one loaded form: mirrors its controls and takes the user's hand to them.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "adapters/qt/qt_binding.h"
#include "adapters/qt/qt_field_names.h"
#include "adapters/qt/qt_view_host.h"
#include "platform/desktop.h"

class QAbstractButton;
class QKeyEvent;
class QMouseEvent;

namespace lorimet {

class QtFormView : public QObject, public FormView {
 public:
  // Takes the window over, and imports into form and controls what the designer drew. Ends the
  // process with a message when the window lacks a control's widget.
  QtFormView(ViewHost& host, Form& form, QWidget* window);
  ~QtFormView() override;

  Form& GetForm() const { return form_; }
  QWidget* Window() const { return window_; }

  void Changed(Control* control) override;
  void Show(bool modal, Form* owner) override;
  void Hide() override;
  void SetFocus(Control& control) override;
  void Flush() override;
  void LayOut() override;

  // The keyboard focus is now on this widget of the window.
  void FocusMoved(QWidget* widget);
  // Reports what the window did during a blocking wait.
  void ReportHeldBack();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void BindControls();
  void ImportForm();
  void WatchWidgets();
  Binding* BindingOf(const QWidget* widget) const;
  Control* FocusTarget(const QWidget* widget) const;

  // True when the form is still loaded behind the event.
  bool Dispatch(const std::function<void()>& event);
  bool WindowEvent(QEvent& event);
  bool WidgetEvent(QWidget& widget, QEvent& event);
  bool KeyPressed(QWidget& widget, QKeyEvent& key);
  bool IsFirstReceiver(QWidget& widget, const QKeyEvent& key);
  bool ActOnKey(QWidget& widget, const QKeyEvent& key);
  bool CopyByKey(const QWidget& widget, const QKeyEvent& key) const;
  bool ShowCopyMenu(const QWidget& widget, const QPoint& place);
  void OpenMenuBar();
  void PressButton(QAbstractButton& button);
  bool PressDefaultButton(const QKeyEvent& key);
  bool FocusRefused(QWidget& widget) const;
  void MouseReleased(QWidget& widget, const QMouseEvent& mouse);

  void MirrorForm();
  void MirrorPointer();
  void MirrorGeometry();
  void FitToContents();
  void MoveWindow();
  void Measure();
  void MeasureHidden();
  void ReportSize();
  void ReportSizeLater();
  void TellSize();
  void ReportPlace();
  bool IsCentred() const;

  ViewHost& host_;
  Form& form_;
  QPointer<QWidget> window_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unordered_map<const Control*, Binding*> by_control_;
  std::unordered_map<const QWidget*, Binding*> by_widget_;
  FieldNames field_names_;
  std::vector<Control*> changed_;
  std::vector<std::pair<QPointer<QWidget>, QCursor>> own_cursors_;
  const QEvent* last_key_ = nullptr;
  QPointer<QWidget> last_key_receiver_;
  QSize told_size_;  // of the last resize event
  // What the window has of the form, in twips.
  int height_ = 0;
  int left_ = 0;
  int top_ = 0;
  int pointer_ = 0;
  bool height_is_set_ = false;
  bool form_changed_ = false;
  bool report_pending_ = false;
};

}  // namespace lorimet
