#include "autotests/desktop/desktop_fixture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include "adapters/qt/qt_style.h"
#include "autotests/common/window_system.h"

// How the toolkit itself asks for shortcuts before it delivers a key.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString& text = QString(),
                                               bool autorepeat = false, ushort count = 1);

// The toolkit's friend that makes an event look as if it came from the window system.
class QSpontaneKeyEvent {
 public:
  static void SetSpontaneous(QEvent& event) { event.m_spont = true; }
};
QT_END_NAMESPACE

namespace lorimet {
namespace {

class Application : public testing::Environment {
 public:
  void SetUp() override {
    // The toolkit's file dialog remembers its places: not in the settings of whoever runs the
    // tests.
    qputenv("XDG_CONFIG_HOME", settings_.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
    ApplyStyle(*application_);
  }
  void TearDown() override { application_.reset(); }

 private:
  QTemporaryDir settings_;
  int argc_ = 1;
  char name_[14] = "desktop_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

testing::Environment* const kApplication = testing::AddGlobalTestEnvironment(new Application);

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(QLatin1String(name));
  return widget;
}

QWidget* BuildBody() {
  auto* body = new QWidget;
  auto* layout = new QFormLayout(body);
  auto* name = Named(new QLineEdit(QStringLiteral("nobody")), "txtName");
  name->setMaxLength(8);
  layout->addRow(Named(new QLabel(QStringLiteral("&Name:")), "lblName"), name);
  layout->addRow(Named(new QPlainTextEdit, "txtNotes"));
  layout->addRow(QStringLiteral("Last:"), Named(new QLineEdit, "txtLast"));
  auto* choices = Named(new QGroupBox(QStringLiteral("Choices")), "fraChoices");
  auto* choices_layout = new QVBoxLayout(choices);
  for (const char* option : {"optChoice_0", "optChoice_1", "optChoice_2"})
    choices_layout->addWidget(Named(new QRadioButton(QLatin1String(option)), option));
  layout->addRow(choices);
  auto* fine = Named(new QCheckBox(QStringLiteral("&Fine")), "chkFine");
  fine->setToolTip(QStringLiteral("Tick it"));
  layout->addRow(fine);
  layout->addRow(Named(new QLabel, "picIcon"));
  auto* work = Named(new QProgressBar, "prgWork");
  work->setRange(0, 9);
  layout->addRow(work);
  layout->addRow(Named(new QTableWidget, "grdRows"));
  layout->addRow(Named(new QTabBar, "tbsPages"));
  layout->addRow(Named(new QPushButton(QStringLiteral("OK")), "cmdOK"));
  auto* other = Named(new QPushButton(QStringLiteral("&Other")), "cmdOther");
  other->setEnabled(false);
  layout->addRow(other);
  return body;
}

}  // namespace

QWidget* BuildSampleWindow(QWidget* parent) {
  auto* window = new QMainWindow(parent);
  window->setWindowTitle(QStringLiteral("Sample"));
  window->setCentralWidget(BuildBody());
  auto* menu = Named(window->menuBar()->addMenu(QStringLiteral("&Top")), "mnuTop");
  Named(menu->addAction(QStringLiteral("&Item")), "mnuItem");
  auto* tool = Named(window->addToolBar(QString())->addAction(QStringLiteral("?")), "tbrHelp_help");
  tool->setToolTip(QStringLiteral("Help me"));
  return window;
}

QWidget* BuildSampleDialog(QWidget* parent) {
  auto* dialog = new QDialog(parent);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(BuildBody());
  auto* menu = Named(new QMenu(dialog), "mnuTop");
  Named(menu->addAction(QString()), "mnuItem");
  dialog->addAction(Named(new QAction(dialog), "tbrHelp_help"));
  return dialog;
}

SampleForm::SampleForm(Desktop& desktop, const std::string& name)
    : Form(desktop, name),
      txtName(*this, "txtName"),
      txtNotes(*this, "txtNotes"),
      txtLast(*this, "txtLast"),
      lblName(*this, "lblName"),
      fraChoices(*this, "fraChoices"),
      optChoice(*this, "optChoice", 3),
      chkFine(*this, "chkFine"),
      cmdOK(*this, "cmdOK"),
      cmdOther(*this, "cmdOther"),
      picIcon(*this, "picIcon"),
      prgWork(*this, "prgWork"),
      tmrTick(*this, "tmrTick"),
      mnuTop(*this, "mnuTop"),
      mnuItem(*this, "mnuItem"),
      tbrHelp(*this, "tbrHelp", "help"),
      grdRows(*this, "grdRows"),
      tbsPages(*this, "tbsPages") {
  txtName.on_change = [this] { log.push_back("change " + txtName.Text()); };
  optChoice.OnClick([this](int i) { log.push_back("option " + std::to_string(i)); });
  chkFine.on_click = [this] { log.push_back(chkFine.Value() ? "ticked" : "unticked"); };
  cmdOK.on_click = [this] { log.push_back("ok"); };
  mnuItem.on_click = [this] { log.push_back("item"); };
  tbrHelp.on_click = [this] { log.push_back("help"); };
  tbsPages.on_click = [this] { log.push_back("tab " + std::to_string(tbsPages.Selected())); };
}

void SampleForm::OnLoad() {
  if (load) load();
}

void SampleForm::OnQueryUnload(bool& cancel, UnloadMode mode) {
  if (query_unload) query_unload(cancel, mode);
}

void SampleForm::OnKeyDown(KeyEvent& key) {
  if (key_down) key_down(key);
}

void SampleForm::OnKeyPress(int& character) {
  if (key_press) key_press(character);
}

DesktopTest::DesktopTest()
    : desktop({{"frmSample", BuildSampleWindow},
               {"frmOne", BuildSampleDialog},
               {"frmTwo", BuildSampleDialog}}),
      form(desktop) {
  desktop.on_unhandled_error = [this](const RuntimeError& error) { errors.push_back(error); };
}

DesktopTest::~DesktopTest() {
  form.query_unload = nullptr;
  form.Unload();
  Pump();
}

void DesktopTest::Pump() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void DesktopTest::Send(QWidget* widget, QEvent& event) {
  QSpontaneKeyEvent::SetSpontaneous(event);
  qApp->notify(widget, &event);
}

namespace {

void SendMouse(QWidget* widget, QEvent::Type type) {
  const QPointF place = widget->rect().center();
  QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
  DesktopTest::Send(widget, event);
}

}  // namespace

void DesktopTest::Click(QWidget* widget) {
  const QPointer<QWidget> alive(widget);
  SendMouse(widget, QEvent::MouseButtonPress);
  if (alive) SendMouse(widget, QEvent::MouseButtonRelease);
}

void DesktopTest::DoubleClick(QWidget* widget) {
  Click(widget);
  SendMouse(widget, QEvent::MouseButtonDblClick);
  SendMouse(widget, QEvent::MouseButtonRelease);
}

void DesktopTest::Press(QWidget* widget, int key, Qt::KeyboardModifiers modifiers,
                        const QString& text) {
  const QPointer<QWidget> alive(widget);
  if (qt_sendShortcutOverrideEvent(widget, 0, key, modifiers, text)) return;
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  if (alive) Send(widget, press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  if (alive) Send(widget, release);
}

namespace road {

void Key(QWidget* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QPointer<QWidget> alive(window);
  if (window->windowHandle() == nullptr) return;
  if (qt_sendShortcutOverrideEvent(window->windowHandle(), 0, key, modifiers, text)) return;
  if (alive) qt_handleKeyEvent(alive->windowHandle(), QEvent::KeyPress, key, modifiers, text);
  if (alive && alive->windowHandle() != nullptr)
    qt_handleKeyEvent(alive->windowHandle(), QEvent::KeyRelease, key, modifiers, text);
}

void Click(QWidget* widget) { Click(widget, widget->rect().center()); }

void Button(QWidget* widget, const QPoint& place, QEvent::Type type) {
  const QPointer<QWidget> window(widget->window());
  if (window->windowHandle() == nullptr) return;
  const bool down = type == QEvent::MouseButtonPress;
  const QPointF global = widget->mapToGlobal(QPointF(place));
  static int time = 0;
  time += down ? 2000 : 10;  // never a double click
  qt_handleMouseEvent(window->windowHandle(), window->mapFromGlobal(global), global,
                      down ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type, Qt::NoModifier,
                      time);
}

void Click(QWidget* widget, const QPoint& place) {
  const QPointer<QWidget> alive(widget);
  Button(widget, place, QEvent::MouseButtonPress);
  if (alive) Button(widget, place, QEvent::MouseButtonRelease);
}

}  // namespace road

void DesktopTest::Type(QWidget* widget, const QString& text) {
  for (const QChar character : text)
    Press(widget, character.toUpper().unicode(), Qt::NoModifier, QString(character));
}

void DesktopTest::WhenModal(const std::function<void(QWidget* modal)>& action) {
  auto* waiting = new QTimer(qApp);
  QWidget* before = QApplication::activeModalWidget();
  QObject::connect(waiting, &QTimer::timeout, qApp, [waiting, before, action] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || modal == before) return;
    waiting->stop();
    waiting->deleteLater();
    action(modal);
  });
  waiting->start(0);
}

}  // namespace lorimet
