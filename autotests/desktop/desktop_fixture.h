// A desktop with windows built in code, and a hand for its mouse and keyboard.
#pragma once

#include <gtest/gtest.h>

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/qt_desktop.h"
#include "platform/controls.h"
#include "platform/forms.h"
#include "platform/runtime_error.h"

namespace lorimet {

// A form with one control of each kind and a log of its events.
class SampleForm : public Form {
 public:
  explicit SampleForm(Desktop& desktop, const std::string& name = "frmSample");

  TextBox txtName;
  TextBox txtNotes;
  TextBox txtLast;
  Label lblName;
  Frame fraChoices;
  ControlArray<OptionButton> optChoice;
  CheckBox chkFine;
  Button cmdOK;
  Button cmdOther;
  Picture picIcon;
  ProgressBar prgWork;
  Timer tmrTick;
  MenuItem mnuTop;
  MenuItem mnuItem;
  ToolButton tbrHelp;
  DataGrid grdRows;
  TabStrip tbsPages;

  std::vector<std::string> log;
  std::function<void()> load;
  std::function<void(bool&, UnloadMode)> query_unload;
  std::function<void(KeyEvent&)> key_down;
  std::function<void(int&)> key_press;

 protected:
  void OnLoad() override;
  void OnQueryUnload(bool& cancel, UnloadMode mode) override;
  void OnUnload() override { log.push_back("unload"); }
  void OnResize() override { log.push_back("resize"); }
  void OnKeyDown(KeyEvent& key) override;
  void OnKeyPress(int& character) override;
};

QWidget* BuildSampleWindow(QWidget* parent);
QWidget* BuildSampleDialog(QWidget* parent);

// The window system's own road: what happens to a real window, through all that the toolkit does
// with it before a widget hears of it.
namespace road {

void Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
         const QString& text = {});
void Click(QWidget* widget);  // in its middle
void Click(QWidget* widget, const QPoint& place);
// The left button alone, pressed or released.
void Button(QWidget* widget, const QPoint& place, QEvent::Type type);

}  // namespace road

class DesktopTest : public testing::Test {
 public:
  // Delivers an event as the window system does.
  static void Send(QWidget* widget, QEvent& event);
  static void Click(QWidget* widget);
  static void Press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                    const QString& text = {});
  // Lets everything that is pending happen.
  static void Pump();
  // Runs `action` from the event loop once the next modal window stands.
  static void WhenModal(const std::function<void(QWidget* modal)>& action);

 protected:
  DesktopTest();
  ~DesktopTest() override;

  static void DoubleClick(QWidget* widget);
  static void Type(QWidget* widget, const QString& text);

  template <typename Widget>
  Widget* Find(const Form& form, const char* name) {
    return desktop.Window(form)->template findChild<Widget*>(QLatin1String(name));
  }

  std::vector<RuntimeError> errors;
  QtDesktop desktop;
  SampleForm form;
};

}  // namespace lorimet
